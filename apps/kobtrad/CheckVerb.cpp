// SPDX-FileCopyrightText: The KOBTraduction authors
#include "Console.h"
#include "Coverage.h"
#include "ModelCheck.h"
#include "ModelFile.h"
#include "Verb.h"

#include <memory>

namespace kob::command {

namespace {

struct CheckOptions {
  std::vector<std::string> files;
  bool isQuiet = false;
};

/// Here what is wrong with a file is what was asked for, so it is printed and not told.
Status checkFile(const std::string& file, bool isQuiet) {
  KOBModeleTraduction model;
  try {
    load(model, file);
  } catch (const ReadError& error) {
    print(std::string(error.what()) + "\n");
    return Status::Unreadable;
  }
  const std::vector<Finding> findings = check(model);
  for (const Finding& finding : findings) {
    print(file + ": " + (finding.path.empty() ? "" : finding.path + ": ") + finding.problem + "\n");
  }
  if (!findings.empty()) {
    return Status::Findings;
  }
  if (!isQuiet) {
    const Coverage coverage = coverageOf(model);
    print(file + ": fine, " + std::to_string(coverage.texts) + " texts in " + std::to_string(coverage.cells) +
          " cells, " + std::to_string(coverage.languages.size()) + " languages\n");
  }
  return Status::Fine;
}

Status checkAll(const CheckOptions& options) {
  Status worst = Status::Fine;
  Progress progress(options.files.size());
  for (const std::string& file : options.files) {
    progress.step(file);
    const Status status = checkFile(file, options.isQuiet);
    worst = std::max(worst, status);
  }
  return worst;
}

}  // namespace

void addCheck(CLI::App& command, Job& job) {
  CLI::App* const verb =
      addVerb(command, "check", "Verify translation files and tell what is wrong, and where",
              "  kobtrad check app.trad\n"
              "  kobtrad check --quiet translations/*.trad");
  const auto options = std::make_shared<CheckOptions>();
  verb->add_option("FILE", options->files, "The translation files")->required();
  verb->add_flag("--quiet,-q", options->isQuiet, "Print nothing about files that are fine");
  verb->callback([options, &job] { job = [options] { return checkAll(*options); }; });
}

}  // namespace kob::command
