// SPDX-FileCopyrightText: The KOBTraduction authors
#include "CommandBoxes.h"

namespace kob::command {

namespace {

std::string inLines(TextView text) {
  std::string lines = toUtf8(text);
  std::erase(lines, '\r');
  return lines;
}

}  // namespace

void CommandBoxes::notice(TextView text, TextView, MessageIcon) {
  notices_.push_back(inLines(text));
}

bool CommandBoxes::question(TextView text, TextView, MessageIcon) {
  return answer_ && answer_(inLines(text));
}

}  // namespace kob::command
