// SPDX-FileCopyrightText: The KOBTraduction authors
#include "TrackedForm.h"

#include "FormGeometry.h"

#include <kobtraductionqt/KOBTraductionQt.h>

#include <memory>
#include <utility>

namespace kob::qt {

namespace {

bool setTracked(const HostRef& control, Property property, const Value& value,
                std::vector<WrittenPlace>& places) {
  const std::optional<Value> before = control->get(property);
  if (!control->set(property, value)) {
    return false;
  }
  const std::optional<double> original = before ? before->asDouble() : std::nullopt;
  const std::optional<double> written = readNumber(*control, property);
  if (original && written && *original != *written) {
    places.push_back({control, property, *before, *written});
  }
  return true;
}

class TrackedControl final : public ForwardingObject {
 public:
  TrackedControl(HostRef control, std::vector<WrittenPlace>& places)
      : ForwardingObject(std::move(control)), places_(places) {}

  bool set(Property property, const Value& value) override {
    return property == Property::Left || property == Property::Width
               ? setTracked(target(), property, value, places_)
               : target()->set(property, value);
  }
  bool appendText(Property property, Text& text) override { return target()->appendText(property, text); }
  bool assignText(Property property, TextView text) override {
    return property == Property::Left || property == Property::Width ? set(property, Value(text))
                                                                     : target()->assignText(property, text);
  }

 private:
  std::vector<WrittenPlace>& places_;
};

}  // namespace

std::optional<double> readNumber(HostObject& object, Property property) {
  const std::optional<Value> value = object.get(property);
  return value ? value->asDouble() : std::nullopt;
}

TrackedForm::TrackedForm(QWidget& form, std::optional<double> originalWidth,
                         std::vector<WrittenPlace>& places)
    : ForwardingObject(hostForm(&form)),
      form_(&form),
      places_(places),
      baseWidth_(originalWidth.value_or(form.width())),
      isMaximized_(form.windowState().testAnyFlags(Qt::WindowMaximized | Qt::WindowFullScreen)),
      mustPutBack_(originalWidth.has_value()) {}

std::optional<Value> TrackedForm::get(Property property) {
  if (property == Property::Width && !isMaximized_ && form_ != nullptr) {
    takeNaturalWidth();
    return Value(baseWidth_);
  }
  if (property == Property::Controls) {
    settleWidth();
    const HostRef controls = trackedControls();
    return controls != nullptr ? std::optional<Value>(controls) : std::nullopt;
  }
  return target()->get(property);
}

bool TrackedForm::set(Property property, const Value& value) {
  if (property == Property::Left) {
    return setTracked(target(), property, value, places_);
  }
  if (property != Property::Width) {
    return target()->set(property, value);
  }
  wroteWidth_ = !isMaximized_ && writeWidth(value);
  return wroteWidth_;
}

void TrackedForm::settleWidth() {
  if (mustPutBack_ && !wroteWidth_ && !isMaximized_) {
    writeWidth(Value(baseWidth_));
  }
  mustPutBack_ = false;
}

HostRef TrackedForm::trackedControls() {
  const std::optional<Value> value = target()->get(Property::Controls);
  const std::optional<HostRef> collection = value ? value->asObject() : std::nullopt;
  std::optional<std::vector<HostRef>> members;
  if (collection && *collection != nullptr) {
    members = (*collection)->enumerate();
  }
  if (!members) {
    return nullptr;
  }
  for (HostRef& member : *members) {
    if (member != nullptr) {
      member = std::make_shared<TrackedControl>(std::move(member), places_);
    }
  }
  return std::make_shared<HostCollection>(std::move(*members));
}

/// A window that never got a size has a placeholder until it is shown. It gets the size that showing would
/// give it, so that the factor works on that.
void TrackedForm::takeNaturalWidth() {
  if (mustPutBack_ || wroteWidth_ || !form_->isWindow() || form_->isVisible() ||
      form_->testAttribute(Qt::WA_Resized)) {
    return;
  }
  form_->adjustSize();
  form_->setAttribute(Qt::WA_Resized, false);
  baseWidth_ = form_->width();
}

bool TrackedForm::writeWidth(const Value& value) {
  refusedWidth_.reset();
  if (!target()->set(Property::Width, value)) {
    return false;
  }
  const std::optional<double> wanted = value.asDouble();
  if (wanted != readNumber(*target(), Property::Width)) {
    refusedWidth_ = wanted;
  }
  return true;
}

}  // namespace kob::qt
