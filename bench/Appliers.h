// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include "WidgetForm.h"

#include <kobtraduction/model/KOBModeleTraduction.h>

#include <QHash>
#include <QString>
#include <QTranslator>

#include <string>
#include <vector>

/// The ways of showing a form in another language, each with prepare(language), which is not timed, and
/// apply(language), which is.
namespace bench {

/// The component, through the Qt binding; the form is wrapped anew each time.
class Component {
 public:
  explicit Component(const WidgetForm& form);
  void prepare(int /*language*/) {}
  void apply(int language);

 private:
  const WidgetForm& form_;
  kob::KOBModeleTraduction model_;
};

/// What none can be faster than: the setters, called with new strings made of texts that are there.
class BareSetters {
 public:
  explicit BareSetters(const WidgetForm& form);
  void prepare(int /*language*/) {}
  void apply(int language);

 private:
  struct Texts {
    std::u16string title;
    std::vector<std::u16string> captions;
    std::vector<std::u16string> toolTips;
  };

  const WidgetForm& form_;
  /// Of the languages 2 and 3.
  Texts texts_[2];
};

/// The code that uic generates: every text looked up by its source in the installed translator.
class GeneratedCode {
 public:
  /// Compiles the catalogs into `folder`.
  GeneratedCode(const WidgetForm& form, const QString& folder);
  ~GeneratedCode();
  void prepare(int language);
  void apply(int language);

 private:
  const WidgetForm& form_;
  std::string title_;
  std::vector<std::string> captions_;
  std::vector<std::string> toolTips_;
  QTranslator translators_[2];
  QTranslator* installed_ = nullptr;
};

/// Code that knows nothing of the form: every text property of every widget whose present value is a known
/// text is written in the other language.
class PropertyWalk {
 public:
  explicit PropertyWalk(const WidgetForm& form);
  void prepare(int /*language*/) {}
  void apply(int language);

 private:
  const WidgetForm& form_;
  /// From a text in any language to the one in language 2 and in language 3.
  QHash<QString, QString> to_[2];
};

}  // namespace bench
