// SPDX-FileCopyrightText: The KOBTraduction authors
#include "ScriptedStream.h"

#include <kobtraduction/persistence/FileManager.h>

#include <algorithm>

namespace kob::testing {

ScriptedStream::ScriptedStream(Record record) : record_(std::move(record)) {}

void ScriptedStream::failAt(int operation, std::function<void()> raise) {
  failing_ = operation;
  raise_ = std::move(raise);
}

void ScriptedStream::keepTexts() {
  kept_ = std::make_shared<Text>();
  for (const RecordValue& value : record_.values) {
    *kept_ += value.text;
  }
}

void ScriptedStream::step() {
  if (lent_ != nullptr) {
    std::fill(lent_->text.begin(), lent_->text.end(), u'\u2020');
    lent_ = nullptr;
  }
  if (++count_ == failing_) {
    if (raise_ != nullptr) {
      raise_();
    }
    throw PersistFailure(u"the script says so");
  }
}

std::int32_t ScriptedStream::Version() {
  step();
  operations_.emplace_back("version?");
  return record_.version;
}

void ScriptedStream::setVersion(std::int32_t version) {
  step();
  operations_.push_back("version=" + std::to_string(version));
  record_.version = version;
}

void ScriptedStream::WriteValue(const PersistValue& value) {
  step();
  record_.values.push_back(copyOf(value));
  operations_.push_back(lineOf(record_.values.back()));
}

const PersistValue& ScriptedStream::ReadValue() {
  step();
  if (next_ == record_.values.size()) {
    throw PersistFailure(u"the record ends");
  }
  if (kept_ != nullptr && record_.values[next_].type == PersistType::String) {
    value_ = PersistValue::string(TextView(*kept_).substr(keptRead_, record_.values[next_].text.size()));
    keptRead_ += record_.values[next_].text.size();
  } else {
    lent_ = std::make_unique<RecordValue>(record_.values[next_]);
    value_ = viewOf(*lent_);
  }
  operations_.push_back(lineOf(record_.values[next_]));
  ++next_;
  return value_;
}

}  // namespace kob::testing
