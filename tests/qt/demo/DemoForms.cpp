// SPDX-FileCopyrightText: The KOBTraduction authors
#include "DemoForms.h"

#include <QGroupBox>
#include <QTabWidget>

namespace kob::demo {

namespace {

QString nameOf(const QObject& object, int position) {
  return QStringLiteral("%1 %2 %3")
      .arg(position)
      .arg(QLatin1String(object.metaObject()->className()), object.objectName());
}

}  // namespace

DemoForms::DemoForms() : harvested_(demo_.harvest()), filled_(demo_.fillFrom(TextTable::builtIn())) {}

DemoForms::~DemoForms() {
  EXPECT_EQ(boxes_.shown(), QStringList());
}

QMap<QString, QString> DemoForms::texts() {
  QMap<QString, QString> result;
  int position = 0;
  // The dialogs are below the window.
  QList<QObject*> objects = demo_.window().findChildren<QObject*>();
  objects.prepend(&demo_.window());
  for (const QObject* const object : objects) {
    const QString name = nameOf(*object, position++);
    for (const char* const property : {"text", "title", "windowTitle", "placeholderText", "toolTip"}) {
      const QVariant value = object->property(property);
      if (value.isValid() && !value.toString().isEmpty()) {
        result.insert(name + u' ' + QLatin1String(property), value.toString());
      }
    }
    if (const auto* const tabs = qobject_cast<const QTabWidget*>(object)) {
      for (int i = 0; i < tabs->count(); ++i) {
        result.insert(name + QStringLiteral(" tab %1").arg(i), tabs->tabText(i));
      }
    }
  }
  return result;
}

QMap<QString, QString> DemoForms::places(const QWidget& form) {
  QMap<QString, QString> result{{form.objectName(), QString::number(form.width())}};
  int position = 0;
  for (const QWidget* const widget : form.findChildren<QWidget*>()) {
    const bool isTurnedOff = widget->isHidden() && widget->testAttribute(Qt::WA_WState_ExplicitShowHide);
    if (!widget->isWindow() && !isTurnedOff) {
      result.insert(nameOf(*widget, position++),
                    QStringLiteral("%1 +%2").arg(widget->x()).arg(widget->width()));
    }
  }
  return result;
}

QStringList differences(const QMap<QString, QString>& before, const QMap<QString, QString>& after) {
  QStringList result;
  for (auto entry = before.begin(); entry != before.end(); ++entry) {
    if (after.value(entry.key()) != entry.value()) {
      result += entry.key() + QStringLiteral(": ") + entry.value() + QStringLiteral(" -> ") +
                after.value(entry.key());
    }
  }
  for (auto entry = after.begin(); entry != after.end(); ++entry) {
    if (!before.contains(entry.key())) {
      result += entry.key() + QStringLiteral(": new");
    }
  }
  return result;
}

}  // namespace kob::demo
