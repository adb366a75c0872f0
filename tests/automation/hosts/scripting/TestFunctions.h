// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include "BoxWatcher.h"
#include "NamedFunctions.h"

#include <functional>
#include <string>
#include <vector>

namespace kob::hosts {

/// The words that a test script has beside those of its language (../README.md lists them), as members of an
/// object that a script engine takes as a global one. They stay on the thread that made them.
class TestFunctions {
 public:
  /// `arguments` are those of the script. What it prints goes to `print`, in UTF-8, line breaks included.
  /// The boxes stay with whoever made them.
  TestFunctions(std::vector<Text> arguments, std::function<void(const std::string&)> print,
                BoxWatcher& boxes);
  TestFunctions(const TestFunctions&) = delete;
  TestFunctions& operator=(const TestFunctions&) = delete;

  ComPtr<IDispatch> object();

 private:
  Variant quit(const Arguments& arguments);

  std::vector<Text> arguments_;
  std::function<void(const std::string&)> print_;
  BoxWatcher& boxes_;
};

/// A file in UTF-8, a byte order mark in front allowed; throws ComError.
Text readTextFile(const std::wstring& file);

std::wstring wideOf(TextView text);

}  // namespace kob::hosts
