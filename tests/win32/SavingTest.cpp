// SPDX-FileCopyrightText: The KOBTraduction authors
#include "NativeEditorTest.h"

#include <kobpersistence/KOBPersistence.h>

#include <windows.h>

#include <filesystem>
#include <random>
#include <string>

namespace kob::testing {
namespace {

namespace fs = std::filesystem;

/// The field for the name, however deep in the dialog it is.
HWND nameField(HWND dialog) {
  HWND found = nullptr;
  EnumChildWindows(
      dialog,
      [](HWND control, LPARAM into) -> BOOL {
        wchar_t name[16] = L"";
        GetClassNameW(control, name, 16);
        const bool isField = std::wstring(name) == L"Edit" && IsWindowVisible(control) != FALSE;
        if (isField) {
          *reinterpret_cast<HWND*>(into) = control;
        }
        return isField ? FALSE : TRUE;
      },
      reinterpret_cast<LPARAM>(&found));
  return found;
}

/// The editor's Save and Save As with the system's dialog and real files.
class NativeSaving : public NativeEditorTest {
 protected:
  NativeSaving() : serviceBefore_(setPersistenceService(&makeFileManager)) {
    std::random_device random;
    do {
      folder = fs::temp_directory_path() / ("kob" + std::to_string(random()));
    } while (!fs::create_directory(folder));
    message(app, u"msg", {u"Bonjour", u"", u"", u"", u"", u""});
  }
  ~NativeSaving() override {
    setPersistenceService(serviceBefore_);
    std::error_code ignored;
    fs::remove_all(folder, ignored);
  }

  /// In the dialog for a file name, enters one and presses a button.
  void answerFileDialog(const std::wstring& name, int button) {
    desk.whenSystemShown([=](HWND dialog) {
      SendMessageW(nameField(dialog), WM_SETTEXT, 0, reinterpret_cast<LPARAM>(name.c_str()));
      PostMessageW(GetDlgItem(dialog, button), BM_CLICK, 0, 0);
    });
  }

  fs::path folder;

 private:
  MakeFileManager serviceBefore_;
};

TEST_F(NativeSaving, SaveAsWritesTheFileThatWasNamed) {
  const fs::path file = folder / L"mod\u00e8le.trad";
  answerFileDialog(file.wstring(), IDOK);
  edit(u"App\\msg", [](NativePerson& person) {
    person.type(u"tbTradMessage", 1, u"Hello");
    EXPECT_EQ(win32::windowText(person.window.handle()).back(), L'*');
    person.chooseMenu(u"m_SaveAs");
    EXPECT_NE(win32::windowText(person.window.handle()).back(), L'*');
  });
  EXPECT_EQ(model.Fichier(), file.u16string());
  KOBModeleTraduction loaded;
  ASSERT_TRUE(loaded.Load(file.u16string()));
  EXPECT_EQ(loaded.GetCell(u"App\\msg")->Traduction()->ColTraduction()->Item(2), u"Hello");
}

TEST_F(NativeSaving, ANameWithoutASuffixGetsThatOfTranslationFiles) {
  answerFileDialog((folder / L"sans").wstring(), IDOK);
  edit(u"", [](NativePerson& person) { person.chooseMenu(u"m_SaveAs"); });
  EXPECT_TRUE(fs::exists(folder / L"sans.trad"));
}

TEST_F(NativeSaving, ACancelledDialogSavesNothing) {
  answerFileDialog((folder / L"m.trad").wstring(), IDCANCEL);
  edit(u"", [](NativePerson& person) { person.chooseMenu(u"m_Save"); });
  EXPECT_EQ(model.Fichier(), u"");
  EXPECT_TRUE(fs::is_empty(folder));
}

TEST_F(NativeSaving, ControlSSavesWhereTheModelCameFrom) {
  const fs::path file = folder / L"m.trad";
  ASSERT_TRUE(model.Save(file.u16string()));
  ASSERT_TRUE(model.Load(file.u16string()));
  edit(u"App\\msg", NativeSteps{[](NativePerson& person) {
                                  person.type(u"tbTradMessage", 2, u"Hallo");
                                  person.key('S', {VK_CONTROL});
                                },
                                [](NativePerson&) {}});
  KOBModeleTraduction loaded;
  ASSERT_TRUE(loaded.Load(file.u16string()));
  EXPECT_EQ(loaded.GetCell(u"App\\msg")->Traduction()->ColTraduction()->Item(3), u"Hallo");
}

TEST_F(NativeSaving, TheFolderOfTheProgramStaysWhatItIs) {
  const fs::path before = fs::current_path();
  answerFileDialog((folder / L"m.trad").wstring(), IDOK);
  edit(u"", [](NativePerson& person) { person.chooseMenu(u"m_SaveAs"); });
  EXPECT_EQ(fs::current_path(), before);
}

TEST_F(NativeSaving, AProposedNameThatNoFileCanHaveIsForgotten) {
  model.setFichier(u"no<name>.trad");
  answerFileDialog((folder / L"m.trad").wstring(), IDOK);
  edit(u"", [](NativePerson& person) { person.chooseMenu(u"m_SaveAs"); });
  EXPECT_TRUE(fs::exists(folder / L"m.trad"));
}

}  // namespace
}  // namespace kob::testing
