// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include <kobtraduction/editor/MenuItem.h>

#include <QAction>

namespace kob::qt {

/// An entry of a menu, or the one by which the menu bar shows a menu.
class QtMenuItem final : public MenuItem {
 public:
  QtMenuItem(DialogWindow& window, const WidgetId& id, QAction& action)
      : MenuItem(window, id), action_(action) {}

  QAction& action() const noexcept { return action_; }
  /// Reports what a person does as long as `reports` lives.
  void listen(QObject& reports);

 protected:
  void showCaption(TextView caption) override;
  void showVisible(bool visible) override { action_.setVisible(visible); }
  void showEnabled(bool enabled) override { action_.setEnabled(enabled); }

 private:
  QAction& action_;
};

}  // namespace kob::qt
