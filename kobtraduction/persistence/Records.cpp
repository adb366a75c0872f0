// SPDX-FileCopyrightText: The KOBTraduction authors
#include <kobtraduction/base/Failure.h>
#include <kobtraduction/component/Global_Util.h>
#include <kobtraduction/model/KOBModeleTraduction.h>
#include <kobtraduction/model/PathMemo.h>
#include <kobtraduction/persistence/PersistStream.h>

#include <algorithm>
#include <memory>
#include <span>
#include <typeinfo>
#include <utility>

namespace kob {

namespace {

constexpr TextView modelId = u"KOBTraduction.KOBModeleTraduction";
constexpr TextView cellId = u"KOBTraduction.KOBCellTraduction";
constexpr TextView entryId = u"KOBTraduction.KOBTraductionObj";

// Stored with every record, so never edited: a record of another shape gets another number.
constexpr std::int32_t modelVersion = 1;
constexpr std::int32_t entryVersion = 1;
constexpr std::int32_t cellVersion = 2;

/// A caption and a tool tip. The count that a record tells is not trusted before its entries are there.
constexpr std::int32_t usualEntries = 2;
/// Twice as many is a number too.
constexpr std::int32_t mostLanguagesAtOnce = 1 << 20;
/// So many texts of an entry are read in one go.
constexpr std::int32_t usualLanguages = 8;

/// A record stops where it fails, and says so to nobody but the flag of the thread.
template <class Steps>
void guarded(Steps steps) {
  try {
    steps();
  } catch (...) {
    // A service may have failures of its own kind.
    Global_Util::setPersistOk(false);
  }
}

template <class Pointer>
auto& mustBeSet(const Pointer& object) {
  if (object == nullptr) {
    throw Failure(FailureKind::ObjectNotSet);
  }
  return *object;
}

/// The object of a value as a cell or an entry; none for nothing.
template <class T>
std::shared_ptr<T> readObject(PersistStream& stream) {
  const PersistRef& object = stream.ReadValue().toObject();
  if (object == nullptr) {
    return nullptr;
  }
  // Neither class has heirs, so comparing the classes is enough, and much cheaper than a search for them.
  const IKOBVBPersistStream& read = *object;
  if (typeid(read) != typeid(T)) {
    throw Failure(FailureKind::TypeMismatch);
  }
  return std::static_pointer_cast<T>(object);
}

/// Hands a text to `assign`, without a copy of its own where the value is one.
template <class Assign>
void readText(PersistStream& stream, Assign assign) {
  const PersistValue& value = stream.ReadValue();
  if (value.type() == PersistType::String) {
    assign(value.text());
  } else {
    assign(value.toText());
  }
}

/// `one` is the small integer 1, made once for all factors of a cell.
void writeFactor(PersistStream& stream, Factor factor, const PersistValue& one) {
  if (factor.isDouble()) {
    stream.WriteValue(PersistValue::ofDouble(factor.value()));
  } else {
    stream.WriteValue(one);
  }
}

Factor readFactor(PersistStream& stream) {
  const PersistValue& value = stream.ReadValue();
  const bool isUntouched = value.type() == PersistType::SmallInteger && value.integer() == 1;
  return isUntouched ? Factor() : Factor(value.toDouble());
}

/// Only the sign is a choice of the user's: everything but -1 reads back as 1, which is what older files
/// mean.
std::int32_t indicator(std::int32_t number) {
  return number == -1 ? -1 : 1;
}

/// The next numbers of a record, in one go where the stream has longs: no more of them than follow one
/// another in any record.
template <std::size_t most>
class Numbers {
 public:
  explicit Numbers(PersistStream& stream) : stream_(stream), read_(stream.ReadLongs(numbers_)) {}

  std::int32_t next() { return taken_ < read_ ? numbers_[taken_++] : stream_.ReadValue().toLong(); }

