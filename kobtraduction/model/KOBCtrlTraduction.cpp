// SPDX-FileCopyrightText: The KOBTraduction authors
#include <kobtraduction/model/KOBCtrlTraduction.h>

namespace kob {

namespace {

/// The host may lack the property, refuse the value or be gone: the record's own value counts.
void writeThrough(const HostRef& target, Property property, const Value& value) {
  if (target != nullptr) {
    target->set(property, value);
  }
}

}  // namespace

KOBCtrlTraduction::KOBCtrlTraduction() = default;

void KOBCtrlTraduction::setCaption(TextView caption) {
  writeThrough(m_Ctrl, Property::Caption, caption);
  m_Caption = caption;
}

void KOBCtrlTraduction::setToolTipText(TextView toolTip) {
  writeThrough(m_Ctrl, Property::ToolTipText, toolTip);
  m_ToolTipText = toolTip;
}

void KOBCtrlTraduction::setleft(std::int32_t value) {
  writeThrough(m_Ctrl, Property::Left, value);
  m_left = value;
}

void KOBCtrlTraduction::setwidth(std::int32_t value) {
  writeThrough(m_Ctrl, Property::Width, value);
  m_width = value;
}

std::optional<Value> KOBCtrlTraduction::get(Property property) {
  switch (property) {
    case Property::Name:
      return Value(Name);
    case Property::Index:
      return Value(Index);
    case Property::Container:
      return Value(Container);
    case Property::Tag:
      return Value(tag);
    case Property::Caption:
      return Value(m_Caption);
    case Property::ToolTipText:
      return Value(m_ToolTipText);
    case Property::Left:
      return Value(m_left);
    case Property::Width:
      return Value(m_width);
    default:
      return std::nullopt;
  }
}

bool KOBCtrlTraduction::set(Property property, const Value& value) {
  const auto assignText = [&value](Text& field) {
    std::optional<Text> text = value.asText();
    if (text) {
      field = std::move(*text);
    }
    return text.has_value();
  };
  switch (property) {
    case Property::Name:
      return assignText(Name);
    case Property::Tag:
      return assignText(tag);
    case Property::Caption: {
      const std::optional<Text> text = value.asText();
      if (text) {
        setCaption(*text);
      }
      return text.has_value();
    }
    case Property::ToolTipText: {
      const std::optional<Text> text = value.asText();
      if (text) {
        setToolTipText(*text);
      }
      return text.has_value();
    }
    case Property::Index: {
      const std::optional<std::int32_t> number = value.asLong();
      Index = number.value_or(Index);
      return number.has_value();
    }
    case Property::Left: {
      const std::optional<std::int32_t> number = value.asLong();
      if (number) {
        setleft(*number);
      }
      return number.has_value();
    }
    case Property::Width: {
      const std::optional<std::int32_t> number = value.asLong();
      if (number) {
        setwidth(*number);
      }
      return number.has_value();
    }
    case Property::Container: {
      const std::optional<HostRef> object = value.asObject();
      if (object) {
        Container = *object;
      }
      return object.has_value();
    }
    default:
      return false;
  }
}

}  // namespace kob
