// SPDX-FileCopyrightText: The KOBTraduction authors
#include "Report.h"
#include "SavedForms.h"
#include "Suite.h"

#include <benchmark/benchmark.h>
#include <CLI/CLI.hpp>
#include <QApplication>

#include <exception>
#include <iostream>
#include <string>
#include <utility>
#include <vector>

int main(int argc, char* argv[]) {
  CLI::App options{
      "Measures the component beside what else one would use, everybody in turn in one process."};
  bench::Settings settings;
  std::string json;
  bool gate = false;
  options
      .add_option("--rounds", settings.rounds,
                  "How often everybody is timed (at least 7 for a figure to quote)")
      ->check(CLI::PositiveNumber)
      ->capture_default_str();
  options.add_flag("--quick", settings.quick, "Leave out the largest sizes, and fewer rounds");
  options.add_option("--json", json, "Write all that was measured into this file");
  options.add_flag("--gate", gate, "End with status 1 when a target is exceeded by more than a quarter");
  options.footer("Options of Google Benchmark are taken too, for example --benchmark_filter=Apply");
  options.allow_extras();
  // Only for figures of memory, see growthOf().
  std::pair<int, std::string> grow{-1, {}};
  options.add_option("--grow", grow)->group("");
  CLI11_PARSE(options, argc, argv);
  if (grow.first >= 0) {
    return bench::grow(grow.first, grow.second);
  }
  if (settings.quick && options.count("--rounds") == 0) {
    settings.rounds = 7;
  }

  QApplication application(argc, argv);
  bench::Suite suite(settings);
  bench::addApplying(suite);
  bench::addHarvesting(suite);
  bench::addControlPaths(suite);
  bench::addLookup(suite);
  bench::addEditing(suite);
  bench::addPersistence(suite);
  bench::addMerging(suite);

  std::vector<std::string> rest = options.remaining();
  std::vector<char*> arguments{argv[0]};
  for (std::string& argument : rest) {
    arguments.push_back(argument.data());
  }
  int count = static_cast<int>(arguments.size());
  arguments.push_back(nullptr);
  benchmark::Initialize(&count, arguments.data());
  if (benchmark::ReportUnrecognizedArguments(count, arguments.data())) {
    return 2;
  }
  try {
    benchmark::RunSpecifiedBenchmarks();
  } catch (const std::exception& failure) {
    std::cerr << "kobbench: " << failure.what() << '\n';
    return 2;
  }
  benchmark::Shutdown();

  bench::printTable(suite.results(), std::cout);
  if (!json.empty() && !bench::writeJson(suite.results(), json)) {
    std::cerr << "kobbench: cannot write " << json << '\n';
    return 2;
  }
  return gate && bench::missesGate(suite.results()) ? 1 : 0;
}
