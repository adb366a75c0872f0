// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include "SampleData.h"

#include <QWidget>

#include <vector>

class QCheckBox;
class QComboBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QTableWidget;

namespace kob::demo {

class Messages;

/// The tools and the sheet of the chosen one.
///
/// The button below the sheet has two meanings. While the chosen tool is out, its tag names the context
/// "Sorti", and the texts of that context stand in for its own.
class ToolsPage final : public QWidget {
  Q_OBJECT

 public:
  explicit ToolsPage(const std::vector<Tool>& tools);

  /// Texts that stand on no control, in the language of `messages`.
  void showMessages(const Messages& messages);
  void chooseTool(int row);
  int chosenTool() const;
  void setAvailableOnly(bool availableOnly);

  QPushButton* lendButton() const { return lendButton_; }

 signals:
  /// The context of a control changed and it shows its reference text.
  void contextChanged(QWidget* control);
  void lendRequested();
  void returnRequested();

 private:
  QWidget* searchBox();
  QWidget* sheet();
  void showSheet();
  void setContext(bool isLent);
  void filter();

  const std::vector<Tool>& tools_;
  QLineEdit* search_ = nullptr;
  QComboBox* categories_ = nullptr;
  QTableWidget* table_ = nullptr;
  QLabel* name_ = nullptr;
  QLabel* state_ = nullptr;
  QLabel* borrower_ = nullptr;
  QLabel* due_ = nullptr;
  QLabel* deposit_ = nullptr;
  std::vector<QCheckBox*> accessories_;
  QPushButton* lendButton_ = nullptr;
  QString available_;
  QString out_;
  bool availableOnly_ = false;
};

}  // namespace kob::demo
