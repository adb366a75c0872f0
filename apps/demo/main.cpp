// SPDX-FileCopyrightText: The KOBTraduction authors
#include "Demo.h"
#include "DesignerForms.h"
#include "Icons.h"
#include "Languages.h"
#include "Pictures.h"
#include "PrintedBoxes.h"

#include <kobtraductionqt/QtMessageBoxes.h>

#include <CLI/CLI.hpp>

#include <QApplication>
#include <QDir>
#include <QFile>

#include <cstdio>
#include <string>
#include <vector>

namespace {

using namespace Qt::StringLiterals;
using namespace kob::demo;

enum Status { Done = 0, Failed = 1, Usage = 2, NotLoaded = 3 };

constexpr const char* about =
    "A French application whose forms are recorded while it runs and shown in six languages.\n\n"
    "On a screen it opens, with a menu of languages. Without one, or with --pictures, it shows every form in "
    "every\n"
    "language where nobody sees it, compares each text with the room that it has, and writes a picture of "
    "each.\n"
    "With files of Qt Designer it does the same with those, in one made-up test language; there, a text that "
    "does\n"
    "not fit is told but is no failure.";
constexpr const char* footer =
    "Ends with 0 when all went well, 1 when a text is missing or does not fit or a picture or the "
    "translation file cannot be written,\n"
    "2 when the arguments are not understood, 3 when a form or the translation file cannot be loaded.\n\n"
    "Examples:\n"
    "  kobdemo\n"
    "  kobdemo --pictures pictures\n"
    "  kobdemo settings.ui about.ui\n";

void print(const QString& line) {
  std::fprintf(stdout, "%s\n", line.toUtf8().constData());
}

void printErrors(const QStringList& errors) {
  std::fflush(stdout);
  for (const QString& error : errors) {
    std::fprintf(stderr, "kobdemo: %s\n", error.toUtf8().constData());
  }
}

// The toolkit's platform without a screen complains once for every window that is shown.
void dropComplaints(QtMsgType type, const QMessageLogContext& context, const QString& message) {
  if (message != "This plugin does not support propagateSizeHints()"_L1) {
    std::fprintf(stderr, "%s\n", qPrintable(qFormatLogMessage(type, context, message)));
  }
}

bool hasScreen() {
#if defined(Q_OS_UNIX) && !defined(Q_OS_DARWIN)
  const QByteArray platform = qgetenv("QT_QPA_PLATFORM");
  return platform != "offscreen" && platform != "minimal" &&
         (qEnvironmentVariableIsSet("DISPLAY") || qEnvironmentVariableIsSet("WAYLAND_DISPLAY"));
#else
  return true;
#endif
}

QString shownPath(const QString& folder) {
  return QDir::toNativeSeparators(QDir(folder).absolutePath());
}

int takePictures(Demo& demo, const QStringList& fillErrors, const PrintedBoxes& boxes,
                 const QString& folder) {
  PictureRun run(demo);
  run.run(folder);
  print(u"Applied:   %1 languages to 3 forms, %2 views each"_s.arg(run.applied()).arg(demo.views().size()));
  print(u"Pictures:  %1 in %2"_s.arg(run.pictures()).arg(shownPath(folder)));
  print(run.misfits().isEmpty() ? u"Room:      every text fits in every language"_s
                                : u"Room:      %1 texts do not fit"_s.arg(run.misfits().size()));
  const QStringList errors = run.misfits() + run.errors() + boxes.shown();
  printErrors(errors);
  return errors.isEmpty() && fillErrors.isEmpty() ? Done : Failed;
}

/// What was asked for on the command line.
struct Wishes {
  QString textFolder;
  QString modelFile;
  QString pictureFolder;
};

int runDemo(const Wishes& wishes) {
  Demo demo;
  const PrintedBoxes boxes;
  const bool hasFile = QFile::exists(wishes.modelFile);
  if (hasFile && !demo.load(wishes.modelFile)) {
    // It is not written over either: somebody may have put work into it.
    printErrors(boxes.shown());
    return NotLoaded;
  }
  const Filled harvested = demo.harvest();
  print(u"Harvested: %1 texts of %2 controls and messages, in French"_s.arg(harvested.references)
            .arg(harvested.cells));
  // Texts that somebody changed in the file stay, unless other tables are asked for.
  const bool hasTables = !wishes.textFolder.isEmpty();
  const Filled filled =
      demo.fillFrom(hasTables ? TextTable::fromFolder(wishes.textFolder) : TextTable::builtIn(),
                    hasFile && !hasTables ? Fill::Gaps : Fill::All);
  print(u"Filled:    %1 texts in %2 languages, %3 left and width factors"_s.arg(filled.texts)
            .arg(languages.size() - 1)
            .arg(filled.factors));
  printErrors(filled.errors);
  if (demo.save(wishes.modelFile)) {
    print((hasFile ? u"Model:     read from %1 and written again"_s : u"Model:     written to %1"_s)
              .arg(shownPath(wishes.modelFile)));
  }
  if (!wishes.pictureFolder.isEmpty()) {
    return takePictures(demo, filled.errors, boxes, wishes.pictureFolder);
  }
  printErrors(boxes.shown());
  const kob::qt::QtMessageBoxes onScreen;
  demo.window().show();
  return QApplication::exec();
}

int runDesignerForms(const QStringList& files, const QString& pictureFolder) {
  const PrintedBoxes boxes;
  DesignerForms forms(files);
  const Filled harvested = countTexts(forms.model());
  print(u"Harvested: %1 texts of %2 controls, in %3 forms"_s.arg(harvested.references)
            .arg(harvested.cells)
            .arg(forms.forms().size()));
  const bool allLoaded = forms.errors().isEmpty();
  if (!forms.forms().empty()) {
    forms.showTestLanguage();
    print(u"Applied:   a test language, each text between \"** \" and \" **\""_s);
  }
  if (!pictureFolder.isEmpty()) {
    for (const QString& path : forms.savePictures(pictureFolder)) {
      print(u"Picture:   "_s + shownPath(path));
    }
    for (const DesignerForms::Form& form : forms.forms()) {
      for (const Misfit& misfit : findMisfits(*form.widget)) {
        print(u"No room:   "_s + describe(misfit, *form.widget, u"test"_s));
      }
    }
  } else if (!forms.forms().empty()) {
    for (const DesignerForms::Form& form : forms.forms()) {
      form.widget->show();
    }
    QApplication::exec();
  }
  printErrors(forms.errors() + boxes.shown());
  if (!allLoaded) {
    return NotLoaded;
  }
  return forms.errors().isEmpty() && boxes.shown().isEmpty() ? Done : Failed;
}

}  // namespace

