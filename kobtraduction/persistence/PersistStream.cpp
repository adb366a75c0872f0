// SPDX-FileCopyrightText: The KOBTraduction authors
#include <kobtraduction/persistence/PersistStream.h>

namespace kob {

PersistStream::~PersistStream() = default;

void PersistStream::WriteStrings(std::span<const TextView> texts) {
  for (const TextView text : texts) {
    WriteValue(PersistValue::string(text));
  }
}

void PersistStream::WriteRun(const TextRun& texts) {
  for (std::size_t i = 0; i < texts.size(); ++i) {
    WriteValue(PersistValue::string(texts[i]));
  }
}

void PersistStream::WriteLongs(std::span<const std::int32_t> numbers) {
  for (const std::int32_t number : numbers) {
    WriteValue(PersistValue::ofLong(number));
  }
}

void PersistStream::WriteOnes(std::int32_t count) {
  const PersistValue one = PersistValue::smallInteger(1);
  for (; count > 0; --count) {
    WriteValue(one);
  }
}

void PersistStream::WriteKept(const KeptObject& object) {
  WriteValue(PersistValue::object(object.share()));
}

std::int32_t PersistStream::ReadStrings(std::span<TextView> /*to*/) {
  return 0;
}

std::int32_t PersistStream::ReadLongs(std::span<std::int32_t> /*to*/) {
  return 0;
}

std::int32_t PersistStream::PassOnes(std::int32_t /*most*/) {
  return 0;
}

ImageRef PersistStream::image() const {
  return {};
}

IKOBVBPersistStream::~IKOBVBPersistStream() = default;

}  // namespace kob
