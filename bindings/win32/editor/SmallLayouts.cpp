// SPDX-FileCopyrightText: The KOBTraduction authors
#include "Layouts.h"
#include "NativeFrame.h"
#include "NativePanes.h"
#include "Placing.h"

#include <algorithm>

namespace kob::win32 {

namespace {

int widestLabel(const Placing& placing, std::initializer_list<TextView> names) {
  int widest = 0;
  for (const TextView name : names) {
    widest = std::max(widest, placing.labelWidth(name));
  }
  return widest;
}

const FramePanel& frameOf(const Win32DialogWindow& window, TextView name) {
  return dynamic_cast<const NativeFrame&>(*window.widget(name)).panel();
}

int conditionHeight(const Placing& placing, TextView frame) {
  return frameOf(placing.window(), frame).top() + placing.m.fieldHeight() + placing.m.margin();
}

/// A frame with a check box and a field beside it.
void putCondition(const Placing& placing, TextView frame, int index, TextView field, int top, int width) {
  const Metrics& m = placing.m;
  const int inner = frameOf(placing.window(), frame).top();
  const int box = m.px(18);
  placing.put(frame, m.margin(), top, width, conditionHeight(placing, frame));
  placing.put(u"CkSearch", index, m.margin(), inner, box, m.fieldHeight());
  // What folds out belongs to the height of a combo box.
  const int unfolded = field == u"CbLangueSearch" ? 8 * m.line() : 0;
  placing.put(field, m.margin() + box, inner, width - 2 * m.margin() - box, m.fieldHeight() + unfolded);
}

int leastAddNoeudHeight(const Metrics& m) {
  return 2 * m.margin() + 5 * (m.fieldHeight() + m.gap()) + m.buttonHeight();
}

int leastSearchHeight(const Placing& placing) {
  const Metrics& m = placing.m;
  return 2 * m.margin() + conditionHeight(placing, u"Frame1") + conditionHeight(placing, u"Frame2") +
         3 * m.gap() + m.buttonHeight() + m.fieldHeight(3);
}

}  // namespace

void layOutAddNoeud(const Win32DialogWindow& window) {
  const Placing placing(window);
  const Metrics& m = placing.m;
  const SIZE inside = insideOf(window.handle());
  const int right = static_cast<int>(inside.cx) - m.margin();
  const int label = widestLabel(placing, {u"lbName", u"Label2", u"lb1", u"lb2"});
  const int left = m.margin() + label + m.gap();
  int top = m.margin();
  const auto field = [&](TextView name, TextView text, int height) {
    placing.putLabel(name, m.margin(), top, label);
    placing.put(text, left, top, right - left, height);
    top += height + m.gap();
  };
  field(u"lbName", u"tbNom", m.fieldHeight());
  field(u"Label2", u"tbAlias", m.fieldHeight());
  placing.putKinds(left, top);
  top += m.fieldHeight() + m.gap();
  const int bottom = static_cast<int>(inside.cy) - m.margin() - m.buttonHeight();
  // Both texts keep their rooms, so that nothing moves when a kind has only one.
  const int text = (bottom - top) / 2 - m.gap();
  field(u"lb1", u"tb1", text);
  field(u"lb2", u"tb2", text);
  placing.putAnswers(u"bOK", right, bottom);
}

void layOutAddTrad(const Win32DialogWindow& window) {
  const Placing placing(window);
  const Metrics& m = placing.m;
  const SIZE inside = insideOf(window.handle());
  const int right = static_cast<int>(inside.cx) - m.margin();
  const int label = placing.labelWidth(u"Label1");
  const int left = m.margin() + label + m.gap();
  placing.putLabel(u"Label1", m.margin(), m.margin(), label);
  placing.put(u"tbNomTrad", left, m.margin(), right - left, m.fieldHeight());
  placing.putAnswers(u"bOk", right, static_cast<int>(inside.cy) - m.margin() - m.buttonHeight());
}

void layOutRecherche(const Win32DialogWindow& window) {
  const Placing placing(window);
  const Metrics& m = placing.m;
  const SIZE inside = insideOf(window.handle());
  const int width = static_cast<int>(inside.cx) - 2 * m.margin();
  int top = m.margin();
  putCondition(placing, u"Frame1", 0, u"tbSearchString", top, width);
  top += conditionHeight(placing, u"Frame1") + m.gap();
  putCondition(placing, u"Frame2", 1, u"CbLangueSearch", top, width);
  top += conditionHeight(placing, u"Frame2") + m.gap();
  const int button = placing.buttonWidth(u"bNewSearch");
  placing.put(u"bNewSearch", m.margin() + width - button, top, button, m.buttonHeight());
  top += m.buttonHeight() + m.gap();
  placing.put(u"List1", m.margin(), top, width, static_cast<int>(inside.cy) - m.margin() - top);
}

void layOut(Win32DialogWindow& window) {
  switch (window.kind()) {
    case DialogKind::Traduction:
      return layOutTraduction(window);
    case DialogKind::AddNoeud:
      return layOutAddNoeud(window);
    case DialogKind::AddTrad:
      return layOutAddTrad(window);
    case DialogKind::Recherche:
      return layOutRecherche(window);
  }
}

SIZE designedSize(const Win32DialogWindow& window) {
  const Metrics& m = window.metrics();
  const SIZE least = leastSize(window);
  const auto atLeast = [&](int width, int height) {
    return SIZE{std::max<LONG>(m.px(width), least.cx), std::max<LONG>(m.px(height), least.cy)};
  };
  switch (window.kind()) {
    case DialogKind::Traduction:
      return atLeast(1000, 720);
    case DialogKind::AddNoeud:
      return atLeast(440, 300);
    case DialogKind::AddTrad:
      return atLeast(340, 110);
    case DialogKind::Recherche:
      return atLeast(380, 440);
  }
  return least;
}

SIZE leastSize(const Win32DialogWindow& window) {
  const Metrics& m = window.metrics();
  const Placing placing(window);
  switch (window.kind()) {
    case DialogKind::Traduction:
      // What the splitter leaves to both panes.
      return {m.px(133 + 6 + 274) + 2 * m.margin(), m.px(300)};
    case DialogKind::AddNoeud:
      return {m.px(400), leastAddNoeudHeight(m)};
    case DialogKind::AddTrad:
      return {m.px(220), 3 * m.margin() + m.fieldHeight() + m.buttonHeight()};
    case DialogKind::Recherche:
      return {m.px(240), leastSearchHeight(placing)};
  }
  return {};
}

void bringIntoView(const Win32DialogWindow& window, HWND control) {
  if (const auto* const pane = dynamic_cast<const NativePane*>(window.widget(u"PProperty"))) {
    if (IsChild(pane->panel().handle(), control) != FALSE) {
      pane->panel().reveal(control);
    }
  }
}

}  // namespace kob::win32
