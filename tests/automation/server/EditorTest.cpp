// SPDX-FileCopyrightText: The KOBTraduction authors
#include "LateCall.h"

#include <atomic>
#include <chrono>
#include <thread>

namespace kob::testing {

namespace {

/// Closes every window that the thread which made it shows, and counts them.
class WindowCloser {
 public:
  WindowCloser() : thread_(GetCurrentThreadId()), closer_([this] { work(); }) {}
  WindowCloser(const WindowCloser&) = delete;
  WindowCloser& operator=(const WindowCloser&) = delete;
  ~WindowCloser() {
    isOver_ = true;
    closer_.join();
  }
  int closed() const noexcept { return closed_; }

 private:
  static BOOL CALLBACK close(HWND window, LPARAM closer) {
    if (IsWindowVisible(window) != FALSE) {
      ++reinterpret_cast<WindowCloser*>(closer)->closed_;
      PostMessageW(window, WM_CLOSE, 0, 0);
    }
    return TRUE;
  }
  void work() {
    while (!isOver_) {
      EnumThreadWindows(thread_, close, reinterpret_cast<LPARAM>(this));
      std::this_thread::sleep_for(std::chrono::milliseconds(50));
    }
  }

  DWORD thread_;
  std::atomic<int> closed_{0};
  std::atomic<bool> isOver_{false};
  std::thread closer_;
};

}  // namespace

class EditorTest : public ServerTest {};

TEST_F(EditorTest, IsOpenUntilItIsClosedAndGivesEmpty) {
  const ComPtr<_KOBModeleTraduction> model = createModel();
  LateCall show(model.get(), u"Show");
  for (const std::vector<Variant>& arguments :
       {std::vector<Variant>{}, std::vector<Variant>{Variant(std::int32_t{0}), Variant(u"unknown\\path")}}) {
    show.arguments = arguments;
    const WindowCloser closer;
    EXPECT_EQ(show.call(), S_OK) << toUtf8(show.description);
    EXPECT_EQ(show.result.type(), VT_EMPTY);
    EXPECT_GT(closer.closed(), 0);
  }
  EXPECT_EQ(references(model), 1U);
}

}  // namespace kob::testing
