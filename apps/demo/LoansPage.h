// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include "SampleData.h"

#include <QWidget>

#include <vector>

class QTableWidget;

namespace kob::demo {

class Messages;

/// The tools that are out, the latest ones first.
class LoansPage final : public QWidget {
  Q_OBJECT

 public:
  explicit LoansPage(const std::vector<Tool>& tools);

  void showMessages(const Messages& messages);

  /// The tool of the chosen row, or -1.
  int chosenTool() const;

 signals:
  void reminderRequested(int tool);
  void extensionRequested(int tool);

 private:
  QWidget* lateBox();

  const std::vector<Tool>& tools_;
  std::vector<int> rows_;
  QTableWidget* table_ = nullptr;
};

}  // namespace kob::demo
