// SPDX-FileCopyrightText: The KOBTraduction authors
#include "Desk.h"
#include "PictureChecks.h"
#include "tests/editor/SampleModel.h"

#include <QApplication>
#include <QDir>
#include <QImage>
#include <QPalette>
#include <QPixmap>
#include <QStyleFactory>

/// A picture of every window of the editor in each of its states, looked at for what a person would find
/// wrong. KOB_PICTURES names a folder that keeps the pictures, KOB_THEME=dark a dark theme; QT_SCALE_FACTOR=2
/// is for sharp screens.
namespace kob::qt::testing {
namespace {

QPalette darkPalette() {
  const QColor window(45, 45, 48);
  const QColor base(30, 30, 32);
  const QColor text(225, 225, 225);
  QPalette dark(window);
  dark.setColor(QPalette::Window, window);
  dark.setColor(QPalette::WindowText, text);
  dark.setColor(QPalette::Base, base);
  dark.setColor(QPalette::AlternateBase, window);
  dark.setColor(QPalette::Text, text);
  dark.setColor(QPalette::Button, window);
  dark.setColor(QPalette::ButtonText, text);
  dark.setColor(QPalette::Highlight, QColor(42, 110, 180));
  dark.setColor(QPalette::HighlightedText, Qt::white);
  for (const QPalette::ColorRole role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
    dark.setColor(QPalette::Disabled, role, QColor(130, 130, 130));
  }
  return dark;
}

class EditorPictures : public ::testing::Test {
 protected:
  static void SetUpTestSuite() {
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    if (qEnvironmentVariable("KOB_THEME") == QLatin1String("dark")) {
      QApplication::setPalette(darkPalette());
    }
  }

  EditorPictures() { kob::testing::fillSample(model_); }

  static void look(const Window& window, const char* name) {
    QTest::qWait(30);
    const QImage picture = window.widget().grab().toImage();
    const QString folder = qEnvironmentVariable("KOB_PICTURES");
    if (!folder.isEmpty()) {
      EXPECT_TRUE(QDir().mkpath(folder));
      EXPECT_TRUE(picture.save(QDir(folder).filePath(QLatin1String(name) + QStringLiteral(".png"))));
    }
    for (const QString& fault : faultsOf(window.widget(), picture)) {
      ADD_FAILURE() << name << ": " << qPrintable(fault);
    }
  }
  /// The editor on a cell, after something was done in it.
  void editor(
      const char* name, std::int32_t mode, TextView path, const Script& act = [](const Window&) {}) {
    desk_.whenOpen([name, act](const Window& window) {
      act(window);
      look(window, name);
    });
    model_.Show(mode, path);
  }
  void onButton(const char* name, const Script& act) {
    editor(name, 0, u"App\\FrmClient\\btnEnregistrer", act);
  }
  /// A window that a button of the editor opens.
  void over(
      const char* name, const char* button, const Script& act = [](const Window&) {}) {
    desk_.whenOpen([this, name, button, act](const Window& window) {
      desk_.whenOpen([name, act](const Window& small) {
        act(small);
        look(small, name);
      });
      window.press(button);
    });
    model_.Show(0, u"App\\FrmClient\\btnEnregistrer");
  }

