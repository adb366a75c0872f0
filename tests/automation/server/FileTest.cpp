// SPDX-FileCopyrightText: The KOBTraduction authors
#include "LoadedServer.h"

#include <tests/automation/hosts/scripting/BoxWatcher.h>

namespace kob::testing {

namespace {

/// A file name in a folder of its own, with letters that no code page has all of.
Text fileName() {
  wchar_t folder[MAX_PATH] = {};
  GetTempPathW(MAX_PATH, folder);
  return Text(reinterpret_cast<const char16_t*>(folder)) + u"kob été λ 日本 " +
         decimal(static_cast<std::int64_t>(GetCurrentProcessId())) + u".trad";
}

}  // namespace

class FileTest : public ServerTest {};

TEST_F(FileTest, AModelIsSavedAndLoaded) {
  hosts::BoxWatcher boxes;
  const Text file = fileName();
  {
    const ComPtr<_KOBModeleTraduction> model = createModel();
    ComPtr<_KOBCellTraduction> root;
    ComPtr<_KOBCellTraduction> message;
    ASSERT_EQ(model->get_Racine(root.out()), S_OK);
    ASSERT_EQ(root->AddMessage(String(u"m"), String(u"Où ça ?"), nullptr, nullptr, message.out()), S_OK);
    VARIANT_BOOL saved = VARIANT_FALSE;
    ASSERT_EQ(model->Save(String(file), &saved), S_OK);
    EXPECT_EQ(saved, VARIANT_TRUE);
    BSTR name = nullptr;
    model->get_Fichier(&name);
    EXPECT_EQ(take(name), u"");
  }
  const ComPtr<_KOBModeleTraduction> model = createModel();
  ComPtr<_KOBCellTraduction> before;
  model->get_Racine(before.out());
  VARIANT_BOOL loaded = VARIANT_FALSE;
  ASSERT_EQ(model->Load(String(file), &loaded), S_OK);
  EXPECT_EQ(loaded, VARIANT_TRUE);
  BSTR name = nullptr;
  model->get_Fichier(&name);
  EXPECT_EQ(take(name), file);
  BSTR text = nullptr;
  ASSERT_EQ(model->GetTraduction(String(u"m"), 4, nullptr, &text), S_OK);
  EXPECT_EQ(take(text), u"Où ça ?");
  ComPtr<_KOBCellTraduction> after;
  model->get_Racine(after.out());
  EXPECT_NE(after.get(), before.get());
  EXPECT_EQ(boxes.take(), "");
  EXPECT_NE(DeleteFileW(reinterpret_cast<const wchar_t*>(file.c_str())), 0);
}

TEST_F(FileTest, AFileThatIsNotThereIsToldAndChangesNothing) {
  hosts::BoxWatcher boxes;
  const ComPtr<_KOBModeleTraduction> model = createModel();
  VARIANT_BOOL loaded = VARIANT_TRUE;
  EXPECT_EQ(model->Load(String(u"C:\\nowhere\\none.trad"), &loaded), S_OK);
  EXPECT_EQ(loaded, VARIANT_FALSE);
  const std::string said = boxes.take();
  EXPECT_EQ(said.rfind("notice \"Erreur de chargement du modèle\\r\\n", 0), 0U) << said;
  EXPECT_NE(said.find("title=\"KOBCN\" critical"), std::string::npos) << said;
  BSTR name = nullptr;
  model->get_Fichier(&name);
  EXPECT_EQ(take(name), u"");
}

}  // namespace kob::testing
