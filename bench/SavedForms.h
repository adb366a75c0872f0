// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include <kobtraduction/model/KOBModeleTraduction.h>

#include <QByteArray>
#include <QList>
#include <QStringList>

#include <cstddef>
#include <memory>
#include <string>

namespace pugi {
class xml_document;
}

namespace bench {

/// The texts of made-up forms in six languages: `entries` controls with one entry each, ten in a frame, a
/// hundred in a form. The same content in each way to keep it in a file.
class SavedForms {
 public:
  static constexpr int languages = 6;

  explicit SavedForms(int entries) : entries_(entries) {}

  int entries() const noexcept { return entries_; }
  int texts() const noexcept { return entries_ * languages; }

  std::unique_ptr<kob::KOBModeleTraduction> model() const;
  /// For each entry its path and its texts.
  QList<QStringList> lists() const;
  /// Elements for cells within one another, and for texts.
  std::unique_ptr<pugi::xml_document> document() const;
  /// As many bytes as the texts are said to need when they are kept as plainly as can be: 64 for each.
  QByteArray flatBytes() const;

 private:
  QString text(int entry, int language) const;

  int entries_;
};

/// The sum of the lengths of all texts, in each of the ways: reads every cell and every text.
std::size_t readAll(const kob::KOBModeleTraduction& model);
std::size_t readAll(const QList<QStringList>& lists);
std::size_t readAll(const pugi::xml_document& document);

/// Finds every cell by its name, so that all tables of names are made.
void findAll(const kob::KOBModeleTraduction& model);

// Loading, in each of the ways. Throws when the file cannot be read.

std::unique_ptr<kob::KOBModeleTraduction> loadModel(const QString& file);
QList<QStringList> loadLists(const QString& file);
std::unique_ptr<pugi::xml_document> loadXml(const QString& file);

/// What is loaded for a figure of memory: `Found` is a model all of whose cells were looked up.
enum class Loaded { Model, Found, Lists, Xml };

/// By how many bytes that it shares with nobody a process grows when it loads a file and reads all of it. It
/// is a process of its own, started by the option --grow, so that nothing fills what others left.
std::size_t growthOf(Loaded what, const QString& file);
/// What that process does: loads, and prints the figure. Its exit status.
int grow(int what, const std::string& file);

}  // namespace bench