  QtWidgetSet widgets_;
  KOBModeleTraduction model_;
  Desk desk_;
};

TEST_F(EditorPictures, OfTheEditorOnEveryKindOfCell) {
  editor("empty", 0, u"");
  editor("node", 0, u"App\\FrmClient");
  editor("control", 0, u"App\\FrmClient\\btnEnregistrer");
  editor("control-without-position", 0, u"App\\FrmClient\\btnAnnuler");
  editor("context", 0, u"App\\FrmClient\\lblVille");
  editor("scripts", 0, u"App\\FrmClient\\lblArabe");
  editor("message", 0, u"App\\Messages\\Confirmation");
}

TEST_F(EditorPictures, OfTheEditorForTranslators) {
  editor("restricted-empty", 1, u"");
  editor("restricted-node", 1, u"App\\FrmClient");
  editor("restricted-control", 1, u"App\\FrmClient\\btnEnregistrer");
  editor("restricted-context", 1, u"App\\FrmClient\\lblVille");
  editor("restricted-message", 1, u"App\\Messages\\Confirmation");
}

TEST_F(EditorPictures, OfASmallAndALargeWindow) {
  onButton("small", [](const Window& window) { window.widget().resize(560, 420); });
  onButton("large", [](const Window& window) { window.widget().resize(1600, 1000); });
}

TEST_F(EditorPictures, OfTheEditorWithChangesAndWithEveryNodeUnfolded) {
  onButton("modified", [](const Window& window) { window.type("tbTradCtrl(1)", QStringLiteral("Save!")); });
  onButton("node-kinds", [](const Window& window) { window.tree().expandAll(); });
}

TEST_F(EditorPictures, OfAddingACell) {
  over("add-node-empty", "bAdd");
  over("add-node-message", "bAdd", [](const Window& window) { window.press("OptTypFeuille(1)"); });
  over("add-node-control", "bAdd", [](const Window& window) { window.press("OptTypFeuille(2)"); });
}

TEST_F(EditorPictures, OfAddingATranslationName) {
  over("add-translation", "bAddTrad");
}

TEST_F(EditorPictures, OfTheSearchAndOfTheEditorAfterAHit) {
  desk_.whenOpen([this](const Window& window) {
    desk_.whenOpen([](const Window& search) {
      look(search, "search-empty");
      search.type("tbSearchString", QStringLiteral("r"));
      search.press("bNewSearch");
      look(search, "search");
      search.clickLine("List1", 0);
    });
    window.key(Qt::Key_F, Qt::ControlModifier);
    look(window, "after-search");
  });
  model_.Show(0, u"");
}

/// What is looked for is found: otherwise a picture without faults would mean nothing.
class PictureFaults : public EditorPictures {
 protected:
  void spoil(const char* fault, const Script& how) {
    desk_.whenOpen([=](const Window& window) {
      how(window);
      QTest::qWait(30);
      const QString found =
          faultsOf(window.widget(), window.widget().grab().toImage()).join(QLatin1Char('\n'));
      EXPECT_TRUE(found.contains(QLatin1String(fault))) << qPrintable(found);
    });
    model_.Show(0, u"App\\FrmClient\\btnEnregistrer");
  }
};

TEST_F(PictureFaults, ACutButtonIsFound) {
  spoil("bAdd (QPushButton) needs", [](const Window& window) { window.the("bAdd").setFixedWidth(40); });
}

TEST_F(PictureFaults, AWidgetBeyondItsParentIsFound) {
  spoil("chkContexte (QCheckBox) sticks out", [](const Window& window) {
    QTest::qWait(30);
    window.the("chkContexte").move(-20, 0);
  });
}

TEST_F(PictureFaults, OverlappingWidgetsAreFound) {
  spoil("overlaps", [](const Window& window) {
    QTest::qWait(30);
    window.the("bSupp").move(window.the("bAdd").pos() + QPoint(5, 0));
  });
}

TEST_F(PictureFaults, ATextLikeItsGroundIsFound) {
  spoil("tbNom (QLineEdit): a text with a contrast of", [](const Window& window) {
    QPalette palette = window.the("tbNom").palette();
    palette.setColor(QPalette::Text, palette.color(QPalette::Base));
    window.the("tbNom").setPalette(palette);
  });
}

TEST_F(PictureFaults, ABlankPictureIsFound) {
  QWidget window;
  window.resize(200, 200);
  EXPECT_EQ(faultsOf(window, window.grab().toImage()), QStringList{QStringLiteral("the picture is blank")});
}

}  // namespace
}  // namespace kob::qt::testing
