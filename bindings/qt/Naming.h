// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include <QString>

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

/// Gives an Index to objects whose path would be the same, numbered from 0 in the order given. An object
/// whose Index the application set keeps that one, and the numbers given stay clear of paths that exist
/// already.
void numberEqualNames(const std::vector<NamedObject>& objects);

}  // namespace kob::qt
