// SPDX-FileCopyrightText: The KOBTraduction authors
#include "TextTable.h"

#include "Languages.h"

#include <QDir>
#include <QFile>

#include <utility>

// The files are linked into a static library, where nothing else refers to them.
static void registerFiles() {
  Q_INIT_RESOURCE(texts);
}

namespace kob::demo {

using namespace Qt::StringLiterals;

namespace {

// A path and a text, told apart by a character that neither has.
QString key(const QString& path, const QString& french) {
  return path.toUpper() + QChar(u'\0') + french;
}

QString placeOf(const QString& file, qsizetype line) {
  return u"%1:%2"_s.arg(file).arg(line + 1);
}

}  // namespace

TextTable TextTable::builtIn() {
  registerFiles();
  return fromFolder(u":/texts"_s);
}

TextTable TextTable::fromFolder(const QString& path) {
  TextTable table;
  const QDir folder(path);
  for (const QString& name : folder.entryList({u"*.txt"_s}, QDir::Files, QDir::Name)) {
    QFile file(folder.filePath(name));
    if (!file.open(QIODevice::ReadOnly)) {
      table.errors_ += name + u": cannot be read"_s;
    } else if (name == "factors.txt"_L1) {
      table.readFactors(file.readAll(), name);
    } else {
      table.readTexts(file.readAll(), name);
    }
  }
  return table;
}

void TextTable::readTexts(const QByteArray& file, const QString& name) {
  const QStringList lines = QString::fromUtf8(file).split(u'\n');
  QHash<QString, QString> block;
  qsizetype begin = 0;
  for (qsizetype i = 0; i <= lines.size(); ++i) {
    const QString line = i < lines.size() ? lines[i].trimmed() : QString();
    if (line.startsWith(u'#')) {
      continue;
    }
    if (line.isEmpty()) {
      if (!block.isEmpty()) {
        add(std::exchange(block, {}), placeOf(name, begin));
      }
      continue;
    }
    if (block.isEmpty()) {
      begin = i;
    }
    const qsizetype colon = line.indexOf(u": "_s);
    if (colon < 0) {
      errors_ += placeOf(name, i) + u": no \"language: text\""_s;
      continue;
    }
    block.insert(line.left(colon), line.mid(colon + 2).replace("\\n"_L1, "\n"_L1));
  }
}

void TextTable::add(const QHash<QString, QString>& block, const QString& place) {
  const QString french = block.value(QLatin1String(referenceCode));
  Row row;
  qsizetype known = 1 + (block.contains(u"at"_s) ? 1 : 0);
  for (std::size_t i = 0; i < row.texts.size(); ++i) {
    const QString code = QLatin1String(languages[i + 1].code);
    row.texts[i] = block.value(code);
    if (row.texts[i].isEmpty()) {
      errors_ += place + u": no text in "_s + code;
    }
    known += block.contains(code) ? 1 : 0;
  }
  if (french.isEmpty() || known != block.size()) {
    errors_ += place + u": no French text, or a language that there is not"_s;
    return;
  }
  const QString rowKey = key(block.value(u"at"_s), french);
  if (rows_.contains(rowKey)) {
    errors_ += place + u": stands twice: "_s + french;
  }
  rows_.insert(rowKey, row);
}

void TextTable::readFactors(const QByteArray& file, const QString& name) {
  const QStringList lines = QString::fromUtf8(file).split(u'\n');
  for (qsizetype i = 0; i < lines.size(); ++i) {
    const QStringList fields = lines[i].simplified().split(u' ', Qt::SkipEmptyParts);
    if (fields.isEmpty() || fields[0].startsWith(u'#')) {
      continue;
    }
    Factor factor{fields[0], fields.value(1) == "width"_L1, {}};
    bool isGood = fields.size() == 7 && (factor.isWidth || fields[1] == "left"_L1);
    for (std::size_t n = 0; isGood && n < factor.values.size(); ++n) {
      factor.values[n] = fields[static_cast<qsizetype>(n) + 2].toDouble(&isGood);
    }
    if (isGood) {
      factors_.push_back(std::move(factor));
    } else {
      errors_ += placeOf(name, i) + u": not a path, \"left\" or \"width\", and five factors"_s;
    }
  }
}

std::optional<TextTable::Texts> TextTable::find(const QString& path, const QString& french) {
  for (const QString& rowKey : {key(path, french), key({}, french)}) {
    const auto found = rows_.find(rowKey);
    if (found != rows_.end()) {
      found->isUsed = true;
      return found->texts;
    }
  }
  return std::nullopt;
}

QStringList TextTable::unused() const {
  QStringList result;
  for (auto row = rows_.begin(); row != rows_.end(); ++row) {
    if (!row->isUsed) {
      result += row.key().section(QChar(u'\0'), 1);
    }
  }
  result.sort();
  return result;
}

}  // namespace kob::demo
