// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include <kobtraduction/model/KOBModeleTraduction.h>

#include <functional>
#include <stdexcept>
#include <string>

namespace kob::command {

/// A translation file could not be read / written; the message names the file and says why.
class ReadError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};
class WriteError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

/// Loads all of a file into the model, which should be new, or throws a ReadError.
void load(KOBModeleTraduction& model, const std::string& file);
/// The same into a new model that lives as long as the process: a verb ends with its process, and to take two
/// large models apart node by node would be a sixth of merging them.
KOBModeleTraduction& loaded(const std::string& file);
/// Saves the model, or throws a WriteError.
void save(KOBModeleTraduction& model, const std::string& file);

/// Loads `input`, lets `change` work on the model and saves it as `output`. Whatever `change` throws ends the
/// call with the file as it was.
void edit(const std::string& input, const std::string& output,
          const std::function<void(KOBModeleTraduction&)>& change);

}  // namespace kob::command
