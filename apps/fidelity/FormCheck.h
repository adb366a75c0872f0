// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include "Comparison.h"
#include "TsCatalog.h"

#include <kobtraduction/model/KOBModeleTraduction.h>

#include <QString>
#include <QStringList>
#include <QTranslator>

#include <memory>
#include <vector>

namespace kob::fidelity {

class RecordingBoxes;

/// A language to compare: where the component gets its texts from, and what the toolkit translates with.
struct CheckedLanguage {
  QString name;
  TsCatalog catalog;
  std::unique_ptr<QTranslator> translator;
  /// Its number in the model; 1 is the language of the forms.
  std::int32_t langue = 0;
};

struct ExplainedDifference {
  Difference difference;
  QString reason;
};

struct LanguageResult {
  Comparison comparison;
  std::vector<ExplainedDifference> differences;
};

/// What was seen of one form.
struct FormResult {
  /// Why the form could not be loaded; empty when it was.
  QString loadError;
  /// The component's messages, and what else must not happen: a harvest that changed the form, a second one
  /// that changed the model, language 1 changing a text.
  QStringList messages;
  QStringList violations;
  /// In the order of the languages; empty when the form was not loaded.
  std::vector<LanguageResult> languages;
};

/// Puts one form through the whole procedure. Its texts go below `module` of the application's model.
FormResult checkForm(const QString& uiFile, const QString& module, KOBModeleTraduction& model,
                     const std::vector<CheckedLanguage>& languages, RecordingBoxes& boxes);

}  // namespace kob::fidelity
