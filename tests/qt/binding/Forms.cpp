// SPDX-FileCopyrightText: The KOBTraduction authors
#include "Forms.h"

#include <kobtraduction/model/KOBModeleTraduction.h>
#include <kobtraductionqt/KOBTraductionQt.h>

#include <QWidget>

#include <algorithm>

namespace kob::qt::test {

namespace {

std::string utf8(TextView text) {
  return toQString(text).toStdString();
}

}  // namespace

std::string text(const HostRef& object, Property property) {
  const std::optional<Value> value = object->get(property);
  return value && value->text() != nullptr ? utf8(*value->text()) : failed;
}

bool write(const HostRef& object, Property property, const QString& text) {
  return object->set(property, Value(toText(text)));
}

std::optional<std::int32_t> number(const HostRef& object, Property property) {
  const std::optional<Value> value = object->get(property);
  return value ? value->asLong() : std::nullopt;
}

std::optional<bool> flag(const HostRef& object, Property property) {
  const std::optional<Value> value = object->get(property);
  return value ? value->asBoolean() : std::nullopt;
}

HostRef object(const HostRef& from, Property property) {
  const std::optional<Value> value = from->get(property);
  return value ? value->asObject().value_or(nullptr) : nullptr;
}

std::vector<HostRef> members(const HostRef& from, Property property) {
  const HostRef collection = object(from, property);
  return collection != nullptr ? collection->enumerate().value_or(std::vector<HostRef>())
                               : std::vector<HostRef>();
}

namespace {

std::string pathBelowForm(const HostRef& form, const HostRef& control) {
  const KOBModeleTraduction model;
  std::string path = utf8(model.GetPath(control)).substr(utf8(model.GetPath(form)).size() + 1);
  std::replace(path.begin(), path.end(), '\\', '/');
  return path;
}

}  // namespace

std::vector<std::string> controls(QWidget& form) {
  const HostRef host = hostForm(&form);
  std::vector<std::string> paths;
  for (const HostRef& control : members(host, Property::Controls)) {
    paths.push_back(pathBelowForm(host, control));
  }
  return paths;
}

HostRef control(QWidget& form, const std::string& path) {
  const HostRef host = hostForm(&form);
  for (const HostRef& control : members(host, Property::Controls)) {
    if (pathBelowForm(host, control) == path) {
      return control;
    }
  }
  return nullptr;
}

HostRef onlyControl(QWidget& form) {
  const std::vector<HostRef> all = members(hostForm(&form), Property::Controls);
  return all.size() == 1 ? all.front() : nullptr;
}

}  // namespace kob::qt::test
