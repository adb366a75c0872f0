// SPDX-FileCopyrightText: The KOBTraduction authors
#include "FormObject.h"

#include "FormWalk.h"
#include "Geometry.h"
#include "QtValue.h"
#include "WidgetCaption.h"

#include <kobtraductionqt/KOBTraductionQt.h>

#include <QPointer>

#include <memory>
#include <utility>

namespace kob::qt {

namespace {

/// The Controls of a form: each question is answered by a walk of its own.
class FormControls final : public HostObject {
 public:
  FormControls(QWidget& form, HostRef formObject) : form_(&form), formObject_(std::move(formObject)) {}

  std::optional<Value> get(Property property) override {
    if (form_ == nullptr || property != Property::Count) {
      return std::nullopt;
    }
    return Value(static_cast<std::int32_t>(members().size()));
  }
  std::optional<Value> item(std::int32_t index) override {
    return form_ != nullptr ? HostCollection(members()).item(index) : std::nullopt;
  }
  std::optional<std::vector<HostRef>> enumerate() override {
    return form_ != nullptr ? std::optional(members()) : std::nullopt;
  }

 private:
  std::vector<HostRef> members() const { return FormWalk(*form_, formObject_).takeControls(); }

  QPointer<QWidget> form_;
  HostRef formObject_;
};

}  // namespace

FormObject::FormObject(QWidget& form) : LiveObject(form, nullptr, Link::None) {}

bool FormObject::mayHave(Property property) const noexcept {
  return property == Property::Controls || LiveObject::mayHave(property);
}

std::optional<Value> FormObject::read(Property property) {
  switch (property) {
    case Property::Caption:
      return Value(toText(form().windowTitle()));
    case Property::ToolTipText:
      return Value(toText(form().toolTip()));
    case Property::Left:
      return Value(form().x());
    case Property::Width:
      return Value(form().width());
    case Property::Visible:
      return Value(isVisibleItself(form()));
    case Property::Controls:
      return Value(std::make_shared<FormControls>(form(), shared_from_this()));
    default:
      return std::nullopt;
  }
}

bool FormObject::write(Property property, const Value& value) {
  switch (property) {
    case Property::Left:
      return setLeft(form(), value);
    case Property::Width:
      return setWidth(form(), value);
    default:
      return false;
  }
}

bool FormObject::writeText(Property property, const QString& text) {
  return property == Property::Caption ? setWidgetCaption(form(), Kind::WindowTitle, text)
                                       : setWidgetToolTip(form(), Kind::WindowTitle, text);
}

}  // namespace kob::qt
