// SPDX-FileCopyrightText: The KOBTraduction authors
#include <kobtraduction/base/Failure.h>
#include <kobtraduction/model/TextList.h>

#include <algorithm>
#include <memory>
#include <utility>

namespace kob {

TextList::Slot::Slot(TextView text, bool owned) noexcept
    : data_(text.data()), length_(static_cast<std::uint32_t>(text.size())), owned_(owned) {}

TextList::Slot TextList::Slot::copy(TextView text) {
  if (text.empty()) {
    return view({});
  }
  auto units = std::make_unique<char16_t[]>(text.size());
  std::copy(text.begin(), text.end(), units.get());
  return Slot({units.release(), text.size()}, true);
}

TextList::Slot::Slot(Slot&& other) noexcept
    : data_(other.data_), length_(other.length_), owned_(std::exchange(other.owned_, false)) {}

TextList::Slot& TextList::Slot::operator=(Slot&& other) noexcept {
  std::swap(data_, other.data_);
  std::swap(length_, other.length_);
  std::swap(owned_, other.owned_);
  return *this;
}

TextList::Slot::~Slot() {
  if (owned_) {
    delete[] data_;
  }
}

TextList::~TextList() = default;

std::size_t TextList::index(std::int32_t position) const {
  if (position < 1 || static_cast<std::size_t>(position) > slots_.size()) {
    throw Failure(FailureKind::InvalidIndex);
  }
  return static_cast<std::size_t>(position) - 1;
}

void TextList::Add(TextView text) {
  slots_.push_back(Slot::copy(text));
}

void TextList::Add(TextView text, std::int32_t before) {
  const auto at = static_cast<std::ptrdiff_t>(index(before));
  slots_.insert(slots_.begin() + at, Slot::copy(text));
}

void TextList::Remove(std::int32_t position) {
  slots_.erase(slots_.begin() + static_cast<std::ptrdiff_t>(index(position)));
}

void TextList::setImage(std::shared_ptr<const void> image) {
  image_ = std::move(image);
}

void TextList::AddView(TextView text) {
  slots_.push_back(Slot::view(text));
}

}  // namespace kob
