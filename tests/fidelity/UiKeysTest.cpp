// SPDX-FileCopyrightText: The KOBTraduction authors
#include "TestFiles.h"

#include <UiKeys.h>

#include <gmock/gmock.h>

namespace kob::fidelity {
namespace {

QByteArray label(const QByteArray& name, const QByteArray& text, const QByteArray& attributes = {},
                 const QByteArray& property = "text") {
  return "<widget class=\"QLabel\"" + (name.isEmpty() ? QByteArray() : " name=\"" + name + "\"") +
         "><property name=\"" + property + "\"><string" + attributes + ">" + text +
         "</string></property></widget>";
}

class UiKeysTest : public testing::Test {
 protected:
  void read(const QByteArray& content, const QByteArray& after = {}) {
    QString error;
    ASSERT_TRUE(keys_.read(files_.writeForm(QStringLiteral("a.ui"), content, after), &error))
        << error.toStdString();
  }
  QString comment(const QStringList& path, const QString& reference,
                  UiKeys::Entry entry = UiKeys::Entry::Caption) {
    const UiText* text = keys_.find(path, entry, reference);
    return text != nullptr ? text->key.comment : QStringLiteral("(none)");
  }
  TestFiles files_;
  UiKeys keys_;
};

TEST_F(UiKeysTest, a_key_is_class_source_and_comment) {
  read(label("a", "Open", " comment=\"file\""));
  const UiText* text = keys_.find({"Form", "a"}, UiKeys::Entry::Caption, "Open");
  ASSERT_NE(text, nullptr);
  EXPECT_EQ(text->key.context, "Form");
  EXPECT_EQ(text->key.source, "Open");
  EXPECT_EQ(text->key.comment, "file");
  EXPECT_TRUE(text->translatable);
}

TEST_F(UiKeysTest, the_designer_may_say_that_a_text_stays) {
  read(label("a", "Open", " notr=\"true\""));
  EXPECT_FALSE(keys_.find({"Form", "a"}, UiKeys::Entry::Caption, "Open")->translatable);
}

TEST_F(UiKeysTest, a_text_is_found_only_under_its_name_kind_and_words) {
  read(label("a", "Open"));
  EXPECT_EQ(comment({"Form", "b"}, "Open"), "(none)");
  EXPECT_EQ(comment({"Form", "a"}, "Close"), "(none)");
  EXPECT_EQ(comment({"Form", "a"}, "Open", UiKeys::Entry::ToolTip), "(none)");
}

TEST_F(UiKeysTest, containers_tell_objects_of_one_name_apart) {
  read("<widget class=\"QFrame\" name=\"one\">" + label("a", "Open", " comment=\"1\"") +
       "</widget><widget class=\"QFrame\" name=\"two\">" + label("a", "Open", " comment=\"2\"") +
       "</widget>");
  EXPECT_EQ(comment({"Form", "one", "a"}, "Open"), "1");
  EXPECT_EQ(comment({"Form", "two", "a"}, "Open"), "2");
}

TEST_F(UiKeysTest, the_index_counts_objects_of_one_name_in_one_container) {
  read(label("a", "Open", " comment=\"0\"") + label("a", "Open", " comment=\"1\"") +
       label("a", "Open", " comment=\"2\""));
  EXPECT_EQ(comment({"Form", "a(0)"}, "Open"), "0");
  EXPECT_EQ(comment({"Form", "a(1)"}, "Open"), "1");
  EXPECT_EQ(comment({"Form", "a(2)"}, "Open"), "2");
}

TEST_F(UiKeysTest, an_object_without_a_name_goes_by_its_class) {
  read(label({}, "Open", " comment=\"x\""));
  EXPECT_EQ(comment({"Form", "QLabel"}, "Open"), "x");
}

TEST_F(UiKeysTest, a_promoted_object_without_a_name_goes_by_the_class_that_it_extends) {
  read(
      "<widget class=\"Fancy\"><property name=\"text\"><string "
      "comment=\"x\">Open</string></property></widget>",
      "<customwidgets><customwidget><class>Fancy</class><extends>QLabel</extends></customwidget></"
      "customwidgets>");
  EXPECT_EQ(comment({"Form", "QLabel"}, "Open"), "x");
}

TEST_F(UiKeysTest, classes_that_extend_each_other_do_not_hang) {
  read("<widget class=\"A\" name=\"a\"/>",
       "<customwidgets><customwidget><class>A</class><extends>B</extends></customwidget>"
       "<customwidget><class>B</class><extends>A</extends></customwidget></customwidgets>");
  EXPECT_EQ(keys_.elements().size(), 2U);
}

TEST_F(UiKeysTest, a_tab_is_found_below_its_tabbed_object_by_its_page) {
  const auto page = [](const QByteArray& name, const QByteArray& comment) {
    return "<widget class=\"QWidget\" name=\"" + name + "\"><attribute name=\"title\"><string comment=\"" +
           comment + "\">General</string></attribute></widget>";
  };
  read("<widget class=\"QTabWidget\" name=\"tabs\">" + page("p", "first") + page("q", "second") +
       "</widget>");
  EXPECT_EQ(comment({"Form", "tabs", "tabs(0)"}, "General"), "first");
  EXPECT_EQ(comment({"Form", "tabs", "tabs(1)"}, "General"), "second");
  EXPECT_EQ(comment({"Form", "tabs", "tabs(2)"}, "General"), "(none)");
}

TEST_F(UiKeysTest, objects_in_layouts_belong_to_the_widget) {
  read("<layout class=\"QVBoxLayout\"><item><layout class=\"QHBoxLayout\"><item>" +
       label("a", "Open", " comment=\"x\"") + "</item></layout></item></layout>");
  ASSERT_EQ(keys_.elements().size(), 2U);
  EXPECT_EQ(keys_.elements()[1].chain, (QStringList{"Form", "a"}));
}

TEST_F(UiKeysTest, only_the_buttons_of_a_button_box_are_looked_up_in_the_toolkits_context) {
  read("<widget class=\"QDialogButtonBox\" name=\"box\"/><widget class=\"QFrame\" name=\"frame\"/>");
  EXPECT_EQ(keys_.toolkitContext({"Form", "box", "QPushButton"}), "QPlatformTheme");
  EXPECT_EQ(keys_.toolkitContext({"Form", "frame", "QPushButton"}), "");
}

TEST_F(UiKeysTest, refuses_what_is_no_form) {
  QString error;
  EXPECT_FALSE(keys_.read(files_.path() + "/none.ui", &error));
  EXPECT_THAT(error.toStdString(), testing::HasSubstr("cannot be read"));
  EXPECT_FALSE(keys_.read(files_.write("empty.ui", "<ui/>"), &error));
  EXPECT_THAT(error.toStdString(), testing::HasSubstr("no form"));
}

}  // namespace
}  // namespace kob::fidelity
