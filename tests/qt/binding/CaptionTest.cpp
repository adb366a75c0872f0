// SPDX-FileCopyrightText: The KOBTraduction authors
#include "Forms.h"

#include <kobtraductionqt/KOBTraductionQt.h>

#include <QCheckBox>
#include <QComboBox>
#include <QCommandLinkButton>
#include <QDialog>
#include <QDockWidget>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QMainWindow>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenu>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QSpinBox>
#include <QTextBrowser>
#include <QToolBar>
#include <QToolButton>
#include <QWizard>

#include <gmock/gmock.h>

namespace kob::qt::test {

namespace {

// The caption of a control reads as what was designed, and writing it changes just that.
template <class Widget, class Get, class Set>
void expectCaption(Widget& widget, QWidget& form, const std::string& path, Get get, Set set) {
  (widget.*set)(QStringLiteral("designed"));
  const HostRef host = control(form, path);
  ASSERT_NE(host, nullptr) << path;
  EXPECT_EQ(text(host, Property::Caption), "designed") << path;
  EXPECT_TRUE(write(host, Property::Caption, QStringLiteral("translated"))) << path;
  EXPECT_EQ((widget.*get)(), QStringLiteral("translated")) << path;
}

template <class Button>
void expectButtonCaption() {
  QDialog form;
  expectCaption(*add<Button>(form, "button"), form, "button", &Button::text, &Button::setText);
}

}  // namespace

TEST(QtCaption, LabelIsItsText) {
  QDialog form;
  expectCaption(*add<QLabel>(form, "label"), form, "label", &QLabel::text, &QLabel::setText);
}

TEST(QtCaption, ButtonsAreTheirText) {
  expectButtonCaption<QPushButton>();
  expectButtonCaption<QCheckBox>();
  expectButtonCaption<QRadioButton>();
  expectButtonCaption<QToolButton>();
  expectButtonCaption<QCommandLinkButton>();
}

TEST(QtCaption, GroupBoxIsItsTitle) {
  QDialog form;
  expectCaption(*add<QGroupBox>(form, "box"), form, "box", &QGroupBox::title, &QGroupBox::setTitle);
}

TEST(QtCaption, DockWidgetIsItsWindowTitle) {
  QMainWindow form;
  auto* const dock = add<QDockWidget>(form, "dock");
  form.addDockWidget(Qt::LeftDockWidgetArea, dock);
  expectCaption(*dock, form, "dock", &QWidget::windowTitle, &QWidget::setWindowTitle);
}

TEST(QtCaption, SubWindowIsItsWindowTitle) {
  QDialog form;
  auto* const area = add<QMdiArea>(form, "area");
  auto* const sub = area->addSubWindow(new QLabel);
  sub->setObjectName("sub");
  expectCaption(*sub, form, "area/sub", &QWidget::windowTitle, &QWidget::setWindowTitle);
}

TEST(QtCaption, ToolBarIsItsWindowTitle) {
  QMainWindow form;
  auto* const bar = add<QToolBar>(form, "bar");
  form.addToolBar(bar);
  expectCaption(*bar, form, "bar", &QWidget::windowTitle, &QWidget::setWindowTitle);
}

TEST(QtCaption, WizardPageIsItsTitle) {
  QWizard form;
  auto* const page = add<QWizardPage>(form, "page");
  form.addPage(page);
  expectCaption(*page, form, "page", &QWizardPage::title, &QWizardPage::setTitle);
}

TEST(QtCaption, MenuIsItsTitle) {
  QDialog form;
  expectCaption(*add<QMenu>(form, "menu"), form, "menu", &QMenu::title, &QMenu::setTitle);
}

TEST(QtCaption, EditFieldsAreTheirPlaceholder) {
  QDialog form;
  expectCaption(*add<QLineEdit>(form, "line"), form, "line", &QLineEdit::placeholderText,
                &QLineEdit::setPlaceholderText);
  expectCaption(*add<QTextEdit>(form, "text"), form, "text", &QTextEdit::placeholderText,
                &QTextEdit::setPlaceholderText);
  expectCaption(*add<QTextBrowser>(form, "browser"), form, "browser", &QTextBrowser::placeholderText,
                &QTextBrowser::setPlaceholderText);
  expectCaption(*add<QPlainTextEdit>(form, "plain"), form, "plain", &QPlainTextEdit::placeholderText,
                &QPlainTextEdit::setPlaceholderText);
  expectCaption(*add<QComboBox>(form, "combo"), form, "combo", &QComboBox::placeholderText,
                &QComboBox::setPlaceholderText);
}

TEST(QtCaption, IsNeverWhatTheUserTypedOrChose) {
  QDialog form;
  add<QLineEdit>(form, "line")->setText("typed");
  add<QTextEdit>(form, "text")->setPlainText("typed");
  add<QPlainTextEdit>(form, "plain")->setPlainText("typed");
  auto* const combo = add<QComboBox>(form, "combo");
  combo->setEditable(true);
  combo->addItem("item");
  combo->setEditText("typed");
  add<QSpinBox>(form, "spin")->setValue(7);
  for (const HostRef& member : members(hostForm(&form), Property::Controls)) {
    EXPECT_EQ(text(member, Property::Caption), "") << text(member, Property::Name);
    EXPECT_TRUE(write(member, Property::Caption, "caption"));
  }
  EXPECT_EQ(form.findChild<QLineEdit*>("line")->text(), QStringLiteral("typed"));
  EXPECT_EQ(form.findChild<QTextEdit*>("text")->toPlainText(), QStringLiteral("typed"));
  EXPECT_EQ(form.findChild<QPlainTextEdit*>("plain")->toPlainText(), QStringLiteral("typed"));
  EXPECT_EQ(combo->currentText(), QStringLiteral("typed"));
  EXPECT_EQ(form.findChild<QSpinBox*>("spin")->value(), 7);
}

TEST(QtCaption, EditableComboBoxWithoutAPlaceholderShowsItsLineEdits) {
  QDialog form;
  auto* const combo = add<QComboBox>(form, "combo");
  combo->setEditable(true);
  combo->lineEdit()->setPlaceholderText("Search");
  EXPECT_EQ(text(onlyControl(form), Property::Caption), "Search");
  EXPECT_TRUE(write(onlyControl(form), Property::Caption, "Suche"));
  EXPECT_EQ(combo->lineEdit()->placeholderText(), QStringLiteral("Suche"));
}

TEST(QtCaption, EmbeddedWidgetsAreTheirWindowTitle) {
  QDialog form;
  auto* const inner = add<QWidget>(form, "inner");
  expectCaption(*inner, form, "inner", &QWidget::windowTitle, &QWidget::setWindowTitle);
}

TEST(QtCaption, WritingKeepsAnExplicitShortcut) {
  QDialog form;
  auto* const button = add<QPushButton>(form, "button");
  button->setText("&Save");
  button->setShortcut(QKeySequence("Ctrl+S"));
  EXPECT_TRUE(write(onlyControl(form), Property::Caption, "&Enregistrer"));
  EXPECT_EQ(button->text(), QStringLiteral("&Enregistrer"));
  EXPECT_EQ(button->shortcut(), QKeySequence("Ctrl+S"));
}

TEST(QtCaption, WritingKeepsAnExplicitShortcutOfATextWithoutMnemonic) {
  QDialog form;
  auto* const button = add<QToolButton>(form, "button");
  button->setText("Save");
  button->setShortcut(QKeySequence("F2"));
  EXPECT_TRUE(write(onlyControl(form), Property::Caption, "&Enregistrer"));
  EXPECT_EQ(button->shortcut(), QKeySequence("F2"));
}

TEST(QtCaption, WritingKeepsAShortcutThatWasTakenAway) {
  QDialog form;
  auto* const button = add<QPushButton>(form, "button");
  button->setText("&Save");
  button->setShortcut(QKeySequence());
  EXPECT_TRUE(write(onlyControl(form), Property::Caption, "&Enregistrer"));
  EXPECT_EQ(button->shortcut(), QKeySequence());
}

TEST(QtCaption, MnemonicFollowsTheText) {
  QDialog form;
  auto* const button = add<QPushButton>(form, "button");
  button->setText("&Save");
  EXPECT_TRUE(write(onlyControl(form), Property::Caption, "&Enregistrer"));
  EXPECT_EQ(button->shortcut(), QKeySequence("Alt+E"));
}

TEST(QtCaption, ButtonThatStandsForAnActionHasNoTextsOfItsOwn) {
  QDialog form;
  QAction action("Open");
  action.setParent(&form);
  action.setObjectName("open");
  auto* const button = add<QToolButton>(form, "button");
  button->setDefaultAction(&action);
  const HostRef host = control(form, "button");
  EXPECT_EQ(text(host, Property::Caption), failed);
  EXPECT_EQ(text(host, Property::ToolTipText), failed);
  EXPECT_FALSE(write(host, Property::Caption, "x"));
  EXPECT_FALSE(write(host, Property::ToolTipText, "x"));
  EXPECT_TRUE(write(control(form, "open"), Property::Caption, "Ouvrir"));
  EXPECT_EQ(button->text(), QStringLiteral("Ouvrir"));
}

TEST(QtCaption, NumbersAreWrittenAsTheirText) {
  QDialog form;
  auto* const label = add<QLabel>(form, "label");
  EXPECT_TRUE(onlyControl(form)->set(Property::Caption, Value(12)));
  EXPECT_EQ(label->text(), QStringLiteral("12"));
  EXPECT_FALSE(onlyControl(form)->set(Property::Caption, Value()));
  EXPECT_EQ(label->text(), QStringLiteral("12"));
}

TEST(QtCaption, ToolTipIsTheWidgets) {
  QDialog form;
  auto* const label = add<QLabel>(form, "label");
  label->setToolTip("tip");
  EXPECT_EQ(text(onlyControl(form), Property::ToolTipText), "tip");
  EXPECT_TRUE(write(onlyControl(form), Property::ToolTipText, "other"));
  EXPECT_EQ(label->toolTip(), QStringLiteral("other"));
}

TEST(QtCaption, TextsKeepEveryUnit) {
  QDialog form;
  auto* const label = add<QLabel>(form, "label");
  Text odd = u"a";
  odd += char16_t{0};
  odd += char16_t{0xDC00};
  odd += u'b';
  EXPECT_TRUE(onlyControl(form)->set(Property::Caption, Value(odd)));
  EXPECT_EQ(toText(label->text()), odd);
  EXPECT_EQ(*onlyControl(form)->get(Property::Caption)->text(), odd);
}

}  // namespace kob::qt::test
