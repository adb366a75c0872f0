// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include "Words.h"

#include <QString>
#include <QWidget>

#include <memory>
#include <vector>

namespace bench {

/// How the controls of a form get their places.
enum class Placing { Fixed, LaidOut };

/// A control of a form, as generated code knows it: by its class.
struct Part {
  enum class Kind { Label, Button, GroupBox };

  Kind kind;
  QWidget* widget;

  void setCaption(const QString& text) const;
  QString caption() const;
};

/// A shown form in the reference language: labels, buttons and check boxes in group boxes, each control with
/// a caption and a tool tip.
class WidgetForm {
 public:
  /// `controls` counts the group boxes too; each of them holds `perGroup` - 1 others.
  WidgetForm(int controls, int perGroup, Placing placing);

  QWidget* window() const noexcept { return window_.get(); }
  /// The caption of part i is textFor(Caption, i, 1), its tool tip textFor(ToolTip, i, 1).
  const std::vector<Part>& parts() const noexcept { return parts_; }

  /// Lets the form take in what was written: layouts, geometry, paint.
  static void settle();

 private:
  void addPart(Part::Kind kind, QWidget* widget, const char* stem);

  std::unique_ptr<QWidget> window_;
  std::vector<Part> parts_;
};

/// The title of such forms.
QString titleFor(int language);

}  // namespace bench
