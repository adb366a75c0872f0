// SPDX-FileCopyrightText: The KOBTraduction authors
#include "TestFiles.h"

#include <FormCheck.h>
#include <QmTranslator.h>
#include <RecordingBoxes.h>
#include <Report.h>

#include <gmock/gmock.h>

namespace kob::fidelity {
namespace {

using testing::HasSubstr;

/// The component is given other texts than the toolkit: the comparison must see each of them.
class WrongTranslationTest : public testing::Test {
 protected:
  void check(const QByteArray& toolkitMessages, const QByteArray& componentMessages) {
    const QString form = files_.writeForm(
        "form.ui",
        "<widget class=\"QLabel\" name=\"label\"><property name=\"text\"><string>Name</string></property>"
        "<property name=\"toolTip\"><string>The name</string></property></widget>");
    const QString toolkit = files_.writeTs("toolkit.ts", toolkitMessages);
    QString error;
    CheckedLanguage language;
    language.name = "fr";
    language.langue = 2;
    ASSERT_TRUE(language.catalog.add(files_.writeTs("component.ts", componentMessages), &error));
    language.translator = releaseTranslator({toolkit}, false, &error);
    ASSERT_NE(language.translator, nullptr) << error.toStdString();
    languages_.push_back(std::move(language));
    RecordingBoxes boxes;
    KOBModeleTraduction model;
    result_ = checkForm(form, "form.ui", model, languages_, boxes);
    ASSERT_EQ(result_.languages.size(), 1U);
  }

  Sums sums() {
    const Application application{"app", files_.path(), {"form.ui"}, {}, {}};
    ApplicationReport report(application, languages_);
    report.add("form.ui", result_);
    text_ = report.text().toStdString();
    Sums sums;
    report.addTo(sums);
    return sums;
  }

  static QByteArray message(const QByteArray& source, const QByteArray& translation) {
    return "<message><source>" + source + "</source><translation>" + translation + "</translation></message>";
  }

  TestFiles files_;
  std::vector<CheckedLanguage> languages_;
  FormResult result_;
  std::string text_;
};

TEST_F(WrongTranslationTest, the_same_texts_on_both_sides_are_equal) {
  const QByteArray messages = message("Name", "Nom") + message("The name", "Le nom");
  check(messages, messages);
  const Sums result = sums();
  EXPECT_EQ(result.texts, 2);
  EXPECT_EQ(result.equal(), 2);
  EXPECT_TRUE(result.isGood(100));
}

TEST_F(WrongTranslationTest, a_wrong_text_is_a_difference) {
  check(message("Name", "Nom") + message("The name", "Le nom"),
        message("Name", "Non") + message("The name", "Le nom"));
  const Sums result = sums();
  EXPECT_EQ(result.texts, 2);
  EXPECT_EQ(result.equal(), 1);
  EXPECT_FALSE(result.isGood(99.9));
  EXPECT_TRUE(result.isGood(50));
  EXPECT_THAT(text_,
              HasSubstr("text of QWidget:Form/QLabel:label: \"Name\" should read \"Nom\" and reads \"Non\""));
  EXPECT_THAT(text_, HasSubstr("was given another translation, \"Non\""));
}

TEST_F(WrongTranslationTest, a_missing_text_is_a_difference) {
  check(message("Name", "Nom") + message("The name", "Le nom"), message("Name", "Nom"));
  EXPECT_EQ(sums().equal(), 1);
  EXPECT_THAT(text_, HasSubstr("toolTip of QWidget:Form/QLabel:label"));
  EXPECT_THAT(text_, HasSubstr("the translations have no entry for it"));
}

TEST_F(WrongTranslationTest, a_text_that_only_the_component_translates_is_a_difference) {
  check(message("Name", "Nom"), message("Name", "Nom") + message("The name", "Le nom"));
  const Sums result = sums();
  EXPECT_EQ(result.texts, 1);
  EXPECT_EQ(result.equal(), 0);
  EXPECT_FALSE(result.isGood(99.9));
}

TEST(Sums, nothing_compared_is_not_good) {
  Sums sums;
  EXPECT_FALSE(sums.isGood(0));
  sums.forms = 1;
  EXPECT_FALSE(sums.isGood(0));
  sums.texts = 1;
  EXPECT_TRUE(sums.isGood(100));
}

TEST(Sums, each_kind_of_failure_is_one) {
  for (int Sums::*count : {&Sums::failedForms, &Sums::messages, &Sums::violations, &Sums::badFiles}) {
    Sums sums;
    sums.forms = 1;
    sums.texts = 1;
    sums.*count = 1;
    EXPECT_FALSE(sums.isGood(0));
  }
}

}  // namespace
}  // namespace kob::fidelity
