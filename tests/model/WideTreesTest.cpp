// SPDX-FileCopyrightText: The KOBTraduction authors
#include "ModelVocabulary.h"

#include <algorithm>
#include <random>
#include <utility>

namespace kob::test {
namespace {

constexpr int width = 20000;

/// Distinct names, in no order.
Texts shuffledNames() {
  Texts all;
  for (int i = 0; i < width; ++i) {
    all.push_back((i % 2 == 0 ? u"Label" : u"lABEL") + decimal(i));
  }
  std::shuffle(all.begin(), all.end(), std::mt19937(7));
  return all;
}

class WideTree : public ModelTest {
 protected:
  WideTree() {
    Global_Util::setNbLangues(1);
    for (const Text& name : given) {
      node->AddNoeuds(name);
    }
  }

  const Texts given = shuffledNames();
  CellRef node = named(u"node");
};

TEST_F(WideTree, ItsChildrenStandInTheOrderOfTheirCapitals) {
  Texts expected = given;
  std::sort(expected.begin(), expected.end(),
            [](const Text& a, const Text& b) { return upper(a) < upper(b); });
  EXPECT_TRUE(names(node) == expected);
}

TEST_F(WideTree, EveryChildIsFoundInAnyCase) {
  for (const Text& name : given) {
    const CellRef found = node->GetCell(upper(name));
    ASSERT_NE(found, nullptr);
    ASSERT_EQ(found->nom(), name);
  }
  EXPECT_EQ(node->GetCell(u"Label20000"), nullptr);
}

TEST_F(WideTree, EveryNameIsTaken) {
  for (int i = 0; i < width; i += 97) {
    EXPECT_EQ(node->AddNoeuds(upper(given[static_cast<std::size_t>(i)])), nullptr);
  }
  EXPECT_EQ(node->ColCell()->Count(), width);
}

TEST_F(WideTree, RenamedAndRemovedChildrenAreFoundAsTheyAreNow) {
  std::mt19937 random(11);
  for (int i = 0; i < 500; ++i) {
    const auto position =
        static_cast<std::int32_t>(random() % static_cast<unsigned>(node->ColCell()->Count())) + 1;
    const CellRef cell = node->ColCell()->Item(position);
    const Text before(cell->nom());
    if (i % 2 == 0) {
      cell->setnom(u"renamed" + decimal(i));
      EXPECT_EQ(node->GetCell(u"RENAMED" + decimal(i)), cell);
    } else {
      node->ColCell()->Remove(position);
    }
    EXPECT_EQ(node->GetCell(before), nullptr) << i;
  }
}

TEST_F(WideTree, IsWalkedFromTheFirstToTheLast) {
  Global_Util::setNbLangues(2);
  const CellRef last = node->AddMessage(u"zzz", u"text");
  node->UpdateTestLangue(2);
  EXPECT_EQ(texts(last)[1], u"** text **");
}

}  // namespace
}  // namespace kob::test
