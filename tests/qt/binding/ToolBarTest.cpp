// SPDX-FileCopyrightText: The KOBTraduction authors
#include "Forms.h"

#include <kobtraductionqt/KOBTraductionQt.h>

#include <QComboBox>
#include <QMainWindow>
#include <QMenu>
#include <QToolBar>
#include <QToolButton>

#include <gmock/gmock.h>

namespace kob::qt::test {

using testing::ElementsAre;
using testing::UnorderedElementsAre;

namespace {

class QtToolBar : public testing::Test {
 protected:
  QtToolBar() : bar(add<QToolBar>(form, "bar")) { form.addToolBar(bar); }

  QToolButton* addButton(const char* name) {
    auto* const button = new QToolButton;
    button->setObjectName(name);
    bar->addWidget(button);
    return button;
  }
  QMenu* addMenu(QToolButton& button, const char* name) {
    auto* const menu = add<QMenu>(button, name);
    button.setMenu(menu);
    return menu;
  }
  std::vector<HostRef> buttons() { return members(control(form, "bar"), Property::Buttons); }
  std::vector<std::string> keys(const std::vector<HostRef>& records) {
    std::vector<std::string> all;
    all.reserve(records.size());
    for (const HostRef& record : records) {
      all.push_back(text(record, Property::Key));
    }
    return all;
  }

