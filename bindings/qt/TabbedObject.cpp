// SPDX-FileCopyrightText: The KOBTraduction authors
#include "TabbedObject.h"

#include "QtValue.h"

#include <kobtraductionqt/KOBTraductionQt.h>

#include <QTabBar>
#include <QTabWidget>
#include <QToolBox>

#include <type_traits>

namespace kob::qt {

namespace {

// Calls `use` with the widget as the class that it is.
template <class Use>
decltype(auto) withTabs(QWidget& widget, Kind kind, const Use& use) {
  switch (kind) {
    case Kind::TabWidget:
      return use(static_cast<QTabWidget&>(widget));
    case Kind::TabBar:
      return use(static_cast<QTabBar&>(widget));
    default:
      return use(static_cast<QToolBox&>(widget));
  }
}

// A tool box has other words for the same.
template <class Tabs>
QString tabText(const Tabs& tabs, int tab) {
  if constexpr (std::is_same_v<Tabs, QToolBox>) {
    return tabs.itemText(tab);
  } else {
    return tabs.tabText(tab);
  }
}

template <class Tabs>
void setTabText(Tabs& tabs, int tab, const QString& text) {
  if constexpr (std::is_same_v<Tabs, QToolBox>) {
    tabs.setItemText(tab, text);
  } else {
    tabs.setTabText(tab, text);
  }
}

template <class Tabs>
QString tabToolTip(const Tabs& tabs, int tab) {
  if constexpr (std::is_same_v<Tabs, QToolBox>) {
    return tabs.itemToolTip(tab);
  } else {
    return tabs.tabToolTip(tab);
  }
}

template <class Tabs>
void setTabToolTip(Tabs& tabs, int tab, const QString& toolTip) {
  if constexpr (std::is_same_v<Tabs, QToolBox>) {
    tabs.setItemToolTip(tab, toolTip);
  } else {
    tabs.setTabToolTip(tab, toolTip);
  }
}

}  // namespace

TabbedObject::TabbedObject(QWidget& widget, Kind kind, HostRef owner, Link link)
    : WidgetObject(widget, kind, std::move(owner), link) {}

bool TabbedObject::mayHave(Property property) const noexcept {
  return property == Property::Tabs || LiveObject::mayHave(property);
}

int TabbedObject::count() const {
  return withTabs(widget(), kind(), [](auto& tabs) { return tabs.count(); });
}

int TabbedObject::shown() const {
  return withTabs(widget(), kind(), [](auto& tabs) { return tabs.currentIndex(); });
}

int TabbedObject::current() const {
  return chosen_.value_or(shown());
}

bool TabbedObject::has(int tab) const {
  return tab >= 0 && tab < count();
}

QString TabbedObject::textOf(int tab) const {
  return withTabs(widget(), kind(), [tab](auto& tabs) { return tabText(tabs, tab); });
}

// Tab bars lay all tabs out anew and scroll to the current one even when the text is the same.
void TabbedObject::writeTextOf(int tab, const QString& text) {
  if (textOf(tab) != text) {
    withTabs(widget(), kind(), [&](auto& tabs) { setTabText(tabs, tab, text); });
  }
}

QString TabbedObject::toolTipOf(int tab) const {
  return withTabs(widget(), kind(), [tab](auto& tabs) { return tabToolTip(tabs, tab); });
}

void TabbedObject::writeToolTipOf(int tab, const QString& toolTip) {
  withTabs(widget(), kind(), [&](auto& tabs) { setTabToolTip(tabs, tab, toolTip); });
}

std::optional<Value> TabbedObject::read(Property property) {
  switch (property) {
    case Property::Tabs:
      return Value(count());
    case Property::Tab:
      return Value(current());
    case Property::Caption:
      return has(current()) ? std::optional<Value>(toText(textOf(current()))) : std::nullopt;
    case Property::ToolTipText:
      return Value(has(current()) ? toText(toolTipOf(current())) : Text());
    default:
      return WidgetObject::read(property);
  }
}

bool TabbedObject::write(Property property, const Value& value) {
  if (property != Property::Tab) {
    return WidgetObject::write(property, value);
  }
  const std::optional<std::int32_t> tab = value.asLong();
  if (!tab || (*tab != shown() && !has(*tab))) {
    return false;
  }
  chosen_ = *tab == shown() ? std::nullopt : std::optional<int>(*tab);
  return true;
}

bool TabbedObject::writeText(Property property, const QString& text) {
  if (!has(current())) {
    return false;
  }
  if (property == Property::Caption) {
    writeTextOf(current(), text);
  } else {
    writeToolTipOf(current(), text);
  }
  return true;
}

std::optional<Value> TabbedObject::readIndexed(Property property, std::int32_t index) {
  return property == Property::TabCaption && has(index) ? std::optional<Value>(toText(textOf(index)))
                                                        : std::nullopt;
}

bool TabbedObject::writeIndexed(Property property, std::int32_t index, const Value& value) {
  if (property != Property::TabCaption || !has(index)) {
    return false;
  }
  const std::optional<QString> text = asQString(value);
  if (text) {
    writeTextOf(index, *text);
  }
  return text.has_value();
}

}  // namespace kob::qt
