// SPDX-FileCopyrightText: The KOBTraduction authors
#include "EngineTest.h"

#include <kobtraduction/component/Global_Util.h>
#include <kobtraduction/model/KOBCtrlTraduction.h>
#include <tests/doubles/Difference.h>
#include <tests/doubles/Lines.h>
#include <tests/doubles/TreeText.h>
#include <tests/doubles/Utf8.h>

#include <utility>

namespace kob::testing {

namespace {

std::int32_t freshThread() {
  const std::int32_t before = Global_Util::NbLangues();
  Global_Util::setNbLangues(0);
  return before;
}

::testing::AssertionResult same(const char* what, std::string_view expected, const std::string& seen) {
  const std::string wanted = dedent(expected);
  if (wanted == seen) {
    return ::testing::AssertionSuccess();
  }
  return ::testing::AssertionFailure() << what << " (- expected, + seen):\n" << difference(wanted, seen);
}

}  // namespace

EngineTest::EngineTest() : languagesBefore_(freshThread()) {}

EngineTest::~EngineTest() {
  Global_Util::setNbLangues(languagesBefore_);
}

void EngineTest::TearDown() {
  EXPECT_EQ(messages.take(), "") << "messages that the case does not expect";
  EXPECT_FALSE(messages.hasUnusedAnswers()) << "fewer questions than the case expects";
}

void EngineTest::given(std::string_view formText) {
  form_ = std::make_unique<ScriptedForm>(formText);
}

void EngineTest::givenModel(std::string_view treeText) {
  growTree(model.Racine(), treeText);
}

HostRef EngineTest::record(TextView name, const HostRef& container) {
  auto made = std::make_shared<KOBCtrlTraduction>();
  made->Name = name;
  made->Container = container;
  return made;
}

std::string EngineTest::pathOf(std::string_view id, TextView module) {
  return toUtf8(model.GetPath(ref(id), module));
}

std::string EngineTest::printed() const {
  return printTree(*model.Racine());
}

::testing::AssertionResult EngineTest::treeIs(std::string_view expected) const {
  return same("the tree", expected, printed());
}

::testing::AssertionResult EngineTest::formIs(std::string_view expected) const {
  return same("the form", expected, form_->print());
}

::testing::AssertionResult EngineTest::messagesAre(std::string_view expected) {
  return same("the messages", expected, messages.take());
}

::testing::AssertionResult EngineTest::writesAre(std::string_view expected) {
  return same("the writes", expected, form_->writes());
}

}  // namespace kob::testing
