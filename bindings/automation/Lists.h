// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include "ListShell.h"
#include "Shells.h"
#include "VariantValue.h"

#include <memory>
#include <optional>
#include <utility>

/// How each kind of list gives its items to a host, and takes them.
namespace kob::automation {

inline void store(VARIANT& place, const std::shared_ptr<KOBCellTraduction>& cell) {
  putObject(place, shellOf(cell).detach());
}
inline void store(VARIANT& place, const std::shared_ptr<KOBTraductionObj>& entry) {
  putObject(place, shellOf(entry).detach());
}
inline void store(VARIANT& place, TextView text) {
  putText(place, text);
}
/// The small integer 1 stays one.
inline void store(VARIANT& place, Factor factor) noexcept {
  if (factor.isDouble()) {
    V_VT(&place) = VT_R8;
    V_R8(&place) = factor.value();
  } else {
    V_VT(&place) = VT_I2;
    V_I2(&place) = 1;
  }
}

template <class List>
struct ItemOf;
template <>
struct ItemOf<CellList> {
  static std::shared_ptr<KOBCellTraduction> take(const VARIANT& item) { return cellOf(objectOf(item)); }
};
template <>
struct ItemOf<EntryList> {
  static std::shared_ptr<KOBTraductionObj> take(const VARIANT& item) { return entryOf(objectOf(item)); }
};
template <>
struct ItemOf<FactorList> {
  static Factor take(const VARIANT& item) {
    const VARIANT& number = resolved(item);
    return V_VT(&number) == VT_I2 && V_I2(&number) == 1 ? Factor() : Factor(doubleOf(number));
  }
};
template <>
struct ItemOf<TextList> {
  static Text take(const VARIANT& item) { return textOf(item); }
};
template <>
struct ItemOf<ProgIdTable> {
  static Text take(const VARIANT& item) { return textOf(item); }
};

template <class List>
class ListPart final : public AnyList {
 public:
  explicit ListPart(std::shared_ptr<List> list) noexcept : list_(std::move(list)) {}

  const std::shared_ptr<List>& list() const noexcept { return list_; }

  std::int32_t count() const noexcept override { return list_->Count(); }
  void get(std::int32_t position, VARIANT& item) const override { store(item, list_->Item(position)); }
  void add(const VARIANT& item, std::optional<std::int32_t> before) override {
    if (before) {
      list_->Add(ItemOf<List>::take(item), *before);
    } else {
      list_->Add(ItemOf<List>::take(item));
    }
  }
  void remove(std::int32_t position) override { list_->Remove(position); }
  const void* identity() const noexcept override { return list_.get(); }

 private:
  std::shared_ptr<List> list_;
};

}  // namespace kob::automation
