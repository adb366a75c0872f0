// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include "LiveObject.h"

#include <QAction>

namespace kob::qt {

/// An action, which is a control of the form wherever it is shown, or an entry of a tool bar button's menu,
/// which answers its Key too.
class ActionObject final : public LiveObject {
 public:
  enum class Role : bool { Control, ButtonMenu };

  ActionObject(QAction& action, Role role, HostRef owner, Link link);

 private:
  std::optional<Value> read(Property property) override;
  bool writeText(Property property, const QString& text) override;

  QAction& action() const noexcept { return *static_cast<QAction*>(live()); }

  const Role role_;
};

}  // namespace kob::qt
