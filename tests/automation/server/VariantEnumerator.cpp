// SPDX-FileCopyrightText: The KOBTraduction authors
#include "VariantEnumerator.h"

#include <tests/automation/hosts/scripting/Counted.h>

namespace kob::testing {

namespace {

class VariantEnumerator final : public hosts::Counted<IEnumVARIANT> {
 public:
  VariantEnumerator(std::vector<Variant> items, HRESULT ends) : items_(std::move(items)), ends_(ends) {}

  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** object) override {
    const bool known = id == IID_IUnknown || id == IID_IEnumVARIANT;
    return answer(known ? this : nullptr, object);
  }
  HRESULT STDMETHODCALLTYPE Next(ULONG count, VARIANT* items, ULONG* fetched) override {
    ULONG done = 0;
    for (; done < count && next_ < items_.size(); ++done, ++next_) {
      VariantInit(&items[done]);
      VariantCopy(&items[done], items_[next_].get());
    }
    if (fetched != nullptr) {
      *fetched = done;
    }
    return done == count ? S_OK : ends_;
  }
  HRESULT STDMETHODCALLTYPE Skip(ULONG /*count*/) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE Reset() override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE Clone(IEnumVARIANT** /*copy*/) override { return E_NOTIMPL; }

 private:
  std::size_t next_ = 0;
  std::vector<Variant> items_;
  HRESULT ends_;
};

}  // namespace

HRESULT giveEnumerator(const Call& call, const std::vector<Variant>& items, HRESULT ends) {
  VARIANT value = {};
  value.vt = VT_UNKNOWN;
  value.punkVal = new VariantEnumerator(items, ends);
  return call.giveRaw(value);
}

}  // namespace kob::testing
