// SPDX-FileCopyrightText: The KOBTraduction authors
#include "Console.h"
#include "Filled.h"
#include "ModelFile.h"
#include "ModelTexts.h"
#include "Verb.h"

#include <kobtraduction/component/Global_Util.h>

#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace kob::command {

namespace {

struct MergeOptions {
  std::string file;
  std::vector<std::string> others;
  std::int32_t langue = -1;
  Target target;
};

/// Loads `file`, lets `fill` work on it, prints what that filled and saves it unless this is a rehearsal.
Status fillAndTell(const std::string& file, const Target& target,
                   const std::function<void(KOBModeleTraduction&)>& fill) {
  KOBModeleTraduction& model = loaded(file);
  // Filling adds and removes none.
  const std::vector<KOBTraductionObj*> entries = allEntriesOf(model);
  const Filled before = filledTexts(entries, model.NbLangues());
  fill(model);
  print(filledTable(before, filledTexts(entries, model.NbLangues())));
  if (!target.isDryRun) {
    save(model, target.of(file));
  }
  return Status::Fine;
}

/// Fills the model from another file, whatever number of languages that has.
void mergeFile(KOBModeleTraduction& model, const std::string& file, std::int32_t langue) {
  // The language count is the thread's: the one of the file that was loaded last.
  const std::int32_t languages = model.NbLangues();
  KOBModeleTraduction& other = loaded(file);
  const std::int32_t others = other.NbLangues();
  if (others < languages) {
    other.setNbLangues(languages);
  } else if (others > languages) {
    Global_Util::setNbLangues(languages);
    tell(file + " has " + std::to_string(others) + " languages; those beyond " + std::to_string(languages) +
         " are left out (kobtrad languages makes them more)");
  }
  model.UpdateWithTraductionModele(other, langue);
}

Status merge(const MergeOptions& options) {
  return fillAndTell(options.file, options.target, [&options](KOBModeleTraduction& model) {
    if (options.langue != -1) {
      requireLanguage(model, options.langue);
    }
    for (const std::string& other : options.others) {
      mergeFile(model, other, options.langue);
    }
  });
}

}  // namespace

void addMerge(CLI::App& command, Job& job) {
  CLI::App* const verb = addVerb(
      command, "merge", "Fill what is missing in a file from others, then from its own identical texts",
      "  kobtrad merge app.trad from-anna.trad from-jan.trad --in-place\n"
      "  kobtrad merge new.trad old.trad --lang 3 -o merged.trad\n"
      "  kobtrad merge app.trad from-anna.trad --dry-run\n"
      "Texts are taken from the same paths, of the first file that has one. What is there is never\n"
      "overwritten, and no control is added.");
  const auto options = std::make_shared<MergeOptions>();
  addModelFile(*verb, options->file);
  verb->add_option("OTHER", options->others, "The files to take texts from, in this order")->required();
  verb->add_option("--lang", options->langue, "Take this language only; 1 is taken only when it is said here")
      ->type_name("LANG");
  options->target.addTo(*verb, Target::Rehearsal::Offered);
  verb->callback([options, &job] { job = [options] { return merge(*options); }; });
}

void addComplete(CLI::App& command, Job& job) {
  CLI::App* const verb =
      addVerb(command, "complete",
              "Fill what is missing from texts that read the same in language 1, letter case aside",
              "  kobtrad complete app.trad --in-place\n"
              "  kobtrad complete app.trad --dry-run");
  const auto options = std::make_shared<MergeOptions>();
  addModelFile(*verb, options->file);
  options->target.addTo(*verb, Target::Rehearsal::Offered);
  verb->callback([options, &job] {
    job = [options] {
      return fillAndTell(options->file, options->target,
                         [](KOBModeleTraduction& model) { model.CompleteIdentiques(); });
    };
  });
}

}  // namespace kob::command
