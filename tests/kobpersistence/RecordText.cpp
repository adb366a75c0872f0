// SPDX-FileCopyrightText: The KOBTraduction authors
#include "RecordText.h"

#include <kobtraduction/persistence/PersistStream.h>

#include <bit>
#include <cstdint>
#include <cstdio>
#include <stdexcept>
#include <vector>

namespace kob::test {

namespace {

std::string quoted(TextView text) {
  std::string line = "\"";
  for (const char16_t unit : text) {
    if (unit == u'"' || unit == u'\\') {
      line += {'\\', static_cast<char>(unit)};
    } else if (unit >= u' ' && unit <= u'~') {
      line += static_cast<char>(unit);
    } else if (const std::size_t known = TextView(u"\n\r\t\b\f").find(unit); known != TextView::npos) {
      line += {'\\', "nrtbf"[known]};
    } else {
      char escaped[8];
      std::snprintf(escaped, sizeof escaped, "\\u%04x", static_cast<unsigned>(unit));
      line += escaped;
    }
  }
  return line + "\"";
}

std::string bytesOf(double number) {
  const auto bits = std::bit_cast<std::uint64_t>(number);
  std::string hex;
  for (int i = 0; i < 8; ++i) {
    char byte[4];
    std::snprintf(byte, sizeof byte, "%02x", static_cast<unsigned>((bits >> (8 * i)) & 0xFF));
    hex += byte;
  }
  return "\"" + hex + "\"";
}

/// Notes what an object writes; the objects' numbers are filled in afterwards.
class Notes final : public PersistStream {
 public:
  std::int32_t Version() override { return version; }
  void setVersion(std::int32_t number) override { version = number; }
  const PersistValue& ReadValue() override { throw std::logic_error("not for reading"); }

  void WriteValue(const PersistValue& value) override {
    switch (value.type()) {
      case PersistType::SmallInteger:
        values.push_back("[\"small\", " + std::to_string(value.integer()) + "]");
        break;
      case PersistType::Long:
        values.push_back("[\"long\", " + std::to_string(value.integer()) + "]");
        break;
      case PersistType::Double:
        values.push_back("[\"double\", " + bytesOf(value.number()) + "]");
        break;
      case PersistType::String:
        values.push_back("[\"string\", " + quoted(value.text()) + "]");
        break;
      case PersistType::Boolean:
        values.push_back(std::string("[\"boolean\", ") + (value.integer() != 0 ? "true]" : "false]"));
        break;
      case PersistType::Object:
        values.push_back(value.object() == nullptr ? "[\"object\", null]" : "");
        if (value.object() != nullptr) {
          objects.push_back(value.object());
        }
        break;
    }
  }

  std::int32_t version = 0;
  std::vector<std::string> values;
  std::vector<PersistRef> objects;
};

class RecordTexts {
 public:
  /// Returns the number of the object's record.
  std::size_t add(IKOBVBPersistStream& object) {
    const std::size_t number = texts_.size();
    texts_.emplace_back();
    Notes notes;
    object.write(notes);
    std::string text = "{\"class\": " + quoted(object.getProgID()) +
                       ", \"version\": " + std::to_string(notes.version) + ", \"values\": [";
    std::size_t next = 0;
    for (std::size_t i = 0; i < notes.values.size(); ++i) {
      text += i > 0 ? ", " : "";
      text += notes.values[i].empty() ? "[\"object\", " + std::to_string(add(*notes.objects[next++])) + "]"
                                      : notes.values[i];
    }
    texts_[number] = text + "]}";
    return number;
  }

  std::string all() const {
    std::string text = "[";
    for (const std::string& one : texts_) {
      text += (text.size() > 1 ? ", " : "") + one;
    }
    return text + "]";
  }

 private:
  std::vector<std::string> texts_;
};

}  // namespace

std::string recordText(KOBModeleTraduction& model) {
  RecordTexts texts;
  texts.add(model);
  return texts.all();
}

}  // namespace kob::test
