// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include <QScrollArea>
#include <QSplitter>

namespace kob::qt {

/// Units of the editor's rules in one device-independent pixel.
inline constexpr double unitsPerPixel = 15;

/// Two panes beside each other. What is done to the strip between them is only signalled: the editor's rules
/// say where it goes.
class PaneSplitter final : public QSplitter {
  Q_OBJECT

 public:
  explicit PaneSplitter(QWidget* parent);

  /// Width of the left pane in pixels.
  int leftWidth() const;
  void setLeftWidth(int width);
  void showSizePointer(bool show);

 Q_SIGNALS:
  /// The mouse is over the strip, or keeps it; pixels from the splitter's left edge.
  void pointerMoved(double x, bool leftOnly);
  void lostFocus();

 protected:
  QSplitterHandle* createHandle() override;
};

/// What stands on the right: as large as it needs, and scrolled where the window is smaller.
class Pane final : public QScrollArea {
  Q_OBJECT

 public:
  explicit Pane(QWidget* parent);

 Q_SIGNALS:
  /// The mouse is over the pane itself, not over a widget in it.
  void pointerMoved(double x);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
};

}  // namespace kob::qt
