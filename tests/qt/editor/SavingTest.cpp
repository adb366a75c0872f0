// SPDX-FileCopyrightText: The KOBTraduction authors
#include "Desk.h"

#include <QFileDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QTemporaryDir>

namespace kob::qt::testing {
namespace {

struct EditorSaving : EditorOnScreen {
  EditorSaving() { QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs); }

  QString inFolder(const char* name) const { return folder.filePath(QLatin1String(name)); }
  /// Types a name into the save dialog.
  void saveAs(const Window& window, const QString& name) {
    answer([name](const Window& dialog) {
      auto& typed = dialog.the<QLineEdit>("fileNameEdit");
      typed.setText(name);
      QTest::keyClick(&typed, Qt::Key_Return);
    });
    window.key(Qt::Key_S, Qt::ControlModifier | Qt::ShiftModifier);
  }

  QTemporaryDir folder;
  CellRef cell = message(app, u"M", {u"Oui", u"", u"", u"", u"", u""});
};

TEST_F(EditorSaving, TheSaveDialogOffersTranslationFiles) {
  model.setFichier(toText(inFolder("a.trad")));
  edit(u"", [this](const Window& window) {
    answer([](const Window& dialog) {
      auto* const file = qobject_cast<QFileDialog*>(&dialog.widget());
      ASSERT_NE(file, nullptr);
      EXPECT_EQ(file->nameFilters(), QStringList{QStringLiteral("Fichiers Traductions(*.trad)")});
      EXPECT_EQ(file->acceptMode(), QFileDialog::AcceptSave);
      EXPECT_EQ(dialog.text("fileNameEdit"), QStringLiteral("a.trad"));
    });
    window.key(Qt::Key_S, Qt::ControlModifier | Qt::ShiftModifier);
  });
}

TEST_F(EditorSaving, AModelWithoutAFileIsSavedUnderTheChosenName) {
  edit(u"App\\M", [this](const Window& window) {
    window.type("tbTradMessage(1)", QStringLiteral("Yes"));
    answer([this](const Window& dialog) {
      auto& typed = dialog.the<QLineEdit>("fileNameEdit");
      typed.setText(inFolder("b"));
      QTest::keyClick(&typed, Qt::Key_Return);
    });
    window.key(Qt::Key_S, Qt::ControlModifier);
    EXPECT_FALSE(window.widget().isWindowModified());
    EXPECT_EQ(window.widget().windowTitle(), QStringLiteral("Traduction - %1[*]").arg(inFolder("b.trad")));
  });
  EXPECT_EQ(toQString(model.Fichier()), inFolder("b.trad"));
  KOBModeleTraduction loaded;
  ASSERT_TRUE(loaded.Load(toText(inFolder("b.trad"))));
  EXPECT_EQ(loaded.GetTraduction(u"App\\M", 2), u"Yes");
}

TEST_F(EditorSaving, SaveWritesTheFileThatIsThereWithoutAsking) {
  model.setFichier(toText(inFolder("c.trad")));
  edit(u"App\\M", [](const Window& window) {
    window.type("tbTradMessage(1)", QStringLiteral("Yes"));
    window.key(Qt::Key_S, Qt::ControlModifier);
    EXPECT_FALSE(window.widget().isWindowModified());
  });
  EXPECT_TRUE(QFile::exists(inFolder("c.trad")));
  EXPECT_EQ(desk.opened().size(), 1);
}

TEST_F(EditorSaving, ClosingSavesNothingAndAsksNothing) {
  model.setFichier(toText(inFolder("d.trad")));
  edit(u"App\\M", [](const Window& window) { window.type("tbTradMessage(1)", QStringLiteral("Yes")); });
  EXPECT_FALSE(QFile::exists(inFolder("d.trad")));
  EXPECT_EQ(desk.opened().size(), 1);
  EXPECT_EQ(model.GetTraduction(u"App\\M", 2), u"Yes");
}

TEST_F(EditorSaving, CancellingSaveAsChangesNothing) {
  edit(u"App\\M", [this](const Window& window) {
    answer([](const Window& dialog) { QTest::keyClick(&dialog.widget(), Qt::Key_Escape); });
    window.key(Qt::Key_S, Qt::ControlModifier | Qt::ShiftModifier);
  });
  EXPECT_TRUE(model.Fichier().empty());
}

TEST_F(EditorSaving, AFailedSaveSaysWhyAndKeepsEverything) {
  model.setFichier(toText(inFolder("missing/e.trad")));
  edit(u"App\\M", [this](const Window& window) {
    window.type("tbTradMessage(1)", QStringLiteral("Yes"));
    answer([](const Window& box) {
      const auto* const told = qobject_cast<QMessageBox*>(&box.widget());
      ASSERT_NE(told, nullptr);
      EXPECT_EQ(told->windowTitle(), QStringLiteral("KOBCN"));
      EXPECT_FALSE(told->text().isEmpty());
    });
    window.key(Qt::Key_S, Qt::ControlModifier);
    EXPECT_TRUE(window.widget().isWindowModified());
    EXPECT_EQ(window.text("tbTradMessage(1)"), QStringLiteral("Yes"));
  });
}

}  // namespace
}  // namespace kob::qt::testing
