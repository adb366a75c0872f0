// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include <kobtraduction/base/Export.h>
#include <kobtraduction/base/StoredText.h>
#include <kobtraduction/base/Text.h>

#include <cstdint>
#include <memory>
#include <vector>

namespace kob {

/// The texts of one entry, item i in language i. It reads like an OrderedList of texts, but a text may be a
/// view into an image that the list keeps alive (a loaded file): such a text costs no allocation of its own,
/// and only what is added by value is owned. A position outside 1..count fails with FailureKind::InvalidIndex
/// and changes nothing. Used on one thread.
class KOB_EXPORT TextList {
 public:
  TextList() = default;
  TextList(const TextList&) = delete;
  TextList& operator=(const TextList&) = delete;
  ~TextList();

  std::int32_t Count() const noexcept { return static_cast<std::int32_t>(texts_.size()); }

  /// The text at a position; the view lives until the list is changed.
  TextView Item(std::int32_t position) const;

  /// Makes room for so many items in one piece; nothing that can be asked for changes. A language count may
  /// be negative: no room then.
  void Reserve(std::int32_t count);

  void Add(TextView text);
  /// Inserts in front of the item at `before`.
  void Add(TextView text, std::int32_t before);
  void Remove(std::int32_t position);

  /// Keeps `image` alive as long as the list lives; views into it may then be added. One image per list.
  void setImage(std::shared_ptr<const void> image);
  /// Appends a text that stays where it is; it must lie in the list's image or be static.
  void AddView(TextView text);

 private:
  std::size_t index(std::int32_t position) const;

  std::vector<StoredText> texts_;
  std::shared_ptr<const void> image_;
};

inline TextView TextList::Item(std::int32_t position) const {
  return texts_[index(position)].text();
}

}  // namespace kob
