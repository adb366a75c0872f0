// SPDX-FileCopyrightText: The KOBTraduction authors
// Lists the windows that programs of this Wine prefix have open, each with its class and title; status 1 when
// there are any. Run after the tests: a program that ends, or waits for a person that is not there, has left
// one.
#include <windows.h>

#include <cstdio>
#include <string>

namespace {

BOOL CALLBACK tell(HWND window, LPARAM count) {
  DWORD process = 0;
  GetWindowThreadProcessId(window, &process);
  if (IsWindowVisible(window) == 0 || process == GetCurrentProcessId()) {
    return TRUE;
  }
  std::wstring name(256, L'\0');
  name.resize(static_cast<std::size_t>(GetClassNameW(window, name.data(), static_cast<int>(name.size()))));
  std::wstring title(256, L'\0');
  title.resize(
      static_cast<std::size_t>(GetWindowTextW(window, title.data(), static_cast<int>(title.size()))));
  std::printf("left open: %ls \"%ls\"\n", name.c_str(), title.c_str());
  ++*reinterpret_cast<int*>(count);
  return TRUE;
}

}  // namespace

int main() {
  int count = 0;
  EnumWindows(tell, reinterpret_cast<LPARAM>(&count));
  return count == 0 ? 0 : 1;
}
