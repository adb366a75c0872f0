// SPDX-FileCopyrightText: The KOBTraduction authors
#include "FailingCalls.h"
#include "FilesTest.h"

#include <windows.h>

#include <aclapi.h>
#include <sddl.h>

#include <string>

namespace kob::test {
namespace {

namespace fs = std::filesystem;
using ::testing::ElementsAre;
using ::testing::HasSubstr;

using Win32FilesTest = FilesTest;

/// A file that is open as another program would have it; closed at the end.
class OpenElsewhere {
 public:
  OpenElsewhere(const fs::path& file, DWORD access, DWORD share)
      : file_(
            CreateFileW(file.c_str(), access, share, nullptr, OPEN_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr)) {
    EXPECT_NE(file_, INVALID_HANDLE_VALUE) << GetLastError();
  }
  OpenElsewhere(const OpenElsewhere&) = delete;
  OpenElsewhere& operator=(const OpenElsewhere&) = delete;
  ~OpenElsewhere() { close(); }

  void close() {
    if (file_ != INVALID_HANDLE_VALUE) {
      CloseHandle(file_);
      file_ = INVALID_HANDLE_VALUE;
    }
  }

 private:
  HANDLE file_;
};

TEST_F(Win32FilesTest, TheAttributesOfTheOldFileAreKept) {
  putBytes(path("m.trad"), {1});
  ASSERT_NE(SetFileAttributesW(path("m.trad").c_str(), FILE_ATTRIBUTE_HIDDEN), FALSE);
  EXPECT_TRUE(model.Save(name("m.trad"))) << lastNotice();
  EXPECT_EQ(bytesOf(path("m.trad")), new_);
  EXPECT_NE(GetFileAttributesW(path("m.trad").c_str()) & FILE_ATTRIBUTE_HIDDEN, 0U);
}

TEST_F(Win32FilesTest, ANewFileIsNotHidden) {
  EXPECT_TRUE(model.Save(name("m.trad"))) << lastNotice();
  EXPECT_EQ(GetFileAttributesW(path("m.trad").c_str()) & FILE_ATTRIBUTE_HIDDEN, 0U);
}

std::wstring permissionsOf(const fs::path& file) {
  PSECURITY_DESCRIPTOR descriptor = nullptr;
  EXPECT_EQ(GetNamedSecurityInfoW(file.c_str(), SE_FILE_OBJECT, DACL_SECURITY_INFORMATION, nullptr, nullptr,
                                  nullptr, nullptr, &descriptor),
            DWORD{ERROR_SUCCESS});
  LPWSTR text = nullptr;
  EXPECT_NE(ConvertSecurityDescriptorToStringSecurityDescriptorW(descriptor, SDDL_REVISION_1,
                                                                 DACL_SECURITY_INFORMATION, &text, nullptr),
            FALSE);
  std::wstring permissions = text != nullptr ? text : L"";
  LocalFree(text);
  LocalFree(descriptor);
  return permissions;
}

TEST_F(Win32FilesTest, ThePermissionsOfTheOldFileAreKept) {
  ASSERT_TRUE(model.Save(name("new")));
  putBytes(path("m.trad"), {1});
  PSECURITY_DESCRIPTOR descriptor = nullptr;
  // Everybody may do everything: permissions that Wine can keep, too.
  ASSERT_NE(ConvertStringSecurityDescriptorToSecurityDescriptorW(L"D:P(A;;FA;;;WD)", SDDL_REVISION_1,
                                                                 &descriptor, nullptr),
            FALSE);
  ASSERT_NE(SetFileSecurityW(path("m.trad").c_str(), DACL_SECURITY_INFORMATION, descriptor), FALSE);
  LocalFree(descriptor);
  const std::wstring before = permissionsOf(path("m.trad"));
  ASSERT_NE(before, permissionsOf(path("new")));
  EXPECT_TRUE(model.Save(name("m.trad"))) << lastNotice();
  EXPECT_EQ(permissionsOf(path("m.trad")), before);
}

TEST_F(Win32FilesTest, AReadOnlyFileIsNotReplaced) {
  putBytes(path("m.trad"), {1});
  ASSERT_NE(SetFileAttributesW(path("m.trad").c_str(), FILE_ATTRIBUTE_READONLY), FALSE);
  expectRefused("m.trad", "cannot be written: this is not permitted");
  SetFileAttributesW(path("m.trad").c_str(), FILE_ATTRIBUTE_NORMAL);
  EXPECT_EQ(bytesOf(path("m.trad")), FileBytes{1});
}

TEST_F(Win32FilesTest, ADeviceIsNoFile) {
  EXPECT_FALSE(model.Save(u"NUL"));
  EXPECT_THAT(lastNotice(), HasSubstr("\"NUL\" is no ordinary file, so it cannot be written."));
  EXPECT_FALSE(model.Load(u"NUL"));
  EXPECT_THAT(lastNotice(), HasSubstr("\"NUL\" is no ordinary file. Choose a file."));
}

TEST_F(Win32FilesTest, NamesThatWindowsDoesNotHaveAreRefused) {
  for (const char* own : {"m.trad:stream", "m?.trad", "m*.trad", "m<.trad", "m|.trad"}) {
    expectRefused(own, "is no name that a file can have");
    EXPECT_FALSE(model.Load(name(own)));
    EXPECT_THAT(lastNotice(), HasSubstr("is no name that a file can have"));
  }
}

TEST_F(Win32FilesTest, ASaveWaitsForAnotherOneAndGivesUpAtLast) {
  OpenElsewhere other(path(".m.trad.kobtmp"), GENERIC_WRITE, 0);
  {
    FailingService service;
    EXPECT_FALSE(model.Save(name("m.trad")));
    EXPECT_EQ(service.calls.pauses, 500);
  }
  EXPECT_THAT(lastNotice(), HasSubstr("is being saved by another program. Try again once that has ended."));
  other.close();
  EXPECT_THAT(files(), ElementsAre(".m.trad.kobtmp"));
  EXPECT_TRUE(model.Save(name("m.trad"))) << lastNotice();
  EXPECT_THAT(files(), ElementsAre("m.trad"));
}

TEST_F(Win32FilesTest, AFileThatAnotherProgramKeepsOpenIsSaidToBeInUse) {
  putBytes(path("m.trad"), {1});
  OpenElsewhere other(path("m.trad"), GENERIC_READ, FILE_SHARE_READ);
  FailingService service;
  expectRefused("m.trad", "cannot be written: it is in use. Try again later.");
  EXPECT_EQ(service.calls.pauses, 100);
  other.close();
  EXPECT_EQ(bytesOf(path("m.trad")), FileBytes{1});
  EXPECT_TRUE(model.Save(name("m.trad"))) << lastNotice();
}

TEST_F(Win32FilesTest, AFileThatNobodyElseMayReadIsSaidToBeInUse) {
  ASSERT_TRUE(model.Save(name("m.trad")));
  OpenElsewhere other(path("m.trad"), GENERIC_READ, 0);
  FailingService service;
  EXPECT_FALSE(model.Load(name("m.trad")));
  EXPECT_THAT(lastNotice(), HasSubstr("cannot be opened: it is in use. Try again later."));
  EXPECT_EQ(service.calls.pauses, 100);
}

/// Reads that let the file be deleted hold the renaming up for as long as they last, and no longer.
class FreeingCalls final : public persistence::Win32Calls {
 public:
  explicit FreeingCalls(OpenElsewhere& other) : other_(other) {}
  void pause() override { other_.close(); }

