// SPDX-FileCopyrightText: The KOBTraduction authors
#include "SavedForms.h"
#include "Suite.h"

#include <kobpersistence/FileManagerOn.h>
#include <kobpersistence/KOBPersistence.h>
#include <kobpersistence/PosixCalls.h>

#include <QDataStream>
#include <QFile>
#include <QSaveFile>
#include <QTemporaryDir>

#include <fcntl.h>
#include <malloc.h>
#include <sys/mman.h>
#include <unistd.h>
#include <pugixml.hpp>

#include <cstring>
#include <functional>
#include <memory>
#include <stdexcept>
#include <utility>

namespace bench {

namespace {

void require(bool done, const char* what) {
  if (!done) {
    throw std::runtime_error(what);
  }
}

/// Files that are not flushed to the disk.
class UnflushedCalls final : public kob::persistence::PosixCalls {
 public:
  int fsync(int /*file*/) override { return 0; }
  void beginSync(int /*file*/, off_t /*offset*/, std::size_t /*size*/) override {}
};

/// Memory as a program gets it for a large array: new pages of the usual size. Those of the heap may have
/// been asked for as large ones by a load before, and would come faster.
class NewPages {
 public:
  NewPages() = default;
  explicit NewPages(std::size_t size)
      : memory_(mmap(nullptr, size, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0)),
        size_(size) {
    require(memory_ != MAP_FAILED, "there is not enough memory");
  }
  NewPages(const NewPages&) = delete;
  NewPages& operator=(NewPages&& other) noexcept {
    std::swap(memory_, other.memory_);
    std::swap(size_, other.size_);
    return *this;
  }
  ~NewPages() {
    if (size_ > 0) {
      munmap(memory_, size_);
    }
  }
  void* get() const noexcept { return memory_; }

 private:
  void* memory_ = nullptr;
  std::size_t size_ = 0;
};

/// The same content in four files, and what is loaded from them.
class Files {
 public:
  explicit Files(const SavedForms& forms)
      : unflushed_(kob::persistence::makePosixStorage(calls_)),
        made_(forms.model()),
        lists_(forms.lists()),
        flat_(forms.flatBytes()) {
    kob::usePersistence();
    require(made_->Save(path("model.trad").toStdU16String()), "the model cannot be saved");
    saveLists();
    require(forms.document()->save_file(path("model.xml").toUtf8().constData(), "", pugi::format_raw),
            "the XML file cannot be written");
    writeFlat();
    QFile saved(path("model.trad"));
    require(saved.open(QIODevice::ReadOnly), "the model's file cannot be read");
    bytes_ = saved.readAll();
  }

  qint64 modelSize() const { return bytes_.size(); }

  void loadModel() { loaded_ = bench::loadModel(path("model.trad")); }
  void walkModel() {
    loadModel();
    read_ = readAll(*loaded_);
  }
  void loadLists() { loadedLists_ = bench::loadLists(path("model.lists")); }
  void walkLists() {
    loadLists();
    read_ = readAll(loadedLists_);
  }
  void loadXml() { loadedXml_ = bench::loadXml(path("model.xml")); }
  void walkXml() {
    loadXml();
    read_ = readAll(*loadedXml_);
  }
  double growth(Loaded what) const {
    constexpr const char* names[] = {"model.trad", "model.trad", "model.lists", "model.xml"};
    return static_cast<double>(growthOf(what, path(names[static_cast<int>(what)])));
  }
  /// One read into memory, and one copy of it.
  void readFlat() {
    const auto size = static_cast<std::size_t>(flat_.size());
    read1_ = NewPages(size);
    read2_ = NewPages(size);
    const int file = ::open(path("flat").toUtf8().constData(), O_RDONLY | O_CLOEXEC);
    const ssize_t read = ::read(file, read1_.get(), size);
    ::close(file);
    require(read == static_cast<ssize_t>(size), "the flat file cannot be read");
    std::memcpy(read2_.get(), read1_.get(), size);
  }
  void forget() {
    loaded_ = nullptr;
    loadedLists_ = {};
    loadedXml_ = nullptr;
    read1_ = NewPages();
    read2_ = NewPages();
    // A program loads at its start, with memory that the system has yet to give, and so does everybody here.
    // Whoever got a part back from somebody before would seem faster, by chance and by the size of the
    // pieces.
    malloc_trim(0);
  }

