// SPDX-FileCopyrightText: The KOBTraduction authors
// Whatever a model holds comes back.
#include "MemoryStorage.h"
#include "ServiceTest.h"

#include <rapidcheck/gtest.h>

#include <cstdint>
#include <map>

namespace kob::test {
namespace {

/// Any sequence of units; often short, often of letters that fit into a byte, often the same.
rc::Gen<Text> anyText() {
  using rc::gen::arbitrary;
  const auto units = rc::gen::container<std::vector<std::uint16_t>>(
      rc::gen::oneOf(arbitrary<std::uint16_t>(), rc::gen::inRange<std::uint16_t>(0, 256),
                     rc::gen::inRange<std::uint16_t>(0xD800, 0xE000)));
  return rc::gen::oneOf(rc::gen::map(units, [](const auto& some) { return Text(some.begin(), some.end()); }),
                        rc::gen::element<Text>(u"", u"a", u"\xE9", u"\x100", u"OK"));
}

class PersistenceProperties : public ::testing::Test, public ModelTestScope {
 public:
  void saveAndLoad(KOBModeleTraduction& saved, KOBModeleTraduction& loaded) {
    RC_ASSERT(saved.Save(u"1"));
    RC_ASSERT(loaded.Load(u"1"));
    RC_ASSERT(loaded.Save(u"2"));
    RC_ASSERT(service.storage.files[u"1"] == service.storage.files[u"2"]);
  }

  MemoryService service;
};

RC_GTEST_FIXTURE_PROP(PersistenceProperties, EveryTextSurvives, ()) {
  const auto name = *anyText();
  const auto alias = *anyText();
  const auto all = *rc::gen::container<std::vector<Text>>(6, anyText());
  KOBModeleTraduction saved;
  const CellRef cell = message(saved.Racine(), name, {});
  cell->setAlias(alias);
  for (const Text& text : all) {
    cell->Traduction()->ColTraduction()->Add(text);
  }
  KOBModeleTraduction loaded;
  saveAndLoad(saved, loaded);
  const CellRef read = loaded.Racine()->ColCell()->Item(1);
  RC_ASSERT(Text(read->nom()) == name);
  RC_ASSERT(Text(read->Alias()) == alias);
  RC_ASSERT(texts(read) == all);
}

RC_GTEST_FIXTURE_PROP(PersistenceProperties, EveryFactorSurvivesWithItsType, ()) {
  KOBModeleTraduction saved;
  const CellRef cell = control(saved.Racine(), u"C", {});
  // What reading would make of it anyway.
  cell->setm_left(1);
  cell->setm_width(1);
  const auto values = *rc::gen::container<std::vector<double>>(6, rc::gen::arbitrary<double>());
  const auto isDouble = *rc::gen::container<std::vector<bool>>(6, rc::gen::arbitrary<bool>());
  const auto factors = std::make_shared<FactorList>();
  for (std::size_t i = 0; i < 6; ++i) {
    factors->Add(isDouble[i] ? Factor(values[i]) : Factor());
  }
  cell->setColWidth(factors);
  KOBModeleTraduction loaded;
  saveAndLoad(saved, loaded);
  const auto& read = *loaded.GetCell(u"C")->ColWidth();
  for (std::size_t i = 0; i < 6; ++i) {
    const Factor& factor = read.Item(static_cast<std::int32_t>(i) + 1);
    RC_ASSERT(factor.isDouble() == isDouble[i]);
    RC_ASSERT(factor.value() == (isDouble[i] ? values[i] : 1.0));
  }
}

/// The shape of what is below a cell, where each cell met before is told by its number.
void describe(const CellRef& cell, std::map<const KOBCellTraduction*, int>& met, std::string& shape) {
  const auto [found, isNew] = met.emplace(cell.get(), static_cast<int>(met.size()));
  shape += std::to_string(found->second);
  if (isNew && cell->TypeCell() == 1) {
    shape += '(';
    for (const CellRef& child : *cell->ColCell()) {
      describe(child, met, shape);
      shape += ' ';
    }
    shape += ')';
  }
}

std::string shapeOf(const KOBModeleTraduction& model) {
  std::map<const KOBCellTraduction*, int> met;
  std::string shape;
  describe(model.Racine(), met, shape);
  return shape;
}

RC_GTEST_FIXTURE_PROP(PersistenceProperties, SharedCellsAreSharedAfterwards, ()) {
  KOBModeleTraduction saved;
  std::vector<CellRef> cells = {saved.Racine()};
  const auto edges = *rc::gen::container<std::vector<std::pair<std::uint8_t, std::uint8_t>>>(
      rc::gen::pair(rc::gen::arbitrary<std::uint8_t>(), rc::gen::arbitrary<std::uint8_t>()));
  for (const auto& [from, to] : edges) {
    // A cell only ever holds one that was made later, so that there is no cycle.
    const std::size_t parent = from % cells.size();
    const std::size_t child = parent + 1 + to % (cells.size() - parent);
    if (child == cells.size()) {
      cells.push_back(KOBCellTraduction::createNode());
    }
    append(cells[parent], cells[child]);
  }
  KOBModeleTraduction loaded;
  saveAndLoad(saved, loaded);
  RC_ASSERT(shapeOf(loaded) == shapeOf(saved));
}

}  // namespace
}  // namespace kob::test
