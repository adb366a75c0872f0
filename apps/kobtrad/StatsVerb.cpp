// SPDX-FileCopyrightText: The KOBTraduction authors
#include "Console.h"
#include "Coverage.h"
#include "ModelFile.h"
#include "Verb.h"

#include <memory>

namespace kob::command {

namespace {

struct StatsOptions {
  std::string file;
  bool isJson = false;
};

Status stats(const StatsOptions& options) {
  KOBModeleTraduction& model = loaded(options.file);
  const Coverage coverage = coverageOf(model);
  print(options.isJson ? coverageJson(coverage, options.file) : coverageTable(coverage, options.file));
  return Status::Fine;
}

}  // namespace

void addStats(CLI::App& command, Job& job) {
  CLI::App* const verb = addVerb(command, "stats", "Tell how much of each language is translated",
                                 "  kobtrad stats app.trad\n"
                                 "  kobtrad stats app.trad --json | python3 -m json.tool");
  const auto options = std::make_shared<StatsOptions>();
  addModelFile(*verb, options->file);
  verb->add_flag("--json", options->isJson, "Print JSON, for programs");
  verb->callback([options, &job] { job = [options] { return stats(*options); }; });
}

}  // namespace kob::command
