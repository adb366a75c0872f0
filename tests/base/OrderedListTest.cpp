// SPDX-FileCopyrightText: The KOBTraduction authors
#include <gtest/gtest.h>
#include <kobtraduction/base/OneInside.h>
#include <kobtraduction/base/OrderedList.h>

#include <cstdint>
#include <limits>
#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace kob {
namespace {

struct InAVector {
  template <class T>
  using List = OrderedList<T>;
};
struct WithOneInside {
  template <class T>
  using List = OrderedList<T, Unwatched, OneInside<T>>;
};

/// Whatever holds the items.
template <class Kind>
class OrderedLists : public testing::Test {
 protected:
  using Words = typename Kind::template List<std::string>;
  using References = typename Kind::template List<std::shared_ptr<int>>;

  static std::vector<std::string> contents(const Words& list) { return {list.begin(), list.end()}; }

  static Words abc() {
    Words list;
    list.Add("a");
    list.Add("b");
    list.Add("c");
    return list;
  }
};
using Kinds = testing::Types<InAVector, WithOneInside>;
TYPED_TEST_SUITE(OrderedLists, Kinds);

template <class Action>
void expectInvalidIndex(Action&& action) {
  try {
    action();
    FAIL() << "nothing failed";
  } catch (const Failure& failure) {
    EXPECT_EQ(failure.kind(), FailureKind::InvalidIndex);
  }
}

TYPED_TEST(OrderedLists, StartsEmpty) {
  const typename TestFixture::Words list;
  EXPECT_EQ(list.Count(), 0);
  EXPECT_TRUE(list.begin() == list.end());
}

TYPED_TEST(OrderedLists, NumbersItsItemsFromOneInOrder) {
  const typename TestFixture::Words list = this->abc();
  ASSERT_EQ(list.Count(), 3);
  EXPECT_EQ(list.Item(1), "a");
  EXPECT_EQ(list.Item(2), "b");
  EXPECT_EQ(list.Item(3), "c");
}

TYPED_TEST(OrderedLists, InsertsInFrontOfAPosition) {
  typename TestFixture::Words list = this->abc();
  list.Add("x", 1);
  list.Add("y", 4);
  EXPECT_EQ(this->contents(list), (std::vector<std::string>{"x", "a", "b", "y", "c"}));
}

TYPED_TEST(OrderedLists, ClearedHoldsNothingAndTakesItemsAgain) {
  typename TestFixture::Words list = this->abc();
  list.Clear();
  EXPECT_EQ(list.Count(), 0);
  expectInvalidIndex([&] { (void)list.Item(1); });
  list.Clear();
  list.Add("d");
  EXPECT_EQ(this->contents(list), (std::vector<std::string>{"d"}));
}

TYPED_TEST(OrderedLists, AnItemThatIsReleasedByClearFindsTheListEmpty) {
  typename TestFixture::References list;
  std::int32_t found = -1;
  const auto look = [&](int* item) {
    found = list.Count();
    delete item;
  };
  list.Add(std::shared_ptr<int>(new int(1), look));
  list.Clear();
  EXPECT_EQ(found, 0);
}

TYPED_TEST(OrderedLists, RemovesByPositionAndClosesTheGap) {
  typename TestFixture::Words list = this->abc();
  list.Remove(2);
  EXPECT_EQ(this->contents(list), (std::vector<std::string>{"a", "c"}));
  list.Remove(2);
  list.Remove(1);
  EXPECT_EQ(list.Count(), 0);
}

TYPED_TEST(OrderedLists, ReadingOutsideItsItemsIsAnInvalidIndex) {
  const typename TestFixture::Words list = this->abc();
  for (const std::int32_t position :
       {0, 4, -1, std::numeric_limits<std::int32_t>::min(), std::numeric_limits<std::int32_t>::max()}) {
    expectInvalidIndex([&] { static_cast<void>(list.Item(position)); });
  }
}

TYPED_TEST(OrderedLists, InsertingInFrontOfNoItemIsAnInvalidIndexAndChangesNothing) {
  typename TestFixture::Words list = this->abc();
  for (const std::int32_t position : {0, 4, -1}) {
    expectInvalidIndex([&] { list.Add("x", position); });
  }
  EXPECT_EQ(this->contents(list), this->contents(this->abc()));
}

TYPED_TEST(OrderedLists, RemovingNoItemIsAnInvalidIndexAndChangesNothing) {
  typename TestFixture::Words list = this->abc();
  for (const std::int32_t position : {0, 4, -1}) {
    expectInvalidIndex([&] { list.Remove(position); });
  }
  EXPECT_EQ(this->contents(list), this->contents(this->abc()));
}

TYPED_TEST(OrderedLists, AnEmptyListHasNoPositionAtAll) {
  typename TestFixture::Words list;
  expectInvalidIndex([&] { static_cast<void>(list.Item(1)); });
  expectInvalidIndex([&] { list.Add("x", 1); });
  expectInvalidIndex([&] { list.Remove(1); });
  EXPECT_EQ(list.Count(), 0);
}

TYPED_TEST(OrderedLists, AnItemOfTheListCanBeAddedToItAgain) {
  typename TestFixture::Words list = this->abc();
  for (int i = 0; i < 40; ++i) {
    list.Add(list.Item(1));
    list.Add(list.Item(2), 1);
    list.Remove(1);
  }
  EXPECT_EQ(list.Count(), 43);
  EXPECT_EQ(list.Item(43), "a");
}

TYPED_TEST(OrderedLists, LetsGoOfWhatIsRemoved) {
  typename TestFixture::References list;
  const auto item = std::make_shared<int>(5);
  list.Add(item);
  list.Add(nullptr);
  EXPECT_EQ(item.use_count(), 2);
  EXPECT_EQ(list.Item(2), nullptr);
  list.Remove(1);
  EXPECT_EQ(item.use_count(), 1);
}

TYPED_TEST(OrderedLists, ACopyHasItemsOfItsOwn) {
  for (const int count : {0, 1, 2}) {
    typename TestFixture::References list;
    const auto item = std::make_shared<int>(5);
    for (int i = 0; i < count; ++i) {
      list.Add(item);
    }
    {
      typename TestFixture::References copy(list);
      EXPECT_EQ(item.use_count(), 1 + 2 * count);
      copy.Add(item);
      EXPECT_EQ(list.Count(), count);
      list = copy;
      EXPECT_EQ(copy.Count(), count + 1);
    }
    EXPECT_EQ(item.use_count(), 2 + count);
    EXPECT_EQ(list.Count(), count + 1);
  }
}

TYPED_TEST(OrderedLists, AMovedListTakesItsItemsAlong) {
  for (const int count : {0, 1, 2}) {
    for (const int before : {0, 1, 2}) {
      typename TestFixture::Words list;
      typename TestFixture::Words other;
      for (int i = 0; i < count; ++i) {
        list.Add("an item that is too long to lie in the string itself");
      }
      for (int i = 0; i < before; ++i) {
        other.Add("b");
      }
      other = std::move(list);
      ASSERT_EQ(other.Count(), count);
      const typename TestFixture::Words made(std::move(other));
      ASSERT_EQ(made.Count(), count);
      for (int i = 1; i <= count; ++i) {
        EXPECT_EQ(made.Item(i), "an item that is too long to lie in the string itself");
      }
    }
  }
}

TYPED_TEST(OrderedLists, MakesRoomWithoutBeingChanged) {
  typename TestFixture::Words list = this->abc();
  list.Reserve(100);
  list.Reserve(-1);
  EXPECT_EQ(this->contents(list), this->contents(this->abc()));
}

}  // namespace
}  // namespace kob
