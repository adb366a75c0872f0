// SPDX-FileCopyrightText: The KOBTraduction authors
#include "ModelVocabulary.h"

#include <rapidcheck/gtest.h>

#include <algorithm>
#include <memory>
#include <string>
#include <tuple>
#include <vector>

namespace kob::test {
namespace {

constexpr TextView names5[] = {u"a", u"A", u"b", u"é", u"É"};
constexpr int cellCount = 8;

/// A model among whose cells a host does anything; what a path leads to is walked for here.
class Edited {
 public:
  Edited() {
    cells_.push_back(model.Racine());
    for (int i = 0; i < cellCount; ++i) {
      cells_.push_back(make(i));
    }
    all_.push_back(model.Racine());
  }
  ~Edited() {
    // Cells may stand below themselves, also cells that nobody else holds any more.
    for (const auto& one : all_) {
      if (const CellRef cell = one.lock()) {
        cell->setColCell(nullptr);
      }
    }
  }
  Edited(const Edited&) = delete;
  Edited& operator=(const Edited&) = delete;

  void change(int what, int on, int other, int name) {
    const CellRef& cell = cells_[static_cast<std::size_t>(on)];
    CellRef& second = cells_[static_cast<std::size_t>(other)];
    const auto list = cell->ColCell();
    const std::int32_t position = list && list->Count() > 0 ? name % list->Count() + 1 : 0;
    switch (what) {
      case 0:
      case 1:
        if (cell->TypeCell() == 2 || list != nullptr) {
          append(cell, second);
        }
        break;
      case 2:
        if (position > 0) {
          list->Add(name % 7 == 0 ? nullptr : second, position);
        }
        break;
      case 3:
        if (position > 0) {
          list->Remove(position);
        }
        break;
      case 4:
      case 5:
        second->setnom(names5[name % 5]);
        break;
      case 6:
        cell->setColCell(name % 5 == 0 ? nullptr : second->ColCell());
        break;
      case 7:
        cell->setTypeCell(name % 2 + 1);
        break;
      case 8:
        if (cell->TypeCell() == 2 || list != nullptr) {
          failureOf([&] { cell->AddMessage(names5[name % 5], u"text"); });
        }
        break;
      default:
        if (other > 0) {
          second = make(name);
        }
    }
  }

  /// What is wrong with the answer for a path, asked twice; empty when it is that of a walk.
  std::string compare(const Text& path, RecordingBoxes& boxes) const {
    bool isDamaged = false;
    const KOBCellTraduction* const expected = walk(path, isDamaged);
    for (int i = 0; i < 2; ++i) {
      boxes.notices.clear();
      if (model.GetCell(path).get() != expected) {
        return "cell";
      }
      if (boxes.notices.size() != (isDamaged ? 1U : 0U)) {
        return "message";
      }
    }
    return {};
  }

  KOBModeleTraduction model;

 private:
  CellRef make(int name) {
    CellRef cell = named(names5[name % 5]);
    all_.push_back(cell);
    return cell;
  }

  const KOBCellTraduction* walk(const Text& path, bool& isDamaged) const {
    const KOBCellTraduction* cell = model.Racine().get();
    for (std::size_t start = 0; start < path.size() && cell != nullptr;) {
      const std::size_t end = std::min(path.find(u'\\', start), path.size());
      if (end > start) {
        cell = child(*cell, path.substr(start, end - start), isDamaged);
      }
      start = end + 1;
    }
    return cell;
  }

  static const KOBCellTraduction* child(const KOBCellTraduction& cell, const Text& name, bool& isDamaged) {
    if (cell.TypeCell() == 2) {
      return nullptr;
    }
    if (cell.ColCell() == nullptr) {
      isDamaged = true;
      return nullptr;
    }
    for (const CellRef& one : *cell.ColCell()) {
      if (one == nullptr) {
        isDamaged = true;
        return nullptr;
      }
      if (upper(one->nom()) == upper(name)) {
        return one.get();
      }
    }
    return nullptr;
  }

  std::vector<CellRef> cells_;
  std::vector<std::weak_ptr<KOBCellTraduction>> all_;
};

RC_GTEST_PROP(PathProperties, APathLeadsWhereAWalkLeadsWhateverAHostDoes, ()) {
  ModelTestScope scope;
  Global_Util::setNbLangues(0);
  const auto asked = *rc::gen::container<std::vector<Text>>(
      4, rc::gen::container<Text>(rc::gen::element<char16_t>(u'a', u'A', u'b', u'é', u'\\', u'\\', u'\\')));
  const auto changes = *rc::gen::container<std::vector<std::tuple<int, int, int, int>>>(
      rc::gen::tuple(rc::gen::inRange(0, 10), rc::gen::inRange(0, cellCount + 1),
                     rc::gen::inRange(0, cellCount + 1), rc::gen::inRange(0, 35)));
  Edited edited;
  for (const auto& [what, on, other, name] : changes) {
    edited.change(what, on, other, name);
    for (const Text& path : asked) {
      RC_ASSERT(edited.compare(path, scope.boxes) == "");
    }
    for (const TextView path : {u"a", u"\\A\\b", u"b\\a", u"a\\a\\b", u"É"}) {
      RC_ASSERT(edited.compare(Text(path), scope.boxes) == "");
    }
  }
}

}  // namespace
}  // namespace kob::test
