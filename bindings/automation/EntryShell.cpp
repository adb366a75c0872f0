// SPDX-FileCopyrightText: The KOBTraduction authors
#include "EntryShell.h"

#include "Shells.h"

#include <utility>

namespace kob::automation {

EntryShell::EntryShell(std::shared_ptr<kob::KOBTraductionObj> entry)
    : entry_(std::move(entry)), persistence_(static_cast<_KOBTraductionObj&>(*this), className, *entry_) {
  apartment().add(entry_.get(), static_cast<_KOBTraductionObj&>(*this));
}

EntryShell::~EntryShell() {
  apartment().remove(entry_.get());
}

void* EntryShell::otherPart(REFIID id) noexcept {
  return id == __uuidof(::IKOBVBPersistStream) ? static_cast<::IKOBVBPersistStream*>(&persistence_) : nullptr;
}

HRESULT EntryShell::get_ColTraduction(_KOBCollection** value) {
  return guarded(L"ColTraduction", [&] {
    auto& result = out(value);
    result = shellOf(entry_->ColTraduction()).detach();
  });
}

HRESULT EntryShell::putref_ColTraduction(_KOBCollection* value) {
  return guarded(L"ColTraduction", [&] { entry_->setColTraduction(textListOf(value)); });
}

HRESULT EntryShell::get_nom(BSTR* value) {
  return guarded(L"nom", [&] {
    auto& result = out(value);
    result = newBstr(entry_->nom());
  });
}

HRESULT EntryShell::put_nom(BSTR value) {
  return guarded(L"nom", [&] { entry_->setnom(viewOf(value)); });
}

HRESULT EntryShell::ChangeTraduction(BSTR Traduction, LONG Index) {
  return guarded(L"ChangeTraduction", [&] { entry_->ChangeTraduction(viewOf(Traduction), Index); });
}

}  // namespace kob::automation
