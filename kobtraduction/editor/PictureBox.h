// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include <kobtraduction/base/Export.h>
#include <kobtraduction/editor/Widget.h>

#include <functional>
#include <utility>

namespace kob {

enum class MousePointer { Default, SizeWestEast };

/// An area that holds other widgets, or a picture that the toolkit chooses by the widget's name and index.
class KOB_EXPORT PictureBox : public Widget {
 public:
  /// `x` is the mouse's place from the area's left edge in the dialog's units; `leftOnly` whether the left
  /// button, and no other, is held down.
  using MouseHandler = std::function<void(double x, bool leftOnly)>;

  using Widget::Widget;
  ~PictureBox() override;

  /// How the mouse looks over the area itself; Default at first, and no event.
  MousePointer pointer() const noexcept { return pointer_; }
  void setPointer(MousePointer pointer);

  /// The one handler of each event.
  void onMouseMove(MouseHandler handler) { onMouseMove_ = std::move(handler); }
  void onLostFocus(WidgetHandler handler) { onLostFocus_ = std::move(handler); }

  /// The mouse has moved over the area itself, not over a widget in it. While a button is held down that was
  /// pressed over the area, it is reported wherever the mouse is.
  void personMovedMouse(double x, bool leftOnly) noexcept;
  void personLeft() noexcept { raiseForPerson(onLostFocus_); }

 protected:
  virtual void showPointer(MousePointer pointer) = 0;

 private:
  MouseHandler onMouseMove_;
  WidgetHandler onLostFocus_;
  MousePointer pointer_ = MousePointer::Default;
};

}  // namespace kob
