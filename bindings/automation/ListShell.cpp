// SPDX-FileCopyrightText: The KOBTraduction authors
#include "ListShell.h"

#include "ListEnumerator.h"
#include "VariantValue.h"

#include <utility>

namespace kob::automation {

ListShell::ListShell(std::unique_ptr<AnyList> list) : list_(std::move(list)) {
  apartment().add(list_->identity(), static_cast<_KOBCollection&>(*this));
}

ListShell::~ListShell() {
  apartment().remove(list_->identity());
}

HRESULT ListShell::get_Item(LONG Index, VARIANT* value) {
  return guarded(L"Item", [&] { list_->get(Index, out(value)); });
}

HRESULT ListShell::Add(VARIANT Item, VARIANT Before) {
  return guarded(L"Add",
                 [&] { list_->add(Item, isMissing(Before) ? std::nullopt : std::optional(longOf(Before))); });
}

HRESULT ListShell::get_Count(LONG* value) {
  return guarded(L"Count", [&] {
    auto& result = out(value);
    result = list_->count();
  });
}

HRESULT ListShell::Remove(LONG Index) {
  return guarded(L"Remove", [&] { list_->remove(Index); });
}

HRESULT ListShell::get__NewEnum(IUnknown** value) {
  return guarded(L"_NewEnum", [&] {
    auto& result = out(value);
    result = new ListEnumerator(*this);
  });
}

}  // namespace kob::automation
