// SPDX-FileCopyrightText: The KOBTraduction authors
#include "EngineTest.h"

#include <tests/doubles/Difference.h>
#include <tests/doubles/Lines.h>
#include <tests/doubles/TreeText.h>

#include <stdexcept>

namespace kob::testing {
namespace {

/// The words of the other cases mean what they say.
class DoublesTest : public EngineTest {};

TEST_F(DoublesTest, ATreeReadsBackAsItWasPrinted) {
  const char* const text = R"(
    "a \"b\"\\\u{1}\u{d800}é" node control context left=-1 width=2 alias="x" left[2]=1.5 width[6]=0.25
      .Caption "l1\r\nl2" 2="" 3="trois"
      (nothing)
      Titre message
        . "Bonjour" 6="Hello"
      Leaf
  )";
  givenModel(text);
  EXPECT_TRUE(treeIs(R"(
    "a \"b\"\\\u{1}\u{d800}é" node control context left=-1 width=2 alias="x" left[2]=1.5 width[6]=0.25
      .Caption "l1\r\nl2" 3="trois"
      (nothing)
      Titre message
        . "Bonjour" 6="Hello"
      Leaf
  )"));
}

TEST_F(DoublesTest, ATreeShowsACellWhoseParentIsAnother) {
  givenModel("A node\n  B");
  cell(u"A\\B")->setparentcell(model.Racine());
  EXPECT_TRUE(treeIs("A node\n  B astray"));
}

TEST_F(DoublesTest, ATreeShowsListsThatDoNotFitTheLanguages) {
  givenModel("A control left=0 width=0\n  .Caption \"a\"");
  model.setNbLangues(7);
  cell(u"A")->setColLeft(nullptr);
  EXPECT_TRUE(treeIs("A control left=0 width=0 leftFactors=none widthFactors=8\n  .Caption \"a\" texts=8"));
}

TEST_F(DoublesTest, AFormReadsBackAsItWasPrinted) {
  const char* const text = R"(
    form FrmMain Caption="Accueil" width=600
      button cmdOk Index=1 tag=12 Caption="OK" -visible
      tabs ssTab Tab=1
        page P0 title="Un" tip="t"
        page P1
      object Odd Caption=nothing in=ssTab
      nothing
  )";
  given(text);
  EXPECT_TRUE(formIs(text));
}

TEST_F(DoublesTest, AMisspeltFormIsRefused) {
  EXPECT_THROW(given("form F Captoin=\"a\""), std::runtime_error);
  EXPECT_THROW(given("from F"), std::runtime_error);
  EXPECT_THROW(given("form F Caption=text"), std::runtime_error);
  EXPECT_THROW(given("form F Caption=\"text"), std::runtime_error);
  EXPECT_THROW(given("form"), std::runtime_error);
}

TEST_F(DoublesTest, AMisspeltTreeIsRefused) {
  EXPECT_THROW(givenModel("A nod"), std::runtime_error);
  EXPECT_THROW(givenModel("A\n  B"), std::runtime_error);
}

TEST_F(DoublesTest, AnObjectThatDoesNotExistIsRefused) {
  given("form F");
  EXPECT_THROW(at("cmdOk"), std::runtime_error);
}

TEST_F(DoublesTest, PropertiesFailFromTheReadOrWriteTold) {
  given("object O Caption=\"a\"");
  at("O").failsFromRead(Property::Caption, 2);
  at("O").refusesFromWrite(Property::Caption, 2);
  EXPECT_TRUE(at("O").get(Property::Caption));
  EXPECT_FALSE(at("O").get(Property::Caption));
  EXPECT_TRUE(at("O").set(Property::Caption, u"b"));
  EXPECT_FALSE(at("O").set(Property::Caption, u"c"));
  EXPECT_EQ(at("O").held(Property::Caption)->asText(), u"b");
}

TEST_F(DoublesTest, PropertiesAnswerInTurn) {
  given("object O");
  at("O").answersInTurn(Property::Tabs, {3, std::nullopt, 5});
  EXPECT_EQ(at("O").get(Property::Tabs)->asLong(), 3);
  EXPECT_FALSE(at("O").get(Property::Tabs));
  EXPECT_EQ(at("O").get(Property::Tabs)->asLong(), 5);
  EXPECT_EQ(at("O").get(Property::Tabs)->asLong(), 5);
}

TEST_F(DoublesTest, MessagesAreNotedWithTheirTitleIconAndAnswer) {
  messages.answer(true);
  messages.notice(u"a", u"b", MessageIcon::Critical);
  EXPECT_TRUE(messages.question(u"c", u"", MessageIcon::None));
  EXPECT_FALSE(messages.question(u"d", u"", MessageIcon::None));
  EXPECT_TRUE(messagesAre(R"(
    notice "a" title="b" critical
    question "c" -> Yes
    question "d" -> unanswered
  )"));
}

TEST_F(DoublesTest, ADifferenceShowsTheLinesAroundIt) {
  EXPECT_EQ(difference("1\n2\n3\n4\n5\n6\n", "1\n2\n3\n4\nx\n6\n"), "  ...\n  3\n  4\n- 5\n+ x\n  6\n");
  EXPECT_EQ(difference("a\n", "a\n"), "");
}

}  // namespace
}  // namespace kob::testing
