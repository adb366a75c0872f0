// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include <kobtraduction/base/Export.h>
#include <kobtraduction/editor/Widget.h>

#include <utility>

namespace kob {

/// A field for a text. Any sequence of UTF-16 units comes back as it was assigned, line ends included; a
/// toolkit that shows line ends in its own way translates them back for what a person typed.
class KOB_EXPORT TextBox : public Widget {
 public:
  using Widget::Widget;
  ~TextBox() override;

  /// "" at first. Assigning another text raises Change.
  const Text& text() const noexcept { return text_; }
  void setText(TextView text);
  /// A locked text can be read, selected and copied, but not typed over; false at first, and no event.
  bool isLocked() const noexcept { return isLocked_; }
  void setLocked(bool locked);

  /// The one handler of Change.
  void onChange(WidgetHandler handler) { onChange_ = std::move(handler); }

  /// A person has made this of the text: reported at every keystroke, and once for a paste.
  void personTyped(TextView text) noexcept;

 protected:
  virtual void showText(TextView text) = 0;
  virtual void showLocked(bool locked) = 0;

 private:
  Text text_;
  WidgetHandler onChange_;
  bool isLocked_ = false;
};

}  // namespace kob
