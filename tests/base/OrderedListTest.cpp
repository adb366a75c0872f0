// SPDX-FileCopyrightText: The KOBTraduction authors
#include <gtest/gtest.h>
#include <kobtraduction/base/OrderedList.h>

#include <cstdint>
#include <limits>
#include <memory>
#include <string>
#include <vector>

namespace kob {
namespace {

using Words = OrderedList<std::string>;

std::vector<std::string> contents(const Words& list) {
  return {list.begin(), list.end()};
}

Words abc() {
  Words list;
  list.Add("a");
  list.Add("b");
  list.Add("c");
  return list;
}

template <class Action>
void expectInvalidIndex(Action&& action) {
  try {
    action();
    FAIL() << "nothing failed";
  } catch (const Failure& failure) {
    EXPECT_EQ(failure.kind(), FailureKind::InvalidIndex);
  }
}

TEST(OrderedList, StartsEmpty) {
  const Words list;
  EXPECT_EQ(list.Count(), 0);
  EXPECT_TRUE(list.begin() == list.end());
}

TEST(OrderedList, NumbersItsItemsFromOneInOrder) {
  const Words list = abc();
  ASSERT_EQ(list.Count(), 3);
  EXPECT_EQ(list.Item(1), "a");
  EXPECT_EQ(list.Item(2), "b");
  EXPECT_EQ(list.Item(3), "c");
}

TEST(OrderedList, InsertsInFrontOfAPosition) {
  Words list = abc();
  list.Add("x", 1);
  list.Add("y", 4);
  EXPECT_EQ(contents(list), (std::vector<std::string>{"x", "a", "b", "y", "c"}));
}

TEST(OrderedList, RemovesByPositionAndClosesTheGap) {
  Words list = abc();
  list.Remove(2);
  EXPECT_EQ(contents(list), (std::vector<std::string>{"a", "c"}));
  list.Remove(2);
  list.Remove(1);
  EXPECT_EQ(list.Count(), 0);
}

TEST(OrderedList, ReadingOutsideItsItemsIsAnInvalidIndex) {
  const Words list = abc();
  for (const std::int32_t position :
       {0, 4, -1, std::numeric_limits<std::int32_t>::min(), std::numeric_limits<std::int32_t>::max()}) {
    expectInvalidIndex([&] { static_cast<void>(list.Item(position)); });
  }
}

TEST(OrderedList, InsertingInFrontOfNoItemIsAnInvalidIndexAndChangesNothing) {
  Words list = abc();
  for (const std::int32_t position : {0, 4, -1}) {
    expectInvalidIndex([&] { list.Add("x", position); });
  }
  EXPECT_EQ(contents(list), contents(abc()));
}

TEST(OrderedList, RemovingNoItemIsAnInvalidIndexAndChangesNothing) {
  Words list = abc();
  for (const std::int32_t position : {0, 4, -1}) {
    expectInvalidIndex([&] { list.Remove(position); });
  }
  EXPECT_EQ(contents(list), contents(abc()));
}

TEST(OrderedList, AnEmptyListHasNoPositionAtAll) {
  Words list;
  expectInvalidIndex([&] { static_cast<void>(list.Item(1)); });
  expectInvalidIndex([&] { list.Add("x", 1); });
  expectInvalidIndex([&] { list.Remove(1); });
  EXPECT_EQ(list.Count(), 0);
}

TEST(OrderedList, AnItemOfTheListCanBeAddedToItAgain) {
  Words list = abc();
  for (int i = 0; i < 40; ++i) {
    list.Add(list.Item(1));
    list.Add(list.Item(2), 1);
    list.Remove(1);
  }
  EXPECT_EQ(list.Count(), 43);
  EXPECT_EQ(list.Item(43), "a");
}

TEST(OrderedList, LetsGoOfWhatIsRemoved) {
  OrderedList<std::shared_ptr<int>> list;
  const auto item = std::make_shared<int>(5);
  list.Add(item);
  list.Add(nullptr);
  EXPECT_EQ(item.use_count(), 2);
  EXPECT_EQ(list.Item(2), nullptr);
  list.Remove(1);
  EXPECT_EQ(item.use_count(), 1);
}

}  // namespace
}  // namespace kob
