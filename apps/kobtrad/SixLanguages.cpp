// SPDX-FileCopyrightText: The KOBTraduction authors
#include "SixLanguages.h"

#include "Verb.h"

namespace kob::command {

namespace {

constexpr std::int32_t shown = 6;

}  // namespace

std::string makeSixLanguages(KOBModeleTraduction& model, const std::string& file) {
  const std::int32_t count = model.NbLangues();
  if (count > shown) {
    throw UsageError(file + " has " + std::to_string(count) +
                     " languages, and the editor works with six; use the other verbs for it");
  }
  if (count == shown) {
    return {};
  }
  model.setNbLangues(shown);
  return file + " has fewer languages than the editor's six (" + std::to_string(count) +
         "); saving in the editor will make them six";
}

}  // namespace kob::command
