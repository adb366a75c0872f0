// SPDX-FileCopyrightText: The KOBTraduction authors
#include "UiForm.h"

#include <QBuffer>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QUiLoader>

namespace kob {

QByteArray withShortEnumerators(const QByteArray& ui) {
  // Only inside the elements and the attribute that hold enumerators: a text may read like one.
  static const QRegularExpression holder(
      QStringLiteral("<(?:set|enum)>[^<]*</|\\salignment\\s*=\\s*(?:\"[^\"]*\"|'[^']*')"));
  static const QRegularExpression scoped(QStringLiteral("(\\w+)::\\w+::(\\w+)"));
  // Latin-1 keeps every byte as it is, whatever the encoding of the file.
  const QString text = QString::fromLatin1(ui);
  QString result;
  qsizetype done = 0;
  for (auto match = holder.globalMatch(text); match.hasNext();) {
    const QRegularExpressionMatch found = match.next();
    result += QStringView(text).sliced(done, found.capturedStart() - done);
    result += found.captured().replace(scoped, QStringLiteral("\\1::\\2"));
    done = found.capturedEnd();
  }
  result += QStringView(text).sliced(done);
  return result.toLatin1();
}

std::unique_ptr<QWidget> loadUiForm(const QString& path, QString* error) {
  const auto fail = [error](const QString& reason) {
    if (error != nullptr) {
      *error = reason;
    }
    return nullptr;
  };
  QFile file(path);
  if (!file.open(QIODevice::ReadOnly)) {
    return fail(QStringLiteral("cannot be read: %1").arg(file.errorString()));
  }
  QByteArray bytes = withShortEnumerators(file.readAll());
  QBuffer buffer(&bytes);
  buffer.open(QIODevice::ReadOnly);
  QUiLoader loader;
  loader.setWorkingDirectory(QFileInfo(path).absoluteDir());
  std::unique_ptr<QWidget> form(loader.load(&buffer));
  if (form == nullptr) {
    // The loader itself does not name a class that it does not know.
    static const QRegularExpression root(QStringLiteral("<widget\\s[^>]*\\bclass\\s*=\\s*[\"']([^\"']*)"));
    const QString rootClass = root.match(QString::fromUtf8(bytes)).captured(1);
    const QString reason = loader.errorString().isEmpty()
                               ? QStringLiteral("the toolkit's loader makes no form of it")
                               : loader.errorString().simplified();
    return fail(rootClass.isEmpty() ? reason
                                    : QStringLiteral("%1 (its root is a \"%2\")").arg(reason, rootClass));
  }
  return form;
}

}  // namespace kob
