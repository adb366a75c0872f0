// SPDX-FileCopyrightText: The KOBTraduction authors
#include "QtPrinting.h"

#include <TextTable.h>

#include <gtest/gtest.h>

namespace kob::demo {

using namespace Qt::StringLiterals;

namespace {

TextTable tableOf(const QByteArray& texts) {
  TextTable table;
  table.readTexts(texts, u"t"_s);
  return table;
}

TEST(TextTable, ReadsBlocksAndSkipsComments) {
  TextTable table = tableOf(
      "# All of them\nfr: Oui\nen: Yes\nnl: Ja\nde: Ja\nit: Sì\nes: Sí\n\n\nfr: a\\nb\nen: 1\nnl: 2\nde: "
      "3\nit: 4\nes: 5");
  EXPECT_EQ(table.errors(), QStringList());
  EXPECT_EQ(table.find({}, u"Oui"_s)->at(3), u"Sì"_s);
  EXPECT_EQ(table.find({}, u"a\nb"_s)->at(4), u"5"_s);
  EXPECT_FALSE(table.find({}, u"Non"_s).has_value());
}

TEST(TextTable, ATextMeantForAPathComesBeforeTheCommonOne) {
  TextTable table = tableOf(
      "fr: Nom\nen: Name\nnl: n\nde: d\nit: i\nes: e\n\nat: F\\lblNom\nfr: Nom\nen: Last name\nnl: n\nde: "
      "d\nit: i\nes: e\n");
  EXPECT_EQ(table.find(u"f\\LBLNOM"_s, u"Nom"_s)->at(0), u"Last name"_s);
  EXPECT_EQ(table.find(u"F\\lblAutre"_s, u"Nom"_s)->at(0), u"Name"_s);
}

TEST(TextTable, AMissingLanguageIsAnError) {
  EXPECT_EQ(tableOf("\nfr: Oui\nen: Yes\nnl: Ja\nit: Sì\nes: Sí\n").errors(),
            QStringList(u"t:2: no text in de"_s));
}

TEST(TextTable, AnUnknownLanguageIsAnError) {
  EXPECT_EQ(tableOf("fr: Oui\nen: Yes\nnl: Ja\nde: Ja\nit: Sì\nes: Sí\npt: Sim\n").errors().size(), 1);
}

TEST(TextTable, ALineWithoutALanguageIsAnError) {
  EXPECT_EQ(tableOf("fr: Oui\nen Yes\nen: Yes\nnl: Ja\nde: Ja\nit: Sì\nes: Sí\n").errors(),
            QStringList(u"t:2: no \"language: text\""_s));
}

TEST(TextTable, ATextThatStandsTwiceIsAnError) {
  const QByteArray block = "fr: Oui\nen: Yes\nnl: Ja\nde: Ja\nit: Sì\nes: Sí\n\n";
  EXPECT_EQ(tableOf(block + block).errors(), QStringList(u"t:8: stands twice: Oui"_s));
}

TEST(TextTable, ReadsFactors) {
  TextTable table;
  table.readFactors("# comment\nF\\a  width  1 1.5 1 1 0.25\nF\\a left 1 1 1 1 2\n", u"f"_s);
  EXPECT_EQ(table.errors(), QStringList());
  ASSERT_EQ(table.factors().size(), 2U);
  EXPECT_TRUE(table.factors()[0].isWidth);
  EXPECT_EQ(table.factors()[0].values[1], 1.5);
  EXPECT_FALSE(table.factors()[1].isWidth);
}

TEST(TextTable, AFactorThatIsNoNumberOrMissingIsAnError) {
  TextTable table;
  table.readFactors("F\\a width 1 wide 1 1 1\nF\\a width 1 1\nF\\a top 1 1 1 1 1\n", u"f"_s);
  EXPECT_EQ(table.errors().size(), 3);
  EXPECT_TRUE(table.factors().empty());
}

TEST(TextTable, TheBuiltInFilesAreWithoutErrors) {
  EXPECT_EQ(TextTable::builtIn().errors(), QStringList());
}

}  // namespace

}  // namespace kob::demo
