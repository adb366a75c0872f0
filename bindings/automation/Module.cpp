// SPDX-FileCopyrightText: The KOBTraduction authors
#include "Module.h"

#include <atomic>
#include <cstddef>

namespace kob::automation {

namespace {

HINSTANCE handleOfModule = nullptr;
std::atomic<long> holders = 0;

}  // namespace

HINSTANCE moduleHandle() noexcept {
  return handleOfModule;
}

void setModuleHandle(HINSTANCE handle) noexcept {
  handleOfModule = handle;
}

std::wstring modulePath() {
  // The longest path that the system can have.
  constexpr std::size_t longest = 32768;
  std::wstring path(longest, L'\0');
  path.resize(GetModuleFileNameW(handleOfModule, path.data(), static_cast<DWORD>(path.size())));
  return path;
}

void holdModule() noexcept {
  ++holders;
}

void releaseModule() noexcept {
  --holders;
}

bool isModuleHeld() noexcept {
  return holders != 0;
}

}  // namespace kob::automation
