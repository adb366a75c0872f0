// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include "../WideText.h"
#include "Win32DialogWindow.h"

namespace kob::win32 {

/// The controls of a window by their names, to be put into their places: pixels, from the left upper corner
/// of what they stand in. What is not shown needs no room.
class Placing {
 public:
  explicit Placing(const Win32DialogWindow& window) : window_(window), m(window.metrics()) {}

  bool isShown(TextView name, int index = -1) const;
  void put(TextView name, int index, int left, int top, int width, int height) const;
  void put(TextView name, int left, int top, int width, int height) const {
    put(name, -1, left, top, width, height);
  }
  static void put(HWND control, int left, int top, int width, int height);

  /// The width that is needed for what stands on a button / a check box or option button / a label.
  int buttonWidth(TextView name, int index = -1) const;
  int boxWidth(TextView name, int index = -1) const;
  int labelWidth(TextView name) const;
  /// A label beside a field of one line.
  void putLabel(TextView name, int left, int top, int width) const;

  /// The option buttons with what is beside them, from left to right.
  void putKinds(int left, int top) const;
  /// OK and Annuler at the right.
  void putAnswers(TextView ok, int right, int top) const;

  const Win32DialogWindow& window() const noexcept { return window_; }

 private:
  std::wstring captionOf(TextView name, int index) const;

  const Win32DialogWindow& window_;

 public:
  const Metrics& m;
};

/// The inside of a window.
SIZE insideOf(HWND window);

void layOutTraduction(Win32DialogWindow& window);
void layOutAddNoeud(const Win32DialogWindow& window);
void layOutAddTrad(const Win32DialogWindow& window);
void layOutRecherche(const Win32DialogWindow& window);

}  // namespace kob::win32
