// SPDX-FileCopyrightText: The KOBTraduction authors
#include "PlainModel.h"

#include <rapidcheck.h>

#include <cstdint>
#include <limits>
#include <utility>

namespace kob::test {

namespace {

/// How many cells and entries a tree may have.
constexpr int mostCells = 9;
constexpr int mostEntries = 7;
/// Lists are up to so long, whatever the language count.
constexpr int longestList = 6;

int below(int limit) {
  return *rc::gen::resize(100, rc::gen::inRange(0, limit));
}

bool oneIn(int many) {
  return below(many) == many - 1;
}

std::int32_t anyIndicator() {
  return *rc::gen::element(1, -1, 0, 5, -2, std::numeric_limits<std::int32_t>::min(),
                           std::numeric_limits<std::int32_t>::max());
}

PlainCell::Factors anyFactors() {
  if (oneIn(12)) {
    return std::nullopt;
  }
  // Mostly long enough for every language.
  std::vector<Factor> factors(static_cast<std::size_t>(oneIn(3) ? below(longestList) : longestList));
  for (Factor& factor : factors) {
    if (oneIn(2)) {
      factor = Factor(*rc::gen::element(1.0, 0.5, 1.25, 0.0, -0.0, -3.0, 1e300, 5e-324,
                                        std::numeric_limits<double>::infinity(),
                                        std::numeric_limits<double>::quiet_NaN()));
    }
  }
  return factors;
}

PlainCell::EntryRef anyEntry() {
  auto entry = std::make_shared<PlainEntry>();
  entry->name = anyUnits();
  if (!oneIn(20)) {
    entry->texts.emplace();
    for (int i = below(longestList); i > 0; --i) {
      entry->texts->push_back(anyUnits());
    }
  }
  return entry;
}

class TreeMaker {
 public:
  PlainCell tree() {
    for (int i = below(mostEntries); i > 0; --i) {
      entries_.push_back(anyEntry());
    }
    PlainCell root = cell(true);
    std::vector<PlainCell*> nodes{&root};
    for (int i = below(mostCells); i > 0; --i) {
      PlainCell& parent = *nodes[static_cast<std::size_t>(below(static_cast<int>(nodes.size())))];
      if (!parent.children) {
        continue;
      }
      if (oneIn(25)) {
        parent.children->push_back(nullptr);
        continue;
      }
      parent.children->push_back(std::make_shared<PlainCell>(cell(oneIn(2))));
      if (parent.children->back()->isNode) {
        nodes.push_back(parent.children->back().get());
      }
    }
    return root;
  }

 private:
  PlainCell cell(bool isNode) {
    PlainCell made;
    made.name = anyUnits();
    made.alias = oneIn(2) ? made.name : anyUnits();
    made.isNode = isNode;
    if (isNode && !oneIn(20)) {
      made.children.emplace();
    }
    made.kind = below(3);
    if (made.kind == 1) {
      made.message = entry();
    } else if (made.kind == 2) {
      made.left = anyIndicator();
      made.width = anyIndicator();
      if (!oneIn(20)) {
        made.entries.emplace();
        for (int i = below(4); i > 0; --i) {
          made.entries->push_back(entry());
        }
      }
      made.widths = anyFactors();
      made.lefts = anyFactors();
    }
    made.isContext = oneIn(3);
    return made;
  }

  /// One of few, so that some are shared, or nothing.
  PlainCell::EntryRef entry() {
    if (entries_.empty() || oneIn(15)) {
      return nullptr;
    }
    return entries_[static_cast<std::size_t>(below(static_cast<int>(entries_.size())))];
  }

  std::vector<PlainCell::EntryRef> entries_;
};

}  // namespace

Text anyUnits() {
  const auto unit = rc::gen::oneOf(rc::gen::element<std::uint16_t>(u'a', u'Z', 0, 0xD800, 0xDC00, 0xDFFF,
                                                                   0xFFFF, 0xFEFF, 0xFFFE, u'é', u'"', u'\n'),
                                   rc::gen::arbitrary<std::uint16_t>());
  Text text;
  for (const std::uint16_t one : *rc::gen::resize(8, rc::gen::container<std::vector<std::uint16_t>>(unit))) {
    text.push_back(static_cast<char16_t>(one));
  }
  return text;
}

PlainCell anyTree() {
  return TreeMaker().tree();
}

}  // namespace kob::test
