// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include <kobtraduction/engine/HostObject.h>

#include <QObject>
#include <QString>

#include <optional>
#include <string>
#include <vector>

class QWidget;

/// The words in which the tests speak about live forms.
namespace kob::qt::test {

/// What texts and names read as when the operation failed.
inline constexpr char failed[] = "<failed>";

std::string text(const HostRef& object, Property property);
bool write(const HostRef& object, Property property, const QString& text);
std::optional<std::int32_t> number(const HostRef& object, Property property);
std::optional<bool> flag(const HostRef& object, Property property);
HostRef object(const HostRef& from, Property property);
std::vector<HostRef> members(const HostRef& from, Property property);

/// The form's controls as paths below the form, "/" between names.
std::vector<std::string> controls(QWidget& form);
/// The control at such a path; null when there is none.
HostRef control(QWidget& form, const std::string& path);
/// The only control of the form.
HostRef onlyControl(QWidget& form);

/// A new widget or action with a name, below `parent`.
template <class T, class Parent>
T* add(Parent& parent, const char* name) {
  auto* const made = new T(&parent);
  made->setObjectName(QString::fromUtf8(name));
  return made;
}

}  // namespace kob::qt::test
