// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include <kobtraduction/base/Text.h>
#include <kobtraduction/engine/HostModes.h>
#include <kobtraduction/engine/HostObject.h>

namespace kob {

/// Appends "(" + index + ")" to the name of an element of a control array; an object without an "Index", or
/// with a negative one, is none. Skip mode. Internal.
inline void appendIndex(Text& name, const HostRef& object) {
  std::int32_t index = -1;
  skip(index, readLong(object, Property::Index));
  if (index >= 0) {
    name += u'(';
    name += decimal(index);
    name += u')';
  }
}

/// Appends the name by which an object stands in a path: its "Name", "" when that cannot be read, with its
/// index.
inline void appendElementName(Text& path, const HostRef& object) {
  appendText(path, object, Property::Name);
  appendIndex(path, object);
}

/// That name alone.
inline Text elementName(const HostRef& object) {
  Text name;
  appendElementName(name, object);
  return name;
}

}  // namespace kob
