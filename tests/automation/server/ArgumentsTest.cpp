// SPDX-FileCopyrightText: The KOBTraduction authors
#include "LateCall.h"

#include <limits>

namespace kob::testing {

class ArgumentsTest : public ServerTest {
 protected:
  ArgumentsTest() {
    hosts::check(cell_->AddNoeuds(String(u"taken"), nullptr, nullptr, child_.out()), u"AddNoeuds");
  }

  /// AddNoeuds of a name that exists.
  HRESULT refused(Variant erreur) {
    LateCall add(cell_.get(), u"AddNoeuds");
    add.arguments.emplace_back(u"TAKEN");
    add.arguments.push_back(std::move(erreur));
    const HRESULT done = add.call();
    EXPECT_FALSE(add.result.object());
    return done;
  }

  ComPtr<_KOBCellTraduction> cell_ = createCell();
  ComPtr<_KOBCellTraduction> child_;
};

TEST_F(ArgumentsTest, ErreurIsWrittenIntoAScriptsVariable) {
  Variant variable;
  EXPECT_EQ(refused(reference(*variable.get())), S_OK);
  EXPECT_EQ(variable.type(), VT_I4);
  EXPECT_EQ(variable.number(), -2);
}

TEST_F(ArgumentsTest, ErreurReplacesWhatAVariableHeld) {
  Variant variable(u"before");
  EXPECT_EQ(refused(reference(*variable.get())), S_OK);
  EXPECT_EQ(variable.number(), -2);
}

TEST_F(ArgumentsTest, ErreurIsWrittenOnFailureOnly) {
  Variant variable(u"before");
  LateCall add(cell_.get(), u"AddNoeuds");
  add.arguments.emplace_back(u"free");
  add.arguments.push_back(reference(*variable.get()));
  EXPECT_EQ(add.call(), S_OK);
  EXPECT_TRUE(add.result.object());
  EXPECT_EQ(variable.text(), u"before");
}

TEST_F(ArgumentsTest, ErreurReachesATypedHostsOwnVariable) {
  LONG asLong = 0;
  SHORT asShort = 0;
  double asDouble = 0;
  VARIANT_BOOL asBoolean = VARIANT_FALSE;
  BSTR asString = hosts::bstrOf(u"before");
  LONGLONG asLongLong = 0;
  Variant value;
  const auto pass = [&](VARTYPE type, void* place) {
    Variant argument;
    argument.get()->vt = static_cast<VARTYPE>(VT_BYREF | type);
    argument.get()->byref = place;
    return refused(std::move(argument));
  };
  EXPECT_EQ(pass(VT_I4, &asLong), S_OK);
  EXPECT_EQ(asLong, -2);
  EXPECT_EQ(pass(VT_I2, &asShort), S_OK);
  EXPECT_EQ(asShort, -2);
  EXPECT_EQ(pass(VT_R8, &asDouble), S_OK);
  EXPECT_EQ(asDouble, -2.0);
  EXPECT_EQ(pass(VT_BOOL, &asBoolean), S_OK);
  EXPECT_EQ(asBoolean, VARIANT_TRUE);
  EXPECT_EQ(pass(VT_I8, &asLongLong), S_OK);
  EXPECT_EQ(asLongLong, -2);
  EXPECT_EQ(pass(VT_BSTR, &asString), S_OK);
  EXPECT_EQ(take(asString), u"-2");
}

TEST_F(ArgumentsTest, ErreurThroughTheTableOfFunctions) {
  ComPtr<_KOBCellTraduction> added;
  VARIANT erreur = {};
  EXPECT_EQ(cell_->AddNoeuds(String(u"taken"), &erreur, nullptr, added.out()), S_OK);
  EXPECT_EQ(erreur.vt, VT_I4);
  EXPECT_EQ(erreur.lVal, -2);
  EXPECT_FALSE(added);
  EXPECT_EQ(cell_->AddMessage(String(u"taken"), String(u"x"), &erreur, nullptr, added.out()), S_OK);
  EXPECT_EQ(cell_->AddMessage(String(u"taken"), String(u"x"), nullptr, nullptr, added.out()), S_OK);
  EXPECT_FALSE(added);
}

TEST_F(ArgumentsTest, AVariableThatCannotTakeANumberIsATypeMismatch) {
  ComPtr<IDispatch> object;
  Variant argument;
  argument.get()->vt = VT_BYREF | VT_DISPATCH;
  argument.get()->byref = object.out();
  EXPECT_EQ(refused(std::move(argument)), DISP_E_EXCEPTION);
}

TEST_F(ArgumentsTest, WhatIsLeftOutHasItsDefault) {
  LateCall add(cell_.get(), u"AddNoeuds");
  add.arguments.emplace_back(u"plain");
  ASSERT_EQ(add.call(), S_OK);
  EXPECT_EQ(hosts::call(add.result.object().get(), u"Alias").text(), u"plain");
  add.arguments.clear();
  add.arguments.emplace_back(u"skipped");
  add.arguments.push_back(missing());
  add.arguments.emplace_back(u"its alias");
  ASSERT_EQ(add.call(), S_OK);
  EXPECT_EQ(hosts::call(add.result.object().get(), u"Alias").text(), u"its alias");
  EXPECT_EQ(refused(missing()), S_OK);
}

TEST_F(ArgumentsTest, MayBeNamed) {
  LateCall add(cell_.get(), u"AddNoeuds");
  add.arguments.emplace_back(u"the alias");
  add.arguments.emplace_back(u"the name");
  add.names = {u"aliasnoeud", u"NomNoeud"};
  ASSERT_EQ(add.call(), S_OK);
  EXPECT_EQ(hosts::call(add.result.object().get(), u"nom").text(), u"the name");
  EXPECT_EQ(hosts::call(add.result.object().get(), u"Alias").text(), u"the alias");

  LateCall mixed(cell_.get(), u"AddNoeuds");
  mixed.arguments.emplace_back(u"another name");
  mixed.arguments.emplace_back(u"another alias");
  mixed.names = {u"AliasNoeud"};
  ASSERT_EQ(mixed.call(), S_OK);
  EXPECT_EQ(hosts::call(mixed.result.object().get(), u"Alias").text(), u"another alias");
}

TEST_F(ArgumentsTest, ByNameAreWrittenIntoTheHostsVariable) {
  Variant variable;
  LateCall add(cell_.get(), u"AddNoeuds");
  add.arguments.push_back(reference(*variable.get()));
  add.arguments.emplace_back(u"taken");
  add.names = {u"erreur", u"NomNoeud"};
  ASSERT_EQ(add.call(), S_OK);
  EXPECT_EQ(variable.number(), -2);
}

TEST_F(ArgumentsTest, GivenTwiceOrWithoutTheOneThatIsNeededAreRefused) {
  LateCall twice(cell_.get(), u"AddNoeuds");
  twice.arguments.emplace_back(u"a");
  twice.arguments.emplace_back(u"b");
  twice.names = {u"NomNoeud"};
  EXPECT_LT(twice.call(), 0);
  LateCall nameless(cell_.get(), u"AddNoeuds");
  nameless.arguments.emplace_back(u"an alias");
  nameless.names = {u"AliasNoeud"};
  EXPECT_LT(nameless.call(), 0);
  EXPECT_EQ(hosts::call(hosts::call(cell_.get(), u"ColCell").object().get(), u"Count").number(), 1);
}

TEST_F(ArgumentsTest, TextsKeepEveryUnit) {
  const Text text = {u'a', 0, 0xD800, 0x00E9, 0x65E5};
  hosts::put(cell_.get(), u"nom", Variant(TextView(text)));
  EXPECT_EQ(hosts::call(cell_.get(), u"nom").text(), text);
  cell_->put_nom(nullptr);
  EXPECT_EQ(hosts::call(cell_.get(), u"nom").text(), u"");
}

TEST_F(ArgumentsTest, ObjectsAreAssignedWithAndWithoutAReference) {
  LateCall assign(child_.get(), u"parentcell");
  assign.arguments.emplace_back(static_cast<IDispatch*>(nullptr));
  EXPECT_EQ(assign.putReference(), S_OK);
  EXPECT_FALSE(hosts::call(child_.get(), u"parentcell").object());
  assign.arguments.clear();
  assign.arguments.emplace_back(static_cast<IDispatch*>(cell_.get()));
  EXPECT_EQ(assign.put(), S_OK);
  EXPECT_EQ(hosts::call(child_.get(), u"parentcell").object().get(), cell_.get());
}

TEST_F(ArgumentsTest, AnObjectOfAnotherClassIsATypeMismatch) {
  LateCall assign(child_.get(), u"parentcell");
  const ComPtr<_KOBTraductionObj> entry = createEntry();
  assign.arguments.emplace_back(static_cast<IDispatch*>(entry.get()));
  EXPECT_EQ(assign.putReference(), DISP_E_TYPEMISMATCH);
  EXPECT_EQ(hosts::call(child_.get(), u"parentcell").object().get(), cell_.get());
  // Somebody else's object that claims to have the interface.
  EXPECT_EQ(child_->putref_parentcell(reinterpret_cast<_KOBCellTraduction*>(entry.get())),
            static_cast<HRESULT>(0x800A000DUL));
}

}  // namespace kob::testing
