// SPDX-FileCopyrightText: The KOBTraduction authors
// Live objects of a host as the engine sees them, asked directly.
#include "HostVocabulary.h"

#include <kobtraduction/base/Failure.h>

namespace kob::testing {

TEST_F(HostObjectTest, AnswersWhatItHasAndFailsForTheRest) {
  object_->set(u"NAME", Variant(u"Ok"));
  EXPECT_EQ(textOf(host_, Property::Name), u"Ok");
  EXPECT_FALSE(host_->get(Property::Caption));
  EXPECT_FALSE(host_->set(Property::Caption, Value(u"x")));
  EXPECT_FALSE(host_->getIndexed(Property::ButtonMenus, 1));
  EXPECT_FALSE(host_->setIndexed(Property::TabCaption, 0, Value(u"x")));
  EXPECT_FALSE(host_->item(1));
  EXPECT_FALSE(host_->enumerate());
}

TEST_F(HostObjectTest, AMemberThatAppearsLaterIsFound) {
  EXPECT_FALSE(host_->get(Property::Tag));
  object_->set(u"Tag", Variant(u"x"));
  EXPECT_EQ(textOf(host_, Property::Tag), u"x");
}

TEST_F(HostObjectTest, WritesTextsAndNumbers) {
  object_->set(u"Caption", Variant());
  object_->set(u"Left", Variant());
  EXPECT_TRUE(host_->set(Property::Caption, Value(u"é")));
  EXPECT_EQ(object_->value(u"Caption").type(), VT_BSTR);
  EXPECT_EQ(object_->value(u"Caption").text(), u"é");
  EXPECT_TRUE(host_->assignText(Property::Caption, u"λ"));
  EXPECT_EQ(object_->value(u"Caption").text(), u"λ");
  EXPECT_TRUE(host_->set(Property::Left, Value(std::int32_t{7})));
  EXPECT_EQ(object_->value(u"Left").type(), VT_I4);
  EXPECT_TRUE(host_->set(Property::Left, Value(1e12)));
  EXPECT_EQ(object_->value(u"Left").type(), VT_R8);
  EXPECT_FALSE(host_->set(Property::Left, Value(host_)));
}

TEST_F(HostObjectTest, NumbersOfEveryTypeAreRead) {
  const auto read = [&](VARTYPE type, LONGLONG number) {
    Variant value(std::int32_t{static_cast<std::int32_t>(number)});
    Variant converted;
    EXPECT_EQ(VariantChangeType(converted.get(), value.get(), 0, type), S_OK);
    object_->set(u"Index", converted);
    return longOf(host_, Property::Index);
  };
  for (const VARTYPE type : {VT_I1, VT_UI1, VT_I2, VT_UI2, VT_I4, VT_UI4, VT_I8, VT_UI8, VT_INT, VT_UINT,
                             VT_R4, VT_R8, VT_CY, VT_DATE, VT_DECIMAL, VT_BSTR}) {
    EXPECT_EQ(read(type, 12), 12) << type;
  }
  Variant large = raw(VT_UI4);
  large.get()->ulVal = 4000000000U;
  object_->set(u"Index", large);
  EXPECT_FALSE(longOf(host_, Property::Index));
  EXPECT_EQ(host_->get(Property::Index)->asDouble(), 4000000000.0);
}

TEST_F(HostObjectTest, AnUninitialisedVariableReadsAsAutomationReadsIt) {
  for (const TextView name : {u"Caption", u"Index", u"Visible", u"Container"}) {
    object_->set(name, Variant());
  }
  EXPECT_EQ(textOf(host_, Property::Caption), u"");
  EXPECT_EQ(longOf(host_, Property::Index), 0);
  EXPECT_EQ(host_->get(Property::Visible)->asBoolean(), false);
  EXPECT_TRUE(host_->get(Property::Container)->isNothing());
}

TEST_F(HostObjectTest, NullHasNoTextAndNoNumber) {
  object_->set(u"Caption", raw(VT_NULL));
  object_->set(u"Index", raw(VT_NULL));
  EXPECT_FALSE(textOf(host_, Property::Caption));
  EXPECT_FALSE(longOf(host_, Property::Index));
}

TEST_F(HostObjectTest, ValuesThatMakeNoSenseAreFailures) {
  Variant error = raw(VT_ERROR);
  error.get()->scode = DISP_E_PARAMNOTFOUND;
  object_->set(u"Caption", error);
  EXPECT_FALSE(host_->get(Property::Caption));
  object_->set(u"Caption", array({}));
  EXPECT_FALSE(host_->get(Property::Caption));
  for (const VARTYPE type :
       {VT_BYREF | VT_BSTR, VT_BYREF | VT_VARIANT, VT_BYREF | VT_I4, VT_BYREF | VT_DISPATCH,
        VT_ARRAY | VT_VARIANT, VT_BYREF | VT_ARRAY | VT_VARIANT, int{VT_VOID}, int{VT_RECORD}, 999}) {
    object_->setFunction(u"Controls", [type](const Call& call) {
      VARIANT nonsense = {};
      nonsense.vt = type;
      return call.giveRaw(nonsense);
    });
    const std::optional<Value> controls = host_->get(Property::Controls);
    EXPECT_TRUE(!controls || controls->isNothing()) << type;
  }
}

TEST_F(HostObjectTest, AStringThatIsNoneIsEmpty) {
  object_->set(u"Caption", raw(VT_BSTR));
  EXPECT_EQ(textOf(host_, Property::Caption), u"");
  Text text = u"kept ";
  EXPECT_TRUE(host_->appendText(Property::Caption, text));
  EXPECT_EQ(text, u"kept ");
}

TEST_F(HostObjectTest, AnObjectWithoutDispatchIsAFailure) {
  ComPtr<IUnknown> lock;
  ASSERT_EQ(CreateErrorInfo(reinterpret_cast<ICreateErrorInfo**>(lock.out())), S_OK);
  Variant value = raw(VT_UNKNOWN);
  value.get()->punkVal = lock.get();
  lock->AddRef();
  object_->set(u"Container", value);
  EXPECT_FALSE(host_->get(Property::Container));
  object_->set(u"Container", raw(VT_UNKNOWN));
  EXPECT_TRUE(host_->get(Property::Container)->isNothing());
}

TEST_F(HostObjectTest, AnObjectStandsForItsDefaultValue) {
  const ComPtr<DispatchDouble> text = makeDouble();
  text->setDefault([](const Call& call) { return call.give(Variant(u"by default")); });
  object_->set(u"Caption", text);
  EXPECT_EQ(textOf(host_, Property::Caption), u"by default");
  // One that stands for itself would never end.
  text->setDefault([&](const Call& call) { return call.give(Variant(static_cast<IDispatch*>(text.get()))); });
  EXPECT_FALSE(host_->get(Property::Caption));
  text->setDefault(nullptr);
  text->setDefault([](const Call&) { return E_FAIL; });
  EXPECT_FALSE(host_->get(Property::Caption));
}

TEST_F(HostObjectTest, AMethodIsReadToo) {
  object_->setFunction(u"Name", [](const Call& call) {
    return call.isMethod() ? call.give(Variant(u"called")) : DISP_E_MEMBERNOTFOUND;
  });
  EXPECT_EQ(textOf(host_, Property::Name), u"called");
}

TEST_F(HostObjectTest, AMemberThatRaisesIsAskedOnce) {
  object_->setFunction(u"ButtonMenus", [](const Call&) { return DISP_E_EXCEPTION; });
  EXPECT_FALSE(host_->getIndexed(Property::ButtonMenus, 1));
  EXPECT_EQ(object_->calls, std::vector<std::string>{"get ButtonMenus"});
  object_->calls.clear();
  object_->setFunction(u"TabCaption", [](const Call&) { return static_cast<HRESULT>(0x80020101L); });
  EXPECT_FALSE(host_->setIndexed(Property::TabCaption, 0, Value(u"x")));
  EXPECT_EQ(object_->calls, std::vector<std::string>{"put TabCaption"});
}

TEST_F(HostObjectTest, DeadAnswersFailedToEverything) {
  object_->set(u"Name", Variant(u"Ok"));
  EXPECT_TRUE(host_->get(Property::Name));
  object_->die(static_cast<HRESULT>(0x800706BAL));  // The RPC server is unavailable.
  EXPECT_FALSE(host_->get(Property::Name));
  EXPECT_FALSE(host_->get(Property::Tag));
  EXPECT_FALSE(host_->set(Property::Name, Value(u"x")));
  EXPECT_FALSE(host_->assignText(Property::Name, u"x"));
  Text text;
  EXPECT_FALSE(host_->appendText(Property::Name, text));
  EXPECT_FALSE(host_->item(1));
  EXPECT_FALSE(host_->enumerate());
  EXPECT_FALSE(host_->getIndexed(Property::Name, 1));
  EXPECT_FALSE(host_->setIndexed(Property::Name, 1, Value(u"x")));
}

TEST_F(HostObjectTest, IsTheSameHoweverItIsReached) {
  object_->set(u"Container", object_);
  const HostRef again = hostOf(object_);
  EXPECT_EQ(host_->identity(), again->identity());
  EXPECT_EQ(host_->get(Property::Container)->asObject().value()->identity(), host_->identity());
  EXPECT_NE(hostOf(makeDouble())->identity(), host_->identity());
  object_->set(u"Container", Variant());
}

TEST_F(HostObjectTest, OfAClosedClassIsAskedForANameOnceAndForAll) {
  const auto make = [](const IID& type) {
    ComPtr<DispatchDouble> control = named(u"a");
    ComPtr<ITypeInfo> info;
    EXPECT_EQ(typeLibrary()->GetTypeInfoOfGuid(type, info.out()), S_OK);
    control->setType(std::move(info));
    return control;
  };
  // The first of its class tells what the class has and lacks.
  const ComPtr<DispatchDouble> first = make(__uuidof(_KOBCellTraduction));
  EXPECT_EQ(textOf(hostOf(first), Property::Name), u"a");
  EXPECT_FALSE(hostOf(first)->get(Property::Index));
  EXPECT_EQ(first->lookUps, 2);
  const ComPtr<DispatchDouble> second = make(__uuidof(_KOBCellTraduction));
  EXPECT_EQ(textOf(hostOf(second), Property::Name), u"a");
  EXPECT_FALSE(hostOf(second)->get(Property::Index));
  EXPECT_EQ(second->lookUps, 0);
  // An open class may have more in one object than in another.
  for (int i = 0; i < 2; ++i) {
    const ComPtr<DispatchDouble> open = make(__uuidof(IKOBVBStream));
    EXPECT_EQ(textOf(hostOf(open), Property::Name), u"a");
    EXPECT_FALSE(hostOf(open)->get(Property::Index));
    EXPECT_EQ(open->lookUps, 2);
  }
}

TEST_F(HostObjectTest, ThatIsGoneTellsNothingAboutItsClass) {
  ComPtr<ITypeInfo> info;
  ASSERT_EQ(typeLibrary()->GetTypeInfoOfGuid(__uuidof(_KOBTraductionObj), info.out()), S_OK);
  const ComPtr<DispatchDouble> gone = named(u"a");
  gone->setType(info);
  gone->die(CO_E_OBJNOTCONNECTED);
  EXPECT_FALSE(hostOf(gone)->get(Property::Name));
  object_->set(u"Name", Variant(u"b"));
  object_->setType(info);
  EXPECT_EQ(textOf(host_, Property::Name), u"b");
}

TEST_F(HostObjectTest, NothingIsNoHost) {
  EXPECT_EQ(automation::hostOf(static_cast<IUnknown*>(nullptr)), nullptr);
  EXPECT_EQ(automation::hostOf(*raw(VT_EMPTY).get()), nullptr);
  EXPECT_EQ(automation::hostOf(*raw(VT_NULL).get()), nullptr);
  EXPECT_THROW(automation::hostOf(*Variant(u"text").get()), Failure);
}

}  // namespace kob::testing
