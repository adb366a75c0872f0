// SPDX-FileCopyrightText: The KOBTraduction authors
#include "ModelVocabulary.h"

namespace kob::test {

void RecordingBoxes::notice(TextView text, TextView title, MessageIcon) {
  notices.emplace_back(text);
  titles.emplace_back(title);
}

bool RecordingBoxes::question(TextView, TextView, MessageIcon) {
  ++questions;
  return false;
}

ModelTestScope::ModelTestScope()
    : languagesBefore_(Global_Util::NbLangues()), boxesBefore_(Global_Util::setMessageBoxes(&boxes)) {
  Global_Util::setNbLangues(6);
}

ModelTestScope::~ModelTestScope() {
  Global_Util::setMessageBoxes(boxesBefore_);
  Global_Util::setNbLangues(languagesBefore_);
}

std::shared_ptr<TextList> textList(std::initializer_list<TextView> texts) {
  auto list = std::make_shared<TextList>();
  for (const TextView text : texts) {
    list->Add(text);
  }
  return list;
}

EntryRef entry(TextView name, std::initializer_list<TextView> texts) {
  auto made = std::make_shared<KOBTraductionObj>();
  made->setnom(name);
  made->setColTraduction(textList(texts));
  return made;
}

CellRef message(const CellRef& parent, TextView name, std::initializer_list<TextView> texts) {
  CellRef cell = named(name);
  cell->Traduction()->setColTraduction(textList(texts));
  append(parent, cell);
  return cell;
}

CellRef control(const CellRef& parent, TextView name, std::initializer_list<EntryRef> entries) {
  CellRef cell = named(name);
  cell->setTypeFeuille(2);
  for (const EntryRef& one : entries) {
    cell->ColTraduction()->Add(one);
  }
  append(parent, cell);
  return cell;
}

void append(const CellRef& parent, const CellRef& child) {
  parent->setTypeCell(1);
  parent->ColCell()->Add(child);
  child->setparentcell(parent);
}

CellRef named(TextView name) {
  CellRef cell = KOBCellTraduction::create();
  cell->setnom(name);
  return cell;
}

Texts texts(const TextList& list) {
  Texts all;
  for (std::int32_t i = 1; i <= list.Count(); ++i) {
    all.emplace_back(list.Item(i));
  }
  return all;
}

Texts texts(const CellRef& messageCell) {
  return texts(*messageCell->Traduction()->ColTraduction());
}

Factors factors(const FactorList& list) {
  Factors all;
  for (const Factor& factor : list) {
    all.push_back(factor.value());
  }
  return all;
}

Texts names(const CellRef& node) {
  Texts all;
  for (const CellRef& child : *node->ColCell()) {
    all.push_back(child ? Text(child->nom()) : u"(nothing)");
  }
  return all;
}

}  // namespace kob::test
