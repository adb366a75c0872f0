// SPDX-FileCopyrightText: The KOBTraduction authors
#include "InterfaceText.h"
#include "LoadedServer.h"

#include <tests/doubles/Difference.h>

#include <fstream>
#include <iterator>

namespace kob::testing {

namespace {

std::string releasedText() {
  std::ifstream file(KOB_INTERFACE_TEXT);
  EXPECT_TRUE(file) << KOB_INTERFACE_TEXT;
  return {std::istreambuf_iterator<char>(file), {}};
}

}  // namespace

// Programs are compiled against identifiers, slots, numbers and defaults: a line of interface.txt that was
// released is never changed. What is new goes behind what is there, in an interface that no release has had
// yet.
TEST(Interface, IsWhatItWas) {
  const std::string changes = difference(releasedText(), interfaceText(*typeLibrary().get()));
  EXPECT_TRUE(changes.empty()) << changes;
}

TEST(Interface, IsTheSameForProgramsOf32Bits) {
  ComPtr<ITypeLib> library;
  ASSERT_EQ(LoadTypeLibEx(KOB_SHORT_LIBRARY, REGKIND_NONE, library.out()), S_OK);
  TLIBATTR* about = nullptr;
  ASSERT_EQ(library->GetLibAttr(&about), S_OK);
  EXPECT_EQ(about->syskind, SYS_WIN32);
  library->ReleaseTLibAttr(about);
  const std::string changes = difference(releasedText(), interfaceText(*library.get()));
  EXPECT_TRUE(changes.empty()) << changes;
}

class InterfaceTest : public ServerTest {};

TEST_F(InterfaceTest, DescribesTheObjects) {
  const ComPtr<_KOBModeleTraduction> model = createModel();
  UINT count = 0;
  EXPECT_EQ(model->GetTypeInfoCount(&count), S_OK);
  EXPECT_EQ(count, 1U);
  ComPtr<ITypeInfo> info;
  ASSERT_EQ(model->GetTypeInfo(0, LOCALE_NEUTRAL, info.out()), S_OK);
  TYPEATTR* attributes = nullptr;
  ASSERT_EQ(info->GetTypeAttr(&attributes), S_OK);
  EXPECT_TRUE(attributes->guid == __uuidof(_KOBModeleTraduction));
  info->ReleaseTypeAttr(attributes);
  EXPECT_EQ(model->GetTypeInfo(1, LOCALE_NEUTRAL, info.out()), DISP_E_BADINDEX);

  const ComPtr<IProvideClassInfo> provider = as<IProvideClassInfo>(model);
  ASSERT_TRUE(provider);
  ASSERT_EQ(provider->GetClassInfoW(info.out()), S_OK);
  ASSERT_EQ(info->GetTypeAttr(&attributes), S_OK);
  EXPECT_TRUE(attributes->guid == __uuidof(::KOBModeleTraduction));
  info->ReleaseTypeAttr(attributes);
}

TEST_F(InterfaceTest, AnswersTheSameObjectForEachOfItsParts) {
  const ComPtr<_KOBCellTraduction> cell = createCell();
  const ComPtr<IUnknown> identity = as<IUnknown>(cell);
  for (const IID& id : {IID_IDispatch, __uuidof(_KOBCellTraduction), __uuidof(::IKOBVBPersistStream),
                        IID_ISupportErrorInfo, IID_IProvideClassInfo}) {
    ComPtr<IUnknown> part;
    ASSERT_EQ(identity->QueryInterface(id, part.outVoid()), S_OK);
    EXPECT_EQ(as<IUnknown>(part).get(), identity.get());
    // And from there back to all others.
    EXPECT_TRUE(as<_KOBCellTraduction>(part));
    EXPECT_TRUE(as<::IKOBVBPersistStream>(part));
  }
  EXPECT_FALSE(as<_KOBModeleTraduction>(cell));
  EXPECT_FALSE(as<IEnumVARIANT>(cell));
  EXPECT_EQ(cell->QueryInterface(IID_IUnknown, nullptr), E_POINTER);
}

TEST_F(InterfaceTest, OfPersistenceIsOneOfTheThreeClassesOnly) {
  for (const CLSID& id :
       {__uuidof(::KOBModeleTraduction), __uuidof(::KOBCellTraduction), __uuidof(::KOBTraductionObj)}) {
    EXPECT_TRUE(as<::IKOBVBPersistStream>(createObject(id)));
  }
  const ComPtr<_KOBTraductionObj> entry = createEntry();
  ComPtr<_KOBCollection> texts;
  ASSERT_EQ(entry->get_ColTraduction(texts.out()), S_OK);
  EXPECT_FALSE(as<::IKOBVBPersistStream>(texts));
}

}  // namespace kob::testing
