// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include <kobtraduction/model/KOBModeleTraduction.h>

#include <QString>
#include <QStringList>
#include <QWidget>

#include <memory>
#include <vector>

namespace kob::demo {

/// Forms of Qt Designer, recorded and shown in a test language.
class DesignerForms {
 public:
  static constexpr std::int32_t testLanguage = 2;

  /// Loads and records the forms; what cannot be loaded is left out and told by errors().
  explicit DesignerForms(const QStringList& files);

  /// Marks every text as a test and puts it on the forms.
  void showTestLanguage();

  const QStringList& errors() const { return errors_; }
  KOBModeleTraduction& model() { return model_; }

  struct Form {
    QString file;
    std::unique_ptr<QWidget> widget;
  };
  const std::vector<Form>& forms() const { return forms_; }

  /// One picture of each form, named after its file; returns the paths.
  QStringList savePictures(const QString& folder);

 private:
  KOBModeleTraduction model_;
  std::vector<Form> forms_;
  QStringList errors_;
};

}  // namespace kob::demo
