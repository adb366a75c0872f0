// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include <kobtraduction/engine/HostObject.h>

#include <QObject>
#include <QPointer>
#include <QVariant>

#include <memory>

namespace kob::qt {

/// What every host object of a form has in common: a guarded live object, its name, Index and tag, and its
/// owner. The owner is held, never the other way round, so a chain of names stays readable while any part of
/// it is held.
class LiveObject : public HostObject {
 public:
  /// By which property an object leads to its owner.
  enum class Link : std::uint8_t { None, Container, Parent };

  LiveObject(QObject& object, HostRef owner, Link link);

  /// The live object, or null once it was deleted.
  QObject* live() const noexcept { return object_.data(); }
  /// The number among objects of one path, -1 when there is none.
  std::int32_t number() const noexcept { return index_; }
  void setIndex(std::int32_t index) noexcept { index_ = index; }
  /// The Index that the application set, when it can stand in a path.
  std::optional<std::int32_t> indexOfApplication() const;
  /// Makes this a second object of a live object that has one already: the control that stands for the text
  /// of a form that is no plain window.
  void setSecondFace() noexcept { secondFace_ = true; }
  bool isSecondFace() const noexcept { return secondFace_; }

  std::optional<Value> get(Property property) final;
  bool set(Property property, const Value& value) final;
  std::optional<Value> getIndexed(Property property, std::int32_t index) final;
  bool setIndexed(Property property, std::int32_t index, const Value& value) final;
  bool appendText(Property property, Text& text) final;
  bool assignText(Property property, TextView text) final;
  /// Neither controls nor buttons nor tabs: who has them says so.
  bool mayHave(Property property) const noexcept override;
  bool tellPlace(PlainPlace& place) final;
  void fetch() const noexcept final;
  const void* identity() const noexcept override;

 protected:
  // Called only while the object lives. Those of this class fail.
  virtual std::optional<Value> read(Property property) = 0;
  virtual bool write(Property property, const Value& value);
  /// Writes Caption or ToolTipText.
  virtual bool writeText(Property property, const QString& text) = 0;
  virtual std::optional<Value> readIndexed(Property property, std::int32_t index);
  virtual bool writeIndexed(Property property, std::int32_t index, const Value& value);

  /// The name with the Index in parentheses, as it stands in a path.
  Text nameInPath() const;

 private:
  std::optional<Value> index() const;
  bool writeTag(QObject& object, const Value& value);

  QPointer<QObject> object_;
  /// What is fetched ahead, and never read through this pointer.
  const char* data_;
  HostRef owner_;
  std::unique_ptr<QVariant> blankedTag_;
  std::int32_t index_ = -1;
  Link link_;
  bool secondFace_ = false;
};

}  // namespace kob::qt
