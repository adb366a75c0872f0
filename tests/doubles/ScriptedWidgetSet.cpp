// SPDX-FileCopyrightText: The KOBTraduction authors
#include "ScriptedWidgetSet.h"

#include "Person.h"

namespace kob::testing {

ScriptedWindow::ScriptedWindow(ScriptedWidgetSet& set, DialogKind kind, DialogWindow* owner)
    : DialogWindow(kind), set_(set), owner_(owner) {
  ++set_.windows;
}

ScriptedWindow::~ScriptedWindow() {
  --set_.windows;
}

ImageList& ScriptedWindow::addImageList(const WidgetId& /*id*/) {
  imageList_ = std::make_unique<ScriptedImageList>();
  return *imageList_;
}

SaveFileDialog& ScriptedWindow::addSaveFileDialog(const WidgetId& /*id*/) {
  saveFileDialog_ = std::make_unique<ScriptedSaveFileDialog>();
  return *saveFileDialog_;
}

void ScriptedWindow::runModal() {
  set_.shown.push_back(kind());
  if (const Script script = set_.nextScript(kind())) {
    Person person(*this);
    script(person);
  }
}

ScriptedWidgetSet::ScriptedWidgetSet() : previous_(setWidgetSet(this)) {}

ScriptedWidgetSet::~ScriptedWidgetSet() {
  setWidgetSet(previous_);
}

std::unique_ptr<DialogWindow> ScriptedWidgetSet::makeWindow(DialogKind kind, DialogWindow* owner) {
  return std::make_unique<ScriptedWindow>(*this, kind, owner);
}

Script ScriptedWidgetSet::nextScript(DialogKind kind) {
  std::deque<Script>& waiting = scripts_[kind];
  if (waiting.empty()) {
    return {};
  }
  Script script = std::move(waiting.front());
  waiting.pop_front();
  return script;
}

}  // namespace kob::testing
