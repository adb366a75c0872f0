// SPDX-FileCopyrightText: The KOBTraduction authors
#include <gtest/gtest.h>
#include <kobtraduction/base/Text.h>

#include <algorithm>
#include <cstdint>
#include <iterator>
#include <random>
#include <vector>

namespace kob {
namespace {

TEST(EqualUpper, IgnoresCase) {
  EXPECT_TRUE(equalUpper(u"Fichier", u"FICHIER"));
  EXPECT_TRUE(equalUpper(u"été", u"ÉTÉ"));
  EXPECT_TRUE(equalUpper(u"", u""));
}

TEST(EqualUpper, TellsDifferentTextsApart) {
  EXPECT_FALSE(equalUpper(u"Fichier", u"Fichiers"));
  EXPECT_FALSE(equalUpper(u"Fichiers", u"Fichier"));
  EXPECT_FALSE(equalUpper(u"ete", u"été"));
  EXPECT_FALSE(equalUpper(u"", u"a"));
}

TEST(EqualUpper, TheSharpSIsNotTwoLetters) {
  EXPECT_FALSE(equalUpper(u"straße", u"STRASSE"));
}

TEST(EqualUpper, TheDotlessIMeetsTheCommonOneAndTheDottedCapitalDoesNot) {
  EXPECT_TRUE(equalUpper(u"ı", u"i"));
  EXPECT_FALSE(equalUpper(u"İ", u"i"));
}

TEST(LessUpper, OrdersByTheCapitals) {
  EXPECT_TRUE(lessUpper(u"a", u"B"));
  EXPECT_TRUE(lessUpper(u"A", u"b"));
  EXPECT_FALSE(lessUpper(u"b", u"A"));
  EXPECT_FALSE(lessUpper(u"a", u"A"));
  EXPECT_FALSE(lessUpper(u"A", u"a"));
}

TEST(LessUpper, APrefixComesFirst) {
  EXPECT_TRUE(lessUpper(u"", u"a"));
  EXPECT_TRUE(lessUpper(u"ab", u"ABC"));
  EXPECT_FALSE(lessUpper(u"ABC", u"ab"));
  EXPECT_FALSE(lessUpper(u"", u""));
}

TEST(LessUpper, IsOrdinalByCodeUnitAndNotByAlphabet) {
  EXPECT_TRUE(lessUpper(u"z", u"é"));
  EXPECT_TRUE(lessUpper(u"Z", u"_"));
  EXPECT_TRUE(lessUpper(u"z", u"_"));                // "_" lies between the capitals and the small letters
  EXPECT_TRUE(lessUpper(u"\U0001F600", u"\uFB00"));  // surrogates come before the last units
}

TEST(HashUpper, IsEqualForTextsThatDifferInCaseOnly) {
  EXPECT_EQ(hashUpper(u"Frame1\\cmdOk"), hashUpper(u"FRAME1\\CMDOK"));
  EXPECT_EQ(hashUpper(u"été"), hashUpper(u"ÉTÉ"));
}

TEST(HashUpper, TellsMostOtherTextsApart) {
  std::vector<std::uint32_t> hashes;
  hashes.reserve(2000);
  for (int i = 0; i < 2000; ++i) {
    hashes.push_back(hashUpper(u"Label" + decimal(i)));
  }
  std::sort(hashes.begin(), hashes.end());
  const auto distinct = std::unique(hashes.begin(), hashes.end()) - hashes.begin();
  EXPECT_GE(distinct, 1990);
}

/// Texts over few units, so that equal ones and prefixes are frequent; among the units are the neighbours of
/// the small letters, which must not be taken for letters.
Text randomText(std::mt19937& random, std::size_t longest) {
  static constexpr char16_t units[] = {u'a',      u'A', u'z',   u'Z',   u'`',   u'{', u'@',
                                       u'[',      0x7F, 0x80,   u'é',   u'É',   u'ß', u'\u1F80',
                                       u'\u1F88', u'ı', 0x017F, 0xD800, 0xFFFF, 0};
  Text text(random() % (longest + 1), u'\0');
  for (char16_t& unit : text) {
    unit = units[random() % std::size(units)];
  }
  return text;
}

/// The text with some of its units in upper case, and now and then another unit.
Text varied(std::mt19937& random, Text text) {
  for (char16_t& unit : text) {
    unit = random() % 2 == 0 ? upperUnit(unit) : unit;
  }
  if (!text.empty() && random() % 2 == 0) {
    text[random() % text.size()] = static_cast<char16_t>(random() % 0x200);
  }
  return text;
}

void expectAgreement(const Text& a, const Text& b) {
  const Text upperA = upper(a);
  const Text upperB = upper(b);
  ASSERT_EQ(equalUpper(a, b), upperA == upperB);
  ASSERT_EQ(lessUpper(a, b), upperA < upperB);
  ASSERT_EQ(hashUpper(a), hashUpper(upperA));
  if (upperA == upperB) {
    ASSERT_EQ(hashUpper(a), hashUpper(b));
  }
}

TEST(TextComparisons, OfShortTextsAgreeWithTheUpperCasedTexts) {
  std::mt19937 random(20240501);
  for (int i = 0; i < 20000; ++i) {
    expectAgreement(randomText(random, 3), randomText(random, 3));
  }
}

TEST(TextComparisons, OfLongerTextsAgreeWithTheUpperCasedTexts) {
  std::mt19937 random(20240502);
  for (int i = 0; i < 20000; ++i) {
    const Text text = randomText(random, 13);
    expectAgreement(text, varied(random, text));
  }
}

TEST(TextComparisons, EveryUnitMeetsItsUpperCaseAtEveryPlaceOfALongerText) {
  for (std::uint32_t i = 0; i <= 0xFFFF; ++i) {
    const auto unit = static_cast<char16_t>(i);
    Text text = u"abcdefg";
    text[i % text.size()] = unit;
    ASSERT_TRUE(equalUpper(text, upper(text))) << std::hex << i;
    ASSERT_EQ(hashUpper(text), hashUpper(upper(text))) << std::hex << i;
    Text other = text;
    other[i % text.size()] = static_cast<char16_t>(unit ^ 0x20);
    ASSERT_EQ(equalUpper(text, other), upper(text) == upper(other)) << std::hex << i;
  }
}

}  // namespace
}  // namespace kob
