// SPDX-FileCopyrightText: The KOBTraduction authors
// Programs that are killed while they save: this one once more, started as "save FILE EVENT".
#include "SavedModel.h"

#include <gmock/gmock.h>

#include <windows.h>

#include <random>
#include <string>

namespace kob::test {
namespace {

using ::testing::ElementsAre;

using KillTest = ServiceTest;

constexpr int kills = 25;
constexpr DWORD patience = 60'000;

std::wstring wide(TextView text) {
  return {text.begin(), text.end()};
}

/// Saves two models in turn until somebody kills this program.
int saveUntilKilled(const std::string& file, const std::string& event) {
  usePersistence();
  const ModelTestScope scope;
  KOBModeleTraduction one;
  fill(one, u"un");
  KOBModeleTraduction other;
  fill(other, u"deux");
  const HANDLE begun = OpenEventA(EVENT_MODIFY_STATE, FALSE, event.c_str());
  SetEvent(begun);
  const Text name(file.begin(), file.end());
  while (one.Save(name) && other.Save(name)) {
  }
  return 1;
}

/// This program, saving a file in a process of its own, from when it has begun.
class Saving {
 public:
  explicit Saving(const Text& file) {
    const std::wstring name = L"kob-saving-" + std::to_wstring(GetCurrentProcessId());
    const HANDLE begun = CreateEventW(nullptr, TRUE, FALSE, name.c_str());
    wchar_t program[MAX_PATH] = L"";
    GetModuleFileNameW(nullptr, program, MAX_PATH);
    std::wstring line = L"\"" + std::wstring(program) + L"\" save \"" + wide(file) + L"\" " + name;
    STARTUPINFOW startup = {};
    startup.cb = sizeof startup;
    isStarted_ = CreateProcessW(nullptr, line.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &startup,
                                &process_) != FALSE &&
                 WaitForSingleObject(begun, patience) == WAIT_OBJECT_0;
    CloseHandle(begun);
  }
  Saving(const Saving&) = delete;
  Saving& operator=(const Saving&) = delete;
  ~Saving() {
    CloseHandle(process_.hThread);
    CloseHandle(process_.hProcess);
  }

  bool isStarted() const noexcept { return isStarted_; }
  /// Whether it had not ended by itself.
  bool kill() const {
    constexpr UINT killed = 77;
    TerminateProcess(process_.hProcess, killed);
    DWORD code = 0;
    return WaitForSingleObject(process_.hProcess, patience) == WAIT_OBJECT_0 &&
           GetExitCodeProcess(process_.hProcess, &code) != FALSE && code == killed;
  }

 private:
  PROCESS_INFORMATION process_ = {};
  bool isStarted_ = false;
};

TEST_F(KillTest, AfterEveryKillTheFileIsWholeAndTheNextSaveLeavesNoLitter) {
  std::mt19937 random(20'240'611);
  std::uniform_int_distribution<DWORD> delays(0, 60);
  const Text file = name("m.trad");
  KOBModeleTraduction first;
  fill(first, u"un");
  ASSERT_TRUE(first.Save(file)) << lastNotice();
  int litter = 0;
  for (int i = 0; i < kills; ++i) {
    const Saving saving(file);
    ASSERT_TRUE(saving.isStarted()) << "kill " << i;
    Sleep(delays(random));
    ASSERT_TRUE(saving.kill()) << "kill " << i << ": a save failed by itself";
    litter += files().size() > 1 ? 1 : 0;
    KOBModeleTraduction loaded;
    ASSERT_TRUE(loaded.Load(file)) << "kill " << i << ": " << lastNotice();
    ASSERT_EQ(loaded.Racine()->ColCell()->Count(), messages) << "kill " << i;
    ASSERT_TRUE(loaded.Save(file)) << "kill " << i << ": " << lastNotice();
    ASSERT_THAT(files(), ElementsAre("m.trad")) << "kill " << i;
  }
  // Otherwise no kill came during a save, and nothing was tested.
  EXPECT_GT(litter, 2);
  RecordProperty("killsDuringASave", litter);
}

}  // namespace
}  // namespace kob::test

int main(int count, char** arguments) {
  if (count == 4 && std::string(arguments[1]) == "save") {
    return kob::test::saveUntilKilled(arguments[2], arguments[3]);
  }
  ::testing::InitGoogleMock(&count, arguments);
  return RUN_ALL_TESTS();
}
