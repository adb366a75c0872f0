// SPDX-FileCopyrightText: The KOBTraduction authors
#include "FormTexts.h"

#include "ItemTexts.h"
#include "Mirrors.h"

#include <QAction>
#include <QKeySequence>
#include <QMetaProperty>
#include <QTabBar>
#include <QTabWidget>
#include <QToolBox>
#include <QWidget>

namespace kob::fidelity {

namespace {

/// Names of properties that repeat another text of the same object, or that no person reads.
bool isRepeated(const QString& property) {
  static const QStringList names = {
      QStringLiteral("objectName"),   QStringLiteral("html"),        QStringLiteral("markdown"),
      QStringLiteral("cleanText"),    QStringLiteral("currentText"), QStringLiteral("displayText"),
      QStringLiteral("selectedText"), QStringLiteral("styleSheet"),  QStringLiteral("windowFilePath")};
  return names.contains(property) || property.startsWith(QLatin1Char('_'));
}

class Reader {
 public:
  explicit Reader(QWidget& form) : form_(form) {}

  std::vector<FormText> read() {
    visit(form_, {});
    return std::move(texts_);
  }

 private:
  void visit(QObject& object, const QString& above) {
    const bool isWidget = object.isWidgetType();
    auto* action = qobject_cast<QAction*>(&object);
    if ((isWidget || action != nullptr) && isMirror(object)) {
      return;
    }
    const QString address = above.isEmpty() ? step(object, 0) : above;
    if (isWidget || action != nullptr) {
      readProperties(object, address);
    }
    if (action != nullptr) {
      add(object, address, QStringLiteral("shortcut"), TextKind::Shortcuts,
          action->shortcut().toString(QKeySequence::PortableText));
    }
    readPages(object, address);
    for (const ItemText& item : readItemTexts(object)) {
      add(object, address, item.place, item.isHeader ? TextKind::Headers : TextKind::Items, item.value);
    }

    QHash<QString, int> likes;
    for (QObject* child : object.children()) {
      const QString like = step(*child, -1);
      visit(*child, address + QLatin1Char('/') + step(*child, likes[like]++));
    }
  }

  static QString step(const QObject& object, int position) {
    QString text =
        QString::fromLatin1(object.metaObject()->className()) + QLatin1Char(':') + object.objectName();
    return position > 0 ? text + QLatin1Char('#') + QString::number(position) : text;
  }

  void readProperties(QObject& object, const QString& address) {
    const QMetaObject& meta = *object.metaObject();
    for (int i = 0; i < meta.propertyCount(); ++i) {
      const QMetaProperty property = meta.property(i);
      if (property.metaType().id() == QMetaType::QString &&
          !isRepeated(QString::fromLatin1(property.name()))) {
        addProperty(object, address, QString::fromLatin1(property.name()));
      }
    }
    for (const QByteArray& name : object.dynamicPropertyNames()) {
      if (object.property(name.constData()).metaType().id() == QMetaType::QString &&
          !isRepeated(QString::fromUtf8(name))) {
        addProperty(object, address, QString::fromUtf8(name));
      }
    }
  }

  void addProperty(QObject& object, const QString& address, const QString& property) {
    add(object, address, property, kindOfProperty(object, property),
        object.property(property.toUtf8().constData()).toString());
  }

  void readPages(QObject& object, const QString& address) {
    if (auto* tabs = qobject_cast<QTabWidget*>(&object)) {
      readTabs(
          object, address, tabs->count(), [tabs](int i) { return tabs->tabText(i); },
          [tabs](int i) { return tabs->tabToolTip(i); }, [tabs](int i) { return tabs->tabWhatsThis(i); });
    } else if (auto* bar = qobject_cast<QTabBar*>(&object)) {
      readTabs(
          object, address, bar->count(), [bar](int i) { return bar->tabText(i); },
          [bar](int i) { return bar->tabToolTip(i); }, [bar](int i) { return bar->tabWhatsThis(i); });
    } else if (auto* box = qobject_cast<QToolBox*>(&object)) {
      readTabs(
          object, address, box->count(), [box](int i) { return box->itemText(i); },
          [box](int i) { return box->itemToolTip(i); }, [](int) { return QString(); });
    }
  }

  template <class Caption, class ToolTip, class WhatsThis>
  void readTabs(QObject& object, const QString& address, int count, Caption caption, ToolTip toolTip,
                WhatsThis whatsThis) {
    for (int i = 0; i < count; ++i) {
      add(object, address, QStringLiteral("tab %1").arg(i), TextKind::Caption, caption(i));
      add(object, address, QStringLiteral("tool tip of tab %1").arg(i), TextKind::TabToolTips, toolTip(i));
      add(object, address, QStringLiteral("what's this of tab %1").arg(i), TextKind::WhatsThis, whatsThis(i));
    }
  }

  void add(QObject& object, const QString& address, const QString& property, TextKind kind,
           const QString& value) {
    texts_.push_back({address, property, kind, value, isDerived(object, property, value), &object});
  }

  static bool isDerived(const QObject& object, const QString& property, const QString& value) {
    const auto* action = qobject_cast<const QAction*>(&object);
    if (action == nullptr) {
      return false;
    }
    // The toolkit is asked what it derives, by an action that has nothing but the text.
    const QAction probe(action->text());
    return (property == QLatin1String("toolTip") && value == probe.toolTip()) ||
           (property == QLatin1String("iconText") && value == probe.iconText());
  }

  QWidget& form_;
  std::vector<FormText> texts_;
};

}  // namespace

std::vector<FormText> readFormTexts(QWidget& form) {
  return Reader(form).read();
}

QHash<QString, const FormText*> byKey(const std::vector<FormText>& texts) {
  QHash<QString, const FormText*> map;
  map.reserve(static_cast<qsizetype>(texts.size()));
  for (const FormText& text : texts) {
    map.insert(text.key(), &text);
  }
  return map;
}

}  // namespace kob::fidelity
