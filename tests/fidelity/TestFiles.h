// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include <QDir>
#include <QFile>
#include <QString>
#include <QTemporaryDir>

#include <ostream>

/// Lets a failing check show texts.
inline void PrintTo(const QString& text, std::ostream* out) {
  *out << '"' << text.toStdString() << '"';
}

namespace kob::fidelity {

/// A folder of files that a test writes; gone with the object.
class TestFiles {
 public:
  QString write(const QString& name, const QByteArray& content) const {
    QString path = folder_.filePath(name);
    QDir().mkpath(QFileInfo(path).path());
    QFile file(path);
    if (file.open(QIODevice::WriteOnly)) {
      file.write(content);
    }
    return path;
  }
  /// A form of class "Form" with the given content of its widget.
  QString writeForm(const QString& name, const QByteArray& content, const QByteArray& after = {}) const {
    return write(name, "<ui version=\"4.0\"><class>Form</class><widget class=\"QWidget\" name=\"Form\">" +
                           content + "</widget>" + after + "</ui>");
  }
  /// A translation file with the given messages in the context "Form".
  QString writeTs(const QString& name, const QByteArray& messages, const QByteArray& language = "fr") const {
    return write(name, "<!DOCTYPE TS><TS version=\"2.1\" language=\"" + language +
                           "\"><context><name>Form</name>" + messages + "</context></TS>");
  }
  QString path() const { return folder_.path(); }

 private:
  QTemporaryDir folder_;
};

}  // namespace kob::fidelity
