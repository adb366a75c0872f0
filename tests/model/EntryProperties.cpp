// SPDX-FileCopyrightText: The KOBTraduction authors
#include "HostEdits.h"

#include <rapidcheck/gtest.h>

#include <vector>

namespace kob::test {
namespace {

/// Texts of few letters, so that equal ones, gaps and parts of each other are frequent.
rc::Gen<Text> anyText() {
  return rc::gen::container<Text>(
      rc::gen::element<char16_t>(u'a', u'A', u'b', u'é', u'É', u'ß', char16_t{0xD800}));
}

rc::Gen<Text> shortText() {
  return rc::gen::resize(2, anyText());
}

/// Between 0 and 9 texts.
rc::Gen<Texts> anyTexts() {
  return rc::gen::mapcat(rc::gen::inRange(0, 10), [](int count) {
    return rc::gen::container<Texts>(static_cast<std::size_t>(count), shortText());
  });
}

EntryRef entryOf(const Texts& given) {
  auto made = std::make_shared<KOBTraductionObj>();
  auto list = std::make_shared<TextList>();
  for (const Text& text : given) {
    list->Add(text);
  }
  made->setColTraduction(list);
  return made;
}

/// An item of a plain list, or the failure of a list.
const Text& item(const Texts& list, std::int32_t position) {
  if (position < 1 || static_cast<std::size_t>(position) > list.size()) {
    throw Failure(FailureKind::InvalidIndex);
  }
  return list[static_cast<std::size_t>(position) - 1];
}

void change(Texts& list, const Text& text, std::int32_t position) {
  if (position >= 1 && position <= Global_Util::NbLangues()) {
    static_cast<void>(item(list, position));
    list[static_cast<std::size_t>(position) - 1] = text;
  }
}

void complete(const Texts& source, Texts& target) {
  if (upper(item(target, 1)) != upper(item(source, 1))) {
    return;
  }
  for (std::int32_t i = 2; i <= Global_Util::NbLangues(); ++i) {
    if (item(target, i).empty()) {
      change(target, item(source, i), i);
    }
  }
}

RC_GTEST_PROP(EntryProperties, AChangeReplacesInPlaceOrDoesNothing, ()) {
  ModelTestScope scope;
  Global_Util::setNbLangues(*rc::gen::inRange(0, 10));
  Texts expected = *anyTexts();
  const EntryRef made = entryOf(expected);
  const auto changes = *rc::gen::container<std::vector<std::pair<int, Text>>>(
      rc::gen::pair(rc::gen::inRange(-1, 12), shortText()));
  for (const auto& [position, text] : changes) {
    const auto wanted = failureOf([&, at = position, &with = text] { change(expected, with, at); });
    const auto failure = failureOf([&, at = position, &with = text] { made->ChangeTraduction(with, at); });
    RC_ASSERT(failure == wanted);
  }
  RC_ASSERT(texts(*made->ColTraduction()) == expected);
}

RC_GTEST_PROP(EntryProperties, CompletingFillsGapsOfEqualReferences, ()) {
  ModelTestScope scope;
  Global_Util::setNbLangues(*rc::gen::inRange(0, 8));
  const Texts source = *anyTexts();
  Texts expected = *anyTexts();
  if (!source.empty() && !expected.empty() && *rc::gen::arbitrary<bool>()) {
    expected[0] = upper(source[0]);
  }
  const EntryRef target = entryOf(expected);
  const auto wanted = failureOf([&] { complete(source, expected); });
  const auto failure = failureOf([&] { entryOf(source)->CompleteTraduction(*target); });
  RC_ASSERT(failure == wanted);
  RC_ASSERT(texts(*target->ColTraduction()) == expected);
}

RC_GTEST_PROP(EntryProperties, CompletingAListMovesTheLastLanguageToItsEnd, ()) {
  ModelTestScope scope;
  const int count = *rc::gen::inRange(2, 8);
  Global_Util::setNbLangues(count);
  const auto exactly = static_cast<std::size_t>(count);
  Texts source = *rc::gen::container<Texts>(exactly, shortText());
  Texts expected = *rc::gen::container<Texts>(exactly + *rc::gen::inRange<std::size_t>(0, 3), shortText());
  const auto target = entryOf(expected)->ColTraduction();
  entryOf(source)->CompleteColTraduction(upper(source[0]), *target);
  for (std::size_t i = 1; i < exactly; ++i) {
    if (expected[i].empty() && !source[i].empty()) {
      expected.erase(expected.begin() + static_cast<std::ptrdiff_t>(i));
      expected.insert(i + 1 == exactly ? expected.end() : expected.begin() + static_cast<std::ptrdiff_t>(i),
                      source[i]);
    }
  }
  RC_ASSERT(texts(*target) == expected);
}

RC_GTEST_PROP(EntryProperties, ContainsWhatItsUpperCaseContains, ()) {
  const Text reference = *anyText();
  const Text search = *shortText();
  const bool expected = !reference.empty() && upper(reference).find(upper(search)) != Text::npos;
  RC_ASSERT(entryOf({reference})->ContainsText(search) == expected);
}

RC_GTEST_PROP(EntryProperties, GrowsToOneMoreThanTheCountOrStays, ()) {
  ModelTestScope scope;
  const Texts given = *anyTexts();
  const int count = *rc::gen::inRange(0, 20);
  Global_Util::setNbLangues(count);
  const EntryRef made = entryOf(given);
  made->UpdateNbLangues();
  Texts expected = given;
  for (auto i = static_cast<int>(given.size()); i <= count; ++i) {
    expected.emplace_back();
  }
  RC_ASSERT(texts(*made->ColTraduction()) == expected);
}

}  // namespace
}  // namespace kob::test
