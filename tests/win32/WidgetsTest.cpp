// SPDX-FileCopyrightText: The KOBTraduction authors
#include "NativeEditorTest.h"

#include <kobtraduction/editor/Button.h>
#include <kobtraduction/editor/CheckBox.h>
#include <kobtraduction/editor/ComboBox.h>
#include <kobtraduction/editor/Frame.h>
#include <kobtraduction/editor/ListBox.h>
#include <kobtraduction/editor/TextBox.h>

#include <memory>
#include <stdexcept>
#include <vector>

namespace kob::testing {
namespace {

/// Widgets of the search dialog's window, without the dialog.
class NativeWidgets : public ::testing::Test {
 protected:
  NativeWidgets()
      : made(desk.makeWindow(DialogKind::Recherche, nullptr)),
        frame1(made->addFrame({u"Frame1"})),
        box1(made->addCheckBox({u"CkSearch", 0, &frame1})),
        text(made->addTextBox({u"tbSearchString", -1, &frame1})),
        frame2(made->addFrame({u"Frame2"})),
        box2(made->addCheckBox({u"CkSearch", 1, &frame2})),
        combo(made->addComboBox({u"CbLangueSearch", -1, &frame2})),
        button(made->addButton({u"bNewSearch"})),
        list(made->addListBox({u"List1"})) {}

  void show(NativeSteps steps) {
    desk.whenShown(DialogKind::Recherche, std::move(steps));
    made->showModal();
  }
  void show(NativeScript step) { show(NativeSteps{std::move(step)}); }

  NativeDesk desk;
  std::unique_ptr<DialogWindow> made;
  Frame& frame1;
  CheckBox& box1;
  TextBox& text;
  Frame& frame2;
  CheckBox& box2;
  ComboBox& combo;
  Button& button;
  ListBox& list;
  int events = 0;
};

TEST_F(NativeWidgets, WhatAProgramAssignsIsShownWithoutAnEvent) {
  text.onChange([this] { ++events; });
  text.setText(u"ab");
  EXPECT_EQ(events, 1);
  list.add(u"un");
  list.add(u"deux");
  combo.add(u"x");
  show([](NativePerson& person) {
    EXPECT_EQ(person.shownText(u"tbSearchString"), L"ab");
    EXPECT_EQ(person.lines(u"List1"), (std::vector<Text>{u"un", u"deux"}));
    // The system chooses no line by itself.
    EXPECT_EQ(SendMessageW(person.control(u"CbLangueSearch"), CB_GETCURSEL, 0, 0), CB_ERR);
  });
  EXPECT_EQ(events, 1);
}

TEST_F(NativeWidgets, CaptionsAreShownLetterForLetter) {
  button.setCaption(u"A && B & C");
  frame1.setCaption(u"D & E");
  show([](NativePerson& person) {
    // A button draws one "&" for two.
    EXPECT_EQ(person.shownText(u"bNewSearch"), L"A &&&& B && C");
  });
}

TEST_F(NativeWidgets, AHandlerMaySwitchABoxBack) {
  box1.onClick([this] { box1.setChecked(false); });
  show([this](NativePerson& person) {
    EXPECT_TRUE(person.check(u"CkSearch", 0));
    EXPECT_FALSE(person.isChecked(u"CkSearch", 0));
    EXPECT_FALSE(box1.isChecked());
  });
}

TEST_F(NativeWidgets, ADisabledFrameDisablesWhatItHolds) {
  frame1.setEnabled(false);
  box1.onClick([this] { ++events; });
  show([this](NativePerson& person) {
    EXPECT_FALSE(IsWindowEnabled(person.control(u"tbSearchString")));
    SendMessageW(person.control(u"CkSearch", 0), BM_CLICK, 0, 0);
    EXPECT_TRUE(box1.isEnabled());
    EXPECT_FALSE(person.isChecked(u"CkSearch", 0));
    frame1.setEnabled(true);
    EXPECT_TRUE(IsWindowEnabled(person.control(u"tbSearchString")));
  });
  EXPECT_EQ(events, 0);
}

TEST_F(NativeWidgets, WhatIsDisabledItselfStaysSoWithItsFrameEnabled) {
  text.setEnabled(false);
  frame1.setEnabled(false);
  frame1.setEnabled(true);
  show([](NativePerson& person) { EXPECT_FALSE(IsWindowEnabled(person.control(u"tbSearchString"))); });
}

TEST_F(NativeWidgets, AHiddenFrameHidesWhatItHolds) {
  frame2.setVisible(false);
  show([](NativePerson& person) {
    EXPECT_FALSE(person.sees(u"CbLangueSearch"));
    EXPECT_TRUE(person.sees(u"tbSearchString"));
  });
}

TEST_F(NativeWidgets, AClickOnTheSelectedLineIsOneMoreClick) {
  list.add(u"un");
  list.onClick([this] { ++events; });
  show([](NativePerson& person) {
    person.clickLine(u"List1", 0);
    person.clickLine(u"List1", 0);
  });
  EXPECT_EQ(events, 2);
}

TEST_F(NativeWidgets, AClickBelowTheLastLineIsNone) {
  list.add(u"un");
  list.onClick([this] { ++events; });
  show([](NativePerson& person) {
    person.mouse(person.control(u"List1"), WM_LBUTTONDOWN, MK_LBUTTON, 5, 150);
    person.mouse(person.control(u"List1"), WM_LBUTTONUP, 0, 5, 150);
    EXPECT_EQ(person.line(u"List1"), -1);
  });
  EXPECT_EQ(events, 0);
}

TEST_F(NativeWidgets, AComboBoxIsChosenFromByKeys) {
  for (const TextView line : {TextView(u"a"), TextView(u"b"), TextView(u"c")}) {
    combo.add(line);
  }
  combo.setListIndex(0);
  show([this](NativePerson& person) {
    EXPECT_TRUE(person.chooseLine(u"CbLangueSearch", 2));
    EXPECT_EQ(combo.listIndex(), 2);
  });
}

TEST_F(NativeWidgets, AWindowCanBeShownAgainAsItIs) {
  show([](NativePerson& person) { person.type(u"tbSearchString", u"abc"); });
  show([](NativePerson& person) { EXPECT_EQ(person.shownText(u"tbSearchString"), L"abc"); });
  EXPECT_EQ(text.text(), u"abc");
}

TEST_F(NativeWidgets, WhatAHandlerRaisesEndsTheWindowAndIsRaisedAgain) {
  button.onClick([] { throw std::runtime_error("broken"); });
  desk.whenShown(DialogKind::Recherche, [this](NativePerson& person) {
    person.press(u"bNewSearch");
    EXPECT_FALSE(made->isShown());
  });
  EXPECT_THROW(made->showModal(), std::runtime_error);
}

TEST_F(NativeWidgets, AWindowThatIsHiddenByAnEventReportsNothingAfterwards) {
  button.onClick([this] {
    ++events;
    made->hide();
  });
  show([](NativePerson& person) {
    const HWND pressed = person.control(u"bNewSearch");
    SendMessageW(pressed, BM_CLICK, 0, 0);
    SendMessageW(pressed, BM_CLICK, 0, 0);
  });
  EXPECT_EQ(events, 1);
}

}  // namespace
}  // namespace kob::testing
