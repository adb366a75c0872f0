// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include <QByteArray>
#include <QHash>
#include <QString>
#include <QStringList>

#include <array>
#include <optional>
#include <vector>

namespace kob::demo {

/// The demo's translations, read from its text files (docs/demo.md describes them): per French text the texts
/// in the other languages, and per control the left and width factors.
class TextTable {
 public:
  /// Item 0 belongs to language 2.
  using Texts = std::array<QString, 5>;

  struct Factor {
    QString path;
    bool isWidth;
    std::array<double, 5> values;
  };

  /// The files that the program carries.
  static TextTable builtIn();
  /// Every .txt file of a folder; factors.txt holds the factors.
  static TextTable fromFolder(const QString& path);

  void readTexts(const QByteArray& file, const QString& name);
  void readFactors(const QByteArray& file, const QString& name);

  /// What was wrong with the files.
  const QStringList& errors() const { return errors_; }

  /// The texts for a French text on the control at `path`: those meant for that path, else those for any.
  std::optional<Texts> find(const QString& path, const QString& french);
  const std::vector<Factor>& factors() const { return factors_; }

  /// The French texts that find() was never asked for.
  QStringList unused() const;

 private:
  struct Row {
    Texts texts;
    bool isUsed = false;
  };

  void add(const QHash<QString, QString>& block, const QString& place);

  QHash<QString, Row> rows_;
  std::vector<Factor> factors_;
  QStringList errors_;
};

}  // namespace kob::demo