  QMainWindow form;
  QToolBar* const bar;
};

}  // namespace

TEST_F(QtToolBar, WithoutButtonsHasNone) {
  const HostRef collection = object(control(form, "bar"), Property::Buttons);
  ASSERT_NE(collection, nullptr);
  EXPECT_EQ(number(collection, Property::Count), 0);
}

TEST_F(QtToolBar, OtherControlsHaveNoButtons) {
  addButton("button");
  EXPECT_FALSE(hostForm(&form)->get(Property::Buttons).has_value());
  EXPECT_FALSE(buttons().at(0)->get(Property::Buttons).has_value());
}

TEST_F(QtToolBar, ToolButtonPutOnItIsAButtonWithItsObjectNameAsKey) {
  addButton("open")->setText("Open");
  addButton("save")->setToolTip("Save it");
  EXPECT_THAT(controls(form), ElementsAre("bar"));
  EXPECT_THAT(keys(buttons()), ElementsAre("open", "save"));
  EXPECT_EQ(text(buttons().at(0), Property::Caption), "Open");
  EXPECT_EQ(text(buttons().at(0), Property::ToolTipText), "");
  EXPECT_EQ(text(buttons().at(1), Property::ToolTipText), "Save it");
}

TEST_F(QtToolBar, ButtonsAreWritten) {
  QToolButton* const button = addButton("open");
  button->setText("Open");
  EXPECT_TRUE(write(buttons().at(0), Property::Caption, "Ouvrir"));
  EXPECT_TRUE(write(buttons().at(0), Property::ToolTipText, "tip"));
  EXPECT_EQ(button->text(), QStringLiteral("Ouvrir"));
  EXPECT_EQ(button->toolTip(), QStringLiteral("tip"));
}

TEST_F(QtToolBar, ItemsAreCountedFromOneInTheBarsOrder) {
  addButton("one");
  addButton("two");
  const HostRef collection = object(control(form, "bar"), Property::Buttons);
  EXPECT_EQ(number(collection, Property::Count), 2);
  EXPECT_EQ(text(*collection->item(2)->asObject(), Property::Key), "two");
  EXPECT_FALSE(collection->item(0).has_value());
  EXPECT_FALSE(collection->item(3).has_value());
}

TEST_F(QtToolBar, ButtonsRefuseLeftAndWidth) {
  addButton("open");
  const HostRef button = buttons().at(0);
  EXPECT_FALSE(button->get(Property::Left).has_value());
  EXPECT_FALSE(button->get(Property::Width).has_value());
  EXPECT_FALSE(button->set(Property::Left, Value(1)));
  EXPECT_FALSE(button->set(Property::Width, Value(100)));
}

TEST_F(QtToolBar, ButtonWithoutAMenuHasNoMenus) {
  addButton("open");
  const HostRef menus = object(buttons().at(0), Property::ButtonMenus);
  ASSERT_NE(menus, nullptr);
  EXPECT_EQ(number(menus, Property::Count), 0);
  EXPECT_FALSE(buttons().at(0)->getIndexed(Property::ButtonMenus, 1).has_value());
}

TEST_F(QtToolBar, EntriesOfAButtonsMenuAreItsMenusAndNoControls) {
  auto* const mail = add<QAction>(form, "mail");
  form.addAction(mail);
  QMenu* const menu = addMenu(*addButton("new"), "menu");
  menu->addAction("File")->setObjectName("file");
  menu->addSeparator();
  menu->addAction(mail);
  menu->addMenu("Sub")->setObjectName("sub");
  EXPECT_THAT(controls(form), UnorderedElementsAre("bar", "menu", "sub"));
  EXPECT_THAT(keys(members(buttons().at(0), Property::ButtonMenus)), ElementsAre("file", "mail"));
}

TEST_F(QtToolBar, MenusAreCalledByNumberAndWritten) {
  QMenu* const menu = addMenu(*addButton("new"), "menu");
  QAction* const entry = menu->addAction("File");
  entry->setObjectName("file");
  const HostRef host = *buttons().at(0)->getIndexed(Property::ButtonMenus, 1)->asObject();
  EXPECT_EQ(text(host, Property::Key), "file");
  EXPECT_EQ(text(host, Property::Caption), "File");
  EXPECT_EQ(text(host, Property::ToolTipText), "");
  EXPECT_TRUE(write(host, Property::Caption, "Fichier"));
  EXPECT_EQ(entry->text(), QStringLiteral("Fichier"));
  EXPECT_EQ(entry->toolTip(), QStringLiteral("Fichier"));
}

TEST_F(QtToolBar, ActionsThatAButtonDropsWithoutAMenuAreItsMenus) {
  QToolButton* const button = addButton("new");
  button->setPopupMode(QToolButton::InstantPopup);
  button->addAction(add<QAction>(form, "mail"));
  EXPECT_THAT(controls(form), ElementsAre("bar"));
  EXPECT_THAT(keys(members(buttons().at(0), Property::ButtonMenus)), ElementsAre("mail"));
}

TEST_F(QtToolBar, MenuThatTwoButtonsShareIsTheFirstOnes) {
  QMenu* const menu = addMenu(*addButton("one"), "menu");
  menu->addAction("File")->setObjectName("file");
  addButton("two")->setMenu(menu);
  EXPECT_EQ(members(buttons().at(0), Property::ButtonMenus).size(), 1U);
  EXPECT_EQ(members(buttons().at(1), Property::ButtonMenus).size(), 0U);
}

TEST_F(QtToolBar, EqualKeysAreToldApartByANumber) {
  addButton("cmd");
  addButton("");
  addButton("CMD");
  EXPECT_THAT(keys(buttons()), ElementsAre("cmd(0)", "QToolButton", "CMD(1)"));
}

TEST_F(QtToolBar, ButtonsAndOtherWidgetsOnItAreNumberedTogether) {
  addButton("find");
  auto* const combo = new QComboBox;
  combo->setObjectName("find");
  bar->addWidget(combo);
  EXPECT_THAT(controls(form), ElementsAre("bar", "bar/find(0)"));
  EXPECT_THAT(keys(buttons()), ElementsAre("find(1)"));
}

TEST_F(QtToolBar, ButtonForAnActionIsInternalAndTheActionIsTheControl) {
  bar->addAction(add<QAction>(form, "open"));
  EXPECT_THAT(controls(form), ElementsAre("bar", "open"));
  EXPECT_TRUE(buttons().empty());
}

TEST_F(QtToolBar, ButtonOfTheApplicationThatStandsForAnActionHasEmptyTexts) {
  auto* const open = add<QAction>(form, "open");
  open->setText("Open");
  QToolButton* const button = addButton("button");
  button->setDefaultAction(open);
  EXPECT_THAT(controls(form), ElementsAre("bar", "open"));
  EXPECT_THAT(keys(buttons()), ElementsAre("button"));
  EXPECT_EQ(text(buttons().at(0), Property::Caption), "");
  EXPECT_EQ(text(buttons().at(0), Property::ToolTipText), "");
}

}  // namespace kob::qt::test
