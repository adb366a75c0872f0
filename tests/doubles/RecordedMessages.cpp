// SPDX-FileCopyrightText: The KOBTraduction authors
#include "RecordedMessages.h"

#include "Lines.h"

#include <kobtraduction/component/Global_Util.h>

#include <utility>

namespace kob::testing {

namespace {

std::string boxText(const char* kind, TextView text, TextView title, MessageIcon icon) {
  return std::string(kind) + " " + quoted(text) + (title.empty() ? "" : " title=" + quoted(title)) +
         (icon == MessageIcon::Critical ? " critical" : "");
}

}  // namespace

RecordedMessages::RecordedMessages() : previous_(Global_Util::setMessageBoxes(this)) {}

RecordedMessages::~RecordedMessages() {
  Global_Util::setMessageBoxes(previous_);
}

std::string RecordedMessages::take() {
  return std::exchange(shown_, {});
}

void RecordedMessages::notice(TextView text, TextView title, MessageIcon icon) {
  shown_ += boxText("notice", text, title, icon) + "\n";
}

bool RecordedMessages::question(TextView text, TextView title, MessageIcon icon) {
  shown_ += boxText("question", text, title, icon);
  if (answers_.empty()) {
    shown_ += " -> unanswered\n";
    return false;
  }
  const bool yes = answers_.front();
  answers_.pop_front();
  shown_ += yes ? " -> Yes\n" : " -> No\n";
  return yes;
}

}  // namespace kob::testing
