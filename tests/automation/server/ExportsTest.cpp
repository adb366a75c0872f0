// SPDX-FileCopyrightText: The KOBTraduction authors
#include "LoadedServer.h"

#include <gmock/gmock.h>

#include <cstddef>
#include <string>
#include <vector>

namespace kob::testing {

namespace {

/// The names in the export table of a loaded file.
std::vector<std::string> exportsOf(HMODULE module) {
  const auto* const base = reinterpret_cast<const std::byte*>(module);
  const auto* const dos = reinterpret_cast<const IMAGE_DOS_HEADER*>(base);
  const auto* const headers = reinterpret_cast<const IMAGE_NT_HEADERS*>(base + dos->e_lfanew);
  const IMAGE_DATA_DIRECTORY& where = headers->OptionalHeader.DataDirectory[IMAGE_DIRECTORY_ENTRY_EXPORT];
  const auto* const table = reinterpret_cast<const IMAGE_EXPORT_DIRECTORY*>(base + where.VirtualAddress);
  const auto* const names = reinterpret_cast<const DWORD*>(base + table->AddressOfNames);
  std::vector<std::string> found;
  for (DWORD i = 0; i < table->NumberOfNames; ++i) {
    found.emplace_back(reinterpret_cast<const char*>(base + names[i]));
  }
  EXPECT_EQ(table->NumberOfFunctions, table->NumberOfNames);
  return found;
}

}  // namespace

TEST(Exports, AreTheFiveEntryPointsOfAServer) {
  const HMODULE module = LoadLibraryW(serverPath().c_str());
  ASSERT_NE(module, nullptr);
  EXPECT_THAT(exportsOf(module), ::testing::ElementsAre("DllCanUnloadNow", "DllGetClassObject", "DllInstall",
                                                        "DllRegisterServer", "DllUnregisterServer"));
}

TEST(ClassObject, OfAnUnknownClassIsNotAvailable) {
  using GetClassObject = HRESULT(STDAPICALLTYPE*)(REFCLSID, REFIID, void**);
  const auto get = serverEntry<GetClassObject>("DllGetClassObject");
  void* object = &object;
  EXPECT_EQ(get(CLSID_StdGlobalInterfaceTable, IID_IClassFactory, &object), CLASS_E_CLASSNOTAVAILABLE);
  EXPECT_EQ(object, nullptr);
  EXPECT_EQ(get(__uuidof(::KOBModeleTraduction), IID_IDispatch, &object), E_NOINTERFACE);
  EXPECT_EQ(get(__uuidof(::KOBModeleTraduction), IID_IClassFactory, nullptr), E_POINTER);
}

class ClassObjectTest : public ServerTest {};

TEST_F(ClassObjectTest, OfACollectionIsNotThere) {
  EXPECT_THROW(classObject(__uuidof(::KOBCollection)), hosts::ComError);
}

TEST_F(ClassObjectTest, RefusesToBeAPartOfAnotherObject) {
  const ComPtr<IUnknown> outer = createObject(__uuidof(::KOBCellTraduction));
  void* object = &object;
  EXPECT_EQ(classObject(__uuidof(::KOBModeleTraduction))->CreateInstance(outer.get(), IID_IUnknown, &object),
            CLASS_E_NOAGGREGATION);
  EXPECT_EQ(object, nullptr);
}

TEST_F(ClassObjectTest, MakesNothingForAnUnknownInterface) {
  void* object = &object;
  EXPECT_EQ(classObject(__uuidof(::KOBModeleTraduction))->CreateInstance(nullptr, IID_IStream, &object),
            E_NOINTERFACE);
  EXPECT_EQ(object, nullptr);
}

TEST_F(ClassObjectTest, AndItsLocksKeepTheServerLoaded) {
  {
    const ComPtr<IClassFactory> factory = classObject(__uuidof(::KOBModeleTraduction));
    EXPECT_EQ(canUnloadNow(), S_FALSE);
    factory->LockServer(TRUE);
  }
  EXPECT_EQ(canUnloadNow(), S_FALSE);
  classObject(__uuidof(::KOBModeleTraduction))->LockServer(FALSE);
  EXPECT_EQ(canUnloadNow(), S_OK);
}

}  // namespace kob::testing
