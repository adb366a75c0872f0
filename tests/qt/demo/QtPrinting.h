// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include <QString>

#include <ostream>

/// How a failed comparison shows a text. Every file of the test program includes this.
inline void PrintTo(const QString& text, std::ostream* out) {
  *out << '"' << text.toUtf8().constData() << '"';
}
