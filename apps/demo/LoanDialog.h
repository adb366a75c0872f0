// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include "SampleData.h"

#include <QDate>
#include <QDialog>

#include <vector>

class QButtonGroup;
class QComboBox;
class QDateEdit;
class QLineEdit;

namespace kob::demo {

/// A new loan. Every control has a place and a size of its own, as tight as French allows; other languages
/// get their room from the left and width factors of the model.
class LoanDialog final : public QDialog {
  Q_OBJECT

 public:
  LoanDialog(const SampleData& sample, QWidget* parent);

  void chooseTool(int tool);
  /// 0 a week-end, 1 a week, 2 a month.
  void chooseDuration(int duration);

  int tool() const;
  QString borrower() const;
  QDate due() const;

 private:
  void makeFields(const SampleData& sample);
  void makeDuration();
  void makeButtons();

  const std::vector<Tool>& tools_;
  QComboBox* members_ = nullptr;
  QComboBox* toolBox_ = nullptr;
  QDateEdit* lent_ = nullptr;
  QDateEdit* due_ = nullptr;
  QLineEdit* deposit_ = nullptr;
  QButtonGroup* durations_ = nullptr;
};

}  // namespace kob::demo
