// SPDX-FileCopyrightText: The KOBTraduction authors
#include "NativeSaveFileDialog.h"

#include "../WideText.h"

#include <cderr.h>
#include <commdlg.h>

#include <algorithm>
#include <string>
#include <vector>

namespace kob::win32 {

namespace {

constexpr std::size_t longestPath = 32'768;

/// "description|pattern|..." as the system takes it: each part ends with a NUL, and so does the whole.
std::wstring nativeFilter(TextView filter) {
  std::wstring native = shown(filter);
  std::replace(native.begin(), native.end(), L'|', L'\0');
  native.append(2, L'\0');
  return native;
}

/// What is added to a name without one: that of the first pattern.
std::wstring suffixOf(TextView filter) {
  const std::wstring text = shown(filter);
  const std::size_t dot = text.find(L"|*.");
  return dot == std::wstring::npos ? L"" : text.substr(dot + 3, text.find_first_of(L"|;", dot + 3) - dot - 3);
}

}  // namespace

Text NativeSaveFileDialog::choose() {
  const std::wstring filters = nativeFilter(filter());
  const std::wstring suffix = suffixOf(filter());
  std::vector<wchar_t> name(longestPath, L'\0');
  const std::wstring proposed = shown(fileName());
  std::copy_n(proposed.begin(), std::min(proposed.size(), longestPath - 1), name.begin());
  OPENFILENAMEW asked = {};
  asked.lStructSize = sizeof asked;
  asked.hwndOwner = owner_();
  asked.lpstrFilter = filters.c_str();
  asked.lpstrFile = name.data();
  asked.nMaxFile = static_cast<DWORD>(name.size());
  asked.lpstrDefExt = suffix.empty() ? nullptr : suffix.c_str();
  // The folder of the host's program stays what it is.
  asked.Flags = OFN_EXPLORER | OFN_ENABLESIZING | OFN_HIDEREADONLY | OFN_NOCHANGEDIR | OFN_OVERWRITEPROMPT |
                OFN_PATHMUSTEXIST;
  BOOL isChosen = GetSaveFileNameW(&asked);
  if (isChosen == FALSE && CommDlgExtendedError() == FNERR_INVALIDFILENAME) {
    // What is proposed is no name here.
    name.front() = L'\0';
    isChosen = GetSaveFileNameW(&asked);
  }
  return isChosen != FALSE ? textOf(name.data()) : Text();
}

}  // namespace kob::win32
