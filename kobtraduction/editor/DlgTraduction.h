// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include <kobtraduction/editor/DlgTraductionWidgets.h>
#include <kobtraduction/editor/KnownTexts.h>
#include <kobtraduction/editor/WidgetSet.h>
#include <kobtraduction/model/KOBModeleTraduction.h>

#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>

namespace kob {

class DlgAddNoeud;
class DlgRecherche;

/// The editor: the tree of a model's cells on the left, the shown cell on the right. It keeps no data of its
/// own: every edit is in the model at once, and closing saves nothing. A failure of the model leaves the
/// operation that met it; one that a person's event met comes out of Show. Lives on one thread, while its
/// model and its widget set do. Internal.
class DlgTraduction {
 public:
  /// The mode in which texts are translated and nothing else is changed.
  static constexpr std::int32_t restricted = 1;

  /// `cell` is the cell to open on, or none.
  DlgTraduction(WidgetSet& widgets, KOBModeleTraduction& Modele, std::shared_ptr<KOBCellTraduction> Cell,
                std::int32_t Mode);
  DlgTraduction(const DlgTraduction&) = delete;
  DlgTraduction& operator=(const DlgTraduction&) = delete;
  ~DlgTraduction();

  /// The model differs from its file before anything is done.
  void setUnsaved() { changed(); }
  /// Returns when a person has closed the editor.
  void Show();

  KOBModeleTraduction& Modele() const noexcept { return model_; }

  /// Selects and shows the node of a cell, and leaves the guard set: what is typed then reaches the model
  /// only after the tree has been rebuilt. Without such a node the guard is cleared.
  void SelectCell(const KOBCellTraduction& cell);

 private:
  using Node = TreeView::Node;

  /// Puts the guard into a state, and back at the end of the scope.
  class Updating;

  /// A handler that brings the status line up to date afterwards.
  template <class Handler>
  auto handler(Handler handle);
  void connect();
  void connectTexts();
  void connectPosition();
  /// What the window has to show before it is shown.
  void Activate();
  void restrict();
  void showTitle();
  void showStatus();
  void save();
  void saveAs();
  void saveTo(TextView file);
  /// The model differs from its file.
  void changed() { window_->setModified(true); }

  // The tree.
  void FillTV();
  void addTopLevel(KOBCellTraduction& cell);
  Node AddToTV(KOBCellTraduction& cell, Node parent);
  void clickNode(Node node);
  void completeTexts(const KOBCellTraduction& cell);

  // The shown cell.
  void DisplayCell(Node node);
  void displayName();
  void displayMessage();
  void displayControl();
  void clickTranslationName();
  void changeText(KOBTraductionObj& entry, TextView text, std::int32_t language);
  /// Whether what is typed now is recorded.
  bool isRecording() const noexcept { return !m_Updating && Cell_ != nullptr; }
  /// The entry of the selected line.
  KOBTraductionObj& selectedEntry() const;

  // Cells and translation names.
  void addCell();
  void fillNewCell(KOBCellTraduction& cell, const DlgAddNoeud& dialog);
  void deleteCell();
  void addTranslationName();
  void deleteTranslationName();

  // Position.
  void displayPosition();
  void clickPosition();
  void moveLeft(std::size_t slot);
  void moveWidth(std::size_t slot);
  void resetLeft(std::size_t slot);
  void resetWidth(std::size_t slot);
  void moveOverSplitter(double x, bool leftOnly);
  void resizePanes(double x);

  WidgetSet& set_;
  std::unique_ptr<DialogWindow> window_;
  DlgTraductionWidgets w;
  KOBModeleTraduction& model_;
  /// The shown cell, or none: that of the selected node, once one has been selected.
  std::shared_ptr<KOBCellTraduction> Cell_;
  std::int32_t Mode_;
  std::unique_ptr<DlgRecherche> m_Recherche;
  /// The texts that a clicked cell is completed from.
  KnownTexts known_;
  /// While it is set, what happens to the widgets does not reach the model.
  bool m_Updating = false;
  /// Events that are being handled, one within the other.
  int handling_ = 0;
};

class DlgTraduction::Updating {
 public:
  /// Sets the guard, and puts back what it was.
  explicit Updating(DlgTraduction& dialog) noexcept : Updating(dialog, dialog.m_Updating) {}
  /// Sets the guard, and leaves it as told.
  Updating(DlgTraduction& dialog, bool after) noexcept : dialog_(dialog), after_(after) {
    dialog_.m_Updating = true;
  }
  Updating(const Updating&) = delete;
  Updating& operator=(const Updating&) = delete;
  ~Updating() { dialog_.m_Updating = after_; }

 private:
  DlgTraduction& dialog_;
  bool after_;
};

template <class Handler>
auto DlgTraduction::handler(Handler handle) {
  return [this, handle](auto... arguments) {
    ++handling_;
    try {
      handle(arguments...);
    } catch (...) {
      --handling_;
      throw;
    }
    if (--handling_ == 0) {
      showStatus();
    }
  };
}

}  // namespace kob
