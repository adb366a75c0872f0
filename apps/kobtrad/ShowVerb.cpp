// SPDX-FileCopyrightText: The KOBTraduction authors
#include "Console.h"
#include "ModelFile.h"
#include "ModelTexts.h"
#include "TreeListing.h"
#include "Verb.h"

#include <memory>

namespace kob::command {

namespace {

struct ShowOptions {
  std::string file;
  std::string path;
  ListingOptions listing;
};

Status show(const ShowOptions& options) {
  KOBModeleTraduction& model = loaded(options.file);
  for (const std::int32_t langue : options.listing.languages) {
    requireLanguage(model, langue);
  }
  print(listTree(model, cellAt(model, options.path), options.listing));
  return Status::Fine;
}

}  // namespace

void addShow(CLI::App& command, Job& job) {
  CLI::App* const verb =
      addVerb(command, "show", "Print the tree of a translation file with its texts",
              "  kobtrad show app.trad\n"
              "  kobtrad show app.trad --lang 2 --lang 3\n"
              "  kobtrad show app.trad --path 'Order\\GrpCustomer'\n"
              "  kobtrad show app.trad --lang 3 --missing      # what is left to translate\n"
              "In the texts ⏎ is a line break, ⇥ a tab, · a blank at either end, and – alone means that the\n"
              "text is not translated.");
  const auto options = std::make_shared<ShowOptions>();
  addModelFile(*verb, options->file);
  // One number per option, or a path behind it would be taken for another number.
  verb->add_option(
          "--lang", options->listing.languages,
          "A language to show below language 1, again for more of them (otherwise each that has a text)")
      ->type_name("N")
      ->expected(1)
      ->multi_option_policy(CLI::MultiOptionPolicy::TakeAll);
  verb->add_option("--path", options->path, "Only the cell at this path and what is below it")
      ->type_name("PATH");
  verb->add_flag("--missing", options->listing.isMissingOnly,
                 "Only texts that one of the shown languages lacks");
  verb->add_flag("--factors", options->listing.hasFactors,
                 "Print left and width factors, too, unless they are 1");
  verb->callback([options, &job] { job = [options] { return show(*options); }; });
}

}  // namespace kob::command
