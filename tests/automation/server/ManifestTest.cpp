// SPDX-FileCopyrightText: The KOBTraduction authors
#include "InterfaceText.h"
#include "LoadedServer.h"
#include "RegistryDump.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <fstream>
#include <iterator>
#include <regex>
#include <set>

namespace kob::testing {

namespace {

std::wstring manifestPath() {
  const std::wstring server = serverPath();
  return server.substr(0, server.find_last_of(L'\\') + 1) + L"KOBTraduction.Automation.manifest";
}

std::string manifestText() {
  std::ifstream file(manifestPath().c_str());
  return {std::istreambuf_iterator<char>(file), {}};
}

/// What a regular expression finds, as "first: second".
std::set<std::string> pairs(const std::string& text, const std::string& expression) {
  const std::regex pattern(expression);
  std::set<std::string> found;
  for (std::sregex_iterator at(text.begin(), text.end(), pattern); at != std::sregex_iterator(); ++at) {
    found.insert((*at)[1].str() + ": " + (*at)[2].str());
  }
  return found;
}

/// The manifest in force on this thread.
class Activation {
 public:
  Activation() {
    const std::wstring path = manifestPath();
    ACTCTXW context = {};
    context.cbSize = sizeof context;
    context.lpSource = path.c_str();
    context_ = CreateActCtxW(&context);
    isActive_ = context_ != INVALID_HANDLE_VALUE && ActivateActCtx(context_, &cookie_) != FALSE;
  }
  Activation(const Activation&) = delete;
  Activation& operator=(const Activation&) = delete;
  ~Activation() {
    if (isActive_) {
      DeactivateActCtx(0, cookie_);
    }
    ReleaseActCtx(context_);
  }
  bool isActive() const { return isActive_; }

 private:
  HANDLE context_ = INVALID_HANDLE_VALUE;
  ULONG_PTR cookie_ = 0;
  bool isActive_ = false;
};

}  // namespace

TEST(Manifest, HasTheIdentifiersOfTheTypeLibrary) {
  const std::string types = interfaceText(*typeLibrary().get());
  const std::string manifest = manifestText();
  EXPECT_EQ(pairs(manifest, "comInterfaceExternalProxyStub name=\"(\\w+)\" iid=\"([^\"]+)\""),
            pairs(types, "interface (\\w+) (\\S+)\n"));
  EXPECT_EQ(pairs(manifest, "comClass clsid=\"([^\"]+)\" progid=\"KOBTraduction.(\\w+)\""),
            pairs(std::regex_replace(types, std::regex("class (\\w+) (\\S+)\n"), "class $2 $1 creatable\n"),
                  "class (\\S+) (\\w+) creatable\n"));
  EXPECT_THAT(manifest,
              ::testing::HasSubstr("typelib tlbid=\"" + types.substr(8, 38) + "\" version=\"1.0\""));
}

TEST(Manifest, LetsAHostCreateTheModelWithoutRegistration) {
  CoInitialize(nullptr);
  if (!registrationText(HKEY_LOCAL_MACHINE).empty()) {
    CoUninitialize();
    GTEST_SKIP() << "somebody has registered the server, so this would prove nothing";
  }
  CLSID id = {};
  EXPECT_LT(CLSIDFromProgID(L"KOBTraduction.KOBModeleTraduction", &id), 0);
  {
    const Activation manifest;
    ASSERT_TRUE(manifest.isActive()) << GetLastError();
    ASSERT_EQ(CLSIDFromProgID(L"KOBTraduction.KOBModeleTraduction", &id), S_OK);
    ComPtr<_KOBModeleTraduction> model;
    EXPECT_EQ(
        CoCreateInstance(id, nullptr, CLSCTX_INPROC_SERVER, __uuidof(_KOBModeleTraduction), model.outVoid()),
        S_OK);
    if (model) {
      LONG count = 0;
      EXPECT_EQ(hosts::call(model.get(), u"NbLangues").number(), 6);
      EXPECT_EQ(model->get_NbLangues(&count), S_OK);
    }
  }
  CoUninitialize();
}

}  // namespace kob::testing
