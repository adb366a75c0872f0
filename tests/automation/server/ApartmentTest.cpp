// SPDX-FileCopyrightText: The KOBTraduction authors
#include "LoadedServer.h"

#include <array>
#include <thread>

namespace kob::testing {

namespace {

LONG languages(const ComPtr<_KOBModeleTraduction>& model) {
  LONG count = 0;
  model->get_NbLangues(&count);
  return count;
}

}  // namespace

class ApartmentTest : public ServerTest {};

TEST_F(ApartmentTest, EachHasItsOwnLanguageCount) {
  const ComPtr<_KOBModeleTraduction> model = createModel();
  EXPECT_EQ(languages(model), 6);
  EXPECT_EQ(model->put_NbLangues(8), S_OK);
  LONG ofOther = 0;
  LONG raised = 0;
  std::thread([&] {
    CoInitialize(nullptr);
    {
      const ComPtr<_KOBModeleTraduction> other = createModel();
      ofOther = languages(other);
      other->put_NbLangues(9);
      raised = languages(createModel());
    }
    CoUninitialize();
  }).join();
  EXPECT_EQ(ofOther, 6);
  EXPECT_EQ(raised, 9);
  EXPECT_EQ(languages(model), 8);
}

TEST_F(ApartmentTest, TheCountOfAThreadOutlivesItsModels) {
  std::thread([] {
    CoInitialize(nullptr);
    createModel()->put_NbLangues(7);
    EXPECT_EQ(languages(createModel()), 7);
    CoUninitialize();
  }).join();
}

TEST_F(ApartmentTest, ManyThreadsWorkBesideEachOther) {
  std::array<std::thread, 4> threads;
  for (std::thread& thread : threads) {
    thread = std::thread([] {
      CoInitialize(nullptr);
      for (int round = 0; round < 50; ++round) {
        const ComPtr<_KOBModeleTraduction> model = createModel();
        ComPtr<_KOBCellTraduction> root;
        ASSERT_EQ(model->get_Racine(root.out()), S_OK);
        ComPtr<_KOBCellTraduction> added;
        ASSERT_EQ(root->AddMessage(String(u"m"), String(u"Bonjour"), nullptr, nullptr, added.out()), S_OK);
        BSTR text = nullptr;
        ASSERT_EQ(model->GetTraduction(String(u"m"), 2, nullptr, &text), S_OK);
        EXPECT_EQ(take(text), u"Bonjour");
      }
      CoUninitialize();
    });
  }
  for (std::thread& thread : threads) {
    thread.join();
  }
}

}  // namespace kob::testing
