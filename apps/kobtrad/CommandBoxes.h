// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include <kobtraduction/component/Global_Util.h>
#include <kobtraduction/component/MessageBoxes.h>

#include <functional>
#include <string>
#include <utility>
#include <vector>

namespace kob::command {

/// The component's message boxes in a command: notices are kept, questions are answered by a function. They
/// are the thread's boxes while this object lives.
class CommandBoxes final : public MessageBoxes {
 public:
  using Answer = std::function<bool(const std::string& question)>;

  /// Without a function every question is answered No.
  explicit CommandBoxes(Answer answer = {})
      : answer_(std::move(answer)), previous_(Global_Util::setMessageBoxes(this)) {}
  CommandBoxes(const CommandBoxes&) = delete;
  CommandBoxes& operator=(const CommandBoxes&) = delete;
  ~CommandBoxes() override { Global_Util::setMessageBoxes(previous_); }

  void notice(TextView text, TextView title, MessageIcon icon) override;
  bool question(TextView text, TextView title, MessageIcon icon) override;

  /// The notices since the last call, in UTF-8, lines divided by "\n".
  std::vector<std::string> takeNotices() { return std::exchange(notices_, {}); }

 private:
  Answer answer_;
  MessageBoxes* previous_;
  std::vector<std::string> notices_;
};

}  // namespace kob::command
