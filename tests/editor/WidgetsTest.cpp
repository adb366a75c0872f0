// SPDX-FileCopyrightText: The KOBTraduction authors
#include "tests/doubles/Person.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <kobtraduction/base/Failure.h>

// What every toolkit's widgets do alike: who is told of an assignment, and which events it raises.
namespace kob::testing {

namespace {

using ::testing::ElementsAre;

class WidgetsTest : public ::testing::Test {
 protected:
  /// Counts an event.
  WidgetHandler counted() {
    return [this] { ++events; };
  }

  ScriptedWidgetSet widgets;
  ScriptedWindow window{widgets, DialogKind::Traduction, nullptr};
  int events = 0;
};

TEST_F(WidgetsTest, AssigningAnotherTextShowsItAndRaisesChange) {
  auto& box = static_cast<ScriptedTextBox&>(window.addTextBox({u"tb"}));
  box.onChange(counted());
  box.setText(u"a");
  EXPECT_EQ(box.shownText, u"a");
  EXPECT_EQ(events, 1);
}

TEST_F(WidgetsTest, AssigningTheSameTextDoesNothing) {
  auto& box = static_cast<ScriptedTextBox&>(window.addTextBox({u"tb"}));
  box.setText(u"a");
  box.shownText = u"untouched";
  box.onChange(counted());
  box.setText(u"a");
  EXPECT_EQ(box.shownText, u"untouched");
  EXPECT_EQ(events, 0);
}

TEST_F(WidgetsTest, TypingRaisesChangeAndShowsNothing) {
  auto& box = static_cast<ScriptedTextBox&>(window.addTextBox({u"tb"}));
  box.onChange(counted());
  box.personTyped(u"a");
  EXPECT_EQ(box.text(), u"a");
  EXPECT_EQ(box.shownText, u"");
  EXPECT_EQ(events, 1);
}

TEST_F(WidgetsTest, LockingRaisesNothing) {
  auto& box = static_cast<ScriptedTextBox&>(window.addTextBox({u"tb"}));
  box.onChange(counted());
  box.setLocked(true);
  EXPECT_TRUE(box.isShownLocked);
  EXPECT_EQ(events, 0);
}

TEST_F(WidgetsTest, AssigningTheOtherStateOfACheckBoxRaisesClick) {
  auto& box = static_cast<ScriptedCheckBox&>(window.addCheckBox({u"chk"}));
  box.onClick(counted());
  box.setChecked(false);
  EXPECT_EQ(events, 0);
  box.setChecked(true);
  EXPECT_TRUE(box.isShownChecked);
  EXPECT_EQ(events, 1);
}

TEST_F(WidgetsTest, ClickingACheckBoxRaisesClickWithTheNewState) {
  CheckBox& box = window.addCheckBox({u"chk"});
  bool seen = false;
  box.onClick([&] { seen = box.isChecked(); });
  box.personClicked(true);
  EXPECT_TRUE(seen);
}

TEST_F(WidgetsTest, AnOptionButtonThatIsSetOnSwitchesItsGroupOffAndRaisesClickForItself) {
  auto& first = static_cast<ScriptedOptionButton&>(window.addOptionButton({u"opt", 0}, nullptr));
  auto& second = static_cast<ScriptedOptionButton&>(window.addOptionButton({u"opt", 1}, &first));
  auto& third = static_cast<ScriptedOptionButton&>(window.addOptionButton({u"opt", 2}, &first));
  std::vector<int> clicked;
  first.onClick([&] { clicked.push_back(0); });
  second.onClick([&] { clicked.push_back(1); });
  third.onClick([&] { clicked.push_back(2); });
  first.setOn();
  third.setOn();
  third.setOn();
  EXPECT_THAT(clicked, ElementsAre(0, 2));
  EXPECT_FALSE(first.isOn() || first.isShownOn || second.isOn());
  EXPECT_TRUE(third.isOn() && third.isShownOn);
}

TEST_F(WidgetsTest, AnOptionButtonThatIsOnIsNotClickedAgain) {
  OptionButton& only = window.addOptionButton({u"opt", 0}, nullptr);
  only.onClick(counted());
  only.personChose();
  only.personChose();
  EXPECT_EQ(events, 1);
}

TEST_F(WidgetsTest, ASliderBringsAValueToItsBoundsAndRaisesChangeForAnotherOne) {
  auto& slider = static_cast<ScriptedSlider&>(window.addSlider({u"sld"}));
  slider.setRange(10, 400);
  EXPECT_EQ(slider.value(), 10);
  slider.onChange(counted());
  slider.setValue(3);
  EXPECT_EQ(events, 0);
  slider.setValue(500);
  EXPECT_EQ(slider.shownValue, 400);
  EXPECT_EQ(events, 1);
}

TEST_F(WidgetsTest, MovingASliderRaisesChange) {
  Slider& slider = window.addSlider({u"sld"});
  slider.onChange(counted());
  slider.personMoved(7);
  EXPECT_EQ(slider.value(), 7);
  EXPECT_EQ(events, 1);
}

TEST_F(WidgetsTest, SelectingALineByProgramRaisesClickOnce) {
  auto& list = static_cast<ScriptedListBox&>(window.addListBox({u"lst"}));
  list.add(u"a");
  list.onClick(counted());
  list.setListIndex(0);
  list.setListIndex(0);
  EXPECT_EQ(list.shownIndex, 0);
  EXPECT_EQ(events, 1);
}

TEST_F(WidgetsTest, ALineThatIsNotThereIsNone) {
  ListBox& list = window.addListBox({u"lst"});
  list.add(u"a");
  list.setListIndex(1);
  EXPECT_EQ(list.listIndex(), -1);
}

TEST_F(WidgetsTest, ClearingAListDropsTheSelectionWithoutAnEvent) {
  ListBox& list = window.addListBox({u"lst"});
  list.add(u"a");
  list.setListIndex(0);
  list.onClick(counted());
  list.clear();
  EXPECT_EQ(list.listIndex(), -1);
  EXPECT_EQ(events, 0);
}

TEST_F(WidgetsTest, ClickingTheSelectedLineRaisesClickAgain) {
  ListBox& list = window.addListBox({u"lst"});
  list.add(u"a");
  list.setListIndex(0);
  list.onClick(counted());
  list.personClicked(0);
  EXPECT_EQ(events, 1);
}

TEST_F(WidgetsTest, AComboBoxStartsWithoutAChoice) {
  ComboBox& box = window.addComboBox({u"cb"});
  box.add(u"a");
  EXPECT_EQ(box.listIndex(), -1);
  box.setListIndex(0);
  EXPECT_EQ(box.listIndex(), 0);
}

TEST_F(WidgetsTest, SelectingANodeByProgramRaisesNothing) {
  auto& tree = static_cast<ScriptedTreeView&>(window.addTreeView({u"TV"}));
  tree.onNodeClick([this](TreeView::Node) { ++events; });
  const TreeView::Node node = tree.add(0, u"a", 1, u"a");
  tree.select(node);
  EXPECT_EQ(tree.shownSelected, node);
  EXPECT_EQ(events, 0);
}

TEST_F(WidgetsTest, AClickedNodeIsSelectedBeforeTheEvent) {
  TreeView& tree = window.addTreeView({u"TV"});
  const TreeView::Node node = tree.add(0, u"a", 1, u"a");
  TreeView::Node seen = 0;
  tree.onNodeClick([&](TreeView::Node /*clicked*/) { seen = tree.selected(); });
  tree.personClicked(node);
  EXPECT_EQ(seen, node);
}

TEST_F(WidgetsTest, OfEqualTagsTheFirstIsFound) {
  TreeView& tree = window.addTreeView({u"TV"});
  tree.add(0, u"a", 1, u"x");
  const TreeView::Node first = tree.add(0, u"b", 1, u"y");
  tree.add(first, u"c", 1, u"y");
  EXPECT_EQ(tree.find(u"y"), first);
  EXPECT_EQ(tree.find(u"Y"), 0);
}

TEST_F(WidgetsTest, ClearingATreeDropsTheSelection) {
  TreeView& tree = window.addTreeView({u"TV"});
  tree.select(tree.add(0, u"a", 1, u"a"));
  tree.clear();
  EXPECT_EQ(tree.selected(), 0);
  EXPECT_EQ(tree.count(), 0);
}

TEST_F(WidgetsTest, AFailureAfterAPersonsEventEndsTheWindowAndComesOutOfShowModal) {
  Button& button = window.addButton({u"b"});
  button.onClick([this] {
    ++events;
    throw Failure(FailureKind::InvalidIndex);
  });
  bool wasOpen = true;
  widgets.whenShown(DialogKind::Traduction, [&](Person& person) {
    person.press(u"b");
    wasOpen = person.window.isShown();
    // A toolkit may still have events waiting.
    button.personClicked();
  });
  EXPECT_THROW(window.showModal(), Failure);
  EXPECT_FALSE(wasOpen);
  EXPECT_EQ(events, 1);
}

TEST_F(WidgetsTest, AWindowCanBeShownAgainAfterAFailure) {
  Button& button = window.addButton({u"b"});
  button.onClick([this] {
    if (++events == 1) {
      throw Failure(FailureKind::InvalidIndex);
    }
  });
  widgets.whenShown(DialogKind::Traduction, [](Person& person) { person.press(u"b"); });
  EXPECT_THROW(window.showModal(), Failure);
  widgets.whenShown(DialogKind::Traduction, [](Person& person) { person.press(u"b"); });
  EXPECT_NO_THROW(window.showModal());
  EXPECT_EQ(events, 2);
}

TEST_F(WidgetsTest, AFailureInAWindowOverAnotherEndsBoth) {
  ScriptedWindow inner(widgets, DialogKind::AddNoeud, &window);
  inner.addButton({u"fail"}).onClick([] { throw Failure(FailureKind::ObjectNotSet); });
  window.addButton({u"open"}).onClick([&inner] { inner.showModal(); });
  widgets.whenShown(DialogKind::AddNoeud, [](Person& person) { person.press(u"fail"); });
  bool wasOpen = true;
  widgets.whenShown(DialogKind::Traduction, [&wasOpen](Person& person) {
    person.press(u"open");
    wasOpen = person.window.isShown();
  });
  EXPECT_THROW(window.showModal(), Failure);
  EXPECT_FALSE(wasOpen);
}

TEST_F(WidgetsTest, HidingAWindowThatIsNotShownDoesNothing) {
  window.hide();
  EXPECT_FALSE(window.isShown());
}

TEST_F(WidgetsTest, TheWidgetSetBelongsToTheThread) {
  EXPECT_EQ(widgetSet(), &widgets);
  EXPECT_EQ(setWidgetSet(nullptr), &widgets);
  EXPECT_EQ(widgetSet(), nullptr);
  EXPECT_EQ(setWidgetSet(&widgets), nullptr);
}

}  // namespace

}  // namespace kob::testing
