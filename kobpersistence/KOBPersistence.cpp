// SPDX-FileCopyrightText: The KOBTraduction authors
#include <kobpersistence/Describing.h>
#include <kobpersistence/FileManagerOn.h>
#include <kobpersistence/Format.h>
#include <kobpersistence/KOBPersistence.h>
#include <kobpersistence/LargePages.h>
#include <kobpersistence/Loading.h>
#include <kobpersistence/Saving.h>

#include <new>
#include <stdexcept>

namespace kob {

namespace persistence {

namespace {

/// Nothing but a PersistFailure leaves the service.
template <class Call>
void served(Call call) {
  try {
    call();
  } catch (const std::bad_alloc&) {
    throw failure({u"There is not enough memory. Close other programs and try again."});
  } catch (const std::length_error&) {
    throw failure({u"There is not enough memory. Close other programs and try again."});
  }
}

Content contentOf(ReadableFile& file) {
  const std::uint64_t size = file.size();
  if (size > largestFile) {
    throw failure({u"The file is larger than 4 GB, which is the most that can be loaded."});
  }
  Content content{makeLarge<Byte>(inWholePages(size + slack)), 0};
  while (content.size < size) {
    const std::size_t now = file.read(content.bytes.get() + content.size, size - content.size);
    if (now == 0) {
      break;
    }
    content.size += now;
  }
  return content;
}

class ContainerFiles final : public FileManager {
 public:
  explicit ContainerFiles(Storage& storage) : storage_(storage) {}

  void SaveToFile(TextView Filename, IKOBVBPersistStream& obj, std::int32_t mode) override {
    if (mode != 1) {
      throw failure({u"Only files of the kind 1 can be saved, and ", decimal(mode), u" was asked for."});
    }
    served([&] {
      const std::unique_ptr<WritableFile> file = storage_.createBeside(Filename);
      save(*file, obj);
      file->sync();
      file->replace();
    });
  }

  void LoadFromFile(TextView Filename, IKOBVBPersistStream& obj) override {
    served([&] { load(contentOf(*storage_.open(Filename)), obj); });
  }

 private:
  Storage& storage_;
};

}  // namespace

ReadableFile::~ReadableFile() = default;
WritableFile::~WritableFile() = default;
Storage::~Storage() = default;

std::unique_ptr<FileManager> makeFileManagerOn(Storage& storage) {
  return std::make_unique<ContainerFiles>(storage);
}

}  // namespace persistence

std::unique_ptr<FileManager> makeFileManager() {
  return persistence::makeFileManagerOn(persistence::fileStorage());
}

void usePersistence() noexcept {
  if (persistenceService() == nullptr) {
    setPersistenceService(&makeFileManager);
  }
}

}  // namespace kob
