// SPDX-FileCopyrightText: The KOBTraduction authors
#include "TestFiles.h"

#include <apps/uiform/UiForm.h>

#include <QAbstractButton>
#include <QDialogButtonBox>

#include <gmock/gmock.h>

namespace kob {
namespace {

using fidelity::TestFiles;

TEST(UiForm, enumerators_lose_the_scope_in_the_middle) {
  EXPECT_EQ(withShortEnumerators("<set>Qt::AlignmentFlag::AlignLeft|Qt::AlignmentFlag::AlignTop</set>"),
            QByteArray("<set>Qt::AlignLeft|Qt::AlignTop</set>"));
  EXPECT_EQ(withShortEnumerators("<enum>Qt::Orientation::Vertical</enum>"),
            QByteArray("<enum>Qt::Vertical</enum>"));
  EXPECT_EQ(withShortEnumerators("<enum>Qt::Vertical</enum>"), QByteArray("<enum>Qt::Vertical</enum>"));
  EXPECT_EQ(withShortEnumerators("<item alignment=\"Qt::AlignmentFlag::AlignTop\">"),
            QByteArray("<item alignment=\"Qt::AlignTop\">"));
}

TEST(UiForm, texts_that_read_like_enumerators_stay) {
  const QByteArray text = "<string>Use std::chrono::seconds \xC3\xA9</string>";
  EXPECT_EQ(withShortEnumerators(text), text);
}

TEST(UiForm, a_button_box_has_the_buttons_that_the_designer_chose) {
  const TestFiles files;
  const auto form = loadUiForm(files.writeForm(
      "a.ui",
      "<widget class=\"QDialogButtonBox\" name=\"box\"><property name=\"standardButtons\"><set>"
      "QDialogButtonBox::StandardButton::Cancel|QDialogButtonBox::StandardButton::Ok</set></property></"
      "widget>"));
  ASSERT_NE(form, nullptr);
  EXPECT_EQ(form->findChild<QDialogButtonBox*>("box")->buttons().size(), 2);
}

TEST(UiForm, what_cannot_be_loaded_is_told) {
  const TestFiles files;
  QString error;
  EXPECT_EQ(loadUiForm(files.path() + "/none.ui", &error), nullptr);
  EXPECT_THAT(error.toStdString(), testing::HasSubstr("cannot be read"));
  error.clear();
  EXPECT_EQ(loadUiForm(files.write("a.ui",
                                   "<ui version=\"4.0\"><class>A</class>"
                                   "<widget class=\"NobodyKnowsThis\" name=\"A\"/></ui>"),
                       &error),
            nullptr);
  EXPECT_FALSE(error.isEmpty());
  EXPECT_EQ(loadUiForm(files.path() + "/none.ui"), nullptr);
}

}  // namespace
}  // namespace kob
