// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include <kobtraduction/base/Export.h>
#include <kobtraduction/base/Failure.h>
#include <kobtraduction/base/ImageRef.h>
#include <kobtraduction/base/Text.h>
#include <kobtraduction/base/TextRun.h>

#include <cstdint>
#include <limits>
#include <memory>
#include <span>
#include <utility>
#include <vector>

namespace kob {

/// The texts of one entry, item i in language i. It reads like an OrderedList of texts, but the texts lie one
/// behind the other in one run of characters: the list's own, or one in an image that the list keeps alive (a
/// loaded file, or what completed lists share that read the same). The first change of a run that is not the
/// list's own copies it. A position outside 1..count is FailureKind::InvalidIndex and changes nothing. A
/// change of the first text is told (see EntryChanges.h). Used on one thread.
class KOB_EXPORT TextList {
 public:
  TextList() noexcept;
  /// So many texts, all "": as cheap as none, however many. A negative count is 0.
  explicit TextList(std::int32_t count) noexcept;
  TextList(TextList&& other) noexcept;
  TextList& operator=(TextList&& other) noexcept;
  ~TextList();

  std::int32_t Count() const noexcept { return static_cast<std::int32_t>(count_); }

  /// The text at a position; the view lives until the list is changed.
  TextView Item(std::int32_t position) const {
    const std::uint32_t item = index(position);
    return units_ != nullptr ? TextView(units_ + start(item), end(item) - start(item)) : TextView();
  }

  /// The list's first texts, `most` or as many as there are; none when all of the list's texts are "". They
  /// live until the list is changed.
  TextRun GetRun(std::int32_t most) const noexcept;

  // A text that is passed in may be a view of one of the list's own.

  void Add(TextView text);
  /// Inserts in front of the item at `before`.
  void Add(TextView text, std::int32_t before);
  void Remove(std::int32_t position);
  /// Puts a text in the place of another one.
  void Replace(std::int32_t position, TextView text);
  /// Whether a text from position `first`, at least 1, to `last` is "" or not there.
  bool HasGaps(std::int32_t first, std::int32_t last) const noexcept;
  /// Puts the texts of `source` in the place of this list's own that are "", from position `first` to `last`;
  /// whether some of these remain. Fails with InvalidIndex at the first position that this list lacks, or
  /// that `source` lacks and this list wants, and has filled those before it.
  bool FillGaps(const TextList& source, std::int32_t first, std::int32_t last);
  /// Puts these texts in the place of the list's own that are "", item by item. They are not more than the
  /// list has and lie apart from it; the first is "", as a reference text is no gap. A list that changes
  /// shares its run then: that of `like`, which shares one or is null, when both read the same now, else one
  /// that is made for it, and only then this is true.
  bool FillGaps(std::span<const TextView> texts, const TextList* like);
  /// Puts the list's own texts behind the first in the place of those that are "", item by item; 0 when none
  /// behind the first is "" then. They are not more than the list has. A list whose texts are all "" has
  /// nothing to offer, and does not look: it answers as if all were missing.
  std::size_t OfferTexts(std::span<TextView> texts) const noexcept;
  /// Appends so many "".
  void AddEmpty(std::int32_t count);
  void Clear() noexcept;

  /// Keeps `image` alive as long as texts of the list lie in it; views into it may then be added. One image
  /// per list.
  void setImage(ImageRef image) noexcept { image_ = std::move(image); }
  /// Appends a text that lies in the list's image or is static. It stays where it is when it begins where the
  /// texts before it end; one that lies elsewhere turns the list's texts into its own.
  void AddView(TextView text);
  /// The same for each of several texts in turn.
  void AddViews(std::span<const TextView> texts);

  // Internal: for the entry.

  /// Where the run of characters begins; null when all texts are "".
  const char16_t* units() const noexcept { return units_; }

 private:
  void swap(TextList& other) noexcept;

  /// What the length of a run can be told in.
  static constexpr std::uint32_t longestRun = std::numeric_limits<std::int32_t>::max();
  /// More languages are rare; the ends of their texts lie apart.
  static constexpr std::uint32_t fewTexts = 6;
  using Ends = std::vector<std::uint32_t>;

  std::uint32_t index(std::int32_t position) const {
    if (position < 1 || static_cast<std::uint32_t>(position) > count_) {
      throw Failure(FailureKind::InvalidIndex);
    }
    return static_cast<std::uint32_t>(position) - 1;
  }
  const std::uint32_t* ends() const noexcept { return hasMoreEnds_ ? ends_.more->data() : ends_.few; }
  std::uint32_t* ends() noexcept { return hasMoreEnds_ ? ends_.more->data() : ends_.few; }
  std::uint32_t end(std::uint32_t item) const noexcept { return ends()[item]; }
  std::uint32_t start(std::uint32_t item) const noexcept { return item > 0 ? ends()[item - 1] : 0; }
  void setCapacity(std::size_t units) noexcept { capacity_ = static_cast<std::uint32_t>(units) & longestRun; }
  TextView text(std::uint32_t item) const noexcept { return {units_ + start(item), end(item) - start(item)}; }
  std::uint32_t length() const noexcept { return units_ != nullptr ? start(count_) : 0; }

  /// Gives every text an end, when only "" was there so far.
  void makeEnds();
  /// The same, and has room for one more.
  void makeEndsAndRoom();
  /// From now on the ends lie apart.
  void setMoreEnds(std::unique_ptr<Ends> ends) noexcept;
  /// Into the room that makeEndsAndRoom made.
  void insertEnd(std::uint32_t item, std::uint32_t end) noexcept;
  /// Puts `text` in the place of the units first..last of the run; the ends are the caller's.
  void splice(std::uint32_t first, std::uint32_t last, TextView text);
  /// The list's run becomes this one, with room for so many units.
  void takeRun(std::unique_ptr<char16_t[]> run, std::size_t capacity) noexcept;
  /// The list's run becomes this one, which lies in an image.
  void takeRun(const char16_t* run, ImageRef image) noexcept;
  /// Writes the run with the text textFor(item) in the gap of each item, and the ends of it.
  template <class TextFor>
  void writeFilled(char16_t* run, TextFor textFor);
  /// The length of a run that is longer by so many units; throws std::bad_alloc for more than there may be.
  std::size_t lengthWith(std::size_t growth) const;
  /// Whether the list would read like the other one with these texts in its gaps.
  bool isFilledLike(const TextList& other, std::span<const TextView> texts) const noexcept;
  void moveEnds(std::uint32_t firstItem, std::uint32_t by) noexcept;

  /// Null as long as all texts are ""; no text has an end then.
  const char16_t* units_ = nullptr;
  std::uint32_t count_ = 0;
  /// How many units the list's own run can take; 0 when the run is not the list's own.
  std::uint32_t capacity_ : 31 = 0;
  std::uint32_t hasMoreEnds_ : 1 = 0;
  /// Where each text ends in the run.
  union {
    std::uint32_t few[fewTexts];
    Ends* more;
  } ends_ = {};
  ImageRef image_;
};

}  // namespace kob
