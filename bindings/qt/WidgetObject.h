// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include "ClassTraits.h"
#include "LiveObject.h"

#include <QWidget>

namespace kob::qt {

/// A widget as a control of the form.
class WidgetObject : public LiveObject {
 public:
  WidgetObject(QWidget& widget, Kind kind, HostRef owner, Link link);

 protected:
  std::optional<Value> read(Property property) override;
  bool write(Property property, const Value& value) override;
  bool writeText(Property property, const QString& text) override;

  QWidget& widget() const noexcept { return *static_cast<QWidget*>(live()); }
  Kind kind() const noexcept { return kind_; }

 private:
  bool movable() const noexcept;

  const Kind kind_;
};

}  // namespace kob::qt
