// SPDX-FileCopyrightText: The KOBTraduction authors
#include "Desk.h"
#include "tests/editor/SampleModel.h"

#include <QFileDialog>
#include <QMessageBox>
#include <QProcess>
#include <QSlider>
#include <QSplitter>
#include <QStandardPaths>
#include <QTemporaryDir>

namespace kob::qt::testing {
namespace {

QString number(int value) {
  return QString::number(value);
}

/// A keyboard and a mouse whose events come from the window system.
class Hands {
 public:
  explicit Hands(const Window& window) : window_(window.widget()) {
    // As a window manager would.
    run({QStringLiteral("windowfocus"), QStringLiteral("--sync"), QString::number(window_.winId())});
    EXPECT_TRUE(QTest::qWaitForWindowActive(&window_));
  }

  static void keys(const QStringList& names) { run(QStringList(QStringLiteral("key")) + names); }
  static void type(const QString& text) {
    run({QStringLiteral("type"), QStringLiteral("--delay"), QStringLiteral("2"), text});
  }
  static void click(const QWidget& widget, QPoint place) {
    move(widget, place);
    run({QStringLiteral("click"), QStringLiteral("1")});
  }
  static void click(const QWidget& widget) { click(widget, widget.rect().center()); }
  static void clickItem(const QAbstractItemView& view, const QModelIndex& index) {
    click(*view.viewport(), view.visualRect(index).center());
  }
  static void drag(const QWidget& widget, QPoint from, QPoint to) {
    move(widget, from);
    run({QStringLiteral("mousedown"), QStringLiteral("1")});
    const QPoint end = widget.mapToGlobal(to);
    // On the way first, as a hand does.
    run({QStringLiteral("mousemove"), number((widget.mapToGlobal(from).x() + end.x()) / 2), number(end.y())});
    run({QStringLiteral("mousemove"), number(end.x()), number(end.y())});
    run({QStringLiteral("mouseup"), QStringLiteral("1")});
  }

 private:
  static void move(const QWidget& widget, QPoint place) {
    const QPoint there = widget.mapToGlobal(place);
    run({QStringLiteral("mousemove"), number(there.x()), number(there.y())});
  }
  static void run(const QStringList& arguments) {
    QProcess hand;
    hand.start(QStringLiteral("xdotool"), arguments);
    EXPECT_TRUE(hand.waitForFinished());
    // The events are on their way through the server.
    QTest::qWait(60);
  }

