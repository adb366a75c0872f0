// SPDX-FileCopyrightText: The KOBTraduction authors
#include "DesignerForms.h"

#include "Pictures.h"

#include <apps/uiform/UiForm.h>
#include <kobtraductionqt/KOBTraductionQt.h>

#include <QDir>
#include <QFileInfo>

#include <utility>

namespace kob::demo {

using namespace Qt::StringLiterals;

DesignerForms::DesignerForms(const QStringList& files) {
  for (const QString& file : files) {
    QString error;
    std::unique_ptr<QWidget> form = loadUiForm(file, &error);
    if (form == nullptr) {
      errors_ += file + u": "_s + error;
      continue;
    }
    // Each form below a cell of its file's name: forms of different files may have the same name.
    model_.UpdateWithForm(qt::hostForm(form.get()), qt::toText(QFileInfo(file).completeBaseName()));
    forms_.push_back({file, std::move(form)});
  }
}

void DesignerForms::showTestLanguage() {
  model_.UpdateTestLangue(testLanguage);
  for (const Form& form : forms_) {
    model_.TraduitDialog(qt::hostForm(form.widget.get()), testLanguage,
                         qt::toText(QFileInfo(form.file).completeBaseName()));
  }
}

QStringList DesignerForms::savePictures(const QString& folder) {
  QStringList paths;
  if (!QDir().mkpath(folder)) {
    errors_ += u"the folder cannot be made: "_s + folder;
    return paths;
  }
  for (const Form& form : forms_) {
    showUnseen(*form.widget);
    const QString base = QDir(folder).filePath(QFileInfo(form.file).completeBaseName());
    QString path = base + u".png"_s;
    for (int i = 2; paths.contains(path); ++i) {
      path = u"%1-%2.png"_s.arg(base).arg(i);
    }
    if (!form.widget->grab().save(path)) {
      errors_ += u"the picture cannot be written: "_s + path;
      continue;
    }
    paths += path;
  }
  return paths;
}

}  // namespace kob::demo
