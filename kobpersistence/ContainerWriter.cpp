// SPDX-FileCopyrightText: The KOBTraduction authors
#include <kobpersistence/ContainerWriter.h>
#include <kobpersistence/Describing.h>
#include <kobpersistence/Format.h>
#include <kobpersistence/Units.h>

#include <algorithm>
#include <vector>

namespace kob::persistence {

namespace {

constexpr std::size_t bufferSize = 256 * 1024;
static_assert(bufferSize % Checksum::blockSize == 0);

}  // namespace

ContainerWriter::ContainerWriter(WritableFile& file, const ProgIdTable& classes)
    : file_(file), classes_(classes), buffer_(std::make_unique_for_overwrite<Byte[]>(bufferSize)) {
  start();
}

void ContainerWriter::start() {
  length_ = headerSize;
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
  used_ = 0;
  units_ = records_ = 0;
  isStarted_ = false;
  start();
}

void ContainerWriter::addRecord(const Byte* record, std::size_t size, std::uint64_t units) {
  put(record, size);
  units_ += units;
  ++records_;
}

void ContainerWriter::put(const Byte* bytes, std::size_t size) {
  length_ += size;
  while (size > 0) {
    const std::size_t now = std::min(size, bufferSize - used_);
    std::copy(bytes, bytes + now, buffer_.get() + used_);
    used_ += now;
    bytes += now;
    size -= now;
    if (used_ == bufferSize) {
      flush();
    }
  }
}

void ContainerWriter::flush() {
  // A record has three bytes at least, so they are not too many either.
  if (length_ > largestFile) {
    throw failure({u"The file would be larger than 4 GB, which is the most that can be saved."});
  }
  if (!isStarted_) {
    // The header is not known yet: its place is kept.
    const Byte header[headerSize] = {};
    file_.write(header, headerSize);
    isStarted_ = true;
  }
  checksum_.add(buffer_.get(), used_);
  file_.write(buffer_.get(), used_);
  used_ = 0;
}

void ContainerWriter::finish() {
  length_ += checksumSize;
  flush();
  Byte header[headerSize] = {};
  std::copy(magic.begin(), magic.end(), header);
  storeNumber(header + at::version, containerVersion);
  storeNumber(header + at::classes, static_cast<std::uint32_t>(classes_.Count()));
  storeNumber(header + at::length, length_);
  storeNumber(header + at::records, static_cast<std::uint32_t>(records_));
  storeNumber(header + at::units, units_);
  Byte sum[checksumSize];
  storeNumber(sum, checksum_.finish(header));
  file_.write(sum, checksumSize);
  file_.writeAtStart(header, headerSize);
}

}  // namespace kob::persistence
