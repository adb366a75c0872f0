// SPDX-FileCopyrightText: The KOBTraduction authors
#include "LiveForms.h"
#include "LiveModel.h"

#include <kobtraductionqt/KOBTraductionQt.h>
#include <kobtraductionqt/LanguageSwitcher.h>
#include <kobtraductionqt/QtMessageBoxes.h>

#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QDockWidget>
#include <QHBoxLayout>
#include <QMessageBox>
#include <QPaintEvent>
#include <QTimer>

#include <gmock/gmock.h>

#include <algorithm>
#include <memory>

namespace kob::qt::live {
namespace {

struct Watch : testing::Test {
  Watch() {
    ClientDialog sample;
    model.UpdateWithForm(hostForm(&sample));
    setCaption(model, u"FrmClients\\lblNom", 2, u"Name");
    setCaption(model, u"FrmClients\\lblNom", 3, u"Naam");
    setWidthFactor(model, u"FrmClients\\lblNom", 2, 2);
  }

  /// Harvests a window of any kind and gives it the title "translated" in language 2.
  void translateTitle(QWidget& window) {
    model.UpdateWithForm(hostForm(&window));
    setCaption(model, model.GetPath(hostForm(&window)), 2, u"translated");
  }

  KOBModeleTraduction model;
  RecordedBoxes boxes;
  LanguageSwitcher switcher{model};
};

TEST_F(Watch, AWindowShowsTheLanguageWhenItIsFirstShown) {
  switcher.watchApplication();
  switcher.setLanguage(2);
  ClientDialog form;
  EXPECT_EQ(form.lblNom->text(), QStringLiteral("Nom"));
  form.show();
  EXPECT_EQ(form.lblNom->text(), QStringLiteral("Name"));
  EXPECT_EQ(form.lblNom->width(), 200);
  switcher.setLanguage(3);
  EXPECT_EQ(form.lblNom->text(), QStringLiteral("Naam"));
}

TEST_F(Watch, WithoutWatchingNothingIsRegistered) {
  switcher.setLanguage(2);
  ClientDialog form;
  form.show();
  EXPECT_EQ(form.lblNom->text(), QStringLiteral("Nom"));
}

TEST_F(Watch, TheReferenceLanguageIsNeverPainted) {
  struct PaintedLabel : QLabel {
    using QLabel::QLabel;
    void paintEvent(QPaintEvent* event) override {
      painted += text();
      QLabel::paintEvent(event);
    }
    QStringList painted;
  };
  switcher.watchApplication();
  switcher.setLanguage(2);
  QDialog form;
  form.setObjectName(QStringLiteral("FrmClients"));
  auto* const label = add<PaintedLabel>(form, "lblNom");
  label->setText(QStringLiteral("Nom"));
  form.show();
  QApplication::processEvents();
  form.repaint();
  ASSERT_FALSE(label->painted.isEmpty());
  EXPECT_EQ(label->painted.count(QStringLiteral("Name")), label->painted.count());
}

TEST_F(Watch, ShowingAgainChangesNothing) {
  switcher.watchApplication();
  switcher.setLanguage(2);
  ClientDialog form;
  form.show();
  form.hide();
  form.lblNom->setText(QStringLiteral("by the application"));
  form.show();
  EXPECT_EQ(form.lblNom->text(), QStringLiteral("by the application"));
  EXPECT_EQ(form.lblNom->width(), 200);
}

TEST_F(Watch, WindowsAlreadyVisibleAreRegisteredAtOnce) {
  ClientDialog form;
  form.show();
  switcher.setLanguage(2);
  switcher.watchApplication();
  EXPECT_EQ(form.lblNom->text(), QStringLiteral("Name"));
}

TEST_F(Watch, ModuleIsTheOneThatWasGiven) {
  ClientDialog form;
  model.UpdateWithForm(hostForm(&form), u"Achats");
  setCaption(model, u"Achats\\FrmClients\\lblNom", 2, u"Buyer");
  switcher.watchApplication(QStringLiteral("Achats"));
  switcher.setLanguage(2);
  form.show();
  EXPECT_EQ(form.lblNom->text(), QStringLiteral("Buyer"));
}

TEST_F(Watch, AFormRegisteredBeforeKeepsItsModule) {
  ClientDialog form;
  model.UpdateWithForm(hostForm(&form), u"Achats");
  setCaption(model, u"Achats\\FrmClients\\lblNom", 2, u"Buyer");
  switcher.watchApplication();
  switcher.addForm(&form, QStringLiteral("Achats"));
  switcher.setLanguage(2);
  form.show();
  EXPECT_EQ(form.lblNom->text(), QStringLiteral("Buyer"));
}

TEST_F(Watch, ARemovedFormIsNotRegisteredAgain) {
  ClientDialog form;
  switcher.watchApplication();
  form.show();
  switcher.removeForm(&form);
  switcher.setLanguage(2);
  form.hide();
  form.show();
  EXPECT_EQ(form.lblNom->text(), QStringLiteral("Nom"));
}

TEST_F(Watch, ControlsAddedBeforeShowingAreTranslated) {
  ClientDialog form;
  switcher.watchApplication();
  switcher.addForm(&form);
  switcher.setLanguage(2);
  delete form.lblNom;
  QLabel* const late = addLabel(form, "lblNom", "Nom");
  form.show();
  EXPECT_EQ(late->text(), QStringLiteral("Name"));
}

TEST_F(Watch, AWindowWithoutASizeIsShownWithTheOneThatItsTranslatedTextsNeed) {
  const auto makeForm = [] {
    auto form = std::make_unique<QDialog>();
    form->setObjectName(QStringLiteral("FrmLayout"));
    auto* const layout = new QHBoxLayout(form.get());
    layout->addWidget(addLabel(*form, "lblNom", "Un texte assez long pour la largeur"));
    return form;
  };
  const auto reference = makeForm();
  model.UpdateWithForm(hostForm(reference.get()));
  setCaption(model, u"FrmLayout\\lblNom", 2, u"Short");
  setCaption(model, u"FrmLayout\\lblNom", 3, Text(80, u'W'));
  reference->show();
  const int natural = reference->width();
  switcher.watchApplication();
  for (const int langue : {2, 3}) {
    switcher.setLanguage(langue);
    const auto form = makeForm();
    form->show();
    EXPECT_EQ(form->width(), form->sizeHint().width());
    EXPECT_NE(form->width(), natural);
    switcher.setLanguage(1);
    EXPECT_EQ(form->width(), natural);
  }
}

TEST_F(Watch, MainWindowsDialogsAndToolWindowsAreForms) {
  switcher.watchApplication();
  switcher.setLanguage(2);
  for (const Qt::WindowType type : {Qt::Window, Qt::Dialog, Qt::Tool}) {
    QWidget window(nullptr, type);
    window.setObjectName(QStringLiteral("Fen"));
    window.setWindowTitle(QStringLiteral("original"));
    translateTitle(window);
    window.show();
    EXPECT_EQ(window.windowTitle(), QStringLiteral("translated")) << type;
  }
}

TEST_F(Watch, PopUpsAndToolTipsAreNoForms) {
  switcher.watchApplication();
  switcher.setLanguage(2);
  for (const Qt::WindowType type : {Qt::Popup, Qt::ToolTip}) {
    QWidget window(nullptr, type);
    window.setObjectName(QStringLiteral("Bulle"));
    window.setWindowTitle(QStringLiteral("original"));
    translateTitle(window);
    window.show();
    EXPECT_EQ(window.windowTitle(), QStringLiteral("original")) << type;
  }
}

TEST_F(Watch, MenusAreNoForms) {
  switcher.watchApplication();
  switcher.setLanguage(2);
  QMenu menu;
  menu.setObjectName(QStringLiteral("mnuContexte"));
  menu.setTitle(QStringLiteral("original"));
  menu.addAction(QStringLiteral("x"));
  translateTitle(menu);
  menu.popup(QPoint());
  EXPECT_EQ(menu.title(), QStringLiteral("original"));
}

TEST_F(Watch, ATornOffMenuIsNoForm) {
  QMainWindow window;
  QMenu menu(&window);
  menu.setTitle(QStringLiteral("original"));
  menu.addAction(QStringLiteral("x"));
  menu.setTearOffEnabled(true);
  std::int32_t erreur = 0;
  model.Racine()->AddCtrl(u"QTornOffMenu", u"", u"original", 0, 1, erreur, u"", u"");
  setCaption(model, u"QTornOffMenu", 2, u"translated");
  switcher.watchApplication();
  switcher.setLanguage(2);
  menu.showTearOffMenu(QPoint());
  const QWidgetList windows = QApplication::topLevelWidgets();
  const auto tornOff = std::find_if(windows.begin(), windows.end(), [](const QWidget* widget) {
    return widget->inherits("QTornOffMenu") && widget->isVisible();
  });
  ASSERT_NE(tornOff, windows.end());
  EXPECT_EQ((*tornOff)->windowTitle(), QStringLiteral("original"));
}

TEST_F(Watch, TheListThatAComboBoxDropsIsNoForm) {
  switcher.watchApplication();
  switcher.setLanguage(2);
  QComboBox box;
  box.addItem(QStringLiteral("x"));
  box.show();
  QWidget* const list = box.view()->window();
  ASSERT_NE(list, &box);
  list->setWindowTitle(QStringLiteral("original"));
  translateTitle(*list);
  box.showPopup();
  ASSERT_TRUE(list->isVisible());
  EXPECT_EQ(list->windowTitle(), QStringLiteral("original"));
  box.hidePopup();
}

TEST_F(Watch, AFloatingDockWidgetIsAPartOfItsMainWindow) {
  QMainWindow window;
  window.setObjectName(QStringLiteral("Fen"));
  auto* const dock = add<QDockWidget>(window, "dock");
  dock->setWindowTitle(QStringLiteral("original"));
  window.addDockWidget(Qt::LeftDockWidgetArea, dock);
  translateTitle(*dock);
  switcher.watchApplication();
  switcher.setLanguage(2);
  window.show();
  dock->setFloating(true);
  dock->show();
  ASSERT_TRUE(dock->isWindow());
  EXPECT_EQ(dock->windowTitle(), QStringLiteral("original"));
}

TEST_F(Watch, TheComponentsOwnMessageBoxesAreNoFormsButTheApplicationsAre) {
  QMessageBox applicationBox;
  applicationBox.setWindowTitle(QStringLiteral("original"));
  translateTitle(applicationBox);
  switcher.watchApplication();
  switcher.setLanguage(2);
  applicationBox.show();
  EXPECT_EQ(applicationBox.windowTitle(), QStringLiteral("translated"));
  applicationBox.hide();

  QtMessageBoxes live;
  QString title;
  QTimer::singleShot(0, [&title] {
    QWidget* const box = QApplication::activeModalWidget();
    title = box->windowTitle();
    box->close();
  });
  Global_Util::messageBoxes().notice(u"text", u"original");
  EXPECT_EQ(title, QStringLiteral("original"));
}

TEST_F(Watch, AMessageAboutAFormThatIsBeingShownEndsTheShowingOnce) {
  const auto factors = model.GetCell(u"FrmClients\\lblNom")->ColLeft();
  while (factors->Count() > 0) {
    factors->Remove(1);
  }
  switcher.watchApplication();
  QtMessageBoxes live;
  int shown = 0;
  QTimer closer;
  QObject::connect(&closer, &QTimer::timeout, [&shown] {
    if (QWidget* const box = QApplication::activeModalWidget()) {
      ++shown;
      box->close();
    }
  });
  closer.start(1);
  ClientDialog form;
  form.show();
  EXPECT_EQ(shown, 1);
  EXPECT_TRUE(form.isVisible());
}

TEST_F(Watch, WindowsDeletedWhileWatching) {
  switcher.watchApplication();
  for (int i = 0; i < 20; ++i) {
    ClientDialog form;
    form.show();
    switcher.setLanguage(i % 3 + 1);
  }
  ClientDialog last;
  last.show();
  switcher.setLanguage(2);
  EXPECT_EQ(last.lblNom->text(), QStringLiteral("Name"));
}

TEST_F(Watch, WatchingEndsWithTheSwitcher) {
  {
    LanguageSwitcher shortLived(model);
    shortLived.setLanguage(2);
    shortLived.watchApplication();
  }
  ClientDialog form;
  form.show();
  EXPECT_EQ(form.lblNom->text(), QStringLiteral("Nom"));
}

}  // namespace
}  // namespace kob::qt::live
