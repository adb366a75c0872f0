// SPDX-FileCopyrightText: The KOBTraduction authors
#include "Naming.h"

#include "LiveObject.h"

#include <kobtraduction/base/Text.h>

#include <QDialogButtonBox>
#include <QMetaEnum>
#include <QPushButton>

#include <unordered_map>

namespace kob::qt {

namespace {

QString standardButtonName(const QObject& object) {
  const auto* const box = qobject_cast<const QDialogButtonBox*>(object.parent());
  if (box == nullptr) {
    return {};
  }
  auto* const button = qobject_cast<QAbstractButton*>(const_cast<QObject*>(&object));
  if (button == nullptr) {
    return {};
  }
  const QDialogButtonBox::StandardButton role = box->standardButton(button);
  if (role == QDialogButtonBox::NoButton) {
    return {};
  }
  return QString::fromLatin1(QMetaEnum::fromType<QDialogButtonBox::StandardButtons>().valueToKey(role));
}

QString numbered(const QString& name, std::int32_t number) {
  return name + u'(' + QString::number(number) + u')';
}

struct PathKey {
  const void* container;
  QString name;

  TextView units() const noexcept {
    return {reinterpret_cast<const char16_t*>(name.constData()), static_cast<std::size_t>(name.size())};
  }
  bool operator==(const PathKey& other) const noexcept {
    return container == other.container && equalUpper(units(), other.units());
  }
};

struct PathKeyHash {
  std::size_t operator()(const PathKey& key) const noexcept {
    return std::hash<const void*>()(key.container) * 31 + hashUpper(key.units());
  }
};

// The objects of one path, chained through their positions in the list of all objects.
struct SamePath {
  int count = 0;
  std::int32_t next = 0;
};

}  // namespace

QString ownName(const QObject& object) {
  QString name = object.objectName();
  if (!name.isEmpty()) {
    return name;
  }
  name = standardButtonName(object);
  if (!name.isEmpty()) {
    return name;
  }
  return QString::fromUtf8(object.metaObject()->className());
}

void numberEqualNames(const std::vector<NamedObject>& objects) {
  std::unordered_map<PathKey, SamePath, PathKeyHash> paths;
  paths.reserve(objects.size());
  std::vector<SamePath*> samePaths;
  samePaths.reserve(objects.size());
  std::vector<bool> explicitIndex(objects.size());
  for (std::size_t i = 0; i < objects.size(); ++i) {
    const QObject& live = *objects[i].object->live();
    QString name = ownName(live);
    if (const std::optional<std::int32_t> index = objects[i].object->indexOfApplication()) {
      explicitIndex[i] = true;
      name = numbered(name, *index);
    }
    SamePath& same = paths[PathKey{objects[i].container, std::move(name)}];
    ++same.count;
    samePaths.push_back(&same);
  }
  for (std::size_t i = 0; i < objects.size(); ++i) {
    SamePath& same = *samePaths[i];
    if (same.count < 2 || explicitIndex[i]) {
      continue;
    }
    const QString name = ownName(*objects[i].object->live());
    while (paths.find(PathKey{objects[i].container, numbered(name, same.next)}) != paths.end()) {
      ++same.next;
    }
    objects[i].object->setIndex(same.next++);
  }
}

}  // namespace kob::qt
