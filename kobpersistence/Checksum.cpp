// SPDX-FileCopyrightText: The KOBTraduction authors
#include <kobpersistence/Checksum.h>
#include <kobpersistence/Format.h>

#include <bit>

namespace kob::persistence {

namespace {

constexpr std::uint64_t factor = 0x9E37'79B9'7F4A'7C15;
constexpr int turn = 29;

std::uint64_t step(std::uint64_t lane, std::uint64_t word) noexcept {
  return std::rotl((lane ^ word) * factor, turn);
}

}  // namespace

void Checksum::add(const Byte* bytes, std::size_t size) noexcept {
  // Names of their own keep the lanes in registers.
  std::uint64_t first = lanes_[0];
  std::uint64_t second = lanes_[1];
  std::uint64_t third = lanes_[2];
  std::uint64_t fourth = lanes_[3];
  const auto block = [&](const Byte* from) {
    first = step(first, loadNumber<std::uint64_t>(from));
    second = step(second, loadNumber<std::uint64_t>(from + 8));
    third = step(third, loadNumber<std::uint64_t>(from + 16));
    fourth = step(fourth, loadNumber<std::uint64_t>(from + 24));
  };
  const std::size_t whole = size - size % blockSize;
  for (std::size_t i = 0; i < whole; i += blockSize) {
    block(bytes + i);
  }
  if (whole < size) {
    Byte rest[blockSize] = {};
    std::memcpy(rest, bytes + whole, size - whole);
    block(rest);
  }
  lanes_ = {first, second, third, fourth};
}

std::uint64_t Checksum::finish(const Byte* header) noexcept {
  add(header, headerSize);
  std::uint64_t sum = 0;
  for (const std::uint64_t lane : lanes_) {
    sum = std::rotl(sum, 17) ^ step(lane, factor);
  }
  return sum;
}

std::uint64_t checksumOf(const Byte* file, std::size_t size) noexcept {
  Checksum checksum;
  checksum.add(file + headerSize, size - headerSize - checksumSize);
  return checksum.finish(file);
}

}  // namespace kob::persistence
