// SPDX-FileCopyrightText: The KOBTraduction authors
#include "TypeLibrary.h"

#include "Errors.h"
#include "GuidLess.h"
#include "Module.h"

#include <map>
#include <mutex>
#include <string>

namespace kob::automation {

namespace {

std::mutex loading;
/// Never released: when the DLL goes, the library that made them may have gone before.
std::map<IID, ITypeInfo*, GuidLess>& loadedInfos() {
  static auto* const infos = new std::map<IID, ITypeInfo*, GuidLess>;
  return *infos;
}

}  // namespace

ComRef<ITypeLib> loadTypeLibrary() {
  ComRef<ITypeLib> library;
  const HRESULT loaded = LoadTypeLibEx(modulePath().c_str(), REGKIND_NONE, library.put());
  if (FAILED(loaded)) {
    throw SystemFailure(loaded);
  }
  return library;
}

ITypeInfo* typeInfoOf(REFIID id) noexcept {
  try {
    const std::lock_guard lock(loading);
    const auto found = loadedInfos().find(id);
    if (found != loadedInfos().end()) {
      return found->second;
    }
    ComRef<ITypeInfo> info;
    if (FAILED(loadTypeLibrary()->GetTypeInfoOfGuid(id, info.put()))) {
      return nullptr;
    }
    return loadedInfos()[id] = info.detach();
  } catch (...) {
    return nullptr;
  }
}

}  // namespace kob::automation
