// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include <kobtraduction/model/KOBModeleTraduction.h>

#include <QString>

#include <cstdint>

namespace kob::demo {

/// The application's texts that stand on no control: column headings, states, list items. They are messages
/// of the model, each in its cell below "Messages".
class Messages {
 public:
  /// Puts the French texts into the model.
  static void record(KOBModeleTraduction& model);

  Messages(const KOBModeleTraduction& model, std::int32_t language) : model_(model), language_(language) {}

  QString operator()(const char* name) const;

 private:
  const KOBModeleTraduction& model_;
  std::int32_t language_;
};

}  // namespace kob::demo
