// SPDX-FileCopyrightText: The KOBTraduction authors
#include <kobtraduction/editor/DlgTraduction.h>
#include <kobtraduction/model/CellWalk.h>
#include <kobtraduction/model/Entries.h>

#include <vector>

namespace kob {

namespace {

constexpr std::int32_t plainImage = 1;

std::int32_t imageOf(const KOBCellTraduction& cell) {
  switch (cell.TypeFeuille()) {
    case 1:
      return cell.Contexte() ? 5 : 4;
    case 2:
      return cell.Contexte() ? 3 : 2;
    default:
      return plainImage;
  }
}

/// The toolkit shows a filled tree at once, also when filling fails.
class Filling {
 public:
  explicit Filling(TreeView& tree) : tree_(tree) { tree_.beginFill(); }
  Filling(const Filling&) = delete;
  Filling& operator=(const Filling&) = delete;
  ~Filling() { tree_.endFill(); }

 private:
  TreeView& tree_;
};

}  // namespace

void DlgTraduction::FillTV() {
  const Updating updating(*this, false);
  const Filling filling(w.TV);
  w.TV.clear();
  for (const auto& cell : required(model_.Racine()->ColCell())) {
    addTopLevel(required(cell));
  }
  if (w.TV.selected() != 0) {
    w.TV.expand(w.TV.selected());
  } else {
    DisplayCell(0);
  }
  // A click is quicker than the making of an index.
  known_.prepare();
}

void DlgTraduction::addTopLevel(KOBCellTraduction& cell) {
  // The name is the tag as it is, and the picture the same for all kinds; the cell to open on is not looked
  // for here: a module is not opened on.
  const Node top = w.TV.add(0, cell.nom(), plainImage, Text(cell.nom()));
  w.TV.expand(top);
  std::vector<Node> above{top};
  CellWalk::each(cell, [&](KOBCellTraduction& below, std::size_t depth) {
    if (depth > 0) {
      above.resize(depth);
      above.push_back(AddToTV(below, above.back()));
    }
  });
}

DlgTraduction::Node DlgTraduction::AddToTV(KOBCellTraduction& cell, Node parent) {
  const Node node = w.TV.add(parent, cell.nom(), imageOf(cell), cell.GetCellPath());
  if (&cell == Cell_.get()) {
    w.TV.select(node);
    DisplayCell(node);
  }
  return node;
}

void DlgTraduction::SelectCell(const KOBCellTraduction& cell) {
  m_Updating = true;
  const Node node = w.TV.find(cell.GetCellPath());
  if (node == 0) {
    m_Updating = false;
    return;
  }
  w.TV.select(node);
  DisplayCell(node);
}

void DlgTraduction::clickNode(Node node) {
  const Updating updating(*this);
  if (node != 0) {
    if (const auto cell = model_.GetCell(w.TV.tag(node))) {
      completeTexts(*cell);
    }
  }
  DisplayCell(node);
}

void DlgTraduction::completeTexts(const KOBCellTraduction& cell) {
  eachEntry(cell, [this](KOBTraductionObj& entry) {
    const std::shared_ptr<TextList> known = known_.of(textsOf(entry).Item(1));
    // Beyond the sixth language there is nothing known, and asking for it fails.
    for (std::int32_t language = 2, last = model_.NbLangues(); language <= last; ++language) {
      if (textsOf(entry).Item(language).empty()) {
        changeText(entry, known->Item(language), language);
      }
    }
  });
}

}  // namespace kob