int main(int argc, char** argv) {
  CLI::App arguments{about, "kobdemo"};
  arguments.footer(footer);
  std::vector<std::string> files;
  std::string pictures;
  std::string texts;
  std::string model = "kobdemo.trad";
  arguments.add_option("files", files, "Forms of Qt Designer to show instead of the demo's own")
      ->type_name("FILE.ui");
  arguments
      .add_option(
          "--pictures", pictures,
          "Write pictures into this folder instead of opening a window (without a screen and without\n"
          "this option: into \"pictures\" in the current folder)")
      ->type_name("FOLDER");
  arguments
      .add_option("--texts", texts,
                  "Read the demo's translations from this folder instead of the built-in ones")
      ->type_name("FOLDER")
      ->check(CLI::ExistingDirectory);
  arguments
      .add_option(
          "--model", model,
          "Keep the demo's texts in this translation file: what is in it stays, and what it lacks is\n"
          "recorded from the forms and filled in (otherwise kobdemo.trad in the current folder)")
      ->type_name("FILE");
  try {
    arguments.parse(argc, argv);
  } catch (const CLI::ParseError& error) {
    return arguments.exit(error) == 0 ? Done : Usage;
  }
  if (!hasScreen()) {
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) {
      qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    qInstallMessageHandler(dropComplaints);
    if (pictures.empty()) {
      pictures = "pictures";
    }
  }
  const QApplication application(argc, argv);
  setLook();
  const QString folder = QString::fromStdString(pictures);
  if (files.empty()) {
    return runDemo({QString::fromStdString(texts), QString::fromStdString(model), folder});
  }
  QStringList names;
  for (const std::string& file : files) {
    names += QString::fromStdString(file);
  }
  return runDesignerForms(names, folder);
}
