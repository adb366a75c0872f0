// SPDX-FileCopyrightText: The KOBTraduction authors
#include <kobpersistence/FileFailure.h>
#include <kobpersistence/Win32Calls.h>
#include <kobpersistence/Win32Failure.h>

#include <algorithm>
#include <string>
#include <string_view>
#include <utility>

namespace kob::persistence {

namespace {

/// How often a save waits a moment for another one of the same file: ten seconds in all.
constexpr int patience = 500;
/// How often a call is made again while another program, mostly one that looks for viruses, or a load or save
/// of the same file that is about to end, has the file: two seconds in all.
constexpr int patienceWithOthers = 100;
/// A name may have 255 units, and the new file's has a few more than the old one's.
constexpr std::size_t mostOfName = 200;
constexpr std::size_t longestName = 255;
/// More than this is not read or written in one call.
constexpr std::size_t mostAtOnce = std::size_t(1) << 30;

constexpr std::wstring_view verbatim = L"\\\\?\\";
constexpr std::wstring_view device = L"\\\\.\\";

constexpr DWORD shareAll = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;

/// Makes a call until it has another result than that somebody else has the file open, or patience ends.
template <class Call>
DWORD patiently(Win32Calls& calls, Call call) {
  DWORD error = call();
  for (int left = patienceWithOthers; error == ERROR_SHARING_VIOLATION && left > 0; --left) {
    calls.pause();
    error = call();
  }
  return error;
}

/// An open file of the system, closed at the end.
class OpenFile {
 public:
  explicit OpenFile(Win32Calls& calls) noexcept : calls_(&calls) {}
  OpenFile(OpenFile&& other) noexcept
      : calls_(other.calls_), file_(std::exchange(other.file_, INVALID_HANDLE_VALUE)) {}
  OpenFile& operator=(OpenFile&&) = delete;
  ~OpenFile() { close(); }

  DWORD open(const std::wstring& path, DWORD access, DWORD share, DWORD disposition, DWORD flags) {
    return calls_->create(path, access, share, disposition, flags, file_);
  }
  HANDLE get() const noexcept { return file_; }
  DWORD close() noexcept {
    return file_ == INVALID_HANDLE_VALUE ? DWORD{ERROR_SUCCESS}
                                         : calls_->close(std::exchange(file_, INVALID_HANDLE_VALUE));
  }

