// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include <kobtraduction/component/Global_Util.h>
#include <kobtraduction/component/MessageBoxes.h>
#include <kobtraduction/model/KOBModeleTraduction.h>

#include <QString>

#include <functional>
#include <optional>
#include <string>
#include <vector>

/// The vocabulary of the tests on live forms: what a form says is compared with a model printed as text, and
/// a model is filled by path.
namespace kob::qt::live {

/// The thread's message boxes while it lives: keeps what was shown, answers without a person.
class RecordedBoxes final : public MessageBoxes {
 public:
  RecordedBoxes() : previous_(Global_Util::setMessageBoxes(this)) {}
  ~RecordedBoxes() override { Global_Util::setMessageBoxes(previous_); }

  void notice(TextView text, TextView title, MessageIcon icon) override;
  bool question(TextView text, TextView title, MessageIcon icon) override;

  std::vector<std::string> notices;
  std::vector<std::string> questions;
  bool answer = true;
  /// Runs while a box is open, as the application's own events do.
  std::function<void()> whileOpen;

 private:
  MessageBoxes* previous_;
};

std::string utf8(TextView text);

/// The tree with its language-1 texts, a line per cell:
///   name [context] Caption "..." ToolTip "..."
/// indented by two blanks per level.
std::string print(const KOBModeleTraduction& model);

/// What the cell at `path` says in `langue`; tests stop when there is none.
void setCaption(KOBModeleTraduction& model, TextView path, std::int32_t langue, TextView text);
void setToolTip(KOBModeleTraduction& model, TextView path, std::int32_t langue, TextView text);
void setLeftFactor(KOBModeleTraduction& model, TextView path, std::int32_t langue, double factor);
void setWidthFactor(KOBModeleTraduction& model, TextView path, std::int32_t langue, double factor);

}  // namespace kob::qt::live
