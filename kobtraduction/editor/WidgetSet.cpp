// SPDX-FileCopyrightText: The KOBTraduction authors
#include <kobtraduction/editor/WidgetSet.h>

#include <utility>

namespace kob {

namespace {

thread_local WidgetSet* widgetsOfThread = nullptr;

}  // namespace

WidgetSet::~WidgetSet() = default;

WidgetSet* setWidgetSet(WidgetSet* widgets) noexcept {
  return std::exchange(widgetsOfThread, widgets);
}

WidgetSet* widgetSet() noexcept {
  return widgetsOfThread;
}

}  // namespace kob
