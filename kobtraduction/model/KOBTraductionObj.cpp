// SPDX-FileCopyrightText: The KOBTraduction authors
#include <kobtraduction/base/Failure.h>
#include <kobtraduction/component/Global_Util.h>
#include <kobtraduction/model/KOBTraductionObj.h>

#include <algorithm>
#include <utility>

namespace kob {

namespace {

/// Nearly all entries of a model bear one of these names.
const StoredText usualNames[] = {StoredText(), StoredText::view(u"Caption"), StoredText::view(u"ToolTip")};

}  // namespace

KOBTraductionObj::Name KOBTraductionObj::makeName(TextView name) {
  for (const StoredText& usual : usualNames) {
    if (sameUnits(name, usual.text())) {
      return Name(&usual);
    }
  }
  return Name(new StoredText(name));
}

void KOBTraductionObj::ReleaseName::operator()(const StoredText* name) const noexcept {
  const bool isUsual = std::any_of(std::begin(usualNames), std::end(usualNames),
                                   [name](const StoredText& usual) { return name == &usual; });
  if (!isUsual) {
    delete name;
  }
}

KOBTraductionObj::KOBTraductionObj() : KOBTraductionObj(Global_Util::NbLangues()) {}

KOBTraductionObj::KOBTraductionObj(std::int32_t languages)
    : colTraduction_(std::in_place, languages), nom_(makeName({})) {}

void KOBTraductionObj::setnom(TextView name) {
  nom_ = makeName(name);
}

void KOBTraductionObj::ChangeTraduction(TextView Traduction, std::int32_t Index) {
  if (Index < 1 || Index > Global_Util::NbLangues()) {
    return;
  }
  texts().Replace(Index, Traduction);
}

void KOBTraductionObj::UpdateNbLangues() {
  TextList& list = texts();
  // Starts at the present count and not one past it: each extension overshoots by one, and files hold lists
  // of that length.
  const std::int32_t last = Global_Util::NbLangues();
  if (list.Count() <= last) {
    list.AddEmpty(last - list.Count());
    list.AddEmpty(1);
  }
}

void KOBTraductionObj::UpdateTestLangue(std::int32_t langue) {
  ChangeTraduction(u"** " + Text(texts().Item(1)) + u" **", langue);
}

void KOBTraductionObj::ClearLangue(std::int32_t langue) {
  ChangeTraduction({}, langue);
}

void KOBTraductionObj::CompleteTraduction(KOBTraductionObj& target) const {
  const TextList& source = texts();
  if (!equalUpper(target.texts().Item(1), source.Item(1))) {
    return;
  }
  for (std::int32_t i = 2, last = Global_Util::NbLangues(); i <= last; ++i) {
    if (target.texts().Item(i).empty()) {
      target.ChangeTraduction(source.Item(i), i);
    }
  }
}

void KOBTraductionObj::CompleteColTraduction(TextView reference, TextList& list) const {
  const TextList& source = texts();
  if (!equalUpper(reference, source.Item(1))) {
    return;
  }
  const std::int32_t last = Global_Util::NbLangues();
  for (std::int32_t i = 2; i <= last; ++i) {
    if (!list.Item(i).empty() || source.Item(i).empty()) {
      continue;
    }
    const Text text(source.Item(i));
    list.Remove(i);
    if (i < last) {
      list.Add(text, i);
    } else {
      // A list that was extended is one longer than the language count: the last language's text then goes
      // behind that extra item. Callers live with it.
      list.Add(text);
    }
  }
}

bool KOBTraductionObj::ContainsText(TextView search) const {
  const TextView reference = texts().Item(1);
  if (reference.empty() || reference.size() < search.size()) {
    return false;
  }
  for (std::size_t start = 0; start + search.size() <= reference.size(); ++start) {
    if (equalUpper(reference.substr(start, search.size()), search)) {
      return true;
    }
  }
  return false;
}

bool KOBTraductionObj::IsLangueEmpty(std::int16_t index) const {
  return texts().Item(index + 1).empty();
}

}  // namespace kob
