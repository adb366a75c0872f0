// SPDX-FileCopyrightText: The KOBTraduction authors
#include "FailingCalls.h"

#include <kobpersistence/FileManagerOn.h>

namespace kob::test {

namespace {

persistence::Storage* storageInUse = nullptr;

std::unique_ptr<persistence::Storage> makeStorage(FailingCalls& calls) {
#ifdef _WIN32
  return persistence::makeWin32Storage(calls);
#else
  return persistence::makePosixStorage(calls);
#endif
}

}  // namespace

FailingService::FailingService()
    : storage_(makeStorage(calls)),
      before_(setPersistenceService([] { return persistence::makeFileManagerOn(*storageInUse); })) {
  storageInUse = storage_.get();
}

FailingService::~FailingService() {
  setPersistenceService(before_);
}

}  // namespace kob::test
