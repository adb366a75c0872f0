// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include <kobtraduction/editor/Button.h>
#include <kobtraduction/editor/CheckBox.h>
#include <kobtraduction/editor/DialogWindow.h>
#include <kobtraduction/editor/Frame.h>
#include <kobtraduction/editor/ImageList.h>
#include <kobtraduction/editor/Label.h>
#include <kobtraduction/editor/ListBox.h>
#include <kobtraduction/editor/MenuItem.h>
#include <kobtraduction/editor/OptionButton.h>
#include <kobtraduction/editor/PictureBox.h>
#include <kobtraduction/editor/SaveFileDialog.h>
#include <kobtraduction/editor/Slider.h>
#include <kobtraduction/editor/TextBox.h>
#include <kobtraduction/editor/TreeView.h>

#include <array>
#include <cstddef>

namespace kob {

/// Item i of an array of widgets belongs to language i + 1. The editor shows six languages, whatever the
/// language count.
inline constexpr std::size_t shownLanguages = 6;
template <class Kind>
using PerLanguage = std::array<Kind*, shownLanguages>;

/// The widgets of DlgTraduction with what stands on them, added to a window in the order in which they are
/// read. Internal.
struct DlgTraductionWidgets {
  explicit DlgTraductionWidgets(DialogWindow& window);

  MenuItem& mFichier;
  MenuItem& m_Save;
  MenuItem& m_SaveAs;
  MenuItem& mEdit;
  MenuItem& m_Search;
  ImageList& ImageList1;
  SaveFileDialog& DlgFile;

  PictureBox& pConteneur;
  TreeView& TV;
  PictureBox& PProperty;
  Button& bAdd;
  Button& bSupp;

  Frame& FrName;
  Label& lbName;
  TextBox& tbNom;
  Label& Label2;
  TextBox& tbAlias;
  std::array<OptionButton*, 3> OptTypFeuille;
  CheckBox& chkContexte;
  Label& lContexte;
  TextBox& tbContexte;

  Frame& FrMessage;
  PerLanguage<TextBox> tbTradMessage{};

  Frame& FrControl;
  ListBox& LstNomTrad;
  Button& bAddTrad;
  Button& bSupTrad;
  CheckBox& chkPosition;
  PerLanguage<TextBox> tbTradCtrl{};
  PerLanguage<Slider> sldLeft{};
  PerLanguage<Button> bl1{};
  PerLanguage<Slider> sldwidth{};
  PerLanguage<Button> bw1{};

  /// At the bottom of the window: what a person should know just now, mostly nothing.
  Label& lbStatus;
};

}  // namespace kob
