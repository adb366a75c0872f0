// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include <kobtraduction/engine/Value.h>

#include <QString>
#include <QVariant>

#include <optional>

namespace kob::qt {

/// A property's value as the engine sees it: a Boolean, an integer when it fits 32 bits, a number, else its
/// text; nothing for what has no text.
Value fromVariant(const QVariant& variant);

/// The text to write; empty when the value has none.
std::optional<QString> asQString(const Value& value);

/// The characters of a text, where they are.
inline TextView units(const QString& text) noexcept {
  return {reinterpret_cast<const char16_t*>(text.constData()), static_cast<std::size_t>(text.size())};
}

/// The value of a dynamic property; a missing one costs no look-up through the object's class.
std::optional<QVariant> dynamicProperty(const QObject& object, const char* name);

}  // namespace kob::qt
