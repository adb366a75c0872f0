// SPDX-FileCopyrightText: The KOBTraduction authors
#include "Comparison.h"

namespace kob::fidelity {

namespace {

const QString absent = QStringLiteral("(absent)");

}  // namespace

Comparison compare(const std::vector<FormText>& original, const std::vector<FormText>& expected,
                   const std::vector<FormText>& actual) {
  const QHash<QString, const FormText*> expectedByKey = byKey(expected);
  const QHash<QString, const FormText*> actualByKey = byKey(actual);
  Comparison result;
  for (const FormText& text : original) {
    const FormText* toolkit = expectedByKey.value(text.key());
    const FormText* component = actualByKey.value(text.key());
    const QString wanted = toolkit != nullptr ? toolkit->value : absent;
    const QString got = component != nullptr ? component->value : absent;
    const bool isChanged = wanted != text.value;
    if (isChanged && isManaged(text.kind)) {
      ++result.changed;
      result.changedDerived += text.isDerived ? 1 : 0;
    }
    if (isChanged && !text.isDerived) {
      ++result.changedByKind.at(static_cast<std::size_t>(text.kind));
    }
    if (got != wanted && (isManaged(text.kind) || !(isChanged || text.isDerived))) {
      result.differences.push_back({text.address, text.property, text.kind, text.value, wanted, got,
                                    text.isDerived, component != nullptr ? component->object : nullptr});
    }
  }

  // What only a translated load has must not go unnoticed either.
  const QHash<QString, const FormText*> originalByKey = byKey(original);
  for (const FormText& text : expected) {
    if (!isManaged(text.kind) || text.value.isEmpty() || originalByKey.contains(text.key())) {
      continue;
    }
    ++result.changed;
    ++result.changedByKind.at(static_cast<std::size_t>(text.kind));
    result.differences.push_back(
        {text.address, text.property, text.kind, absent, text.value, absent, false, nullptr});
  }
  return result;
}

}  // namespace kob::fidelity
