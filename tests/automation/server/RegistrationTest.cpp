// SPDX-FileCopyrightText: The KOBTraduction authors
#include "LoadedServer.h"
#include "RegistryDump.h"

#include <gmock/gmock.h>

namespace kob::testing {

namespace {

using ::testing::HasSubstr;
using ::testing::Not;

constexpr const wchar_t* modelProgId = L"KOBTraduction.KOBModeleTraduction";
constexpr const wchar_t* libraryKey = L"Software\\Classes\\TypeLib\\{2863A2D1-0946-49FE-B2B4-B50EB115426E}";

HRESULT callEntry(const char* name) {
  return serverEntry<HRESULT(STDAPICALLTYPE*)()>(name)();
}
HRESULT registerForMachine() {
  return callEntry("DllRegisterServer");
}
HRESULT unregisterForMachine() {
  return callEntry("DllUnregisterServer");
}
HRESULT install(bool isInstalled, const wchar_t* what) {
  return serverEntry<HRESULT(STDAPICALLTYPE*)(BOOL, LPCWSTR)>("DllInstall")(isInstalled ? TRUE : FALSE, what);
}

std::string pathText() {
  const std::wstring path = serverPath();
  return toUtf8(TextView(reinterpret_cast<const char16_t*>(path.data()), path.size()));
}

bool isWine() {
  return GetProcAddress(GetModuleHandleW(L"ntdll.dll"), "wine_get_version") != nullptr;
}

/// What every registration holds, wherever it is.
void expectComplete(const std::string& text) {
  const std::string classKey = "CLSID\\{D8AD88F1-C7B8-4330-A978-3C6EB12114D4}";
  EXPECT_THAT(
      text,
      HasSubstr("KOBTraduction.KOBModeleTraduction\\CLSID [] = {D8AD88F1-C7B8-4330-A978-3C6EB12114D4}"));
  EXPECT_THAT(
      text, HasSubstr("KOBTraduction.KOBModeleTraduction\\CurVer [] = KOBTraduction.KOBModeleTraduction.1"));
  EXPECT_THAT(
      text,
      HasSubstr("KOBTraduction.KOBModeleTraduction.1\\CLSID [] = {D8AD88F1-C7B8-4330-A978-3C6EB12114D4}"));
  EXPECT_THAT(text,
              HasSubstr("KOBTraduction.KOBCellTraduction\\CurVer [] = KOBTraduction.KOBCellTraduction.1"));
  EXPECT_THAT(text,
              HasSubstr("KOBTraduction.KOBTraductionObj\\CurVer [] = KOBTraduction.KOBTraductionObj.1"));
  EXPECT_THAT(text, Not(HasSubstr("KOBTraduction.KOBCollection")));
  EXPECT_THAT(text, HasSubstr(classKey + "\\InprocServer32 [] = " + pathText()));
  EXPECT_THAT(text, HasSubstr(classKey + "\\InprocServer32 [ThreadingModel] = Apartment"));
  EXPECT_THAT(text, HasSubstr(classKey + "\\ProgID [] = KOBTraduction.KOBModeleTraduction.1"));
  EXPECT_THAT(text,
              HasSubstr(classKey + "\\VersionIndependentProgID [] = KOBTraduction.KOBModeleTraduction"));
  EXPECT_THAT(text, HasSubstr(classKey + "\\TypeLib [] = {2863A2D1-0946-49FE-B2B4-B50EB115426E}"));
  EXPECT_THAT(text, HasSubstr("TypeLib\\{2863A2D1-0946-49FE-B2B4-B50EB115426E}\\1.0\\0\\" +
                              std::string(sizeof(void*) == 8 ? "win64" : "win32") + " [] = " + pathText()));
  for (const std::string id :
       {"{192811E7-8A46-46E0-B58A-8C0F856F9D5A}", "{7B53E23F-FF06-419A-A458-A4F99966FB0C}",
        "{4CA19FBF-DFBB-4359-911C-6F086205604A}", "{1A3CE0FF-5E51-4408-9F90-CCCE5096EA5A}",
        "{0F994744-1404-4391-B4B3-747D53A6BA39}", "{50193E1E-60EF-4B21-8EF5-482D41BEEEBD}"}) {
    EXPECT_THAT(text, HasSubstr("Interface\\" + id +
                                "\\ProxyStubClsid32 [] = {00020424-0000-0000-C000-000000000046}"));
    EXPECT_THAT(text, HasSubstr("Interface\\" + id + "\\TypeLib [Version] = 1.0"));
  }
}

}  // namespace

TEST(Registration, ForTheMachineIsCompleteAndGoesWithoutATrace) {
  const EmptyRoot machine(HKEY_LOCAL_MACHINE);
  ASSERT_EQ(registerForMachine(), S_OK);
  expectComplete(registrationText(HKEY_LOCAL_MACHINE));
  const std::string once = registryText(HKEY_LOCAL_MACHINE, L"Software");
  ASSERT_EQ(registerForMachine(), S_OK);
  EXPECT_EQ(registryText(HKEY_LOCAL_MACHINE, L"Software"), once);
  ASSERT_EQ(unregisterForMachine(), S_OK);
  EXPECT_EQ(registrationText(HKEY_LOCAL_MACHINE), "");
  EXPECT_EQ(unregisterForMachine(), S_OK);
}

TEST(Registration, ForAUserIsCompleteAndGoesWithoutATrace) {
  const std::string ofMachine = registrationText(HKEY_LOCAL_MACHINE);
  ASSERT_EQ(install(true, L"user"), S_OK);
  expectComplete(registrationText(HKEY_CURRENT_USER));
  EXPECT_EQ(registrationText(HKEY_LOCAL_MACHINE), ofMachine) << "nothing is written for others";
  ASSERT_EQ(install(false, L"USER"), S_OK);
  EXPECT_EQ(registrationText(HKEY_CURRENT_USER), "");
}

TEST(Registration, ForAUserLetsThatUserCreateTheModel) {
  ASSERT_EQ(install(true, L"user"), S_OK);
  CLSID id = {};
  const HRESULT found = CLSIDFromProgID(modelProgId, &id);
  EXPECT_EQ(install(false, L"user"), S_OK);
  if (FAILED(found) && isWine()) {
    GTEST_SKIP() << "Wine does not look for classes among those of the user";
  }
  EXPECT_EQ(found, S_OK);
}

TEST(Registration, IsForTheMachineUnlessItIsToldOtherwise) {
  const EmptyRoot machine(HKEY_LOCAL_MACHINE);
  for (const wchar_t* const nothing : {static_cast<const wchar_t*>(nullptr), L""}) {
    ASSERT_EQ(install(true, nothing), S_OK);
    expectComplete(registrationText(HKEY_LOCAL_MACHINE));
    ASSERT_EQ(install(false, nothing), S_OK);
    EXPECT_EQ(registrationText(HKEY_LOCAL_MACHINE), "");
  }
  EXPECT_EQ(install(true, L"everybody"), E_INVALIDARG);
  EXPECT_EQ(registrationText(HKEY_LOCAL_MACHINE), "");
}

TEST(Registration, ThatFailsLeavesTheRegistryAsItWas) {
  const EmptyRoot machine(HKEY_LOCAL_MACHINE);
  // Below a key that does not outlive the system's run no other can be made: the last steps fail.
  HKEY obstacle = nullptr;
  ASSERT_EQ(RegCreateKeyExW(HKEY_LOCAL_MACHINE, libraryKey, 0, nullptr, REG_OPTION_VOLATILE, KEY_ALL_ACCESS,
                            nullptr, &obstacle, nullptr),
            ERROR_SUCCESS);
  RegCloseKey(obstacle);
  const std::string before = registryText(HKEY_LOCAL_MACHINE, L"Software");
  EXPECT_EQ(registerForMachine(), HRESULT_FROM_WIN32(ERROR_CHILD_MUST_BE_VOLATILE));
  EXPECT_EQ(registryText(HKEY_LOCAL_MACHINE, L"Software"), before);
}

TEST(Registration, ThatFailsPutsBackWhatItHadOverwritten) {
  const EmptyRoot machine(HKEY_LOCAL_MACHINE);
  HKEY earlier = nullptr;
  ASSERT_EQ(
      RegCreateKeyExW(HKEY_LOCAL_MACHINE,
                      L"Software\\Classes\\CLSID\\{D8AD88F1-C7B8-4330-A978-3C6EB12114D4}\\InprocServer32", 0,
                      nullptr, 0, KEY_ALL_ACCESS, nullptr, &earlier, nullptr),
      ERROR_SUCCESS);
  const wchar_t path[] = L"C:\\earlier\\KOBTraduction.dll";
  RegSetValueExW(earlier, nullptr, 0, REG_SZ, reinterpret_cast<const BYTE*>(path), sizeof path);
  RegCloseKey(earlier);
  HKEY obstacle = nullptr;
  ASSERT_EQ(RegCreateKeyExW(HKEY_LOCAL_MACHINE, libraryKey, 0, nullptr, REG_OPTION_VOLATILE, KEY_ALL_ACCESS,
                            nullptr, &obstacle, nullptr),
            ERROR_SUCCESS);
  RegCloseKey(obstacle);
  const std::string before = registryText(HKEY_LOCAL_MACHINE, L"Software");
  EXPECT_LT(registerForMachine(), 0);
  EXPECT_EQ(registryText(HKEY_LOCAL_MACHINE, L"Software"), before);
}

TEST(Registration, LeavesTheTypeLibraryOfTheOtherProcessor) {
  const EmptyRoot machine(HKEY_LOCAL_MACHINE);
  ASSERT_EQ(registerForMachine(), S_OK);
  const wchar_t* const other = sizeof(void*) == 8 ? L"win32" : L"win64";
  HKEY key = nullptr;
  ASSERT_EQ(RegCreateKeyExW(HKEY_LOCAL_MACHINE, (std::wstring(libraryKey) + L"\\1.0\\0\\" + other).c_str(), 0,
                            nullptr, 0, KEY_ALL_ACCESS, nullptr, &key, nullptr),
            ERROR_SUCCESS);
  RegCloseKey(key);
  ASSERT_EQ(unregisterForMachine(), S_OK);
  const std::string left = registrationText(HKEY_LOCAL_MACHINE);
  EXPECT_THAT(left, Not(HasSubstr("CLSID")));
  EXPECT_THAT(left, HasSubstr("Interface\\{192811E7-8A46-46E0-B58A-8C0F856F9D5A}\\TypeLib [Version] = 1.0"));
  EXPECT_THAT(left, HasSubstr(sizeof(void*) == 8 ? "\\win32" : "\\win64"));
  EXPECT_THAT(left, Not(HasSubstr(sizeof(void*) == 8 ? "\\win64" : "\\win32")));
}

TEST(Registration, LetsEveryHostCreateTheClassesByName) {
  CoInitialize(nullptr);
  const std::string before = registrationText(HKEY_LOCAL_MACHINE);
  ASSERT_EQ(registerForMachine(), S_OK);
  for (const wchar_t* const progId :
       {modelProgId, L"KOBTraduction.KOBModeleTraduction.1", L"KOBTraduction.KOBCellTraduction",
        L"KOBTraduction.KOBTraductionObj"}) {
    CLSID id = {};
    ASSERT_EQ(CLSIDFromProgID(progId, &id), S_OK);
    ComPtr<IDispatch> object;
    EXPECT_EQ(CoCreateInstance(id, nullptr, CLSCTX_INPROC_SERVER, IID_IDispatch, object.outVoid()), S_OK);
  }
  GUID libraryId = {};
  ASSERT_EQ(CLSIDFromString(L"{2863A2D1-0946-49FE-B2B4-B50EB115426E}", &libraryId), S_OK);
  ComPtr<ITypeLib> library;
  EXPECT_EQ(LoadRegTypeLib(libraryId, 1, 0, LOCALE_NEUTRAL, library.out()), S_OK);
  ASSERT_EQ(unregisterForMachine(), S_OK);
  EXPECT_EQ(registrationText(HKEY_LOCAL_MACHINE), "");
  if (!before.empty()) {
    // Somebody had registered it.
    EXPECT_EQ(registerForMachine(), S_OK);
  }
  CoUninitialize();
}

}  // namespace kob::testing
