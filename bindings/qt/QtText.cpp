// SPDX-FileCopyrightText: The KOBTraduction authors
#include <kobtraductionqt/KOBTraductionQt.h>

namespace kob::qt {

Text toText(const QString& text) {
  static_assert(sizeof(char16_t) == sizeof(QChar));
  return Text(reinterpret_cast<const char16_t*>(text.constData()), static_cast<std::size_t>(text.size()));
}

QString toQString(TextView text) {
  return QString(reinterpret_cast<const QChar*>(text.data()), static_cast<qsizetype>(text.size()));
}

}  // namespace kob::qt
