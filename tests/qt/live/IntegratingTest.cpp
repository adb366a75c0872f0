// SPDX-FileCopyrightText: The KOBTraduction authors
// The guide's examples, as they stand there.
#include "IntegratingSnippets.h"
#include "LiveForms.h"
#include "LiveModel.h"

#include <QTemporaryDir>
#include <QTemporaryFile>
#include <QTimer>

#include <gmock/gmock.h>

namespace kob::qt::live {
namespace {

struct Integrating : testing::Test {
  KOBModeleTraduction model;
  RecordedBoxes recorded;
  ClientDialog form;
};

TEST_F(Integrating, HarvestFillAndMakeRoom) {
  harvest(model, form);
  fillEnglish(model);
  makeRoomInGerman(model);
  LanguageSwitcher switcher(model);
  switcher.addForm(&form);
  switcher.setLanguage(2);
  EXPECT_EQ(form.windowTitle(), QStringLiteral("Customers"));
  EXPECT_EQ(form.btnOk->text(), QStringLiteral("&Accept"));
  EXPECT_EQ(form.btnOk->toolTip(), QStringLiteral("Stores the customer"));
  switcher.setLanguage(3);
  EXPECT_EQ(form.btnOk->geometry(), QRect(270, 260, 105, 30));
  EXPECT_EQ(form.width(), 440);
}

TEST_F(Integrating, SettingATextThatWasNotHarvestedFails) {
  harvest(model, form);
  EXPECT_TRUE(setText(model, u"FrmClients\\btnOk", u"caption", 2, QStringLiteral("x")));
  EXPECT_FALSE(setText(model, u"FrmClients\\unknown", u"Caption", 2, QStringLiteral("x")));
  EXPECT_FALSE(setText(model, u"FrmClients\\lblNom", u"ToolTip", 2, QStringLiteral("x")));
}

TEST_F(Integrating, AFileIsMadeAndAddedTo) {
  const QTemporaryDir folder;
  const QString file = folder.filePath(QStringLiteral("app.trad"));
  ASSERT_TRUE(harvestIntoFile(form, file));
  ASSERT_TRUE(model.Load(toText(file)));
  fillEnglish(model);
  ASSERT_TRUE(model.Save(toText(file)));
  form.lblNom->setText(QStringLiteral("Nom de famille"));
  ASSERT_TRUE(harvestIntoFile(form, file));
  ASSERT_TRUE(model.Load(toText(file)));
  EXPECT_EQ(model.GetCell(u"FrmClients\\btnOk")->ColTraduction()->Item(1)->ColTraduction()->Item(2),
            u"&Accept");
  EXPECT_EQ(model.GetCell(u"FrmClients\\lblNom")->ColTraduction()->Item(1)->ColTraduction()->Item(1),
            u"Nom de famille");
}

TEST_F(Integrating, AFileThatIsNoTranslationFileStaysAsItIs) {
  QTemporaryFile file;
  ASSERT_TRUE(file.open());
  file.write("Bonjour");
  file.close();
  EXPECT_FALSE(harvestIntoFile(form, file.fileName()));
  EXPECT_EQ(recorded.notices.size(), 1);
  ASSERT_TRUE(file.open());
  EXPECT_EQ(file.readAll(), QByteArray("Bonjour"));
}

TEST_F(Integrating, Parts) {
  harvestParts(model, form, *form.cadre, *form.lblNom);
  EXPECT_NE(model.GetCell(u"Orders\\FrmClients\\btnOk"), nullptr);
  EXPECT_NE(model.GetCell(u"FrmClients\\cadre\\lblRue"), nullptr);
  EXPECT_TRUE(recorded.notices.empty());
}

TEST_F(Integrating, AContext) {
  harvest(model, form);
  form.btnOk->setText(QStringLiteral("Vendre"));
  useAsSaleButton(*form.btnOk);
  harvest(model, form);
  EXPECT_THAT(print(model), testing::HasSubstr("Sale [context] Caption \"Vendre\""));
}

TEST_F(Integrating, AMarkedLanguage) {
  harvest(model, form);
  model.UpdateTestLangue(6);
  model.TraduitDialog(hostForm(&form), 6);
  EXPECT_EQ(form.lblNom->text(), QStringLiteral("** Nom **"));
}

TEST_F(Integrating, ChoosingALanguageAndFollowingIt) {
  harvest(model, form);
  fillEnglish(model);
  LanguageSwitcher switcher(model);
  QComboBox choice;
  choice.addItems({QStringLiteral("Français"), QStringLiteral("English")});
  QString greeting;
  QObject owner;
  runInLanguages(switcher, choice);
  followLanguage(model, switcher, owner, greeting);
  form.show();
  choice.setCurrentIndex(1);
  EXPECT_EQ(form.btnOk->text(), QStringLiteral("&Accept"));
  EXPECT_EQ(greeting, QStringLiteral("Good morning"));
  choice.setCurrentIndex(0);
  EXPECT_EQ(greeting, QStringLiteral("Bonjour"));
}

TEST_F(Integrating, Running) {
  QTimer::singleShot(0, qApp, [] { QApplication::exit(7); });
  EXPECT_EQ(runApplication(static_cast<QApplication&>(*qApp)), 7);
}

}  // namespace
}  // namespace kob::qt::live
