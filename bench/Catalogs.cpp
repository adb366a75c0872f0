// SPDX-FileCopyrightText: The KOBTraduction authors
#include "Catalogs.h"

#include <QDir>
#include <QFile>
#include <QLibraryInfo>
#include <QProcess>
#include <QStandardPaths>

#include <cstdio>

namespace bench {

namespace {

bool writeFile(const QString& name, const std::string& text) {
  QFile file(name);
  return file.open(QIODevice::WriteOnly) && file.write(text.data(), static_cast<qint64>(text.size())) >= 0 &&
         file.flush();
}

std::string escapedXml(const std::string& text) {
  return QString::fromStdString(text).toHtmlEscaped().toStdString();
}

/// In double quotes, as catalogs of gettext write it.
std::string quoted(const std::string& text) {
  std::string result = "\"";
  for (const char unit : text) {
    if (unit == '"' || unit == '\\') {
      result += '\\';
    }
    result += unit;
  }
  return result + '"';
}

QString qtTool(const QString& name) {
  return QStandardPaths::findExecutable(name, {QLibraryInfo::path(QLibraryInfo::BinariesPath)});
}

std::string tsOf(const std::vector<Message>& messages) {
  std::string ts = "<?xml version=\"1.0\" encoding=\"utf-8\"?>\n<!DOCTYPE TS>\n<TS version=\"2.1\">\n";
  const std::string* context = nullptr;
  for (const Message& message : messages) {
    if (context == nullptr || *context != message.context) {
      ts += context != nullptr ? "</context>\n" : "";
      ts += "<context><name>" + escapedXml(message.context) + "</name>\n";
      context = &message.context;
    }
    ts += "<message><source>" + escapedXml(message.source) + "</source><translation>" +
          escapedXml(message.translation) + "</translation></message>\n";
  }
  ts += context != nullptr ? "</context>\n</TS>\n" : "</TS>\n";
  return ts;
}

constexpr const char* poHeader = "msgid \"\"\nmsgstr \"Content-Type: text/plain; charset=UTF-8\\n\"\n\n";

}  // namespace

bool runTool(const QString& tool, const QStringList& arguments) {
  QProcess process;
  process.start(tool, arguments);
  const bool done =
      process.waitForFinished(-1) && process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0;
  if (!done) {
    std::fprintf(stderr, "kobbench: %s does not run: %s\n", tool.toUtf8().constData(),
                 process.readAllStandardError().constData());
  }
  return done;
}

QString compileQtCatalog(const std::vector<Message>& messages, const QString& folder, const QString& name) {
  const QString source = folder + '/' + name + ".ts";
  QString compiled = folder + '/' + name + ".qm";
  const QString lrelease = qtTool("lrelease");
  if (lrelease.isEmpty() || !writeFile(source, tsOf(messages)) ||
      !runTool(lrelease, {"-silent", source, "-qm", compiled})) {
    return {};
  }
  return compiled;
}

bool compileGettextCatalog(const std::vector<Message>& messages, const QString& folder,
                           const QString& language, const QString& domain) {
  std::string po = poHeader;
  for (const Message& message : messages) {
    po += "msgid " + quoted(message.source) + "\nmsgstr " + quoted(message.translation) + "\n\n";
  }
  const QString place = folder + '/' + language + "/LC_MESSAGES/";
  const QString source = folder + '/' + domain + ".po";
  return QDir().mkpath(place) && writeFile(source, po) &&
         runTool("msgfmt", {"-o", place + domain + ".mo", source});
}

bool writeMergeCatalogs(const std::vector<Message>& own, const std::vector<Message>& other,
                        const QString& folder) {
  const auto poOf = [](const std::vector<Message>& messages) {
    std::string po = poHeader;
    for (const Message& message : messages) {
      po += "msgctxt " + quoted(message.context) + "\nmsgid " + quoted(message.source) + "\nmsgstr " +
            quoted(message.translation) + "\n\n";
    }
    return po;
  };
  return writeFile(folder + "/own.po", poOf(own)) && writeFile(folder + "/other.po", poOf(other)) &&
         writeFile(folder + "/own.ts", tsOf(own)) && writeFile(folder + "/other.ts", tsOf(other));
}

bool runMsgmerge(const QString& folder) {
  // It would otherwise look for similar texts, which nobody else does here.
  return runTool("msgmerge", {"--quiet", "--no-fuzzy-matching", "--compendium", folder + "/other.po", "-o",
                              folder + "/merged.po", folder + "/own.po", folder + "/own.po"});
}

bool runLconvert(const QString& folder) {
  return runTool(qtTool("lconvert"),
                 {"-i", folder + "/other.ts", "-i", folder + "/own.ts", "-o", folder + "/merged.ts"});
}

}  // namespace bench
