// SPDX-FileCopyrightText: The KOBTraduction authors
#include <kobtraduction/persistence/FileManager.h>

#include <atomic>

namespace kob {

namespace {

std::atomic<MakeFileManager> service = nullptr;

}  // namespace

PersistFailure::PersistFailure(TextView description)
    : description_(description), utf8_(toUtf8(description)) {}

PersistFailure::~PersistFailure() = default;

FileManager::~FileManager() = default;

MakeFileManager setPersistenceService(MakeFileManager make) noexcept {
  return service.exchange(make);
}

MakeFileManager persistenceService() noexcept {
  return service.load();
}

}  // namespace kob
