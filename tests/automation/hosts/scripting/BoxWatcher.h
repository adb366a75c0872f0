// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include <windows.h>

#include <atomic>
#include <deque>
#include <mutex>
#include <string>
#include <thread>

namespace kob::hosts {

/// Somebody who reads and answers the message boxes of the thread that made it: presses OK, and answers Yes
/// or No as told beforehand. What the boxes said is noted as RecordedMessages notes it (tests/doubles).
class BoxWatcher {
 public:
  BoxWatcher();
  BoxWatcher(const BoxWatcher&) = delete;
  BoxWatcher& operator=(const BoxWatcher&) = delete;
  ~BoxWatcher();

  /// The answer to the next question that has none yet.
  void answer(bool yes);
  bool hasUnusedAnswers();
  /// What was shown since the last call, a line each.
  std::string take();

 private:
  void watch();
  void handle(HWND box);

  DWORD thread_;
  std::mutex mutex_;
  std::deque<bool> answers_;
  std::string shown_;
  std::atomic<bool> isOver_{false};
  std::thread watcher_;
};

}  // namespace kob::hosts
