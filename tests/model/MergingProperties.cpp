// SPDX-FileCopyrightText: The KOBTraduction authors
#include "GrowthGenerators.h"

#include <rapidcheck/gtest.h>

#include <utility>
#include <vector>

namespace kob::test {
namespace {

/// Every entry takes, for its gaps, what every entry with its reference text has.
void completePairwise(const KOBModeleTraduction& model) {
  walkEntriesPlainly(model.Racine(), [&](KOBTraductionObj& target) {
    walkEntriesPlainly(model.Racine(), [&](KOBTraductionObj& source) { source.CompleteTraduction(target); });
  });
}

template <class T>
const T& met(const T& reference) {
  if (reference == nullptr) {
    throw Failure(FailureKind::ObjectNotSet);
  }
  return reference;
}

Text item(const KOBTraductionObj& one, std::int32_t position) {
  return Text(met(one.ColTraduction())->Item(position));
}

void fillNamesake(const EntryRef& target, const EntryRef& source, std::int32_t langue) {
  if (met(target)->nom() != met(source)->nom()) {
    return;
  }
  const std::int32_t first = langue == -1 ? 2 : langue;
  const std::int32_t last = langue == -1 ? Global_Util::NbLangues() : langue;
  for (std::int32_t i = first; i <= last; ++i) {
    if (item(*target, i).empty() && !item(*source, i).empty()) {
      target->ChangeTraduction(item(*source, i), i);
    }
  }
}

/// Every leaf looks up its whole path from the other model's root.
void fillByPath(const KOBModeleTraduction& model, const KOBModeleTraduction& other, std::int32_t langue) {
  walkPlainly(model.Racine(), [&](const CellRef& cell) {
    if (cell->TypeFeuille() == 0) {
      return;
    }
    const CellRef twin = other.GetCell(cell->GetCellPath());
    if (twin == nullptr || twin->TypeFeuille() != cell->TypeFeuille()) {
      return;
    }
    if (cell->TypeFeuille() == 1) {
      fillNamesake(cell->Traduction(), twin->Traduction(), langue);
      return;
    }
    for (const EntryRef& source : *met(twin->ColTraduction())) {
      for (const EntryRef& target : *met(cell->ColTraduction())) {
        fillNamesake(target, source, langue);
      }
    }
  });
}

RC_GTEST_PROP(MergingProperties, CompletingEqualsThePairwiseWalkInTextsAndFailures, ()) {
  ModelTestScope scope;
  const std::vector<Growth> steps = *anySteps();
  DamagedModels models(steps);
  DamagedModels plain(steps);
  Global_Util::setNbLangues(anyLanguageCount());
  const auto expected = failureOf([&] { completePairwise(plain.own); });
  const auto failure = failureOf([&] { models.own.CompleteIdentiques(); });
  RC_CLASSIFY(expected.has_value(), "fails");
  RC_CLASSIFY(plain.everything() != DamagedModels(steps).everything(), "fills");
  RC_ASSERT(models.everything() == plain.everything());
  RC_ASSERT(failure == expected);
}

RC_GTEST_PROP(MergingProperties, CompletedEntriesChangeOneByOne, ()) {
  ModelTestScope scope;
  const std::vector<Growth> steps = *anySteps();
  DamagedModels models(steps);
  DamagedModels plain(steps);
  Global_Util::setNbLangues(anyLanguageCount());
  failureOf([&] { completePairwise(plain.own); });
  failureOf([&] { models.own.CompleteIdentiques(); });
  const int changes = *below(6);
  for (int i = 0; i < changes; ++i) {
    const int at = *below(64);
    const int langue = *rc::gen::inRange(1, 8);
    const Text text = DamagedModels::text(*below(10));
    const auto change = [&](const DamagedModels& changed) {
      return failureOf([&] { changed.entryAt(at)->ChangeTraduction(text, langue); });
    };
    RC_ASSERT(change(models) == change(plain));
  }
  RC_ASSERT(models.everything() == plain.everything());
}

RC_GTEST_PROP(MergingProperties, FillingEqualsTheLookUpOfEveryWholePath, ()) {
  ModelTestScope scope;
  const std::vector<Growth> steps = *anySteps();
  const bool isItself = *rc::gen::weightedElement<bool>({{9, false}, {1, true}});
  const int langue = *rc::gen::weightedElement<int>({{6, -1}, {1, 1}, {1, 2}, {1, 0}, {1, 7}, {1, 9}});
  DamagedModels models(steps);
  DamagedModels plain(steps);
  Global_Util::setNbLangues(anyLanguageCount());
  const auto expected = failureOf([&] { fillByPath(plain.own, isItself ? plain.own : plain.other, langue); });
  const std::size_t shown = scope.boxes.notices.size();
  const auto failure = failureOf(
      [&] { models.own.Racine()->UpdateCellWithModele(isItself ? models.own : models.other, langue); });
  RC_CLASSIFY(expected.has_value(), "fails");
  RC_CLASSIFY(shown > 0, "shows");
  RC_CLASSIFY(plain.everything() != DamagedModels(steps).everything(), "fills");
  RC_ASSERT(models.everything() == plain.everything());
  RC_ASSERT(failure == expected);
  RC_ASSERT(scope.boxes.notices.size() == shown * 2);
}

RC_GTEST_PROP(MergingProperties, KnownTextsEqualAPlainWalk, ()) {
  ModelTestScope scope;
  const DamagedModels models(*anySteps());
  Global_Util::setNbLangues(anyLanguageCount());
  const Text text = DamagedModels::text(*rc::gen::inRange(0, 10));
  const auto list = textList({text, u"", u"", u"", u"", u""});
  std::shared_ptr<TextList> known;
  const auto expected = failureOf([&] {
    walkEntriesPlainly(models.own.Racine(),
                       [&](KOBTraductionObj& one) { one.CompleteColTraduction(text, *list); });
  });
  const auto failure = failureOf([&] { known = models.own.GetTraductionsConnues(text); });
  RC_ASSERT(failure == expected);
  if (!failure) {
    RC_ASSERT(texts(*known) == texts(*list));
  }
}

RC_GTEST_PROP(MergingProperties, ASearchEqualsAPlainWalk, ()) {
  ModelTestScope scope;
  const DamagedModels models(*anySteps());
  const Text text = DamagedModels::text(*rc::gen::inRange(0, 10));
  CellResults found;
  CellResults expected;
  const auto expectedFailure = failureOf([&] {
    walkPlainly(models.own.Racine(), [&](const CellRef& cell) {
      if (anyEntryPlainly(cell, [&](const KOBTraductionObj& one) { return one.ContainsText(text); })) {
        expected.Add(cell);
      }
    });
  });
  const auto failure = failureOf([&] { models.own.SearchString(text, &found); });
  RC_ASSERT(failure == expectedFailure);
  RC_ASSERT(models.numbers(found) == models.numbers(expected));
}

RC_GTEST_PROP(MergingProperties, ASearchForGapsEqualsAPlainWalk, ()) {
  ModelTestScope scope;
  const DamagedModels models(*anySteps());
  const int langue = *rc::gen::inRange(0, 11);
  CellResults found;
  CellResults expected;
  const auto expectedFailure = failureOf([&] {
    walkPlainly(models.own.Racine(), [&](const CellRef& cell) {
      if (anyEntryPlainly(cell, [&](const KOBTraductionObj& one) { return item(one, langue).empty(); })) {
        expected.Add(cell);
      }
    });
  });
  const auto failure = failureOf([&] { models.own.SearchNonTraduit(langue, &found); });
  RC_ASSERT(failure == expectedFailure);
  RC_ASSERT(models.numbers(found) == models.numbers(expected));
}

}  // namespace
}  // namespace kob::test