  /// What is saved was loaded before.
  void beginSaving() { loadModel(); }
  void saveModel() {
    require(loaded_->Save(path("model.trad").toStdU16String()), "the model cannot be saved");
  }
  void saveModelUnflushed() { saveUnflushed(*loaded_); }
  void saveMadeUnflushed() { saveUnflushed(*made_); }
  void saveLists() const {
    QFile file(path("model.lists"));
    require(file.open(QIODevice::WriteOnly), "the lists cannot be written");
    QDataStream stream(&file);
    stream << lists_;
  }
  void saveListsSafely() const {
    QSaveFile file(path("saved.lists"));
    require(file.open(QIODevice::WriteOnly), "the lists cannot be written");
    QDataStream stream(&file);
    stream << lists_;
    require(file.commit(), "the lists cannot be saved");
  }
  /// The bytes that are read from it.
  void writeFlat() const { writeBytes("flat", flat_.constData(), flat_.size(), false); }
  /// The bytes of the model's file, which are there already.
  void writeModelBytes(bool flush) const { writeBytes("bytes", bytes_.constData(), bytes_.size(), flush); }
  void saveBytesSafely() const {
    QSaveFile file(path("saved"));
    require(file.open(QIODevice::WriteOnly) && file.write(bytes_) == bytes_.size() && file.commit(),
            "QSaveFile cannot save");
  }

 private:
  QString path(const char* name) const { return folder_.filePath(QString::fromLatin1(name)); }

