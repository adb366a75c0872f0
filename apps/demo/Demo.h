// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include "Filling.h"
#include "LoanDialog.h"
#include "MainWindow.h"
#include "MemberDialog.h"
#include "SampleData.h"

#include <kobtraduction/model/KOBModeleTraduction.h>
#include <kobtraductionqt/KOBTraductionQt.h>
#include <kobtraductionqt/LanguageSwitcher.h>

#include <QObject>

#include <functional>
#include <vector>

namespace kob::demo {

/// The application: its forms, the model of their texts, and what connects them.
class Demo final : public QObject {
 public:
  /// A form in one of the states in which a person sees it.
  struct View {
    QString name;
    QWidget* form;
    std::function<void()> prepare;
  };

  Demo();

  /// Takes the texts of a translation file, before anything is recorded; false when it cannot be read.
  bool load(const QString& file);
  /// Records the texts of every form as they are now. Once, in French.
  Filled harvest();
  /// Fills in the other languages; from then on the forms can be switched.
  Filled fillFrom(TextTable table, Fill what = Fill::All);
  /// False when the file cannot be written.
  bool save(const QString& file);

  KOBModeleTraduction& model() { return model_; }
  qt::LanguageSwitcher& switcher() { return switcher_; }
  MainWindow& window() { return window_; }
  LoanDialog& loanDialog() { return loanDialog_; }
  MemberDialog& memberDialog() { return memberDialog_; }

  std::vector<View> views();

 private:
  void connectWindow();
  void showMessages();
  void lend(int duration);
  void takeBack();
  void extend(int tool);
  void remind(int tool);
  void editMember(int member);
  void refresh();
  /// Opens the editor on the model, and shows what was changed there.
  void translate();
  QString message(const char* name) const;

  SampleData data_;
  KOBModeleTraduction model_;
  MainWindow window_;
  LoanDialog loanDialog_;
  MemberDialog memberDialog_;
  qt::LanguageSwitcher switcher_;
};

}  // namespace kob::demo
