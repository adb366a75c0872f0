// SPDX-FileCopyrightText: The KOBTraduction authors
#include "QtValue.h"

#include <kobtraductionqt/KOBTraductionQt.h>

#include <QMetaType>
#include <QObject>

#include <limits>

namespace kob::qt {

Value fromVariant(const QVariant& variant) {
  switch (variant.typeId()) {
    case QMetaType::Bool:
      return variant.toBool();
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::Long:
    case QMetaType::ULong:
    case QMetaType::LongLong:
    case QMetaType::ULongLong:
    case QMetaType::Short:
    case QMetaType::UShort:
    case QMetaType::SChar:
    case QMetaType::UChar: {
      const double number = variant.toDouble();
      if (number >= std::numeric_limits<std::int32_t>::min() &&
          number <= std::numeric_limits<std::int32_t>::max()) {
        return static_cast<std::int32_t>(number);
      }
      return number;
    }
    case QMetaType::Double:
    case QMetaType::Float:
      return variant.toDouble();
    default:
      return variant.canConvert<QString>() ? Value(toText(variant.toString())) : Value();
  }
}

std::optional<QString> asQString(const Value& value) {
  if (const Text* const text = value.text()) {
    return toQString(*text);
  }
  if (const std::optional<Text> text = value.asText()) {
    return toQString(*text);
  }
  return std::nullopt;
}

std::optional<QVariant> dynamicProperty(const QObject& object, const char* name) {
  const QList<QByteArray> names = object.dynamicPropertyNames();
  for (const QByteArray& present : names) {
    if (present == name) {
      return object.property(name);
    }
  }
  return std::nullopt;
}

}  // namespace kob::qt
