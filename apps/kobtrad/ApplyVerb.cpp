// SPDX-FileCopyrightText: The KOBTraduction authors
#include "CommandBoxes.h"
#include "Console.h"
#include "LiveForms.h"
#include "ModelFile.h"
#include "ModelTexts.h"
#include "Utf8.h"
#include "Verb.h"

#include <kobtraductionqt/KOBTraductionQt.h>

#include <algorithm>
#include <memory>

namespace kob::command {

namespace {

struct ApplyOptions {
  std::string form;
  std::string file;
  std::int32_t langue = 0;
  std::string picture;
  std::string module;
};

Status apply(const ApplyOptions& options) {
  const Text module = moduleName(options.module);
  KOBModeleTraduction model;
  load(model, options.file);
  requireLanguage(model, options.langue);
  const Toolkit toolkit;
  const std::unique_ptr<QWidget> form = loadForm(options.form);
  const HostRef host = qt::hostForm(form.get());
  CommandBoxes boxes;
  Status status = Status::Fine;
  // The path of a form begins with a divider, which says nothing to a person.
  const Text whole = model.GetPath(host, module);
  const TextView path = TextView(whole).substr(std::min(whole.find_first_not_of(u'\\'), whole.size()));
  if (model.GetCell(path) == nullptr) {
    tell(options.file + " holds nothing of the form \"" + visible(path) + "\"; harvest it first");
    status = Status::Findings;
  }
  model.TraduitDialog(host, options.langue, module);
  for (const std::string& notice : boxes.takeNotices()) {
    tell(options.form + ": the component says \"" + notice + "\"");
    status = Status::Findings;
  }
  settle();
  savePicture(*form, options.picture);
  return status;
}

}  // namespace

void addApply(CLI::App& command, Job& job) {
  CLI::App* const verb =
      addVerb(command, "apply", "Show a form in a language, and take its picture",
              "  kobtrad apply order.ui app.trad --lang 2 --png order-en.png\n"
              "  kobtrad apply order.ui app.trad --module Sales --lang 3 --png order-nl.png\n"
              "No screen is needed. A text without a translation is shown in language 1.");
  const auto options = std::make_shared<ApplyOptions>();
  verb->add_option("FORM", options->form, "The form of Qt Designer (.ui)")->required();
  addModelFile(*verb, options->file);
  verb->add_option("--lang", options->langue, "The number of the language")->type_name("N")->required();
  verb->add_option("--png", options->picture, "Write the picture to this file")->type_name("OUT")->required();
  verb->add_option("--module", options->module, "The cell below which the form was harvested")
      ->type_name("M");
  verb->callback([options, &job] { job = [options] { return apply(*options); }; });
}

}  // namespace kob::command
