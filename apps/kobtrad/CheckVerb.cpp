// SPDX-FileCopyrightText: The KOBTraduction authors
#include "Console.h"
#include "Coverage.h"
#include "ModelCheck.h"
#include "ModelFile.h"
#include "Verb.h"

#include <algorithm>
#include <memory>

namespace kob::command {

namespace {

struct CheckOptions {
  std::vector<std::string> files;
  bool isQuiet = false;
};

struct Verdict {
  Status status = Status::Fine;
  std::string lines;
};

/// Here what is wrong with a file is what was asked for: it goes to standard output.
Verdict checkFile(const std::string& file) {
  KOBModeleTraduction model;
  try {
    load(model, file);
  } catch (const ReadError& error) {
    return {Status::Unreadable, std::string(error.what()) + "\n"};
  }
  Verdict verdict;
  for (const Finding& finding : check(model)) {
    verdict.status = Status::Findings;
    verdict.lines += file + ": " + (finding.path.empty() ? "" : finding.path + ": ") + finding.problem + "\n";
  }
  if (verdict.status == Status::Fine) {
    const Coverage coverage = coverageOf(model);
    verdict.lines = file + ": fine, " + std::to_string(coverage.texts) + " texts in " +
                    std::to_string(coverage.cells) + " cells, " + std::to_string(coverage.languages.size()) +
                    " languages\n";
  }
  return verdict;
}

Status checkAll(const CheckOptions& options) {
  Status worst = Status::Fine;
  Progress progress(options.files.size());
  for (const std::string& file : options.files) {
    progress.step(file);
    const Verdict verdict = checkFile(file);
    worst = std::max(worst, verdict.status);
    if (verdict.status != Status::Fine || !options.isQuiet) {
      // Both streams may be one terminal.
      progress.clear();
      print(verdict.lines);
      flushPrinted();
    }
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
