// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include <kobtraduction/component/Global_Util.h>
#include <kobtraduction/component/MessageBoxes.h>

#include <QString>
#include <QStringList>

#include <utility>

namespace kob::fidelity {

/// The component's message boxes while this object lives: nobody sees them, every one is kept, and questions
/// are answered No.
class RecordingBoxes final : public MessageBoxes {
 public:
  RecordingBoxes() : previous_(Global_Util::setMessageBoxes(this)) {}
  RecordingBoxes(const RecordingBoxes&) = delete;
  RecordingBoxes& operator=(const RecordingBoxes&) = delete;
  ~RecordingBoxes() override { Global_Util::setMessageBoxes(previous_); }

  void notice(TextView text, TextView title, MessageIcon) override { keep(text, title); }
  bool question(TextView text, TextView title, MessageIcon) override {
    keep(text, title);
    return false;
  }

  /// What was shown since the last call.
  QStringList take() { return std::exchange(shown_, {}); }

 private:
  void keep(TextView text, TextView title) {
    const QString shown = QString::fromUtf16(text.data(), static_cast<qsizetype>(text.size()));
    shown_.append(title.empty() ? shown
                                : QString::fromUtf16(title.data(), static_cast<qsizetype>(title.size())) +
                                      QStringLiteral(": ") + shown);
  }

  MessageBoxes* previous_;
  QStringList shown_;
};

}  // namespace kob::fidelity
