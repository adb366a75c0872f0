// SPDX-FileCopyrightText: The KOBTraduction authors
#include "Application.h"
#include "Run.h"

#include <CLI/CLI.hpp>

#include <QApplication>
#include <QDir>

#include <cstdio>
#include <string>
#include <vector>

#ifdef _WIN32
#include <io.h>
#else
#include <unistd.h>
#endif

namespace {

bool isTerminal() {
#ifdef _WIN32
  return _isatty(_fileno(stderr)) != 0;
#else
  return isatty(STDERR_FILENO) != 0;
#endif
}

void print(const QString& text) {
  const QByteArray bytes = text.toUtf8();
  std::fwrite(bytes.constData(), 1, static_cast<std::size_t>(bytes.size()), stdout);
  std::fflush(stdout);
}

/// One line that is written over and over; "" clears it.
void showProgress(const QString& line) {
  std::fprintf(stderr, "\r\033[K%s", line.left(100).toUtf8().constData());
}

/// What the toolkit remarks about forms (promoted classes that it does not know) is no result.
void silent(QtMsgType type, const QMessageLogContext&, const QString& text) {
  if (type == QtFatalMsg) {
    std::fprintf(stderr, "%s\n", text.toUtf8().constData());
  }
}

int run(const std::vector<std::string>& folders, int sample, double threshold) {
  using namespace kob::fidelity;
  const bool hasProgress = isTerminal();
  Run whole({sample, [hasProgress](const QString& application, const QString& form) {
               if (hasProgress) {
                 showProgress(application + QStringLiteral(": ") + form);
               }
             }});
  for (const std::string& folder : folders) {
    for (const QString& application : applicationFolders(QString::fromStdString(folder))) {
      const QString report = whole.check(application);
      if (hasProgress) {
        showProgress({});
      }
      print(report);
    }
  }
  print(summary(whole.sums(), threshold));
  return whole.sums().isGood(threshold) ? 0 : 1;
}

}  // namespace

int main(int argc, char** argv) {
  CLI::App options{
      "Compares what the component makes of an application's forms with what the toolkit's own translation "
      "makes "
      "of them.\nEvery form (.ui) is shown in every language (.ts) both ways and compared text by text.",
      "kobfidelity"};
  std::vector<std::string> folders;
  int sample = 1;
  double threshold = 99.9;
  bool verbose = false;
  options.add_option("DIR", folders, "Folders of applications, or a folder that holds such folders")
      ->required()
      ->check(CLI::ExistingDirectory);
  options.add_option("--sample", sample, "Check only every N-th form")->check(CLI::Range(1, 1'000'000));
  options.add_option("--threshold", threshold, "Per cent of the texts that must be equal")
      ->check(CLI::Range(0.0, 100.0))
      ->capture_default_str();
  options.add_flag("--verbose", verbose, "Show what the toolkit remarks while it loads the forms");
  options.footer(
      "Exit code: 0 when enough texts are equal and nothing failed, 1 otherwise, 2 for a wrong call.");
  try {
    options.parse(argc, argv);
  } catch (const CLI::ParseError& error) {
    return options.exit(error) == 0 ? 0 : 2;
  }

  // Nothing is ever shown, so no screen is needed.
  if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
  }
  if (!verbose) {
    qInstallMessageHandler(silent);
  }
  const QApplication application(argc, argv);
  return run(folders, sample, threshold);
}
