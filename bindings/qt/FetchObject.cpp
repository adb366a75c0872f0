// SPDX-FileCopyrightText: The KOBTraduction authors
#include "FetchObject.h"

#include <QWidget>

#include <algorithm>
#include <cstddef>
#include <cstring>

namespace kob::qt {

namespace {

constexpr std::size_t usualData = 704;
/// What a walk reads of them.
constexpr std::size_t firstData = 192;
/// So many objects in one are fetched; of a container with very many, the first would be gone by then.
constexpr qsizetype fewInside = 16;

void fetchBytes(const void* address, std::size_t size) noexcept {
#if defined(__GNUC__)
  // Without this the compiler takes the function for one that does nothing, and leaves its calls out.
  asm volatile("" : : "r"(address));
  constexpr std::size_t cacheLine = 64;
  for (std::size_t offset = 0; offset < size; offset += cacheLine) {
    __builtin_prefetch(static_cast<const char*>(address) + offset);
  }
#else
  static_cast<void>(address);
  static_cast<void>(size);
#endif
}

template <class Visit>
void eachInside(const QObject& object, Visit visit) {
  const QObjectList& inside = object.children();
  std::for_each_n(inside.begin(), std::min(inside.size(), fewInside), visit);
}

}  // namespace

const char* dataOf(const QObject& object) noexcept {
  struct Data : QObject {
    static const char* of(const QObject& object) noexcept {
      return reinterpret_cast<const char*>((object.*(&Data::d_ptr)).data());
    }
  };
  return Data::of(object);
}

void fetchData(const char* data) noexcept {
  fetchBytes(data, usualData);
}

void fetchGuarded(const QPointer<QObject>& pointer) noexcept {
  const void* ends[2];
  static_assert(sizeof(ends) == sizeof(pointer));
  std::memcpy(ends, static_cast<const void*>(&pointer), sizeof(ends));
  fetchBytes(ends[0], 1);
  fetchBytes(ends[1], 1);
}

// In steps: each goes along pointers that an earlier one has fetched.
void fetchSiblings(const QObjectList& siblings, qsizetype at) noexcept {
  constexpr qsizetype places = 8;
  const qsizetype left = siblings.size() - at;
  if (left > 2 * places) {
    fetchBytes(siblings[at + 2 * places], sizeof(QWidget));
  }
  if (left > places) {
    fetchData(dataOf(*siblings[at + places]));
  }
  if (left > places / 2) {
    const QObjectList& inside = siblings[at + places / 2]->children();
    fetchBytes(inside.data(), sizeof(void*) * static_cast<std::size_t>(std::min(inside.size(), fewInside)));
  }
  if (left > 2) {
    eachInside(*siblings[at + 2], [](const QObject* object) { fetchBytes(object, sizeof(QWidget)); });
  }
  if (left > 1) {
    eachInside(*siblings[at + 1], [](const QObject* object) { fetchBytes(dataOf(*object), firstData); });
  }
}

}  // namespace kob::qt
