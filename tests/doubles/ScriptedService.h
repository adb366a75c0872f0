// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include "RecordValue.h"

#include <kobtraduction/persistence/FileManager.h>

#include <functional>
#include <map>
#include <string>
#include <vector>

namespace kob::testing {

/// The persistence service of the thread while it lives: keeps files in memory as records of values, makes
/// objects from their class identifiers, notes its calls, and fails when it was told to.
class ScriptedService {
 public:
  /// An object in a file. In its record, `integer` of an object's value is the number of the object in the
  /// file, counted from 1, and 0 for nothing; `object` is not used.
  struct Object {
    Text progId;
    Record record;
  };
  /// The first object is the one that was saved; an object that is met twice is there once.
  using File = std::vector<Object>;

  ScriptedService();
  ~ScriptedService();
  ScriptedService(const ScriptedService&) = delete;
  ScriptedService& operator=(const ScriptedService&) = delete;

  std::map<Text, File> files;
  /// Called at the beginning of each call; what it throws is the failure of the call.
  std::function<void()> before;
  /// Called for each value that an object writes or reads, with the object; what it throws is the failure of
  /// the value.
  std::function<void(const IKOBVBPersistStream&)> atValue;
  /// Called instead of making a file manager; may throw.
  std::function<std::unique_ptr<FileManager>()> make;

  /// `save "a.trad" mode=1`, `load "a.trad"`, since the last time; each followed by a line break.
  std::string takeCalls();
  /// File managers made since the beginning, and those that live now.
  int made = 0;
  int alive = 0;

 private:
  class Files;

  std::string calls_;
  ScriptedService* previous_;
  MakeFileManager previousMaker_;
};

}  // namespace kob::testing
