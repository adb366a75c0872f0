// SPDX-FileCopyrightText: The KOBTraduction authors
#include <gtest/gtest.h>
#include <kobtraduction/engine/HostObject.h>
#include <kobtraduction/engine/Value.h>

#include <memory>

namespace kob {
namespace {

const HostRef someObject = std::make_shared<HostObject>();

TEST(ValueTest, ATextIsItself) {
  EXPECT_EQ(Value(u"a").asText(), u"a");
  EXPECT_EQ(Value(u"").asText(), u"");
}

TEST(ValueTest, NumbersAsTextHaveAtMostFifteenDigits) {
  EXPECT_EQ(Value(-12).asText(), u"-12");
  EXPECT_EQ(Value(1.5).asText(), u"1.5");
  EXPECT_EQ(Value(12.0).asText(), u"12");
  EXPECT_EQ(Value(0.1 + 0.2).asText(), u"0.3");
  EXPECT_EQ(Value(100000.0).asText(), u"100000");
  EXPECT_EQ(Value(3e9).asText(), u"3000000000");
  EXPECT_EQ(Value(1e15).asText(), u"1E+15");
  EXPECT_EQ(Value(-0.0).asText(), u"0");
}

TEST(ValueTest, BooleansAsTextAreTrueAndFalse) {
  EXPECT_EQ(Value(true).asText(), u"True");
  EXPECT_EQ(Value(false).asText(), u"False");
}

TEST(ValueTest, NothingAndObjectsAreNoTextAndNoNumber) {
  for (const Value& value : {Value(), Value(HostRef()), Value(someObject)}) {
    EXPECT_FALSE(value.asText());
    EXPECT_FALSE(value.asDouble());
    EXPECT_FALSE(value.asLong());
    EXPECT_FALSE(value.asBoolean());
  }
}

TEST(ValueTest, BooleansAsNumbersAreMinusOneAndZero) {
  EXPECT_EQ(Value(true).asDouble(), -1);
  EXPECT_EQ(Value(true).asLong(), -1);
  EXPECT_EQ(Value(false).asLong(), 0);
}

TEST(ValueTest, ATextIsANumberWhenAllOfItReadsAsOne) {
  EXPECT_EQ(Value(u"12").asDouble(), 12);
  EXPECT_EQ(Value(u" -1.5e2\t").asDouble(), -150);
  EXPECT_EQ(Value(u"+3").asLong(), 3);
  for (const char16_t* const text :
       {u"", u" ", u"12a", u"1 2", u"deux", u"inf", u"nan", u"0x10", u"+-1", u"--1"}) {
    EXPECT_FALSE(Value(text).asDouble());
  }
}

TEST(ValueTest, HalvesAreRoundedToTheEvenNeighbour) {
  EXPECT_EQ(Value(0.5).asLong(), 0);
  EXPECT_EQ(Value(1.5).asLong(), 2);
  EXPECT_EQ(Value(2.5).asLong(), 2);
  EXPECT_EQ(Value(-1.5).asLong(), -2);
  EXPECT_EQ(Value(-2.5).asLong(), -2);
  EXPECT_EQ(Value(2.51).asLong(), 3);
  EXPECT_EQ(Value(u"2.5").asInteger(), 2);
}

TEST(ValueTest, IntegersEndAt32Bits) {
  EXPECT_EQ(Value(2147483647.4).asLong(), 2147483647);
  EXPECT_EQ(Value(-2147483648.0).asLong(), -2147483647 - 1);
  EXPECT_FALSE(Value(2147483648.0).asLong());
  EXPECT_FALSE(Value(u"4e9").asLong());
}

TEST(ValueTest, ShortIntegersEndAt16Bits) {
  EXPECT_EQ(Value(32767).asInteger(), 32767);
  EXPECT_FALSE(Value(32768).asInteger());
  EXPECT_FALSE(Value(-32769).asInteger());
}

TEST(ValueTest, ABooleanIsANumberOtherThanZeroOrItsName) {
  EXPECT_EQ(Value(2).asBoolean(), true);
  EXPECT_EQ(Value(0.0).asBoolean(), false);
  EXPECT_EQ(Value(0.25).asBoolean(), true);
  EXPECT_EQ(Value(u"tRUE").asBoolean(), true);
  EXPECT_EQ(Value(u"FALSE").asBoolean(), false);
  EXPECT_EQ(Value(u"0").asBoolean(), false);
  EXPECT_FALSE(Value(u"oui").asBoolean());
}

TEST(ValueTest, AnObjectIsItselfAndNothingIsANullReference) {
  EXPECT_EQ(Value(someObject).asObject(), someObject);
  EXPECT_EQ(Value().asObject(), HostRef());
  EXPECT_TRUE(Value(HostRef()).isNothing());
  EXPECT_FALSE(Value(u"").asObject());
  EXPECT_FALSE(Value(0).asObject());
}

TEST(PropertyTest, NamesAreFoundIgnoringCase) {
  EXPECT_EQ(propertyByName(u"LEFT"), Property::Left);
  EXPECT_EQ(propertyByName(u"Tag"), Property::Tag);
  EXPECT_EQ(propertyByName(u"tooltiptext"), Property::ToolTipText);
  EXPECT_FALSE(propertyByName(u"Height"));
}

TEST(PropertyTest, EachIsFoundByItsOwnName) {
  for (int i = 0; i < propertyCount; ++i) {
    const auto property = static_cast<Property>(i);
    EXPECT_EQ(propertyByName(propertyName(property)), property);
  }
}

TEST(PropertyTest, TheLettersAskedForAreFixed) {
  EXPECT_EQ(propertyName(Property::Tag), u"tag");
  EXPECT_EQ(propertyName(Property::Left), u"left");
  EXPECT_EQ(propertyName(Property::Width), u"width");
  EXPECT_EQ(propertyName(Property::Visible), u"visible");
  EXPECT_EQ(propertyName(Property::Count), u"count");
  EXPECT_EQ(propertyName(Property::Caption), u"Caption");
}

TEST(HostObjectTest, FailsWhateverABindingDoesNotOffer) {
  HostObject object;
  EXPECT_FALSE(object.get(Property::Name));
  EXPECT_FALSE(object.set(Property::Caption, u"a"));
  EXPECT_FALSE(object.getIndexed(Property::ButtonMenus, 1));
  EXPECT_FALSE(object.setIndexed(Property::TabCaption, 0, u"a"));
  EXPECT_FALSE(object.item(1));
  EXPECT_FALSE(object.enumerate());
}

TEST(HostCollectionTest, AnswersItsCountItsItemsFromOneAndItsMembers) {
  HostCollection collection({someObject, nullptr});
  EXPECT_EQ(collection.get(Property::Count)->asLong(), 2);
  EXPECT_EQ(collection.item(1)->asObject(), someObject);
  EXPECT_TRUE(collection.item(2)->isNothing());
  EXPECT_FALSE(collection.item(0));
  EXPECT_FALSE(collection.item(3));
  EXPECT_FALSE(collection.get(Property::Name));
  EXPECT_EQ(collection.enumerate()->size(), 2U);
}

}  // namespace
}  // namespace kob
