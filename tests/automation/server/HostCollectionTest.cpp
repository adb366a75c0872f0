// SPDX-FileCopyrightText: The KOBTraduction authors
// Collections, arrays and indexed properties of a host as the engine sees them, asked directly.
#include "HostVocabulary.h"
#include "VariantEnumerator.h"

#include <limits>

namespace kob::testing {

class HostCollectionTest : public HostObjectTest {};

TEST_F(HostCollectionTest, CollectionsAreEnumeratedOrCounted) {
  EXPECT_EQ(namesOf(hostOf(makeCollection({named(u"a"), named(u"b")}, true))->enumerate()), "a b");
  EXPECT_EQ(namesOf(hostOf(makeCollection({named(u"a"), named(u"b")}))->enumerate()), "a b");
  EXPECT_EQ(namesOf(hostOf(makeCollection({}))->enumerate()), "");
}

TEST_F(HostCollectionTest, AnEnumerationThatFailsIsAFailure) {
  const std::vector<Variant> items = {Variant(static_cast<IDispatch*>(named(u"a").get()))};
  object_->setEnumerator([items](const Call& call) { return giveEnumerator(call, items, E_FAIL); });
  EXPECT_EQ(namesOf(host_->enumerate()), "failed");
  // An enumerator that says there is more and gives nothing.
  object_->setEnumerator([items](const Call& call) { return giveEnumerator(call, items, S_OK); });
  EXPECT_EQ(namesOf(host_->enumerate()), "a");
}

TEST_F(HostCollectionTest, WhatIsNoEnumeratorIsCounted) {
  const ComPtr<DispatchDouble> collection = makeCollection({named(u"a")});
  for (const VARTYPE type : {VT_EMPTY, VT_I4, VT_UNKNOWN, VT_DISPATCH}) {
    collection->setEnumerator([type](const Call& call) {
      VARIANT none = {};
      none.vt = type;
      return call.giveRaw(none);
    });
    EXPECT_EQ(namesOf(hostOf(collection)->enumerate()), "a");
  }
}

TEST_F(HostCollectionTest, MembersThatAreNoObjectsAreNothing) {
  const std::vector<Variant> items = {Variant(u"text"), Variant(static_cast<IDispatch*>(named(u"a").get())),
                                      Variant(static_cast<IDispatch*>(nullptr)), Variant(std::int32_t{3})};
  object_->setEnumerator([items](const Call& call) { return giveEnumerator(call, items); });
  EXPECT_EQ(namesOf(host_->enumerate()), "nothing a nothing nothing");
}

TEST_F(HostCollectionTest, ACountThatIsTooHighIsAFailure) {
  const ComPtr<DispatchDouble> collection = makeCollection({named(u"a")});
  collection->set(u"Count", Variant(std::int32_t{2}));
  EXPECT_EQ(namesOf(hostOf(collection)->enumerate()), "failed");
  collection->set(u"Count", Variant(std::int32_t{-1}));
  EXPECT_EQ(namesOf(hostOf(collection)->enumerate()), "");
  collection->set(u"Count", Variant(u"many"));
  EXPECT_EQ(namesOf(hostOf(collection)->enumerate()), "failed");
}

TEST_F(HostCollectionTest, ArraysAreCollectionsThatCountFromOne) {
  for (const LONG lowest : {0L, 1L, -3L}) {
    object_->set(u"Buttons", array({named(u"a"), named(u"b")}, lowest));
    const HostRef buttons = host_->get(Property::Buttons)->asObject().value();
    EXPECT_EQ(longOf(buttons, Property::Count), 2);
    EXPECT_EQ(textOf(buttons->item(1)->asObject().value(), Property::Name), u"a");
    EXPECT_EQ(textOf(buttons->item(2)->asObject().value(), Property::Name), u"b");
    EXPECT_FALSE(buttons->item(0));
    EXPECT_FALSE(buttons->item(3));
    EXPECT_FALSE(buttons->item(std::numeric_limits<std::int32_t>::min()));
    EXPECT_EQ(namesOf(buttons->enumerate()), "a b");
    EXPECT_FALSE(buttons->get(Property::Name));
  }
}

TEST_F(HostCollectionTest, ArraysOfObjectsAndOfOtherThings) {
  object_->set(u"Controls", array({named(u"a"), nullptr}, 0, VT_DISPATCH));
  EXPECT_EQ(namesOf(host_->get(Property::Controls)->asObject().value()->enumerate()), "a nothing");
  SAFEARRAYBOUND bounds[2] = {{2, 0}, {2, 0}};
  Variant table = raw(VT_ARRAY | VT_VARIANT);
  table.get()->parray = SafeArrayCreate(VT_VARIANT, 2, bounds);
  object_->set(u"Controls", table);
  EXPECT_FALSE(host_->get(Property::Controls));
  SAFEARRAYBOUND bound = {3, 0};
  Variant numbers = raw(VT_ARRAY | VT_I4);
  numbers.get()->parray = SafeArrayCreate(VT_I4, 1, &bound);
  object_->set(u"Controls", numbers);
  EXPECT_EQ(namesOf(host_->get(Property::Controls)->asObject().value()->enumerate()),
            "nothing nothing nothing");
}

TEST_F(HostCollectionTest, ArraysOfScriptsAreObjectsWithNumbersForNames) {
  object_->set(u"length", Variant(std::int32_t{2}));
  object_->set(u"0", named(u"a"));
  object_->set(u"1", named(u"b"));
  EXPECT_EQ(longOf(host_, Property::Count), 2);
  EXPECT_EQ(namesOf(host_->enumerate()), "a b");
  EXPECT_EQ(textOf(host_->item(2)->asObject().value(), Property::Name), u"b");
  EXPECT_FALSE(host_->item(3));
}

TEST_F(HostCollectionTest, IndexedPropertiesAreAskedWithTheIndexFirst) {
  std::vector<Text> captions = {u"a", u"b"};
  object_->setFunction(u"TabCaption", [&](const Call& call) {
    const auto place = static_cast<std::size_t>(call.argument(0).number());
    if (call.isPut()) {
      captions[place] = call.argument(1).text();
      return S_OK;
    }
    return call.give(Variant(TextView(captions[place])));
  });
  EXPECT_EQ(host_->getIndexed(Property::TabCaption, 1)->asText(), u"b");
  EXPECT_TRUE(host_->setIndexed(Property::TabCaption, 1, Value(u"c")));
  EXPECT_EQ(captions[1], u"c");
}

TEST_F(HostCollectionTest, APlainMemberIsIndexedThroughWhatItHolds) {
  object_->set(u"ButtonMenus", makeCollection({named(u"a"), named(u"b")}));
  EXPECT_EQ(textOf(host_->getIndexed(Property::ButtonMenus, 2)->asObject().value(), Property::Name), u"b");
  EXPECT_FALSE(host_->getIndexed(Property::ButtonMenus, 3));
  object_->set(u"ButtonMenus", array({named(u"c")}));
  EXPECT_EQ(textOf(host_->getIndexed(Property::ButtonMenus, 1)->asObject().value(), Property::Name), u"c");
  // Captions of tabs in an array of a script.
  const ComPtr<DispatchDouble> captions = makeDouble();
  captions->set(u"0", Variant(u"x"));
  object_->set(u"TabCaption", captions);
  EXPECT_TRUE(host_->setIndexed(Property::TabCaption, 0, Value(u"y")));
  EXPECT_EQ(captions->value(u"0").text(), u"y");
  EXPECT_FALSE(host_->setIndexed(Property::TabCaption, 1, Value(u"y")));
  // A copy of an array cannot be written through.
  object_->set(u"TabCaption", array({named(u"c")}));
  EXPECT_FALSE(host_->setIndexed(Property::TabCaption, 0, Value(u"y")));
}

}  // namespace kob::testing