 private:
  Win32Calls* calls_;
  HANDLE file_ = INVALID_HANDLE_VALUE;
};

bool isFolder(const BY_HANDLE_FILE_INFORMATION& file) noexcept {
  return (file.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
}

std::size_t startOfName(const std::wstring& path) noexcept {
  return path.rfind(L'\\') + 1;
}

/// The file that a save writes to before it takes the place of the old one. Long names are cut: files that
/// meet there wait for each other.
std::wstring scratchOf(const std::wstring& path) {
  const std::size_t start = startOfName(path);
  std::size_t end = std::min(path.size(), start + mostOfName);
  if (end < path.size() && path[end] >= 0xDC00 && path[end] < 0xE000) {
    --end;
  }
  return path.substr(0, start) + L'.' + path.substr(start, end - start) + L".kobtmp";
}

/// A file as the person knows it, and as the system does.
struct Named {
  Text name;
  std::wstring path;
};

/// The complete path of a name, in the form that may be of any length; throws for what is no file's name.
/// `isDevice` is set for the name of a device, which has no other.
Named named(Win32Calls& calls, TextView name, bool& isDevice) {
  requireName(name);
  Named result{Text(name), wide(name)};
  isDevice = false;
  if (result.path.substr(0, verbatim.size()) != verbatim) {
    std::wstring path;
    if (const DWORD error = calls.fullPath(result.path, path); error != ERROR_SUCCESS) {
      throw fileFailure(name, u"opened", error);
    }
    isDevice = path.substr(0, device.size()) == device;
    // A share of another machine begins with two strokes already.
    result.path = path.substr(0, 2) == L"\\\\" ? std::wstring(verbatim) + L"UNC" + path.substr(1)
                                               : std::wstring(verbatim) + path;
  }
  const std::size_t start = startOfName(result.path);
  // Behind a colon stands the name of a stream within a file, which cannot be replaced by renaming.
  if (result.path.find(L':', start) != std::wstring::npos && !isDevice) {
    throw impossibleName(name);
  }
  if (result.path.size() - start > longestName) {
    throw fileFailure(name, u"opened", Trouble::NameTooLong, 0);
  }
  return result;
}

class Win32ReadableFile final : public ReadableFile {
 public:
  Win32ReadableFile(Win32Calls& calls, TextView name) : calls_(calls), name_(name), file_(calls) {
    bool isDevice = false;
    const Named file = named(calls, name, isDevice);
    if (isDevice) {
      throw noFileToLoad(name_, false);
    }
    // The flag opens folders as well, which are told from files then.
    check(u"opened", patiently(calls, [&] {
            return file_.open(file.path, GENERIC_READ, shareAll, OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS);
          }));
    BY_HANDLE_FILE_INFORMATION information = {};
    check(u"opened", calls_.information(file_.get(), information));
    if (isFolder(information)) {
      throw noFileToLoad(name_, true);
    }
    size_ = (std::uint64_t{information.nFileSizeHigh} << 32) | information.nFileSizeLow;
  }

  std::uint64_t size() override { return size_; }

  std::size_t read(Byte* to, std::size_t size) override {
    DWORD got = 0;
    check(u"read", calls_.read(file_.get(), to, static_cast<DWORD>(std::min(size, mostAtOnce)), got));
    return got;
  }

 private:
  void check(TextView verb, DWORD error) const {
    if (error != ERROR_SUCCESS) {
      throw fileFailure(name_, verb, error);
    }
  }

  Win32Calls& calls_;
  Text name_;
  OpenFile file_;
  std::uint64_t size_ = 0;
};

class Win32WritableFile final : public WritableFile {
 public:
  Win32WritableFile(Win32Calls& calls, Named target, OpenFile file)
      : calls_(calls), target_(std::move(target)), file_(std::move(file)) {}
  Win32WritableFile(const Win32WritableFile&) = delete;
  Win32WritableFile& operator=(const Win32WritableFile&) = delete;

  ~Win32WritableFile() override {
    if (!isReplaced_) {
      calls_.removeOpen(file_.get());
    }
  }

  /// Takes over who may use a file, where the disk keeps that, and how it is shown.
  void becomeLike(HANDLE old, const BY_HANDLE_FILE_INFORMATION& information) {
    const DWORD error = calls_.copyPermissions(old, file_.get());
    if (error != ERROR_ACCESS_DENIED && error != ERROR_NOT_SUPPORTED && error != ERROR_INVALID_FUNCTION) {
      check(error);
    }
    check(calls_.setAttributes(file_.get(), information));
  }

  void write(const Byte* from, std::size_t size) override {
    while (size > 0) {
      DWORD done = 0;
      check(calls_.write(file_.get(), from, static_cast<DWORD>(std::min(size, mostAtOnce)), done));
      from += done;
      size -= done;
    }
  }

  void writeAtStart(const Byte* from, std::size_t size) override {
    check(calls_.seek(file_.get(), 0, FILE_BEGIN));
    write(from, size);
    check(calls_.seek(file_.get(), 0, FILE_END));
  }

  void startOver() override {
    check(calls_.seek(file_.get(), 0, FILE_BEGIN));
    check(calls_.cut(file_.get()));
  }

  void sync() override { check(calls_.flush(file_.get())); }

  void replace() override {
    // That the file may be replaced was seen before: denied means that somebody has it open.
    const DWORD error = patiently(calls_, [&] {
      const DWORD renamed = calls_.rename(file_.get(), target_.path);
      return renamed == ERROR_ACCESS_DENIED ? DWORD{ERROR_SHARING_VIOLATION} : renamed;
    });
    check(error);
    isReplaced_ = true;
    // Flushing the file makes its new name as lasting as what is in it.
    const DWORD flushed = calls_.flush(file_.get());
    if (flushed != ERROR_SUCCESS) {
      throw perhapsNotKept(target_.name, flushed);
    }
    check(file_.close());
  }

 private:
  void check(DWORD error) const {
    if (error != ERROR_SUCCESS) {
      throw fileFailure(target_.name, u"written", error);
    }
  }

  Win32Calls& calls_;
  Named target_;
  OpenFile file_;
  bool isReplaced_ = false;
};

class Win32Storage final : public Storage {
 public:
  explicit Win32Storage(Win32Calls& calls) : calls_(calls) {}

  std::unique_ptr<ReadableFile> open(TextView name) override {
    return std::make_unique<Win32ReadableFile>(calls_, name);
  }

  std::unique_ptr<WritableFile> createBeside(TextView name) override {
    bool isDevice = false;
    Named target = named(calls_, name, isDevice);
    if (isDevice) {
      throw noFileToWrite(name, false);
    }
    followLink(target);
    const std::wstring scratch = scratchOf(target.path);
    auto file = std::make_unique<Win32WritableFile>(calls_, target, create(target, scratch));
    // Only now: a file that a waiting save keeps open cannot be replaced by the one that it waits for.
    OpenFile old(calls_);
    BY_HANDLE_FILE_INFORMATION information = {};
    if (openOld(target, old, information)) {
      file->becomeLike(old.get(), information);
    }
    return file;
  }

 private:
  /// `target` becomes the file behind the link that it may be.
  void followLink(Named& target) {
    OpenFile file(calls_);
    const DWORD error = openToLook(target, file, FILE_FLAG_OPEN_REPARSE_POINT);
    if (error == ERROR_FILE_NOT_FOUND) {
      return;
    }
    check(target, error);
    BY_HANDLE_FILE_INFORMATION information = {};
    check(target, calls_.information(file.get(), information));
    if ((information.dwFileAttributes & FILE_ATTRIBUTE_REPARSE_POINT) != 0) {
      file.close();
      check(target, openToLook(target, file, 0));
      check(target, calls_.finalPath(file.get(), target.path));
    }
  }

  /// Opens the file that is to be replaced, seeing to it that this is permitted; false when there is none.
  bool openOld(const Named& target, OpenFile& old, BY_HANDLE_FILE_INFORMATION& information) {
    const DWORD error = openToLook(target, old, 0);
    if (error == ERROR_FILE_NOT_FOUND) {
      return false;
    }
    check(target, error);
    check(target, calls_.information(old.get(), information));
    if (isFolder(information)) {
      throw noFileToWrite(target.name, true);
    }
    if ((information.dwFileAttributes & FILE_ATTRIBUTE_READONLY) != 0) {
      check(target, ERROR_ACCESS_DENIED);
    }
    OpenFile writable(calls_);
    check(target, patiently(calls_, [&] {
            return writable.open(target.path, FILE_WRITE_DATA | DELETE, shareAll, OPEN_EXISTING, 0);
          }));
    return true;
  }

  /// Opens a file without keeping others from reading or writing it.
  DWORD openToLook(const Named& target, OpenFile& old, DWORD flags) {
    return patiently(calls_, [&] {
      return old.open(target.path, FILE_READ_ATTRIBUTES | READ_CONTROL, shareAll, OPEN_EXISTING,
                      FILE_FLAG_BACKUP_SEMANTICS | flags);
    });
  }

  /// A new file of that name that nobody else can open. It can be opened again once the process has ended: a
  /// file that is there and can be removed was left by a save that was killed.
  OpenFile create(const Named& target, const std::wstring& scratch) {
    for (int left = patience; left > 0; --left) {
      OpenFile file(calls_);
      DWORD error = file.open(scratch, GENERIC_READ | GENERIC_WRITE | DELETE | WRITE_DAC, 0, CREATE_NEW,
                              FILE_ATTRIBUTE_NORMAL);
      if (error == ERROR_SUCCESS) {
        return file;
      }
      if (error != ERROR_FILE_EXISTS) {
        throw fileFailure(target.name, u"written", error);
      }
      error = calls_.remove(scratch);
      if (error == ERROR_SHARING_VIOLATION) {
        calls_.pause();
      } else if (error != ERROR_SUCCESS && error != ERROR_FILE_NOT_FOUND) {
        throw fileFailure(textOf(scratch.substr(verbatim.size())), u"removed", error);
      }
    }
    throw beingSaved(target.name);
  }

  static void check(const Named& target, DWORD error) {
    if (error != ERROR_SUCCESS) {
      throw fileFailure(target.name, u"written", error);
    }
  }

  Win32Calls& calls_;
};

}  // namespace

std::unique_ptr<Storage> makeWin32Storage(Win32Calls& calls) {
  return std::make_unique<Win32Storage>(calls);
}

Storage& fileStorage() {
  static Win32Calls calls;
  static Win32Storage storage(calls);
  return storage;
}

}  // namespace kob::persistence
