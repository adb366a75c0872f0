// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include "ForwardingObject.h"

#include <QPointer>
#include <QWidget>

#include <optional>
#include <vector>

namespace kob::qt {

struct WrittenPlace;

std::optional<double> readNumber(HostObject& object, Property property);

/// The view on a form through which one pass of the engine applies a language: it notes what the engine
/// writes to left and width. The controls' lefts and widths must have been put back before.
///
/// The form's own width is put back here, and only when the pass turns to the controls without having scaled
/// it: a window goes from one language's width to the next one's in one step. Until then the view answers the
/// original width, by which the engine scales.
class TrackedForm final : public ForwardingObject {
 public:
  /// `originalWidth` is what the form's width was before the language that is being replaced; empty when that
  /// has not changed it. `places` must outlive the pass.
  TrackedForm(QWidget& form, std::optional<double> originalWidth, std::vector<WrittenPlace>& places);

  std::optional<Value> get(Property property) override;
  bool set(Property property, const Value& value) override;

  /// The end of the pass; also for a pass that never came to the controls.
  void settleWidth();

  /// The width that the form has in no language.
  double baseWidth() const noexcept { return baseWidth_; }
  bool wroteWidth() const noexcept { return wroteWidth_; }
  /// The width that was written and that the form did not take: the texts that it still had left no room.
  std::optional<double> refusedWidth() const noexcept { return refusedWidth_; }
  bool hasFixedWidth() const noexcept { return isMaximized_; }

 private:
  HostRef trackedControls();
  void takeNaturalWidth();
  bool writeWidth(const Value& value);

  QPointer<QWidget> form_;
  std::vector<WrittenPlace>& places_;
  double baseWidth_ = 0;
  std::optional<double> refusedWidth_;
  bool isMaximized_;
  bool mustPutBack_;
  bool wroteWidth_ = false;
};

}  // namespace kob::qt
