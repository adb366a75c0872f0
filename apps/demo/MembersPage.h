// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include "SampleData.h"

#include <QWidget>

#include <vector>

class QLabel;
class QRadioButton;
class QTableWidget;

namespace kob::demo {

class Messages;

/// The members, and whether the chosen one has paid.
class MembersPage final : public QWidget {
  Q_OBJECT

 public:
  explicit MembersPage(const std::vector<Member>& members);

  void showMessages(const Messages& messages);
  void chooseMember(int row);
  int chosenMember() const;

 signals:
  /// -1 is a new member.
  void sheetRequested(int member);

 private:
  QWidget* sheet();
  void showSheet();

  const std::vector<Member>& members_;
  QTableWidget* table_ = nullptr;
  QLabel* name_ = nullptr;
  std::vector<QRadioButton*> fees_;
};

}  // namespace kob::demo
