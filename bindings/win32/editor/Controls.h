// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include <windows.h>

#include <commctrl.h>

namespace kob::win32 {

class VisualStyles;

/// The system's library of controls in the version that the visual styles ask for. It is not linked: a
/// program without a manifest would get the old version, whose image lists the new controls do not show.
class Controls {
 public:
  explicit Controls(const VisualStyles& styles);
  Controls(const Controls&) = delete;
  Controls& operator=(const Controls&) = delete;
  ~Controls();

  /// Has what happens to a window go through a procedure first, which passes it on by call().
  void subclass(HWND window, SUBCLASSPROC procedure, void* data) const;
  /// At the latest when the window dies.
  void release(HWND window, SUBCLASSPROC procedure) const;
  LRESULT call(HWND window, UINT message, WPARAM wParam, LPARAM lParam) const;

  HIMAGELIST makeImageList(int size, int count) const;
  void addImage(HIMAGELIST list, HBITMAP image) const;
  void destroyImageList(HIMAGELIST list) const;

 private:
  template <class Function>
  void find(Function& function, const char* name) const;

  HMODULE library_;
  decltype(&::SetWindowSubclass) setSubclass_ = nullptr;
  decltype(&::RemoveWindowSubclass) removeSubclass_ = nullptr;
  decltype(&::DefSubclassProc) callNext_ = nullptr;
  decltype(&::ImageList_Create) createList_ = nullptr;
  decltype(&::ImageList_Add) addToList_ = nullptr;
  decltype(&::ImageList_Destroy) destroyList_ = nullptr;
};

}  // namespace kob::win32
