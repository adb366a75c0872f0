// SPDX-FileCopyrightText: The KOBTraduction authors
#include "DemoForms.h"

#include <gmock/gmock.h>

#include <QFile>
#include <QTemporaryDir>

namespace kob::demo {

using namespace Qt::StringLiterals;

namespace {

using Filling = DemoForms;

QByteArray contents(const QString& name) {
  QFile file(QStringLiteral(KOB_DEMO_TEXTS) + u'/' + name);
  return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

TextTable tableWithout(const QByteArray& french) {
  TextTable table;
  for (const QString& name :
       {u"loan.txt"_s, u"main.txt"_s, u"member.txt"_s, u"messages.txt"_s, u"pages.txt"_s}) {
    QByteArray file = contents(name);
    const qsizetype begin = file.indexOf("fr: " + french + "\n");
    if (begin >= 0) {
      const qsizetype end = file.indexOf("\n\n", begin);
      file.remove(begin, (end < 0 ? file.size() : end) - begin);
    }
    table.readTexts(file, name);
  }
  return table;
}

TEST_F(Filling, EveryRecordedTextIsTranslatedAndNoTranslationIsLeftOver) {
  EXPECT_EQ(filled_.errors, QStringList());
  EXPECT_GT(harvested_.references, 100);
  EXPECT_EQ(filled_.references, harvested_.references);
  EXPECT_EQ(filled_.texts, 5 * harvested_.references);
}

TEST_F(Filling, ATextThatTheTableLacksIsNamedWithItsControl) {
  TextTable table = tableWithout("Caution versée");
  EXPECT_EQ(fill(demo_.model(), table).errors,
            QStringList(u"the table lacks \"Caution versée\" (DlgPret\\lblCaution, Caption)"_s));
}

TEST_F(Filling, ATextThatNoFormShowsIsNamed) {
  TextTable table = TextTable::builtIn();
  table.readTexts("fr: Hier\nen: Yesterday\nnl: Gisteren\nde: Gestern\nit: Ieri\nes: Ayer\n", u"more.txt"_s);
  EXPECT_EQ(fill(demo_.model(), table).errors,
            QStringList(u"the table has a text that no form shows: \"Hier\""_s));
}

TEST_F(Filling, AFactorForWhatIsNotRecordedIsNamed) {
  TextTable table = TextTable::builtIn();
  table.readFactors("DlgPret\\lblInconnu width 1 1 2 1 1\n", u"more.txt"_s);
  EXPECT_EQ(fill(demo_.model(), table).errors,
            QStringList(u"the table has factors for a control that is not recorded: DlgPret\\lblInconnu"_s));
}

TEST_F(Filling, GapsAreFilledAndWhatWasThereStays) {
  KOBModeleTraduction& model = demo_.model();
  const std::shared_ptr<KOBCellTraduction> dialog = model.GetCell(u"DlgPret");
  KOBTraductionObj& title = *dialog->ColTraduction()->Item(1);
  const Text german(title.ColTraduction()->Item(German));
  title.ChangeTraduction(u"Borrowing", English);
  title.ChangeTraduction(u"", German);
  dialog->ChangeWidth(3, German);
  TextTable table = TextTable::builtIn();
  const Filled filled = fill(model, table, Fill::Gaps);
  EXPECT_EQ(filled.errors, QStringList());
  EXPECT_EQ(filled.texts, 1);
  EXPECT_EQ(title.ColTraduction()->Item(English), u"Borrowing");
  EXPECT_EQ(title.ColTraduction()->Item(German), german);
  EXPECT_EQ(dialog->ColWidth()->Item(German).value(), 3);
}

TEST_F(Filling, ATextThatIsCompleteNeedsNoTable) {
  TextTable table = tableWithout("Caution versée");
  EXPECT_EQ(fill(demo_.model(), table, Fill::Gaps).errors, QStringList());
}

TEST_F(Filling, AFileOfFewerLanguagesAndMessagesIsCompleted) {
  const QTemporaryDir folder;
  const QString file = folder.filePath(u"old.trad"_s);
  {
    KOBModeleTraduction old;
    Global_Util::setNbLangues(3);
    old.Racine()->AddNoeuds(u"Messages")->AddMessage(u"ColNom", u"Nom");
    ASSERT_TRUE(old.Save(qt::toText(file)));
  }
  Demo demo;
  ASSERT_TRUE(demo.load(file));
  const Filled harvested = demo.harvest();
  EXPECT_EQ(harvested.references, harvested_.references);
  EXPECT_EQ(demo.fillFrom(TextTable::builtIn(), Fill::Gaps).errors, QStringList());
  EXPECT_EQ(demo.model().NbLangues(), 6);
  EXPECT_TRUE(demo.save(file));
}

TEST_F(Filling, RecordingAgainChangesNothingAndAsksNothing) {
  demo_.harvest();
  EXPECT_EQ(boxes_.shown(), QStringList());
  EXPECT_EQ(countTexts(demo_.model()).references, harvested_.references);
}

}  // namespace

}  // namespace kob::demo
