// SPDX-FileCopyrightText: The KOBTraduction authors
#include "NativeTree.h"

#include "NodePictures.h"

#include <utility>

namespace kob::win32 {

NativeTree::NativeTree(DialogWindow& window, const WidgetId& id, Surroundings& around, HWND control)
    : OnScreen(window, id, around, control) {
  around.controls().subclass(control, events, this);
}

NativeTree::~NativeTree() {
  around().controls().destroyImageList(pictures_);
}

HTREEITEM NativeTree::item(Node node) const {
  return node > 0 && static_cast<std::size_t>(node) <= items_.size()
             ? items_[static_cast<std::size_t>(node) - 1]
             : nullptr;
}

TreeView::Node NativeTree::nodeOf(HTREEITEM item) const {
  TVITEMW asked = {};
  asked.mask = TVIF_PARAM;
  asked.hItem = item;
  const bool isThere = item != nullptr && send(TVM_GETITEMW, 0, reinterpret_cast<LPARAM>(&asked)) != FALSE;
  return isThere ? static_cast<Node>(asked.lParam) : 0;
}

HTREEITEM NativeTree::next(UINT relation, HTREEITEM from) const {
  return reinterpret_cast<HTREEITEM>(send(TVM_GETNEXTITEM, relation, reinterpret_cast<LPARAM>(from)));
}

LRESULT NativeTree::onNotify(NMHDR& header) {
  if (header.code == TVN_SELCHANGEDW && !isQuiet_ && answers()) {
    const auto& change = reinterpret_cast<const NMTREEVIEWW&>(header);
    if (const Node node = nodeOf(change.itemNew.hItem); node != 0) {
      personClicked(node);
    }
  }
  return 0;
}

LRESULT CALLBACK NativeTree::events(HWND tree, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR /*id*/,
                                    DWORD_PTR self) {
  auto& own = *reinterpret_cast<NativeTree*>(self);
  const Controls& controls = own.around().controls();
  switch (message) {
    case WM_LBUTTONDOWN:
      return own.onButtonDown(tree, wParam, lParam);
    case WM_MOUSEMOVE:
      if (own.answers()) {
        own.personMovedMouse();
      }
      break;
    case WM_SETFOCUS: {
      const bool hadSelection = own.next(TVGN_CARET) != nullptr;
      const Quiet quiet(own.isQuiet_);
      const LRESULT result = controls.call(tree, message, wParam, lParam);
      // The system goes to the first one by itself.
      if (!hadSelection) {
        own.selectQuietly(0);
      }
      return result;
    }
    case WM_KEYDOWN:
      if (own.onKey(wParam)) {
        return 0;
      }
      break;
    case WM_NCDESTROY:
      controls.release(tree, events);
      break;
    default:
      break;
  }
  return controls.call(tree, message, wParam, lParam);
}

// A click is told once, whether it changes the selection or not.
LRESULT NativeTree::onButtonDown(HWND tree, WPARAM wParam, LPARAM lParam) {
  TVHITTESTINFO hit = {};
  hit.pt = {static_cast<short>(LOWORD(lParam)), static_cast<short>(HIWORD(lParam))};
  send(TVM_HITTEST, 0, reinterpret_cast<LPARAM>(&hit));
  LRESULT result = 0;
  {
    const Quiet quiet(isQuiet_);
    result = around().controls().call(tree, WM_LBUTTONDOWN, wParam, lParam);
  }
  const Node node = (hit.flags & TVHT_ONITEM) != 0 ? nodeOf(hit.hItem) : 0;
  if (node != 0 && hit.hItem == next(TVGN_CARET) && answers()) {
    personClicked(node);
  }
  return result;
}

bool NativeTree::onKey(WPARAM key) {
  if (key == VK_INSERT && insert_) {
    insert_();
    return true;
  }
  if (key == VK_DELETE && delete_) {
    delete_();
    return true;
  }
  const bool walks = key == VK_DOWN || key == VK_UP || key == VK_HOME || key == VK_RIGHT;
  if (walks && next(TVGN_CARET) == nullptr) {
    stepTo(next(TVGN_ROOT));
    return true;
  }
  return false;
}

void NativeTree::stepTo(HTREEITEM item) {
  if (item != nullptr) {
    send(TVM_SELECTITEM, TVGN_CARET, reinterpret_cast<LPARAM>(item));
    send(TVM_ENSUREVISIBLE, 0, reinterpret_cast<LPARAM>(item));
  }
}

void NativeTree::stepDown() {
  const HTREEITEM current = next(TVGN_CARET);
  if (current == nullptr) {
    stepTo(next(TVGN_ROOT));
    return;
  }
  send(TVM_EXPAND, TVE_EXPAND, reinterpret_cast<LPARAM>(current));
  stepTo(next(TVGN_NEXTVISIBLE, current));
}

void NativeTree::stepUp() {
  const HTREEITEM current = next(TVGN_CARET);
  stepTo(current == nullptr ? next(TVGN_ROOT) : next(TVGN_PREVIOUSVISIBLE, current));
}

double NativeTree::width() const {
  RECT place = {};
  GetWindowRect(control(), &place);
  return around().metrics().units(static_cast<int>(place.right - place.left));
}

void NativeTree::setWidth(double width) {
  if (setPixels_) {
    setPixels_(around().metrics().pixels(width));
  }
}

void NativeTree::rescale() {
  OnScreen::rescale();
  if (pictures_ != nullptr) {
    makePictures();
  }
}

void NativeTree::makePictures() {
  const HIMAGELIST before = pictures_;
  pictures_ = nodePictures(around().controls(), around().metrics().px(nodePictureSize));
  send(TVM_SETIMAGELIST, TVSIL_NORMAL, reinterpret_cast<LPARAM>(pictures_));
  around().controls().destroyImageList(before);
}

void NativeTree::showImageList(ImageList& /*images*/) {
  makePictures();
}

void NativeTree::showFilling(bool filling) {
  isFilling_ = filling;
  send(WM_SETREDRAW, filling ? FALSE : TRUE);
  if (!filling) {
    // A node unfolds only once it has something below it.
    for (const Node node : std::exchange(toExpand_, {})) {
      showExpanded(node);
    }
    selectQuietly(selected());
    InvalidateRect(control(), nullptr, TRUE);
  }
}

void NativeTree::showCleared() {
  const Quiet quiet(isQuiet_);
  items_.clear();
  toExpand_.clear();
  // Otherwise the selection walks through all that are left.
  send(TVM_SELECTITEM, TVGN_CARET, 0);
  send(TVM_DELETEITEM, 0, reinterpret_cast<LPARAM>(TVI_ROOT));
}

void NativeTree::showAdded(Node node, Node parent, TextView text, std::int32_t image) {
  std::wstring shownText = shown(text);
  TVINSERTSTRUCTW inserted = {};
  inserted.hParent = parent == 0 ? TVI_ROOT : item(parent);
  inserted.hInsertAfter = TVI_LAST;
  inserted.item.mask = TVIF_TEXT | TVIF_PARAM | TVIF_IMAGE | TVIF_SELECTEDIMAGE;
  inserted.item.pszText = shownText.data();
  inserted.item.lParam = node;
  inserted.item.iImage = image - 1;
  inserted.item.iSelectedImage = image - 1;
  items_.push_back(
      reinterpret_cast<HTREEITEM>(send(TVM_INSERTITEMW, 0, reinterpret_cast<LPARAM>(&inserted))));
}

void NativeTree::showImage(Node node, std::int32_t image) {
  TVITEMW changed = {};
  changed.mask = TVIF_IMAGE | TVIF_SELECTEDIMAGE;
  changed.hItem = item(node);
  changed.iImage = image - 1;
  changed.iSelectedImage = image - 1;
  send(TVM_SETITEMW, 0, reinterpret_cast<LPARAM>(&changed));
}

void NativeTree::showSelected(Node node) {
  if (!isFilling_) {
    selectQuietly(node);
  }
}

void NativeTree::selectQuietly(Node node) {
  const Quiet quiet(isQuiet_);
  const HTREEITEM found = item(node);
  send(TVM_SELECTITEM, TVGN_CARET, reinterpret_cast<LPARAM>(found));
  if (found != nullptr) {
    send(TVM_ENSUREVISIBLE, 0, reinterpret_cast<LPARAM>(found));
  }
}

void NativeTree::showExpanded(Node node) {
  if (isFilling_) {
    toExpand_.push_back(node);
  } else {
    send(TVM_EXPAND, TVE_EXPAND, reinterpret_cast<LPARAM>(item(node)));
  }
}

}  // namespace kob::win32
