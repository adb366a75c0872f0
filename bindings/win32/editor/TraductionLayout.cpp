// SPDX-FileCopyrightText: The KOBTraduction authors
#include "LanguageBadge.h"
#include "NativePanes.h"
#include "NativeSlider.h"
#include "Placing.h"

#include <algorithm>
#include <utility>

namespace kob::win32 {

namespace {

constexpr int languages = 6;
/// Between the tree with its splitter and what is shown of a cell.
constexpr int paneMargin = 4;

int nameHeight(const Placing& placing) {
  const Metrics& m = placing.m;
  const int rows = placing.isShown(u"tbContexte") ? 3 : 2;
  return 2 * m.margin() + rows * m.fieldHeight() + (rows - 1) * m.gap();
}

void putName(const Placing& placing, int width) {
  const Metrics& m = placing.m;
  int top = m.margin();
  const int first = std::max(placing.labelWidth(u"lbName"),
                             placing.isShown(u"lContexte") ? placing.labelWidth(u"lContexte") : 0);
  const int left = m.margin() + first + m.gap();
  const int second = placing.labelWidth(u"Label2");
  const int fields = width - left - second - 2 * m.gap() - m.margin();
  const int name = fields * 3 / 5;
  placing.putLabel(u"lbName", m.margin(), top, first);
  placing.put(u"tbNom", left, top, name, m.fieldHeight());
  placing.putLabel(u"Label2", left + name + m.gap(), top, second);
  placing.put(u"tbAlias", left + name + second + 2 * m.gap(), top, fields - name, m.fieldHeight());
  top += m.fieldHeight() + m.gap();
  placing.putKinds(m.margin(), top);
  top += m.fieldHeight() + m.gap();
  placing.putLabel(u"lContexte", m.margin(), top, first);
  placing.put(u"tbContexte", left, top, width - left - m.margin(), m.fieldHeight());
}

/// A text with its picture; the text's room is the picture's, too, where that is high enough.
void putText(const Placing& placing, int picture, TextView name, int i, int top, int width, int height) {
  const Metrics& m = placing.m;
  const SIZE badge = LanguageBadge::size(m);
  const int left = m.margin() + static_cast<int>(badge.cx) + m.gap();
  placing.put(u"ImgTradMess", picture, m.margin(), top + m.px(2), static_cast<int>(badge.cx),
              static_cast<int>(badge.cy));
  placing.put(name, i, left, top, width - left - m.margin(), height);
}

int messageHeight(const Placing& placing) {
  const Metrics& m = placing.m;
  return 2 * m.margin() + languages * (m.fieldHeight() + m.gap()) - m.gap();
}

void putMessage(const Placing& placing, int width, int height) {
  const Metrics& m = placing.m;
  const int text = (height - 2 * m.margin() + m.gap()) / languages - m.gap();
  for (int i = 0; i < languages; ++i) {
    putText(placing, i, u"tbTradMessage", i, m.margin() + i * (text + m.gap()), width, text);
  }
}

bool hasFactors(const Placing& placing, int i) {
  return placing.isShown(u"sldLeft", i) || placing.isShown(u"sldwidth", i) || placing.isShown(u"bl1", i) ||
         placing.isShown(u"bw1", i);
}

int factorHeight(const Placing& placing, int i) {
  return hasFactors(placing, i) ? placing.m.fieldHeight() + placing.m.px(4) : 0;
}

/// The factors of a language below its text: both sliders equally wide, each with the button that resets it.
void putFactors(const Placing& placing, int i, int left, int top, int width) {
  const Metrics& m = placing.m;
  const int height = m.fieldHeight();
  const int half = (width - m.gap()) / 2;
  // All captions and all values need the same room, so that nothing moves with them.
  const int caption = m.textWidth(L"Width") + m.px(4);
  const int value = m.textWidth(L"400 %") + m.px(4);
  const int button = m.textWidth(L"1") + m.px(18);
  for (const auto& [slider, reset] : {std::pair<TextView, TextView>(u"sldLeft", u"bl1"),
                                      std::pair<TextView, TextView>(u"sldwidth", u"bw1")}) {
    const auto& native = dynamic_cast<const NativeSlider&>(*placing.window().widget(slider, i));
    const int track = half - caption - value - button - m.px(6);
    Placing::put(native.captionControl(), left, top, caption, height);
    Placing::put(native.control(), left + caption, top, track, height);
    Placing::put(native.valueControl(), left + caption + track, top, value, height);
    placing.put(reset, i, left + half - button, top, button, height);
    left += half + m.gap();
  }
}

int besideListHeight(const Placing& placing) {
  const Metrics& m = placing.m;
  int height = 0;
  for (const TextView name : {u"bAddTrad", u"bSupTrad", u"chkPosition"}) {
    height += placing.isShown(name) ? m.buttonHeight() + m.px(4) : 0;
  }
  return height;
}

int listHeight(const Placing& placing) {
  return std::max(placing.m.fieldHeight(4), besideListHeight(placing));
}

int controlHeight(const Placing& placing) {
  const Metrics& m = placing.m;
  int height = 2 * m.margin() + listHeight(placing);
  for (int i = 0; i < languages; ++i) {
    height += m.gap() + m.fieldHeight() + factorHeight(placing, i);
  }
  return height;
}

void putControl(const Placing& placing, int width, int height) {
  const Metrics& m = placing.m;
  const int beside = besideListHeight(placing) > 0
                         ? std::max({placing.buttonWidth(u"bAddTrad"), placing.buttonWidth(u"bSupTrad"),
                                     placing.boxWidth(u"chkPosition")})
                         : 0;
  const int list = width - 2 * m.margin() - (beside > 0 ? beside + m.gap() : 0);
  placing.put(u"LstNomTrad", m.margin(), m.margin(), list, listHeight(placing));
  int top = m.margin();
  for (const TextView name : {u"bAddTrad", u"bSupTrad", u"chkPosition"}) {
    placing.put(name, m.margin() + list + m.gap(), top, beside, m.buttonHeight());
    top += placing.isShown(name) ? m.buttonHeight() + m.px(4) : 0;
  }
  top = m.margin() + listHeight(placing) + m.gap();
  const int text = m.fieldHeight() + (height - controlHeight(placing)) / languages;
  const int left = m.margin() + static_cast<int>(LanguageBadge::size(m).cx) + m.gap();
  for (int i = 0; i < languages; ++i) {
    putText(placing, languages + i, u"tbTradCtrl", i, top, width, text);
    putFactors(placing, i, left, top + text + m.px(2), width - left - m.margin());
    top += text + factorHeight(placing, i) + m.gap();
  }
}

int buttonsHeight(const Placing& placing) {
  return placing.isShown(u"bAdd") || placing.isShown(u"bSupp") ? placing.m.buttonHeight() + placing.m.gap()
                                                               : 0;
}

void putPane(const Placing& placing, ScrolledPanel& pane) {
  const Metrics& m = placing.m;
  const auto frame = [&](TextView name, int least) { return placing.isShown(name) ? least + m.gap() : 0; };
  const int fixed = buttonsHeight(placing) + frame(u"FrName", nameHeight(placing));
  const int message = frame(u"FrMessage", messageHeight(placing));
  const int control = frame(u"FrControl", controlHeight(placing));
  const SIZE room = pane.fit(fixed + message + control);
  const int left = m.px(paneMargin);
  const int width = static_cast<int>(room.cx) - left;
  const int spare = static_cast<int>(room.cy) - fixed - message - control;
  const int first = placing.buttonWidth(u"bAdd");
  placing.put(u"bAdd", left, 0, first, m.buttonHeight());
  placing.put(u"bSupp", left + first + m.gap(), 0, placing.buttonWidth(u"bSupp"), m.buttonHeight());
  int top = buttonsHeight(placing);
  placing.put(u"FrName", left, top, width, nameHeight(placing));
  putName(placing, width);
  top = fixed;
  // Both are shown together only for a moment.
  const int messageRoom = message + (control == 0 ? spare : 0) - m.gap();
  placing.put(u"FrMessage", left, top, width, messageRoom);
  putMessage(placing, width, messageRoom);
  top += message;
  const int controlRoom = control + spare - m.gap();
  placing.put(u"FrControl", left, top, width, controlRoom);
  putControl(placing, width, controlRoom);
}

}  // namespace

void layOutTraduction(Win32DialogWindow& window) {
  const Placing placing(window);
  const Metrics& m = placing.m;
  const SIZE inside = insideOf(window.handle());
  const int width = static_cast<int>(inside.cx) - 2 * m.margin();
  const std::wstring said = shown(window.widget(u"lbStatus")->caption());
  // Nothing moves when there is something to say that fits.
  const int status = std::max(m.line(), said.empty() ? 0 : m.textHeight(said, width, true));
  const int bottom = static_cast<int>(inside.cy) - m.gap() - status;
  placing.put(u"lbStatus", m.margin(), bottom, width, status);
  placing.put(u"pConteneur", m.margin(), m.margin(), width, bottom - m.gap() - m.margin());
  dynamic_cast<NativeArea&>(*window.widget(u"pConteneur")).arrange();
  putPane(placing, dynamic_cast<NativePane&>(*window.widget(u"PProperty")).panel());
}

}  // namespace kob::win32
