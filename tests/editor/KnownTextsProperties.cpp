// SPDX-FileCopyrightText: The KOBTraduction authors
#include "tests/model/GrowthGenerators.h"

#include <kobtraduction/editor/KnownTexts.h>

#include <utility>
#include <vector>

namespace kob::test {
namespace {

TextList withReference(const Text& reference, const TextList& texts) {
  TextList copy;
  copy.Add(reference);
  for (std::int32_t i = 2; i <= texts.Count(); ++i) {
    copy.Add(texts.Item(i));
  }
  return copy;
}

/// The ways in which a host can give an entry another reference text.
void changeTexts(const EntryRef& entry, TextList& texts, KnownTexts& known, const Growth& step) {
  const Text text = DamagedModels::text(step.texts);
  switch (step.other % 6) {
    case 0:
      texts.Replace(1, text);
      break;
    case 1:
      entry->ChangeTraduction(text, 1);
      break;
    case 2:
      texts.Add(text, 1);
      break;
    case 3:
      texts.Remove(1);
      break;
    case 4: {
      TextList other = withReference(text, texts);
      texts = std::move(other);
      break;
    }
    default: {
      // A gap there is rare.
      texts.Replace(1, {});
      known.prepare();
      TextList other;
      other.Add(text);
      texts.FillGaps(other, 1, 1);
    }
  }
}

/// The ways in which a host can give a cell other entries.
void changeEntries(const CellRef& cell, const EntryRef& entry, const Growth& step) {
  const std::shared_ptr<EntryList> entries = cell->ColTraduction();
  switch (step.other % 6) {
    case 0:
      cell->setTypeCell(1 + step.texts % 2);
      break;
    case 1:
      cell->setTraduction(entry);
      break;
    case 2:
      if (entries != nullptr && entries->Count() > 0) {
        entries->Remove(1);
      }
      break;
    case 3:
      if (entries != nullptr && entries->Count() > 0) {
        entries->Add(entry, 1);
      }
      break;
    case 4:
      if (entries != nullptr) {
        *entries = EntryList();
      }
      break;
    default:
      if (cell->ColCell() != nullptr && cell->ColCell()->Count() > 0) {
        cell->ColCell()->Remove(1);
      }
  }
}

void change(DamagedModels& models, KnownTexts& known, const Growth& step, int how) {
  const EntryRef entry = models.entryAt(step.on);
  const std::shared_ptr<TextList> texts = entry->ColTraduction();
  const bool hasReference = texts != nullptr && texts->Count() > 0;
  switch (how) {
    case 0:
      if (hasReference && models.own.NbLangues() > 0) {
        known.changeReference(*entry, DamagedModels::text(step.texts));
      }
      break;
    case 1:
      if (hasReference) {
        changeTexts(entry, *texts, known, step);
      }
      break;
    case 2:
      changeEntries(models.cell(step.on), entry, step);
      break;
    default:
      models.apply(step);
  }
}

RC_GTEST_PROP(KnownTextsProperties, ItAnswersWhatTheModelAnswersWhateverIsChanged, ()) {
  const ModelTestScope scope;
  DamagedModels models(*anySteps());
  KnownTexts known(models.own);
  Global_Util::setNbLangues(anyLanguageCount());
  for (const Growth& step : *steps(DamagedModels::harmless, 12)) {
    change(models, known, step, *rc::gen::inRange(0, 4));
    // Often the one that was just written somewhere.
    const Text text = DamagedModels::text(*rc::gen::arbitrary<bool>() ? step.texts : *below(10));
    std::shared_ptr<TextList> answer;
    std::shared_ptr<TextList> expected;
    const auto expectedFailure = failureOf([&] { expected = models.own.GetTraductionsConnues(text); });
    const auto failure = failureOf([&] { answer = known.of(text); });
    RC_CLASSIFY(failure.has_value(), "fails");
    RC_ASSERT(failure == expectedFailure);
    if (!failure) {
      RC_CLASSIFY(answer->Count() != 6 || !answer->Item(2).empty(), "fills");
      RC_ASSERT(kob::test::texts(*answer) == kob::test::texts(*expected));
    }
  }
}

}  // namespace
}  // namespace kob::test
