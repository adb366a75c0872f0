// SPDX-FileCopyrightText: The KOBTraduction authors
#include "ScriptedService.h"

#include "Lines.h"
#include "ScriptedStream.h"

#include <kobtraduction/component/ClassRegistry.h>

#include <utility>

namespace kob::testing {

namespace {

thread_local ScriptedService* current = nullptr;

using AtValue = std::function<void(const IKOBVBPersistStream&)>;

/// The stream to which an object of a file is written: tells of each value.
class FileStream final : public ScriptedStream {
 public:
  FileStream(const IKOBVBPersistStream& object, const AtValue& atValue)
      : object_(object), atValue_(atValue) {}

  void WriteValue(const PersistValue& value) override {
    if (atValue_ != nullptr) {
      atValue_(object_);
    }
    ScriptedStream::WriteValue(value);
  }

 private:
  const IKOBVBPersistStream& object_;
  const AtValue& atValue_;
};

class Writer {
 public:
  explicit Writer(const AtValue& atValue) : atValue_(atValue) {}

  ScriptedService::File write(IKOBVBPersistStream& first) {
    number(first);
    // Records add objects while the list is walked.
    for (std::size_t i = 0; i < objects_.size(); ++i) {
      FileStream stream(*objects_[i], atValue_);
      objects_[i]->write(stream);
      file_[i].record = stream.record();
      for (RecordValue& value : file_[i].record.values) {
        value.integer = value.object != nullptr ? number(*value.object) : value.integer;
        value.object = nullptr;
      }
    }
    return std::move(file_);
  }

 private:
  std::int32_t number(IKOBVBPersistStream& object) {
    const auto [known, isNew] = numbers_.emplace(&object, static_cast<std::int32_t>(objects_.size()) + 1);
    if (isNew) {
      objects_.push_back(&object);
      file_.push_back({Text(object.getProgID()), {}});
    }
    return known->second;
  }

  const AtValue& atValue_;
  std::vector<IKOBVBPersistStream*> objects_;
  std::map<IKOBVBPersistStream*, std::int32_t> numbers_;
  ScriptedService::File file_;
};

class Reader {
 public:
  Reader(const ScriptedService::File& file, const AtValue& atValue)
      : file_(file), atValue_(atValue), objects_(file.size()) {}

  void read(std::size_t index, IKOBVBPersistStream& object) {
    // An object is made and filled when its value is asked for: what the record says before it (the model's
    // language count) holds by then.
    Lazy stream(*this, object, file_[index].record);
    object.read(stream);
  }

 private:
  class Lazy final : public PersistStream {
   public:
    Lazy(Reader& reader, const IKOBVBPersistStream& object, Record record)
        : reader_(reader), record_(std::move(record)), object_(object) {}

    std::int32_t Version() override { return record_.version; }
    void setVersion(std::int32_t) override {}
    void WriteValue(const PersistValue&) override {}
    const PersistValue& ReadValue() override {
      if (reader_.atValue_ != nullptr) {
        reader_.atValue_(object_);
      }
      if (next_ == record_.values.size()) {
        throw PersistFailure(u"the record ends");
      }
      RecordValue& value = record_.values[next_++];
      if (value.type == PersistType::Object && value.integer != 0) {
        value.object = reader_.filled(static_cast<std::size_t>(value.integer) - 1);
      }
      value_ = viewOf(value);
      return value_;
    }

   private:
    Reader& reader_;
    Record record_;
    std::size_t next_ = 0;
    const IKOBVBPersistStream& object_;
    PersistValue value_ = PersistValue::ofLong(0);
  };

  const PersistRef& filled(std::size_t index) {
    PersistRef& object = objects_.at(index);
    if (object == nullptr) {
      object = findClass(file_[index].progId)(pool_);
      read(index, *object);
    }
    return object;
  }

  ObjectPool pool_;
  const ScriptedService::File& file_;
  const AtValue& atValue_;
  std::vector<PersistRef> objects_;
};

}  // namespace

class ScriptedService::Files final : public FileManager {
 public:
  explicit Files(ScriptedService& service) : service_(service) { ++service_.alive; }
  ~Files() override { --service_.alive; }
  Files(const Files&) = delete;
  Files& operator=(const Files&) = delete;

  void SaveToFile(TextView Filename, IKOBVBPersistStream& obj, std::int32_t mode) override {
    begin("save " + quoted(Filename) + " mode=" + std::to_string(mode));
    service_.files[Text(Filename)] = Writer(service_.atValue).write(obj);
  }

  void LoadFromFile(TextView Filename, IKOBVBPersistStream& obj) override {
    begin("load " + quoted(Filename));
    const auto found = service_.files.find(Text(Filename));
    if (found == service_.files.end()) {
      throw PersistFailure(u"there is no file of that name");
    }
    for (const Object& object : found->second) {
      if (findClass(object.progId) == nullptr) {
        throw PersistFailure(u"unknown class " + object.progId);
      }
    }
    Reader(found->second, service_.atValue).read(0, obj);
  }

 private:
  void begin(const std::string& call) {
    service_.calls_ += call + "\n";
    if (service_.before != nullptr) {
      service_.before();
    }
  }

  ScriptedService& service_;
};

ScriptedService::ScriptedService() : previous_(std::exchange(current, this)) {
  previousMaker_ = setPersistenceService([]() -> std::unique_ptr<FileManager> {
    ++current->made;
    return current->make != nullptr ? current->make() : std::make_unique<Files>(*current);
  });
}

ScriptedService::~ScriptedService() {
  current = previous_;
  setPersistenceService(previousMaker_);
}

std::string ScriptedService::takeCalls() {
  return std::exchange(calls_, {});
}

}  // namespace kob::testing
