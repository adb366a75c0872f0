// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include "Shell.h"

#include <KOBTraduction.h>

#include <cstdint>
#include <memory>
#include <optional>

namespace kob::automation {

/// A list of the component, whatever it holds, with items as a host gives and takes them. Positions outside
/// 1..count fail with InvalidIndex, items that the list cannot hold with TypeMismatch.
class AnyList {
 public:
  virtual ~AnyList() = default;
  virtual std::int32_t count() const noexcept = 0;
  /// Into an empty variant.
  virtual void get(std::int32_t position, VARIANT& item) const = 0;
  virtual void add(const VARIANT& item, std::optional<std::int32_t> before) = 0;
  virtual void remove(std::int32_t position) = 0;
  /// Which list it is.
  virtual const void* identity() const noexcept = 0;
};

/// A list as a host holds it.
class ListShell final : public Shell<ListShell, _KOBCollection> {
 public:
  static constexpr const wchar_t* className = L"KOBCollection";
  static constexpr unsigned long shellNumber = 4;
  static const CLSID& classId() noexcept { return __uuidof(::KOBCollection); }

  explicit ListShell(std::unique_ptr<AnyList> list);
  ~ListShell();

  AnyList& part() const noexcept { return *list_; }

  HRESULT STDMETHODCALLTYPE get_Item(LONG Index, VARIANT* value) override;
  HRESULT STDMETHODCALLTYPE Add(VARIANT Item, VARIANT Before) override;
  HRESULT STDMETHODCALLTYPE get_Count(LONG* value) override;
  HRESULT STDMETHODCALLTYPE Remove(LONG Index) override;
  HRESULT STDMETHODCALLTYPE get__NewEnum(IUnknown** value) override;

 private:
  std::unique_ptr<AnyList> list_;
};

}  // namespace kob::automation
