// SPDX-FileCopyrightText: The KOBTraduction authors
#include "NativeDesk.h"
#include "tests/editor/SampleModel.h"
#include "tests/model/ModelVocabulary.h"

#include <gtest/gtest.h>
#include <kobtraduction/model/KOBModeleTraduction.h>

#include <cstdint>
#include <cstdio>
#include <fstream>
#include <string>
#include <vector>

/// Writes a picture (BMP) of every window of the native editor in each of its states into a folder:
/// win32_editor_pictures FOLDER. It needs a screen, whose scaling it takes.
namespace kob::testing {
namespace {

struct Image {
  std::vector<std::uint8_t> pixels;
  BITMAPINFOHEADER header = {};
};

/// A window without its title bar and borders, which are the system's.
RECT withoutBorder(HWND window) {
  RECT inside = {};
  RECT all = {};
  GetClientRect(window, &inside);
  MapWindowPoints(window, nullptr, reinterpret_cast<POINT*>(&inside), 2);
  MENUBARINFO bar = {};
  bar.cbSize = sizeof bar;
  if (GetMenu(window) != nullptr && GetMenuBarInfo(window, OBJID_MENU, 0, &bar) != FALSE) {
    inside.top = bar.rcBar.top;
  }
  GetWindowRect(window, &all);
  OffsetRect(&inside, static_cast<int>(-all.left), static_cast<int>(-all.top));
  return inside;
}

/// What the screen shows of a window.
Image imageOf(HWND window) {
  const RECT place = withoutBorder(window);
  Image image;
  image.header.biSize = sizeof image.header;
  image.header.biWidth = place.right - place.left;
  image.header.biHeight = place.bottom - place.top;
  image.header.biPlanes = 1;
  image.header.biBitCount = 32;
  const HDC screen = GetWindowDC(window);
  const HDC memory = CreateCompatibleDC(screen);
  void* bits = nullptr;
  const HBITMAP bitmap = CreateDIBSection(memory, reinterpret_cast<BITMAPINFO*>(&image.header),
                                          DIB_RGB_COLORS, &bits, nullptr, 0);
  const HGDIOBJ before = SelectObject(memory, bitmap);
  BitBlt(memory, 0, 0, static_cast<int>(image.header.biWidth), static_cast<int>(image.header.biHeight),
         screen, static_cast<int>(place.left), static_cast<int>(place.top), SRCCOPY);
  GdiFlush();
  const auto* const from = static_cast<const std::uint8_t*>(bits);
  image.pixels.assign(from, from + 4 * image.header.biWidth * image.header.biHeight);
  SelectObject(memory, before);
  DeleteObject(bitmap);
  DeleteDC(memory);
  ReleaseDC(window, screen);
  return image;
}

class PictureRun {
 public:
  explicit PictureRun(std::string folder) : folder_(std::move(folder)) {
    fillSample(model_);
    // Wine 8 fails on an Arabic letter that bears a mark.
    const test::CellRef arabic = model_.GetCell(u"App\\FrmClient\\lblArabe");
    arabic->ColTraduction()->Item(1)->ChangeTraduction(u"أهلا وسهلا", 4);
  }

  int run() {
    editor("empty", 0, u"");
    editor("node", 0, u"App\\FrmClient");
    editor("control", 0, button);
    editor("control-without-position", 0, u"App\\FrmClient\\btnAnnuler");
    editor("context", 0, u"App\\FrmClient\\lblVille");
    editor("scripts", 0, u"App\\FrmClient\\lblArabe");
    editor("message", 0, u"App\\Messages\\Confirmation");
    editor("restricted-control", 1, button);
    editor("restricted-message", 1, u"App\\Messages\\Confirmation");
    sized("small", 560, 420);
    sized("large", 1250, 900);
    over("add-node-empty", DialogKind::AddNoeud, u"bAdd", [](NativePerson&) {});
    over("add-node-message", DialogKind::AddNoeud, u"bAdd",
         [](NativePerson& person) { person.choose(u"OptTypFeuille", 1); });
    over("add-node-control", DialogKind::AddNoeud, u"bAdd",
         [](NativePerson& person) { person.choose(u"OptTypFeuille", 2); });
    over("add-translation", DialogKind::AddTrad, u"bAddTrad", [](NativePerson&) {});
    search();
    saveAs();
    return failures_;
  }

