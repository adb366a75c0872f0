// SPDX-FileCopyrightText: The KOBTraduction authors
#include "Desk.h"

namespace kob::qt::testing {
namespace {

struct EditorTree : EditorOnScreen {
  EditorTree() {
    control(form, u"Ok", {entry(u"Caption", {u"Bien", u"", u"", u"", u"", u""})});
    message(form, u"M", {u"Oui", u"Yes", u"", u"", u"", u""});
  }
  CellRef form = app->AddNoeuds(u"Form");
};

QImage picture(const QModelIndex& node, qreal ratio = 1) {
  return node.data(Qt::DecorationRole).value<QIcon>().pixmap(QSize(16, 16), ratio).toImage();
}

TEST_F(EditorTree, AClickShowsTheCell) {
  edit(u"", [](const Window& window) {
    window.clickNode(QStringLiteral("App\\Form\\M"));
    EXPECT_EQ(window.text("tbNom"), QStringLiteral("M"));
    EXPECT_EQ(window.text("tbTradMessage(1)"), QStringLiteral("Yes"));
    EXPECT_TRUE(window.sees("FrMessage"));
    EXPECT_FALSE(window.sees("FrControl"));
  });
}

TEST_F(EditorTree, TheArrowKeysShowTheCell) {
  edit(u"App\\Form", [](const Window& window) {
    window.tree().setFocus();
    window.key(Qt::Key_Down);
    EXPECT_EQ(window.selectedNode(), QStringLiteral("App\\Form\\Ok"));
    EXPECT_EQ(window.text("tbNom"), QStringLiteral("Ok"));
  });
}

TEST_F(EditorTree, AClickOnTheSelectedNodeShowsItAgain) {
  edit(u"App\\Form\\M", [this](const Window& window) {
    form->ColCell()->Item(2)->setAlias(u"changed by the host");
    window.clickNode(QStringLiteral("App\\Form\\M"));
    EXPECT_EQ(window.text("tbAlias"), QStringLiteral("changed by the host"));
  });
}

TEST_F(EditorTree, ATopLevelCellIsUnfoldedAndItsChildrenAreFolded) {
  edit(u"", [](const Window& window) {
    EXPECT_TRUE(window.tree().isExpanded(window.node(QStringLiteral("App"))));
    EXPECT_FALSE(window.tree().isExpanded(window.node(QStringLiteral("App\\Form"))));
  });
}

TEST_F(EditorTree, TheSelectedNodeIsUnfoldedAndInView) {
  for (char16_t letter = u'a'; letter <= u'z'; ++letter) {
    for (char16_t second = u'a'; second <= u'f'; ++second) {
      app->AddNoeuds(Text{letter, second});
    }
  }
  edit(u"App\\zd", [](const Window& window) {
    const QRect place = window.tree().visualRect(window.tree().currentIndex());
    EXPECT_TRUE(window.tree().viewport()->rect().contains(place.center()));
  });
}

TEST_F(EditorTree, FoldingANodeDoesNotClickIt) {
  edit(u"App\\Form\\M", [](const Window& window) {
    const QModelIndex node = window.node(QStringLiteral("App\\Form"));
    const QRect place = window.tree().visualRect(node);
    QTest::mouseClick(window.tree().viewport(), Qt::LeftButton, {}, {place.left() - 10, place.center().y()});
    EXPECT_FALSE(window.tree().isExpanded(node));
    EXPECT_EQ(window.text("tbNom"), QStringLiteral("M"));
  });
}

TEST_F(EditorTree, ControlPageDownGoesToTheNextNodeOutOfAText) {
  edit(u"App\\Form", [](const Window& window) {
    window.the("tbNom").setFocus();
    window.key(Qt::Key_PageDown, Qt::ControlModifier);
    EXPECT_EQ(window.text("tbNom"), QStringLiteral("Ok"));
    window.key(Qt::Key_PageUp, Qt::ControlModifier);
    EXPECT_EQ(window.text("tbNom"), QStringLiteral("Form"));
    EXPECT_TRUE(window.the("tbNom").hasFocus());
  });
}

TEST_F(EditorTree, ControlPageDownUnfoldsWhatItGoesInto) {
  edit(u"App", [](const Window& window) {
    window.clickNode(QStringLiteral("App"));
    window.key(Qt::Key_PageDown, Qt::ControlModifier);
    window.key(Qt::Key_PageDown, Qt::ControlModifier);
    EXPECT_EQ(window.selectedNode(), QStringLiteral("App\\Form\\Ok"));
  });
}

TEST_F(EditorTree, TheFivePicturesDiffer) {
  control(form, u"Ctx", {})->setContexte(true);
  message(form, u"MCtx", {u"", u"", u"", u"", u"", u""})->setContexte(true);
  edit(u"", [](const Window& window) {
    const QStringList nodes{QStringLiteral("App"), QStringLiteral("App\\Form\\Ok"),
                            QStringLiteral("App\\Form\\Ctx"), QStringLiteral("App\\Form\\M"),
                            QStringLiteral("App\\Form\\MCtx")};
    for (const QString& one : nodes) {
      for (const QString& other : nodes) {
        EXPECT_EQ(picture(window.node(one)) == picture(window.node(other)), one == other)
            << qPrintable(one) << " and " << qPrintable(other);
      }
    }
  });
}

TEST_F(EditorTree, APictureIsDrawnAnewForASharperScreen) {
  edit(u"", [](const Window& window) {
    const QImage sharp = picture(window.node(QStringLiteral("App")), 2);
    EXPECT_EQ(sharp.size(), QSize(32, 32));
    const QImage blown = picture(window.node(QStringLiteral("App"))).scaled(32, 32);
    EXPECT_NE(sharp.convertToFormat(QImage::Format_ARGB32), blown.convertToFormat(QImage::Format_ARGB32));
  });
}

TEST_F(EditorTree, TheContextBoxChangesThePictureAtOnce) {
  edit(u"App\\Form\\Ok", [](const Window& window) {
    const QImage before = picture(window.node(QStringLiteral("App\\Form\\Ok")));
    window.press("chkContexte");
    EXPECT_NE(picture(window.node(QStringLiteral("App\\Form\\Ok"))), before);
  });
}

TEST_F(EditorTree, AnotherKindRebuildsTheTreeAndKeepsTheSelection) {
  edit(u"App\\Form\\Ok", [this](const Window& window) {
    window.press("OptTypFeuille(1)");
    EXPECT_EQ(window.selectedNode(), QStringLiteral("App\\Form\\Ok"));
    EXPECT_TRUE(window.sees("FrMessage"));
    EXPECT_EQ(model.GetCell(u"App\\Form\\Ok")->TypeFeuille(), 1);
  });
}

TEST_F(EditorTree, ANodeWhoseCellIsGoneEmptiesTheNames) {
  edit(u"App\\Form\\M", [this](const Window& window) {
    form->ColCell()->Remove(1);
    form->ColCell()->Remove(1);
    window.clickNode(QStringLiteral("App\\Form\\Ok"));
    EXPECT_EQ(window.text("tbNom"), QString());
    EXPECT_TRUE(window.sees("FrMessage"));
  });
}

}  // namespace
}  // namespace kob::qt::testing
