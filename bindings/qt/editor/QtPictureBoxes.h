// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include "LanguageBadge.h"
#include "OnScreen.h"
#include "Panes.h"

#include <kobtraduction/editor/PictureBox.h>

namespace kob::qt {

/// The picture of a language.
class QtLanguagePicture final : public OnScreen<PictureBox, LanguageBadge> {
 public:
  using OnScreen::OnScreen;

 protected:
  void showPointer(MousePointer /*pointer*/) override {}
};

/// The area of the two panes, and the strip between them.
class QtPaneArea final : public OnScreen<PictureBox, PaneSplitter> {
 public:
  using OnScreen::OnScreen;
  /// Reports what a person does as long as `reports` lives.
  void listen(QObject& reports);

  double width() const override { return control().width() * unitsPerPixel; }

 protected:
  void showPointer(MousePointer pointer) override {
    control().showSizePointer(pointer == MousePointer::SizeWestEast);
  }
};

/// The right pane. It begins where the left one ends.
class QtPane final : public OnScreen<PictureBox, Pane> {
 public:
  using OnScreen::OnScreen;
  void listen(QObject& reports);

  double left() const override { return control().x() * unitsPerPixel; }
  double width() const override { return control().width() * unitsPerPixel; }

 protected:
  void showPointer(MousePointer /*pointer*/) override {}
};

}  // namespace kob::qt
