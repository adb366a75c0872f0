// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include <QString>

#include <cstdint>
#include <vector>

class QObject;

namespace kob::qt {

class LiveObject;

/// What an object answers as its name: its objectName; without one, a standard button of a button box is
/// named after its role in the box ("Ok", "Cancel"), everything else after its class.
QString ownName(const QObject& object);

/// One object among those whose paths begin alike: their container is the same object.
struct NamedObject {
  LiveObject* object;
  const void* container;
  QString name;  ///< its ownName
};

/// Tells cheaply that no two objects have the same path, as in nearly every form.
class PathHashes {
 public:
  /// An object's container and ownName. Where the application set an Index does not matter here: with it an
  /// object can only collide with another one of the same name, or with a name that looks like its own.
  void add(const void* container, const QString& name);
  /// False when it is certain; true when the names have to be looked at.
  bool mayCollide() const;

 private:
  std::vector<std::uint32_t> hashes_;
  bool looksNumbered_ = false;
};

/// Gives an Index to objects whose path would be the same, numbered from 0 in the order given. An object
/// whose Index the application set keeps that one, and the numbers given stay clear of paths that exist
/// already.
void numberEqualNames(const std::vector<NamedObject>& objects);

}  // namespace kob::qt
