// SPDX-FileCopyrightText: The KOBTraduction authors
#include "ListEnumerator.h"

#include "ListShell.h"

#include <algorithm>
#include <new>

namespace kob::automation {

ListEnumerator::ListEnumerator(ListShell& list, LONG position) : list_(&list), position_(position) {}

HRESULT ListEnumerator::QueryInterface(REFIID id, void** object) {
  if (object == nullptr) {
    return E_POINTER;
  }
  const bool known = id == IID_IUnknown || id == IID_IEnumVARIANT;
  *object = known ? this : nullptr;
  if (!known) {
    return E_NOINTERFACE;
  }
  AddRef();
  return S_OK;
}

ULONG ListEnumerator::AddRef() {
  return static_cast<ULONG>(InterlockedIncrement(&references_));
}

ULONG ListEnumerator::Release() {
  const LONG left = InterlockedDecrement(&references_);
  if (left == 0) {
    delete this;
  }
  return static_cast<ULONG>(left);
}

HRESULT ListEnumerator::Next(ULONG count, VARIANT* items, ULONG* fetched) {
  if (items == nullptr || (fetched == nullptr && count != 1)) {
    return E_POINTER;
  }
  ULONG done = 0;
  HRESULT result = S_OK;
  while (done < count && position_ <= list_->part().count()) {
    VariantInit(&items[done]);
    result = list_->get_Item(position_, &items[done]);
    if (FAILED(result)) {
      break;
    }
    ++position_;
    ++done;
  }
  if (FAILED(result)) {
    // All or nothing: the caller cannot know which of them it would have to clear.
    while (done > 0) {
      VariantClear(&items[--done]);
      --position_;
    }
  } else if (done < count) {
    result = S_FALSE;
  }
  if (fetched != nullptr) {
    *fetched = done;
  }
  return result;
}

HRESULT ListEnumerator::Skip(ULONG count) {
  const auto left = static_cast<ULONG>(std::max<LONG>(list_->part().count() - position_ + 1, 0));
  position_ += static_cast<LONG>(std::min(count, left));
  return count <= left ? S_OK : S_FALSE;
}

HRESULT ListEnumerator::Reset() {
  position_ = 1;
  return S_OK;
}

HRESULT ListEnumerator::Clone(IEnumVARIANT** copy) {
  if (copy == nullptr) {
    return E_POINTER;
  }
  *copy = nullptr;
  try {
    *copy = new ListEnumerator(*list_.get(), position_);
    return S_OK;
  } catch (const std::bad_alloc&) {
    return E_OUTOFMEMORY;
  }
}

}  // namespace kob::automation
