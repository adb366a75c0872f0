// SPDX-FileCopyrightText: The KOBTraduction authors
#include <bindings/win32/Win32Binding.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <kobtraduction/component/Global_Util.h>

#include <windows.h>

#include <chrono>
#include <string>
#include <thread>
#include <vector>

namespace kob::test {
namespace {

using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

/// What could be read on a box of the system.
struct SeenBox {
  bool isFound = false;
  std::wstring caption;
  std::vector<std::wstring> texts;
  std::vector<int> buttons;
  bool hasPicture = false;
  bool isModal = false;
};

std::wstring textOf(HWND window) {
  std::wstring text(static_cast<std::size_t>(GetWindowTextLengthW(window)) + 1, L'\0');
  text.resize(static_cast<std::size_t>(GetWindowTextW(window, text.data(), static_cast<int>(text.size()))));
  return text;
}

std::wstring classOf(HWND window) {
  wchar_t name[64] = L"";
  GetClassNameW(window, name, 64);
  return name;
}

BOOL CALLBACK readChild(HWND child, LPARAM into) {
  auto& seen = *reinterpret_cast<SeenBox*>(into);
  const auto style = GetWindowLongW(child, GWL_STYLE);
  if (classOf(child) == L"Button" && (style & WS_VISIBLE) != 0) {
    seen.buttons.push_back(GetDlgCtrlID(child));
  } else if (classOf(child) == L"Static" && (style & SS_TYPEMASK) == SS_ICON) {
    seen.hasPicture = seen.hasPicture || SendMessageW(child, STM_GETICON, 0, 0) != 0;
  } else if (classOf(child) == L"Static") {
    seen.texts.push_back(textOf(child));
  }
  return TRUE;
}

/// The box that a thread shows.
HWND boxOf(DWORD thread) {
  HWND found = nullptr;
  EnumThreadWindows(
      thread,
      [](HWND window, LPARAM into) -> BOOL {
        if (classOf(window) == L"#32770" && IsWindowVisible(window) != FALSE) {
          *reinterpret_cast<HWND*>(into) = window;
          return FALSE;
        }
        return TRUE;
      },
      reinterpret_cast<LPARAM>(&found));
  return found;
}

/// Somebody who reads the next box of a thread and presses a button, and gives up after a while.
class Reader {
 public:
  explicit Reader(int button, HWND owner = nullptr)
      : thread_([this, button, owner, asking = GetCurrentThreadId()] { read(asking, button, owner); }) {}
  Reader(const Reader&) = delete;
  Reader& operator=(const Reader&) = delete;
  ~Reader() {
    if (thread_.joinable()) {
      thread_.join();
    }
  }

  SeenBox seen() {
    thread_.join();
    return seen_;
  }

 private:
  void read(DWORD asking, int button, HWND owner) {
    for (int left = 1'000; left > 0; --left) {
      const HWND box = boxOf(asking);
      if (box != nullptr && GetDlgItem(box, button) != nullptr) {
        seen_.isFound = true;
        seen_.caption = textOf(box);
        seen_.isModal = owner != nullptr && IsWindowEnabled(owner) == FALSE;
        EnumChildWindows(box, readChild, reinterpret_cast<LPARAM>(&seen_));
        SendMessageW(GetDlgItem(box, button), BM_CLICK, 0, 0);
        return;
      }
      std::this_thread::sleep_for(std::chrono::milliseconds(10));
    }
  }

  SeenBox seen_;
  std::thread thread_;
};

class Win32MessageBoxesTest : public ::testing::Test {
 protected:
  win32::Win32Binding binding{GetModuleHandleW(nullptr)};
  MessageBoxes& boxes = Global_Util::messageBoxes();
};

TEST_F(Win32MessageBoxesTest, ANoticeWithoutATitleHasAnEmptyCaption) {
  Reader reader(IDOK);
  boxes.notice(u"Ce noeud existe déja");
  const SeenBox seen = reader.seen();
  ASSERT_TRUE(seen.isFound);
  EXPECT_EQ(seen.caption, L"");
  EXPECT_THAT(seen.texts, Contains(L"Ce noeud existe d\u00e9ja"));
  EXPECT_THAT(seen.buttons, ElementsAre(IDOK));
  EXPECT_FALSE(seen.hasPicture);
}

TEST_F(Win32MessageBoxesTest, ACriticalNoticeHasItsTitleBothLinesAndAPicture) {
  Reader reader(IDOK);
  boxes.notice(u"Erreur de chargement du modèle\r\nIl n'y a rien.", u"KOBCN", MessageIcon::Critical);
  const SeenBox seen = reader.seen();
  ASSERT_TRUE(seen.isFound);
  EXPECT_EQ(seen.caption, L"KOBCN");
  EXPECT_THAT(seen.texts, Contains(L"Erreur de chargement du mod\u00e8le\r\nIl n'y a rien."));
  EXPECT_TRUE(seen.hasPicture);
}

TEST_F(Win32MessageBoxesTest, AQuestionIsAnsweredByTheButtonThatIsPressed) {
  for (const int button : {IDYES, IDNO}) {
    Reader reader(button);
    EXPECT_EQ(boxes.question(u"Voulez vous supprimer cette Traduction"), button == IDYES);
    const SeenBox seen = reader.seen();
    ASSERT_TRUE(seen.isFound);
    EXPECT_EQ(seen.caption, L"");
    EXPECT_THAT(seen.buttons, ElementsAre(IDYES, IDNO));
  }
}

TEST_F(Win32MessageBoxesTest, ANulDoesNotCutTheText) {
  Reader reader(IDOK);
  boxes.notice(Text(u"a\0b", 3));
  const SeenBox seen = reader.seen();
  ASSERT_TRUE(seen.isFound);
  EXPECT_THAT(seen.texts, Contains(L"a\u2400b"));
}

TEST_F(Win32MessageBoxesTest, ABoxIsModalToTheActiveWindow) {
  const HWND window = CreateWindowExW(0, L"Static", L"Hote", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 0, 0, 200, 100,
                                      nullptr, nullptr, nullptr, nullptr);
  SetActiveWindow(window);
  ASSERT_EQ(GetActiveWindow(), window);
  Reader reader(IDOK, window);
  boxes.notice(u"ERREUR");
  EXPECT_TRUE(reader.seen().isModal);
  EXPECT_NE(IsWindowEnabled(window), FALSE);
  DestroyWindow(window);
}

TEST(Win32BindingTest, TheBoxesOfBeforeComeBack) {
  MessageBoxes* const before = &Global_Util::messageBoxes();
  {
    const win32::Win32Binding binding(GetModuleHandleW(nullptr));
    EXPECT_NE(&Global_Util::messageBoxes(), before);
  }
  EXPECT_EQ(&Global_Util::messageBoxes(), before);
}

TEST(Win32BindingTest, AnotherThreadHasNoneOfIt) {
  const win32::Win32Binding binding(GetModuleHandleW(nullptr));
  MessageBoxes* const own = &Global_Util::messageBoxes();
  std::thread([own] { EXPECT_NE(&Global_Util::messageBoxes(), own); }).join();
}

}  // namespace
}  // namespace kob::test
