// SPDX-FileCopyrightText: The KOBTraduction authors
#include <kobpersistence/FileFailure.h>
#include <kobpersistence/PosixCalls.h>
#include <kobpersistence/PosixFailure.h>

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <climits>
#include <string>
#include <string_view>
#include <utility>

namespace kob::persistence {

namespace {

constexpr int mostLinks = 40;
/// Bytes that go to the disk together, ahead of the flush.
constexpr off_t syncedTogether = 2 << 20;
/// How often a save waits a moment for another one of the same file: ten seconds in all.
constexpr int patience = 500;
/// A name may have 255 bytes, and the new file's has a few more than the old one's.
constexpr std::size_t mostOfName = 200;

template <class Call>
auto unlessInterrupted(Call call) {
  auto result = call();
  while (result < 0 && errno == EINTR) {
    result = call();
  }
  return result;
}

/// An open file of the system, closed at the end.
class OpenFile {
 public:
  OpenFile(PosixCalls& calls, int file) noexcept : calls_(&calls), file_(file) {}
  OpenFile(OpenFile&& other) noexcept : calls_(other.calls_), file_(std::exchange(other.file_, -1)) {}
  OpenFile& operator=(OpenFile&& other) noexcept {
    std::swap(file_, other.file_);
    return *this;
  }
  ~OpenFile() { close(); }

  int get() const noexcept { return file_; }
  bool isOpen() const noexcept { return file_ >= 0; }
  int close() noexcept { return file_ < 0 ? 0 : calls_->close(std::exchange(file_, -1)); }

 private:
  PosixCalls* calls_;
  int file_;
};

std::string folderOf(const std::string& path) {
  const std::size_t slash = path.rfind('/');
  return slash == std::string::npos ? "./" : path.substr(0, slash + 1);
}

/// The file that a save writes to before it takes the place of the old one. Long names are cut: files that
/// meet there wait for each other.
std::string scratchOf(const std::string& path) {
  const std::size_t slash = path.rfind('/');
  const std::size_t start = slash == std::string::npos ? 0 : slash + 1;
  std::size_t end = std::min(path.size(), start + mostOfName);
  while (end < path.size() && (static_cast<unsigned char>(path[end]) & 0xC0) == 0x80) {
    --end;
  }
  return path.substr(0, start) + '.' + path.substr(start, end - start) + ".kobtmp";
}

bool isSameFile(const struct stat& a, const struct stat& b) noexcept {
  return a.st_dev == b.st_dev && a.st_ino == b.st_ino;
}

class PosixReadableFile final : public ReadableFile {
 public:
  PosixReadableFile(PosixCalls& calls, std::string path)
      : calls_(calls),
        path_(std::move(path)),
        // Without O_NONBLOCK a pipe of that name would keep the call waiting.
        file_(calls, unlessInterrupted(
                         [&] { return calls.open(path_.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK, 0); })) {
    struct stat status = {};
    if (!file_.isOpen() || calls_.fstat(file_.get(), &status) != 0) {
      throw fileFailure(path_, u"opened", errno);
    }
    if (!S_ISREG(status.st_mode)) {
      throw noFileToLoad(textOf(path_), S_ISDIR(status.st_mode));
    }
    size_ = static_cast<std::uint64_t>(status.st_size);
  }

  std::uint64_t size() override { return size_; }

  std::size_t read(Byte* to, std::size_t size) override {
    // More than this is not read in one call anyway.
    const std::size_t now = std::min<std::size_t>(size, std::size_t(1) << 30);
    const ssize_t got = unlessInterrupted([&] { return calls_.read(file_.get(), to, now); });
    if (got < 0) {
      throw fileFailure(path_, u"read", errno);
    }
    return static_cast<std::size_t>(got);
  }

 private:
  PosixCalls& calls_;
  std::string path_;
  OpenFile file_;
  std::uint64_t size_ = 0;
};

class PosixWritableFile final : public WritableFile {
 public:
  PosixWritableFile(PosixCalls& calls, std::string target, std::string scratch, OpenFile file)
      : calls_(calls), target_(std::move(target)), scratch_(std::move(scratch)), file_(std::move(file)) {}
  PosixWritableFile(const PosixWritableFile&) = delete;
  PosixWritableFile& operator=(const PosixWritableFile&) = delete;

