// SPDX-FileCopyrightText: The KOBTraduction authors
#include "LogicTest.h"

#include <Coverage.h>
#include <ModelTexts.h>
#include <PathHints.h>
#include <TreeListing.h>
#include <Utf8.h>
#include <Verb.h>

namespace kob::command {
namespace {

using ::testing::HasSubstr;

class TextsTest : public LogicTest {};

TEST_F(TextsTest, utf8_comes_back_as_it_was) {
  const std::string text = "a\xC3\xA9\xE2\x82\xAC\xF0\x9F\x98\x80";
  EXPECT_EQ(fromUtf8(text), Text(u"a\u00E9\u20AC\U0001F600"));
  EXPECT_EQ(toUtf8(*fromUtf8(text)), text);
}

TEST_F(TextsTest, what_is_no_utf8_is_refused) {
  for (const char* const bytes : {"\xFF", "\xC3", "\xC3(", "\xC0\x80", "\xE0\x80\x80", "\xED\xA0\x80",
                                  "\xF4\x90\x80\x80", "\x80", "\xF8\x88\x80\x80\x80"}) {
    EXPECT_EQ(fromUtf8(bytes), std::nullopt) << bytes;
  }
  EXPECT_THROW(argumentText("\xFF", "the text"), UsageError);
}

TEST_F(TextsTest, a_shown_text_has_one_line_and_no_hidden_characters) {
  EXPECT_EQ(visible(u"a\r\nb\nc\td \u001B"), "a⏎b⏎c⇥d <U+001B>");
  EXPECT_EQ(visible(u" a b  "), "·a b··");
  EXPECT_EQ(visible(u"  "), "··");
  EXPECT_EQ(visible(u""), "");
}

TEST_F(TextsTest, a_json_string_is_escaped) {
  EXPECT_EQ(jsonString("a\"b\\c\n\xC3\xA9\xFF"), "\"a\\\"b\\\\c\\u000a\xC3\xA9\xEF\xBF\xBD\"");
}

TEST_F(TextsTest, distance_counts_letters_without_their_case) {
  EXPECT_EQ(distance(u"abc", u"ABC", 5), 0U);
  EXPECT_EQ(distance(u"abc", u"abd", 5), 1U);
  EXPECT_EQ(distance(u"abc", u"ac", 5), 1U);
  EXPECT_EQ(distance(u"", u"abc", 5), 3U);
  EXPECT_GT(distance(u"abcdef", u"uvwxyz", 2), 2U);
}

TEST_F(TextsTest, a_path_that_leads_nowhere_is_answered_with_those_that_are_like_it) {
  given(R"(
    Commande node
      BtnValider control
        .Caption "Valider"
      LblClient control
        .Caption "Client"
    Facture node
      LblClient control
        .Caption "Client"
  )");
  EXPECT_EQ(pathHint(model, u"Commande\\BtnValide"), "; did you mean \"Commande\\BtnValider\"?");
  EXPECT_EQ(pathHint(model, u"CommandeBtnValider"), "; did you mean \"Commande\\BtnValider\"?");
  EXPECT_EQ(pathHint(model, u"lblclient"),
            "; did you mean \"Commande\\LblClient\" or \"Facture\\LblClient\"?");
  EXPECT_EQ(pathHint(model, u"Xyz"), "");
}

TEST_F(TextsTest, a_text_is_found_by_path_and_name) {
  given(R"(
    a control
      .Caption "un"
      .ToolTip "deux"
    b control
      .ToolTip "trois"
    c message
      . "quatre"
    d node
    e control
      .Caption "cinq"
      .CAPTION "six"
  )");
  const auto found = [this](const char* path, const char* name) {
    return toUtf8(textIn(entryAt(model, path, name), 1));
  };
  EXPECT_EQ(found("a", "tooltip"), "deux");
  EXPECT_EQ(found("b", ""), "trois");
  EXPECT_EQ(found("c", ""), "quatre");
  EXPECT_EQ(found("e", "Caption"), "six");
  EXPECT_THROW(found("a", ""), UsageError);
  EXPECT_THROW(found("b", "Caption"), UsageError);
  EXPECT_THROW(found("c", "Caption"), UsageError);
  EXPECT_THROW(found("d", ""), UsageError);
  EXPECT_THROW(found("f", ""), UsageError);
}

TEST_F(TextsTest, coverage_counts_the_texts_that_language_1_has) {
  given(R"(
    a control
      .Caption "un" 2="one" 3="** un **"
      .ToolTip "deux" 2="two"
    b message
      . ""
    c message
      . "trois"
  )");
  const Coverage coverage = coverageOf(model);
  EXPECT_EQ(coverage.texts, 3U);
  EXPECT_EQ(coverage.cells, 2U);
  ASSERT_EQ(coverage.languages.size(), 3U);
  EXPECT_EQ(coverage.languages[0].translated, 3U);
  EXPECT_EQ(coverage.languages[1].translated, 2U);
  EXPECT_EQ(coverage.languages[1].test, 0U);
  EXPECT_EQ(coverage.languages[2].translated, 1U);
  EXPECT_EQ(coverage.languages[2].test, 1U);
}

TEST_F(TextsTest, an_incomplete_language_never_reads_as_complete) {
  EXPECT_EQ(percent(9999, 10000), "99.9");
  EXPECT_EQ(percent(10000, 10000), "100.0");
  EXPECT_EQ(percent(0, 10000), "0.0");
  EXPECT_EQ(percent(0, 0), "100.0");
}

class ListingTest : public LogicTest {
 protected:
  void SetUp() override {
    given(R"(
      Commande node control
        .Caption "Commande" 2="Order"
        BtnValider control width[2]=1.5
          .Caption "Valider" 2="Accept"
          .ToolTip "Envoyer"
        GrpClient node
          LblNom control
            .Caption "Nom" 2="Name"
      Messages node
        Fin message
          . "Au revoir" 3="Tot ziens"
    )");
  }
  std::string list(const ListingOptions& options, TextView path = {}) {
    return "\n" + listTree(model, cell(path), options);
  }
};

TEST_F(ListingTest, shows_language_1_and_those_that_have_a_text) {
  EXPECT_EQ(list({}), R"(
Commande
│   Caption  1  Commande
│            2  Order
│            3  –
├── BtnValider
│       Caption  1  Valider
│                2  Accept
│                3  –
│       ToolTip  1  Envoyer
│                2  –
│                3  –
└── GrpClient
    └── LblNom
            Caption  1  Nom
                     2  Name
                     3  –
Messages
└── Fin
        Message  1  Au revoir
                 2  –
                 3  Tot ziens
)");
}

TEST_F(ListingTest, shows_a_part_of_the_tree_in_one_language) {
  EXPECT_EQ(list({{2}}, u"Commande\\GrpClient"), R"(
GrpClient
└── LblNom
        Caption  1  Nom
                 2  Name
)");
}

TEST_F(ListingTest, shows_what_is_missing_with_the_cells_around_it) {
  EXPECT_EQ(list({{2}, true}), R"(
Commande
└── BtnValider
        ToolTip  1  Envoyer
                 2  –
Messages
└── Fin
        Message  1  Au revoir
                 2  –
)");
}

TEST_F(ListingTest, shows_factors_that_are_not_1) {
  EXPECT_THAT(list({{2}, false, true}, u"Commande\\BtnValider"), HasSubstr("Factors  2  width x 1.5\n"));
}

TEST_F(ListingTest, shows_an_alias_that_is_not_the_name) {
  cell(u"Messages").setAlias(u"Textes");
  EXPECT_THAT(list({}, u"Messages"), HasSubstr("Messages  (Textes)\n"));
}

TEST_F(ListingTest, an_empty_model_has_no_line) {
  cell(u"").setTypeCell(2);
  EXPECT_EQ(list({}), "\n");
}

}  // namespace
}  // namespace kob::command
