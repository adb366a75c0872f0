// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include "Application.h"
#include "FormCheck.h"

#include <QString>

#include <array>
#include <vector>

namespace kob::fidelity {

/// The sums of one language of an application.
struct LanguageSums {
  QString name;
  int forms = 0;
  /// The managed texts that the toolkit's translation changed, and the differences.
  int texts = 0;
  int differences = 0;
  int derivedTips = 0;
  int derivedDifferences = 0;
  std::array<int, textKindCount> changedByKind{};
};

/// The sums of a run.
struct Sums {
  int forms = 0;
  int failedForms = 0;
  int messages = 0;
  int violations = 0;
  int badFiles = 0;
  int unknownLanguages = 0;
  int texts = 0;
  int derivedTips = 0;
  int differences = 0;
  int derivedDifferences = 0;

  int equal() const { return texts > differences ? texts - differences : 0; }
  /// Something was compared, nothing failed, and at least `threshold` per cent of the texts are equal.
  bool isGood(double threshold) const;
};

/// Gathers what was seen of one application and prints it.
class ApplicationReport {
 public:
  ApplicationReport(const Application& application, const std::vector<CheckedLanguage>& languages);

  void add(const QString& form, const FormResult& result);
  /// A translation that could not be used.
  void addBadFile(const QString& file, const QString& reason);

  QString text() const;
  void addTo(Sums& sums) const;

 private:
  QString table() const;

  const Application& application_;
  std::vector<LanguageSums> languages_;
  int forms_ = 0;
  int failedForms_ = 0;
  int messages_ = 0;
  int violations_ = 0;
  int badFiles_ = 0;
  QStringList lines_;
};

/// What the whole run amounts to; its last line reads "fidelity: E of T equal".
QString summary(const Sums& sums, double threshold);

}  // namespace kob::fidelity
