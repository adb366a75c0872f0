// SPDX-FileCopyrightText: The KOBTraduction authors
#include "TreeText.h"

#include "Lines.h"
#include "Utf8.h"

#include <kobtraduction/component/Global_Util.h>

#include <vector>

namespace kob::testing {

namespace {

using CellRef = std::shared_ptr<KOBCellTraduction>;

constexpr const char* nothingLine = "(nothing)";

std::string countText(const char* what, const std::shared_ptr<FactorList>& list) {
  if (list != nullptr && list->Count() == Global_Util::NbLangues()) {
    return {};
  }
  return std::string(" ") + what + "=" + (list == nullptr ? "none" : std::to_string(list->Count()));
}

std::string factorTexts(const char* what, const std::shared_ptr<FactorList>& list) {
  std::string text;
  for (std::int32_t i = 1; list != nullptr && i <= list->Count(); ++i) {
    if (list->Item(i).value() != 1.0 || list->Item(i).isDouble()) {
      text += std::string(" ") + what + "[" + std::to_string(i) + "]=" + valueText(list->Item(i).value());
    }
  }
  return text;
}

class TreePrinter {
 public:
  std::string text() && { return std::move(text_); }

  void print(const KOBCellTraduction& cell, int depth) {
    for (const auto& entry : entriesOf(cell)) {
      add(depth, entry == nullptr ? nothingLine : entryLine(*entry));
    }
    if (cell.ColCell() == nullptr) {
      return;
    }
    for (const CellRef& child : *cell.ColCell()) {
      add(depth, child == nullptr ? nothingLine : cellLine(*child, &cell));
      if (child != nullptr) {
        print(*child, depth + 1);
      }
    }
  }

 private:
  using EntryRef = std::shared_ptr<KOBTraductionObj>;

  void add(int depth, const std::string& line) {
    text_ += std::string(static_cast<std::size_t>(depth) * 2, ' ') + line + "\n";
  }

  static std::vector<EntryRef> entriesOf(const KOBCellTraduction& cell) {
    std::vector<EntryRef> entries;
    if (cell.Traduction() != nullptr) {
      entries.push_back(cell.Traduction());
    }
    if (cell.ColTraduction() != nullptr) {
      entries.insert(entries.end(), cell.ColTraduction()->begin(), cell.ColTraduction()->end());
    }
    return entries;
  }

  static std::string entryLine(const KOBTraductionObj& entry) {
    std::string line = ".";
    line += entry.nom().empty() ? "" : nameText(entry.nom());
    if (entry.ColTraduction() == nullptr) {
      return line + " texts=none";
    }
    const TextList& texts = *entry.ColTraduction();
    for (std::int32_t i = 1; i <= texts.Count(); ++i) {
      if (i == 1 || !texts.Item(i).empty()) {
        line += (i == 1 ? " " : " " + std::to_string(i) + "=") + quoted(texts.Item(i));
      }
    }
    const bool isOutgrown = texts.Count() != Global_Util::NbLangues();
    return isOutgrown ? line + " texts=" + std::to_string(texts.Count()) : line;
  }

  static std::string cellLine(const KOBCellTraduction& cell, const KOBCellTraduction* above) {
    std::string line = nameText(cell.nom());
    line += cell.TypeCell() == 1 ? " node" : "";
    line += cell.TypeFeuille() == 2 ? " control" : cell.TypeFeuille() == 1 ? " message" : "";
    line += cell.Contexte() ? " context" : "";
    if (cell.TypeFeuille() == 2 || cell.m_left() != 0 || cell.m_width() != 0) {
      line += " left=" + std::to_string(cell.m_left()) + " width=" + std::to_string(cell.m_width());
    }
    line += cell.Alias() == cell.nom() ? "" : " alias=" + quoted(cell.Alias());
    line += factorTexts("left", cell.ColLeft()) + factorTexts("width", cell.ColWidth());
    if (cell.TypeFeuille() == 2) {
      line += countText("leftFactors", cell.ColLeft()) + countText("widthFactors", cell.ColWidth());
    }
    return cell.parentcell().get() == above ? line : line + " astray";
  }

  std::string text_;
};

std::int32_t integerOf(const Line& line, const Word& word) {
  const std::optional<std::int32_t> number = valueOf(word).asLong();
  if (!number) {
    badLine(line, "not a number");
  }
  return *number;
}

/// The language of `left[2]`.
std::int32_t languageOf(const Line& line, const std::string& key) {
  const std::size_t open = key.find('[');
  if (open == std::string::npos || key.back() != ']') {
    badLine(line, "cannot read '" + key + "'");
  }
  return std::stoi(key.substr(open + 1));
}

void readCellWord(const Line& line, KOBCellTraduction& cell, const Word& word) {
  if (word.key == "node") {
    cell.setTypeCell(1);
  } else if (word.key == "message") {
    cell.setTypeFeuille(1);
  } else if (word.key == "control") {
    cell.setTypeFeuille(2);
  } else if (word.key == "context") {
    cell.setContexte(true);
  } else if (word.key == "alias") {
    cell.setAlias(word.value);
  } else if (word.key == "left") {
    cell.setm_left(integerOf(line, word));
  } else if (word.key == "width") {
    cell.setm_width(integerOf(line, word));
  } else if (word.key.starts_with("left[")) {
    cell.ChangeLeft(valueOf(word).asDouble().value(), languageOf(line, word.key));
  } else if (word.key.starts_with("width[")) {
    cell.ChangeWidth(valueOf(word).asDouble().value(), languageOf(line, word.key));
  } else {
    badLine(line, "cannot read '" + word.key + "'");
  }
}

CellRef readCell(const Line& line) {
  const std::vector<Word> words = wordsOf(line);
  CellRef cell = KOBCellTraduction::create();
  cell->setTypeFeuille(0);
  cell->setnom(words.front().value);
  cell->setAlias(words.front().value);
  for (std::size_t i = 1; i < words.size(); ++i) {
    readCellWord(line, *cell, words[i]);
  }
  return cell;
}

void readEntry(const Line& line, KOBCellTraduction& cell) {
  const std::vector<Word> words = wordsOf(line);
  const auto entry = cell.TypeFeuille() == 1 ? cell.Traduction() : std::make_shared<KOBTraductionObj>();
  entry->setnom(fromUtf8(words.front().key.substr(1)));
  for (std::size_t i = 1; i < words.size(); ++i) {
    entry->ChangeTraduction(words[i].value, words[i].hasValue ? std::stoi(words[i].key) : 1);
  }
  if (cell.TypeFeuille() == 2) {
    cell.ColTraduction()->Add(entry);
  }
}

}  // namespace

std::string printTree(const KOBCellTraduction& root) {
  TreePrinter printer;
  printer.print(root, 0);
  return std::move(printer).text();
}

void growTree(const std::shared_ptr<KOBCellTraduction>& root, std::string_view text) {
  std::vector<CellRef> above{root};
  for (const Line& line : linesOf(text)) {
    above.resize(static_cast<std::size_t>(line.depth) + 1);
    KOBCellTraduction& parent = *above.back();
    if (line.text.front() == '.') {
      readEntry(line, parent);
      above.push_back(nullptr);
      continue;
    }
    if (parent.ColCell() == nullptr) {
      badLine(line, "the cell above is no node");
    }
    const CellRef cell = line.text == nothingLine ? nullptr : readCell(line);
    if (cell != nullptr) {
      cell->setparentcell(above.back());
    }
    parent.ColCell()->Add(cell);
    above.push_back(cell);
  }
}

}  // namespace kob::testing
