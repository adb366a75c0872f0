// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include <kobtraduction/model/KOBModeleTraduction.h>

#include <QByteArray>
#include <QList>
#include <QStringList>

#include <cstddef>
#include <functional>
#include <memory>

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

/// The sum of the lengths of all texts: reads every cell and every text.
std::size_t readAll(const kob::KOBModeleTraduction& model);

/// Finds every cell by its name, so that all tables of names are made.
void findAll(const kob::KOBModeleTraduction& model);

/// Bytes of this process that it shares with nobody.
std::size_t privateBytes();

/// Calls `grow` in a process of its own and tells by how many private bytes that grew; 0 when it failed.
std::size_t growthOf(const std::function<void()>& grow);

}  // namespace bench
