// SPDX-FileCopyrightText: The KOBTraduction authors
#include <kobpersistence/ContainerWriter.h>
#include <kobpersistence/Describing.h>
#include <kobpersistence/Format.h>
#include <kobpersistence/Units.h>

#include <algorithm>
#include <vector>

namespace kob::persistence {

namespace {

/// What is written together: whole pages of the file, header included. Writes that begin and end within pages
/// cost the system a third more.
constexpr std::size_t bufferSize = 256 * 1024;
static_assert(bufferSize % Checksum::blockSize == 0);
/// The checksum's blocks begin behind the header, so a full buffer ends with a part of one.
constexpr std::size_t partOfBlock = (bufferSize - headerSize) % Checksum::blockSize;
constexpr std::ptrdiff_t summedTogether = 8 * Checksum::blockSize;

}  // namespace

ContainerWriter::ContainerWriter(WritableFile& file, const ProgIdTable& classes)
    : file_(file),
      classes_(classes),
      memory_(std::make_unique_for_overwrite<Byte[]>(partOfBlock + bufferSize + checksumSize)),
      buffer_(memory_.get() + partOfBlock) {
  start();
}

void ContainerWriter::start() {
  // The header is not known yet: its place is kept.
  std::fill_n(buffer_, headerSize, Byte(0));
  length_ = used_ = headerSize;
  unsummed_ = buffer_ + headerSize;
  for (const Text& name : classes_) {
    std::vector<Byte> entry(sizeof(std::uint16_t) + 2 * name.size());
    storeNumber(entry.data(), static_cast<std::uint16_t>(name.size()));
    storeUnits(entry.data() + sizeof(std::uint16_t), name.data(), name.size());
    put(entry.data(), entry.size());
  }
}

void ContainerWriter::startOver() {
  file_.startOver();
  checksum_ = Checksum();
  units_ = records_ = 0;
  start();
}

std::span<Byte> ContainerWriter::room() const noexcept {
  return {buffer_ + used_, bufferSize - used_};
}

void ContainerWriter::addRecord(const Byte* record, std::size_t size, std::uint64_t units) {
  // Each step of the checksum waits for the one before: some at a time are done while the processor is busy
  // with the next record.
  if (buffer_ + used_ - unsummed_ >= summedTogether) {
    sumTo(unsummed_ + summedTogether);
  }
  if (record == buffer_ + used_) {
    used_ += size;
    length_ += size;
  } else {
    put(record, size);
  }
  units_ += units;
  ++records_;
}

void ContainerWriter::put(const Byte* bytes, std::size_t size) {
  length_ += size;
  while (size > 0) {
    const std::size_t now = std::min(size, bufferSize - used_);
    std::copy(bytes, bytes + now, buffer_ + used_);
    used_ += now;
    bytes += now;
    size -= now;
    if (used_ == bufferSize) {
      checkLength();
      sumTo(buffer_ + bufferSize - partOfBlock);
      file_.write(buffer_, bufferSize);
      // The next block goes on where it ended.
      std::copy(unsummed_, unsummed_ + partOfBlock, memory_.get());
      unsummed_ = memory_.get();
      used_ = 0;
    }
  }
}

void ContainerWriter::checkLength() const {
  // A record has three bytes at least, so they are not too many either.
  if (length_ > largestFile) {
    throw failure({u"The file would be larger than 4 GB, which is the most that can be saved."});
  }
}

void ContainerWriter::sumTo(const Byte* end) noexcept {
  checksum_.add(unsummed_, static_cast<std::size_t>(end - unsummed_));
  unsummed_ = end;
}

void ContainerWriter::finish() {
  length_ += checksumSize;
  checkLength();
  Byte header[headerSize] = {};
  std::copy(magic.begin(), magic.end(), header);
  storeNumber(header + at::version, containerVersion);
  storeNumber(header + at::classes, static_cast<std::uint32_t>(classes_.Count()));
  storeNumber(header + at::length, length_);
  storeNumber(header + at::records, static_cast<std::uint32_t>(records_));
  storeNumber(header + at::units, units_);
  sumTo(buffer_ + used_);
  storeNumber(buffer_ + used_, checksum_.finish(header));
  file_.write(buffer_, used_ + checksumSize);
  file_.writeAtStart(header, headerSize);
}

}  // namespace kob::persistence
