// SPDX-FileCopyrightText: The KOBTraduction authors
#include "Console.h"
#include "ModelFile.h"
#include "ModelTexts.h"
#include "Verb.h"

#include <memory>

namespace kob::command {

namespace {

struct GetOptions {
  std::string file;
  std::string path;
  std::int32_t langue = 0;
  std::string name;
  bool hasFallback = false;
};

Status get(const GetOptions& options) {
  KOBModeleTraduction& model = loaded(options.file);
  const KOBTraductionObj& entry = entryAt(model, options.path, options.name);
  requireLanguage(model, options.langue);
  TextView text = textIn(entry, options.langue);
  if (text.empty() && options.hasFallback) {
    text = textIn(entry, 1);
  }
  print(toUtf8(text) + "\n");
  return Status::Fine;
}

}  // namespace

void addGet(CLI::App& command, Job& job) {
  CLI::App* const verb = addVerb(command, "get", "Print one text in one language",
                                 "  kobtrad get app.trad 'Order\\BtnAccept' 2\n"
                                 "  kobtrad get app.trad 'Order\\BtnAccept' 2 --name ToolTip\n"
                                 "  kobtrad get app.trad 'Messages\\Saved' 3 --fallback");
  const auto options = std::make_shared<GetOptions>();
  addModelFile(*verb, options->file);
  verb->add_option("PATH", options->path, "Names from the form down to the control, divided by \\")
      ->required();
  verb->add_option("LANG", options->langue, "The number of the language; 1 is that of the forms")->required();
  verb->add_option("--name", options->name, "Which text of a control")->type_name("Caption|ToolTip");
  verb->add_flag("--fallback", options->hasFallback,
                 "Print the text of language 1 where the language has none, as a form would show it");
  verb->callback([options, &job] { job = [options] { return get(*options); }; });
}

}  // namespace kob::command
