// SPDX-FileCopyrightText: The KOBTraduction authors
#include "EditorTest.h"

namespace kob::testing {

namespace {

/// Panes as a designer could have placed them, in units.
class EditorSplitter : public EditorTest {
 protected:
  static constexpr double width = 12000;
  static constexpr double leastPane = 4100;

  void drag(Script script) {
    edit(u"", [&script](Person& person) {
      const auto place = [&](TextView name, std::int32_t index, double left, double widgetWidth) {
        person.the<Widget>(name, index).setLeft(left);
        person.the<Widget>(name, index).setWidth(widgetWidth);
      };
      place(u"pConteneur", -1, 0, width);
      place(u"TV", -1, 0, 3000);
      place(u"PProperty", -1, 3060, 8940);
      place(u"FrControl", -1, 120, 8700);
      place(u"FrMessage", -1, 120, 8700);
      for (std::int32_t i = 0; i < 6; ++i) {
        place(u"tbTradCtrl", i, 2220, 6360);
        place(u"tbTradMessage", i, 720, 7860);
        place(u"sldLeft", i, 2100, 2900);
        place(u"sldwidth", i, 5565, 2900);
        place(u"bl1", i, 4980, 255);
        place(u"bw1", i, 5330, 255);
      }
      script(person);
    });
  }
  static MousePointer pointer(const Person& person) {
    return person.the<ScriptedPictureBox>(u"pConteneur").shownPointer;
  }
  static double treeWidth(const Person& person) { return person.the<Widget>(u"TV").width(); }
};

TEST_F(EditorSplitter, LeftOfTheTreesLeastWidthNothingHappens) {
  drag([](Person& person) {
    person.moveMouse(1999, true);
    EXPECT_EQ(pointer(person), MousePointer::Default);
    EXPECT_EQ(treeWidth(person), 3000);
  });
}

TEST_F(EditorSplitter, RightOfThePanesLeastWidthNothingHappens) {
  drag([](Person& person) {
    person.moveMouse(width - leastPane + 1, true);
    EXPECT_EQ(pointer(person), MousePointer::Default);
    EXPECT_EQ(treeWidth(person), 3000);
  });
}

TEST_F(EditorSplitter, BothLimitsBelongToTheSplitter) {
  drag([](Person& person) {
    person.moveMouse(2000, true);
    EXPECT_EQ(treeWidth(person), 2000);
    person.moveMouse(width - leastPane, true);
    EXPECT_EQ(treeWidth(person), width - leastPane);
  });
}

TEST_F(EditorSplitter, WithoutAButtonOnlyThePointerChanges) {
  drag([](Person& person) {
    person.moveMouse(3050);
    EXPECT_EQ(pointer(person), MousePointer::SizeWestEast);
    EXPECT_EQ(treeWidth(person), 3000);
    EXPECT_EQ(person.the<Widget>(u"PProperty").left(), 3060);
  });
}

TEST_F(EditorSplitter, OutsideTheLimitsThePointerStaysAsItIs) {
  drag([](Person& person) {
    person.moveMouse(3050);
    person.moveMouse(1999);
    EXPECT_EQ(pointer(person), MousePointer::SizeWestEast);
  });
}

TEST_F(EditorSplitter, DraggingMovesEverythingToTheUnit) {
  drag([](Person& person) {
    person.moveMouse(3505, true);
    const auto left = [&](TextView name, std::int32_t index = -1) {
      return person.the<Widget>(name, index).left();
    };
    const auto size = [&](TextView name, std::int32_t index = -1) {
      return person.the<Widget>(name, index).width();
    };
    EXPECT_EQ(size(u"TV"), 3505);
    EXPECT_EQ(left(u"PProperty"), 3565);
    EXPECT_EQ(size(u"PProperty"), 8435);
    EXPECT_EQ(size(u"FrControl"), 8195);
    EXPECT_EQ(size(u"FrMessage"), 8195);
    for (std::int32_t i = 0; i < 6; ++i) {
      EXPECT_EQ(size(u"tbTradCtrl", i), 5855);
      EXPECT_EQ(size(u"sldLeft", i), 2645);
      EXPECT_EQ(left(u"sldLeft", i), 2100);
      EXPECT_EQ(left(u"sldwidth", i), 5310);
      EXPECT_EQ(size(u"sldwidth", i), 2645);
      EXPECT_EQ(left(u"bw1", i), 5075);
      EXPECT_EQ(left(u"bl1", i), 4725);
      EXPECT_EQ(size(u"tbTradMessage", i), 7355);
      EXPECT_EQ(left(u"tbTradMessage", i), 720);
    }
  });
}

TEST_F(EditorSplitter, ThePaneMovesByWholeUnits) {
  drag([](Person& person) {
    person.moveMouse(3500.25, true);
    EXPECT_EQ(treeWidth(person), 3500.25);
    EXPECT_EQ(person.the<Widget>(u"PProperty").left(), 3560);
    EXPECT_EQ(person.the<Widget>(u"PProperty").width(), 8440);
  });
}

TEST_F(EditorSplitter, DraggingThereAndBackLeavesThePanesAsTheyWere) {
  drag([](Person& person) {
    person.moveMouse(5000, true);
    person.moveMouse(3000, true);
    EXPECT_EQ(person.the<Widget>(u"PProperty").left(), 3060);
    EXPECT_EQ(person.the<Widget>(u"PProperty").width(), 8940);
  });
}

TEST_F(EditorSplitter, ThePointerGoesBackOverTheTree) {
  drag([](Person& person) {
    person.moveMouse(3050);
    person.moveMouseOver(u"TV");
    EXPECT_EQ(pointer(person), MousePointer::Default);
  });
}

TEST_F(EditorSplitter, ThePointerGoesBackOverThePane) {
  drag([](Person& person) {
    person.moveMouse(3050);
    person.moveMouseOver(u"PProperty");
    EXPECT_EQ(pointer(person), MousePointer::Default);
  });
}

TEST_F(EditorSplitter, ThePointerGoesBackWhenTheFocusIsLost) {
  drag([](Person& person) {
    person.moveMouse(3050);
    person.the<PictureBox>(u"pConteneur").personLeft();
    EXPECT_EQ(pointer(person), MousePointer::Default);
  });
}

}  // namespace

}  // namespace kob::testing
