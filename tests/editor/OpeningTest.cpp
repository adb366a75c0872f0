// SPDX-FileCopyrightText: The KOBTraduction authors
#include "EditorTest.h"

namespace kob::testing {

namespace {

using EditorOpening = EditorTest;

TEST_F(EditorOpening, AnEmptyPathOpensWithNothingSelectedAndAllFramesHidden) {
  message(app, u"m", {u"Bonjour", {}, {}, {}, {}, {}});
  edit(u"", [](Person& person) {
    EXPECT_EQ(person.tree().selected(), 0);
    EXPECT_FALSE(person.sees(u"FrName") || person.sees(u"FrControl") || person.sees(u"FrMessage"));
    EXPECT_FALSE(person.sees(u"bAdd") || person.sees(u"bSupp"));
  });
}

TEST_F(EditorOpening, AnUnknownPathOpensLikeAnEmptyOne) {
  edit(u"App\\nobody", [](Person& person) { EXPECT_EQ(person.tree().selected(), 0); });
}

TEST_F(EditorOpening, ThePathsCellIsSelectedExpandedAndShown) {
  const CellRef form = app->AddNoeuds(u"Form");
  edit(u"app\\FORM", [](Person& person) {
    EXPECT_EQ(person.selectedTag(), u"App\\Form");
    EXPECT_EQ(person.text(u"tbNom"), u"Form");
    EXPECT_TRUE(person.sees(u"FrName"));
    EXPECT_TRUE(person.tree().shown(person.tree().selected()).isExpanded);
  });
}

TEST_F(EditorOpening, ATopLevelCellIsNotOpenedOn) {
  edit(u"App", [](Person& person) {
    EXPECT_EQ(person.tree().selected(), 0);
    EXPECT_FALSE(person.sees(u"FrName"));
  });
}

TEST_F(EditorOpening, TheRootIsNotOpenedOn) {
  edit(u"\\", [](Person& person) { EXPECT_FALSE(person.sees(u"FrName")); });
}

TEST_F(EditorOpening, ByDefaultItIsRestrictedAndOnNoCell) {
  app->AddNoeuds(u"Form");
  widgets.whenShown(DialogKind::Traduction, [](Person& person) {
    EXPECT_EQ(person.tree().selected(), 0);
    EXPECT_FALSE(person.the<Widget>(u"FrName").isEnabled());
  });
  model.Show();
  EXPECT_THAT(widgets.shown, ElementsAre(DialogKind::Traduction));
}

TEST_F(EditorOpening, EveryModeButOneIsFull) {
  edit(-1, u"", [](Person& person) { EXPECT_TRUE(person.the<Widget>(u"FrName").isEnabled()); });
}

TEST_F(EditorOpening, ItsWindowsAreGoneWhenItIsClosed) {
  edit(u"", [this](Person&) { EXPECT_EQ(widgets.windows, 2); });
  EXPECT_EQ(widgets.windows, 0);
}

TEST_F(EditorOpening, WithoutAWidgetSetThereIsNoEditor) {
  setWidgetSet(nullptr);
  EXPECT_EQ(failureOf([this] { model.Show(); }), FailureKind::ObjectNotSet);
  setWidgetSet(&widgets);
}

TEST_F(EditorOpening, TheTreeShowsTheCellsInOrderWithTheirPathsAsTags) {
  const CellRef form = app->AddNoeuds(u"Form");
  message(form, u"m", {u"a"});
  message(app, u"n", {u"b"});
  model.Racine()->AddNoeuds(u"Other");
  edit(u"", [](Person& person) {
    Texts tags;
    std::vector<TreeView::Node> parents;
    for (TreeView::Node node = 1; node <= person.tree().count(); ++node) {
      tags.push_back(person.tree().tag(node));
      parents.push_back(person.tree().parent(node));
    }
    EXPECT_THAT(tags, ElementsAre(u"App", u"App\\Form", u"App\\Form\\m", u"App\\n", u"Other"));
    EXPECT_THAT(parents, ElementsAre(0, 1, 2, 1, 0));
    EXPECT_EQ(person.tree().shown(3).text, u"m");
  });
}

TEST_F(EditorOpening, OnlyTopLevelNodesAreUnfolded) {
  app->AddNoeuds(u"Form");
  edit(u"", [](Person& person) {
    EXPECT_TRUE(person.tree().shown(1).isExpanded);
    EXPECT_FALSE(person.tree().shown(2).isExpanded);
  });
}

TEST_F(EditorOpening, TheListThatAHostGaveALeafIsNotShown) {
  const auto children = app->ColCell();
  children->Add(named(u"child"));
  app->setTypeCell(2);
  app->setColCell(children);
  edit(u"", [](Person& person) { EXPECT_EQ(person.tree().count(), 1); });
}

TEST_F(EditorOpening, PicturesTellKindAndContext) {
  app->AddNoeuds(u"plain");
  control(app, u"control", {});
  control(app, u"control in context", {})->setContexte(true);
  message(app, u"message", {u"a"});
  message(app, u"message in context", {u"a"})->setContexte(true);
  edit(u"", [](Person& person) {
    std::vector<std::int32_t> images;
    for (TreeView::Node node = 1; node <= person.tree().count(); ++node) {
      images.push_back(person.tree().shown(node).image);
    }
    EXPECT_THAT(images, ElementsAre(1, 1, 2, 3, 4, 5));
    EXPECT_EQ(person.tree().shownImages, &person.window.imageList());
  });
}

TEST_F(EditorOpening, ATopLevelCellHasThePlainPictureWhateverItIs) {
  message(model.Racine(), u"m", {u"a"});
  edit(u"", [](Person& person) { EXPECT_EQ(person.tree().shown(2).image, 1); });
}

TEST_F(EditorOpening, AContextWithoutTextsHasThePlainPicture) {
  app->AddNoeuds(u"plain")->setContexte(true);
  edit(u"", [](Person& person) { EXPECT_EQ(person.tree().shown(2).image, 1); });
}

TEST_F(EditorOpening, TheToolkitIsToldWhereFillingBeginsAndEnds) {
  edit(u"", [](Person& person) {
    EXPECT_EQ(person.tree().open, 0);
    EXPECT_EQ(person.tree().fills, 1);
  });
}

TEST_F(EditorOpening, ANodeThatIsNothingEndsTheOpening) {
  app->ColCell()->Add(nullptr);
  EXPECT_EQ(failureOf([this] { model.Show(full); }), FailureKind::ObjectNotSet);
  EXPECT_THAT(widgets.shown, IsEmpty());
  EXPECT_EQ(widgets.windows, 0);
}

TEST_F(EditorOpening, ACellBelowItselfIsShownOnceMoreAndNotEntered) {
  const CellRef form = app->AddNoeuds(u"Form");
  form->ColCell()->Add(app);
  edit(u"", [](Person& person) { EXPECT_EQ(person.tree().count(), 3); });
  form->ColCell()->Remove(1);
}

TEST_F(EditorOpening, CaptionsAreTheDesignedOnes) {
  edit(u"", [](Person& person) {
    const auto caption = [&](TextView name, std::int32_t index = -1) { return person.caption(name, index); };
    EXPECT_EQ(caption(u"lbName"), u"Name");
    EXPECT_EQ(caption(u"Label2"), u"Alias");
    EXPECT_EQ(caption(u"OptTypFeuille", 0), u"Empty");
    EXPECT_EQ(caption(u"OptTypFeuille", 1), u"Message");
    EXPECT_EQ(caption(u"OptTypFeuille", 2), u"Controle");
    EXPECT_EQ(caption(u"chkContexte"), u"Contexte");
    EXPECT_EQ(caption(u"lContexte"), u"Contexte");
    EXPECT_EQ(caption(u"bAddTrad"), u"Ajouter");
    EXPECT_EQ(caption(u"bSupTrad"), u"Supp");
    EXPECT_EQ(caption(u"chkPosition"), u"Position Active");
    EXPECT_EQ(caption(u"sldLeft", 5), u"Left");
    EXPECT_EQ(caption(u"sldwidth", 5), u"Width");
    EXPECT_EQ(caption(u"bAdd"), u"Ajouter un noeuds");
    EXPECT_EQ(caption(u"bSupp"), u"Supprimer un noeuds");
    EXPECT_EQ(caption(u"mFichier"), u"Fichier");
    EXPECT_EQ(caption(u"m_Save"), u"Save");
    EXPECT_EQ(caption(u"m_SaveAs"), u"Save As");
    EXPECT_EQ(caption(u"mEdit"), u"Edition");
    EXPECT_EQ(caption(u"m_Search"), u"Search");
    EXPECT_EQ(person.window.saveFileDialog().filter(), u"Fichiers Traductions(*.trad)|*.trad");
  });
}

}  // namespace

}  // namespace kob::testing
