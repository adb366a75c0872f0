// SPDX-FileCopyrightText: The KOBTraduction authors
#include "HarvestReport.h"

#include "ModelTexts.h"
#include "Utf8.h"

#include <optional>

namespace kob::command {

namespace {

/// Text of language 1 at a path, or none when the model has no such text.
std::optional<Text> recordedText(const KOBModeleTraduction& model, TextView path, TextView name) {
  const std::shared_ptr<KOBCellTraduction> cell = model.GetCell(path);
  if (cell == nullptr || cell->TypeFeuille() != 2) {
    return std::nullopt;
  }
  std::optional<Text> text;
  for (const KOBTraductionObj* const entry : entriesOf(*cell)) {
    if (equalUpper(entry->nom(), name)) {
      text = textIn(*entry, 1);
    }
  }
  return text;
}

/// The text of a context may be recorded with the control itself, when both are the same.
bool isHeldByControl(const KOBModeleTraduction& model, const HarvestedText& text) {
  const std::size_t divider = text.path.rfind(u'\\');
  return divider != Text::npos &&
         recordedText(model, TextView(text.path).substr(0, divider), text.name) == text.shown;
}

/// What the form shows, recorded in a model of its own.
std::vector<HarvestedText> shownTexts(const HostRef& form, TextView module) {
  // What goes wrong goes wrong again with the model that counts, and is told then.
  const CommandBoxes silent;
  const std::int32_t languages = Global_Util::NbLangues();
  KOBModeleTraduction alone;
  // The new model raised the thread's count, which belongs to the model that counts.
  Global_Util::setNbLangues(languages);
  alone.UpdateWithForm(form, module);
  std::vector<HarvestedText> texts;
  for (const CellPlace& place : cellsOf(alone)) {
    for (const KOBTraductionObj* const entry : entriesOf(*place.cell)) {
      texts.push_back({HarvestedText::Outcome::New, place.cell->GetCellPath(), Text(entry->nom()), Text(),
                       Text(textIn(*entry, 1))});
    }
  }
  return texts;
}

HarvestedText::Outcome outcomeOf(const KOBModeleTraduction& model, const HarvestedText& text, bool wasThere) {
  using Outcome = HarvestedText::Outcome;
  const std::optional<Text> after = recordedText(model, text.path, text.name);
  if (after == text.shown) {
    return !wasThere ? Outcome::New : text.before == text.shown ? Outcome::Unchanged : Outcome::Changed;
  }
  if (!after && isHeldByControl(model, text)) {
    return Outcome::Unchanged;
  }
  return after ? Outcome::Refused : Outcome::LeftOut;
}

}  // namespace

std::vector<HarvestedText> harvest(KOBModeleTraduction& model, const HostRef& form, TextView module) {
  std::vector<HarvestedText> texts = shownTexts(form, module);
  std::vector<bool> wasThere;
  for (HarvestedText& text : texts) {
    std::optional<Text> before = recordedText(model, text.path, text.name);
    wasThere.push_back(before.has_value());
    text.before = std::move(before).value_or(Text());
  }
  model.UpdateWithForm(form, module);
  for (std::size_t i = 0; i < texts.size(); ++i) {
    texts[i].outcome = outcomeOf(model, texts[i], wasThere[i]);
  }
  return texts;
}

std::string describe(const HarvestedText& text) {
  using Outcome = HarvestedText::Outcome;
  const auto line = [&](const char* what, bool hasBefore) {
    return what + visible(text.path) + "  " + visible(text.name) + "  \"" +
           (hasBefore ? visible(text.before) + "\" -> \"" : "") + visible(text.shown) + "\"\n";
  };
  switch (text.outcome) {
    case Outcome::New:
      return line("new        ", false);
    case Outcome::Changed:
      return line("changed    ", true);
    case Outcome::Unchanged:
      return line("unchanged  ", false);
    case Outcome::Refused:
      return line("refused    ", true);
    case Outcome::LeftOut:
      break;
  }
  return line("left out   ", false);
}

}  // namespace kob::command
