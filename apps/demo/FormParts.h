// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include <QAbstractButton>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QString>
#include <QVariant>

/// What the forms are made of: controls with the names, captions, tool tips and tags by which they are
/// recorded.
namespace kob::demo {

/// A tag that keeps a control out of the translation: it shows data, or a name that is the same everywhere.
inline constexpr const char* notTranslated = "PAS TRADUIT";

inline void setCaption(QLabel& label, const QString& caption) {
  label.setText(caption);
}
inline void setCaption(QAbstractButton& button, const QString& caption) {
  button.setText(caption);
}
inline void setCaption(QGroupBox& box, const QString& caption) {
  box.setTitle(caption);
}
inline void setCaption(QLineEdit& edit, const QString& caption) {
  edit.setPlaceholderText(caption);
}
inline void setCaption(QPlainTextEdit& edit, const QString& caption) {
  edit.setPlaceholderText(caption);
}

template <class Widget>
Widget* part(const char* name, QWidget* parent = nullptr) {
  auto* const widget = new Widget(parent);
  widget->setObjectName(QLatin1String(name));
  return widget;
}

template <class Widget>
Widget* part(const char* name, const QString& caption, const QString& toolTip = {},
             QWidget* parent = nullptr) {
  auto* const widget = part<Widget>(name, parent);
  setCaption(*widget, caption);
  widget->setToolTip(toolTip);
  return widget;
}

/// One member of a control array: the name is shared, the Index tells the members apart.
template <class Widget>
Widget* member(const char* name, int index, const QString& caption, QWidget* parent = nullptr) {
  auto* const widget = part<Widget>(name, caption, {}, parent);
  widget->setProperty("Index", index);
  return widget;
}

inline void setTag(QObject& object, const char* tag) {
  object.setProperty("tag", QString::fromLatin1(tag));
}

/// A label for data, which is nobody's to translate.
inline QLabel* dataLabel(const char* name, QWidget* parent = nullptr) {
  auto* const label = part<QLabel>(name, parent);
  setTag(*label, notTranslated);
  return label;
}

}  // namespace kob::demo
