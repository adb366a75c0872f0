// SPDX-FileCopyrightText: The KOBTraduction authors
#include "TestFiles.h"

#include <TsCatalog.h>

#include <gmock/gmock.h>

namespace kob::fidelity {
namespace {

class TsCatalogTest : public testing::Test {
 protected:
  void read(const QByteArray& messages) {
    QString error;
    ASSERT_TRUE(catalog_.add(files_.writeTs(QStringLiteral("a.ts"), messages), &error))
        << error.toStdString();
  }
  QString text(const QString& source, const QString& comment = {},
               const QString& context = QStringLiteral("Form")) {
    return catalog_.translate({context, source, comment, {}}).value_or(QStringLiteral("(none)"));
  }
  TestFiles files_;
  TsCatalog catalog_;
};

TEST_F(TsCatalogTest, finds_the_entry_of_the_comment) {
  read(
      "<message><source>Open</source><comment>file</comment><translation>A</translation></message>"
      "<message><source>Open</source><comment>door</comment><translation>B</translation></message>"
      "<message><source>Open</source><translation>C</translation></message>");
  EXPECT_EQ(text("Open", "file"), "A");
  EXPECT_EQ(text("Open", "door"), "B");
  EXPECT_EQ(text("Open"), "C");
}

TEST_F(TsCatalogTest, falls_back_to_the_entry_without_a_comment) {
  read("<message><source>Open</source><translation>C</translation></message>");
  EXPECT_EQ(text("Open", "window"), "C");
}

TEST_F(TsCatalogTest, the_first_commented_entry_answers_when_there_is_no_bare_one) {
  read(
      "<message><source>Open</source><comment>file</comment><translation>A</translation></message>"
      "<message><source>Open</source><comment>door</comment><translation>B</translation></message>");
  EXPECT_EQ(text("Open"), "A");
  EXPECT_EQ(text("Open", "window"), "A");
}

TEST_F(TsCatalogTest, a_bare_entry_without_a_text_keeps_the_commented_ones_to_themselves) {
  read(
      "<message><source>Open</source><comment>file</comment><translation>A</translation></message>"
      "<message><source>Open</source><translation type=\"unfinished\"></translation></message>");
  EXPECT_EQ(text("Open"), "(none)");
}

TEST_F(TsCatalogTest, a_context_is_not_another) {
  read("<message><source>Open</source><translation>A</translation></message>");
  EXPECT_EQ(text("Open", {}, "Other"), "(none)");
}

TEST_F(TsCatalogTest, keeps_unfinished_entries_that_have_a_text) {
  read("<message><source>Open</source><translation type=\"unfinished\">A</translation></message>");
  EXPECT_EQ(text("Open"), "A");
}

TEST_F(TsCatalogTest, drops_vanished_obsolete_and_empty_entries) {
  read(
      "<message><source>a</source><translation type=\"vanished\">A</translation></message>"
      "<message><source>b</source><translation type=\"obsolete\">B</translation></message>"
      "<message><source>c</source><translation type=\"unfinished\"></translation></message>"
      "<message><source>d</source><translation></translation></message>");
  for (const char* source : {"a", "b", "c", "d"}) {
    EXPECT_EQ(text(source), "(none)") << source;
  }
  EXPECT_EQ(catalog_.size(), 0);
}

TEST_F(TsCatalogTest, the_first_of_two_equal_entries_wins) {
  read(
      "<message><source>a</source><translation type=\"unfinished\"></translation></message>"
      "<message><source>a</source><translation>A</translation></message>"
      "<message><source>a</source><translation>B</translation></message>");
  EXPECT_EQ(text("a"), "A");
}

TEST_F(TsCatalogTest, keeps_blanks_line_breaks_and_characters_outside_xml) {
  read(
      "<message><source>  a\nb </source><translation> <byte value=\"x1b\"/>A&amp;&amp;\n "
      "</translation></message>"
      "<message><source>   </source><translation>blanks</translation></message>");
  EXPECT_EQ(text("  a\nb "),
            " \x1b"
            "A&&\n ");
  EXPECT_EQ(text("   "), "blanks");
}

TEST_F(TsCatalogTest, a_text_with_a_count_shows_its_first_form) {
  read(
      "<message numerus=\"yes\"><source>%n files</source><translation><numerusform>one</numerusform>"
      "<numerusform>many</numerusform></translation></message>");
  EXPECT_EQ(text("%n files"), "one");
}

TEST_F(TsCatalogTest, finds_entries_by_id) {
  read("<message id=\"open-id\"><source>Open</source><translation>A</translation></message>");
  EXPECT_TRUE(catalog_.isIdBased());
  EXPECT_EQ(catalog_.translate({"Form", "open-id", {}, "open-id"}).value_or(QString()), "A");
  EXPECT_FALSE(catalog_.translate({"Form", "Open", {}, "other-id"}).has_value());
}

TEST_F(TsCatalogTest, tells_the_language) {
  read("");
  EXPECT_EQ(catalog_.language(), "fr");
}

TEST_F(TsCatalogTest, refuses_what_is_no_translation_file) {
  QString error;
  EXPECT_FALSE(catalog_.add(files_.path() + "/none.ts", &error));
  EXPECT_THAT(error.toStdString(), testing::HasSubstr("cannot be read"));
  EXPECT_FALSE(catalog_.add(files_.write("half.ts", "<TS><context>"), &error));
  EXPECT_THAT(error.toStdString(), testing::HasSubstr("not well-formed"));
  EXPECT_FALSE(catalog_.add(files_.write("other.ts", "<html/>"), &error));
  EXPECT_THAT(error.toStdString(), testing::HasSubstr("no TS element"));
}

}  // namespace
}  // namespace kob::fidelity
