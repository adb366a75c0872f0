// SPDX-FileCopyrightText: The KOBTraduction authors
#include "NativeEditorTest.h"

#include <bindings/win32/editor/NativeTree.h>

namespace kob::testing {
namespace {

class NativeTreeTest : public NativeEditorTest {
 protected:
  NativeTreeTest() {
    const CellRef form = app->AddNoeuds(u"Frm");
    control(form, u"btn", {caption(u"Oui", u"Yes")});
    message(form, u"msg", {u"Bonjour", u"Hello", u"", u"", u"", u""});
    message(app, u"z", {u"bonjour", u"", u"", u"", u"", u""});
  }

  static bool isUnfolded(const NativePerson& person, TextView tag) {
    const auto item = person.the<win32::NativeTree>(u"TV").item(person.tree().find(tag));
    return (SendMessageW(person.control(u"TV"), TVM_GETITEMSTATE, reinterpret_cast<WPARAM>(item),
                         TVIS_EXPANDED) &
            TVIS_EXPANDED) != 0;
  }
};

TEST_F(NativeTreeTest, NodesHaveTheirNamesAndPictures) {
  edit(u"", [](NativePerson& person) {
    ASSERT_EQ(SendMessageW(person.control(u"TV"), TVM_GETCOUNT, 0, 0), 5);
    const auto look = [&](TextView tag) {
      const TreeView::Node node = person.tree().find(tag);
      return std::pair(person.nodeText(node), person.nodeImage(node));
    };
    EXPECT_EQ(look(u"App"), std::pair(std::wstring(L"App"), 1));
    EXPECT_EQ(look(u"App\\Frm\\btn"), std::pair(std::wstring(L"btn"), 2));
    EXPECT_EQ(look(u"App\\Frm\\msg"), std::pair(std::wstring(L"msg"), 4));
    EXPECT_NE(SendMessageW(person.control(u"TV"), TVM_GETIMAGELIST, TVSIL_NORMAL, 0), 0);
  });
}

TEST_F(NativeTreeTest, TopLevelNodesAndTheWayToTheSelectedOneAreUnfolded) {
  edit(u"App\\Frm\\btn", [](NativePerson& person) {
    EXPECT_TRUE(isUnfolded(person, u"App"));
    EXPECT_TRUE(isUnfolded(person, u"App\\Frm"));
  });
  edit(u"", [](NativePerson& person) {
    EXPECT_TRUE(isUnfolded(person, u"App"));
    EXPECT_FALSE(isUnfolded(person, u"App\\Frm"));
  });
}

TEST_F(NativeTreeTest, AClickShowsACellAndFillsItIn) {
  edit(u"", [](NativePerson& person) {
    EXPECT_TRUE(person.clickTag(u"App\\z"));
    EXPECT_EQ(person.shownText(u"tbTradMessage", 1), L"Hello");
  });
  EXPECT_EQ(model.GetCell(u"App\\z")->Traduction()->ColTraduction()->Item(2), u"Hello");
}

TEST_F(NativeTreeTest, AClickOnTheSelectedNodeIsOneMoreClick) {
  edit(u"App\\z", [](NativePerson& person) {
    EXPECT_EQ(person.shownText(u"tbTradMessage", 1), L"");
    EXPECT_TRUE(person.clickTag(u"App\\z"));
    EXPECT_EQ(person.shownText(u"tbTradMessage", 1), L"Hello");
  });
}

TEST_F(NativeTreeTest, TheContextBoxChangesThePicture) {
  edit(u"App\\Frm\\btn", [](NativePerson& person) {
    EXPECT_TRUE(person.check(u"chkContexte"));
    EXPECT_EQ(person.nodeImage(person.selectedNode()), 3);
  });
  EXPECT_TRUE(model.GetCell(u"App\\Frm\\btn")->Contexte());
}

TEST_F(NativeTreeTest, AnotherKindBuildsTheTreeAnewAndKeepsTheSelection) {
  edit(u"App\\Frm\\btn", [](NativePerson& person) {
    EXPECT_TRUE(person.choose(u"OptTypFeuille", 1));
    EXPECT_EQ(person.tree().tag(person.selectedNode()), u"App\\Frm\\btn");
    EXPECT_EQ(person.nodeImage(person.selectedNode()), 4);
    EXPECT_TRUE(person.sees(u"FrMessage"));
    EXPECT_FALSE(person.sees(u"FrControl"));
    EXPECT_EQ(person.chosen(u"OptTypFeuille"), 1);
  });
}

TEST_F(NativeTreeTest, ThousandsOfNodesAreShownSoon) {
  for (int i = 0; i < 5'000; ++i) {
    append(app, named(u"n" + decimal(i)));
  }
  const ULONGLONG begin = GetTickCount64();
  edit(u"", [](NativePerson& person) {
    EXPECT_EQ(SendMessageW(person.control(u"TV"), TVM_GETCOUNT, 0, 0), 5'005);
  });
  // A walk per node would take minutes.
  EXPECT_LT(GetTickCount64() - begin, 20'000U);
}

}  // namespace
}  // namespace kob::testing
