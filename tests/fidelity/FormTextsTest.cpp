// SPDX-FileCopyrightText: The KOBTraduction authors
#include "TestFiles.h"

#include <FormTexts.h>

#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QTabWidget>
#include <QToolBar>

#include <gmock/gmock.h>

namespace kob::fidelity {
namespace {

using testing::Contains;
using testing::IsEmpty;

using testing::UnorderedElementsAre;

/// The managed texts of a form that are not empty, as "address property: text".
std::vector<std::string> managed(QWidget& form) {
  std::vector<std::string> lines;
  for (const FormText& text : readFormTexts(form)) {
    if (isManaged(text.kind) && !text.isDerived && !text.value.isEmpty()) {
      lines.push_back((text.address + ' ' + text.property + ": " + text.value).toStdString());
    }
  }
  return lines;
}

TEST(FormTexts, captions_and_tool_tips_are_managed) {
  QWidget form;
  form.setObjectName("form");
  form.setWindowTitle("Form");
  auto* box = new QGroupBox("Box", &form);
  (new QLabel("Label", box))->setObjectName("label");
  (new QCheckBox("Check", box))->setToolTip("Tip");
  (new QLineEdit("typed", box))->setPlaceholderText("Type");
  EXPECT_THAT(managed(form),
              UnorderedElementsAre("QWidget:form windowTitle: Form", "QWidget:form/QGroupBox: title: Box",
                                   "QWidget:form/QGroupBox:/QLabel:label text: Label",
                                   "QWidget:form/QGroupBox:/QCheckBox: text: Check",
                                   "QWidget:form/QGroupBox:/QCheckBox: toolTip: Tip",
                                   "QWidget:form/QGroupBox:/QLineEdit: placeholderText: Type"));
}

TEST(FormTexts, objects_of_one_name_have_addresses_of_their_own) {
  QWidget form;
  new QLabel("A", &form);
  new QLabel("B", &form);
  EXPECT_THAT(managed(form), UnorderedElementsAre("QWidget:/QLabel: text: A", "QWidget:/QLabel:#1 text: B"));
}

TEST(FormTexts, a_menu_and_an_action_count_once_wherever_they_are_shown) {
  QMainWindow window;
  QMenu* menu = window.menuBar()->addMenu("File");
  auto* action = new QAction("Open", &window);
  menu->addAction(action);
  window.addToolBar("Bar")->addAction(action);
  std::vector<std::string> texts = managed(window);
  for (std::string& text : texts) {
    text = text.substr(text.rfind(' ') + 1);
  }
  EXPECT_THAT(texts, UnorderedElementsAre("File", "Open", "Bar"));
}

TEST(FormTexts, tabs_count_with_their_tabbed_widget) {
  QWidget form;
  auto* tabs = new QTabWidget(&form);
  tabs->addTab(new QWidget, "One");
  tabs->addTab(new QWidget, "Two");
  EXPECT_THAT(managed(form),
              UnorderedElementsAre("QWidget:/QTabWidget: tab 0: One", "QWidget:/QTabWidget: tab 1: Two"));
}

TEST(FormTexts, the_buttons_of_a_button_box_are_buttons) {
  QWidget form;
  auto* box = new QDialogButtonBox(QDialogButtonBox::Ok, &form);
  const QString text = box->button(QDialogButtonBox::Ok)->property("text").toString();
  EXPECT_THAT(managed(form),
              UnorderedElementsAre("QWidget:/QDialogButtonBox:/QPushButton: text: " + text.toStdString()));
}

TEST(FormTexts, items_and_other_kinds_are_not_managed) {
  QWidget form;
  auto* combo = new QComboBox(&form);
  combo->addItem("Item");
  combo->setStatusTip("Status");
  EXPECT_THAT(managed(form), IsEmpty());
  std::vector<TextKind> kinds;
  for (const FormText& text : readFormTexts(form)) {
    if (!text.value.isEmpty()) {
      kinds.push_back(text.kind);
    }
  }
  EXPECT_THAT(kinds, Contains(TextKind::Items));
  EXPECT_THAT(kinds, Contains(TextKind::StatusTips));
}

TEST(FormTexts, a_tool_tip_that_reads_as_derived_is_told_from_one_that_does_not) {
  QWidget form;
  auto* derived = new QAction("&Open...", &form);
  auto* written = new QAction("Close", &form);
  written->setToolTip("Close it");
  for (const FormText& text : readFormTexts(form)) {
    if (text.property == QLatin1String("toolTip") && text.object != &form) {
      EXPECT_EQ(text.isDerived, text.object == derived) << text.value.toStdString();
    }
  }
}

}  // namespace
}  // namespace kob::fidelity
