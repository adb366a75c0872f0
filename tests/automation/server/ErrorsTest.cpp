// SPDX-FileCopyrightText: The KOBTraduction authors
#include "LateCall.h"
#include "LoadedServer.h"

namespace kob::testing {

namespace {

constexpr HRESULT runTimeError(int number) {
  return static_cast<HRESULT>(0x800A0000UL + static_cast<unsigned long>(number));
}

/// What the thread's error object says, "source: description"; "" when there is none. Takes it away.
std::string errorInformation() {
  ComPtr<IErrorInfo> information;
  if (GetErrorInfo(0, information.out()) != S_OK) {
    return {};
  }
  BSTR source = nullptr;
  BSTR description = nullptr;
  information->GetSource(&source);
  information->GetDescription(&description);
  return toUtf8(take(source)) + ": " + toUtf8(take(description));
}

}  // namespace

class ErrorsTest : public ServerTest {};

TEST_F(ErrorsTest, OfATypedCallHaveNumberSourceAndDescription) {
  const ComPtr<_KOBTraductionObj> entry = createEntry();
  EXPECT_EQ(as<ISupportErrorInfo>(entry)->InterfaceSupportsErrorInfo(__uuidof(_KOBTraductionObj)), S_OK);
  EXPECT_EQ(as<ISupportErrorInfo>(entry)->InterfaceSupportsErrorInfo(IID_IUnknown), S_FALSE);
  ComPtr<_KOBCollection> texts;
  ASSERT_EQ(entry->get_ColTraduction(texts.out()), S_OK);
  Variant item;
  EXPECT_EQ(texts->get_Item(7, item.get()), runTimeError(9));
  EXPECT_EQ(item.type(), VT_EMPTY);
  EXPECT_EQ(errorInformation(),
            "KOBTraduction.KOBCollection: Item: invalid index: the position is outside 1..count of the list");
}

TEST_F(ErrorsTest, OfALateBoundCallArriveAsAnException) {
  const ComPtr<_KOBCellTraduction> cell = createCell();
  LateCall change(cell.get(), u"ChangeLeft");
  change.arguments = {Variant(1.5), Variant(std::int32_t{1})};
  EXPECT_EQ(change.call(), DISP_E_EXCEPTION);
  EXPECT_EQ(change.number, runTimeError(91));
  EXPECT_EQ(change.source, u"KOBTraduction.KOBCellTraduction");
  EXPECT_EQ(change.description, u"ChangeLeft: object not set: a member was asked of a reference to nothing");
}

TEST_F(ErrorsTest, OfOneCallAreGoneAtTheNext) {
  const ComPtr<_KOBTraductionObj> entry = createEntry();
  ComPtr<_KOBCollection> texts;
  ASSERT_EQ(entry->get_ColTraduction(texts.out()), S_OK);
  EXPECT_EQ(texts->Remove(0), runTimeError(9));
  LateCall name(entry.get(), u"nom");
  EXPECT_EQ(name.call(), S_OK);
  EXPECT_EQ(errorInformation(), "");
}

TEST_F(ErrorsTest, MergingTwoTreesIsATypeMismatch) {
  const ComPtr<_KOBModeleTraduction> model = createModel();
  const ComPtr<_KOBModeleTraduction> added = createModel();
  for (const ComPtr<_KOBModeleTraduction>& each : {model, added}) {
    ComPtr<_KOBCellTraduction> root;
    ComPtr<_KOBCellTraduction> child;
    ASSERT_EQ(each->get_Racine(root.out()), S_OK);
    ASSERT_EQ(root->AddNoeuds(String(u"a"), nullptr, nullptr, child.out()), S_OK);
  }
  EXPECT_EQ(model->AddModele(added.get()), runTimeError(13));
  EXPECT_EQ(model->AddModele(nullptr), runTimeError(91));
  EXPECT_EQ(model->UpdateWithTraductionModele(nullptr, -1), runTimeError(91));
  EXPECT_EQ(model->UpdateWithTraductionModele(added.get(), -1), S_OK);
}

TEST_F(ErrorsTest, ALanguageThatIsNotThereIsAnInvalidIndex) {
  const ComPtr<_KOBModeleTraduction> model = createModel();
  ComPtr<_KOBCellTraduction> root;
  ComPtr<_KOBCellTraduction> message;
  ASSERT_EQ(model->get_Racine(root.out()), S_OK);
  ASSERT_EQ(root->AddMessage(String(u"m"), String(u"Bonjour"), nullptr, nullptr, message.out()), S_OK);
  BSTR text = nullptr;
  EXPECT_EQ(model->GetTraduction(String(u"m"), 7, nullptr, &text), runTimeError(9));
  EXPECT_EQ(text, nullptr);
  ASSERT_EQ(model->GetTraduction(String(u"m"), 6, nullptr, &text), S_OK);
  EXPECT_EQ(take(text), u"Bonjour");
}

TEST_F(ErrorsTest, AHostThatGivesNoPlaceForTheResultIsTold) {
  const ComPtr<_KOBModeleTraduction> model = createModel();
  EXPECT_EQ(model->get_Fichier(nullptr), E_POINTER);
  EXPECT_EQ(model->get_Racine(nullptr), E_POINTER);
  EXPECT_EQ(model->GetCell(nullptr, nullptr), E_POINTER);
  ComPtr<_KOBCellTraduction> root;
  ASSERT_EQ(model->get_Racine(root.out()), S_OK);
  EXPECT_EQ(root->AddNoeuds(String(u"a"), nullptr, nullptr, nullptr), E_POINTER);
  LONG kind = 0;
  ASSERT_EQ(root->get_TypeCell(&kind), S_OK);
  ComPtr<_KOBCollection> children;
  LONG count = -1;
  ASSERT_EQ(root->get_ColCell(children.out()), S_OK);
  ASSERT_EQ(children->get_Count(&count), S_OK);
  EXPECT_EQ(count, 0) << "a refused call changes nothing";
}

TEST_F(ErrorsTest, AMemberThatIsNotThereIsUnknown) {
  const ComPtr<_KOBModeleTraduction> model = createModel();
  DISPID id = 0;
  EXPECT_EQ(hosts::memberId(model.get(), u"Inconnu", id), DISP_E_UNKNOWNNAME);
  EXPECT_EQ(hosts::memberId(model.get(), u"TRADUITDIALOG", id), S_OK);
  EXPECT_EQ(id, 9);
}

TEST_F(ErrorsTest, WrongTypesAndTooFewArgumentsNeverReachTheModel) {
  const ComPtr<_KOBModeleTraduction> model = createModel();
  LateCall clear(model.get(), u"ClearLangue");
  EXPECT_EQ(clear.call(), DISP_E_BADPARAMCOUNT);
  clear.arguments = {Variant(u"two")};
  EXPECT_EQ(clear.call(), DISP_E_TYPEMISMATCH);
  clear.arguments = {Variant(u"2")};
  EXPECT_EQ(clear.call(), S_OK);
}

}  // namespace kob::testing
