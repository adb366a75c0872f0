// SPDX-FileCopyrightText: The KOBTraduction authors
#include "Console.h"
#include "HarvestReport.h"
#include "LiveForms.h"
#include "ModelFile.h"
#include "Utf8.h"
#include "Verb.h"

#include <kobtraductionqt/KOBTraductionQt.h>

#include <array>
#include <filesystem>
#include <map>
#include <memory>

namespace kob::command {

namespace {

struct HarvestOptions {
  std::vector<std::string> forms;
  std::string output;
  std::string module;
  std::string overwrite;
  bool isVerbose = false;
  bool isDryRun = false;
};

CommandBoxes::Answer answerer(const std::string& overwrite, Progress& progress) {
  if (overwrite == "ask" || (overwrite.empty() && canAsk())) {
    const auto questioner = std::make_shared<Questioner>();
    return [questioner, &progress](const std::string& question) {
      progress.clear();
      return questioner->ask(question);
    };
  }
  return [isYes = overwrite == "yes"](const std::string&) { return isYes; };
}

class Harvest {
 public:
  explicit Harvest(const HarvestOptions& options) : options_(options) {}

  Status run() {
    const Text module = moduleName(options_.module);
    // All of them, before somebody answers questions in vain.
    loadForms();
    KOBModeleTraduction model;
    if (std::filesystem::exists(options_.output)) {
      load(model, options_.output);
    }
    harvestForms(model, module);
    if (!options_.isDryRun) {
      save(model, options_.output);
    }
    // What was done is told once it is done.
    print(lines_ + sums());
    return hasFindings_ ? Status::Findings : Status::Fine;
  }

 private:
  using Outcome = HarvestedText::Outcome;

  void loadForms() {
    Progress progress(options_.forms.size());
    std::map<QString, std::string> fileOf;
    for (const std::string& file : options_.forms) {
      progress.step(file);
      forms_.push_back(loadForm(file));
      const auto [known, isNew] = fileOf.emplace(forms_.back()->objectName(), file);
      if (!isNew) {
        progress.clear();
        tell(known->second + " and " + file + " both hold a form named \"" + known->first.toStdString() +
             "\": their texts share cells; harvest one of them with another --module");
        hasFindings_ = true;
      }
    }
  }

  void harvestForms(KOBModeleTraduction& model, TextView module) {
    Progress progress(forms_.size());
    CommandBoxes boxes(answerer(options_.overwrite, progress));
    for (std::size_t i = 0; i < forms_.size(); ++i) {
      progress.step(options_.forms[i]);
      for (const HarvestedText& text : harvest(model, qt::hostForm(forms_[i].get()), module)) {
        ++counts_.at(static_cast<std::size_t>(text.outcome));
        if (text.outcome != Outcome::Unchanged || options_.isVerbose) {
          lines_ += describe(text);
        }
      }
      for (const std::string& notice : boxes.takeNotices()) {
        progress.clear();
        tell(options_.forms[i] + ": the component says \"" + notice + "\"");
        hasFindings_ = true;
      }
    }
    hasFindings_ = hasFindings_ || count(Outcome::Refused) + count(Outcome::LeftOut) > 0;
  }

  std::size_t count(Outcome outcome) const { return counts_.at(static_cast<std::size_t>(outcome)); }

  std::string sums() const {
    std::string line = std::to_string(count(Outcome::New)) + " new, " +
                       std::to_string(count(Outcome::Changed)) + " changed, " +
                       std::to_string(count(Outcome::Unchanged)) + " unchanged, " +
                       std::to_string(count(Outcome::Refused)) + " refused";
    if (count(Outcome::LeftOut) > 0) {
      line += ", " + std::to_string(count(Outcome::LeftOut)) + " left out";
    }
    return line + "\n";
  }

  const HarvestOptions& options_;
  // Outlives the forms.
  Toolkit toolkit_;
  std::vector<std::unique_ptr<QWidget>> forms_;
  std::array<std::size_t, 5> counts_{};
  std::string lines_;
  bool hasFindings_ = false;
};

}  // namespace

void addHarvest(CLI::App& command, Job& job) {
  CLI::App* const verb = addVerb(
      command, "harvest", "Record the texts of forms as language 1 of a translation file",
      "  kobtrad harvest order.ui customer.ui -o app.trad\n"
      "  kobtrad harvest order.ui -o app.trad --overwrite yes\n"
      "  kobtrad harvest order.ui -o app.trad --module Sales --dry-run\n"
      "A file that is there already is added to. For each text it is told whether it is new or changed;\n"
      "--verbose lists those that are unchanged, too. What was refused stays as it is in the file, and\n"
      "the command ends with 1. The question is asked only for controls that have a caption and a tool\n"
      "tip in the file; where one of the two is missing, a changed text replaces the recorded one.");
  const auto options = std::make_shared<HarvestOptions>();
  verb->add_option("FORM", options->forms, "Forms of Qt Designer (.ui)")->required();
  verb->add_option("-o,--output", options->output, "The translation file to make, or to add to")
      ->type_name("FILE")
      ->required();
  verb->add_option("--module", options->module, "Record the forms below a cell of this name")->type_name("M");
  verb->add_option(
          "--overwrite", options->overwrite,
          "Whether the text of a form replaces another one in the file (ask on a terminal, no otherwise)")
      ->type_name("yes|no|ask")
      ->check([](const std::string& value) {
        return value == "yes" || value == "no" || value == "ask"
                   ? std::string()
                   : "it is yes, no or ask, and not \"" + value + "\"";
      });
  verb->add_flag("--verbose,-v", options->isVerbose, "List texts that are unchanged, too");
  verb->add_flag("--dry-run,-n", options->isDryRun, "Only tell what would be done; write nothing");
  verb->callback([options, &job] { job = [options] { return Harvest(*options).run(); }; });
}

}  // namespace kob::command
