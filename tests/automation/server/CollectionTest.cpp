// SPDX-FileCopyrightText: The KOBTraduction authors
#include "LateCall.h"

#include <string>
#include <vector>

namespace kob::testing {

namespace {

constexpr auto invalidIndex = static_cast<HRESULT>(0x800A0009UL);
constexpr auto typeMismatch = static_cast<HRESULT>(0x800A000DUL);

ComPtr<_KOBCollection> listOf(IDispatch* object, TextView property) {
  return as<_KOBCollection>(hosts::call(object, property).object());
}

template <class T>
ComPtr<_KOBCollection> listOf(const ComPtr<T>& object, TextView property) {
  return listOf(object.get(), property);
}

/// The items as texts, by position.
std::string items(const ComPtr<_KOBCollection>& list) {
  std::string all;
  LONG count = 0;
  list->get_Count(&count);
  for (LONG i = 1; i <= count; ++i) {
    Variant item;
    hosts::check(list->get_Item(i, item.get()), u"Item");
    all += (i > 1 ? "," : "") + toUtf8(item.text());
  }
  return all;
}

/// The items as an enumerator gives them, so many at once.
std::string enumerated(const ComPtr<_KOBCollection>& list, ULONG atOnce) {
  ComPtr<IUnknown> made;
  hosts::check(list->get__NewEnum(made.out()), u"_NewEnum");
  const ComPtr<IEnumVARIANT> enumerator = as<IEnumVARIANT>(made);
  std::string all;
  std::vector<VARIANT> batch(atOnce);
  for (HRESULT next = S_OK; next == S_OK;) {
    ULONG fetched = 0;
    next = enumerator->Next(atOnce, batch.data(), &fetched);
    for (ULONG i = 0; i < fetched; ++i) {
      Variant item;
      *item.get() = batch[i];
      all += (all.empty() ? "" : ",") + toUtf8(item.text());
    }
  }
  return all;
}

HRESULT add(const ComPtr<_KOBCollection>& list, Variant item, Variant before = missing()) {
  return list->Add(*item.get(), *before.get());
}

}  // namespace

class CollectionTest : public ServerTest {
 protected:
  CollectionTest() {
    texts_ = listOf(entry_, u"ColTraduction");
    while (texts_->Remove(1) == S_OK) {
    }
  }