 private:
  static constexpr TextView button = u"App\\FrmClient\\btnEnregistrer";

  void write(const char* name, HWND window) {
    Sleep(150);
    RedrawWindow(window, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN | RDW_UPDATENOW);
    const Image image = imageOf(window);
    BITMAPFILEHEADER file = {};
    file.bfType = 0x4d42;
    file.bfOffBits = sizeof file + sizeof image.header;
    file.bfSize = file.bfOffBits + static_cast<DWORD>(image.pixels.size());
    std::ofstream out(folder_ + "/" + name + ".bmp", std::ios::binary);
    out.write(reinterpret_cast<const char*>(&file), sizeof file);
    out.write(reinterpret_cast<const char*>(&image.header), sizeof image.header);
    out.write(reinterpret_cast<const char*>(image.pixels.data()),
              static_cast<std::streamsize>(image.pixels.size()));
    if (!out.flush()) {
      std::fprintf(stderr, "the picture %s cannot be written\n", name);
      ++failures_;
    }
  }
  void grab(const char* name, const NativePerson& person) { write(name, person.window.handle()); }

  void editor(const char* name, std::int32_t mode, TextView path) {
    desk_.whenShown(DialogKind::Traduction, [this, name](NativePerson& person) { grab(name, person); });
    model_.Show(mode, path);
  }
  void sized(const char* name, int width, int height) {
    const NativeScript resize = [width, height](NativePerson& person) {
      const Metrics& m = person.window.metrics();
      SetWindowPos(person.window.handle(), nullptr, 0, 0, m.px(width), m.px(height), SWP_NOZORDER);
    };
    desk_.whenShown(DialogKind::Traduction,
                    NativeSteps{resize, [this, name](NativePerson& person) { grab(name, person); }});
    model_.Show(0, button);
  }
  void over(const char* name, DialogKind kind, TextView pressed, const NativeScript& act) {
    desk_.whenShown(kind, NativeSteps{act, [this, name](NativePerson& person) { grab(name, person); }});
    desk_.whenShown(DialogKind::Traduction, [pressed](NativePerson& person) { person.press(pressed); });
    model_.Show(0, button);
  }
  void search() {
    desk_.whenShown(DialogKind::Recherche, NativeSteps{[](NativePerson& person) {
                                                         person.type(u"tbSearchString", u"r");
                                                         person.press(u"bNewSearch");
                                                       },
                                                       [this](NativePerson& person) {
                                                         grab("search", person);
                                                         person.clickLine(u"List1", 0);
                                                       }});
    desk_.whenShown(DialogKind::Traduction,
                    NativeSteps{[](NativePerson& person) { person.chooseMenu(u"m_Search"); },
                                [this](NativePerson& person) { grab("after-search", person); }});
    model_.Show(0, u"");
  }
  void saveAs() {
    desk_.whenSystemShown([this](HWND window) {
      write("save-as", window);
      PostMessageW(window, WM_COMMAND, IDCANCEL, 0);
    });
    desk_.whenShown(DialogKind::Traduction, [](NativePerson& person) { person.chooseMenu(u"m_SaveAs"); });
    model_.Show(0, u"");
  }

  using Metrics = win32::Metrics;

  std::string folder_;
  test::ModelTestScope scope_;
  NativeDesk desk_;
  KOBModeleTraduction model_;
  int failures_ = 0;
};

}  // namespace
}  // namespace kob::testing

int main(int count, char** arguments) {
  ::testing::InitGoogleTest(&count, arguments);
  if (count != 2) {
    std::fprintf(stderr, "usage: win32_editor_pictures FOLDER\n");
    return 2;
  }
  return kob::testing::PictureRun(arguments[1]).run() +
         (::testing::UnitTest::GetInstance()->Passed() ? 0 : 1);
}
