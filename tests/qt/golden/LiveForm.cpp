// SPDX-FileCopyrightText: The KOBTraduction authors
#include "LiveForm.h"

#include "LiveKeys.h"

#include <kobtraductionqt/KOBTraductionQt.h>
#include <QAction>
#include <QFrame>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QTabWidget>
#include <QToolBar>
#include <QToolButton>

#include <algorithm>
#include <stdexcept>

namespace kob::testing {

namespace {

constexpr int height = 24;

void refuseScripted(const ObjectText& text) {
  const bool lacksSomething = std::any_of(text.given.begin(), text.given.end(),
                                          [](const GivenText& given) { return !given.value.has_value(); });
  if (lacksSomething || !text.in.empty() || !text.parent.empty() || text.isSub || text.isUnlisted) {
    badLine(text.line, "only a scripted host has such an object");
  }
}

}  // namespace

LiveForm::LiveForm(std::string_view text) : objects_(parseForm(text)) {
  if (objects_.size() != 1 || objects_.front().kind != "form") {
    throw std::runtime_error("a live host has one form");
  }
  build(objects_.front(), nullptr);
}

void LiveForm::build(const ObjectText& text, const ObjectText* above) {
  refuseScripted(text);
  QObject* const object = make(text, above);
  built_[&text] = object;
  object->setObjectName(qt::toQString(text.name));
  if (auto* const widget = qobject_cast<QWidget*>(object);
      widget != nullptr && text.kind != "page" && text.kind != "menu" && !text.isToolButton) {
    widget->setGeometry(0, 0, 0, height);
  }
  for (const std::string& key : formKeys()) {
    // What is current is set once there are pages.
    if (const std::optional<Value> value = text.valueOf(key); value && key != "Tab") {
      const bool isDefault = text.find(key) == nullptr && key != "left" && key != "width";
      if (!isDefault) {
        writeKey(*object, text, key, *value);
      }
    }
  }
  for (const ObjectText& child : text.children) {
    build(child, &text);
  }
  if (const GivenText* const tab = text.find("Tab")) {
    writeKey(*object, text, "Tab", *tab->value);
  }
}

QObject* LiveForm::make(const ObjectText& text, const ObjectText* above) {
  if (above == nullptr) {
    window_ = std::make_unique<QWidget>();
    return window_.get();
  }
  if (text.kind == "action" || text.kind == "entry") {
    return makeAction(text, *above);
  }
  if (text.kind == "menu") {
    return makeMenu(text, *above);
  }
  auto* const parent = qobject_cast<QWidget*>(built_.at(above));
  if (text.kind == "page") {
    auto* const tabs = qobject_cast<QTabWidget*>(parent);
    if (tabs == nullptr) {
      badLine(text.line, "a page stands below tabs");
    }
    auto* const page = new QWidget;
    tabs->addTab(page, QString());
    return page;
  }
  if (text.isToolButton) {
    auto* const button = new QToolButton;
    qobject_cast<QToolBar*>(parent)->addWidget(button);
    return button;
  }
  return makeWidget(text, parent);
}

QWidget* LiveForm::makeWidget(const ObjectText& text, QWidget* parent) const {
  if (text.kind == "label") {
    return new QLabel(parent);
  }
  if (text.kind == "button") {
    return new QPushButton(parent);
  }
  if (text.kind == "frame") {
    return new QFrame(parent);
  }
  if (text.kind == "group") {
    return new QGroupBox(parent);
  }
  if (text.kind == "edit") {
    return new QLineEdit(parent);
  }
  if (text.kind == "tabs") {
    return new QTabWidget(parent);
  }
  if (text.kind == "toolbar") {
    return new QToolBar(parent);
  }
  badLine(text.line, "only a scripted host has objects of this kind");
}

QAction* LiveForm::makeAction(const ObjectText& text, const ObjectText& above) {
  if (text.kind == "entry") {
    auto* const button = qobject_cast<QToolButton*>(built_.at(&above));
    if (button == nullptr) {
      badLine(text.line, "an entry stands below a tool bar's button");
    }
    if (button->menu() == nullptr) {
      button->setMenu(new QMenu(button));
    }
    return button->menu()->addAction(QString());
  }
  auto* const action = new QAction(window_.get());
  if (auto* const menu = qobject_cast<QMenu*>(built_.at(&above))) {
    menu->addAction(action);
  }
  return action;
}

QWidget* LiveForm::makeMenu(const ObjectText& text, const ObjectText& above) {
  if (auto* const outer = qobject_cast<QMenu*>(built_.at(&above))) {
    return outer->addMenu(QString());
  }
  if (above.kind != "form") {
    badLine(text.line, "a menu stands below the form or a menu");
  }
  auto* bar = window_->findChild<QMenuBar*>();
  if (bar == nullptr) {
    bar = new QMenuBar(window_.get());
  }
  return bar->addMenu(QString());
}

HostRef LiveForm::form() const {
  return qt::hostForm(window_.get());
}

HostRef LiveForm::control(std::string_view id) const {
  QObject* const object = built_.at(&findObject(objects_, id));
  if (object == window_.get()) {
    return form();
  }
  auto* const action = qobject_cast<QAction*>(object);
  return action != nullptr ? qt::hostControl(action, window_.get())
                           : qt::hostControl(qobject_cast<QWidget*>(object), window_.get());
}

void LiveForm::set(std::string_view id, const std::string& key, const Value& value) {
  const ObjectText& text = findObject(objects_, id);
  writeKey(*built_.at(&text), text, key, value);
}

std::string LiveForm::print() const {
  return printForm(objects_, [this](const ObjectText& text, const std::string& key) {
    return readKey(*built_.at(&text), text, key);
  });
}

}  // namespace kob::testing
