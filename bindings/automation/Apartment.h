// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include "Base.h"

#include <memory>
#include <unordered_map>

namespace kob::automation {

/// What the objects of one thread share: what the component needs of the thread while there are any (message
/// boxes, the editor's widgets, the persistence service), and which object stands for which part of a model,
/// so that the same part is always the same object for the host.
class Apartment {
 public:
  class Native;

  Apartment(const Apartment&) = delete;
  Apartment& operator=(const Apartment&) = delete;

  /// The calling thread's, with one more object in it.
  static Apartment& enter();
  /// One object less; the last one takes the apartment with it.
  void leave() noexcept;

  /// The object that stands for a part, or null. No reference is taken.
  IUnknown* find(const void* part) const noexcept;
  void add(const void* part, IUnknown& object) { objects_.emplace(part, &object); }
  void remove(const void* part) noexcept { objects_.erase(part); }

 private:
  Apartment();
  ~Apartment();

  const DWORD thread_ = GetCurrentThreadId();
  long count_ = 0;
  std::unordered_map<const void*, IUnknown*> objects_;
  std::unique_ptr<Native> native_;
};

/// Makes the object that has it one of the thread's apartment, and keeps the DLL loaded.
class Inhabitant {
 public:
  Inhabitant() : apartment_(Apartment::enter()) {}
  Inhabitant(const Inhabitant&) = delete;
  Inhabitant& operator=(const Inhabitant&) = delete;
  ~Inhabitant() { apartment_.leave(); }

  Apartment& apartment() const noexcept { return apartment_; }

 private:
  Apartment& apartment_;
};

}  // namespace kob::automation
