// SPDX-FileCopyrightText: The KOBTraduction authors
#include "ModelFile.h"
#include "ModelTexts.h"
#include "Utf8.h"
#include "Verb.h"

#include <memory>

namespace kob::command {

namespace {

struct SetOptions {
  std::string file;
  std::string path;
  std::int32_t langue = 0;
  std::string text;
  std::string name;
  Target target;
};

Status set(const SetOptions& options) {
  const Text text = argumentText(options.text, "the text");
  edit(options.file, options.target.of(options.file), [&](KOBModeleTraduction& model) {
    KOBTraductionObj& entry = entryAt(model, options.path, options.name);
    requireLanguage(model, options.langue);
    entry.ChangeTraduction(text, options.langue);
  });
  return Status::Fine;
}

}  // namespace

void addSet(CLI::App& command, Job& job) {
  CLI::App* const verb =
      addVerb(command, "set", "Change one text in one language",
              "  kobtrad set app.trad 'Order\\BtnAccept' 2 '&Accept' --in-place\n"
              "  kobtrad set app.trad 'Order\\BtnAccept' 2 'Send the order' --name ToolTip --in-place\n"
              "  kobtrad set app.trad 'Messages\\Saved' 3 '' -o new.trad\n"
              "A text that begins with a dash stands behind two dashes, after all options:\n"
              "  kobtrad set --in-place app.trad -- 'Order\\LblNone' 2 '- none -'");
  const auto options = std::make_shared<SetOptions>();
  addModelFile(*verb, options->file);
  verb->add_option("PATH", options->path, "Names from the form down to the control, divided by \\")
      ->required();
  verb->add_option("LANG", options->langue, "The number of the language; 1 is that of the forms")->required();
  verb->add_option("TEXT", options->text, "The text; '' makes it untranslated")->required();
  verb->add_option("--name", options->name, "Which text of a control")->type_name("Caption|ToolTip");
  options->target.addTo(*verb);
  verb->callback([options, &job] { job = [options] { return set(*options); }; });
}

}  // namespace kob::command
