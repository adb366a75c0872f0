// SPDX-FileCopyrightText: The KOBTraduction authors
#include "ClassMembers.h"

#include "GuidLess.h"

#include <map>
#include <mutex>

namespace kob::automation {

namespace {

/// The identifier of a class that is closed, or none.
GUID closedClassOf(IDispatch& object) noexcept {
  ComRef<ITypeInfo> info;
  TYPEATTR* attributes = nullptr;
  if (FAILED(object.GetTypeInfo(0, LOCALE_USER_DEFAULT, info.put())) || !info ||
      FAILED(info->GetTypeAttr(&attributes)) || attributes == nullptr) {
    return GUID_NULL;
  }
  const GUID id = (attributes->wTypeFlags & TYPEFLAG_FNONEXTENSIBLE) != 0 ? attributes->guid : GUID_NULL;
  info->ReleaseTypeAttr(attributes);
  return id;
}

}  // namespace

ClassMembers::ClassMembers() noexcept {
  for (std::atomic<DISPID>& member : members_) {
    member.store(notAsked, std::memory_order_relaxed);
  }
}

ClassMembers* classMembersOf(IDispatch& object) noexcept {
  const GUID id = closedClassOf(object);
  if (id == GUID_NULL) {
    return nullptr;
  }
  try {
    static std::mutex guard;
    // A process meets few classes. Never released: objects of any thread may be asked to its end.
    static auto* const known = new std::map<GUID, ClassMembers, GuidLess>;
    const std::lock_guard lock(guard);
    return &(*known)[id];
  } catch (...) {
    return nullptr;
  }
}

}  // namespace kob::automation
