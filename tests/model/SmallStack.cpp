// SPDX-FileCopyrightText: The KOBTraduction authors
#include "SmallStack.h"

#include <pthread.h>

#include <cstddef>
#include <stdexcept>

namespace kob::test {
namespace {

void* runAction(void* action) {
  (*static_cast<const std::function<void()>*>(action))();
  return nullptr;
}

}  // namespace

void onSmallStack(const std::function<void()>& action) {
  constexpr std::size_t stackSize = 256 * 1024;
  pthread_attr_t attributes;
  pthread_attr_init(&attributes);
  pthread_t thread;
  std::function<void()> own = action;
  const bool started = pthread_attr_setstacksize(&attributes, stackSize) == 0 &&
                       pthread_create(&thread, &attributes, runAction, &own) == 0;
  pthread_attr_destroy(&attributes);
  if (!started) {
    throw std::runtime_error("no thread with a small stack");
  }
  pthread_join(thread, nullptr);
}

}  // namespace kob::test
