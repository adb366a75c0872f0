// SPDX-FileCopyrightText: The KOBTraduction authors
#include "Appliers.h"

#include "Catalogs.h"
#include "TranslatedModel.h"

#include <kobtraductionqt/KOBTraductionQt.h>

#include <QCoreApplication>
#include <QMetaProperty>

#include <cstddef>
#include <stdexcept>

namespace bench {

namespace {

QString text(TextKind kind, std::size_t number, int language) {
  return QString::fromStdString(textFor(kind, static_cast<int>(number), language));
}

QString fromMemory(const std::u16string& units) {
  return QString(reinterpret_cast<const QChar*>(units.data()), static_cast<qsizetype>(units.size()));
}

}  // namespace

Component::Component(const WidgetForm& form) : form_(form) {
  recordTranslated(model_, form);
}

void Component::apply(int language) {
  model_.TraduitDialog(kob::qt::hostForm(form_.window()), language);
}

BareSetters::BareSetters(const WidgetForm& form) : form_(form) {
  for (int language = 2; language <= 3; ++language) {
    Texts& texts = texts_[language - 2];
    texts.title = titleFor(language).toStdU16String();
    for (std::size_t i = 0; i < form.parts().size(); ++i) {
      texts.captions.push_back(text(TextKind::Caption, i, language).toStdU16String());
      texts.toolTips.push_back(text(TextKind::ToolTip, i, language).toStdU16String());
    }
  }
}

void BareSetters::apply(int language) {
  const Texts& texts = texts_[language - 2];
  form_.window()->setWindowTitle(fromMemory(texts.title));
  for (std::size_t i = 0; i < form_.parts().size(); ++i) {
    const Part& part = form_.parts()[i];
    part.setCaption(fromMemory(texts.captions[i]));
    part.widget->setToolTip(fromMemory(texts.toolTips[i]));
  }
}

GeneratedCode::GeneratedCode(const WidgetForm& form, const QString& folder)
    : form_(form), title_(titleFor(1).toStdString()) {
  for (std::size_t i = 0; i < form.parts().size(); ++i) {
    captions_.push_back(textFor(TextKind::Caption, static_cast<int>(i), 1));
    toolTips_.push_back(textFor(TextKind::ToolTip, static_cast<int>(i), 1));
  }
  for (int language = 2; language <= 3; ++language) {
    std::vector<Message> messages;
    for (std::size_t i = 0; i < form.parts().size(); ++i) {
      const int number = static_cast<int>(i);
      messages.push_back({"FrmBench", captions_[i], textFor(TextKind::Caption, number, language)});
      messages.push_back({"FrmBench", toolTips_[i], textFor(TextKind::ToolTip, number, language)});
    }
    const QString file = compileQtCatalog(messages, folder, "form" + QString::number(language));
    if (file.isEmpty() || !translators_[language - 2].load(file)) {
      throw std::runtime_error("the catalog of the form cannot be made; is lrelease installed?");
    }
  }
}

GeneratedCode::~GeneratedCode() {
  if (installed_ != nullptr) {
    QCoreApplication::removeTranslator(installed_);
  }
}

void GeneratedCode::prepare(int language) {
  if (installed_ != nullptr) {
    QCoreApplication::removeTranslator(installed_);
  }
  installed_ = &translators_[language - 2];
  QCoreApplication::installTranslator(installed_);
  // The installation tells every widget, which none of the others has to do.
  WidgetForm::settle();
}

void GeneratedCode::apply(int /*language*/) {
  form_.window()->setWindowTitle(QCoreApplication::translate("FrmBench", title_.c_str(), nullptr));
  for (std::size_t i = 0; i < form_.parts().size(); ++i) {
    const Part& part = form_.parts()[i];
    part.setCaption(QCoreApplication::translate("FrmBench", captions_[i].c_str(), nullptr));
    part.widget->setToolTip(QCoreApplication::translate("FrmBench", toolTips_[i].c_str(), nullptr));
  }
}

PropertyWalk::PropertyWalk(const WidgetForm& form) : form_(form) {
  for (std::size_t i = 0; i < form.parts().size(); ++i) {
    for (const TextKind kind : {TextKind::Caption, TextKind::ToolTip}) {
      for (int from = 1; from <= 3; ++from) {
        to_[0].insert(text(kind, i, from), text(kind, i, 2));
        to_[1].insert(text(kind, i, from), text(kind, i, 3));
      }
    }
  }
}

void PropertyWalk::apply(int language) {
  const QHash<QString, QString>& translated = to_[language - 2];
  QList<QWidget*> widgets = form_.window()->findChildren<QWidget*>();
  widgets.prepend(form_.window());
  for (QWidget* const widget : widgets) {
    const QMetaObject* const meta = widget->metaObject();
    for (int i = 0; i < meta->propertyCount(); ++i) {
      const QMetaProperty property = meta->property(i);
      if (property.metaType().id() != QMetaType::QString || !property.isWritable()) {
        continue;
      }
      const auto found = translated.constFind(property.read(widget).toString());
      if (found != translated.constEnd()) {
        property.write(widget, *found);
      }
    }
  }
}

}  // namespace bench
