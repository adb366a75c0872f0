// SPDX-FileCopyrightText: The KOBTraduction authors
#include "Desk.h"

#include <QCheckBox>
#include <QLabel>
#include <QSlider>
#include <QSplitter>
#include <QWheelEvent>

namespace kob::qt::testing {
namespace {

constexpr int unitsPerPixel = 15;
constexpr int leastTree = 2000 / unitsPerPixel + 1;
constexpr int leastPane = 4100 / unitsPerPixel + 1;

struct EditorPosition : EditorOnScreen {
  EditorPosition() {
    cell->setm_left(1);
    cell->setm_width(1);
  }
  static QSlider& slider(const Window& window, const char* name) {
    return *window.the(name).findChild<QSlider*>();
  }
  static QSplitterHandle& strip(const Window& window) {
    return *window.the<QSplitter>("pConteneur").handle(1);
  }
  /// Presses on the strip, and moves it to that distance from the left edge.
  static void drag(const Window& window, int x) {
    auto& handle = strip(window);
    const int y = handle.height() / 2;
    const auto at = [&](int place) { return handle.mapFrom(&window.the("pConteneur"), QPoint(place, y)); };
    QTest::mousePress(&handle, Qt::LeftButton, {}, QPoint(1, y));
    const QPoint place = at(x);
    QMouseEvent move(QEvent::MouseMove, place, handle.mapToGlobal(place), Qt::NoButton, Qt::LeftButton, {});
    QApplication::sendEvent(&handle, &move);
    QTest::mouseRelease(&handle, Qt::LeftButton, {}, at(x));
  }

