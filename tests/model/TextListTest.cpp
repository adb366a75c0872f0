// SPDX-FileCopyrightText: The KOBTraduction authors
#include "ModelVocabulary.h"

#include <limits>
#include <vector>

namespace kob::test {
namespace {

constexpr std::int32_t noPositions[] = {0, 4, -1, std::numeric_limits<std::int32_t>::min(),
                                        std::numeric_limits<std::int32_t>::max()};

TEST(TextListOf, StartsEmpty) {
  const TextList list;
  EXPECT_EQ(list.Count(), 0);
}

TEST(TextListOf, AddsInsertsAndRemovesByPosition) {
  const auto list = textList({u"a", u"b", u"c"});
  list->Add(u"x", 1);
  list->Add(u"y", 4);
  EXPECT_EQ(texts(*list), (Texts{u"x", u"a", u"b", u"y", u"c"}));
  list->Remove(1);
  list->Remove(4);
  EXPECT_EQ(texts(*list), (Texts{u"a", u"b", u"y"}));
}

TEST(TextListOf, APositionOutsideItIsAnInvalidIndexAndChangesNothing) {
  const auto list = textList({u"a", u"b", u"c"});
  for (const std::int32_t position : noPositions) {
    EXPECT_EQ(failureOf([&] { static_cast<void>(list->Item(position)); }), FailureKind::InvalidIndex);
    EXPECT_EQ(failureOf([&] { list->Add(u"x", position); }), FailureKind::InvalidIndex);
    EXPECT_EQ(failureOf([&] { list->Remove(position); }), FailureKind::InvalidIndex);
  }
  EXPECT_EQ(texts(*list), (Texts{u"a", u"b", u"c"}));
}

TEST(TextListOf, OwnsWhatIsAddedByValue) {
  TextList list;
  Text text = u"a text that is long enough to be stored apart";
  list.Add(text);
  list.Add(text, 1);
  text.assign(text.size(), u'#');
  EXPECT_EQ(list.Item(1), u"a text that is long enough to be stored apart");
  EXPECT_EQ(list.Item(2), u"a text that is long enough to be stored apart");
}

TEST(TextListOf, AViewStaysWhereItIs) {
  const auto image = std::make_shared<const Text>(u"FichierEdition");
  TextList list;
  list.setImage(image);
  list.AddView(TextView(*image).substr(0, 7));
  list.AddView(TextView(*image).substr(7));
  EXPECT_EQ(texts(list), (Texts{u"Fichier", u"Edition"}));
  EXPECT_EQ(list.Item(1).data(), image->data());
  EXPECT_EQ(list.Item(2).data(), image->data() + 7);
}

TEST(TextListOf, ViewsAddedTogetherAreThoseAddedOneByOne) {
  const auto image = std::make_shared<const Text>(u"onetwothreefourfivesixseveneight");
  const TextView one = TextView(*image).substr(0, 3);
  const TextView two = TextView(*image).substr(3, 3);
  const TextView three = TextView(*image).substr(6, 5);
  const TextView gap = three.substr(0, 0);
  const TextView five = TextView(*image).substr(15, 4);
  const std::vector<TextView> runs[] = {{},
                                        {one},
                                        {one, two, gap, three},
                                        {gap, gap, three},
                                        {u"", one, two},
                                        {one, three, two},
                                        {one, two, u"", five},
                                        {one, two, gap, gap, gap, gap, three},
                                        {one, two, u"static"},
                                        {two, gap, gap, gap, gap, gap, gap, gap, three, one}};
  for (const auto& run : runs) {
    for (const std::vector<Text>& before : {std::vector<Text>(), {Text()}, {Text(u"own")}}) {
      TextList together;
      TextList inTurn;
      for (TextList* const list : {&together, &inTurn}) {
        list->setImage(image);
        for (const Text& text : before) {
          list->Add(text);
        }
      }
      together.AddViews(run);
      for (const TextView view : run) {
        inTurn.AddView(view);
      }
      EXPECT_EQ(texts(together), texts(inTurn));
      EXPECT_EQ(together.Count(), static_cast<std::int32_t>(before.size() + run.size()));
      together.Add(u"more");
      EXPECT_EQ(together.Item(together.Count()), u"more");
    }
  }
}

TEST(TextListOf, GivesItsFirstTextsAsTheyLie) {
  const auto few = textList({u"a", u"", u"ccc", u"dd"});
  const auto many = textList({u"1", u"22", u"", u"4", u"5", u"66", u"7", u"8", u"999"});
  for (const TextList* const list : {few.get(), many.get()}) {
    for (std::int32_t most = -1; most <= 12; ++most) {
      const TextRun run = list->GetRun(most);
      ASSERT_EQ(run.size(), static_cast<std::size_t>(std::clamp(most, 0, list->Count())));
      for (std::size_t i = 0; i < run.size(); ++i) {
        EXPECT_EQ(run[i], list->Item(static_cast<std::int32_t>(i) + 1)) << i << " of " << most;
      }
    }
  }
}

TEST(TextListOf, HasNoRunWhenAllTextsAreEmpty) {
  EXPECT_EQ(TextList().GetRun(5).size(), 0U);
  EXPECT_EQ(TextList(3).GetRun(5).size(), 0U);
  EXPECT_EQ(TextList(9).GetRun(5).size(), 0U);
}

TEST(TextListOf, KeepsTheImageAliveAsLongAsItLives) {
  auto image = std::make_shared<const Text>(u"a text that is long enough to be stored apart");
  const std::weak_ptr<const Text> alive = image;
  auto list = std::make_unique<TextList>();
  list->setImage(image);
  list->AddView(*image);
  image.reset();
  ASSERT_FALSE(alive.expired());
  EXPECT_EQ(list->Item(1), u"a text that is long enough to be stored apart");
  list.reset();
  EXPECT_TRUE(alive.expired());
}

TEST(TextListOf, MixesViewsAndOwnTexts) {
  const auto image = std::make_shared<const Text>(u"view");
  TextList list;
  list.setImage(image);
  list.AddView(*image);
  list.Add(u"own");
  list.AddView(u"static");
  list.Add(u"first", 1);
  EXPECT_EQ(texts(list), (Texts{u"first", u"view", u"own", u"static"}));
  list.Remove(2);
  list.Remove(2);
  EXPECT_EQ(texts(list), (Texts{u"first", u"static"}));
}

TEST(TextListOf, ReplacingAViewInAnEntryLeavesTheImageAlone) {
  const std::int32_t before = Global_Util::NbLangues();
  Global_Util::setNbLangues(2);
  const auto image = std::make_shared<const Text>(u"FichierEdition");
  KOBTraductionObj made;
  const auto list = std::make_shared<TextList>();
  list->setImage(image);
  list->AddView(TextView(*image).substr(0, 7));
  list->AddView(TextView(*image).substr(7));
  made.setColTraduction(list);
  made.ChangeTraduction(u"Vue", 2);
  EXPECT_EQ(texts(*list), (Texts{u"Fichier", u"Vue"}));
  EXPECT_EQ(*image, u"FichierEdition");
  Global_Util::setNbLangues(before);
}

TEST(TextListOf, ATextOfTheListCanBeAddedToItAgain) {
  TextList list;
  list.Add(u"a text that is long enough to be stored apart");
  for (int i = 0; i < 40; ++i) {
    list.Add(list.Item(1));
    list.Add(list.Item(list.Count()), 1);
  }
  EXPECT_EQ(texts(list), Texts(81, u"a text that is long enough to be stored apart"));
}

TEST(TextListOf, AnySequenceOfUnitsIsKept) {
  const Text odd{char16_t{0xDC00}, u'\0', char16_t{0xD800}, char16_t{0xFFFF}, u'é'};
  TextList list;
  list.Add(odd);
  list.Add(Text(1, u'\0'));
  list.Add(u"");
  EXPECT_EQ(texts(list), (Texts{odd, Text(1, u'\0'), u""}));
}

TEST(TextListOf, ALongTextIsKeptWhole) {
  const Text text(1 << 20, u'x');
  TextList list;
  list.Add(text);
  EXPECT_EQ(list.Item(1), text);
}

TEST(TextListOf, ReplacesATextByAShorterAndALongerOne) {
  const auto list = textList({u"one", u"two", u"three"});
  list->Replace(2, u"a longer one");
  EXPECT_EQ(texts(*list), (Texts{u"one", u"a longer one", u"three"}));
  list->Replace(2, u"");
  EXPECT_EQ(texts(*list), (Texts{u"one", u"", u"three"}));
  list->Replace(1, list->Item(3));
  list->Replace(3, list->Item(1).substr(1));
  EXPECT_EQ(texts(*list), (Texts{u"three", u"", u"hree"}));
  for (const std::int32_t position : noPositions) {
    EXPECT_EQ(failureOf([&] { list->Replace(position, u"x"); }), FailureKind::InvalidIndex);
  }
}

TEST(TextListOf, AnyNumberOfEmptyTextsCostsNothing) {
  TextList list(std::numeric_limits<std::int32_t>::max());
  EXPECT_EQ(list.Count(), std::numeric_limits<std::int32_t>::max());
  EXPECT_EQ(list.Item(list.Count()), u"");
  EXPECT_EQ(TextList(-1).Count(), 0);
}

/// Every operation on lists of every length around the one up to which the ends lie inside, beside a vector.
TEST(TextListOf, ReadsLikeAPlainListThroughoutManyChanges) {
  for (std::int32_t start = 0; start <= 9; ++start) {
    TextList list(start);
    Texts plain(static_cast<std::size_t>(start));
    std::uint32_t state = 7;
    for (int step = 0; step < 400; ++step) {
      state = state * 1664525 + 1013904223;
      const std::int32_t count = list.Count();
      const auto at = static_cast<std::int32_t>((state >> 8) % static_cast<std::uint32_t>(count + 1));
      const Text text((state >> 16) % 5, static_cast<char16_t>(u'a' + step % 26));
      switch (at < count ? state >> 29 : 0) {
        case 0:
        case 1:
          list.Add(text);
          plain.push_back(text);
          break;
        case 2:
          list.Add(text, at + 1);
          plain.insert(plain.begin() + at, text);
          break;
        case 3:
        case 4:
          list.Remove(at + 1);
          plain.erase(plain.begin() + at);
          break;
        case 5:
          list.AddEmpty(2);
          plain.resize(plain.size() + 2);
          break;
        default:
          list.Replace(at + 1, text);
          plain[static_cast<std::size_t>(at)] = text;
      }
      ASSERT_EQ(texts(list), plain) << "step " << step << " from " << start;
    }
  }
}

TEST(TextListOf, MovesWithItsTexts) {
  TextList list;
  for (const TextView text : {u"a", u"b", u"c", u"d", u"e", u"f", u"g", u"h"}) {
    list.Add(text);
  }
  const TextList moved(std::move(list));
  EXPECT_EQ(texts(moved), (Texts{u"a", u"b", u"c", u"d", u"e", u"f", u"g", u"h"}));
}

}  // namespace
}  // namespace kob::test
