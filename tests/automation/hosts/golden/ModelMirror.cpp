// SPDX-FileCopyrightText: The KOBTraduction authors
#include "ModelMirror.h"

#include <kobpersistence/KOBPersistence.h>
#include <kobtraduction/component/Global_Util.h>
#include <kobtraduction/model/KOBModeleTraduction.h>
#include <tests/doubles/TreeText.h>
#include <tests/doubles/Utf8.h>

#include <functional>
#include <stdexcept>

namespace kob::hosts {

namespace {

using CellRef = std::shared_ptr<KOBCellTraduction>;

/// Calls for each item of one of the component's lists, which may be none.
void forEach(const Variant& list, const std::function<void(const Variant& item)>& action) {
  const ComPtr<IDispatch> object = list.object();
  const std::int32_t count = object ? call(object.get(), u"Count").number() : 0;
  for (std::int32_t i = 1; i <= count; ++i) {
    action(call(object.get(), u"Item", {Variant(i)}));
  }
}

std::shared_ptr<KOBTraductionObj> mirroredEntry(IDispatch* live) {
  auto entry = std::make_shared<KOBTraductionObj>();
  entry->setnom(call(live, u"nom").text());
  auto texts = std::make_shared<TextList>();
  forEach(call(live, u"ColTraduction"), [&texts](const Variant& text) { texts->Add(text.text()); });
  entry->setColTraduction(std::move(texts));
  return entry;
}

std::shared_ptr<FactorList> mirroredFactors(const Variant& list) {
  auto factors = std::make_shared<FactorList>();
  forEach(list, [&factors](const Variant& factor) {
    factors->Add(factor.type() == VT_R8 ? Factor(factor.get()->dblVal) : Factor());
  });
  return factors;
}

bool isSame(const ComPtr<IDispatch>& one, const ComPtr<IDispatch>& other) {
  ComPtr<IUnknown> first;
  ComPtr<IUnknown> second;
  return one && other && SUCCEEDED(one->QueryInterface(IID_IUnknown, first.outVoid())) &&
         SUCCEEDED(other->QueryInterface(IID_IUnknown, second.outVoid())) && first.get() == second.get();
}

void mirror(const ComPtr<IDispatch>& live, const CellRef& cell) {
  cell->setnom(call(live.get(), u"nom").text());
  cell->setAlias(call(live.get(), u"Alias").text());
  cell->setTypeFeuille(call(live.get(), u"TypeFeuille").number());
  cell->setTypeCell(call(live.get(), u"TypeCell").number());
  cell->setm_left(call(live.get(), u"m_left").number());
  cell->setm_width(call(live.get(), u"m_width").number());
  if (cell->TypeFeuille() == 1) {
    cell->setTraduction(mirroredEntry(call(live.get(), u"Traduction").object().get()));
  }
  if (cell->TypeFeuille() == 2) {
    forEach(call(live.get(), u"ColTraduction"), [&cell](const Variant& entry) {
      cell->ColTraduction()->Add(mirroredEntry(entry.object().get()));
    });
    cell->setColLeft(mirroredFactors(call(live.get(), u"ColLeft")));
    cell->setColWidth(mirroredFactors(call(live.get(), u"ColWidth")));
  }
  forEach(call(live.get(), u"ColCell"), [&](const Variant& child) {
    const CellRef below = KOBCellTraduction::create();
    mirror(child.object(), below);
    if (isSame(call(child.object().get(), u"parentcell").object(), live)) {
      below->setparentcell(cell);
    }
    cell->ColCell()->Add(below);
  });
}

/// Does something for each cell of one tree and the one at the same place of the other.
void forPairs(const CellRef& one, const CellRef& other,
              const std::function<void(const CellRef&, const CellRef&)>& action) {
  action(one, other);
  for (std::int32_t i = 1; one->ColCell() != nullptr && i <= one->ColCell()->Count(); ++i) {
    forPairs(one->ColCell()->Item(i), other->ColCell()->Item(i), action);
  }
}

void requireTrue(const Variant& answer, const char* what) {
  if (!answer.boolean()) {
    throw std::runtime_error(what);
  }
}

/// A model of this process, and the thread's language count back at the end.
struct OwnModel {
  OwnModel() { usePersistence(); }
  OwnModel(const OwnModel&) = delete;
  OwnModel& operator=(const OwnModel&) = delete;
  ~OwnModel() { Global_Util::setNbLangues(0); }
  KOBModeleTraduction model;
};

void setIndicators(IDispatch* live, const KOBCellTraduction& cell) {
  put(live, u"m_left", Variant(cell.m_left()));
  put(live, u"m_width", Variant(cell.m_width()));
  for (std::int32_t i = 1; cell.ColCell() != nullptr && i <= cell.ColCell()->Count(); ++i) {
    setIndicators(call(call(live, u"ColCell").object().get(), u"Item", {Variant(i)}).object().get(),
                  *cell.ColCell()->Item(i));
  }
}

}  // namespace

std::string printModel(IDispatch* model, const std::wstring& file) {
  OwnModel own;
  Global_Util::setNbLangues(call(model, u"NbLangues").number());
  const CellRef& root = own.model.Racine();
  mirror(call(model, u"Racine").object(), root);
  const Text name(file.begin(), file.end());
  requireTrue(call(model, u"Save", {Variant(TextView(name))}), "the model is not saved");
  OwnModel saved;
  if (!saved.model.Load(name)) {
    throw std::runtime_error("what the model saved is not loaded");
  }
  forPairs(root, saved.model.Racine(),
           [](const CellRef& mirrored, const CellRef& loaded) { mirrored->setContexte(loaded->Contexte()); });
  return testing::printTree(*root);
}

void growModel(IDispatch* model, std::string_view treeText, const std::wstring& file) {
  OwnModel own;
  testing::growTree(own.model.Racine(), treeText);
  const Text name(file.begin(), file.end());
  if (!own.model.Save(name)) {
    throw std::runtime_error("the tree of the case is not saved");
  }
  requireTrue(call(model, u"Load", {Variant(TextView(name))}), "the tree of the case is not loaded");
  // A file keeps only whether an indicator is -1.
  setIndicators(call(model, u"Racine").object().get(), *own.model.Racine());
}

}  // namespace kob::hosts
