// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include "Com.h"

#include <memory>
#include <optional>
#include <string>

namespace kob::hosts {

enum class ScriptLanguage { VBScript, JScript };

/// The language that a file's extension says (".vbs", ".js"); empty for another one.
std::optional<ScriptLanguage> languageOf(const std::wstring& file);

/// Where a script stopped, and why. Lines and columns count from 1.
struct ScriptError {
  HRESULT number;
  std::uint32_t line;
  std::uint32_t column;
  Text description;
  Text sourceLine;

  /// "FILE(line,column): error 800A01B6: text", and the line itself below.
  Text message(TextView file) const;
};

/// A script engine of Windows as an application hosts it. It stays on the thread that made it, which has
/// entered a single-threaded apartment; the script's objects live as long as the engine.
class ScriptEngine {
 public:
  /// Throws ComError where the engine is not installed.
  explicit ScriptEngine(ScriptLanguage language);
  ScriptEngine(const ScriptEngine&) = delete;
  ScriptEngine& operator=(const ScriptEngine&) = delete;
  ~ScriptEngine();

  /// A name that scripts can say; with `isGlobal`, its members also need no name in front. Before run().
  void add(TextView name, IDispatch* object, bool isGlobal = false);

  /// Runs a text to its end; the error that ended it, if any. An error within a callback is its caller's
  /// business: the script ends only where the caller hands it on.
  std::optional<ScriptError> run(TextView source);

  /// A variable of the script, by its name.
  Variant variable(TextView name);

 private:
  class Site;
  void end();

  Site* site_;  ///< counted
};

}  // namespace kob::hosts
