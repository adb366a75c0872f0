// SPDX-FileCopyrightText: The KOBTraduction authors
#include "EngineTest.h"

#include <kobtraduction/model/KOBCtrlTraduction.h>

namespace kob::testing {
namespace {

class RecordTest : public EngineTest {
 protected:
  RecordTest() {
    given(R"(
      object bar
        object button Caption="Ouvrir" ToolTipText="Ouvre" left=5 width=50
    )");
  }
  void bind() { record_->m_Ctrl = ref("button"); }

  std::shared_ptr<KOBCtrlTraduction> record_ = std::make_shared<KOBCtrlTraduction>();
};

TEST_F(RecordTest, ANewOneHasNoTextsAndLeftAndWidthMinusOne) {
  EXPECT_EQ(record_->left(), -1);
  EXPECT_EQ(record_->width(), -1);
  EXPECT_EQ(record_->Caption(), u"");
  EXPECT_EQ(record_->ToolTipText(), u"");
}

TEST_F(RecordTest, ANewOneHasNoNameIndexMinusOneNoContainerAndAnEmptyTag) {
  EXPECT_EQ(record_->Name, u"");
  EXPECT_EQ(record_->Index, -1);
  EXPECT_EQ(record_->Container, nullptr);
  EXPECT_EQ(record_->tag, u"");
  EXPECT_EQ(record_->m_Ctrl, nullptr);
}

TEST_F(RecordTest, UnboundItChangesOnlyItself) {
  record_->setCaption(u"Open");
  EXPECT_EQ(record_->Caption(), u"Open");
  EXPECT_EQ(form().writes(), "");
}

TEST_F(RecordTest, BoundItWritesTheCaptionThrough) {
  bind();
  record_->setCaption(u"Open");
  EXPECT_TRUE(writesAre(R"(set button.Caption = "Open")"));
  EXPECT_EQ(record_->Caption(), u"Open");
}

TEST_F(RecordTest, BoundItWritesTheToolTipThrough) {
  bind();
  record_->setToolTipText(u"Opens");
  EXPECT_TRUE(writesAre(R"(set button.ToolTipText = "Opens")"));
  EXPECT_EQ(record_->ToolTipText(), u"Opens");
}

TEST_F(RecordTest, BoundItWritesLeftThrough) {
  bind();
  record_->setleft(12);
  EXPECT_TRUE(writesAre("set button.left = 12"));
  EXPECT_EQ(record_->left(), 12);
}

TEST_F(RecordTest, BoundItWritesWidthThrough) {
  bind();
  record_->setwidth(34);
  EXPECT_TRUE(writesAre("set button.width = 34"));
  EXPECT_EQ(record_->width(), 34);
}

TEST_F(RecordTest, WithoutTheHostsCaptionItStoresTheValueAllTheSame) {
  at("button").lacks(Property::Caption);
  bind();
  EXPECT_NO_THROW(record_->setCaption(u"Open"));
  EXPECT_EQ(record_->Caption(), u"Open");
}

TEST_F(RecordTest, AHostThatRefusesEveryWriteDiffersFromItAfterwards) {
  for (const Property property :
       {Property::Caption, Property::ToolTipText, Property::Left, Property::Width}) {
    at("button").refuses(property);
  }
  bind();
  record_->setCaption(u"Open");
  record_->setToolTipText(u"Opens");
  record_->setleft(1);
  record_->setwidth(2);
  EXPECT_EQ(record_->Caption() + record_->ToolTipText(), u"OpenOpens");
  EXPECT_EQ(record_->left() + record_->width(), 3);
  EXPECT_TRUE(formIs(R"(
    object bar
      object button Caption="Ouvrir" ToolTipText="Ouvre" left=5 width=50
  )"));
}

TEST_F(RecordTest, AHostThatIsGoneIsIgnored) {
  bind();
  at("button").vanish();
  EXPECT_NO_THROW(record_->setCaption(u"Open"));
  EXPECT_EQ(record_->Caption(), u"Open");
}

TEST_F(RecordTest, AssigningTheFieldsWritesNothingThrough) {
  bind();
  record_->m_Caption = u"Open";
  record_->m_ToolTipText = u"Opens";
  record_->m_left = 1;
  record_->m_width = 2;
  EXPECT_EQ(form().writes(), "");
  EXPECT_EQ(record_->Caption(), u"Open");
}

TEST_F(RecordTest, BindingReadsNothingFromTheHost) {
  bind();
  EXPECT_EQ(record_->Caption(), u"");
  EXPECT_EQ(record_->left(), -1);
  EXPECT_TRUE(form().calls().empty());
}

TEST_F(RecordTest, AnswersItsFieldsAsAHostObject) {
  record_->Name = u"Open";
  record_->Container = ref("bar");
  record_->m_Caption = u"Ouvrir";
  record_->m_ToolTipText = u"Ouvre";
  HostObject& host = *record_;
  EXPECT_EQ(host.get(Property::Name)->asText(), u"Open");
  EXPECT_EQ(host.get(Property::Index)->asLong(), -1);
  EXPECT_EQ(host.get(Property::Container)->asObject(), ref("bar"));
  EXPECT_EQ(host.get(Property::Tag)->asText(), u"");
  EXPECT_EQ(host.get(Property::Caption)->asText(), u"Ouvrir");
  EXPECT_EQ(host.get(Property::ToolTipText)->asText(), u"Ouvre");
  EXPECT_EQ(host.get(Property::Left)->asLong(), -1);
  EXPECT_EQ(host.get(Property::Width)->asLong(), -1);
}

TEST_F(RecordTest, WithoutContainerAnswersNothingForIt) {
  const std::optional<Value> container = static_cast<HostObject&>(*record_).get(Property::Container);
  EXPECT_TRUE(container && container->isNothing());
}

TEST_F(RecordTest, FailsWhatARecordDoesNotHave) {
  HostObject& host = *record_;
  for (const Property property : {Property::Parent, Property::Visible, Property::Controls, Property::Buttons,
                                  Property::Tabs, Property::Tab, Property::Key}) {
    EXPECT_FALSE(host.get(property)) << static_cast<int>(property);
  }
  EXPECT_FALSE(host.enumerate());
  EXPECT_FALSE(host.item(1));
}

TEST_F(RecordTest, WrittenAsAHostObjectItWritesThrough) {
  bind();
  HostObject& host = *record_;
  EXPECT_TRUE(host.set(Property::Caption, u"Open"));
  EXPECT_TRUE(host.set(Property::ToolTipText, u"Opens"));
  EXPECT_TRUE(host.set(Property::Left, 2));
  EXPECT_TRUE(host.set(Property::Width, 3));
  EXPECT_TRUE(writesAre(R"(
    set button.Caption = "Open"
    set button.ToolTipText = "Opens"
    set button.left = 2
    set button.width = 3
  )"));
}

TEST_F(RecordTest, TheTagIsKeptAndWrittenNowhere) {
  bind();
  HostObject& host = *record_;
  EXPECT_TRUE(host.set(Property::Tag, u"x"));
  EXPECT_EQ(host.get(Property::Tag)->asText(), u"x");
  EXPECT_EQ(form().writes(), "");
}

}  // namespace
}  // namespace kob::testing
