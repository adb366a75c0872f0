// SPDX-FileCopyrightText: The KOBTraduction authors
#include "ModelFile.h"
#include "ModelTexts.h"
#include "Verb.h"

#include <memory>

namespace kob::command {

namespace {

struct FillOptions {
  std::string file;
  std::int32_t langue = 0;
  Target target;
};

using Fill = void (KOBModeleTraduction::*)(std::int32_t langue);

/// A verb that fills one language of every text.
void addFill(CLI::App& verb, Fill fill, Job& job) {
  const auto options = std::make_shared<FillOptions>();
  addModelFile(verb, options->file);
  verb.add_option("LANG", options->langue, "The number of the language, from 2")->required();
  options->target.addTo(verb);
  verb.callback([options, fill, &job] {
    job = [options, fill] {
      edit(options->file, options->target.of(options->file), [&](KOBModeleTraduction& model) {
        requireLanguage(model, options->langue, 2);
        (model.*fill)(options->langue);
      });
      return Status::Fine;
    };
  });
}

}  // namespace

void addTestLanguage(CLI::App& command, Job& job) {
  CLI::App* const verb = addVerb(
      command, "test-language",
      "Fill a language with the texts of language 1 between stars, to see on a form what is translated",
      "  kobtrad test-language app.trad 6 -o test.trad\n"
      "  kobtrad apply order.ui test.trad --lang 6 --png order-test.png");
  addFill(*verb, &KOBModeleTraduction::UpdateTestLangue, job);
}

void addClearLanguage(CLI::App& command, Job& job) {
  CLI::App* const verb = addVerb(command, "clear-language", "Empty a language in every text",
                                 "  kobtrad clear-language app.trad 6 --in-place");
  addFill(*verb, &KOBModeleTraduction::ClearLangue, job);
}

}  // namespace kob::command
