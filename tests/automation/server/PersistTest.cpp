// SPDX-FileCopyrightText: The KOBTraduction authors
#include "DispatchDouble.h"
#include "LateCall.h"

#include <deque>
#include <string>
#include <vector>

namespace kob::testing {

namespace {

constexpr auto objectNotSet = static_cast<HRESULT>(0x800A005BUL);

/// A persistence service's stream as a script writes one: an object with the stream's members by name.
class ScriptedRecord {
 public:
  ScriptedRecord() {
    stream_->setFunction(u"Version", [this](const Call& call) {
      if (call.isPut()) {
        version = call.argument(0).number();
        return S_OK;
      }
      return call.give(Variant(version));
    });
    stream_->setFunction(u"WriteValue", [this](const Call& call) {
      if (static_cast<int>(values.size()) == failsAt) {
        return E_FAIL;
      }
      values.push_back(call.argument(0));
      return S_OK;
    });
    stream_->setFunction(u"ReadValue", [this](const Call& call) {
      if (values.empty()) {
        return E_FAIL;
      }
      const HRESULT given = call.give(values.front());
      values.pop_front();
      return given;
    });
  }

  IDispatch* stream() const { return stream_.get(); }
  /// "type:value" of each value.
  std::string text() const {
    std::string all;
    for (const Variant& value : values) {
      all += (all.empty() ? "" : " ") + std::to_string(value.type()) + ":";
      all += value.type() == VT_DISPATCH ? "object" : toUtf8(value.text());
    }
    return all;
  }

  std::int32_t version = 0;
  std::deque<Variant> values;
  int failsAt = -1;

