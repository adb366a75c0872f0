// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include <QString>

#include <array>
#include <cstddef>

class QObject;

namespace kob::fidelity {

/// What a text on a form is to its reader. The first two are what the component manages; the others are
/// counted so that nobody mistakes them for translated.
enum class TextKind {
  Caption,
  ToolTip,
  Items,
  Headers,
  StatusTips,
  WhatsThis,
  AccessibleNames,
  Suffixes,
  TabToolTips,
  Subtitles,
  Shortcuts,
  IconTexts,
  Contents,
  Others,
  Count,
};

inline constexpr std::size_t textKindCount = static_cast<std::size_t>(TextKind::Count);

constexpr bool isManaged(TextKind kind) {
  return kind == TextKind::Caption || kind == TextKind::ToolTip;
}

/// The heading of a kind's column.
QString kindName(TextKind kind);

/// The kind of a text property of a live object, by the toolkit's classes.
TextKind kindOfProperty(const QObject& object, const QString& property);

}  // namespace kob::fidelity
