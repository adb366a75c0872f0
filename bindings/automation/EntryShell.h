// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include "PersistPart.h"
#include "Shell.h"

#include <KOBTraduction.h>
#include <kobtraduction/model/KOBTraductionObj.h>

#include <memory>

namespace kob::automation {

/// A translation entry as a host holds it.
class EntryShell final : public Shell<EntryShell, _KOBTraductionObj> {
 public:
  static constexpr const wchar_t* className = L"KOBTraductionObj";
  static constexpr unsigned long shellNumber = 3;
  static const CLSID& classId() noexcept { return __uuidof(::KOBTraductionObj); }

  explicit EntryShell(std::shared_ptr<kob::KOBTraductionObj> entry);
  ~EntryShell();

  const std::shared_ptr<kob::KOBTraductionObj>& part() const noexcept { return entry_; }

  HRESULT STDMETHODCALLTYPE get_ColTraduction(_KOBCollection** value) override;
  HRESULT STDMETHODCALLTYPE putref_ColTraduction(_KOBCollection* value) override;
  HRESULT STDMETHODCALLTYPE get_nom(BSTR* value) override;
  HRESULT STDMETHODCALLTYPE put_nom(BSTR value) override;
  HRESULT STDMETHODCALLTYPE ChangeTraduction(BSTR Traduction, LONG Index) override;

 protected:
  void* otherPart(REFIID id) noexcept override;

 private:
  std::shared_ptr<kob::KOBTraductionObj> entry_;
  PersistPart persistence_;
};

}  // namespace kob::automation