 private:
  ComPtr<DispatchDouble> stream_ = makeDouble();
};

ComPtr<::IKOBVBPersistStream> persistenceOf(IUnknown* object) {
  return as<::IKOBVBPersistStream>(object);
}

}  // namespace

class PersistTest : public ServerTest {};

TEST_F(PersistTest, ObjectsTellTheirClassAndTheModelItsTable) {
  Variant id;
  const ComPtr<_KOBModeleTraduction> model = createModel();
  ASSERT_EQ(persistenceOf(model.get())->getProgID(id.get()), S_OK);
  EXPECT_EQ(id.text(), u"KOBTraduction.KOBModeleTraduction");
  ComPtr<_KOBCollection> table;
  ASSERT_EQ(persistenceOf(model.get())->getProgIdTable(table.out()), S_OK);
  std::string ids;
  for (LONG i = 1; i <= 3; ++i) {
    Variant item;
    ASSERT_EQ(table->get_Item(i, item.get()), S_OK);
    ids += toUtf8(item.text()) + " ";
  }
  EXPECT_EQ(
      ids,
      "KOBTraduction.KOBModeleTraduction KOBTraduction.KOBCellTraduction KOBTraduction.KOBTraductionObj ");
  const ComPtr<_KOBCellTraduction> cell = createCell();
  ASSERT_EQ(persistenceOf(cell.get())->getProgIdTable(table.out()), S_OK);
  EXPECT_FALSE(table);
}

TEST_F(PersistTest, AnEntrysRecordGoesThroughAScriptedStreamAndBack) {
  createModel();
  const ComPtr<_KOBTraductionObj> entry = createEntry();
  entry->put_nom(String(u"Caption"));
  entry->ChangeTraduction(String(u"Fichier"), 1);
  entry->ChangeTraduction(String(u"File"), 2);
  ScriptedRecord record;
  ASSERT_EQ(persistenceOf(entry.get())->write(record.stream()), S_OK);
  EXPECT_EQ(record.version, 1);
  EXPECT_EQ(record.text(), "8:Caption 8:Fichier 8:File 8: 8: 8: 8:");
  const ComPtr<_KOBTraductionObj> other = createEntry();
  ASSERT_EQ(persistenceOf(other.get())->read(record.stream()), S_OK);
  ScriptedRecord again;
  ASSERT_EQ(persistenceOf(other.get())->write(again.stream()), S_OK);
  EXPECT_EQ(again.text(), "8:Caption 8:Fichier 8:File 8: 8: 8: 8:");
}

TEST_F(PersistTest, ACellsRecordHoldsTheTypesThatFilesHave) {
  createModel();
  const ComPtr<_KOBCellTraduction> cell = createCell();
  cell->put_nom(String(u"Bouton"));
  cell->put_TypeFeuille(2);
  cell->ChangeLeft(1.5, 2);
  ScriptedRecord record;
  ASSERT_EQ(persistenceOf(cell.get())->write(record.stream()), S_OK);
  EXPECT_EQ(record.version, 2);
  EXPECT_EQ(record.text(),
            "8:Bouton 8: 3:2 3:2 3:0 3:0 3:0 2:1 2:1 2:1 5:1.5 2:1 2:1 2:1 2:1 2:1 2:1 2:1 2:1 11:False");
  const ComPtr<_KOBCellTraduction> other = createCell();
  ASSERT_EQ(persistenceOf(other.get())->read(record.stream()), S_OK);
  ScriptedRecord again;
  ASSERT_EQ(persistenceOf(other.get())->write(again.stream()), S_OK);
  // The indicators read back as 1 or -1.
  EXPECT_EQ(again.text(),
            "8:Bouton 8: 3:2 3:2 3:1 3:1 3:0 2:1 2:1 2:1 5:1.5 2:1 2:1 2:1 2:1 2:1 2:1 2:1 2:1 11:False");
}

TEST_F(PersistTest, AModelsRecordGivesAndTakesItsRootAsAnObject) {
  const ComPtr<_KOBModeleTraduction> model = createModel();
  ComPtr<_KOBCellTraduction> root;
  ASSERT_EQ(model->get_Racine(root.out()), S_OK);
  ScriptedRecord record;
  ASSERT_EQ(persistenceOf(model.get())->write(record.stream()), S_OK);
  EXPECT_EQ(record.text(), "3:6 9:object");
  EXPECT_EQ(record.values[1].object().get(), root.get());

  const ComPtr<_KOBCellTraduction> other = createCell();
  record.values.pop_back();
  record.values.emplace_back(static_cast<IDispatch*>(other.get()));
  ASSERT_EQ(persistenceOf(model.get())->read(record.stream()), S_OK);
  ASSERT_EQ(model->get_Racine(root.out()), S_OK);
  EXPECT_EQ(root.get(), other.get());
}

TEST_F(PersistTest, AnObjectOfSomebodyElseEndsTheRecord) {
  const ComPtr<_KOBModeleTraduction> model = createModel();
  ComPtr<_KOBCellTraduction> before;
  ASSERT_EQ(model->get_Racine(before.out()), S_OK);
  ScriptedRecord record;
  const ComPtr<DispatchDouble> foreign = makeDouble();
  record.values.emplace_back(std::int32_t{6});
  record.values.emplace_back(static_cast<IDispatch*>(foreign.get()));
  EXPECT_EQ(persistenceOf(model.get())->read(record.stream()), S_OK);
  ComPtr<_KOBCellTraduction> after;
  ASSERT_EQ(model->get_Racine(after.out()), S_OK);
  EXPECT_EQ(after.get(), before.get());
}

TEST_F(PersistTest, AStreamThatRefusesEndsTheRecordWithoutAnError) {
  createModel();
  const ComPtr<_KOBTraductionObj> entry = createEntry();
  ScriptedRecord record;
  record.failsAt = 2;
  EXPECT_EQ(persistenceOf(entry.get())->write(record.stream()), S_OK);
  EXPECT_EQ(record.values.size(), 2U);
  ComPtr<IErrorInfo> left;
  EXPECT_EQ(GetErrorInfo(0, left.out()), S_FALSE);
  const ComPtr<DispatchDouble> stranger = makeDouble();
  EXPECT_EQ(persistenceOf(entry.get())->read(stranger.get()), S_OK);
  EXPECT_EQ(persistenceOf(entry.get())->read(nullptr), objectNotSet);
  EXPECT_EQ(persistenceOf(entry.get())->write(nullptr), objectNotSet);
}

TEST_F(PersistTest, TheInterfaceCanBeCalledByNameToo) {
  createModel();
  const ComPtr<_KOBTraductionObj> entry = createEntry();
  const ComPtr<::IKOBVBPersistStream> persistence = persistenceOf(entry.get());
  EXPECT_EQ(hosts::call(persistence.get(), u"getProgID").text(), u"KOBTraduction.KOBTraductionObj");
  ScriptedRecord record;
  hosts::call(persistence.get(), u"write", {Variant(record.stream())});
  EXPECT_EQ(record.values.size(), 7U);
  EXPECT_EQ(references(entry), 2U);
}

}  // namespace kob::testing
