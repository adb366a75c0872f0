// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include "WidgetObject.h"

namespace kob::qt {

/// A tab widget, tab bar or tool box. Caption and ToolTipText are those of the current tab. Setting Tab
/// chooses which tab they speak of, for this object alone: the page that the user sees stays, and nothing
/// tells the application that someone looked at the others.
class TabbedObject final : public WidgetObject {
 public:
  TabbedObject(QWidget& widget, Kind kind, HostRef owner, Link link);

  bool mayHave(Property property) const noexcept override;

 private:
  std::optional<Value> read(Property property) override;
  bool write(Property property, const Value& value) override;
  bool writeText(Property property, const QString& text) override;
  std::optional<Value> readIndexed(Property property, std::int32_t index) override;
  bool writeIndexed(Property property, std::int32_t index, const Value& value) override;

  int count() const;
  int shown() const;
  int current() const;
  bool has(int tab) const;
  QString textOf(int tab) const;
  void writeTextOf(int tab, const QString& text);
  QString toolTipOf(int tab) const;
  void writeToolTipOf(int tab, const QString& toolTip);

  std::optional<int> chosen_;
};

}  // namespace kob::qt
