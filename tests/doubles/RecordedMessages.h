// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include <kobtraduction/component/MessageBoxes.h>

#include <deque>
#include <string>

namespace kob::testing {

/// The thread's message boxes while it lives: notes what is shown, and answers questions as told. Everything
/// shown must be taken by the test; what is left over, or was asked without an answer ready, is a failure.
class RecordedMessages final : public MessageBoxes {
 public:
  RecordedMessages();
  RecordedMessages(const RecordedMessages&) = delete;
  RecordedMessages& operator=(const RecordedMessages&) = delete;
  ~RecordedMessages() override;

  /// The answer to a later question; in order.
  void answer(bool yes) { answers_.push_back(yes); }

  /// What was shown since the last call, a line each: `notice "text"`, `question "text" -> Yes`, with
  /// `title="..."` and `critical` when there are any. A question without an answer reads "-> unanswered" and
  /// is answered No.
  std::string take();
  bool isEmpty() const noexcept { return shown_.empty(); }
  bool hasUnusedAnswers() const noexcept { return !answers_.empty(); }

  void notice(TextView text, TextView title, MessageIcon icon) override;
  bool question(TextView text, TextView title, MessageIcon icon) override;

 private:
  MessageBoxes* previous_;
  std::deque<bool> answers_;
  std::string shown_;
};

}  // namespace kob::testing
