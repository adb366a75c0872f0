// SPDX-FileCopyrightText: The KOBTraduction authors
#include "DispatchDouble.h"
#include "LateCall.h"
#include "VariantEnumerator.h"

#include <tests/automation/hosts/scripting/BoxWatcher.h>

namespace kob::testing {

namespace {

ComPtr<DispatchDouble> makeControl(TextView name, TextView caption, const ComPtr<DispatchDouble>& container) {
  ComPtr<DispatchDouble> control = makeDouble();
  control->set(u"Name", Variant(name));
  control->set(u"Caption", Variant(caption));
  control->set(u"ToolTipText", Variant(u""));
  control->set(u"Tag", Variant(u""));
  control->set(u"Left", Variant(std::int32_t{100}));
  control->set(u"Width", Variant(std::int32_t{50}));
  control->set(u"Container", container);
  return control;
}

}  // namespace

/// A host's form with two buttons, in C++.
class HostFormTest : public ServerTest {
 protected:
  HostFormTest() {
    form_->set(u"Name", Variant(u"Form"));
    form_->set(u"Caption", Variant(u"Commande"));
    form_->set(u"Tag", Variant(u""));
    form_->set(u"Width", Variant(std::int32_t{500}));
    show({ok_, cancel_});
  }
  // The host's objects hold each other.
  ~HostFormTest() override {
    form_->set(u"Controls", Variant());
    EXPECT_EQ(boxes_.take(), "");
  }

  void show(const std::vector<ComPtr<DispatchDouble>>& controls) {
    form_->set(u"Controls", makeCollection(controls));
  }
  VARIANT formArgument() const {
    VARIANT argument = {};
    argument.vt = VT_DISPATCH;
    argument.pdispVal = form_.get();
    return argument;
  }
  void harvest() {
    EXPECT_EQ(model_->UpdateWithForm(formArgument(), nullptr, VARIANT_FALSE, *missing().get()), S_OK);
  }
  void translate(LONG language) {
    EXPECT_EQ(model_->TraduitDialog(formArgument(), language, nullptr, VARIANT_FALSE, *missing().get()),
              S_OK);
  }
  /// Harvests, and makes language 2 the test language.
  void prepare() {
    harvest();
    model_->UpdateTestLangue(2);
  }
  static Text captionOf(const ComPtr<DispatchDouble>& control) { return control->value(u"Caption").text(); }

