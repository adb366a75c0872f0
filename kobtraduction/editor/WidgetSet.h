// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include <kobtraduction/base/Export.h>
#include <kobtraduction/editor/DialogWindow.h>

#include <memory>

namespace kob {

/// A toolkit as the editor sees it: what makes its windows. The dialogs decide which widgets there are, what
/// stands on them and what they do; where they stand, how they look and how they are reached by keys is the
/// toolkit's. See Widget.h for how a toolkit's widgets are told and tell.
class KOB_EXPORT WidgetSet {
 public:
  virtual ~WidgetSet();

  /// A new window, empty and not shown. `owner` is the window over which it is going to be modal; null for
  /// the first, that stands over whatever window the application has open. It is destroyed before its owner.
  virtual std::unique_ptr<DialogWindow> makeWindow(DialogKind kind, DialogWindow* owner) = 0;
};

/// Plugs a toolkit into the calling thread, and returns the one before. The caller keeps ownership, and the
/// widget set outlives every window that it made. Null, which it is at first, means none: a model then cannot
/// show its editor.
KOB_EXPORT WidgetSet* setWidgetSet(WidgetSet* widgets) noexcept;
KOB_EXPORT WidgetSet* widgetSet() noexcept;

}  // namespace kob
