// SPDX-FileCopyrightText: The KOBTraduction authors
#include "Naming.h"

#include "LiveObject.h"
#include "QtValue.h"

#include <kobtraduction/base/Text.h>

#include <QDialogButtonBox>
#include <QMetaEnum>
#include <QPushButton>

#include <cstdint>
#include <deque>
#include <optional>

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

// The objects of one path.
struct SamePath {
  const void* container;
  TextView name;
  std::uint32_t hash;
  std::int32_t count = 0;
  std::int32_t next = 0;
};

std::uint32_t hashOf(const void* container, TextView name) noexcept {
  const auto address = reinterpret_cast<std::uintptr_t>(container) >> 4;
  return hashUpper(name) ^ (static_cast<std::uint32_t>(address) * 0x9E3779B1U);
}

std::size_t tableSize(std::size_t most) noexcept {
  std::size_t size = 16;
  while (size < most * 2) {
    size *= 2;
  }
  return size;
}

// Paths by container and name, case ignored. One block each for the paths and for the slots: a form with
// thousands of controls is numbered each time that it is walked.
class Paths {
 public:
  explicit Paths(std::size_t most) : slots_(tableSize(most), empty) { paths_.reserve(most); }

  /// The name stays where it is, and must.
  std::size_t add(const void* container, TextView name) {
    const std::uint32_t hash = hashOf(container, name);
    std::uint32_t& slot = slotOf(container, name, hash);
    if (slot == empty) {
      slot = static_cast<std::uint32_t>(paths_.size());
      paths_.push_back({container, name, hash});
    }
    return slot;
  }
  bool has(const void* container, TextView name) {
    return slotOf(container, name, hashOf(container, name)) != empty;
  }
  SamePath& operator[](std::size_t path) { return paths_[path]; }

 private:
  static constexpr std::uint32_t empty = ~std::uint32_t{0};

  std::uint32_t& slotOf(const void* container, TextView name, std::uint32_t hash) {
    std::size_t place = hash & (slots_.size() - 1);
    while (slots_[place] != empty) {
      const SamePath& path = paths_[slots_[place]];
      if (path.hash == hash && path.container == container && equalUpper(path.name, name)) {
        break;
      }
      place = (place + 1) & (slots_.size() - 1);
    }
    return slots_[place];
  }

  std::vector<std::uint32_t> slots_;
  std::vector<SamePath> paths_;
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

void PathHashes::add(const void* container, const QString& name) {
  hashes_.push_back(hashOf(container, units(name)));
  looksNumbered_ = looksNumbered_ || name.endsWith(u')');
}

bool PathHashes::mayCollide() const {
  if (looksNumbered_) {
    return true;
  }
  std::vector<std::uint32_t> met(tableSize(hashes_.size()));
  const std::size_t mask = met.size() - 1;
  for (const std::uint32_t hash : hashes_) {
    // 0 is a free slot.
    const std::uint32_t mark = hash | 1;
    std::size_t place = (hash >> 1) & mask;
    while (met[place] != 0) {
      if (met[place] == mark) {
        return true;
      }
      place = (place + 1) & mask;
    }
    met[place] = mark;
  }
  return false;
}

void numberEqualNames(const std::vector<NamedObject>& objects) {
  std::deque<QString> numberedNames;
  Paths paths(objects.size());
  constexpr std::size_t none = ~std::size_t{0};
  std::vector<std::size_t> unnumbered;
  unnumbered.reserve(objects.size());
  bool collide = false;
  for (const NamedObject& object : objects) {
    const std::optional<std::int32_t> index = object.object->indexOfApplication();
    TextView name = units(object.name);
    if (index) {
      numberedNames.push_back(numbered(object.name, *index));
      name = units(numberedNames.back());
    }
    const std::size_t path = paths.add(object.container, name);
    collide = ++paths[path].count > 1 || collide;
    unnumbered.push_back(index ? none : path);
  }
  for (std::size_t i = 0; collide && i < objects.size(); ++i) {
    if (unnumbered[i] == none || paths[unnumbered[i]].count < 2) {
      continue;
    }
    std::int32_t& next = paths[unnumbered[i]].next;
    while (paths.has(objects[i].container, units(numbered(objects[i].name, next)))) {
      ++next;
    }
    objects[i].object->setIndex(next++);
  }
}

}  // namespace kob::qt
