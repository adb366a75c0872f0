// SPDX-FileCopyrightText: The KOBTraduction authors
#include "FormGeometry.h"

#include "TrackedForm.h"

#include <QCoreApplication>
#include <QEvent>
#include <QLayout>

#include <memory>
#include <utility>

namespace kob::qt {

namespace {

bool isUnsizedWindow(const QWidget& form) {
  return form.isWindow() && !form.testAttribute(Qt::WA_Resized);
}

/// Lets the layouts take note of new texts now, so that what they do to the window's width can be seen.
void updateLayouts(QWidget& form) {
  if (form.isVisible() && form.layout() != nullptr) {
    QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
  }
}

}  // namespace

void FormGeometry::apply(KOBModeleTraduction& model, std::int32_t langue, TextView module, Moment moment) {
  if (form_ == nullptr) {
    return;
  }
  putBackControls();
  if (form_ == nullptr) {
    return;
  }
  std::optional<double> originalWidth;
  if (width_ && form_->width() == width_->written) {
    originalWidth = width_->original;
  }
  const bool isFitted = moment == Moment::BeingShown && isUnsizedWindow(*form_) && !originalWidth;
  const auto view = std::make_shared<TrackedForm>(*form_, originalWidth, places_);
  model.TraduitDialog(view, langue, module);
  view->settleWidth();
  if (form_ == nullptr || view->hasFixedWidth()) {
    return;
  }
  updateLayouts(*form_);
  if (form_ == nullptr) {
    return;
  }
  if (isFitted && !view->wroteWidth()) {
    form_->adjustSize();
    form_->setAttribute(Qt::WA_Resized, false);
  } else if (view->refusedWidth()) {
    view->set(Property::Width, *view->refusedWidth());
  }
  const double width = form_->width();
  const bool hasGrown = width > view->baseWidth() && width == form_->minimumWidth();
  width_.reset();
  if (width != view->baseWidth() && (view->wroteWidth() || originalWidth || isFitted || hasGrown)) {
    width_ = {view->baseWidth(), width};
  }
}

void FormGeometry::forget() {
  places_.clear();
  width_.reset();
}

void FormGeometry::putBackControls() {
  // Last written, first put back: what an application's own code moves along moves back along.
  const std::vector<WrittenPlace> places = std::exchange(places_, {});
  for (auto place = places.rbegin(); place != places.rend(); ++place) {
    if (readNumber(*place->control, place->property) == place->written) {
      place->control->set(place->property, place->original);
    }
  }
}

}  // namespace kob::qt
