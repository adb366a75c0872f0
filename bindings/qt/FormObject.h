// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include "LiveObject.h"

#include <QWidget>

#include <memory>

namespace kob::qt {

/// The form. Its controls are looked up anew each time that "Controls" is enumerated or counted.
class FormObject final : public LiveObject, public std::enable_shared_from_this<FormObject> {
 public:
  explicit FormObject(QWidget& form);

  bool mayHave(Property property) const noexcept override;

 private:
  std::optional<Value> read(Property property) override;
  bool write(Property property, const Value& value) override;
  bool writeText(Property property, const QString& text) override;

  QWidget& form() const noexcept { return *static_cast<QWidget*>(live()); }
};

}  // namespace kob::qt
