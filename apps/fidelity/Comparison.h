// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include "FormTexts.h"

#include <array>
#include <vector>

namespace kob::fidelity {

/// A text that does not read as the toolkit's own translation made it read.
struct Difference {
  QString address;
  QString property;
  TextKind kind;
  QString original;
  /// What the toolkit shows, and what the component left on the form.
  QString expected;
  QString actual;
  bool isDerived;
  /// The object on the form that the component translated; null when that form has none like it.
  QPointer<QObject> object;
};

struct Comparison {
  /// The managed texts that the toolkit's translation changed, and how many of them are tool tips that read
  /// as derived from the caption.
  int changed = 0;
  int changedDerived = 0;
  /// The texts that it changed, by kind, managed or not.
  std::array<int, textKindCount> changedByKind{};
  std::vector<Difference> differences;
};

/// Compares one form's texts: as designed, as the toolkit translated them, and as the component did. A
/// managed text differs when the component's is not the toolkit's; a text of another kind when the toolkit
/// left it alone and the component did not.
Comparison compare(const std::vector<FormText>& original, const std::vector<FormText>& expected,
                   const std::vector<FormText>& actual);

}  // namespace kob::fidelity
