// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include <QHash>
#include <QSet>
#include <QString>

#include <optional>

namespace kob::fidelity {

/// What names a text in a Qt Linguist file: the class of the form, the text as it was written, and the
/// comment that tells two uses of one text apart. An id-based form names its texts by `id` alone.
struct TextKey {
  QString context;
  QString source;
  QString comment;
  QString id;
};

/// The translations of one language as the application would ship them: finished entries and unfinished ones
/// that have a text. Entries that vanished or are obsolete, and empty ones, do not count.
class TsCatalog {
 public:
  /// Adds a `.ts` file; what was added first wins. False, and a sentence in `error`, when the file cannot be
  /// read or is no Linguist file; the catalog is unchanged then.
  bool add(const QString& path, QString* error);

  /// The translation of a text: the entry of its comment, else the one without a comment. When a text stands
  /// only under comments, the first of them also answers for the text without one, as in a released file.
  std::optional<QString> translate(const TextKey& key) const;

  /// The language attribute of the first file that has one; may be empty.
  const QString& language() const noexcept { return language_; }
  /// Whether the entries are named by ids.
  bool isIdBased() const noexcept { return !byId_.isEmpty(); }
  qsizetype size() const noexcept { return entries_.size() + byId_.size(); }

 private:
  QHash<QString, QString> entries_;
  /// Per text without regard to comments: the entry that answers when there is none without a comment.
  QHash<QString, QString> firstCommented_;
  QSet<QString> hasBare_;
  QHash<QString, QString> byId_;
  QString language_;
};

}  // namespace kob::fidelity
