// SPDX-FileCopyrightText: The KOBTraduction authors
#include "Controls.h"

#include "../VisualStyles.h"

#include <cstring>

namespace kob::win32 {

namespace {

// These three have no names in old versions.
const char* const setSubclassOrdinal = MAKEINTRESOURCEA(410);
const char* const removeSubclassOrdinal = MAKEINTRESOURCEA(412);
const char* const callNextOrdinal = MAKEINTRESOURCEA(413);

}  // namespace

template <class Function>
void Controls::find(Function& function, const char* name) const {
  const FARPROC found = GetProcAddress(library_, name);
  static_assert(sizeof function == sizeof found);
  std::memcpy(&function, &found, sizeof function);
}

Controls::Controls(const VisualStyles& styles) {
  const VisualStyles::Scope styled(styles);
  library_ = LoadLibraryW(L"comctl32.dll");
  find(setSubclass_, setSubclassOrdinal);
  find(removeSubclass_, removeSubclassOrdinal);
  find(callNext_, callNextOrdinal);
  find(createList_, "ImageList_Create");
  find(addToList_, "ImageList_Add");
  find(destroyList_, "ImageList_Destroy");
  decltype(&::InitCommonControlsEx) initialise = nullptr;
  find(initialise, "InitCommonControlsEx");
  const INITCOMMONCONTROLSEX used = {sizeof used,
                                     ICC_TREEVIEW_CLASSES | ICC_BAR_CLASSES | ICC_STANDARD_CLASSES};
  initialise(&used);
}

Controls::~Controls() {
  FreeLibrary(library_);
}

void Controls::subclass(HWND window, SUBCLASSPROC procedure, void* data) const {
  setSubclass_(window, procedure, 0, reinterpret_cast<DWORD_PTR>(data));
}

void Controls::release(HWND window, SUBCLASSPROC procedure) const {
  removeSubclass_(window, procedure, 0);
}

LRESULT Controls::call(HWND window, UINT message, WPARAM wParam, LPARAM lParam) const {
  return callNext_(window, message, wParam, lParam);
}

HIMAGELIST Controls::makeImageList(int size, int count) const {
  return createList_(size, size, ILC_COLOR32, count, 0);
}

void Controls::addImage(HIMAGELIST list, HBITMAP image) const {
  addToList_(list, image, nullptr);
}

void Controls::destroyImageList(HIMAGELIST list) const {
  if (list != nullptr) {
    destroyList_(list);
  }
}

}  // namespace kob::win32
