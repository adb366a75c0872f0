// SPDX-FileCopyrightText: The KOBTraduction authors
#include "NativeEditorTest.h"

#include <string>

namespace kob::testing {
namespace {

/// Texts in the fields of the native editor.
class NativeTexts : public NativeEditorTest {
 protected:
  NativeTexts() {
    control(app, u"btn", {caption(u"Oui", u"Yes")});
    message(app, u"msg", {u"Un\r\nDeux", u"", u"", u"", u"", u""});
  }

  Text captionOf(std::int32_t language) const {
    return Text(model.GetCell(u"App\\btn")->ColTraduction()->Item(1)->ColTraduction()->Item(language));
  }
  Text messageOf(std::int32_t language) const {
    return Text(model.GetCell(u"App\\msg")->Traduction()->ColTraduction()->Item(language));
  }
};

TEST_F(NativeTexts, LettersThatAreTypedAreInTheModelAtOnce) {
  edit(u"App\\btn", [this](NativePerson& person) {
    EXPECT_TRUE(person.typeLetters(u"tbTradCtrl", 1, u"J\u00e4"));
    EXPECT_EQ(captionOf(2), u"J\u00e4");
    EXPECT_EQ(person.shownText(u"tbTradCtrl", 1), L"J\u00e4");
    EXPECT_EQ(win32::windowText(person.window.handle()), L"Traduction*");
  });
  EXPECT_EQ(captionOf(2), u"J\u00e4");
}

TEST_F(NativeTexts, ReturnBeginsANewLineLikeThoseThatAreThere) {
  edit(u"App\\msg", [](NativePerson& person) { person.typeLetters(u"tbTradMessage", 0, u"a\nb"); });
  EXPECT_EQ(messageOf(1), u"a\r\nb");
}

TEST_F(NativeTexts, LineEndsThatNobodyTouchedStay) {
  model.GetCell(u"App\\msg")->Traduction()->ChangeTraduction(u"Un\nDeux\rTrois", 2);
  edit(u"App\\msg", [](NativePerson& person) {
    EXPECT_EQ(person.shownText(u"tbTradMessage", 1), L"Un\r\nDeux\r\nTrois");
    const HWND field = person.control(u"tbTradMessage", 1);
    SendMessageW(field, EM_SETSEL, 1000, 1000);
    SendMessageW(field, WM_CHAR, u'!', 0);
  });
  EXPECT_EQ(messageOf(2), u"Un\nDeux\rTrois!");
}

TEST_F(NativeTexts, ANulIsShownAndStays) {
  model.GetCell(u"App\\msg")->Traduction()->ChangeTraduction(Text(u"a\0b", 3), 2);
  edit(u"App\\msg", [](NativePerson& person) {
    EXPECT_EQ(person.shownText(u"tbTradMessage", 1), L"a\u2400b");
    const HWND field = person.control(u"tbTradMessage", 1);
    SendMessageW(field, EM_SETSEL, 1000, 1000);
    SendMessageW(field, WM_CHAR, u'!', 0);
  });
  EXPECT_EQ(messageOf(2), Text(u"a\0b!", 4));
}

TEST_F(NativeTexts, ALongTextIsNotCut) {
  // Without saying otherwise, a control takes 32 767 letters.
  Text text;
  while (text.size() < 33'000) {
    text += u"mot ";
  }
  edit(u"App\\btn", [&](NativePerson& person) { EXPECT_TRUE(person.type(u"tbTradCtrl", 1, text)); });
  EXPECT_EQ(captionOf(2), text);
}

TEST_F(NativeTexts, ControlAMarksAllOfAText) {
  edit(u"App\\btn", [](NativePerson& person) {
    const HWND field = person.control(u"tbTradCtrl", 0);
    SendMessageW(field, WM_CHAR, 1, 0);
    DWORD begin = 9;
    DWORD end = 9;
    SendMessageW(field, EM_GETSEL, reinterpret_cast<WPARAM>(&begin), reinterpret_cast<LPARAM>(&end));
    EXPECT_EQ(begin, 0U);
    EXPECT_EQ(end, 3U);
  });
}

TEST_F(NativeTexts, InTheTranslatorsModeTheFirstTextIsForReading) {
  edit(restricted, u"App\\btn", {[this](NativePerson& person) {
         EXPECT_FALSE(person.type(u"tbTradCtrl", 0, u"Non"));
         SendMessageW(person.control(u"tbTradCtrl", 0), WM_CHAR, u'!', 0);
         EXPECT_EQ(person.shownText(u"tbTradCtrl", 0), L"Oui");
         EXPECT_EQ(captionOf(1), u"Oui");
         EXPECT_TRUE(person.type(u"tbTradCtrl", 1, u"Si"));
       }});
  EXPECT_EQ(captionOf(1), u"Oui");
  EXPECT_EQ(captionOf(2), u"Si");
}

TEST_F(NativeTexts, WhatAFrameHoldsIsDisabledWithIt) {
  edit(restricted, u"App\\btn", {[](NativePerson& person) {
         EXPECT_FALSE(IsWindowEnabled(person.control(u"tbNom")));
         EXPECT_FALSE(IsWindowEnabled(person.control(u"OptTypFeuille", 1)));
         // Not even by what another program sends.
         SendMessageW(person.control(u"OptTypFeuille", 1), BM_CLICK, 0, 0);
         EXPECT_EQ(person.chosen(u"OptTypFeuille"), 2);
       }});
  EXPECT_EQ(model.GetCell(u"App\\btn")->TypeFeuille(), 2);
}

TEST_F(NativeTexts, ATextThatIsReadFromRightToLeftStandsAtTheRight) {
  model.GetCell(u"App\\btn")->ColTraduction()->Item(1)->ChangeTraduction(u"\u05d1\u05e8\u05d5\u05da", 3);
  edit(u"App\\btn", [](NativePerson& person) {
    const auto isMirrored = [&](int index) {
      return (GetWindowLongW(person.control(u"tbTradCtrl", index), GWL_EXSTYLE) & WS_EX_RTLREADING) != 0;
    };
    EXPECT_TRUE(isMirrored(2));
    EXPECT_FALSE(isMirrored(1));
    person.type(u"tbTradCtrl", 2, u"Hallo");
    EXPECT_FALSE(isMirrored(2));
  });
}

TEST_F(NativeTexts, ABarToScrollByIsThereOnlyForATextThatNeedsIt) {
  edit(u"App\\btn", [](NativePerson& person) {
    const auto isScrolled = [&] {
      return (GetWindowLongW(person.control(u"tbTradCtrl", 1), GWL_STYLE) & WS_VSCROLL) != 0;
    };
    EXPECT_FALSE(isScrolled());
    person.type(u"tbTradCtrl", 1, u"1\r\n2\r\n3\r\n4\r\n5\r\n6\r\n7\r\n8");
    EXPECT_TRUE(isScrolled());
    person.type(u"tbTradCtrl", 1, u"1");
    EXPECT_FALSE(isScrolled());
  });
}

}  // namespace
}  // namespace kob::testing
