// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include "SampleData.h"

#include <QMainWindow>

#include <cstdint>
#include <vector>

class QActionGroup;
class QLabel;
class QTabWidget;

namespace kob::demo {

class LoansPage;
class MembersPage;
class Messages;
class ToolsPage;

/// The main window: what can be done, and the three lists on their tabs.
class MainWindow final : public QMainWindow {
  Q_OBJECT

 public:
  explicit MainWindow(const SampleData& sample);

  void showMessages(const Messages& messages);
  void checkLanguage(std::int32_t number);
  void showPage(int page);
  void tell(const QString& message);

  ToolsPage& tools() const { return *tools_; }
  MembersPage& members() const { return *members_; }
  LoansPage& loans() const { return *loans_; }

 signals:
  void languageChosen(int number);
  void translationRequested();
  /// 0 a week-end, 1 a week, 2 a month.
  void lendRequested(int duration);
  void returnRequested();
  void extensionRequested();
  void remindersRequested();
  void memberRequested();
  void printRequested();
  void aboutRequested();
  void refreshRequested();

 private:
  QAction* command(QWidget* menu, const char* name, const QString& text, void (MainWindow::*signal)(),
                   const QString& toolTip = {});
  void makePages(const SampleData& sample);
  void makeFileMenu();
  void makeLoanMenu();
  void makeViewMenu();
  void makeLanguageMenu();
  void makeToolBar();
  void makeStatus();

  const SampleData& data_;
  QTabWidget* tabs_ = nullptr;
  ToolsPage* tools_ = nullptr;
  MembersPage* members_ = nullptr;
  LoansPage* loans_ = nullptr;
  QActionGroup* languageActions_ = nullptr;
  QToolBar* bar_ = nullptr;
  QLabel* summary_ = nullptr;
};

}  // namespace kob::demo
