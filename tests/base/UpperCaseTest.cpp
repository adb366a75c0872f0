// SPDX-FileCopyrightText: The KOBTraduction authors
#include <gtest/gtest.h>
#include <kobtraduction/base/Text.h>

#include <clocale>
#include <cstdint>
#include <string>

namespace kob {
namespace {

TEST(UpperCase, RaisesTheLettersOfAscii) {
  EXPECT_EQ(upper(u"abcxyz"), u"ABCXYZ");
  EXPECT_EQ(upper(u"ABCXYZ"), u"ABCXYZ");
}

TEST(UpperCase, LeavesWhatIsNoLetter) {
  EXPECT_EQ(upper(u"0129 @[`{~\\\t\n"), u"0129 @[`{~\\\t\n");
  EXPECT_EQ(upper(Text(u"a\0b", 3)), Text(u"A\0B", 3));
}

TEST(UpperCase, OfNothingIsNothing) {
  EXPECT_EQ(upper(u""), u"");
}

TEST(UpperCase, AccentedLettersMeetTheirCapitals) {
  EXPECT_EQ(upper(u"éèêëàâçùûîïôœæ"), u"ÉÈÊËÀÂÇÙÛÎÏÔŒÆ");
  EXPECT_EQ(upper(u"äöüåøñ"), u"ÄÖÜÅØÑ");
  EXPECT_EQ(upperUnit(u'ÿ'), u'Ÿ');
}

TEST(UpperCase, OtherAlphabetsHaveCapitalsToo) {
  EXPECT_EQ(upper(u"жяё"), u"ЖЯЁ");
  EXPECT_EQ(upper(u"αβγωάϊ"), u"ΑΒΓΩΆΪ");
  EXPECT_EQ(upper(u"ա"), u"Ա");
}

TEST(UpperCase, SeveralLettersMayShareOneCapital) {
  EXPECT_EQ(upperUnit(u'\u00B5'), u'\u039C');  // micro sign, capital mu
  EXPECT_EQ(upperUnit(u'\u017F'), u'S');       // long s
  EXPECT_EQ(upper(u"ςσ"), u"ΣΣ");
}

TEST(UpperCase, TitleCaseLettersBecomeCapitals) {
  EXPECT_EQ(upperUnit(u'\u01C5'), u'\u01C4');
  EXPECT_EQ(upperUnit(u'\u01C6'), u'\u01C4');
  EXPECT_EQ(upperUnit(u'\u01C4'), u'\u01C4');
}

TEST(UpperCase, TheSharpSStays) {
  EXPECT_EQ(upper(u"straße"), u"STRAßE");
}

TEST(UpperCase, LettersWhoseFullCapitalIsLongerStay) {
  for (const char16_t unit : {u'\u00DF', u'\u0149', u'\u01F0', u'\u0390', u'\u03B0', u'\u0587', u'\u1E96',
                              u'\u1F50', u'\u1FB6', u'\uFB00', u'\uFB06', u'\uFB13'}) {
    EXPECT_EQ(upperUnit(unit), unit) << std::hex << static_cast<int>(unit);
  }
}

TEST(UpperCase, GreekLettersWithIotaStayAlthoughAOneLetterFormExists) {
  for (char16_t unit = 0x1F80; unit <= 0x1FAF; ++unit) {
    EXPECT_EQ(upperUnit(unit), unit) << std::hex << static_cast<int>(unit);
  }
  for (const char16_t unit : {u'\u1FB3', u'\u1FBC', u'\u1FC3', u'\u1FCC', u'\u1FF3', u'\u1FFC'}) {
    EXPECT_EQ(upperUnit(unit), unit) << std::hex << static_cast<int>(unit);
  }
}

TEST(UpperCase, OtherGreekLettersWithBreathingsHaveCapitals) {
  EXPECT_EQ(upperUnit(u'\u1F00'), u'\u1F08');
  EXPECT_EQ(upperUnit(u'\u1F51'), u'\u1F59');
}

TEST(UpperCase, TheDotlessIRaisesToTheCommonCapital) {
  EXPECT_EQ(upperUnit(u'ı'), u'I');
}

TEST(UpperCase, TheCommonIRaisesToTheCommonCapitalAndTheDottedOneStays) {
  EXPECT_EQ(upperUnit(u'i'), u'I');
  EXPECT_EQ(upperUnit(u'İ'), u'İ');
}

TEST(UpperCase, IsTheSameUnderATurkishLocale) {
  const std::string before = std::setlocale(LC_ALL, nullptr);
  for (const char* name : {"tr_TR.UTF-8", "tr_TR", "C.UTF-8"}) {
    std::setlocale(LC_ALL, name);
    EXPECT_EQ(upper(u"titre ıİ"), u"TITRE Iİ") << name;
  }
  std::setlocale(LC_ALL, before.c_str());
}

TEST(UpperCase, SurrogatesStay) {
  for (std::uint32_t unit = 0xD800; unit <= 0xDFFF; ++unit) {
    ASSERT_EQ(upperUnit(static_cast<char16_t>(unit)), unit);
  }
}

TEST(UpperCase, LettersBeyondTheFirstPlaneStay) {
  EXPECT_EQ(upper(u"𐐨x"), u"𐐨X");
}

TEST(UpperCase, NeverChangesALengthAndSettlesAfterOneStep) {
  for (std::uint32_t unit = 0; unit <= 0xFFFF; ++unit) {
    const Text text(1, static_cast<char16_t>(unit));
    const Text raised = upper(text);
    ASSERT_EQ(raised.size(), 1U) << std::hex << unit;
    ASSERT_EQ(raised[0], upperUnit(static_cast<char16_t>(unit))) << std::hex << unit;
    ASSERT_EQ(upper(raised), raised) << std::hex << unit;
  }
}

}  // namespace
}  // namespace kob
