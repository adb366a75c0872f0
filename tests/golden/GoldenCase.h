// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include <kobtraduction/engine/HostObject.h>
#include <tests/doubles/Lines.h>

#include <filesystem>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

/// Cases that are folders of plain text (README.md has the format). One case runs on every kind of host.
namespace kob::testing {

/// The live form of a case, on some kind of host.
class CaseHost {
 public:
  CaseHost() = default;
  CaseHost(const CaseHost&) = delete;
  CaseHost& operator=(const CaseHost&) = delete;
  virtual ~CaseHost();

  virtual HostRef form() = 0;
  virtual HostRef control(const std::string& id) = 0;
  /// Changes a property as the application would.
  virtual void set(const std::string& id, const std::string& key, const Value& value) = 0;
  virtual std::string print() const = 0;
};

/// What a case is performed on: a live form and a model, wherever they are.
class CaseSubject {
 public:
  CaseSubject() = default;
  CaseSubject(const CaseSubject&) = delete;
  CaseSubject& operator=(const CaseSubject&) = delete;
  virtual ~CaseSubject();

  /// Performs an operation; throws std::runtime_error for a line that is none.
  virtual void perform(const Line& line) = 0;
  virtual std::string form() const = 0;
  virtual std::string tree() const = 0;
  /// What was shown and what operations returned, a line each, up to now.
  virtual std::string messages() = 0;
};

using MakeSubject =
    std::function<std::unique_ptr<CaseSubject>(std::string_view formText, std::string_view treeText)>;

/// Builds the form of a text; throws std::runtime_error for what this kind of host cannot have.
using MakeHost = std::function<std::unique_ptr<CaseHost>(std::string_view formText)>;

/// The names of the cases that a kind of host ("scripted", "live") can show, in order. Throws
/// std::runtime_error when a case says that it is for another kind than these.
std::vector<std::string> goldenCases(std::string_view hostKind);

/// Runs a case and compares; the text of a test failure, empty when everything is as expected. Asked to
/// update, it writes what it saw into the case's files instead.
std::string runGoldenCase(const std::string& name, const MakeSubject& makeSubject, bool update);
/// The same in this process, on a host of some kind.
std::string runGoldenCase(const std::string& name, const MakeHost& makeHost, bool update);

/// Whether the program was started with --update, which is taken from the arguments.
bool takeUpdateFlag(int& count, char** arguments);

}  // namespace kob::testing
