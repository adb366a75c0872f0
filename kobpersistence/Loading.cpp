// SPDX-FileCopyrightText: The KOBTraduction authors
#include <kobpersistence/Container.h>
#include <kobpersistence/Describing.h>
#include <kobpersistence/LargePages.h>
#include <kobpersistence/Loading.h>
#include <kobpersistence/RecordReader.h>
#include <kobtraduction/component/Global_Util.h>

#include <algorithm>
#include <exception>
#include <utility>
#include <vector>

namespace kob::persistence {

namespace {

/// An object makes lists with an item for each language before its record is read. So many items in all are
/// fewer than a file of this size ever needs, or few enough; it bounds what a file grows to in memory.
std::uint64_t mostItems(std::size_t fileSize) {
  return 8 * std::uint64_t(fileSize) + (1U << 20);
}

/// Has the units fetched that lie so far behind those from `from` to `end`. A record is read by its names
/// alone, which lie too far apart for the processor to expect the next one.
void fetchAhead(const char16_t* from, const char16_t* end) noexcept {
  // Without this the compiler takes the function for one that does nothing, and leaves its call out.
  asm volatile("" : : "r"(from));
  constexpr std::size_t ahead = 1024;
  constexpr std::size_t cacheLine = 64 / sizeof *from;
  for (; from < end; from += std::min<std::size_t>(cacheLine, static_cast<std::size_t>(end - from))) {
    __builtin_prefetch(from + ahead);
  }
}

/// Serves the records. The first is begun first: it sets the language count, and asks for the object below it
/// then. Only now are all others filled, from the last to the first, so that each finds its own objects
/// filled and nothing ever waits on the stack for what lies deeper.
class Loading final : private FilledObjects {
 public:
  explicit Loading(const Container& container)
      : container_(container),
        first_(*this, container),
        pool_(container.records(), largePages(container.size())) {}

  void into(IKOBVBPersistStream& object) {
    const std::int32_t languagesBefore = Global_Util::NbLangues();
    try {
      first_.open(0, container_.record(0), container_.firstTexts());
      object.read(first_);
      if (failure_ != nullptr) {
        std::rethrow_exception(failure_);
      }
      if (!isFilled_) {
        // The object gave up before it asked for another one.
        checkLanguages();
      }
    } catch (...) {
      Global_Util::setNbLangues(languagesBefore);
      throw;
    }
  }

 private:
  PersistRef next() override {
    fillOnce();
    PersistRef object = std::move(waiting_.back());
    waiting_.pop_back();
    return object;
  }

  PersistRef numbered(std::uint32_t record) override {
    fillOnce();
    return shared_[sharedIndex(record)];
  }

  std::size_t sharedIndex(std::uint32_t record) const {
    const auto& shared = container_.shared();
    return static_cast<std::size_t>(std::lower_bound(shared.begin(), shared.end(), record) - shared.begin());
  }

  void fillOnce() {
    if (failure_ != nullptr) {
      std::rethrow_exception(failure_);
    }
    if (isFilled_) {
      return;
    }
    isFilled_ = true;
    try {
      fill();
    } catch (...) {
      // The first object takes any failure for one of its record; load() has to know better.
      failure_ = std::current_exception();
      throw;
    }
  }

  void fill() {
    checkLanguages();
    const std::vector<std::uint32_t>& shared = container_.shared();
    shared_.resize(shared.size());
    std::size_t sharedLeft = shared.size();
    RecordReader reader(*this, container_);
    const char16_t* texts = container_.texts().get();
    for (std::uint32_t i = container_.records(); i-- > 1;) {
      const Record record = container_.record(i);
      PersistRef object = record.make(pool_);
      reader.open(i, record, texts);
      object->read(reader);
      const char16_t* const ended = reader.close();
      fetchAhead(texts, ended);
      texts = ended;
      if (sharedLeft > 0 && shared[sharedLeft - 1] == i) {
        shared_[--sharedLeft] = object;
      }
      waiting_.push_back(std::move(object));
    }
  }

  void checkLanguages() const {
    const std::int32_t languages = Global_Util::NbLangues();
    if (languages < 0 || std::uint64_t(languages) * container_.records() > mostItems(container_.size())) {
      throw badRecord(0, container_.offset(0),
                      joined({decimal(languages), u" languages are more than its texts are in"}));
    }
  }

  const Container& container_;
  RecordReader first_;
  ObjectPool pool_;
  /// Filled objects whose namer's turn is still to come, the one that is named next on top.
  std::vector<PersistRef> waiting_;
  /// Those named more than once, in the order of container_.shared().
  std::vector<PersistRef> shared_;
  std::exception_ptr failure_;
  bool isFilled_ = false;
};

}  // namespace

void load(Content content, IKOBVBPersistStream& object) {
  const Container container(std::move(content), object.getProgID());
  Loading(container).into(object);
}

}  // namespace kob::persistence
