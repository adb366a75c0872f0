// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include <CLI/CLI.hpp>

#include <functional>
#include <stdexcept>
#include <string>

namespace kob::command {

/// What the command ends with. Scripts depend on the numbers: they never change.
enum class Status : int {
  Fine = 0,
  Findings = 1,     ///< done, but something asks for attention: a refused text, a finding of a check
  Usage = 2,        ///< the arguments are wrong, or name a path, a text or a language that the file lacks
  Unreadable = 3,   ///< an input cannot be read or is not what it should be
  CannotWrite = 4,  ///< a result cannot be written
};

/// What the command line asks for: set by the verb that it names, run once all of the line is understood.
using Job = std::function<Status()>;

/// A verb with its help: `about` is one sentence without a full stop, `examples` are lines that a person can
/// type. Its arguments are added by the caller, which also sets the callback.
CLI::App* addVerb(CLI::App& command, const std::string& name, const std::string& about,
                  const std::string& examples);

/// Ends the reading of the arguments when neither was given.
void requireTarget(const CLI::Option& out, const CLI::Option& place);

/// Where a verb that changes a translation file puts the result: one of the two must be asked for, or a
/// rehearsal where one is offered.
struct Target {
  enum class Rehearsal { None, Offered };

  std::string file;
  bool isInPlace = false;
  /// --dry-run was said: nothing is written.
  bool isDryRun = false;

  void addTo(CLI::App& verb, Rehearsal rehearsal = Rehearsal::None);
  /// The file to write when `input` was read.
  const std::string& of(const std::string& input) const { return isInPlace ? input : file; }
};

/// The positional FILE.trad.
CLI::Option* addModelFile(CLI::App& verb, std::string& file);

/// Thrown by a verb whose arguments do not fit what the file holds; the message is for a person.
class UsageError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

// The verbs, one file each. Another one is a file XyzVerb.cpp with an addXyz, declared here and called by
// makeCommand where --help shall list it; the manual page, the completion and their test follow by
// themselves. One that needs the toolkit belongs to the library kob_kobtrad_forms.
void addHarvest(CLI::App& command, Job& job);
void addApply(CLI::App& command, Job& job);
void addShow(CLI::App& command, Job& job);
void addGet(CLI::App& command, Job& job);
void addSet(CLI::App& command, Job& job);
void addLanguages(CLI::App& command, Job& job);
void addStats(CLI::App& command, Job& job);
void addEdit(CLI::App& command, Job& job);
void addCheck(CLI::App& command, Job& job);
void addTestLanguage(CLI::App& command, Job& job);
void addClearLanguage(CLI::App& command, Job& job);
void addMerge(CLI::App& command, Job& job);
void addComplete(CLI::App& command, Job& job);

}  // namespace kob::command