  QWidget& window_;
};

struct EditorOnServer : EditorOnScreen {
  void SetUp() override {
    if (QGuiApplication::platformName() != QStringLiteral("xcb")) {
      GTEST_SKIP() << "needs an X server";
    }
    if (QStandardPaths::findExecutable(QStringLiteral("xdotool")).isEmpty()) {
      GTEST_SKIP() << "needs xdotool to press keys";
    }
    QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    kob::testing::fillSample(model);
  }
};

TEST_F(EditorOnServer, ANodeIsClickedAndItsTextTyped) {
  edit(u"App\\Messages", [](const Window& window) {
    const Hands hands(window);
    Hands::clickItem(window.tree(), window.node(QStringLiteral("App\\Messages\\Total")));
    EXPECT_EQ(window.text("tbTradMessage(1)"), QStringLiteral("Total: %1"));
    Hands::click(window.the("tbTradMessage(4)"));
    Hands::type(QStringLiteral("Totale: due"));
    QTest::qWait(100);
    EXPECT_TRUE(window.widget().isWindowModified());
  });
  EXPECT_EQ(model.GetTraduction(u"App\\Messages\\Total", 5), u"Totale: due");
}

TEST_F(EditorOnServer, TheKeyboardAloneTranslates) {
  edit(u"App\\Messages\\Confirmation", [](const Window& window) {
    const Hands hands(window);
    Hands::keys({QStringLiteral("ctrl+Next"), QStringLiteral("ctrl+6")});
    Hands::type(QStringLiteral("Total"));
    Hands::keys({QStringLiteral("Return")});
    Hands::type(QStringLiteral("b"));
  });
  EXPECT_EQ(model.GetTraduction(u"App\\Messages\\Total", 6), u"Total\nb");
}

TEST_F(EditorOnServer, ANodeIsAdded) {
  edit(u"App\\FrmFacture", [this](const Window& window) {
    answer([](const Window& dialog) {
      const Hands hands(dialog);
      Hands::type(QStringLiteral("btnPayer"));
      Hands::click(dialog.the("OptTypFeuille(2)"), {8, 8});
      Hands::click(dialog.the("tb1"));
      Hands::type(QStringLiteral("Payer"));
      Hands::click(dialog.the("bOK"));
    });
    const Hands hands(window);
    Hands::click(window.the("bAdd"));
  });
  EXPECT_EQ(model.GetCell(u"App\\FrmFacture\\btnPayer")->ColTraduction()->Item(1)->ColTraduction()->Item(1),
            u"Payer");
}

TEST_F(EditorOnServer, ANodeIsDeletedWithTheLetterOfYes) {
  edit(u"App\\FrmFacture", [this](const Window& window) {
    answer([](const Window& box) {
      const Hands hands(box);
      Hands::keys({QStringLiteral("alt+y")});
      // A button that is pressed by its letter is seen down for a while.
      const QPointer<QWidget> open = &box.widget();
      EXPECT_TRUE(QTest::qWaitFor([&open] { return open.isNull() || !open->isVisible(); }));
    });
    const Hands hands(window);
    Hands::click(window.the("bSupp"));
  });
  EXPECT_EQ(model.GetCell(u"App\\FrmFacture"), nullptr);
}

TEST_F(EditorOnServer, ATranslationNameIsAdded) {
  edit(u"App\\FrmClient\\btnAnnuler", [this](const Window& window) {
    answer([](const Window& dialog) {
      const Hands hands(dialog);
      Hands::type(QStringLiteral("ToolTip"));
      Hands::keys({QStringLiteral("Return")});
    });
    const Hands hands(window);
    Hands::click(window.the("bAddTrad"));
    EXPECT_EQ(window.line("LstNomTrad"), 1);
  });
  EXPECT_EQ(model.GetCell(u"App\\FrmClient\\btnAnnuler")->ColTraduction()->Count(), 2);
}

TEST_F(EditorOnServer, AHitOfTheSearchIsClicked) {
  edit(u"", [this](const Window& window) {
    answer([](const Window& dialog) {
      const Hands hands(dialog);
      Hands::click(dialog.the("tbSearchString"));
      Hands::type(QStringLiteral("quitter"));
      Hands::keys({QStringLiteral("Return")});
      Hands::click(dialog.the("List1"), {20, 8});
      EXPECT_FALSE(dialog.widget().isVisible());
    });
    const Hands hands(window);
    Hands::keys({QStringLiteral("ctrl+f")});
    EXPECT_EQ(window.selectedNode(), QStringLiteral("App\\Messages\\Confirmation"));
  });
}

TEST_F(EditorOnServer, TheModelIsSavedThroughTheMenu) {
  const QTemporaryDir folder;
  const QString file = folder.filePath(QStringLiteral("app.trad"));
  edit(u"", [this, &file](const Window& window) {
    answer([&file](const Window& dialog) {
      const Hands hands(dialog);
      Hands::type(file);
      Hands::keys({QStringLiteral("Return")});
    });
    const Hands hands(window);
    Hands::keys({QStringLiteral("alt+f"), QStringLiteral("a")});
  });
  EXPECT_EQ(toQString(model.Fichier()), file);
  EXPECT_TRUE(QFile::exists(file));
}

TEST_F(EditorOnServer, TheStripIsDragged) {
  edit(u"App\\FrmClient\\btnEnregistrer", [](const Window& window) {
    const Hands hands(window);
    const QWidget& strip = *window.the<QSplitter>("pConteneur").handle(1);
    const QPoint from = strip.rect().center();
    const int before = window.tree().width();
    Hands::drag(strip, from, from + QPoint(120, 0));
    EXPECT_NEAR(window.tree().width(), before + 120, 10);
  });
}

TEST_F(EditorOnServer, ASliderIsDraggedAndReset) {
  edit(u"App\\FrmClient\\btnEnregistrer", [this](const Window& window) {
    const Hands hands(window);
    const QSlider& slider = *window.the("sldwidth(3)").findChild<QSlider*>();
    const CellRef cell = model.GetCell(u"App\\FrmClient\\btnEnregistrer");
    ASSERT_EQ(cell->ColWidth()->Item(4).value(), 1.25);
    Hands::click(slider, {slider.width() - 4, slider.height() / 2});
    EXPECT_EQ(cell->ColWidth()->Item(4).value(), 1.35);
    Hands::click(window.the("bw1(3)"));
    EXPECT_EQ(cell->ColWidth()->Item(4).value(), 1.0);
  });
}

}  // namespace
}  // namespace kob::qt::testing
