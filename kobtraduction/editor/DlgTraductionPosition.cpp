// SPDX-FileCopyrightText: The KOBTraduction authors
#include <kobtraduction/base/Failure.h>
#include <kobtraduction/editor/DlgTraduction.h>
#include <kobtraduction/model/Entries.h>

#include <algorithm>
#include <cmath>
#include <limits>

namespace kob {

namespace {

constexpr double inHundredths = 100;

// The designed sizes, in units: what the splitter leaves to the panes, and the room around their widgets.
constexpr double leastTreeWidth = 2000;
constexpr double leastPaneWidth = 4100;
constexpr double frameMargins = 240;
constexpr double controlTextMargins = 2340;
constexpr double messageTextMargins = 840;
constexpr double sliderMargins = 2905;
constexpr double sliderGap = 565;
constexpr double buttonOverlap = 20;

std::int32_t language(std::size_t slot) {
  return static_cast<std::int32_t>(slot) + 1;
}

/// The nearest integer, halves to the even one. What no slider shows comes out beyond its bounds.
std::int32_t sliderValue(const Factor& factor) {
  constexpr double beyond = 1e6;
  const double value = factor.value() * inHundredths;
  if (!(value < beyond)) {
    return static_cast<std::int32_t>(beyond);
  }
  return static_cast<std::int32_t>(std::nearbyint(std::max(value, -beyond)));
}

/// The smallest integer has no opposite and stays.
std::int32_t negated(std::int32_t indicator) {
  return indicator == std::numeric_limits<std::int32_t>::min() ? indicator : -indicator;
}

void showFactor(Slider& slider, std::int32_t indicator, const std::shared_ptr<FactorList>& factors,
                std::size_t slot) {
  slider.setVisible(indicator >= 0);
  if (indicator >= 0) {
    slider.setValue(sliderValue(required(factors).Item(language(slot))));
  }
}

}  // namespace

void DlgTraduction::connectPosition() {
  w.chkPosition.onClick(handler([this] { clickPosition(); }));
  for (std::size_t i = 0; i < shownLanguages; ++i) {
    w.sldLeft[i]->onChange(handler([this, i] { moveLeft(i); }));
    w.sldwidth[i]->onChange(handler([this, i] { moveWidth(i); }));
    w.bl1[i]->onClick(handler([this, i] { resetLeft(i); }));
    w.bw1[i]->onClick(handler([this, i] { resetWidth(i); }));
  }
  w.pConteneur.onMouseMove(handler([this](double x, bool leftOnly) { moveOverSplitter(x, leftOnly); }));
  const auto resetPointer = [this] { w.pConteneur.setPointer(MousePointer::Default); };
  w.pConteneur.onLostFocus(handler(resetPointer));
  w.TV.onMouseMove(handler(resetPointer));
  w.PProperty.onMouseMove(handler([resetPointer](double /*x*/, bool /*leftOnly*/) { resetPointer(); }));
}

void DlgTraduction::displayPosition() {
  w.chkPosition.setChecked(Cell_->m_left() >= 0 || Cell_->m_width() >= 0);
  for (std::size_t i = 0; i < shownLanguages; ++i) {
    showFactor(*w.sldLeft[i], Cell_->m_left(), Cell_->ColLeft(), i);
    showFactor(*w.sldwidth[i], Cell_->m_width(), Cell_->ColWidth(), i);
  }
}

void DlgTraduction::clickPosition() {
  if (!isRecording()) {
    return;
  }
  // Both, whatever the box now shows: it is set anew from the signs.
  Cell_->setm_left(negated(Cell_->m_left()));
  Cell_->setm_width(negated(Cell_->m_width()));
  changed();
  const Updating updating(*this, false);
  DisplayCell(w.TV.selected());
}

// A slider that is left over from a cell whose node now leads nowhere is not quiet: its factor belongs to
// nobody, and moving it fails.

void DlgTraduction::moveLeft(std::size_t slot) {
  if (!m_Updating) {
    required(Cell_).ChangeLeft(w.sldLeft[slot]->value() / inHundredths, language(slot));
    changed();
  }
}

void DlgTraduction::moveWidth(std::size_t slot) {
  if (!m_Updating) {
    required(Cell_).ChangeWidth(w.sldwidth[slot]->value() / inHundredths, language(slot));
    changed();
  }
}

void DlgTraduction::resetLeft(std::size_t slot) {
  if (!m_Updating) {
    required(Cell_).ChangeLeft(1.0, language(slot));
    changed();
    const Updating updating(*this, false);
    w.sldLeft[slot]->setValue(static_cast<std::int32_t>(inHundredths));
  }
}

void DlgTraduction::resetWidth(std::size_t slot) {
  if (!m_Updating) {
    required(Cell_).ChangeWidth(1.0, language(slot));
    changed();
    const Updating updating(*this, false);
    w.sldwidth[slot]->setValue(static_cast<std::int32_t>(inHundredths));
  }
}

void DlgTraduction::moveOverSplitter(double x, bool leftOnly) {
  if (x < leastTreeWidth || x > w.pConteneur.width() - leastPaneWidth) {
    return;
  }
  w.pConteneur.setPointer(MousePointer::SizeWestEast);
  if (leftOnly) {
    resizePanes(x);
  }
}

void DlgTraduction::resizePanes(double x) {
  const double delta = std::nearbyint(x - w.TV.width());
  w.TV.setWidth(x);
  w.PProperty.setLeft(w.PProperty.left() + delta);
  w.PProperty.setWidth(w.PProperty.width() - delta);
  w.FrControl.setWidth(w.PProperty.width() - frameMargins);
  w.FrMessage.setWidth(w.PProperty.width() - frameMargins);
  for (std::size_t i = 0; i < shownLanguages; ++i) {
    w.tbTradCtrl[i]->setWidth(w.FrControl.width() - controlTextMargins);
    const double width = (w.FrControl.width() - sliderMargins) / 2;
    w.sldLeft[i]->setWidth(width);
    w.sldwidth[i]->setLeft(w.sldLeft[i]->left() + width + sliderGap);
    w.sldwidth[i]->setWidth(width);
    // The reset buttons stand in the gap between the two sliders.
    w.bw1[i]->setLeft(w.sldwidth[i]->left() - w.bw1[i]->width() + buttonOverlap);
    w.bl1[i]->setLeft(w.sldLeft[i]->left() + w.sldLeft[i]->width() - buttonOverlap);
    w.tbTradMessage[i]->setWidth(w.FrMessage.width() - messageTextMargins);
  }
}

}  // namespace kob
