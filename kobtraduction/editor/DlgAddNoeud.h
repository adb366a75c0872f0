// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include <kobtraduction/editor/Button.h>
#include <kobtraduction/editor/CheckBox.h>
#include <kobtraduction/editor/DialogWindow.h>
#include <kobtraduction/editor/Label.h>
#include <kobtraduction/editor/OptionButton.h>
#include <kobtraduction/editor/TextBox.h>
#include <kobtraduction/editor/WidgetSet.h>

#include <array>
#include <cstdint>
#include <memory>

namespace kob {

/// Asks for what a new cell is to be. Used on one thread, over its owner's window. Internal.
class DlgAddNoeud {
 public:
  DlgAddNoeud(WidgetSet& widgets, DialogWindow& owner);
  DlgAddNoeud(const DlgAddNoeud&) = delete;
  DlgAddNoeud& operator=(const DlgAddNoeud&) = delete;

  /// Shows it; whether a person closed it with OK. What was entered can be asked for afterwards.
  bool Ask();

  const Text& nom() const noexcept { return tbNom_.text(); }
  const Text& Alias() const noexcept { return tbAlias_.text(); }
  /// The chosen TypeFeuille.
  std::int32_t TypeFeuille() const noexcept;
  bool Contexte() const noexcept { return chkContexte_.isChecked(); }
  /// The reference texts: the message, or a control's caption; a control's tool tip.
  const Text& text1() const noexcept { return tb1_.text(); }
  const Text& text2() const noexcept { return tb2_.text(); }

 private:
  void chooseKind(std::int32_t kind);

  std::unique_ptr<DialogWindow> window_;
  Label& lbName_;
  TextBox& tbNom_;
  Label& Label2_;
  TextBox& tbAlias_;
  OptionButton& empty_;
  OptionButton& message_;
  OptionButton& control_;
  CheckBox& chkContexte_;
  Label& lb1_;
  TextBox& tb1_;
  Label& lb2_;
  TextBox& tb2_;
  Button& bOK_;
  Button& bCancel_;
  bool result_ = false;
};

}  // namespace kob
