// SPDX-FileCopyrightText: The KOBTraduction authors
#include <kobpersistence/ContainerWriter.h>
#include <kobpersistence/Describing.h>
#include <kobpersistence/Format.h>
#include <kobpersistence/ObjectSet.h>
#include <kobpersistence/RecordWriter.h>
#include <kobpersistence/Saving.h>
#include <kobpersistence/SharedOrder.h>

#include <algorithm>
#include <limits>
#include <unordered_map>
#include <utility>
#include <vector>

namespace kob::persistence {

namespace {

/// The classes that the object says may occur, as numbers.
class ClassNumbers {
 public:
  explicit ClassNumbers(IKOBVBPersistStream& object) : classes_(object.getProgIdTable()) {
    if (classes_ == nullptr) {
      throw failure({u"An object of the class ", object.getProgID(), u" is not saved by itself."});
    }
    if (static_cast<std::size_t>(classes_->Count()) > mostClasses) {
      throw failure({u"More than 255 classes cannot be saved in one file."});
    }
    for (const Text& name : *classes_) {
      if (name.size() > std::numeric_limits<std::uint16_t>::max()) {
        throw failure({u"A class identifier is longer than 65 535 characters."});
      }
    }
  }

  const ProgIdTable& table() const noexcept { return *classes_; }

  Byte of(const IKOBVBPersistStream& object) {
    const TextView name = object.getProgID();
    // Identifiers are static, so one that was looked up is known by its place.
    for (const Met& known : met_) {
      if (known.name.data() == name.data() && known.name.size() == name.size()) {
        return known.number;
      }
    }
    Byte number = 0;
    for (const Text& known : *classes_) {
      if (known == name) {
        met_.push_back({name, number});
        return number;
      }
      ++number;
    }
    throw failure({u"An object of the class ", name,
                   u" cannot be saved in this file: the first object's table of classes does not name it."});
  }

 private:
  struct Met {
    TextView name;
    Byte number;
  };

  std::shared_ptr<ProgIdTable> classes_;
  std::vector<Met> met_;
};

/// Writes a tree in one go, each object directly before the first that it names.
class TreeSave final : private NamedObjects {
 public:
  /// Whether it is a tree; if not, nothing of use has been written. A tree may, rarely, be taken for none.
  bool save(ContainerWriter& file, ClassNumbers& classes, IKOBVBPersistStream& first) {
    RecordWriter writer(*this);
    name(first);
    while (!pending_.empty() && isEachNew_) {
      const Pending now = pending_.back();
      pending_.pop_back();
      if (now.level > deepestNesting) {
        throw tooDeep();
      }
      level_ = now.level;
      const auto above = static_cast<std::ptrdiff_t>(pending_.size());
      writer.write(*now.object, classes.of(*now.object), file.room());
      file.addRecord(writer.record(), writer.recordSize(), writer.units());
      // The first named is the next.
      std::reverse(pending_.begin() + above, pending_.end());
    }
    return isEachNew_;
  }

 private:
  struct Pending {
    IKOBVBPersistStream* object;
    std::uint32_t level;
  };

  ObjectForm name(IKOBVBPersistStream& object) override {
    isEachNew_ = met_.add(&object) && isEachNew_;
    pending_.push_back({&object, level_ + 1});
    return {};
  }
  void keep(const PersistRef& object) override { kept_.push_back(object); }

  ObjectSet met_;
  /// Until the end, also when written: no object is to be taken for another one that had its address before.
  std::vector<PersistRef> kept_;
  bool isEachNew_ = true;
  /// Named and not written yet, the next one on top.
  std::vector<Pending> pending_;
  /// Of the object whose record is being written.
  std::uint32_t level_ = 0;
};

/// Writes objects some of which are named more than once: all are met first, and then written in order.
class GraphSave final : private NamedObjects {
 public:
  void save(ContainerWriter& file, ClassNumbers& classes, IKOBVBPersistStream& first) {
    RecordWriter writer(*this);
    indexOf(first);
    for (std::size_t index = 0; index < objects_.size(); ++index) {
      IKOBVBPersistStream& object = *objects_[index];
      writer.write(object, classes.of(object), {});
      graph_.begins.push_back(static_cast<std::uint32_t>(graph_.named.size()));
    }
    order_ = orderOf(graph_);
    isOrdered_ = true;
    for (const std::uint32_t index : order_.objects) {
      IKOBVBPersistStream& object = *objects_[index];
      place_ = graph_.begins[index];
      writer.write(object, classes.of(object), file.room());
      if (place_ != graph_.begins[index + 1]) {
        throw changed();
      }
      file.addRecord(writer.record(), writer.recordSize(), writer.units());
    }
  }

 private:
  static PersistFailure changed() {
    return failure(
        {u"An object changed while it was being saved. Save again once nothing changes any more."});
  }

  ObjectForm name(IKOBVBPersistStream& object) override {
    const std::uint32_t index = indexOf(object);
    if (!isOrdered_) {
      graph_.named.push_back(index);
      return {};
    }
    if (place_ == graph_.named.size() || graph_.named[place_] != index) {
      throw changed();
    }
    return {order_.isNext[place_++], order_.records[index]};
  }

  void keep(const PersistRef& object) override {
    if (!isOrdered_) {
      kept_.push_back(object);
    }
  }

  std::uint32_t indexOf(IKOBVBPersistStream& object) {
    const auto [found, isNew] = indices_.try_emplace(&object, static_cast<std::uint32_t>(objects_.size()));
    if (isNew) {
      objects_.push_back(&object);
    }
    return found->second;
  }

  std::vector<IKOBVBPersistStream*> objects_;
  /// For the same reason as those of a tree.
  std::vector<PersistRef> kept_;
  std::unordered_map<const IKOBVBPersistStream*, std::uint32_t> indices_;
  NamingGraph graph_;
  RecordOrder order_;
  bool isOrdered_ = false;
  std::uint32_t place_ = 0;
};

}  // namespace

void save(WritableFile& file, IKOBVBPersistStream& object) {
  ClassNumbers classes(object);
  ContainerWriter container(file, classes.table());
  if (!TreeSave().save(container, classes, object)) {
    container.startOver();
    GraphSave().save(container, classes, object);
  }
  container.finish();
}

}  // namespace kob::persistence
