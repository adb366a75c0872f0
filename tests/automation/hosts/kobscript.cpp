// SPDX-FileCopyrightText: The KOBTraduction authors
// Runs a script (.vbs, .js; UTF-8) with the words of TestFunctions: kobscript SCRIPT [arguments].
// What it prints is UTF-8. Status 0 when the script came to its end, 1 when an error ended it (on standard
// error: file, line, column and text), 2 when it could not begin.

#include "scripting/BoxWatcher.h"
#include "scripting/ScriptEngine.h"
#include "scripting/TestFunctions.h"

#include <objbase.h>
#include <tests/doubles/Utf8.h>

#include <fcntl.h>
#include <io.h>

#include <cstdio>
#include <string>
#include <vector>

namespace kob::hosts {
namespace {

void writeTo(std::FILE* stream, const std::string& text) {
  std::fwrite(text.data(), 1, text.size(), stream);
}

int runScript(const std::wstring& file, std::vector<Text> arguments) {
  const std::optional<ScriptLanguage> language = languageOf(file);
  if (!language) {
    writeTo(stderr, "kobscript: a script ends in .vbs or .js\n");
    return 2;
  }
  try {
    const Text source = readTextFile(file);
    BoxWatcher boxes;
    TestFunctions functions(
        std::move(arguments), [](const std::string& text) { writeTo(stdout, text); }, boxes);
    ScriptEngine engine(*language);
    engine.add(u"Host", functions.object().get(), true);
    if (const std::optional<ScriptError> error = engine.run(source)) {
      std::fflush(stdout);
      writeTo(stderr, testing::toUtf8(error->message(textOf(file.c_str()))) + "\n");
      return 1;
    }
    return 0;
  } catch (const ComError& error) {
    writeTo(stderr, "kobscript: " + testing::toUtf8(error.description) + "\n");
    return 2;
  }
}

int run(const std::vector<std::wstring>& words) {
  _setmode(_fileno(stdout), _O_BINARY);
  _setmode(_fileno(stderr), _O_BINARY);
  if (words.size() < 2) {
    writeTo(stderr, "kobscript SCRIPT [arguments]\n");
    return 2;
  }
  std::vector<Text> arguments;
  for (std::size_t i = 2; i < words.size(); ++i) {
    arguments.push_back(textOf(words[i].c_str()));
  }
  CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
  const int status = runScript(words[1], std::move(arguments));
  CoUninitialize();
  return status;
}

}  // namespace
}  // namespace kob::hosts

int wmain(int count, wchar_t** words) {
  return kob::hosts::run(std::vector<std::wstring>(words, words + count));
}
