// SPDX-FileCopyrightText: The KOBTraduction authors
#include "TabbedObject.h"

#include "QtValue.h"

#include <kobtraductionqt/KOBTraductionQt.h>

#include <QTabBar>
#include <QTabWidget>
#include <QToolBox>

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

}  // namespace

TabbedObject::TabbedObject(QWidget& widget, Kind kind, HostRef owner, Link link)
    : WidgetObject(widget, kind, std::move(owner), link) {}

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

QString TabbedObject::text(int tab) const {
  if (kind() == Kind::ToolBox) {
    return static_cast<QToolBox&>(widget()).itemText(tab);
  }
  return kind() == Kind::TabBar ? static_cast<QTabBar&>(widget()).tabText(tab)
                                : static_cast<QTabWidget&>(widget()).tabText(tab);
}

// Tab bars lay all tabs out anew and scroll to the current one even when the text is the same.
void TabbedObject::setText(int tab, const QString& text) {
  if (this->text(tab) == text) {
    return;
  }
  if (kind() == Kind::ToolBox) {
    static_cast<QToolBox&>(widget()).setItemText(tab, text);
  } else if (kind() == Kind::TabBar) {
    static_cast<QTabBar&>(widget()).setTabText(tab, text);
  } else {
    static_cast<QTabWidget&>(widget()).setTabText(tab, text);
  }
}

QString TabbedObject::toolTip(int tab) const {
  if (kind() == Kind::ToolBox) {
    return static_cast<QToolBox&>(widget()).itemToolTip(tab);
  }
  return kind() == Kind::TabBar ? static_cast<QTabBar&>(widget()).tabToolTip(tab)
                                : static_cast<QTabWidget&>(widget()).tabToolTip(tab);
}

void TabbedObject::setToolTip(int tab, const QString& toolTip) {
  if (kind() == Kind::ToolBox) {
    static_cast<QToolBox&>(widget()).setItemToolTip(tab, toolTip);
  } else if (kind() == Kind::TabBar) {
    static_cast<QTabBar&>(widget()).setTabToolTip(tab, toolTip);
  } else {
    static_cast<QTabWidget&>(widget()).setTabToolTip(tab, toolTip);
  }
}

std::optional<Value> TabbedObject::read(Property property) {
  switch (property) {
    case Property::Tabs:
      return Value(count());
    case Property::Tab:
      return Value(current());
    case Property::Caption:
      return has(current()) ? std::optional<Value>(toText(text(current()))) : std::nullopt;
    case Property::ToolTipText:
      return Value(has(current()) ? toText(toolTip(current())) : Text());
    default:
      return WidgetObject::read(property);
  }
}

bool TabbedObject::write(Property property, const Value& value) {
  switch (property) {
    case Property::Tab: {
      const std::optional<std::int32_t> tab = value.asLong();
      if (!tab || (*tab != shown() && !has(*tab))) {
        return false;
      }
      chosen_ = *tab == shown() ? std::nullopt : std::optional<int>(*tab);
      return true;
    }
    case Property::Caption:
    case Property::ToolTipText: {
      const std::optional<QString> text = asQString(value);
      if (!text || !has(current())) {
        return false;
      }
      if (property == Property::Caption) {
        setText(current(), *text);
      } else {
        setToolTip(current(), *text);
      }
      return true;
    }
    default:
      return WidgetObject::write(property, value);
  }
}

std::optional<Value> TabbedObject::readIndexed(Property property, std::int32_t index) {
  return property == Property::TabCaption && has(index) ? std::optional<Value>(toText(text(index)))
                                                        : std::nullopt;
}

bool TabbedObject::writeIndexed(Property property, std::int32_t index, const Value& value) {
  if (property != Property::TabCaption || !has(index)) {
    return false;
  }
  const std::optional<QString> text = asQString(value);
  if (text) {
    setText(index, *text);
  }
  return text.has_value();
}

}  // namespace kob::qt
