// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include <kobtraduction/editor/Button.h>
#include <kobtraduction/editor/CheckBox.h>
#include <kobtraduction/editor/ComboBox.h>
#include <kobtraduction/editor/DialogWindow.h>
#include <kobtraduction/editor/Frame.h>
#include <kobtraduction/editor/ListBox.h>
#include <kobtraduction/editor/TextBox.h>
#include <kobtraduction/editor/WidgetSet.h>
#include <kobtraduction/model/KOBModeleTraduction.h>

#include <memory>

namespace kob {

class DlgTraduction;

/// Finds cells by a piece of their reference text, or because a language is missing, and makes the editor
/// show one. It lives as long as its editor and keeps the last hits, and the cells among them, in between.
/// Internal.
class DlgRecherche {
 public:
  DlgRecherche(WidgetSet& widgets, DialogWindow& owner, DlgTraduction& Editeur);
  DlgRecherche(const DlgRecherche&) = delete;
  DlgRecherche& operator=(const DlgRecherche&) = delete;

  /// Shows it; returns when a hit has been chosen or a person has closed it. The hits of before are shown
  /// again as long as the editor's model is the same.
  void Open();

 private:
  void Activate();
  void fillList();
  void search();
  void clickHit();

  DlgTraduction& Editeur_;
  std::unique_ptr<DialogWindow> window_;
  Frame& Frame1_;
  CheckBox& byText_;
  TextBox& tbSearchString_;
  Frame& Frame2_;
  CheckBox& byLanguage_;
  ComboBox& CbLangueSearch_;
  Button& bNewSearch_;
  ListBox& List1_;
  /// The model that was searched; only compared.
  const KOBModeleTraduction* Modele_ = nullptr;
  /// None before the first search.
  std::unique_ptr<CellResults> Resultats_;
};

}  // namespace kob
