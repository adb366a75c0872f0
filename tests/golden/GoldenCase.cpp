// SPDX-FileCopyrightText: The KOBTraduction authors
#include "GoldenCase.h"

#include "Operations.h"

#include <tests/doubles/Difference.h>
#include <tests/doubles/Lines.h>

#include <algorithm>
#include <cstring>
#include <fstream>
#include <iterator>
#include <optional>
#include <stdexcept>

namespace kob::testing {

namespace fs = std::filesystem;

namespace {

fs::path folderOf(const std::string& name) {
  return fs::path(KOB_GOLDEN_CASES) / name;
}

std::optional<std::string> readFile(const fs::path& path) {
  std::ifstream file(path, std::ios::binary);
  if (!file) {
    return std::nullopt;
  }
  return std::string(std::istreambuf_iterator<char>(file), {});
}

std::string mustRead(const fs::path& path) {
  std::optional<std::string> text = readFile(path);
  if (!text) {
    throw std::runtime_error("the case has no file " + path.filename().string());
  }
  return std::move(*text);
}

/// The one kind of host that can show a case; "" when all can.
std::string kindOf(const std::string& name) {
  const std::string only = readFile(folderOf(name) / "only").value_or("");
  std::string kind = only.substr(0, only.find(':'));
  if (!kind.empty() && kind != "scripted" && kind != "live") {
    throw std::runtime_error(name + " is for no kind of host: " + only);
  }
  return kind;
}

/// One expectation: a file, and what stands for it when there is none.
class Expectation {
 public:
  Expectation(fs::path path, std::string unchanged)
      : path_(std::move(path)), unchanged_(std::move(unchanged)) {}

  std::string compare(const std::string& seen) const {
    const std::string difference = testing::difference(readFile(path_).value_or(unchanged_), seen);
    return difference.empty() ? ""
                              : path_.string() + " (- expected, + seen; --update writes it)\n" + difference;
  }

  void update(const std::string& seen) const {
    if (seen == unchanged_) {
      fs::remove(path_);
    } else {
      std::ofstream(path_, std::ios::binary) << seen;
    }
  }

 private:
  fs::path path_;
  std::string unchanged_;
};

/// A form of this process, and the component linked to it.
class HostSubject final : public CaseSubject {
 public:
  HostSubject(std::unique_ptr<CaseHost> host, std::string_view treeText)
      : host_(std::move(host)), run_(*host_, treeText) {}

  void perform(const Line& line) override { run_.perform(line); }
  std::string form() const override { return host_->print(); }
  std::string tree() const override { return run_.tree(); }
  std::string messages() override { return run_.messages(); }

 private:
  std::unique_ptr<CaseHost> host_;
  CaseRun run_;
};

}  // namespace

CaseHost::~CaseHost() = default;

CaseSubject::~CaseSubject() = default;

std::vector<std::string> goldenCases(std::string_view hostKind) {
  std::vector<std::string> names;
  for (const fs::directory_entry& entry : fs::directory_iterator(KOB_GOLDEN_CASES)) {
    if (!entry.is_directory()) {
      continue;
    }
    std::string name = entry.path().filename().string();
    const std::string kind = kindOf(name);
    if (kind.empty() || kind == hostKind) {
      names.push_back(std::move(name));
    }
  }
  std::sort(names.begin(), names.end());
  return names;
}

std::string runGoldenCase(const std::string& name, const MakeSubject& makeSubject, bool update) {
  const fs::path folder = folderOf(name);
  const std::unique_ptr<CaseSubject> subject =
      makeSubject(mustRead(folder / "form"), readFile(folder / "tree").value_or(""));
  const Expectation form(folder / "expected-form", subject->form());
  const Expectation tree(folder / "expected-tree", subject->tree());
  const Expectation messages(folder / "expected-messages", "");
  for (const Line& line : linesOf(mustRead(folder / "operations"))) {
    subject->perform(line);
  }
  if (update) {
    form.update(subject->form());
    tree.update(subject->tree());
    messages.update(subject->messages());
    return {};
  }
  return form.compare(subject->form()) + tree.compare(subject->tree()) +
         messages.compare(subject->messages());
}

std::string runGoldenCase(const std::string& name, const MakeHost& makeHost, bool update) {
  const MakeSubject makeSubject = [&makeHost](std::string_view formText, std::string_view treeText) {
    return std::make_unique<HostSubject>(makeHost(formText), treeText);
  };
  return runGoldenCase(name, makeSubject, update);
}

bool takeUpdateFlag(int& count, char** arguments) {
  char** const end = arguments + count;
  char** const kept = std::remove_if(
      arguments + 1, end, [](const char* argument) { return std::strcmp(argument, "--update") == 0; });
  const bool has = kept != end;
  count = static_cast<int>(kept - arguments);
  return has;
}

}  // namespace kob::testing
