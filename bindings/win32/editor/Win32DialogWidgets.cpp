// SPDX-FileCopyrightText: The KOBTraduction authors
#include "../VisualStyles.h"
#include "Dpi.h"
#include "LanguageBadge.h"
#include "NativeButtons.h"
#include "NativeFrame.h"
#include "NativeLists.h"
#include "NativePanes.h"
#include "NativeSaveFileDialog.h"
#include "NativeSlider.h"
#include "NativeTextBox.h"
#include "NativeTree.h"
#include "Win32DialogWindow.h"

#include <kobtraduction/editor/ImageList.h>

#include <algorithm>
#include <array>

// What of the system shows each of the widgets.
namespace kob::win32 {

namespace {

constexpr int languages = 6;

bool hasManyLines(TextView name) {
  constexpr std::array<TextView, 4> names{u"tbTradMessage", u"tbTradCtrl", u"tb1", u"tb2"};
  return std::find(names.begin(), names.end(), name) != names.end();
}

/// The button that Return presses.
bool isDefault(TextView name) {
  return name == u"bOK" || name == u"bOk" || name == u"bNewSearch";
}

class NativeImageList final : public ImageList {};

}  // namespace

HWND Win32DialogWindow::inside(const Widget* container) const {
  const auto found = insides_.find(container);
  return found != insides_.end() ? found->second : handle();
}

HWND Win32DialogWindow::makeIn(HWND parent, const wchar_t* windowClass, DWORD style, DWORD extendedStyle) {
  const VisualStyles::Scope styled(toolkit_.styles);
  const DpiScope sharp;
  return CreateWindowExW(extendedStyle, windowClass, L"", style | WS_CHILD | WS_VISIBLE | WS_CLIPSIBLINGS, 0,
                         0, 0, 0, parent, nullptr, toolkit_.module, nullptr);
}

HWND Win32DialogWindow::make(const WidgetId& id, const wchar_t* windowClass, DWORD style,
                             DWORD extendedStyle) {
  return makeIn(inside(id.container), windowClass, style, extendedStyle);
}

template <class Kind, class... More>
Kind& Win32DialogWindow::keep(const WidgetId& id, HWND control, More... more) {
  auto widget = std::make_unique<Kind>(*this, id, static_cast<Surroundings&>(*this), control, more...);
  Kind& kept = *widget;
  // Escape presses the button with this number.
  SetWindowLongPtrW(control, GWLP_ID, id.name == u"bCancel" ? IDCANCEL : ++lastId_);
  byName_[{Text(id.name), id.index}] = entries_.size();
  byControl_[control] = &kept;
  entries_.push_back({std::move(widget), &kept});
  return kept;
}

Button& Win32DialogWindow::addButton(const WidgetId& id) {
  const DWORD kind = isDefault(id.name) ? BS_DEFPUSHBUTTON : BS_PUSHBUTTON;
  NativeButton& button = keep<NativeButton>(id, make(id, L"Button", WS_TABSTOP | WS_GROUP | kind));
  if (isDefault(id.name)) {
    SendMessageW(handle(), DM_SETDEFID, static_cast<WPARAM>(GetDlgCtrlID(button.control())), 0);
  }
  return button;
}

CheckBox& Win32DialogWindow::addCheckBox(const WidgetId& id) {
  return keep<NativeCheckBox>(id, make(id, L"Button", WS_TABSTOP | WS_GROUP | BS_AUTOCHECKBOX));
}

ComboBox& Win32DialogWindow::addComboBox(const WidgetId& id) {
  return keep<NativeComboBox>(id,
                              make(id, L"ComboBox", WS_TABSTOP | WS_GROUP | WS_VSCROLL | CBS_DROPDOWNLIST));
}

Frame& Win32DialogWindow::addFrame(const WidgetId& id) {
  const VisualStyles::Scope styled(toolkit_.styles);
  const DpiScope sharp;
  auto panel = std::make_unique<FramePanel>(toolkit_.module, inside(id.container),
                                            static_cast<const Surroundings&>(*this));
  const HWND control = panel->handle();
  auto widget = std::make_unique<NativeFrame>(*this, id, static_cast<Surroundings&>(*this), std::move(panel));
  NativeFrame& kept = *widget;
  byName_[{Text(id.name), id.index}] = entries_.size();
  byControl_[control] = &kept;
  insides_[&kept] = control;
  entries_.push_back({std::move(widget), &kept});
  return kept;
}

Label& Win32DialogWindow::addLabel(const WidgetId& id) {
  NativeLabel& label = keep<NativeLabel>(id, make(id, L"Static", WS_GROUP | SS_LEFT | SS_NOPREFIX));
  if (id.name == u"lbStatus") {
    label.emphasise();
  }
  return label;
}

ListBox& Win32DialogWindow::addListBox(const WidgetId& id) {
  // Walking to a hit would close the search before the next one could be reached.
  const bool returnReaches = kind() == DialogKind::Recherche;
  return keep<NativeListBox>(
      id,
      make(id, L"ListBox", WS_TABSTOP | WS_GROUP | WS_VSCROLL | LBS_NOTIFY | LBS_NOINTEGRALHEIGHT,
           WS_EX_CLIENTEDGE),
      returnReaches);
}

MenuItem& Win32DialogWindow::addMenuItem(const WidgetId& id) {
  if (menu_ == nullptr) {
    menu_ = std::make_unique<NativeMenu>(handle());
  }
  return menu_->add(*this, id);
}

OptionButton& Win32DialogWindow::addOptionButton(const WidgetId& id, OptionButton* group) {
  const DWORD first = group == nullptr ? WS_GROUP | WS_TABSTOP : 0;
  return keep<NativeOptionButton>(id, make(id, L"Button", first | BS_AUTORADIOBUTTON), group);
}

PictureBox& Win32DialogWindow::addPictureBox(const WidgetId& id) {
  const VisualStyles::Scope styled(toolkit_.styles);
  const DpiScope sharp;
  const auto keepPanel = [&](auto widget, HWND control, HWND content) -> PictureBox& {
    auto& kept = *widget;
    byName_[{Text(id.name), id.index}] = entries_.size();
    byControl_[control] = &kept;
    insides_[&kept] = content;
    entries_.push_back({std::move(widget), &kept});
    return kept;
  };
  if (id.name == u"pConteneur") {
    auto panel = std::make_unique<PlainPanel>(toolkit_.module, inside(id.container));
    const HWND control = panel->handle();
    return keepPanel(
        std::make_unique<NativeArea>(*this, id, static_cast<Surroundings&>(*this), std::move(panel)), control,
        control);
  }
  if (id.name == u"PProperty") {
    auto& area = dynamic_cast<NativeArea&>(*id.container);
    auto panel = std::make_unique<ScrolledPanel>(toolkit_.module, inside(id.container));
    const HWND control = panel->handle();
    const HWND content = panel->content().handle();
    auto pane = std::make_unique<NativePane>(*this, id, static_cast<Surroundings&>(*this), std::move(panel));
    area.setPane(*pane);
    return keepPanel(std::move(pane), control, content);
  }
  // The pictures of the control's texts are numbered on after those of the message's.
  const int language = id.index % languages + 1;
  LanguageBadge& badge = keep<LanguageBadge>(id, make(id, L"Static", SS_OWNERDRAW | SS_NOTIFY), language);
  explain(badge.control(), windowText(badge.control()));
  return badge;
}

/// A hint that is shown when the mouse rests on a control.
void Win32DialogWindow::explain(HWND control, const std::wstring& text) {
  if (hints_ == nullptr) {
    hints_ = CreateWindowExW(WS_EX_TOPMOST, TOOLTIPS_CLASSW, nullptr, WS_POPUP | TTS_NOPREFIX | TTS_ALWAYSTIP,
                             0, 0, 0, 0, handle(), nullptr, toolkit_.module, nullptr);
  }
  std::wstring copy = text;
  TTTOOLINFOW tool = {};
  // The size that old versions of the library know, too.
  tool.cbSize = TTTOOLINFOW_V1_SIZE;
  tool.uFlags = TTF_IDISHWND | TTF_SUBCLASS;
  tool.hwnd = handle();
  tool.uId = reinterpret_cast<UINT_PTR>(control);
  tool.lpszText = copy.data();
  SendMessageW(hints_, TTM_ADDTOOLW, 0, reinterpret_cast<LPARAM>(&tool));
}

Slider& Win32DialogWindow::addSlider(const WidgetId& id) {
  const HWND caption = make(id, L"Static", SS_LEFT | SS_NOPREFIX | SS_CENTERIMAGE);
  const HWND trackbar =
      make(id, TRACKBAR_CLASSW, WS_TABSTOP | WS_GROUP | TBS_HORZ | TBS_BOTH | TBS_NOTICKS | TBS_FIXEDLENGTH);
  const HWND value = make(id, L"Static", SS_RIGHT | SS_NOPREFIX | SS_CENTERIMAGE);
  return keep<NativeSlider>(id, trackbar, caption, value);
}

TextBox& Win32DialogWindow::addTextBox(const WidgetId& id) {
  const DWORD lines = hasManyLines(id.name) ? ES_MULTILINE | ES_WANTRETURN | ES_AUTOVSCROLL : ES_AUTOHSCROLL;
  return keep<NativeTextBox>(id, make(id, L"Edit", WS_TABSTOP | WS_GROUP | lines, WS_EX_CLIENTEDGE));
}

TreeView& Win32DialogWindow::addTreeView(const WidgetId& id) {
  NativeTree& tree = keep<NativeTree>(id, make(id, WC_TREEVIEWW,
                                               WS_TABSTOP | WS_GROUP | TVS_HASBUTTONS | TVS_HASLINES |
                                                   TVS_LINESATROOT | TVS_SHOWSELALWAYS | TVS_DISABLEDRAGDROP,
                                               WS_EX_CLIENTEDGE));
  if (auto* const area = dynamic_cast<NativeArea*>(id.container)) {
    area->setTree(tree, make(id, L"Static", WS_TABSTOP | WS_GROUP | SS_NOTIFY));
  }
  return tree;
}

ImageList& Win32DialogWindow::addImageList(const WidgetId& /*id*/) {
  return *imageLists_.emplace_back(std::make_unique<NativeImageList>());
}

SaveFileDialog& Win32DialogWindow::addSaveFileDialog(const WidgetId& /*id*/) {
  return *fileDialogs_.emplace_back(std::make_unique<NativeSaveFileDialog>([this] { return handle(); }));
}

}  // namespace kob::win32
