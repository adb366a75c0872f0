// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include <kobtraduction/base/Export.h>
#include <kobtraduction/base/Text.h>
#include <kobtraduction/engine/HostObject.h>
#include <kobtraduction/model/KOBCellTraduction.h>
#include <kobtraduction/persistence/PersistStream.h>

#include <cstdint>
#include <memory>

namespace kob {

class PathMemo;

/// A translation model: the tree of cells below the root "RACINE", and the operations that harvest live forms
/// into it and apply it to them. It is the one class that a host creates.
///
/// Languages are numbered from 1, the reference language in which the forms are written. The language count
/// is one value per thread, shared by all models of the thread: creating a model raises it to 6 when it is
/// lower, and it never shrinks. A model, its cells and the host objects handed to it are used on one thread
/// only.
///
/// A path is the names of cells below the root joined by "\"; case and empty segments do not count, and an
/// empty path is the root.
class KOB_EXPORT KOBModeleTraduction final : public IKOBVBPersistStream {
 public:
  KOBModeleTraduction();
  KOBModeleTraduction(const KOBModeleTraduction&) = delete;
  KOBModeleTraduction& operator=(const KOBModeleTraduction&) = delete;
  ~KOBModeleTraduction() override;

  /// The name of the translation file; a plain text that nothing checks.
  const Text& Fichier() const noexcept { return fichier_; }
  void setFichier(TextView Filename) { fichier_ = Filename; }

  /// The root cell; never none. Load replaces it.
  const std::shared_ptr<KOBCellTraduction>& Racine() const noexcept { return racine_; }

  /// The thread's language count.
  std::int32_t NbLangues() const noexcept;
  /// Raises the thread's language count and extends this model's tree; an equal or smaller value is ignored.
  /// Other models of the thread see the new count, but keep their shorter lists.
  void setNbLangues(std::int32_t count);

  /// Fills a language of every entry with the reference text marked as a test / with "". Only languages from
  /// 2 to the language count can be chosen; any other value does nothing.
  void UpdateTestLangue(std::int32_t langue);
  void ClearLangue(std::int32_t langue);

  /// Writes the model to a translation file / replaces the model by what a translation file holds, through
  /// the persistence service (see FileManager.h). True when the service finished and no record failed. A
  /// service that fails shows a box titled "KOBCN" with its description; the file, or the model, is then what
  /// it was. A record that fails shows nothing: the rest is written or read without it. Save leaves Fichier
  /// alone; Load sets it, and the thread's language count becomes the file's. Neither throws.
  bool Save(TextView Filename);
  bool Load(TextView Filename);

  /// Records the texts of a live form and of all its controls as language 1. A null form, like every failure
  /// the rules do not forgive, ends the call with the message "ERREUR " and a step marker; what was recorded
  /// stays.
  void UpdateWithForm(const HostRef& dlg, TextView module = {}, bool onlyVisible = false,
                      const HostRef& OnlyContainer = nullptr);
  /// The same for one control.
  void UpdateWithCtrl(const HostRef& Ctrl, TextView module = {});

  /// Writes the texts of language `langue` onto a live form and its controls, and scales left and width where
  /// the model says so. Failures end in a message ("ERREUR", "Erreur Traduit Controle"), never in an
  /// exception.
  void TraduitDialog(const HostRef& dlg, std::int32_t langue, TextView module = {}, bool onlyVisible = false,
                     const HostRef& OnlyContainer = nullptr);
  /// The same for one control.
  void TraduitControle(const HostRef& Ctrl, std::int32_t langue, TextView module = {});

  /// Puts the top-level cells of another model under this one's root, which must have no children yet; see
  /// KOBCellTraduction::AddModele for what happens else. Afterwards both models hold these cells: a text that
  /// is changed in one is changed in the other.
  void AddModele(KOBModeleTraduction& Modele);

  /// Fills the gaps of this model's texts from the cells at the same paths of another one, in `langue`, or
  /// with -1 in all languages from 2 up. Translations of a control are matched by their exact names. Then the
  /// entries of this model with the same reference text, case ignored, take each other's texts for the
  /// languages that they lack, never language 1. No text is ever overwritten and no cell is added. Fails with
  /// InvalidIndex at an entry that lacks an item, ObjectNotSet where something is none; what was filled
  /// before stays.
  void UpdateWithTraductionModele(const KOBModeleTraduction& tradmodel, std::int32_t langue = -1);

  /// The cell at a path, or none.
  std::shared_ptr<KOBCellTraduction> GetCell(TextView path) const;

  /// The path of a form, a control or a control record. Neither reads nor changes the model.
  Text GetPath(const HostRef& Ctrl, TextView module = {}) const;

  /// The text of a message cell in `langue`, its reference text when that is "", and "" for every other cell
  /// and for an unknown path. `nom` is accepted and changes nothing. Fails with InvalidIndex when the entry
  /// has no item `langue`.
  Text GetTraduction(TextView path, std::int32_t langue, TextView nom = {}) const;

  /// Opens the editor on this model and returns when the person has closed it: on the cell at `path`, or on
  /// none when the path is "" or unknown. With mode 1 texts can be translated and nothing else; any other
  /// mode opens all of the editor. Edits are in the model at once; nothing is saved unless the person does.
  /// The thread must have a widget set (see WidgetSet.h), else ObjectNotSet. Whatever failure of the model
  /// the person's doing meets closes the editor and is raised here. The model must outlive the call.
  void Show(std::int32_t mode = 1, TextView path = {});

  // As the object that a translation file holds; defined in persistence/.
  TextView getProgID() const noexcept override;
  std::shared_ptr<ProgIdTable> getProgIdTable() override;
  void write(PersistStream& stream) override;
  void read(PersistStream& stream) override;

  // Internal: for the other rooms of the component.

  /// GetCell without taking a reference; null when there is none.
  KOBCellTraduction* findCell(TextView path) const;
  /// The second step of UpdateWithTraductionModele.
  void CompleteIdentiques();
  /// Six texts, whatever the language count: `text`, and for languages 2 to 6 what the entries with this
  /// reference text, case ignored, have first, or "". Fails where an entry has no item 1 or lacks a text that
  /// is looked for.
  std::shared_ptr<TextList> GetTraductionsConnues(TextView text) const;
  /// KOBCellTraduction's searches, over the whole tree, root included. Results that are none (null) are left
  /// alone.
  void SearchString(TextView text, CellResults* results) const;
  void SearchNonTraduit(std::int32_t langue, CellResults* results) const;

 private:
  KOBCellTraduction* walkTo(TextView path) const;

  std::shared_ptr<KOBCellTraduction> racine_;
  /// Only ever a shortcut: it answers what a walk would find.
  std::unique_ptr<PathMemo> known_;
  std::shared_ptr<ProgIdTable> progIds_;
  Text fichier_;
};

}  // namespace kob