  ~PosixWritableFile() override {
    if (!isReplaced_) {
      // While the lock is still held: nobody else's file can have this name.
      calls_.unlink(scratch_.c_str());
    }
  }

  /// Takes over who owns a file and who may use it; another owner only where the system permits that.
  void becomeLike(const struct stat& old) {
    struct stat own = {};
    check(calls_.fstat(file_.get(), &own));
    if (own.st_uid != old.st_uid || own.st_gid != old.st_gid) {
      const bool isGiven = calls_.fchown(file_.get(), old.st_uid, old.st_gid) == 0 ||
                           calls_.fchown(file_.get(), own.st_uid, old.st_gid) == 0;
      if (!isGiven && errno != EPERM) {
        check(-1);
      }
    }
    check(calls_.fchmod(file_.get(), old.st_mode & 07777));
  }

  void write(const Byte* from, std::size_t size) override {
    written_ += static_cast<off_t>(size);
    while (size > 0) {
      const ssize_t done = unlessInterrupted([&] { return calls_.write(file_.get(), from, size); });
      check(done);
      from += done;
      size -= static_cast<std::size_t>(done);
    }
    // The disk works while the next bytes are made, and sync() waits for less.
    if (written_ - begun_ >= syncedTogether) {
      calls_.beginSync(file_.get(), begun_, static_cast<std::size_t>(written_ - begun_));
      begun_ = written_;
    }
  }

  void writeAtStart(const Byte* from, std::size_t size) override {
    off_t offset = 0;
    while (size > 0) {
      const ssize_t done = unlessInterrupted([&] { return calls_.pwrite(file_.get(), from, size, offset); });
      check(done);
      from += done;
      offset += done;
      size -= static_cast<std::size_t>(done);
    }
  }

  void startOver() override {
    check(unlessInterrupted([&] { return calls_.ftruncate(file_.get(), 0); }));
    check(calls_.lseek(file_.get(), 0, SEEK_SET));
    written_ = begun_ = 0;
  }

  void sync() override {
    check(unlessInterrupted([&] { return calls_.fsync(file_.get()); }));
  }

  void replace() override {
    check(calls_.rename(scratch_.c_str(), target_.c_str()));
    isReplaced_ = true;
    check(file_.close());
    syncFolder();
  }

 private:
  void check(ssize_t result) const {
    if (result < 0) {
      throw fileFailure(target_, u"written", errno);
    }
  }

  void syncFolder() {
    const std::string folder = folderOf(target_);
    const OpenFile open(calls_, unlessInterrupted([&] {
                          return calls_.open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC, 0);
                        }));
    // A folder that may be written but not listed cannot be opened, and some file systems flush no folders.
    if (!open.isOpen() && (errno == EACCES || errno == EPERM)) {
      return;
    }
    if (!open.isOpen() || (unlessInterrupted([&] { return calls_.fsync(open.get()); }) != 0 &&
                           errno != EINVAL && errno != ENOTSUP)) {
      throw perhapsNotKept(textOf(target_), errno);
    }
  }

  PosixCalls& calls_;
  std::string target_;
  std::string scratch_;
  OpenFile file_;
  off_t written_ = 0;
  /// Up to where the system was asked to write to the disk.
  off_t begun_ = 0;
  bool isReplaced_ = false;
};

class PosixStorage final : public Storage {
 public:
  explicit PosixStorage(PosixCalls& calls) : calls_(calls) {}

  std::unique_ptr<ReadableFile> open(TextView name) override {
    return std::make_unique<PosixReadableFile>(calls_, pathOf(name));
  }

  std::unique_ptr<WritableFile> createBeside(TextView name) override {
    struct stat old = {};
    const std::string target = behindLinks(pathOf(name), old);
    const bool isThere = old.st_nlink > 0;
    if (isThere && !S_ISREG(old.st_mode)) {
      throw noFileToWrite(textOf(target), S_ISDIR(old.st_mode));
    }
    if (isThere && calls_.access(target.c_str(), W_OK) != 0) {
      throw fileFailure(target, u"written", errno);
    }
    const std::string scratch = scratchOf(target);
    auto file = std::make_unique<PosixWritableFile>(calls_, target, scratch, create(target, scratch));
    if (isThere) {
      file->becomeLike(old);
    }
    return file;
  }

