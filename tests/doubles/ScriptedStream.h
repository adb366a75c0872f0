// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include "RecordValue.h"

#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace kob::testing {

/// The stream of one record: keeps what is written, gives what it was told, notes every operation, and fails
/// when it was told to. A value that was read is spoilt by the next call, as a service may do.
class ScriptedStream : public PersistStream {
 public:
  /// A record to be written, or to be read.
  explicit ScriptedStream(Record record = {});

  /// The n-th operation from the beginning, counted from 1, fails and does nothing: with a PersistFailure, or
  /// with what `raise` throws.
  void failAt(int operation, std::function<void()> raise = nullptr);
  /// From now on the texts that are read lie one behind the other, and live as long as image() is kept.
  void keepTexts();

  const Record& record() const noexcept { return record_; }
  /// The operations that succeeded: `version=2` or `version?`, and every value as lineOf() shows it.
  const std::vector<std::string>& operations() const noexcept { return operations_; }
  /// How many values were read; the rest of the record was left.
  std::size_t valuesRead() const noexcept { return next_; }

  std::int32_t Version() override;
  void setVersion(std::int32_t version) override;
  void WriteValue(const PersistValue& value) override;
  const PersistValue& ReadValue() override;
  ImageRef image() const override { return kept_; }
  /// What image() keeps alive.
  std::weak_ptr<const void> kept() const { return kept_; }

 private:
  void step();

  Record record_;
  std::size_t next_ = 0;
  std::vector<std::string> operations_;
  int count_ = 0;
  int failing_ = 0;
  std::function<void()> raise_;
  /// What was read last.
  std::unique_ptr<RecordValue> lent_;
  PersistValue value_ = PersistValue::ofLong(0);
  std::shared_ptr<Text> kept_;
  /// How much of what is kept was read.
  std::size_t keptRead_ = 0;
};

}  // namespace kob::testing
