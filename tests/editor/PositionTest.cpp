// SPDX-FileCopyrightText: The KOBTraduction authors
#include "EditorTest.h"

#include <limits>

namespace kob::testing {

namespace {

class EditorPosition : public EditorTest {
 protected:
  EditorPosition() { positioned(1, 1); }
  void positioned(std::int32_t left, std::int32_t width) {
    cell->setm_left(left);
    cell->setm_width(width);
  }
  Factors lefts() const { return factors(*cell->ColLeft()); }
  Factors widths() const { return factors(*cell->ColWidth()); }

  CellRef cell = control(app, u"c", {caption(u"Oui")});
};

TEST_F(EditorPosition, FactorsShowAsHundredths) {
  cell->ChangeLeft(1.15, 2);
  cell->ChangeWidth(0.5, 6);
  edit(u"App\\c", [](Person& person) {
    EXPECT_TRUE(person.isChecked(u"chkPosition"));
    EXPECT_EQ(person.value(u"sldLeft", 0), 100);
    EXPECT_EQ(person.value(u"sldLeft", 1), 115);
    EXPECT_EQ(person.value(u"sldwidth", 5), 50);
    EXPECT_TRUE(person.sees(u"sldLeft", 5) && person.sees(u"sldwidth", 5));
  });
}

TEST_F(EditorPosition, SlidersGoFromTenToFourHundred) {
  edit(u"App\\c", [](Person& person) {
    EXPECT_EQ(person.the<ScriptedSlider>(u"sldLeft", 0).shownRange, std::pair(10, 400));
    EXPECT_EQ(person.the<ScriptedSlider>(u"sldwidth", 5).shownRange, std::pair(10, 400));
  });
}

TEST_F(EditorPosition, EveryValueOfASliderComesBack) {
  edit(u"App\\c", [](Person& person) {
    for (std::int32_t value = 10; value <= 400; ++value) {
      person.move(u"sldLeft", 0, value);
      person.clickTag(u"App\\c");
      ASSERT_EQ(person.value(u"sldLeft", 0), value);
    }
  });
}

TEST_F(EditorPosition, AFactorOutsideTheSliderShowsAtItsEndAndStays) {
  cell->ChangeLeft(0.01, 1);
  cell->ChangeLeft(1e300, 2);
  cell->ChangeLeft(-1e300, 3);
  edit(u"App\\c", [](Person& person) {
    EXPECT_EQ(person.value(u"sldLeft", 0), 10);
    EXPECT_EQ(person.value(u"sldLeft", 1), 400);
    EXPECT_EQ(person.value(u"sldLeft", 2), 10);
    person.clickTag(u"App\\c");
  });
  EXPECT_THAT(lefts(), ElementsAre(0.01, 1e300, -1e300, 1, 1, 1));
}

TEST_F(EditorPosition, MovingASliderWritesItsFactor) {
  edit(u"App\\c", [](Person& person) {
    person.move(u"sldLeft", 1, 150);
    person.move(u"sldwidth", 5, 75);
  });
  EXPECT_THAT(lefts(), ElementsAre(1, 1.5, 1, 1, 1, 1));
  EXPECT_THAT(widths(), ElementsAre(1, 1, 1, 1, 1, 0.75));
}

TEST_F(EditorPosition, ShowingAControlWritesNoFactor) {
  cell->ChangeLeft(1.5, 1);
  control(app, u"d", {})->ChangeLeft(2.5, 1);
  edit(u"App\\c", [](Person& person) {
    person.clickTag(u"App\\d");
    person.clickTag(u"App\\c");
  });
  EXPECT_THAT(lefts(), ElementsAre(1.5, 1, 1, 1, 1, 1));
  EXPECT_FALSE(cell->ColLeft()->Item(2).isDouble());
}

TEST_F(EditorPosition, ResettingSetsExactlyOneAndTheSliderToAHundred) {
  cell->ChangeLeft(1.5, 3);
  edit(u"App\\c", [this](Person& person) {
    person.press(u"bl1", 2);
    EXPECT_EQ(person.value(u"sldLeft", 2), 100);
    EXPECT_TRUE(cell->ColLeft()->Item(3).isDouble());
  });
  EXPECT_THAT(lefts(), ElementsAre(1, 1, 1, 1, 1, 1));
}

TEST_F(EditorPosition, ResettingTheWidthLeavesTheLeft) {
  cell->ChangeLeft(1.5, 3);
  cell->ChangeWidth(1.5, 3);
  edit(u"App\\c", [](Person& person) {
    person.press(u"bw1", 2);
    EXPECT_EQ(person.value(u"sldwidth", 2), 100);
    EXPECT_EQ(person.value(u"sldLeft", 2), 150);
  });
  EXPECT_THAT(widths(), ElementsAre(1, 1, 1, 1, 1, 1));
  EXPECT_THAT(lefts(), ElementsAre(1, 1, 1.5, 1, 1, 1));
}

// Between the first writing of the factor and the change of the slider, which could write it again, the model
// gets another factor: it stays.

TEST_F(EditorPosition, ResettingTheLeftWritesItOnce) {
  cell->ChangeLeft(1.5, 3);
  edit(u"App\\c", [this](Person& person) {
    person.the<ScriptedSlider>(u"sldLeft", 2).whenShown = [this] {
      EXPECT_EQ(lefts()[2], 1);
      cell->ChangeLeft(3, 3);
    };
    person.press(u"bl1", 2);
    EXPECT_EQ(person.value(u"sldLeft", 2), 100);
  });
  EXPECT_EQ(lefts()[2], 3);
}

TEST_F(EditorPosition, ResettingTheWidthWritesItOnce) {
  cell->ChangeWidth(1.5, 3);
  edit(u"App\\c", [this](Person& person) {
    person.the<ScriptedSlider>(u"sldwidth", 2).whenShown = [this] {
      EXPECT_EQ(widths()[2], 1);
      cell->ChangeWidth(3, 3);
    };
    person.press(u"bw1", 2);
    EXPECT_EQ(person.value(u"sldwidth", 2), 100);
  });
  EXPECT_EQ(widths()[2], 3);
}

TEST_F(EditorPosition, AfterAResetTheSliderWritesAgain) {
  edit(u"App\\c", [](Person& person) {
    person.press(u"bl1", 0);
    person.move(u"sldLeft", 0, 120);
  });
  EXPECT_EQ(lefts()[0], 1.2);
}

TEST_F(EditorPosition, TheBoxIsUncheckedWhenBothAreNegative) {
  positioned(-1, -1);
  edit(u"App\\c", [](Person& person) {
    EXPECT_FALSE(person.isChecked(u"chkPosition"));
    for (std::int32_t i = 0; i < 6; ++i) {
      EXPECT_FALSE(person.sees(u"sldLeft", i) || person.sees(u"sldwidth", i));
      EXPECT_TRUE(person.sees(u"bl1", i) && person.sees(u"bw1", i));
    }
  });
}

TEST_F(EditorPosition, OnlyANegativeLeftHidesTheLeftSlidersAndLeavesTheBoxChecked) {
  positioned(-1, 1);
  edit(u"App\\c", [](Person& person) {
    EXPECT_TRUE(person.isChecked(u"chkPosition"));
    EXPECT_FALSE(person.sees(u"sldLeft", 0));
    EXPECT_TRUE(person.sees(u"sldwidth", 0));
  });
}

TEST_F(EditorPosition, OnlyANegativeWidthHidesTheWidthSliders) {
  positioned(1, -1);
  edit(u"App\\c", [](Person& person) {
    EXPECT_TRUE(person.isChecked(u"chkPosition"));
    EXPECT_TRUE(person.sees(u"sldLeft", 0));
    EXPECT_FALSE(person.sees(u"sldwidth", 0));
  });
}

TEST_F(EditorPosition, TheBoxTurnsBothSigns) {
  positioned(1, 1);
  edit(u"App\\c", [this](Person& person) {
    person.check(u"chkPosition");
    EXPECT_EQ(cell->m_left(), -1);
    EXPECT_EQ(cell->m_width(), -1);
    EXPECT_FALSE(person.isChecked(u"chkPosition") || person.sees(u"sldLeft", 0));
    person.check(u"chkPosition");
    EXPECT_EQ(cell->m_left(), 1);
    EXPECT_EQ(cell->m_width(), 1);
    EXPECT_TRUE(person.isChecked(u"chkPosition") && person.sees(u"sldLeft", 0));
  });
}

TEST_F(EditorPosition, UnequalSignsAreBothTurnedAndTheBoxStaysChecked) {
  positioned(-1, 1);
  edit(u"App\\c", [this](Person& person) {
    person.check(u"chkPosition");
    EXPECT_EQ(cell->m_left(), 1);
    EXPECT_EQ(cell->m_width(), -1);
    EXPECT_TRUE(person.isChecked(u"chkPosition"));
    EXPECT_TRUE(person.sees(u"sldLeft", 0));
    EXPECT_FALSE(person.sees(u"sldwidth", 0));
  });
}

TEST_F(EditorPosition, ZerosStayZeroAndTheBoxChecked) {
  positioned(0, 0);
  edit(u"App\\c", [this](Person& person) {
    EXPECT_TRUE(person.isChecked(u"chkPosition"));
    person.check(u"chkPosition");
    EXPECT_EQ(cell->m_left(), 0);
    EXPECT_EQ(cell->m_width(), 0);
    EXPECT_TRUE(person.isChecked(u"chkPosition"));
    EXPECT_TRUE(person.the<ScriptedCheckBox>(u"chkPosition").isShownChecked);
  });
}

TEST_F(EditorPosition, TheSmallestIndicatorHasNoOppositeAndStays) {
  positioned(std::numeric_limits<std::int32_t>::min(), 1);
  edit(u"App\\c", [](Person& person) { person.check(u"chkPosition"); });
  EXPECT_EQ(cell->m_left(), std::numeric_limits<std::int32_t>::min());
  EXPECT_EQ(cell->m_width(), -1);
}

TEST_F(EditorPosition, AfterTheBoxWasClickedEditsAreRecorded) {
  edit(u"App\\c", [](Person& person) {
    person.check(u"chkPosition");
    person.type(u"tbNom", u"renamed");
  });
  EXPECT_EQ(cell->nom(), u"renamed");
}

TEST_F(EditorPosition, ASliderThatIsLeftOverFromACellThatIsGoneEndsShow) {
  EXPECT_EQ(failureOf([this] {
              edit(u"App\\c", [](Person& person) {
                person.type(u"tbNom", u"renamed");
                person.clickTag(u"App\\c");
                person.move(u"sldLeft", 0, 120);
              });
            }),
            FailureKind::ObjectNotSet);
}

TEST_F(EditorPosition, AResetButtonThatIsLeftOverEndsShow) {
  EXPECT_EQ(failureOf([this] {
              edit(u"App\\c", [](Person& person) {
                person.type(u"tbNom", u"renamed");
                person.clickTag(u"App\\c");
                person.press(u"bw1", 0);
              });
            }),
            FailureKind::ObjectNotSet);
}

TEST_F(EditorPosition, AFactorListTooShortForTheSlidersEndsShow) {
  cell->ColWidth()->Remove(6);
  EXPECT_EQ(failureOf([this] { model.Show(full, u"App\\c"); }), FailureKind::InvalidIndex);
}

}  // namespace

}  // namespace kob::testing
