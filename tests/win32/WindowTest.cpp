// SPDX-FileCopyrightText: The KOBTraduction authors
#include "NativeEditorTest.h"

#include <kobtraduction/base/Failure.h>
#include <kobtraduction/editor/PictureBox.h>
#include <kobtraduction/editor/Slider.h>

namespace kob::testing {
namespace {

class NativeWindow : public NativeEditorTest {
 protected:
  NativeWindow() {
    const CellRef cell = control(app, u"a", {caption(u"Un", u"One")});
    cell->setm_left(1);
    cell->setm_width(1);
  }
};

/// A window of the host, the active one.
class HostWindow {
 public:
  HostWindow()
      : window_(CreateWindowExW(0, L"Static", L"Hote", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 50, 50, 300, 200,
                                nullptr, nullptr, nullptr, nullptr)) {
    SetActiveWindow(window_);
  }
  HostWindow(const HostWindow&) = delete;
  HostWindow& operator=(const HostWindow&) = delete;
  ~HostWindow() { DestroyWindow(window_); }

  HWND handle() const noexcept { return window_; }

 private:
  HWND window_;
};

TEST_F(NativeWindow, TheEditorIsModalOverTheActiveWindow) {
  const HostWindow host;
  const HostWindow other;
  edit(u"App\\a", [&](NativePerson& person) {
    EXPECT_EQ(GetWindow(person.window.handle(), GW_OWNER), other.handle());
    EXPECT_FALSE(IsWindowEnabled(other.handle()));
    EXPECT_FALSE(IsWindowEnabled(host.handle()));
  });
  EXPECT_TRUE(IsWindowEnabled(other.handle()));
  EXPECT_TRUE(IsWindowEnabled(host.handle()));
  EXPECT_EQ(GetActiveWindow(), other.handle());
}

TEST_F(NativeWindow, AWindowThatWasDisabledBeforeStaysSo) {
  const HostWindow host;
  EnableWindow(host.handle(), FALSE);
  edit(u"", [](NativePerson&) {});
  EXPECT_FALSE(IsWindowEnabled(host.handle()));
}

TEST_F(NativeWindow, TheEditorClosesWhenItsOwnerDies) {
  const HostWindow host;
  edit(u"App\\a", [&](NativePerson& person) {
    DestroyWindow(host.handle());
    EXPECT_EQ(person.window.handle(), nullptr);
  });
  EXPECT_EQ(model.GetCell(u"App\\a")->nom(), u"a");
}

TEST_F(NativeWindow, ADialogOverTheEditorDisablesIt) {
  desk.whenShown(DialogKind::AddTrad, [](NativePerson& person) {
    const HWND editor = GetWindow(person.window.handle(), GW_OWNER);
    EXPECT_FALSE(IsWindowEnabled(editor));
    person.press(u"bCancel");
  });
  edit(u"App\\a", [](NativePerson& person) {
    person.press(u"bAddTrad");
    EXPECT_TRUE(IsWindowEnabled(person.window.handle()));
  });
}

TEST_F(NativeWindow, AFailureOfTheModelClosesTheEditorAndReachesTheCaller) {
  Global_Util::setNbLangues(7);
  desk.whenShown(DialogKind::Traduction, [](NativePerson& person) { person.clickTag(u"App\\a"); });
  EXPECT_THROW(model.Show(0, u""), Failure);
}

TEST_F(NativeWindow, TheEndOfTheProgramClosesTheEditorAndIsPassedOn) {
  edit(u"", [](NativePerson&) { PostQuitMessage(7); });
  MSG message = {};
  EXPECT_TRUE(PeekMessageW(&message, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE));
  EXPECT_EQ(message.wParam, 7U);
}

TEST_F(NativeWindow, TheMenuNamesItsKeysAndLetters) {
  edit(u"", [](NativePerson& person) {
    const auto text = [](HMENU menu, UINT place) {
      wchar_t name[64] = L"";
      GetMenuStringW(menu, place, name, 64, MF_BYPOSITION);
      return std::wstring(name);
    };
    const HMENU bar = GetMenu(person.window.handle());
    ASSERT_EQ(GetMenuItemCount(bar), 2);
    EXPECT_EQ(text(bar, 0), L"&Fichier");
    EXPECT_EQ(text(bar, 1), L"&Edition");
    EXPECT_EQ(text(GetSubMenu(bar, 0), 0), L"&Save\tCtrl+S");
    EXPECT_EQ(text(GetSubMenu(bar, 0), 1), L"Save &As\tCtrl+Shift+S");
    EXPECT_EQ(text(GetSubMenu(bar, 1), 0), L"&Search\tCtrl+F");
  });
}

TEST_F(NativeWindow, ASliderWritesItsFactorAndIsResetByItsButton) {
  edit(u"App\\a", [this](NativePerson& person) {
    EXPECT_TRUE(person.move(u"sldwidth", 2, 150));
    EXPECT_EQ(model.GetCell(u"App\\a")->ColWidth()->Item(3).value(), 1.5);
    EXPECT_TRUE(person.press(u"bw1", 2));
    EXPECT_EQ(person.value(u"sldwidth", 2), 100);
    EXPECT_EQ(model.GetCell(u"App\\a")->ColWidth()->Item(3).value(), 1.0);
  });
}

TEST_F(NativeWindow, ASliderIsMovedByKeys) {
  edit(u"App\\a", NativeSteps{[](NativePerson& person) {
                                person.focus(u"sldLeft", 0);
                                person.key(VK_RIGHT);
                              },
                              [this](NativePerson& person) {
                                EXPECT_EQ(person.value(u"sldLeft", 0), 101);
                                EXPECT_EQ(model.GetCell(u"App\\a")->ColLeft()->Item(1).value(), 1.01);
                              }});
}

/// The width of a control in pixels.
int widthOf(HWND control) {
  RECT place = {};
  GetWindowRect(control, &place);
  return static_cast<int>(place.right - place.left);
}

TEST_F(NativeWindow, TheSplitterIsDraggedByTheMouse) {
  edit(u"App\\a", [](NativePerson& person) {
    const HWND tree = person.control(u"TV");
    const HWND strip = GetWindow(tree, GW_HWNDNEXT);
    const int before = widthOf(tree);
    person.mouse(strip, WM_MOUSEMOVE, 0, 2, 50);
    EXPECT_EQ(person.the<PictureBox>(u"pConteneur").pointer(), MousePointer::SizeWestEast);
    person.mouse(strip, WM_LBUTTONDOWN, MK_LBUTTON, 2, 50);
    person.mouse(strip, WM_MOUSEMOVE, MK_LBUTTON, 62, 50);
    person.mouse(strip, WM_LBUTTONUP, 0, 2, 50);
    EXPECT_NEAR(widthOf(tree), before + 62, 2);
    EXPECT_NE(GetCapture(), strip);
    person.mouse(tree, WM_MOUSEMOVE, 0, 5, 5);
    EXPECT_EQ(person.the<PictureBox>(u"pConteneur").pointer(), MousePointer::Default);
  });
}

TEST_F(NativeWindow, TheSplitterLeavesRoomToBothPanes) {
  edit(u"App\\a", [](NativePerson& person) {
    const HWND tree = person.control(u"TV");
    const HWND strip = GetWindow(tree, GW_HWNDNEXT);
    const int before = widthOf(tree);
    person.mouse(strip, WM_LBUTTONDOWN, MK_LBUTTON, 2, 50);
    person.mouse(strip, WM_MOUSEMOVE, MK_LBUTTON, -before + 20, 50);
    EXPECT_EQ(widthOf(tree), before);
    person.mouse(strip, WM_LBUTTONUP, 0, 2, 50);
  });
}

TEST_F(NativeWindow, TheSplitterIsMovedByItsArrows) {
  int before = 0;
  edit(u"App\\a",
       NativeSteps{[&](NativePerson& person) {
                     before = widthOf(person.control(u"TV"));
                     SetFocus(GetWindow(person.control(u"TV"), GW_HWNDNEXT));
                     person.key(VK_LEFT);
                   },
                   [&](NativePerson& person) { EXPECT_EQ(widthOf(person.control(u"TV")), before - 10); }});
}

TEST_F(NativeWindow, AWindowDoesNotGetSmallerThanItsContentNeeds) {
  edit(u"App\\a", [](NativePerson& person) {
    SetWindowPos(person.window.handle(), nullptr, 0, 0, 50, 50, SWP_NOZORDER);
    RECT inside = {};
    GetClientRect(person.window.handle(), &inside);
    EXPECT_GE(inside.right, 413);
    EXPECT_GE(inside.bottom, 300);
  });
}

TEST_F(NativeWindow, WhatGetsTheFocusInASmallWindowIsScrolledIntoView) {
  edit(u"App\\a", NativeSteps{[](NativePerson& person) {
                                SetWindowPos(person.window.handle(), nullptr, 0, 0, 560, 400, SWP_NOZORDER);
                              },
                              [](NativePerson& person) { person.key('6', {VK_CONTROL}); },
                              [](NativePerson& person) {
                                RECT text = {};
                                RECT pane = {};
                                GetWindowRect(person.control(u"tbTradCtrl", 5), &text);
                                GetWindowRect(person.control(u"PProperty"), &pane);
                                EXPECT_GE(text.top, pane.top);
                                EXPECT_LE(text.bottom, pane.bottom);
                              }});
}

/// Controls of one window must not lie over each other, apart from those that contain others.
void expectApart(const std::vector<HWND>& controls) {
  for (std::size_t i = 0; i < controls.size(); ++i) {
    for (std::size_t k = i + 1; k < controls.size(); ++k) {
      RECT one = {};
      RECT other = {};
      RECT both = {};
      GetWindowRect(controls[i], &one);
      GetWindowRect(controls[k], &other);
      const bool isInside =
          IsChild(controls[i], controls[k]) != FALSE || IsChild(controls[k], controls[i]) != FALSE;
      EXPECT_TRUE(isInside || IntersectRect(&both, &one, &other) == FALSE)
          << "controls " << GetDlgCtrlID(controls[i]) << " and " << GetDlgCtrlID(controls[k]);
    }
  }
}

TEST_F(NativeWindow, NothingLiesOverAnythingElse) {
  edit(u"App\\a", NativeSteps{[](NativePerson&) {},
                              [](NativePerson& person) {
                                std::vector<HWND> seen;
                                EnumChildWindows(
                                    person.window.handle(),
                                    [](HWND control, LPARAM into) -> BOOL {
                                      if (IsWindowVisible(control) != FALSE) {
                                        reinterpret_cast<std::vector<HWND>*>(into)->push_back(control);
                                      }
                                      return TRUE;
                                    },
                                    reinterpret_cast<LPARAM>(&seen));
                                EXPECT_GT(seen.size(), 70U);
                                expectApart(seen);
                              }});
}

TEST_F(NativeWindow, AnotherScalingMakesEverythingLarger) {
  edit(u"App\\a", NativeSteps{[](NativePerson& person) {
                                constexpr UINT dpiChanged = 0x02E0;
                                RECT place = {0, 0, 1800, 1300};
                                SendMessageW(person.window.handle(), dpiChanged, MAKEWPARAM(192, 192),
                                             reinterpret_cast<LPARAM>(&place));
                              },
                              [](NativePerson& person) {
                                EXPECT_EQ(person.window.metrics().dpi(), 192);
                                LOGFONTW font = {};
                                const auto handle = SendMessageW(person.control(u"bAdd"), WM_GETFONT, 0, 0);
                                GetObjectW(reinterpret_cast<HFONT>(handle), sizeof font, &font);
                                EXPECT_LE(font.lfHeight, -20);
                              }});
}

}  // namespace
}  // namespace kob::testing
