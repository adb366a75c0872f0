// SPDX-FileCopyrightText: The KOBTraduction authors
#include "Verb.h"

namespace kob::command {

CLI::App* addVerb(CLI::App& command, const std::string& name, const std::string& about,
                  const std::string& examples) {
  CLI::App* const verb = command.add_subcommand(name, about);
  verb->group("Verbs");
  verb->footer("Examples:\n" + examples);
  return verb;
}

void Target::addTo(CLI::App& verb, Rehearsal rehearsal) {
  // A group of which one is required would be told in the words of the parser; a person understands these.
  CLI::Option* const out = verb.add_option("-o,--output", file, "Write the result to this file");
  out->type_name("FILE");
  CLI::Option* const place = verb.add_flag("--in-place", isInPlace, "Write the result to the file itself");
  place->excludes(out);
  const bool isOffered = rehearsal == Rehearsal::Offered;
  const CLI::Option* const dryRun =
      isOffered ? verb.add_flag("--dry-run,-n", isDryRun, "Tell what would be filled and write nothing")
                : nullptr;
  verb.parse_complete_callback([out, place, dryRun] {
    if (dryRun == nullptr || dryRun->count() == 0) {
      requireTarget(*out, *place);
    }
  });
}

void requireTarget(const CLI::Option& out, const CLI::Option& place) {
  if (out.count() == 0 && place.count() == 0) {
    throw CLI::ValidationError("Nothing is changed without -o FILE or --in-place");
  }
}

CLI::Option* addModelFile(CLI::App& verb, std::string& file) {
  return verb.add_option("FILE", file, "The translation file")->required();
}

}  // namespace kob::command
