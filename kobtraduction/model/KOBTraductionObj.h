// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include <kobtraduction/base/Export.h>
#include <kobtraduction/base/StoredText.h>
#include <kobtraduction/base/Text.h>
#include <kobtraduction/model/EntryChanges.h>
#include <kobtraduction/model/HeldList.h>
#include <kobtraduction/model/TextList.h>
#include <kobtraduction/persistence/PersistStream.h>

#include <cstdint>
#include <memory>

namespace kob {

/// One text in every language: the message of a message cell, or one named translation ("Caption", "ToolTip")
/// of a control cell. Item i of ColTraduction is the text in language i, item 1 the reference; "" is "not
/// translated". Languages are numbered 1..Global_Util::NbLangues() of the calling thread; the object belongs
/// to the thread that made it.
///
/// Failures: reading an item that the list does not have is InvalidIndex, a list that is none is
/// ObjectNotSet.
class KOB_EXPORT KOBTraductionObj final : public IKOBVBPersistStream,
                                          public std::enable_shared_from_this<KOBTraductionObj> {
 public:
  /// One "" per language of the thread's language count, and no name.
  KOBTraductionObj();
  /// One "" per language of a count of languages, and no name.
  explicit KOBTraductionObj(std::int32_t languages);

  /// The texts; may be none when a host has assigned none. A list that is kept keeps its entry alive, when
  /// that is one that references share.
  std::shared_ptr<TextList> ColTraduction() const { return colTraduction_.share(weak_from_this().lock()); }
  void setColTraduction(std::shared_ptr<TextList> texts) {
    entriesChanged();
    colTraduction_.assign(std::move(texts));
  }

  /// The translation's name within a control cell; "" for the entry of a message cell.
  /// The view lives until the name is changed.
  TextView nom() const noexcept { return nom_->text(); }
  void setnom(TextView name);

  /// Replaces the text of language `Index`; an Index outside 1..language count is ignored.
  void ChangeTraduction(TextView Traduction, std::int32_t Index);

  // As an object that is saved with its model; defined in persistence/.
  TextView getProgID() const noexcept override;
  std::shared_ptr<ProgIdTable> getProgIdTable() override;
  void write(PersistStream& stream) override;
  void read(PersistStream& stream) override;

  // Internal: for the other classes and rooms of the component.

  /// Where the list of texts lies unless a host assigned one, for who wants to fetch it before it is read.
  const HeldList<TextList>& heldTexts() const noexcept { return colTraduction_; }
  /// Where the characters of the texts lie, for who wants to fetch them before they are read; null for none.
  const char16_t* textUnits() const noexcept {
    const TextList* const list = colTraduction_.get();
    return list != nullptr ? list->units() : nullptr;
  }
  /// The text of a language where there is one, else "".
  TextView textAt(std::int32_t langue) const noexcept {
    const TextList* const list = colTraduction_.get();
    return list != nullptr && langue >= 1 && langue <= list->Count() ? list->Item(langue) : TextView();
  }
  /// ColTraduction without taking a reference, or ObjectNotSet.
  TextList& texts() const {
    TextList* const list = colTraduction_.get();
    if (list == nullptr) {
      throw Failure(FailureKind::ObjectNotSet);
    }
    return *list;
  }
  /// Appends "" for each i from the present count up to the language count, inclusive: always one more than
  /// the gap, so an entry already at the count still receives one.
  void UpdateNbLangues();
  /// Makes `langue` a test language: the reference text between "** " and " **".
  void UpdateTestLangue(std::int32_t langue);
  void ClearLangue(std::int32_t langue);
  /// Copies this entry's texts into the gaps of `target` when both have the same reference text (case
  /// ignored).
  void CompleteTraduction(KOBTraductionObj& target) const;
  /// The same for a bare list whose reference text is passed separately.
  void CompleteColTraduction(TextView reference, TextList& list) const;
  /// Whether the reference text contains `search`, case ignored; "" is contained in every non-empty text.
  bool ContainsText(TextView search) const;
  /// Whether the text of language `index` + 1 is "": languages count from 0 here.
  bool IsLangueEmpty(std::int16_t index) const;

 private:
  struct ReleaseName {
    void operator()(const StoredText* name) const noexcept;
  };
  using Name = std::unique_ptr<const StoredText, ReleaseName>;
  /// A usual name's is shared by all entries.
  static Name makeName(TextView name);

  HeldList<TextList> colTraduction_;
  Name nom_;
};

}  // namespace kob