  hosts::BoxWatcher boxes_;
  ComPtr<_KOBModeleTraduction> model_ = createModel();
  ComPtr<DispatchDouble> form_ = makeDouble();
  ComPtr<DispatchDouble> ok_ = makeControl(u"Ok", u"Valider", form_);
  ComPtr<DispatchDouble> cancel_ = makeControl(u"Cancel", u"Annuler", form_);
};

TEST_F(HostFormTest, IsHarvestedAndTranslated) {
  prepare();
  translate(2);
  EXPECT_EQ(captionOf(form_), u"** Commande **");
  EXPECT_EQ(captionOf(ok_), u"** Valider **");
  EXPECT_EQ(captionOf(cancel_), u"** Annuler **");
  EXPECT_EQ(ok_->value(u"Tag").text(), u"");
}

TEST_F(HostFormTest, GivesNoReferenceAway) {
  const ULONG before = references(ok_);
  prepare();
  translate(2);
  EXPECT_EQ(references(ok_), before);
  model_->UpdateWithCtrl(*Variant(static_cast<IDispatch*>(ok_.get())).get(), nullptr);
  EXPECT_EQ(references(ok_), before);
}

TEST_F(HostFormTest, TellsAControlsPath) {
  ok_->set(u"Index", Variant(std::int32_t{3}));
  BSTR path = nullptr;
  ASSERT_EQ(model_->GetPath(*Variant(static_cast<IDispatch*>(ok_.get())).get(), String(u"Achats"), &path),
            S_OK);
  EXPECT_EQ(take(path), u"Achats\\Form\\Ok(3)");
  ASSERT_EQ(model_->GetPath(*Variant().get(), nullptr, &path), S_OK);
  EXPECT_EQ(take(path), u"\\");
}

TEST_F(HostFormTest, MayBePassedByReference) {
  prepare();
  Variant variable(static_cast<IDispatch*>(form_.get()));
  LateCall apply(model_.get(), u"TraduitDialog");
  apply.arguments.push_back(reference(*variable.get()));
  apply.arguments.emplace_back(std::int32_t{2});
  EXPECT_EQ(apply.call(), S_OK);
  EXPECT_EQ(captionOf(ok_), u"** Valider **");
}

TEST_F(HostFormTest, AllArgumentsMayBeNamed) {
  prepare();
  LateCall apply(model_.get(), u"TraduitDialog");
  apply.arguments.emplace_back(static_cast<IDispatch*>(cancel_.get()));
  apply.arguments.emplace_back(std::int32_t{2});
  apply.arguments.emplace_back(static_cast<IDispatch*>(form_.get()));
  apply.names = {u"OnlyContainer", u"langue", u"dlg"};
  EXPECT_EQ(apply.call(), S_OK);
  EXPECT_EQ(captionOf(ok_), u"Valider");
  EXPECT_EQ(captionOf(cancel_), u"** Annuler **");
  EXPECT_EQ(captionOf(form_), u"Commande");
}

TEST_F(HostFormTest, ThatIsNoObjectIsATypeMismatchAndNothingIsAMessage) {
  EXPECT_EQ(model_->TraduitDialog(*Variant(u"Form").get(), 2, nullptr, VARIANT_FALSE, *missing().get()),
            static_cast<HRESULT>(0x800A000DUL));
  for (const VARTYPE type : {VT_EMPTY, VT_NULL, VT_DISPATCH, VT_UNKNOWN}) {
    VARIANT nothing = {};
    nothing.vt = type;
    EXPECT_EQ(model_->TraduitDialog(nothing, 2, nullptr, VARIANT_FALSE, *missing().get()), S_OK);
    EXPECT_EQ(boxes_.take(), "notice \"ERREUR\"\n");
  }
}

TEST_F(HostFormTest, OfAHostThatIsGoneEndsInAMessage) {
  prepare();
  form_->die(static_cast<HRESULT>(0x80010108L));  // The object invoked has disconnected from its clients.
  translate(2);
  EXPECT_EQ(boxes_.take(), "notice \"ERREUR\"\n");
  harvest();
  EXPECT_EQ(boxes_.take(), "notice \"ERREUR 1\"\n");
}

TEST_F(HostFormTest, AControlThatIsGoneIsPassedOver) {
  prepare();
  ok_->die(CO_E_OBJNOTCONNECTED);
  translate(2);
  EXPECT_EQ(captionOf(cancel_), u"** Annuler **");
}

TEST_F(HostFormTest, AControlThatRaisesIsPassedOverAndLeavesNoError) {
  prepare();
  ok_->setFunction(u"Caption", [](const Call&) {
    ComPtr<ICreateErrorInfo> told;
    CreateErrorInfo(told.out());
    SetErrorInfo(0, as<IErrorInfo>(told).get());
    return DISP_E_EXCEPTION;
  });
  translate(2);
  EXPECT_EQ(captionOf(cancel_), u"** Annuler **");
  ComPtr<IErrorInfo> left;
  EXPECT_EQ(GetErrorInfo(0, left.out()), S_FALSE);
}

TEST_F(HostFormTest, MayHaveAnEnumeratorOnly) {
  prepare();
  const ComPtr<DispatchDouble> controls = makeDouble();
  std::vector<Variant> members = {Variant(static_cast<IDispatch*>(ok_.get())),
                                  Variant(static_cast<IDispatch*>(cancel_.get()))};
  controls->setEnumerator([members](const Call& call) { return giveEnumerator(call, members); });
  form_->set(u"Controls", controls);
  translate(2);
  EXPECT_EQ(captionOf(ok_), u"** Valider **");
  EXPECT_EQ(captionOf(cancel_), u"** Annuler **");
  EXPECT_EQ(controls->calls, std::vector<std::string>{"enumerate"});
}

TEST_F(HostFormTest, MayHoldItsControlsInAnArray) {
  prepare();
  for (const LONG lowest : {0L, 1L, -5L}) {
    SAFEARRAYBOUND bound = {2, lowest};
    Variant array;
    array.get()->vt = VT_ARRAY | VT_VARIANT;
    array.get()->parray = SafeArrayCreate(VT_VARIANT, 1, &bound);
    for (const auto& [place, control] : {std::pair(lowest, ok_), std::pair(lowest + 1, cancel_)}) {
      LONG index = place;
      Variant element(static_cast<IDispatch*>(control.get()));
      SafeArrayPutElement(array.get()->parray, &index, element.get());
    }
    ok_->set(u"Caption", Variant(u"?"));
    cancel_->set(u"Caption", Variant(u"?"));
    form_->set(u"Controls", array);
    translate(2);
    EXPECT_EQ(captionOf(ok_), u"** Valider **");
    EXPECT_EQ(captionOf(cancel_), u"** Annuler **");
  }
}

TEST_F(HostFormTest, ToolBarsAreReachedThroughTheirButtons) {
  const ComPtr<DispatchDouble> bar = makeControl(u"Bar", u"", form_);
  const ComPtr<DispatchDouble> button = makeDouble();
  const ComPtr<DispatchDouble> menu = makeDouble();
  for (const auto& [object, key, caption] :
       {std::tuple(button, u"Open", u"Ouvrir"), std::tuple(menu, u"Recent", u"Récent")}) {
    object->set(u"Key", Variant(key));
    object->set(u"Caption", Variant(caption));
    object->set(u"ToolTipText", Variant(u""));
  }
  bar->set(u"Buttons", makeCollection({button}));
  // An indexed property, as forms of compiled hosts have it.
  button->setFunction(u"ButtonMenus", [menus = makeCollection({menu}), menu](const Call& call) {
    return call.give(Variant(static_cast<IDispatch*>(call.count() == 0 ? menus.get() : menu.get())));
  });
  show({bar});
  prepare();
  translate(2);
  EXPECT_EQ(captionOf(button), u"** Ouvrir **");
  EXPECT_EQ(captionOf(menu), u"** Récent **");
  // As the collection that it is.
  button->set(u"Caption", Variant(u"?"));
  menu->set(u"Caption", Variant(u"?"));
  button->setFunction(u"ButtonMenus", nullptr);
  button->set(u"ButtonMenus", makeCollection({menu}));
  translate(2);
  EXPECT_EQ(captionOf(button), u"** Ouvrir **");
  EXPECT_EQ(captionOf(menu), u"** Récent **");
}

TEST_F(HostFormTest, TabsAreWrittenByTheirIndex) {
  const ComPtr<DispatchDouble> tabs = makeControl(u"Tabs", u"", form_);
  Text captions[2] = {u"Un", u"Deux"};
  std::int32_t current = 1;
  tabs->set(u"Tabs", Variant(std::int32_t{2}));
  tabs->setFunction(u"Tab", [&](const Call& call) {
    if (call.isPut()) {
      current = call.argument(0).number();
      return S_OK;
    }
    return call.give(Variant(current));
  });
  tabs->setFunction(u"Caption",
                    [&](const Call& call) { return call.give(Variant(TextView(captions[current]))); });
  tabs->setFunction(u"TabCaption", [&](const Call& call) {
    captions[call.argument(0).number()] = call.argument(1).text();
    return S_OK;
  });
  show({tabs});
  prepare();
  EXPECT_EQ(current, 1);
  translate(2);
  EXPECT_EQ(captions[0], u"** Un **");
  EXPECT_EQ(captions[1], u"** Deux **");
}

TEST_F(HostFormTest, MayChangeTheModelAndLetItGoInTheMiddleOfACall) {
  prepare();
  ok_->setFunction(u"Caption", [&](const Call&) {
    model_->ClearLangue(2);
    model_ = {};
    return S_OK;
  });
  _KOBModeleTraduction* const model = model_.get();
  EXPECT_EQ(model->TraduitDialog(formArgument(), 2, nullptr, VARIANT_FALSE, *missing().get()), S_OK);
  // The cell of the second button has its language-1 text only.
  EXPECT_EQ(captionOf(cancel_), u"Annuler");
  EXPECT_FALSE(model_);
}

}  // namespace kob::testing