 private:
  PersistStream& stream_;
  std::int32_t numbers_[most];
  std::int32_t read_;
  std::int32_t taken_ = 0;
};

}  // namespace

TextView KOBModeleTraduction::getProgID() const noexcept {
  return modelId;
}

std::shared_ptr<ProgIdTable> KOBModeleTraduction::getProgIdTable() {
  progIds_ = std::make_shared<ProgIdTable>();
  for (const TextView id : {modelId, cellId, entryId}) {
    progIds_->Add(Text(id));
  }
  return progIds_;
}

void KOBModeleTraduction::write(PersistStream& stream) {
  guarded([&] {
    stream.setVersion(modelVersion);
    stream.WriteValue(PersistValue::ofLong(NbLangues()));
    stream.WriteValue(PersistValue::object(racine_));
  });
}

void KOBModeleTraduction::read(PersistStream& stream) {
  guarded([&] {
    stream.Version();
    // The thread's count becomes the file's, also a smaller one, and nothing that exists is extended: what is
    // read below is read with this count.
    Global_Util::setNbLangues(stream.ReadValue().toLong());
    std::shared_ptr<KOBCellTraduction> root = readObject<KOBCellTraduction>(stream);
    mustBeSet(root);
    racine_ = std::move(root);
    treeChanged();
    entriesChanged();
  });
}

TextView KOBCellTraduction::getProgID() const noexcept {
  return cellId;
}

std::shared_ptr<ProgIdTable> KOBCellTraduction::getProgIdTable() {
  return nullptr;
}

void KOBCellTraduction::write(PersistStream& stream) {
  guarded([&] {
    stream.setVersion(cellVersion);
    const TextView names[] = {nom(), Alias()};
    stream.WriteStrings(names);
    const bool isNode = TypeCell() == 1;
    if (isNode) {
      writeChildren(stream);
    }
    const bool isControl = TypeFeuille() == 2;
    const EntryList* const list = isControl ? entries() : nullptr;
    const std::int32_t numbers[] = {TypeCell(), TypeFeuille(), m_left(), m_width(),
                                    list != nullptr ? list->Count() : 0};
    // A node's kind stands before its children, and a list that is none has no number of entries.
    const std::size_t count = !isControl ? 2 : list == nullptr ? 4 : 5;
    stream.WriteLongs(std::span(numbers, count).subspan(isNode ? 1 : 0));
    if (isControl) {
      writeControl(stream);
    } else if (TypeFeuille() == 1) {
      message();
      stream.WriteKept(KeptObject(traduction_));
    }
    stream.WriteValue(PersistValue::ofBoolean(Contexte()));
  });
}

void KOBCellTraduction::writeChildren(PersistStream& stream) const {
  const CellList* const list = ColCell().get();
  const std::int32_t numbers[] = {TypeCell(), list != nullptr ? list->Count() : 0};
  stream.WriteLongs(std::span(numbers, list != nullptr ? 2 : 1));
  const CellList& cells = mustBeSet(list);
  for (const auto& cell : cells) {
    stream.WriteKept(KeptObject(cell));
  }
}

void KOBCellTraduction::writeControl(PersistStream& stream) const {
  for (const auto& entry : mustBeSet(entries())) {
    stream.WriteKept(KeptObject(entry));
  }
  const PersistValue one = PersistValue::smallInteger(1);
  const std::int32_t last = Global_Util::NbLangues();
  // Factors that nobody made are all 1, a width and a left for each language.
  const std::int32_t untouched = std::clamp(untouched_, 0, std::max(last, 0));
  stream.WriteOnes(2 * untouched);
  for (std::int32_t language = untouched + 1; language <= last; ++language) {
    // Width before left, the other way round than everywhere else: files have always been written so.
    writeFactor(stream, widthFactor(language), one);
    writeFactor(stream, leftFactor(language), one);
  }
}

void KOBCellTraduction::read(PersistStream& stream) {
  guarded([&] {
    const std::int32_t version = stream.Version();
    readNames(stream);
    // The kind, and either the number of children or the kind of translations.
    Numbers<2> numbers(stream);
    setTypeCell(numbers.next());
    const bool isNode = TypeCell() == 1;
    if (isNode) {
      setColCell(std::make_shared<CellList>());
      const std::int32_t count = numbers.next();
      ColCell()->Reserve(count);
      const std::shared_ptr<KOBCellTraduction> self = shared_from_this();
      for (std::int32_t left = count; left > 0; --left) {
        std::shared_ptr<KOBCellTraduction> cell = readObject<KOBCellTraduction>(stream);
        mustBeSet(cell).setparentcell(self);
        ColCell()->Add(std::move(cell));
      }
    }
    setTypeFeuille(isNode ? stream.ReadValue().toLong() : numbers.next());
    if (TypeFeuille() == 1) {
      setTraduction(readObject<KOBTraductionObj>(stream));
    } else if (TypeFeuille() == 2) {
      readControl(stream);
    }
    if (version == cellVersion) {
      setContexte(stream.ReadValue().toBoolean());
    }
  });
}

void KOBCellTraduction::readNames(PersistStream& stream) {
  ImageRef image = stream.image();
  TextView names[2];
  const std::int32_t read = image ? stream.ReadStrings(names) : 0;
  if (read > 0) {
    rename(StoredText::view(names[0], std::move(image)));
  } else if (const PersistValue& value = stream.ReadValue(); value.type() == PersistType::String && image) {
    rename(StoredText::view(value.text(), std::move(image)));
  } else {
    setnom(value.toText());
  }
  if (read > 1) {
    setAlias(names[1]);
  } else {
    readText(stream, [this](TextView text) { setAlias(text); });
  }
}

void KOBCellTraduction::readControl(PersistStream& stream) {
  Numbers<3> numbers(stream);
  setm_left(indicator(numbers.next()));
  setm_width(indicator(numbers.next()));
  const std::int32_t count = numbers.next();
  EntryList& list = colTraduction_.renew();
  list.Reserve(std::clamp(count, 0, usualEntries));
  for (std::int32_t i = 0; i < count; ++i) {
    list.Add(readObject<KOBTraductionObj>(stream));
  }
  readFactors(stream);
}

void KOBCellTraduction::readFactors(PersistStream& stream) {
  dropFactors();
  const std::int32_t languages = Global_Util::NbLangues();
  const std::int32_t ones = stream.PassOnes(2 * std::clamp(languages, 0, mostLanguagesAtOnce));
  untouched_ = ones / 2;
  bool isWidthRead = ones % 2 != 0;
  for (std::int32_t left = languages - untouched_; left > 0; --left) {
    const Factor widthRead = std::exchange(isWidthRead, false) ? Factor() : readFactor(stream);
    Factor leftRead;
    try {
      leftRead = readFactor(stream);
    } catch (...) {
      ColWidth()->Add(widthRead);
      throw;
    }
    if (untouched_ >= 0 && !widthRead.isDouble() && !leftRead.isDouble()) {
      ++untouched_;
    } else {
      ColWidth()->Add(widthRead);
      ColLeft()->Add(leftRead);
    }
  }
}

TextView KOBTraductionObj::getProgID() const noexcept {
  return entryId;
}

std::shared_ptr<ProgIdTable> KOBTraductionObj::getProgIdTable() {
  return nullptr;
}

void KOBTraductionObj::write(PersistStream& stream) {
  guarded([&] {
    stream.setVersion(entryVersion);
    const std::int32_t last = Global_Util::NbLangues();
    const TextList* const list = colTraduction_.get();
    const TextView name = nom();
    stream.WriteStrings({&name, 1});
    // Padded to the language count, and never cut short of it; what lies beyond is dropped.
    const TextRun texts = list != nullptr ? list->GetRun(last) : TextRun();
    stream.WriteRun(texts);
    if (last > 0) {
      mustBeSet(list);
    }
    const PersistValue empty = PersistValue::string({});
    for (std::int32_t missing = last - static_cast<std::int32_t>(texts.size()); missing > 0; --missing) {
      stream.WriteValue(empty);
    }
  });
}

void KOBTraductionObj::read(PersistStream& stream) {
  guarded([&] {
    stream.Version();
    const std::int32_t languages = std::max(Global_Util::NbLangues(), 0);
    // The name, and with it the texts when they are as few as usual.
    TextView texts[1 + usualLanguages];
    const auto readTexts = [&stream, &texts](std::int32_t most) {
      return std::span<const TextView>(
          texts,
          static_cast<std::size_t>(stream.ReadStrings(std::span(texts, static_cast<std::size_t>(most)))));
    };
    std::span<const TextView> read = readTexts(1 + std::min(languages, usualLanguages));
    if (read.empty()) {
      readText(stream, [this](TextView text) { setnom(text); });
    } else {
      setnom(read.front());
      read = read.subspan(1);
    }
    TextList& list = colTraduction_.renew();
    ImageRef image = stream.image();
    const bool hasImage = static_cast<bool>(image);
    list.setImage(std::move(image));
    const auto add = [&list, hasImage](std::span<const TextView> added) {
      if (hasImage) {
        list.AddViews(added);
      } else {
        std::for_each(added.begin(), added.end(), [&list](TextView text) { list.Add(text); });
      }
    };
    add(read);
    for (std::int32_t left = languages - static_cast<std::int32_t>(read.size()); left > 0;) {
      read = readTexts(std::min(left, usualLanguages));
      add(read);
      left -= static_cast<std::int32_t>(read.size());
      if (!read.empty()) {
        continue;
      }
      const PersistValue& value = stream.ReadValue();
      if (value.type() == PersistType::String) {
        const TextView text = value.text();
        add({&text, 1});
      } else {
        list.Add(value.toText());
      }
      --left;
    }
  });
}

}  // namespace kob
