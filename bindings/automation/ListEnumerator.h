// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include "Apartment.h"
#include "Com.h"

namespace kob::automation {

class ListShell;

/// Goes through a list by position: what is added behind the place that it has reached is met, and it ends
/// where the list ends by then.
class ListEnumerator final : public IEnumVARIANT {
 public:
  explicit ListEnumerator(ListShell& list, LONG position = 1);
  ListEnumerator(const ListEnumerator&) = delete;
  ListEnumerator& operator=(const ListEnumerator&) = delete;

  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** object) override;
  ULONG STDMETHODCALLTYPE AddRef() override;
  ULONG STDMETHODCALLTYPE Release() override;

  HRESULT STDMETHODCALLTYPE Next(ULONG count, VARIANT* items, ULONG* fetched) override;
  HRESULT STDMETHODCALLTYPE Skip(ULONG count) override;
  HRESULT STDMETHODCALLTYPE Reset() override;
  HRESULT STDMETHODCALLTYPE Clone(IEnumVARIANT** copy) override;

 private:
  ~ListEnumerator() = default;

  LONG references_ = 1;
  Inhabitant inhabitant_;
  ComRef<ListShell> list_;
  /// The next item's.
  LONG position_;
};

}  // namespace kob::automation
