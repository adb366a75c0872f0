// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include <QObject>

namespace kob::qt {

/// Tells the processor that a widget's or an action's own data are read soon: all but a few words of an
/// object of the toolkit lie behind a pointer, in memory of their own.
inline void fetchObject(const QObject& object) noexcept {
#if defined(__GNUC__)
  struct Data : QObject {
    static const char* of(const QObject& object) noexcept {
      return reinterpret_cast<const char*>((object.*(&Data::d_ptr)).data());
    }
  };
  constexpr int usualSize = 704;
  constexpr int cacheLine = 64;
  const char* const data = Data::of(object);
  // Without this the compiler takes the function for one that does nothing, and leaves its calls out.
  asm volatile("" : : "r"(data));
  for (int offset = 0; offset < usualSize; offset += cacheLine) {
    __builtin_prefetch(data + offset);
  }
#else
  static_cast<void>(object);
#endif
}

}  // namespace kob::qt