  CellRef cell = control(app, u"C", {entry(u"Caption", {u"Bien", u"", u"", u"", u"", u""})});
};

TEST_F(EditorPosition, ASliderWritesItsFactor) {
  edit(u"App\\C", [this](const Window& window) {
    slider(window, "sldLeft(2)").setFocus();
    window.key(Qt::Key_Right);
    EXPECT_EQ(factors(*cell->ColLeft()), (Factors{1, 1, 1.01, 1, 1, 1}));
    slider(window, "sldwidth(0)").setFocus();
    window.key(Qt::Key_PageUp);
    EXPECT_EQ(factors(*cell->ColWidth()), (Factors{1.1, 1, 1, 1, 1, 1}));
  });
}

TEST_F(EditorPosition, ResettingBringsTheFactorAndTheSliderBack) {
  cell->ChangeLeft(1.5, 3);
  edit(u"App\\C", [this](const Window& window) {
    EXPECT_EQ(slider(window, "sldLeft(2)").value(), 150);
    window.press("bl1(2)");
    EXPECT_EQ(slider(window, "sldLeft(2)").value(), 100);
    EXPECT_EQ(cell->ColLeft()->Item(3).value(), 1.0);
  });
}

TEST_F(EditorPosition, AFactorBeyondTheSliderIsShownAtItsEndAndStays) {
  cell->ChangeWidth(9, 1);
  edit(u"App\\C", [this](const Window& window) {
    EXPECT_EQ(slider(window, "sldwidth(0)").value(), 400);
    EXPECT_EQ(cell->ColWidth()->Item(1).value(), 9.0);
    EXPECT_FALSE(window.widget().isWindowModified());
  });
}

TEST_F(EditorPosition, SwitchingThePositionOffHidesTheSliders) {
  edit(u"App\\C", [this](const Window& window) {
    EXPECT_TRUE(window.the<QCheckBox>("chkPosition").isChecked());
    window.press("chkPosition");
    EXPECT_FALSE(window.the<QCheckBox>("chkPosition").isChecked());
    EXPECT_FALSE(window.sees("sldLeft(0)"));
    EXPECT_FALSE(window.sees("sldwidth(5)"));
    EXPECT_EQ(cell->m_left(), -1);
    EXPECT_EQ(cell->m_width(), -1);
  });
}

TEST_F(EditorPosition, ABoxThatHasNoOppositeStaysChecked) {
  cell->setm_left(0);
  cell->setm_width(0);
  edit(u"App\\C", [](const Window& window) {
    window.press("chkPosition");
    EXPECT_TRUE(window.the<QCheckBox>("chkPosition").isChecked());
    EXPECT_TRUE(window.sees("sldLeft(0)"));
  });
}

TEST_F(EditorPosition, OnlyTheLeftSlidersAreHiddenWhenOnlyLeftIsOff) {
  cell->setm_left(-1);
  edit(u"App\\C", [](const Window& window) {
    EXPECT_TRUE(window.the<QCheckBox>("chkPosition").isChecked());
    EXPECT_FALSE(window.sees("sldLeft(0)"));
    EXPECT_TRUE(window.sees("sldwidth(0)"));
  });
}

TEST_F(EditorPosition, TheWheelScrollsPastASliderThatHasNoFocus) {
  edit(u"App\\C", [](const Window& window) {
    auto& slid = slider(window, "sldLeft(0)");
    const QPointF centre = slid.rect().center();
    QWheelEvent turn(centre, slid.mapToGlobal(centre), {}, {0, 120}, Qt::NoButton, {}, Qt::NoScrollPhase,
                     false);
    QApplication::sendEvent(&slid, &turn);
    EXPECT_EQ(slid.value(), 100);
  });
}

TEST_F(EditorPosition, SlidersAreCalledAfterWhatTheyDo) {
  edit(u"App\\C", [](const Window& window) {
    EXPECT_EQ(slider(window, "sldLeft(1)").accessibleName(), QStringLiteral("Left – English"));
    EXPECT_EQ(window.the("bw1(5)").accessibleName(), QStringLiteral("1 – Width – Español"));
  });
}

TEST_F(EditorPosition, DraggingTheStripMovesThePanes) {
  edit(u"App\\C", [](const Window& window) {
    drag(window, 400);
    EXPECT_EQ(window.tree().width(), 400);
    EXPECT_FALSE(window.widget().isWindowModified());
  });
}

TEST_F(EditorPosition, TheTreeKeepsItsLeastWidth) {
  edit(u"App\\C", [](const Window& window) {
    drag(window, leastTree);
    EXPECT_EQ(window.tree().width(), leastTree);
    drag(window, leastTree - 1);
    EXPECT_EQ(window.tree().width(), leastTree);
  });
}

TEST_F(EditorPosition, ThePaneKeepsItsLeastWidth) {
  edit(u"App\\C", [](const Window& window) {
    const int most = window.the("pConteneur").width() - leastPane;
    drag(window, most);
    EXPECT_EQ(window.tree().width(), most);
    drag(window, most + 1);
    EXPECT_EQ(window.tree().width(), most);
  });
}

TEST_F(EditorPosition, TheArrowKeysMoveTheStrip) {
  edit(u"App\\C", [](const Window& window) {
    const int before = window.tree().width();
    strip(window).setFocus();
    window.key(Qt::Key_Right);
    EXPECT_GT(window.tree().width(), before);
    window.key(Qt::Key_Left);
    EXPECT_EQ(window.tree().width(), before);
  });
}

TEST_F(EditorPosition, OverTheStripTheMouseTellsThatItCanBeMoved) {
  edit(u"App\\C", [](const Window& window) {
    QTest::mouseMove(&strip(window), {2, 50});
    QTest::qWait(10);
    EXPECT_EQ(strip(window).cursor().shape(), Qt::SplitHCursor);
    QMouseEvent move(QEvent::MouseMove, QPointF(5, 5), window.tree().mapToGlobal(QPointF(5, 5)), Qt::NoButton,
                     Qt::NoButton, {});
    QApplication::sendEvent(window.tree().viewport(), &move);
    EXPECT_EQ(strip(window).cursor().shape(), Qt::ArrowCursor);
  });
}

TEST_F(EditorPosition, ALargerWindowKeepsTheStripUsable) {
  edit(u"App\\C", [](const Window& window) {
    window.widget().resize(1600, 900);
    QTest::qWait(20);
    drag(window, 900);
    EXPECT_EQ(window.tree().width(), 900);
  });
}

}  // namespace
}  // namespace kob::qt::testing
