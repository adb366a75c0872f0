// SPDX-FileCopyrightText: The KOBTraduction authors
#include "LoadedServer.h"

#include <cstddef>
#include <vector>

namespace kob::testing {

namespace {

ComPtr<_KOBCellTraduction> rootOf(const ComPtr<_KOBModeleTraduction>& model) {
  ComPtr<_KOBCellTraduction> root;
  hosts::check(model->get_Racine(root.out()), u"Racine");
  return root;
}

ComPtr<_KOBCellTraduction> addNode(const ComPtr<_KOBCellTraduction>& cell, TextView name) {
  ComPtr<_KOBCellTraduction> added;
  hosts::check(cell->AddNoeuds(String(name), nullptr, nullptr, added.out()), u"AddNoeuds");
  return added;
}

ComPtr<_KOBCollection> childrenOf(const ComPtr<_KOBCellTraduction>& cell) {
  ComPtr<_KOBCollection> children;
  hosts::check(cell->get_ColCell(children.out()), u"ColCell");
  return children;
}

}  // namespace

class LifetimeTest : public ServerTest {};

TEST_F(LifetimeTest, AnObjectKeepsTheServerLoadedUntilItsLastReferenceIsGone) {
  ASSERT_EQ(canUnloadNow(), S_OK);
  ComPtr<IUnknown> model = createObject(__uuidof(::KOBModeleTraduction));
  IUnknown* const object = model.get();
  EXPECT_EQ(canUnloadNow(), S_FALSE);
  EXPECT_EQ(object->AddRef(), 2U);
  EXPECT_EQ(object->AddRef(), 3U);
  EXPECT_EQ(object->Release(), 2U);
  EXPECT_EQ(object->Release(), 1U);
  EXPECT_EQ(canUnloadNow(), S_FALSE);
  model = ComPtr<IUnknown>();
  EXPECT_EQ(canUnloadNow(), S_OK);
}

TEST_F(LifetimeTest, EveryPartCountsForTheWholeObject) {
  const ComPtr<_KOBCellTraduction> cell = createCell();
  EXPECT_EQ(references(cell), 1U);
  {
    const ComPtr<::IKOBVBPersistStream> persistence = as<::IKOBVBPersistStream>(cell);
    EXPECT_EQ(references(cell), 2U);
    EXPECT_EQ(references(persistence), 2U);
  }
  EXPECT_EQ(references(cell), 1U);
}

TEST_F(LifetimeTest, AskedTwiceTheSameCellIsTheSameObject) {
  const ComPtr<_KOBModeleTraduction> model = createModel();
  const ComPtr<_KOBCellTraduction> root = rootOf(model);
  const ComPtr<_KOBCellTraduction> added = addNode(root, u"Menu");
  EXPECT_EQ(references(root), 1U);
  EXPECT_EQ(references(added), 1U);
  ComPtr<_KOBCellTraduction> found;
  ASSERT_EQ(model->GetCell(String(u"MENU"), found.out()), S_OK);
  EXPECT_EQ(found.get(), added.get());
  EXPECT_EQ(references(added), 2U);
  const ComPtr<_KOBCellTraduction> again = rootOf(model);
  EXPECT_EQ(again.get(), root.get());

  Variant item;
  ASSERT_EQ(childrenOf(root)->get_Item(1, item.get()), S_OK);
  EXPECT_EQ(as<IUnknown>(item.object()).get(), as<IUnknown>(added).get());
}

TEST_F(LifetimeTest, TheParentIsTheObjectThatTheHostHolds) {
  const ComPtr<_KOBModeleTraduction> model = createModel();
  const ComPtr<_KOBCellTraduction> root = rootOf(model);
  const ComPtr<_KOBCellTraduction> added = addNode(root, u"Menu");
  ComPtr<_KOBCellTraduction> parent;
  ASSERT_EQ(added->get_parentcell(parent.out()), S_OK);
  EXPECT_EQ(parent.get(), root.get());
  EXPECT_EQ(references(root), 2U);
  ASSERT_EQ(root->get_parentcell(parent.out()), S_OK);
  EXPECT_FALSE(parent);
}

TEST_F(LifetimeTest, ListsAndEntriesAreTheSameObjectsToo) {
  const ComPtr<_KOBCellTraduction> cell = createCell();
  ComPtr<_KOBTraductionObj> entry;
  ComPtr<_KOBTraductionObj> same;
  ASSERT_EQ(cell->get_Traduction(entry.out()), S_OK);
  ASSERT_EQ(cell->get_Traduction(same.out()), S_OK);
  EXPECT_EQ(entry.get(), same.get());
  ComPtr<_KOBCollection> texts;
  ComPtr<_KOBCollection> sameTexts;
  ASSERT_EQ(entry->get_ColTraduction(texts.out()), S_OK);
  ASSERT_EQ(entry->get_ColTraduction(sameTexts.out()), S_OK);
  EXPECT_EQ(texts.get(), sameTexts.get());
}

TEST_F(LifetimeTest, APartIsReleasedWithTheHostsReferenceAndStaysInTheModel) {
  const ComPtr<_KOBModeleTraduction> model = createModel();
  for (int i = 0; i < 3; ++i) {
    const ComPtr<_KOBCellTraduction> root = rootOf(model);
    EXPECT_EQ(references(root), 1U);
    root->put_Alias(String(i == 0 ? u"first" : u"later"));
  }
  BSTR alias = nullptr;
  rootOf(model)->get_Alias(&alias);
  EXPECT_EQ(take(alias), u"later");
  EXPECT_EQ(references(model), 1U);
}

TEST_F(LifetimeTest, WhatAHostKeepsOutlivesTheModel) {
  ComPtr<_KOBCollection> children;
  ComPtr<_KOBCellTraduction> added;
  {
    const ComPtr<_KOBModeleTraduction> model = createModel();
    added = addNode(rootOf(model), u"Menu");
    children = childrenOf(rootOf(model));
  }
  EXPECT_EQ(canUnloadNow(), S_FALSE);
  LONG count = 0;
  ASSERT_EQ(children->get_Count(&count), S_OK);
  EXPECT_EQ(count, 1);
  BSTR name = nullptr;
  ASSERT_EQ(added->get_nom(&name), S_OK);
  EXPECT_EQ(take(name), u"Menu");
  // The way up does not hold the parent.
  ComPtr<_KOBCellTraduction> parent;
  ASSERT_EQ(added->get_parentcell(parent.out()), S_OK);
  EXPECT_FALSE(parent);
}

TEST_F(LifetimeTest, AnEnumeratorHoldsItsList) {
  ComPtr<IUnknown> enumerator;
  {
    const ComPtr<_KOBTraductionObj> entry = createEntry();
    ComPtr<_KOBCollection> texts;
    ASSERT_EQ(entry->get_ColTraduction(texts.out()), S_OK);
    ASSERT_EQ(texts->get__NewEnum(enumerator.out()), S_OK);
    EXPECT_EQ(references(texts), 2U);
  }
  EXPECT_EQ(canUnloadNow(), S_FALSE);
}

TEST_F(LifetimeTest, ThousandsOfObjectsGoWithoutATrace) {
  const ComPtr<_KOBModeleTraduction> model = createModel();
  const ComPtr<_KOBCellTraduction> root = rootOf(model);
  std::vector<ComPtr<_KOBCellTraduction>> cells;
  constexpr std::size_t many = 5000;
  for (std::size_t i = 0; i < many; ++i) {
    cells.push_back(addNode(root, decimal(static_cast<std::int64_t>(i))));
  }
  EXPECT_EQ(references(root), 1U);
  EXPECT_EQ(references(cells[many / 2]), 1U);
}

}  // namespace kob::testing
