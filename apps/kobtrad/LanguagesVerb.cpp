// SPDX-FileCopyrightText: The KOBTraduction authors
#include "Console.h"
#include "ModelFile.h"
#include "Verb.h"

#include <memory>

namespace kob::command {

namespace {

/// More is a slip of the finger: every text of the file grows by as many.
constexpr int mostLanguages = 1000;

struct LanguagesOptions {
  std::string file;
  int count = 0;
  std::string output;
  bool isInPlace = false;
};

Status tellCount(const std::string& file) {
  KOBModeleTraduction& model = loaded(file);
  print(std::to_string(model.NbLangues()) + "\n");
  return Status::Fine;
}

Status languages(const LanguagesOptions& options) {
  edit(options.file, options.isInPlace ? options.file : options.output, [&](KOBModeleTraduction& model) {
    const int present = model.NbLangues();
    if (options.count < present) {
      throw UsageError(options.file + " has " + std::to_string(present) +
                       " languages, and their number only grows");
    }
    model.setNbLangues(options.count);
  });
  return Status::Fine;
}

}  // namespace

void addLanguages(CLI::App& command, Job& job) {
  CLI::App* const verb =
      addVerb(command, "languages", "Tell how many languages a file has, or make them more",
              "  kobtrad languages app.trad\n"
              "  kobtrad languages app.trad 8 --in-place");
  const auto options = std::make_shared<LanguagesOptions>();
  addModelFile(*verb, options->file);
  CLI::Option* const count = verb->add_option("COUNT", options->count, "The new number; it can grow only")
                                 ->check(CLI::Range(1, mostLanguages));
  CLI::Option* const out = verb->add_option("-o,--output", options->output, "Write the result to this file");
  out->type_name("FILE")->needs(count);
  CLI::Option* const place =
      verb->add_flag("--in-place", options->isInPlace, "Write the result to the file itself");
  place->needs(count)->excludes(out);
  verb->callback([=, &job] {
    if (count->count() == 0) {
      job = [options] { return tellCount(options->file); };
      return;
    }
    requireTarget(*out, *place);
    job = [options] { return languages(*options); };
  });
}

}  // namespace kob::command
