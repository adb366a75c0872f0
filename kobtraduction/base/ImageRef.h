// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include <kobtraduction/base/Export.h>

#include <cstddef>
#include <memory>
#include <utility>

namespace kob {

/// Keeps the characters alive that texts are views of (those of a loaded file, or room made for them), or
/// nothing. Every entry has one, so it is one word, and copying it counts without regard to other threads:
/// all references that were copied from one belong to one thread.
class KOB_EXPORT ImageRef {
 public:
  ImageRef() noexcept = default;
  /// As long as a copy of this is left, `owner` is kept.
  template <class Owner>
  ImageRef(std::shared_ptr<Owner> owner) : image_(make(std::move(owner))) {}
  ImageRef(const ImageRef& other) noexcept : image_(other.image_) {
    if (image_ != nullptr) {
      ++image_->references;
    }
  }
  ImageRef(ImageRef&& other) noexcept : image_(std::exchange(other.image_, nullptr)) {}
  ImageRef& operator=(ImageRef other) noexcept {
    std::swap(image_, other.image_);
    return *this;
  }
  ~ImageRef() {
    if (image_ != nullptr && --image_->references == 0) {
      release(image_);
    }
  }

  /// From now on keeps so many bytes alive, which are made here and uninitialised; returns where they are.
  /// Throws std::bad_alloc.
  void* makeRoom(std::size_t size);

  void swap(ImageRef& other) noexcept { std::swap(image_, other.image_); }

  explicit operator bool() const noexcept { return image_ != nullptr; }

 private:
  struct Image {
    std::shared_ptr<const void> owner;
    std::size_t references;
  };

  /// Null for none.
  static Image* make(std::shared_ptr<const void> owner);
  static void release(Image* image) noexcept;

  Image* image_ = nullptr;
};

}  // namespace kob
