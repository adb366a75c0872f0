// SPDX-FileCopyrightText: The KOBTraduction authors
#include "Console.h"
#include "LiveForms.h"
#include "ModelFile.h"
#include "ModelTexts.h"
#include "RecoveryCopy.h"
#include "SixLanguages.h"
#include "Utf8.h"
#include "Verb.h"

#include <kobtraduction/component/Global_Util.h>
#include <kobtraduction/editor/ShowUnsaved.h>
#include <kobtraductionqt/KOBTraductionQt.h>
#include <kobtraductionqt/QtMessageBoxes.h>
#include <kobtraductionqt/QtWidgetSet.h>

#include <QApplication>
#include <QLocale>

#include <memory>

namespace kob::command {

namespace {

struct EditOptions {
  std::string file;
  std::int32_t mode = 1;
  std::string path;
};

/// Whether the model had to be changed for the editor.
bool makeFit(KOBModeleTraduction& model, const std::string& file) {
  const std::string raised = makeSixLanguages(model, file);
  if (!raised.empty()) {
    tell(raised);
  }
  return !raised.empty();
}

/// Asks what is to become of the copy that a crash has left; whether it is in the model now.
bool offer(RecoveryCopy& recovery, const std::string& file) {
  const QDateTime left = recovery.leftBehind();
  if (!left.isValid()) {
    return false;
  }
  const QString question =
      QStringLiteral("The editor was ended before \"%1\" was saved. Take over what was kept on %2?")
          .arg(QString::fromStdString(file), QLocale().toString(left, QLocale::ShortFormat));
  if (!Global_Util::messageBoxes().question(qt::toText(question), u"kobtrad")) {
    recovery.putAside();
  } else if (recovery.takeOver()) {
    tell("took over " + recovery.copy().toStdString() + "; it is in " + file + " once you save");
    return true;
  } else {
    tell(recovery.copy().toStdString() + " cannot be read, and is left where it is");
  }
  return false;
}

Status editOnScreen(const EditOptions& options) {
  const Text path = argumentText(options.path, "the path");
  KOBModeleTraduction model;
  load(model, options.file);
  if (!path.empty()) {
    cellAt(model, options.path);
  }
  bool isUnsaved = makeFit(model, options.file);
  const Toolkit toolkit(Toolkit::Screen::Needed);
  // The question before the editor is not the last window.
  QApplication::setQuitOnLastWindowClosed(false);
  RecoveryCopy recovery(model, QString::fromStdString(options.file));
  if (!recovery.isMine()) {
    throw UsageError(options.file + " is open in another editor");
  }
  qt::QtMessageBoxes boxes;
  qt::QtWidgetSet widgets;
  isUnsaved = offer(recovery, options.file) || isUnsaved;
  isUnsaved = makeFit(model, options.file) || isUnsaved;
  recovery.start();
  if (isUnsaved) {
    showUnsaved(model, options.mode, path);
  } else {
    model.Show(options.mode, path);
  }
  recovery.finish();
  return Status::Fine;
}

}  // namespace

void addEdit(CLI::App& command, Job& job) {
  CLI::App* const verb = addVerb(command, "edit", "Translate in a window",
                                 "  kobtrad edit app.trad\n"
                                 "  kobtrad edit app.trad --path 'Order\\BtnAccept'\n"
                                 "  kobtrad edit app.trad --mode 0\n"
                                 "A screen is needed. Nothing is written unless you save in the window. "
                                 "While it is open, a copy of what "
                                 "is\n"
                                 "not saved yet is kept in FILE.trad.recovery, and offered the next time "
                                 "should the editor have crashed.");
  const auto options = std::make_shared<EditOptions>();
  addModelFile(*verb, options->file);
  verb->add_option("--mode", options->mode,
                   "1: for translators, texts only; 0: for developers, all of the model")
      ->check(CLI::Range(0, 1))
      ->capture_default_str();
  verb->add_option("--path", options->path, "The cell to begin with")->type_name("PATH");
  verb->callback([options, &job] { job = [options] { return editOnScreen(*options); }; });
}

}  // namespace kob::command