  void saveUnflushed(kob::KOBModeleTraduction& model) {
    kob::persistence::makeFileManagerOn(*unflushed_)
        ->SaveToFile(path("unflushed.trad").toStdU16String(), model, 1);
  }
  void writeBytes(const char* name, const char* bytes, qint64 size, bool flush) const {
    const int file = ::open(path(name).toUtf8().constData(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0600);
    const ssize_t written = ::write(file, bytes, static_cast<std::size_t>(size));
    const bool isFlushed = !flush || ::fsync(file) == 0;
    ::close(file);
    require(written == size && isFlushed, "the bytes cannot be written");
  }

  QTemporaryDir folder_;
  UnflushedCalls calls_;
  std::unique_ptr<kob::persistence::Storage> unflushed_;
  std::unique_ptr<kob::KOBModeleTraduction> made_;
  QList<QStringList> lists_;
  QByteArray flat_;
  QByteArray bytes_;

  std::unique_ptr<kob::KOBModeleTraduction> loaded_;
  QList<QStringList> loadedLists_;
  std::unique_ptr<pugi::xml_document> loadedXml_;
  NewPages read1_;
  NewPages read2_;
  std::size_t read_ = 0;
};

using Step = void (Files::*)();

void contestOfLoading(Files& files, const SavedForms& forms, const std::function<void(Contest&)>& run) {
  Contest contest("Load", std::to_string(forms.entries()));
  const auto add = [&](const char* name, Step step) {
    contest.add(
        name, forms.texts(), [&files, step](int) { (files.*step)(); }, [&files](int) { files.forget(); });
  };
  add("Load", &Files::loadModel);
  add("Load, every text read", &Files::walkModel);
  add("read + memcpy, 64 B a text", &Files::readFlat);
  add("QDataStream of lists", &Files::loadLists);
  add("QDataStream, every text read", &Files::walkLists);
  add("pugixml", &Files::loadXml);
  add("pugixml, every text read", &Files::walkXml);
  contest.expect({"Load", "read + memcpy, 64 B a text", 1.5, 1.1});
  contest.expect({"Load, every text read", "read + memcpy, 64 B a text", 1.5, 1.1});
  contest.expect({"Load", "QDataStream of lists", 1.0});
  contest.expect({"Load", "pugixml", 1.0});
  contest.expect({"Load, every text read", "QDataStream, every text read", 1.0});
  contest.expect({"Load, every text read", "pugixml, every text read", 1.0});
  run(contest);
  files.forget();
}

void contestOfSaving(Files& files, const SavedForms& forms, const std::function<void(Contest&)>& run) {
  files.beginSaving();
  Contest contest("Save, no flush", std::to_string(forms.entries()));
  // A file's memory is part of what is timed, and is had at once only where it was given back just before. So
  // each is timed right after it has done the same once.
  const auto add = [&](const char* name, auto save) {
    const auto pass = [save](int) { save(); };
    contest.add(name, forms.texts(), pass, pass);
  };
  add("Save, loaded before", [&] { files.saveModelUnflushed(); });
  add("Save, just made", [&] { files.saveMadeUnflushed(); });
  add("write, 64 B a text", [&] { files.writeFlat(); });
  add("write, the model's bytes", [&] { files.writeModelBytes(false); });
  add("QDataStream of lists", [&] { files.saveLists(); });
  contest.expect({"Save, loaded before", "write, 64 B a text", 4, 2.5});
  contest.expect({"Save, just made", "write, 64 B a text", 4, 2.5});
  run(contest);
  files.forget();
}

void contestOfFlushing(Files& files, const SavedForms& forms, const std::function<void(Contest&)>& run) {
  files.beginSaving();
  Contest contest("Save, flush and rename", std::to_string(forms.entries()));
  // Waiting for the disk is most of it.
  contest.setClock(Clock::Wall);
  contest.add("Save", forms.texts(), [&](int) { files.saveModel(); });
  contest.add("QDataStream into QSaveFile", forms.texts(), [&](int) { files.saveListsSafely(); });
  contest.add("QSaveFile, bytes ready", forms.texts(), [&](int) { files.saveBytesSafely(); });
  contest.add("write + fsync", forms.texts(), [&](int) { files.writeModelBytes(true); });
  contest.expect({"Save", "QDataStream into QSaveFile", 1});
  contest.expect({"Save", "write + fsync", 3, 1.6});
  run(contest);
  files.forget();
}

void contestOfBytes(Files& files, const SavedForms& forms, const std::function<void(Contest&)>& run) {
  Contest contest("Bytes a text", std::to_string(forms.entries()));
  const auto add = [&](const char* name, Loaded what) {
    contest.addBytes(name, [&files, &forms, what] { return files.growth(what) / forms.texts(); });
  };
  contest.addBytes("file", [&] { return static_cast<double>(files.modelSize()) / forms.texts(); });
  add("memory, every text read", Loaded::Model);
  add("memory, and all found by path", Loaded::Found);
  add("memory, QDataStream of lists", Loaded::Lists);
  add("memory, pugixml", Loaded::Xml);
  contest.expect({"file", "", 64, 50});
  contest.expect({"memory, every text read", "", 120, 100});
  contest.expect({"memory, and all found by path", "", 120, 100});
  run(contest);
}

}  // namespace

void addPersistence(Suite& suite) {
  for (const int entries : {10000, 100000, 1000000}) {
    if (suite.settings().quick && entries > 100000) {
      continue;
    }
    const auto add = [&suite, entries](const std::string& name, auto play) {
      suite.add("Persistence/" + name + '/' + std::to_string(entries), [entries, play](const auto& run) {
        const SavedForms forms(entries);
        Files files(forms);
        play(files, forms, run);
      });
    };
    add("load", &contestOfLoading);
    add("save", &contestOfSaving);
    add("save-flushed", &contestOfFlushing);
    add("bytes", &contestOfBytes);
  }
}

}  // namespace bench
