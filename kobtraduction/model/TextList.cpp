// SPDX-FileCopyrightText: The KOBTraduction authors
#include <kobtraduction/base/Failure.h>
#include <kobtraduction/model/TextList.h>

#include <utility>

namespace kob {

TextList::~TextList() = default;

std::size_t TextList::index(std::int32_t position) const {
  if (position < 1 || static_cast<std::size_t>(position) > texts_.size()) {
    throw Failure(FailureKind::InvalidIndex);
  }
  return static_cast<std::size_t>(position) - 1;
}

void TextList::Reserve(std::int32_t count) {
  if (count > 0) {
    texts_.reserve(static_cast<std::size_t>(count));
  }
}

void TextList::Add(TextView text) {
  texts_.push_back(StoredText(text));
}

void TextList::Add(TextView text, std::int32_t before) {
  const auto at = static_cast<std::ptrdiff_t>(index(before));
  texts_.insert(texts_.begin() + at, StoredText(text));
}

void TextList::Remove(std::int32_t position) {
  texts_.erase(texts_.begin() + static_cast<std::ptrdiff_t>(index(position)));
}

void TextList::setImage(std::shared_ptr<const void> image) {
  image_ = std::move(image);
}

void TextList::AddView(TextView text) {
  texts_.push_back(StoredText::view(text));
}

}  // namespace kob
