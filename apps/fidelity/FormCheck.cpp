// SPDX-FileCopyrightText: The KOBTraduction authors
#include "FormCheck.h"

#include "ModelTexts.h"
#include "QmTranslator.h"
#include "Reasons.h"
#include "RecordingBoxes.h"
#include "UiKeys.h"

#include <apps/uiform/UiForm.h>
#include <kobtraductionqt/KOBTraductionQt.h>

#include <QWidget>

namespace kob::fidelity {

namespace {

class Check {
 public:
  Check(const QString& uiFile, const QString& module, KOBModeleTraduction& model, RecordingBoxes& boxes)
      : uiFile_(uiFile), module_(module), moduleText_(qt::toText(module)), model_(model), boxes_(boxes) {}

  FormResult run(const std::vector<CheckedLanguage>& languages) {
    if (!keys_.read(uiFile_, &result_.loadError) || !harvest() || !checkReference()) {
      return std::move(result_);
    }
    for (const CheckedLanguage& language : languages) {
      fillLanguage(*formCell(), keys_, language.catalog, language.langue);
      result_.languages.push_back(compareLanguage(language));
    }
    return std::move(result_);
  }

 private:
  std::unique_ptr<QWidget> load() {
    QString error;
    std::unique_ptr<QWidget> form = loadUiForm(uiFile_, &error);
    if (form == nullptr) {
      result_.loadError = error;
    }
    return form;
  }

  void expect(bool condition, const QString& violation) {
    if (!condition) {
      result_.violations.append(violation);
    }
  }

  void takeMessages(const QString& when) {
    for (const QString& message : boxes_.take()) {
      result_.messages.append(QStringLiteral("%1: %2").arg(when, message));
    }
  }

  /// The cell below which this form's cells stand.
  const KOBCellTraduction* moduleCell() const { return model_.Racine()->findCell(moduleText_); }
  const KOBCellTraduction* formCell() const {
    const KOBCellTraduction* module = moduleCell();
    return module != nullptr && module->ColCell() != nullptr && module->ColCell()->Count() == 1
               ? module->ColCell()->Item(1).get()
               : nullptr;
  }
  QString printed() const { return moduleCell() != nullptr ? printCells(*moduleCell()) : QString(); }

  bool harvest() {
    const std::unique_ptr<QWidget> form = load();
    if (form == nullptr) {
      return false;
    }
    const std::vector<FormText> before = readFormTexts(*form);
    model_.UpdateWithForm(qt::hostForm(form.get()), moduleText_);
    takeMessages(QStringLiteral("harvesting"));
    expect(sameTexts(before, readFormTexts(*form)), QStringLiteral("harvesting changed the form"));
    if (formCell() == nullptr) {
      result_.loadError = QStringLiteral("nothing was harvested");
      return false;
    }
    const QString first = printed();
    model_.UpdateWithForm(qt::hostForm(form.get()), moduleText_);
    takeMessages(QStringLiteral("harvesting again"));
    expect(printed() == first, QStringLiteral("harvesting again changed the model"));
    return true;
  }

  /// On a fresh form: the same model once more, and language 1 leaves every text as it is.
  bool checkReference() {
    const std::unique_ptr<QWidget> form = load();
    if (form == nullptr) {
      return false;
    }
    const QString first = printed();
    model_.UpdateWithForm(qt::hostForm(form.get()), moduleText_);
    takeMessages(QStringLiteral("harvesting a fresh form"));
    expect(printed() == first, QStringLiteral("harvesting a fresh form changed the model"));
    const std::vector<FormText> before = readFormTexts(*form);
    model_.TraduitDialog(qt::hostForm(form.get()), 1, moduleText_);
    takeMessages(QStringLiteral("applying language 1"));
    const std::vector<FormText> after = readFormTexts(*form);
    for (const Difference& difference : compare(before, before, after).differences) {
      expect(false,
             QStringLiteral("language 1 changed %1 of %2: \"%3\" to \"%4\"")
                 .arg(difference.property, difference.address, difference.expected, difference.actual));
    }
    return true;
  }

  LanguageResult compareLanguage(const CheckedLanguage& language) {
    LanguageResult result;
    std::vector<FormText> expected;
    {
      const InstalledTranslator installed(*language.translator);
      const std::unique_ptr<QWidget> translated = load();
      if (translated == nullptr) {
        return result;
      }
      expected = readFormTexts(*translated);
    }
    const std::unique_ptr<QWidget> form = load();
    if (form == nullptr) {
      return result;
    }
    const std::vector<FormText> original = readFormTexts(*form);
    model_.TraduitDialog(qt::hostForm(form.get()), language.langue, moduleText_);
    takeMessages(QStringLiteral("applying %1").arg(language.name));
    result.comparison = compare(original, expected, readFormTexts(*form));
    for (const Difference& difference : result.comparison.differences) {
      result.differences.push_back({difference, reasonOf(difference, {*form, module_, model_, keys_,
                                                                      language.catalog, language.langue})});
    }
    return result;
  }

  static bool sameTexts(const std::vector<FormText>& before, const std::vector<FormText>& after) {
    return before.size() == after.size() && compare(before, before, after).differences.empty();
  }

  const QString& uiFile_;
  const QString& module_;
  const Text moduleText_;
  KOBModeleTraduction& model_;
  RecordingBoxes& boxes_;
  UiKeys keys_;
  FormResult result_;
};

}  // namespace

FormResult checkForm(const QString& uiFile, const QString& module, KOBModeleTraduction& model,
                     const std::vector<CheckedLanguage>& languages, RecordingBoxes& boxes) {
  return Check(uiFile, module, model, boxes).run(languages);
}

}  // namespace kob::fidelity