 private:
  OpenElsewhere& other_;
};

TEST_F(Win32FilesTest, ASaveWaitsForALoadOfTheSameFile) {
  putBytes(path("m.trad"), {1});
  OpenElsewhere other(path("m.trad"), GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE);
  FreeingCalls calls(other);
  const auto storage = persistence::makeWin32Storage(calls);
  const auto file = storage->createBeside(name("m.trad"));
  const FileBytes bytes = {2, 3};
  file->write(bytes.data(), bytes.size());
  file->replace();
  EXPECT_EQ(bytesOf(path("m.trad")), bytes);
}

TEST_F(Win32FilesTest, APathOfMoreThan260LettersWillDo) {
  Text deep = name(".");
  fs::path folder(L"\\\\?\\" + fs::canonical(path(".")).wstring());
  for (int i = 0; i < 4; ++i) {
    const std::wstring own(100, L'd');
    folder /= own;
    deep += u"\\" + Text(100, u'd');
    ASSERT_NE(CreateDirectoryW(folder.c_str(), nullptr), FALSE) << GetLastError();
  }
  EXPECT_TRUE(model.Save(deep + u"/m.trad")) << lastNotice();
  EXPECT_TRUE(model.Save(deep + u"/m.trad")) << lastNotice();
  EXPECT_TRUE(model.Load(deep + u"/m.trad")) << lastNotice();
  EXPECT_NE(GetFileAttributesW((folder / L"m.trad").c_str()), INVALID_FILE_ATTRIBUTES);
  ASSERT_NE(DeleteFileW((folder / L"m.trad").c_str()), FALSE);
  for (int i = 0; i < 4; ++i) {
    EXPECT_NE(RemoveDirectoryW(folder.c_str()), FALSE);
    folder = folder.parent_path();
  }
}

TEST_F(Win32FilesTest, AVerbatimPathIsTakenAsItIs) {
  const Text verbatim = u"\\\\?\\" + fs::canonical(path(".")).u16string() + u"\\m.trad";
  EXPECT_TRUE(model.Save(verbatim)) << lastNotice();
  EXPECT_TRUE(model.Load(verbatim)) << lastNotice();
  EXPECT_THAT(files(), ElementsAre("m.trad"));
}

/// What the storage asks for is recorded.
class RecordingCalls final : public persistence::Win32Calls {
 public:
  DWORD create(const std::wstring& path, DWORD, DWORD, DWORD, DWORD, HANDLE&) override {
    opened = path;
    return ERROR_BAD_NETPATH;
  }

