// SPDX-FileCopyrightText: The KOBTraduction authors
#include "DemoForms.h"

#include <gmock/gmock.h>

#include <QFile>

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

TEST_F(Filling, RecordingAgainChangesNothingAndAsksNothing) {
  demo_.harvest();
  EXPECT_EQ(boxes_.shown(), QStringList());
  EXPECT_EQ(countTexts(demo_.model()).references, harvested_.references);
}

}  // namespace

}  // namespace kob::demo
