// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#ifdef _WIN32
#include "FailingWin32Calls.h"
#else
#include "FailingPosixCalls.h"
#endif

#include <kobpersistence/Storage.h>
#include <kobtraduction/persistence/FileManager.h>

#include <memory>

namespace kob::test {

/// The service on files by these calls.
class FailingService {
 public:
  FailingService();
  FailingService(const FailingService&) = delete;
  FailingService& operator=(const FailingService&) = delete;
  ~FailingService();

  FailingCalls calls;

 private:
  std::unique_ptr<persistence::Storage> storage_;
  MakeFileManager before_;
};

}  // namespace kob::test