  ComPtr<_KOBTraductionObj> entry_ = createEntry();
  ComPtr<_KOBCollection> texts_;
};

TEST_F(CollectionTest, AddsAtTheEndOrBeforeAPosition) {
  EXPECT_EQ(add(texts_, Variant(u"b")), S_OK);
  EXPECT_EQ(add(texts_, Variant(u"c")), S_OK);
  EXPECT_EQ(add(texts_, Variant(u"a"), Variant(std::int32_t{1})), S_OK);
  EXPECT_EQ(add(texts_, Variant(u"b2"), Variant(u"3")), S_OK);
  EXPECT_EQ(items(texts_), "a,b,b2,c");
}

TEST_F(CollectionTest, RefusesPositionsOutside) {
  EXPECT_EQ(add(texts_, Variant(u"a")), S_OK);
  Variant item;
  EXPECT_EQ(texts_->get_Item(0, item.get()), invalidIndex);
  EXPECT_EQ(texts_->get_Item(2, item.get()), invalidIndex);
  EXPECT_EQ(texts_->Remove(2), invalidIndex);
  EXPECT_EQ(add(texts_, Variant(u"b"), Variant(std::int32_t{2})), invalidIndex);
  EXPECT_EQ(add(texts_, Variant(u"b"), Variant(u"x")), typeMismatch);
  EXPECT_EQ(items(texts_), "a");
}

TEST_F(CollectionTest, TakesForATextWhatConvertsToOne) {
  EXPECT_EQ(add(texts_, Variant(std::int32_t{12})), S_OK);
  EXPECT_EQ(add(texts_, Variant(1.5)), S_OK);
  Variant variable(u"by reference");
  EXPECT_EQ(add(texts_, reference(*variable.get())), S_OK);
  Variant null;
  null.get()->vt = VT_NULL;
  EXPECT_EQ(add(texts_, null), typeMismatch);
  EXPECT_EQ(items(texts_), "12,1.5,by reference");
}

TEST_F(CollectionTest, IsEnumeratedInOrderInPiecesOfAnySize) {
  for (const TextView text : {u"a", u"b", u"c", u"d", u"e"}) {
    add(texts_, Variant(text));
  }
  EXPECT_EQ(enumerated(texts_, 1), "a,b,c,d,e");
  EXPECT_EQ(enumerated(texts_, 2), "a,b,c,d,e");
  EXPECT_EQ(enumerated(texts_, 9), "a,b,c,d,e");
}

TEST_F(CollectionTest, EnumeratorsSkipResetAndAreCopied) {
  for (const TextView text : {u"a", u"b", u"c"}) {
    add(texts_, Variant(text));
  }
  ComPtr<IUnknown> made;
  ASSERT_EQ(texts_->get__NewEnum(made.out()), S_OK);
  const ComPtr<IEnumVARIANT> enumerator = as<IEnumVARIANT>(made);
  EXPECT_EQ(enumerator->Skip(1), S_OK);
  ComPtr<IEnumVARIANT> copy;
  ASSERT_EQ(enumerator->Clone(copy.out()), S_OK);
  Variant item;
  EXPECT_EQ(enumerator->Next(1, item.get(), nullptr), S_OK);
  EXPECT_EQ(item.text(), u"b");
  EXPECT_EQ(enumerator->Skip(2), S_FALSE);
  EXPECT_EQ(enumerator->Reset(), S_OK);
  Variant first;
  EXPECT_EQ(enumerator->Next(1, first.get(), nullptr), S_OK);
  EXPECT_EQ(first.text(), u"a");
  Variant ofCopy;
  EXPECT_EQ(copy->Next(1, ofCopy.get(), nullptr), S_OK);
  EXPECT_EQ(ofCopy.text(), u"b");
  EXPECT_EQ(enumerator->Next(2, first.get(), nullptr), E_POINTER);
}

TEST_F(CollectionTest, MayShrinkAndGrowWhileItIsEnumerated) {
  for (const TextView text : {u"a", u"b", u"c"}) {
    add(texts_, Variant(text));
  }
  ComPtr<IUnknown> made;
  ASSERT_EQ(texts_->get__NewEnum(made.out()), S_OK);
  const ComPtr<IEnumVARIANT> enumerator = as<IEnumVARIANT>(made);
  ASSERT_EQ(enumerator->Skip(2), S_OK);
  texts_->Remove(3);
  texts_->Remove(2);
  ULONG fetched = 9;
  Variant item;
  EXPECT_EQ(enumerator->Next(1, item.get(), &fetched), S_FALSE);
  EXPECT_EQ(fetched, 0U);
  add(texts_, Variant(u"d"));
  add(texts_, Variant(u"e"));
  EXPECT_EQ(enumerator->Next(1, item.get(), &fetched), S_OK);
  EXPECT_EQ(item.text(), u"e");
}

TEST_F(CollectionTest, IsFoundByScriptsInEveryWayTheyAsk) {
  add(texts_, Variant(u"a"));
  DISPID item = DISPID_VALUE;
  VARIANT position = {};
  position.vt = VT_I4;
  position.lVal = 1;
  for (const WORD how : {DISPATCH_METHOD, DISPATCH_PROPERTYGET, DISPATCH_METHOD | DISPATCH_PROPERTYGET}) {
    DISPPARAMS parameters = {&position, nullptr, 1, 0};
    Variant found;
    EXPECT_EQ(texts_->Invoke(item, IID_NULL, 0, how, &parameters, found.get(), nullptr, nullptr), S_OK);
    EXPECT_EQ(found.text(), u"a");
    DISPPARAMS none = {};
    Variant made;
    EXPECT_EQ(texts_->Invoke(DISPID_NEWENUM, IID_NULL, 0, how, &none, made.get(), nullptr, nullptr), S_OK);
    EXPECT_EQ(made.type(), VT_UNKNOWN);
  }
}

TEST_F(CollectionTest, OfFactorsKeepsTheSmallIntegerOne) {
  const ComPtr<_KOBCellTraduction> cell = createCell();
  cell->put_TypeFeuille(2);
  cell->ChangeLeft(1.0, 2);
  const ComPtr<_KOBCollection> factors = listOf(cell, u"ColLeft");
  Variant item;
  ASSERT_EQ(factors->get_Item(1, item.get()), S_OK);
  EXPECT_EQ(item.type(), VT_I2);
  Variant changed;
  ASSERT_EQ(factors->get_Item(2, changed.get()), S_OK);
  EXPECT_EQ(changed.type(), VT_R8);
  EXPECT_EQ(add(factors, item), S_OK);
  EXPECT_EQ(add(factors, Variant(u"1.25")), S_OK);
  EXPECT_EQ(add(factors, Variant(u"wide")), typeMismatch);
  EXPECT_EQ(items(factors), "1,1,1,1,1,1,1,1.25");
  Variant last;
  ASSERT_EQ(factors->get_Item(7, last.get()), S_OK);
  EXPECT_EQ(last.type(), VT_I2);
}

TEST_F(CollectionTest, OfCellsTakesCellsAndNothingElse) {
  const ComPtr<_KOBCellTraduction> node = createCell();
  node->put_TypeCell(1);
  const ComPtr<_KOBCollection> children = listOf(node, u"ColCell");
  const ComPtr<_KOBCellTraduction> child = createCell();
  EXPECT_EQ(add(children, Variant(static_cast<IDispatch*>(child.get()))), S_OK);
  EXPECT_EQ(add(children, Variant(static_cast<IDispatch*>(entry_.get()))), typeMismatch);
  EXPECT_EQ(add(children, Variant(u"a name")), typeMismatch);
  EXPECT_EQ(add(children, Variant(static_cast<IDispatch*>(nullptr))), S_OK);
  Variant item;
  ASSERT_EQ(children->get_Item(1, item.get()), S_OK);
  EXPECT_EQ(item.object().get(), child.get());
  Variant nothing;
  ASSERT_EQ(children->get_Item(2, nothing.get()), S_OK);
  EXPECT_EQ(nothing.type(), VT_DISPATCH);
  EXPECT_FALSE(nothing.object());
  EXPECT_EQ(references(child), 2U);
}

TEST_F(CollectionTest, CanBeAssignedToAnotherObjectAndIsThenShared) {
  const ComPtr<_KOBTraductionObj> other = createEntry();
  add(texts_, Variant(u"shared"));
  ASSERT_EQ(other->putref_ColTraduction(texts_.get()), S_OK);
  EXPECT_EQ(listOf(other, u"ColTraduction").get(), texts_.get());
  add(texts_, Variant(u"later"));
  EXPECT_EQ(items(listOf(other, u"ColTraduction")), "shared,later");
  ASSERT_EQ(other->putref_ColTraduction(nullptr), S_OK);
  EXPECT_FALSE(listOf(other, u"ColTraduction"));
  EXPECT_EQ(other->ChangeTraduction(String(u"x"), 1), static_cast<HRESULT>(0x800A005BUL));
}

TEST_F(CollectionTest, OfAnotherKindIsATypeMismatch) {
  const ComPtr<_KOBCellTraduction> cell = createCell();
  cell->put_TypeFeuille(2);
  const ComPtr<_KOBCollection> left = listOf(cell, u"ColLeft");
  EXPECT_EQ(cell->putref_ColCell(texts_.get()), typeMismatch);
  EXPECT_EQ(cell->putref_ColTraduction(texts_.get()), typeMismatch);
  EXPECT_EQ(cell->putref_ColLeft(texts_.get()), typeMismatch);
  EXPECT_EQ(entry_->putref_ColTraduction(left.get()), typeMismatch);
  EXPECT_EQ(cell->putref_ColWidth(left.get()), S_OK);
  EXPECT_EQ(listOf(cell, u"ColWidth").get(), left.get());
}

TEST_F(CollectionTest, OfSomebodyElseIsATypeMismatch) {
  const ComPtr<_KOBCellTraduction> cell = createCell();
  LateCall assign(cell.get(), u"ColCell");
  ComPtr<IDispatch> foreign;
  CLSID dictionary = {};
  ASSERT_EQ(CLSIDFromProgID(L"Scripting.Dictionary", &dictionary), S_OK);
  ASSERT_EQ(CoCreateInstance(dictionary, nullptr, CLSCTX_INPROC_SERVER, IID_IDispatch, foreign.outVoid()),
            S_OK);
  assign.arguments.emplace_back(foreign.get());
  EXPECT_EQ(assign.putReference(), DISP_E_TYPEMISMATCH);
  assign.arguments.clear();
  assign.arguments.emplace_back(u"text");
  EXPECT_EQ(assign.putReference(), DISP_E_TYPEMISMATCH);
}

}  // namespace kob::testing
