// SPDX-FileCopyrightText: The KOBTraduction authors
#include <kobtraduction/base/ImageRef.h>

#include <new>

namespace kob {

ImageRef::Image* ImageRef::make(std::shared_ptr<const void> owner) {
  return owner != nullptr ? new (::operator new(sizeof(Image))) Image{std::move(owner), 1} : nullptr;
}

void* ImageRef::makeRoom(std::size_t size) {
  // Behind what is known of it, so that it costs one allocation.
  ImageRef made;
  made.image_ = new (::operator new(sizeof(Image) + size)) Image{nullptr, 1};
  swap(made);
  return image_ + 1;
}

void ImageRef::release(Image* image) noexcept {
  image->~Image();
  ::operator delete(image);
}

}  // namespace kob
