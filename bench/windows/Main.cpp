// SPDX-FileCopyrightText: The KOBTraduction authors
// What automation costs: kobwinbench [--quick]. Times are of the wall clock, medians of rounds taken in turn.
#include "Benches.h"

#include <tests/automation/hosts/scripting/Com.h>

#include <objbase.h>

#include <cstdio>
#include <string_view>

namespace {

std::wstring serverPath() {
  std::wstring path(32768, L'\0');
  path.resize(GetModuleFileNameW(nullptr, path.data(), static_cast<DWORD>(path.size())));
  return path.substr(0, path.find_last_of(L'\\') + 1) + L"KOBTraduction.dll";
}

}  // namespace

int main(int count, char** words) {
  const bool isQuick = count > 1 && std::string_view(words[1]) == "--quick";
  CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
  try {
    kob::bench::benchCalls(serverPath());
    kob::bench::benchDialog(serverPath(), 1000, isQuick ? 5 : 41);
    if (!isQuick) {
      kob::bench::benchDialog(serverPath(), 10000, 41);
    }
  } catch (const kob::hosts::ComError& error) {
    std::fprintf(stderr, "kobwinbench: error %08lX: %s\n", static_cast<unsigned long>(error.number),
                 kob::toUtf8(error.description).c_str());
    return 2;
  }
  CoUninitialize();
  return 0;
}
