// SPDX-FileCopyrightText: The KOBTraduction authors
#include "TextKinds.h"

#include <QAbstractButton>
#include <QAction>
#include <QGroupBox>
#include <QHash>
#include <QLabel>
#include <QMenu>
#include <QWizardPage>

namespace kob::fidelity {

namespace {

template <class... Classes>
bool isAny(const QObject& object) {
  return (... || (qobject_cast<const Classes*>(&object) != nullptr));
}

}  // namespace

QString kindName(TextKind kind) {
  static const std::array<const char*, textKindCount> names = {
      "captions", "tool tips", "items",     "headers",   "status tips", "what's this", "accessible names",
      "suffixes", "tab tips",  "subtitles", "shortcuts", "icon texts",  "contents",    "others"};
  return QString::fromLatin1(names.at(static_cast<std::size_t>(kind)));
}

TextKind kindOfProperty(const QObject& object, const QString& property) {
  static const QHash<QString, TextKind> alike = {
      {QStringLiteral("placeholderText"), TextKind::Caption},
      {QStringLiteral("windowTitle"), TextKind::Caption},
      {QStringLiteral("toolTip"), TextKind::ToolTip},
      {QStringLiteral("statusTip"), TextKind::StatusTips},
      {QStringLiteral("whatsThis"), TextKind::WhatsThis},
      {QStringLiteral("accessibleName"), TextKind::AccessibleNames},
      {QStringLiteral("accessibleDescription"), TextKind::AccessibleNames},
      {QStringLiteral("suffix"), TextKind::Suffixes},
      {QStringLiteral("prefix"), TextKind::Suffixes},
      {QStringLiteral("specialValueText"), TextKind::Suffixes},
      {QStringLiteral("format"), TextKind::Suffixes},
      {QStringLiteral("displayFormat"), TextKind::Suffixes},
      {QStringLiteral("subTitle"), TextKind::Subtitles},
      {QStringLiteral("iconText"), TextKind::IconTexts},
      {QStringLiteral("windowIconText"), TextKind::IconTexts},
      {QStringLiteral("html"), TextKind::Contents},
      {QStringLiteral("plainText"), TextKind::Contents},
      {QStringLiteral("documentTitle"), TextKind::Contents},
  };
  if (property == QLatin1String("text")) {
    return isAny<QLabel, QAbstractButton, QAction>(object) ? TextKind::Caption : TextKind::Contents;
  }
  if (property == QLatin1String("title")) {
    return isAny<QGroupBox, QMenu, QWizardPage>(object) ? TextKind::Caption : TextKind::Others;
  }
  return alike.value(property, TextKind::Others);
}

}  // namespace kob::fidelity
