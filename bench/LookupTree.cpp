// SPDX-FileCopyrightText: The KOBTraduction authors
#include "LookupTree.h"

#include "Words.h"

#include <cstddef>

namespace bench {

namespace {

/// The names are ASCII.
kob::Text widen(const std::string& text) {
  return {text.begin(), text.end()};
}

std::string numbered(const char* stem, int number) {
  return stem + std::to_string(number);
}

}  // namespace

kob::Text Leaf::path() const {
  return u'\\' + widen(form) + u'\\' + widen(frame) + u'\\' + widen(control);
}

LookupTree::LookupTree() : model_(std::make_unique<kob::KOBModeleTraduction>()) {}

LookupTree LookupTree::hot(int perLevel) {
  LookupTree tree;
  const int chosen = perLevel / 2;
  for (int i = 0; i < perLevel; ++i) {
    tree.model_->Racine()->AddNoeuds(widen(numbered("FrmCustomer", i)));
  }
  Leaf place;
  place.form = numbered("FrmCustomer", chosen);
  const auto form = tree.model_->GetCell(widen(place.form));
  for (int i = 0; i < perLevel; ++i) {
    form->AddNoeuds(widen(numbered("fraAddress", i)));
  }
  place.frame = numbered("fraAddress", chosen);
  tree.fillFrame(*form->GetCell(widen(place.frame)), place, perLevel);
  return tree;
}

LookupTree LookupTree::wide(int entries) {
  constexpr int perFrame = 10;
  constexpr int perForm = 100;
  LookupTree tree;
  std::shared_ptr<kob::KOBCellTraduction> form;
  Leaf place;
  for (int i = 0; i < entries; i += perFrame) {
    if (i % perForm == 0) {
      place.form = numbered("FrmCustomer", i / perForm);
      form = tree.model_->Racine()->AddNoeuds(widen(place.form));
    }
    place.frame = numbered("fraAddress", i % perForm / perFrame);
    tree.fillFrame(*form->AddNoeuds(widen(place.frame)), place, perFrame);
  }
  return tree;
}

std::vector<Leaf> LookupTree::hotLeaves(int count) const {
  std::vector<Leaf> chosen;
  chosen.reserve(static_cast<std::size_t>(count));
  for (int i = 0; i < count; ++i) {
    chosen.push_back(leaves_[static_cast<std::size_t>(i) * leaves_.size() / static_cast<std::size_t>(count)]);
  }
  return chosen;
}

void LookupTree::fillFrame(kob::KOBCellTraduction& frame, const Leaf& place, int count) {
  for (int i = 0; i < count; ++i) {
    Leaf leaf = place;
    leaf.control = numbered("cmdAction", i);
    leaf.text = textFor(TextKind::Caption, i, 1);
    std::int32_t failed = 0;
    frame.AddCtrl(widen(leaf.control), {}, widen(leaf.text), 1, 1, failed, {}, {});
    leaves_.push_back(std::move(leaf));
  }
}

}  // namespace bench