  std::wstring opened;
};

TEST_F(Win32FilesTest, AShareOfAnotherMachineIsAskedForByItsLongName) {
  RecordingCalls calls;
  const auto storage = persistence::makeWin32Storage(calls);
  EXPECT_THROW(storage->open(u"\\\\machine\\share\\m.trad"), PersistFailure);
  EXPECT_EQ(calls.opened, L"\\\\?\\UNC\\machine\\share\\m.trad");
}

/// A link where the system has none: the first look finds one, which leads to another file.
class LinkCalls final : public persistence::Win32Calls {
 public:
  explicit LinkCalls(std::wstring target) : target_(std::move(target)) {}

  DWORD information(HANDLE file, BY_HANDLE_FILE_INFORMATION& information) override {
    const DWORD error = Win32Calls::information(file, information);
    if (looks++ == 0) {
      information.dwFileAttributes |= FILE_ATTRIBUTE_REPARSE_POINT;
    }
    return error;
  }
  DWORD finalPath(HANDLE, std::wstring& path) override {
    path = target_;
    return ERROR_SUCCESS;
  }

  int looks = 0;

 private:
  std::wstring target_;
};

TEST_F(Win32FilesTest, ALinkIsFollowedAndStays) {
  fs::create_directory(path("folder"));
  putBytes(path("folder/real.trad"), {1});
  putBytes(path("link.trad"), {2});
  LinkCalls calls(L"\\\\?\\" + fs::canonical(path("folder/real.trad")).wstring());
  const auto storage = persistence::makeWin32Storage(calls);
  const auto file = storage->createBeside(name("link.trad"));
  const FileBytes bytes = {3};
  file->write(bytes.data(), bytes.size());
  file->replace();
  EXPECT_EQ(bytesOf(path("folder/real.trad")), bytes);
  EXPECT_EQ(bytesOf(path("link.trad")), FileBytes{2});
  EXPECT_THAT(files(), ElementsAre("folder", "link.trad"));
}

TEST_F(Win32FilesTest, TheFileIsFlushedBeforeItTakesThePlaceAndAfterwards) {
  FailingService service;
  ASSERT_TRUE(model.Save(name("m.trad")));
  const auto& made = service.calls.made;
  ASSERT_GE(made.size(), 6U);
  EXPECT_THAT(std::vector<std::string>(made.end() - 6, made.end()),
              ElementsAre("write", "seek", "flush", "rename", "flush", "close"));
}

}  // namespace
}  // namespace kob::test