 private:
  /// Where the links lead that `path` may be; `old` is what is there, with no links to it (st_nlink) when
  /// nothing is.
  std::string behindLinks(std::string path, struct stat& old) {
    for (int left = mostLinks; left > 0; --left) {
      if (calls_.lstat(path.c_str(), &old) != 0) {
        if (errno != ENOENT) {
          throw fileFailure(path, u"written", errno);
        }
        old = {};
        return path;
      }
      if (!S_ISLNK(old.st_mode)) {
        return path;
      }
      char to[PATH_MAX];
      const ssize_t size = calls_.readlink(path.c_str(), to, sizeof to);
      if (size < 0) {
        throw fileFailure(path, u"written", errno);
      }
      const std::string_view next(to, static_cast<std::size_t>(size));
      path = next.substr(0, 1) == "/" ? std::string(next) : folderOf(path).append(next);
    }
    throw fileFailure(path, u"written", ELOOP);
  }

  /// A new file of that name that is locked by this save. The lock goes with the process: a file that is
  /// there and not locked was left by a save that was killed.
  OpenFile create(const std::string& target, const std::string& scratch) {
    for (int left = patience; left > 0; --left) {
      OpenFile file(calls_, openScratch(scratch, O_CREAT | O_EXCL));
      const bool isNew = file.isOpen();
      if (!isNew) {
        if (errno != EEXIST) {
          throw fileFailure(target, u"written", errno);
        }
        if (!openLitter(file, scratch)) {
          continue;
        }
      }
      if (unlessInterrupted([&] { return calls_.flock(file.get(), LOCK_EX | LOCK_NB); }) != 0) {
        if (errno != EWOULDBLOCK) {
          const int error = errno;
          if (isNew) {
            calls_.unlink(scratch.c_str());
          }
          throw fileFailure(target, u"locked", error);
        }
        calls_.pause();
      } else if (isStill(file, scratch)) {
        if (isNew) {
          return file;
        }
        remove(scratch);
      }
    }
    throw beingSaved(textOf(target));
  }

  int openScratch(const std::string& scratch, int flags) {
    return unlessInterrupted(
        [&] { return calls_.open(scratch.c_str(), O_WRONLY | O_CLOEXEC | O_NOFOLLOW | flags, 0666); });
  }

  /// Opens what has the name of the new file already; false when that was no file, and is gone.
  bool openLitter(OpenFile& file, const std::string& scratch) {
    struct stat status = {};
    if (calls_.lstat(scratch.c_str(), &status) != 0) {
      if (errno == ENOENT) {
        return false;
      }
      throw fileFailure(scratch, u"opened", errno);
    }
    if (!S_ISREG(status.st_mode)) {
      remove(scratch);
      return false;
    }
    file = OpenFile(calls_, openScratch(scratch, O_NONBLOCK));
    if (!file.isOpen() && errno != ENOENT) {
      throw fileFailure(scratch, u"opened", errno);
    }
    return file.isOpen();
  }

  void remove(const std::string& scratch) {
    if (calls_.unlink(scratch.c_str()) != 0 && errno != ENOENT) {
      throw fileFailure(scratch, u"removed", errno);
    }
  }

  /// Whether the open file still has that name: who held the lock before may have renamed or removed it.
  bool isStill(const OpenFile& file, const std::string& scratch) {
    struct stat named = {};
    struct stat opened = {};
    return calls_.fstat(file.get(), &opened) == 0 && calls_.lstat(scratch.c_str(), &named) == 0 &&
           isSameFile(named, opened);
  }

  PosixCalls& calls_;
};

}  // namespace

std::unique_ptr<Storage> makePosixStorage(PosixCalls& calls) {
  return std::make_unique<PosixStorage>(calls);
}

Storage& fileStorage() {
  static PosixCalls calls;
  static PosixStorage storage(calls);
  return storage;
}

}  // namespace kob::persistence
