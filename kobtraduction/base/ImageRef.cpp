// SPDX-FileCopyrightText: The KOBTraduction authors
#include <kobtraduction/base/ImageRef.h>

namespace kob {

ImageRef::Image* ImageRef::make(std::shared_ptr<const void> owner) {
  return owner != nullptr ? std::make_unique<Image>(Image{std::move(owner), 1}).release() : nullptr;
}

void ImageRef::release(Image* image) noexcept {
  delete image;
}

}  // namespace kob
