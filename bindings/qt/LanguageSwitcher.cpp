// SPDX-FileCopyrightText: The KOBTraduction authors
#include "FormGeometry.h"
#include "FormWindow.h"

#include <kobtraductionqt/KOBTraductionQt.h>
#include <kobtraductionqt/LanguageSwitcher.h>

#include <QApplication>
#include <QEvent>
#include <QPointer>
#include <QWidget>

#include <algorithm>
#include <utility>
#include <vector>

namespace kob::qt {

namespace {

struct Form {
  Form(QWidget& live, Text moduleName) : widget(&live), module(std::move(moduleName)), geometry(live) {}

  QPointer<QWidget> widget;
  Text module;
  FormGeometry geometry;
  /// The application took it back: it is not registered again when it is shown.
  bool isRemoved = false;
  /// The last language was applied while the form was hidden, so its layouts have not seen it.
  bool wasHidden = false;
  bool isBusy = false;
  bool isReapplyPosted = false;
};

using FormRef = std::shared_ptr<Form>;

}  // namespace

/// A message of the component runs an event loop inside an application of a language: forms, and the switcher
/// itself, may be gone and the language another one when the engine returns.
class LanguageSwitcher::Private {
 public:
  Private(LanguageSwitcher& self, KOBModeleTraduction& borrowedModel) : q(self), model(borrowedModel) {}

  FormRef find(const QObject* widget) const {
    const auto found = std::find_if(forms.begin(), forms.end(),
                                    [widget](const FormRef& form) { return form->widget.data() == widget; });
    return found != forms.end() ? *found : nullptr;
  }

  FormRef add(QWidget& widget, const QString& module) {
    std::erase_if(forms, [](const FormRef& form) { return form->widget.isNull(); });
    forms.push_back(std::make_shared<Form>(widget, toText(module)));
    widget.installEventFilter(&q);
    return forms.back();
  }

  /// Works on its own reference to the form; `this` may be gone when it returns.
  void apply(const FormRef& form, FormGeometry::Moment moment = FormGeometry::Moment::Any) {
    if (form->isBusy) {
      return;
    }
    form->isBusy = true;
    ++busyForms;
    const QPointer<LanguageSwitcher> self(&q);
    for (std::int32_t applied = 0; self && form->widget && !form->isRemoved && applied != language;) {
      applied = language;
      form->wasHidden = !form->widget->isVisible();
      form->geometry.apply(model, applied, form->module, moment);
    }
    form->isBusy = false;
    if (form->isRemoved) {
      form->geometry.forget();
    }
    if (self) {
      --busyForms;
      announce();
    }
  }

  void applyToAll() {
    ++busyForms;
    const QPointer<LanguageSwitcher> self(&q);
    const std::vector<FormRef> present = forms;
    for (const FormRef& form : present) {
      apply(form);
      if (!self) {
        return;
      }
    }
    --busyForms;
    announce();
  }

  /// A language that was set while forms were busy is told when they show it.
  void announce() {
    if (busyForms == 0 && announcedLanguage != language) {
      announcedLanguage = language;
      emit q.languageChanged(language);
    }
  }

  void watch() {
    QCoreApplication::instance()->installEventFilter(&q);
    const QPointer<LanguageSwitcher> self(&q);
    const QWidgetList windows = QApplication::topLevelWidgets();
    const std::vector<QPointer<QWidget>> present(windows.begin(), windows.end());
    for (const QPointer<QWidget>& window : present) {
      if (self && window && window->isVisible()) {
        formShown(*window);
      }
    }
  }

  void formShown(QWidget& widget) {
    FormRef form = find(&widget);
    if (form == nullptr) {
      if (!isWatching || !isFormWindow(widget)) {
        return;
      }
      form = add(widget, watchedModule);
      form->wasHidden = true;
    }
    if (form->wasHidden) {
      apply(form, FormGeometry::Moment::BeingShown);
    }
  }

  /// The toolkit and the application are about to write their own texts; ours follow.
  void formRetranslated(const QObject* widget) {
    const FormRef form = find(widget);
    if (form == nullptr || form->isReapplyPosted) {
      return;
    }
    form->isReapplyPosted = true;
    QMetaObject::invokeMethod(
        &q,
        [this, form] {
          form->isReapplyPosted = false;
          apply(form);
        },
        Qt::QueuedConnection);
  }

  LanguageSwitcher& q;
  KOBModeleTraduction& model;
  std::vector<FormRef> forms;
  QString watchedModule;
  std::int32_t language = 1;
  std::int32_t announcedLanguage = 1;
  /// How many applications of a language are under way, one inside the other.
  int busyForms = 0;
  bool isWatching = false;
};

LanguageSwitcher::LanguageSwitcher(KOBModeleTraduction& model, QObject* parent)
    : QObject(parent), d_(std::make_unique<Private>(*this, model)) {}

LanguageSwitcher::~LanguageSwitcher() = default;

void LanguageSwitcher::addForm(QWidget* form, const QString& module) {
  if (form == nullptr) {
    return;
  }
  FormRef entry = d_->find(form);
  if (entry == nullptr) {
    entry = d_->add(*form, module);
  }
  entry->module = toText(module);
  entry->isRemoved = false;
  d_->apply(entry);
}

void LanguageSwitcher::removeForm(QWidget* form) {
  if (const FormRef entry = form != nullptr ? d_->find(form) : nullptr) {
    entry->isRemoved = true;
    entry->geometry.forget();
  }
}

void LanguageSwitcher::watchApplication(const QString& module) {
  d_->watchedModule = module;
  if (!std::exchange(d_->isWatching, true)) {
    d_->watch();
  }
}

std::int32_t LanguageSwitcher::language() const noexcept {
  return d_->language;
}

void LanguageSwitcher::setLanguage(std::int32_t langue) {
  if (langue < 1 || langue > d_->model.NbLangues()) {
    return;
  }
  d_->language = langue;
  d_->applyToAll();
}

void LanguageSwitcher::refresh() {
  d_->applyToAll();
}

bool LanguageSwitcher::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::Show && !event->spontaneous() && watched->isWidgetType()) {
    d_->formShown(*static_cast<QWidget*>(watched));
  } else if (event->type() == QEvent::LanguageChange) {
    d_->formRetranslated(watched);
  }
  return false;
}

}  // namespace kob::qt
