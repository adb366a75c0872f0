// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include <kobtraduction/base/Export.h>
#include <kobtraduction/base/Text.h>

#include <cstdint>
#include <functional>

namespace kob {

class DialogWindow;
class Widget;

/// What a dialog does when something happens to a widget.
using WidgetHandler = std::function<void()>;

/// Which widget of a dialog a toolkit is asked to make. The name, with the index for a widget that is one of
/// an array (from 0; -1 otherwise), is unique within the window: a toolkit knows by it where the widget
/// belongs in its layout. `container` is the frame, picture box or menu that it stands in, made before; null
/// for the window itself.
struct WidgetId {
  TextView name;  ///< static storage
  std::int32_t index = -1;
  Widget* container = nullptr;
};

/// What all widgets have in common. The widget keeps its state itself; a toolkit derives from each kind,
/// brings what the show... functions are told onto the screen, and reports what a person did through the
/// person... functions of the kind. So all toolkits answer the same and raise the same events:
///
/// - Assigning what a property holds already does nothing at all: no show..., no event.
/// - Assigning by program changes the state, then calls show..., then raises the event, where the kind says
///   that assigning raises one. The toolkit must not report a change of its own for it.
/// - person... changes the state, does not call show... (the toolkit shows it already), and raises the event.
///
/// A failure of a handler goes up to the caller when the program raised the event. When a person did, it is
/// kept by the window (DialogWindow::dispatch), so that none reaches the toolkit's event loop.
///
/// A toolkit reports nothing for a widget that is disabled, hidden or locked, itself or by its container, and
/// nothing while another window is modal over this one. Widgets belong to the thread of their window; the
/// window owns them.
class KOB_EXPORT Widget {
 public:
  Widget(DialogWindow& window, const WidgetId& id) noexcept : window_(window), id_(id) {}
  Widget(const Widget&) = delete;
  Widget& operator=(const Widget&) = delete;
  virtual ~Widget();

  TextView name() const noexcept { return id_.name; }
  std::int32_t index() const noexcept { return id_.index; }
  Widget* container() const noexcept { return id_.container; }
  DialogWindow& window() const noexcept { return window_; }

  /// The text on a label, frame, button, check box, option button or menu entry, or beside a slider; "" at
  /// first, and no event. It is a plain text: "&" and line ends have no meaning of their own.
  const Text& caption() const noexcept { return caption_; }
  void setCaption(TextView caption);

  /// Whether the widget itself is shown / answers to a person; true at first, and no event. A hidden or
  /// disabled container hides or disables what it holds without changing these.
  bool isVisible() const noexcept { return isVisible_; }
  void setVisible(bool visible);
  bool isEnabled() const noexcept { return isEnabled_; }
  void setEnabled(bool enabled);

  /// Place and size within the container in the dialog's units, 1/15 device-independent pixel. Assigning
  /// raises no event. As they stand here, the numbers are kept and nothing moves: a toolkit whose layout
  /// places the widgets overrides what it answers from the screen (the widths of the panes) or takes from the
  /// rules (the place of the splitter).
  virtual double left() const { return left_; }
  virtual double width() const { return width_; }
  virtual void setLeft(double left) { left_ = left; }
  virtual void setWidth(double width) { width_ = width; }

 protected:
  virtual void showCaption(TextView caption) = 0;
  virtual void showVisible(bool visible) = 0;
  virtual void showEnabled(bool enabled) = 0;

  static void raise(const WidgetHandler& handler) {
    if (handler) {
      handler();
    }
  }
  /// Raises an event that a person caused.
  void raiseForPerson(const WidgetHandler& handler) noexcept;

 private:
  DialogWindow& window_;
  WidgetId id_;
  Text caption_;
  double left_ = 0;
  double width_ = 0;
  bool isVisible_ = true;
  bool isEnabled_ = true;
};

}  // namespace kob
