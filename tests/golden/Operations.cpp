// SPDX-FileCopyrightText: The KOBTraduction authors
#include "Operations.h"

#include <kobtraduction/base/Failure.h>
#include <kobtraduction/component/Global_Util.h>
#include <tests/doubles/TreeText.h>
#include <tests/doubles/Utf8.h>

#include <algorithm>

namespace kob::testing {

namespace {

std::int32_t freshThread() {
  const std::int32_t before = Global_Util::NbLangues();
  Global_Util::setNbLangues(0);
  return before;
}

}  // namespace

/// The words after the operation: first the ones that stand by their place, then named ones.
class CaseRun::Arguments {
 public:
  Arguments(const Line& line, CaseHost& host) : line_(line), words_(wordsOf(line)), host_(host) {}

  const Line& line() const { return line_; }
  Text text(std::size_t place) const { return word(place).value; }
  std::string id(std::size_t place) const { return toUtf8(word(place).value); }
  HostRef control(std::size_t place) const { return host_.control(id(place)); }
  Value value(std::size_t place) const { return valueOf(word(place)); }
  std::int32_t number(std::size_t place) const { return value(place).asLong().value(); }

  Text module() const {
    const Word* const given = find("module");
    return given == nullptr ? Text() : given->value;
  }
  bool onlyVisible() const { return find("onlyVisible") != nullptr; }
  HostRef onlyContainer() const {
    const Word* const given = find("OnlyContainer");
    return given == nullptr ? nullptr : host_.control(toUtf8(given->value));
  }

 private:
  const Word& word(std::size_t place) const {
    if (place >= words_.size()) {
      badLine(line_, "an argument is missing");
    }
    return words_[place];
  }
  const Word* find(std::string_view key) const {
    const auto found = std::find_if(words_.begin() + 1, words_.end(),
                                    [key](const Word& one) { return !one.isText && one.key == key; });
    const auto named = std::find_if(words_.begin() + 1, words_.end(),
                                    [key](const Word& one) { return one.hasValue && one.key == key; });
    return named != words_.end() ? &*named : found != words_.end() ? &*found : nullptr;
  }

  const Line& line_;
  std::vector<Word> words_;
  CaseHost& host_;
};

CaseRun::CaseRun(CaseHost& host, std::string_view treeText) : host_(host), languagesBefore_(freshThread()) {
  growTree(model_.Racine(), treeText);
}

CaseRun::~CaseRun() {
  Global_Util::setNbLangues(languagesBefore_);
}

std::string CaseRun::tree() const {
  return printTree(*model_.Racine());
}

std::string CaseRun::messages() {
  notes_ += boxes_.take();
  return notes_ + (boxes_.hasUnusedAnswers() ? "an answer is left over\n" : "");
}

void CaseRun::note(const Line& line, const std::string& result) {
  notes_ += boxes_.take() + line.text + " -> " + result + "\n";
}

KOBCellTraduction& CaseRun::cell(const Arguments& arguments) const {
  KOBCellTraduction* const found = model_.findCell(arguments.text(1));
  if (found == nullptr) {
    badLine(arguments.line(), "there is no such cell");
  }
  return *found;
}

void CaseRun::perform(const Line& line) {
  const Arguments arguments(line, host_);
  const std::string operation = arguments.id(0);
  try {
    if (!performOnForm(operation, arguments) && !performOnModel(operation, arguments)) {
      badLine(line, "no operation");
    }
  } catch (const Failure& failure) {
    note(line, std::string("failure ") + std::to_string(static_cast<int>(failure.kind())));
  }
}

bool CaseRun::performOnForm(const std::string& operation, const Arguments& arguments) {
  if (operation == "answer") {
    boxes_.answer(arguments.id(1) == "Yes");
  } else if (operation == "set") {
    host_.set(arguments.id(1), arguments.id(2), arguments.value(3));
  } else if (operation == "UpdateWithForm") {
    model_.UpdateWithForm(host_.form(), arguments.module(), arguments.onlyVisible(),
                          arguments.onlyContainer());
  } else if (operation == "UpdateWithCtrl") {
    model_.UpdateWithCtrl(arguments.control(1), arguments.module());
  } else if (operation == "TraduitDialog") {
    model_.TraduitDialog(host_.form(), arguments.number(1), arguments.module(), arguments.onlyVisible(),
                         arguments.onlyContainer());
  } else if (operation == "TraduitControle") {
    model_.TraduitControle(arguments.control(1), arguments.number(2), arguments.module());
  } else if (operation == "GetPath") {
    note(arguments.line(), testing::quoted(model_.GetPath(arguments.control(1), arguments.module())));
  } else {
    return false;
  }
  return true;
}

bool CaseRun::performOnModel(const std::string& operation, const Arguments& arguments) {
  if (operation == "NbLangues") {
    model_.setNbLangues(arguments.number(1));
  } else if (operation == "UpdateTestLangue") {
    model_.UpdateTestLangue(arguments.number(1));
  } else if (operation == "ClearLangue") {
    model_.ClearLangue(arguments.number(1));
  } else if (operation == "GetTraduction") {
    note(arguments.line(), testing::quoted(model_.GetTraduction(arguments.text(1), arguments.number(2))));
  } else if (operation == "AddNoeuds") {
    cell(arguments).AddNoeuds(arguments.text(2));
  } else if (operation == "AddMessage") {
    cell(arguments).AddMessage(arguments.text(2), arguments.text(3));
  } else if (operation == "ChangeTraduction") {
    for (const auto& entry : *cell(arguments).ColTraduction()) {
      if (equalUpper(entry->nom(), arguments.text(2))) {
        entry->ChangeTraduction(arguments.text(4), arguments.number(3));
      }
    }
  } else if (operation == "ChangeLeft") {
    cell(arguments).ChangeLeft(arguments.value(3).asDouble().value(), arguments.number(2));
  } else if (operation == "ChangeWidth") {
    cell(arguments).ChangeWidth(arguments.value(3).asDouble().value(), arguments.number(2));
  } else {
    return false;
  }
  return true;
}

}  // namespace kob::testing
