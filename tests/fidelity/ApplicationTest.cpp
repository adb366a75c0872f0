// SPDX-FileCopyrightText: The KOBTraduction authors
#include "TestFiles.h"

#include <Application.h>

#include <gmock/gmock.h>

namespace kob::fidelity {
namespace {

TEST(ApplicationTest, a_folder_with_forms_and_translations_is_an_application) {
  const TestFiles files;
  files.writeForm("src/gui/b.ui", {});
  files.writeForm("src/a.ui", {});
  files.writeTs("lang/app_fr.ts", {});
  EXPECT_EQ(applicationFolders(files.path()), QStringList{files.path()});
  const Application application = readApplication(files.path());
  EXPECT_EQ(application.forms, (QStringList{"src/a.ui", "src/gui/b.ui"}));
  ASSERT_EQ(application.languages.size(), 1U);
  EXPECT_EQ(application.languages[0].name, "fr");
}

TEST(ApplicationTest, a_folder_of_applications_is_one_for_each) {
  const TestFiles files;
  for (const QString& name : {QStringLiteral("two"), QStringLiteral("one")}) {
    files.writeForm(name + "/a.ui", {});
    files.writeTs(name + "/fr.ts", {});
  }
  EXPECT_EQ(applicationFolders(files.path()), (QStringList{files.path() + "/one", files.path() + "/two"}));
}

TEST(ApplicationTest, a_form_outside_the_subfolders_makes_them_one_application) {
  const TestFiles files;
  for (const QString& name : {QStringLiteral("one"), QStringLiteral("two")}) {
    files.writeForm(name + "/a.ui", {});
    files.writeTs(name + "/fr.ts", {});
  }
  files.writeForm("common/c.ui", {});
  EXPECT_EQ(applicationFolders(files.path()), QStringList{files.path()});
}

TEST(ApplicationTest, the_language_stands_in_the_file_or_else_in_its_name) {
  const TestFiles files;
  files.writeTs("app_de.ts", {}, "nl_BE");
  files.writeTs("app_it.ts", {}, "");
  files.writeTs("mystery.ts", {}, "");
  const Application application = readApplication(files.path());
  ASSERT_EQ(application.languages.size(), 3U);
  EXPECT_EQ(application.languages[0].name, "nl_BE");
  EXPECT_EQ(application.languages[1].name, "it");
  EXPECT_EQ(application.languages[2].name, "mystery");
  EXPECT_TRUE(application.languages[1].isKnown);
  EXPECT_FALSE(application.languages[2].isKnown);
}

TEST(ApplicationTest, files_of_one_language_belong_together) {
  const TestFiles files;
  files.writeTs("a_fr.ts", {}, "fr");
  files.writeTs("b_fr.ts", {}, "fr");
  const Application application = readApplication(files.path());
  ASSERT_EQ(application.languages.size(), 1U);
  EXPECT_EQ(application.languages[0].tsFiles, (QStringList{"a_fr.ts", "b_fr.ts"}));
}

TEST(ApplicationTest, a_broken_file_is_told_and_left_out) {
  const TestFiles files;
  files.write("app_fr.ts", "<TS>");
  const Application application = readApplication(files.path());
  EXPECT_TRUE(application.languages.empty());
  ASSERT_EQ(application.badFiles.size(), 1U);
  EXPECT_EQ(application.badFiles[0].file, "app_fr.ts");
}

TEST(LanguageInFileName, is_a_locale_at_the_end) {
  EXPECT_EQ(languageInFileName("fr.ts"), "fr");
  EXPECT_EQ(languageInFileName("lang/app_pt_BR.ts"), "pt_BR");
  EXPECT_EQ(languageInFileName("app.de.ts"), "de");
  EXPECT_EQ(languageInFileName("app-sr_Latn_RS.ts"), "sr_Latn_RS");
  EXPECT_EQ(languageInFileName("my_app_fr.ts"), "fr");
  EXPECT_EQ(languageInFileName("app.ts"), "");
  EXPECT_EQ(languageInFileName("app_template.ts"), "");
}

}  // namespace
}  // namespace kob::fidelity
