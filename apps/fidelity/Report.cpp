// SPDX-FileCopyrightText: The KOBTraduction authors
#include "Report.h"

#include <QHash>
#include <QTextStream>

#include <algorithm>

namespace kob::fidelity {

namespace {

/// A text on one line, short enough to be read.
QString shown(const QString& text) {
  QString line = text;
  line.replace(QLatin1Char('\\'), QStringLiteral("\\\\"));
  line.replace(QLatin1Char('\n'), QStringLiteral("\\n"));
  constexpr qsizetype longest = 120;
  return QLatin1Char('"') + (line.size() > longest ? line.first(longest) + QStringLiteral("...") : line) +
         QLatin1Char('"');
}

QString described(const Difference& difference) {
  return QStringLiteral("%1 of %2: %3 should read %4 and reads %5")
      .arg(difference.property, difference.address, shown(difference.original), shown(difference.expected),
           shown(difference.actual));
}

/// Tool tips of actions that read as derived from the action's text; part of T.
const QString derivedTips = QStringLiteral("derived tips");

}  // namespace

bool Sums::isGood(double threshold) const {
  return forms > 0 && texts > 0 && failedForms == 0 && messages == 0 && violations == 0 && badFiles == 0 &&
         100.0 * equal() >= threshold * texts;
}

ApplicationReport::ApplicationReport(const Application& application,
                                     const std::vector<CheckedLanguage>& languages)
    : application_(application) {
  for (const CheckedLanguage& language : languages) {
    languages_.push_back({language.name, 0, 0, 0, 0, 0, {}});
  }
  for (const BadFile& bad : application.badFiles) {
    addBadFile(bad.file, bad.reason);
  }
  for (const ApplicationLanguage& language : application.languages) {
    if (!language.isKnown) {
      lines_.append(
          QStringLiteral("unknown language: %1 (%2)").arg(language.name, language.tsFiles.join(u' ')));
    }
  }
}

void ApplicationReport::addBadFile(const QString& file, const QString& reason) {
  ++badFiles_;
  lines_.append(QStringLiteral("bad file: %1: %2").arg(file, reason));
}

void ApplicationReport::add(const QString& form, const FormResult& result) {
  ++forms_;
  messages_ += static_cast<int>(result.messages.size());
  violations_ += static_cast<int>(result.violations.size());
  for (const QString& message : result.messages) {
    lines_.append(QStringLiteral("message: %1: %2").arg(form, message));
  }
  for (const QString& violation : result.violations) {
    lines_.append(QStringLiteral("violation: %1: %2").arg(form, violation));
  }
  if (!result.loadError.isEmpty()) {
    ++failedForms_;
    lines_.append(QStringLiteral("failed form: %1: %2").arg(form, result.loadError));
  }
  for (std::size_t i = 0; i < result.languages.size(); ++i) {
    const LanguageResult& language = result.languages[i];
    LanguageSums& sums = languages_[i];
    ++sums.forms;
    sums.texts += language.comparison.changed;
    sums.derivedTips += language.comparison.changedDerived;
    sums.differences += static_cast<int>(language.differences.size());
    for (std::size_t kind = 0; kind < textKindCount; ++kind) {
      sums.changedByKind.at(kind) += language.comparison.changedByKind.at(kind);
    }
    for (const ExplainedDifference& explained : language.differences) {
      sums.derivedDifferences += explained.difference.isDerived ? 1 : 0;
      lines_.append(QStringLiteral("difference: %1 %2: %3\n      reason: %4")
                        .arg(sums.name, form, described(explained.difference), explained.reason));
    }
  }
}

QString ApplicationReport::table() const {
  // What makes up T comes first; every kind that is not managed has a column of its own.
  qsizetype nameWidth = 8;
  for (const LanguageSums& sums : languages_) {
    nameWidth = std::max(nameWidth, sums.name.size());
  }
  const auto row = [nameWidth](const QString& name, auto cell) {
    QString line = QStringLiteral("  ") + name.leftJustified(nameWidth);
    for (const char* column : {"forms", "T", "equal"}) {
      line += cell(QString::fromLatin1(column), TextKind::Count).rightJustified(8);
    }
    for (std::size_t i = 0; i < textKindCount; ++i) {
      const auto kind = static_cast<TextKind>(i);
      line += (i == 0 || kind == TextKind::Items ? QStringLiteral(" | ") : QStringLiteral("  "));
      line += cell(kindName(kind), kind).rightJustified(kindName(kind).size());
      if (kind == TextKind::ToolTip) {
        line += QStringLiteral("  ") + cell(derivedTips, TextKind::Count).rightJustified(derivedTips.size());
      }
    }
    return line + QLatin1Char('\n');
  };
  QString text = row(QStringLiteral("language"), [](const QString& column, TextKind) { return column; });
  for (const LanguageSums& sums : languages_) {
    const QHash<QString, int> totals = {{QStringLiteral("forms"), sums.forms},
                                        {QStringLiteral("T"), sums.texts},
                                        {QStringLiteral("equal"), std::max(0, sums.texts - sums.differences)},
                                        {derivedTips, sums.derivedTips}};
    text += row(sums.name, [&](const QString& column, TextKind kind) {
      return QString::number(kind == TextKind::Count ? totals.value(column)
                                                     : sums.changedByKind.at(static_cast<std::size_t>(kind)));
    });
  }
  return text;
}

QString ApplicationReport::text() const {
  QString text = QStringLiteral("%1: %2 of %3 forms\n")
                     .arg(application_.name)
                     .arg(forms_)
                     .arg(application_.forms.size());
  if (!languages_.empty()) {
    text += table();
  }
  for (const QString& line : lines_) {
    text += QStringLiteral("    ") + line + QLatin1Char('\n');
  }
  return text;
}

void ApplicationReport::addTo(Sums& sums) const {
  sums.forms += forms_;
  sums.failedForms += failedForms_;
  sums.messages += messages_;
  sums.violations += violations_;
  sums.badFiles += badFiles_;
  sums.unknownLanguages +=
      static_cast<int>(std::count_if(application_.languages.begin(), application_.languages.end(),
                                     [](const ApplicationLanguage& language) { return !language.isKnown; }));
  for (const LanguageSums& language : languages_) {
    sums.texts += language.texts;
    sums.derivedTips += language.derivedTips;
    sums.derivedDifferences += language.derivedDifferences;
    sums.differences += language.differences;
  }
}

QString summary(const Sums& sums, double threshold) {
  QString text;
  QTextStream out(&text);
  out << sums.forms << " forms, " << sums.failedForms << " failed; " << sums.messages << " messages; "
      << sums.violations << " violations; " << sums.badFiles << " bad files; " << sums.unknownLanguages
      << " unknown languages\n";
  const int written = sums.texts - sums.derivedTips;
  out << "tool tips that read as derived from their action's text: "
      << std::max(0, sums.derivedTips - sums.derivedDifferences) << " of " << sums.derivedTips
      << " equal; all other texts: " << std::max(0, written - (sums.differences - sums.derivedDifferences))
      << " of " << written << " equal\n";
  if (sums.texts == 0) {
    out << "nothing was compared\n";
  } else if (!sums.isGood(threshold)) {
    out << "not good enough: " << threshold << " % equal and no failure are asked for\n";
  }
  out << "fidelity: " << sums.equal() << " of " << sums.texts << " equal\n";
  return text;
}

}  // namespace kob::fidelity
