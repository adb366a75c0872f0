// SPDX-FileCopyrightText: The KOBTraduction authors
#include <kobtraduction/editor/DlgTraductionWidgets.h>

namespace kob {

namespace {

// A slider's value is a factor in hundredths.
constexpr std::int32_t smallestFactor = 10;
constexpr std::int32_t largestFactor = 400;

template <class Kind>
Kind& captioned(Kind& widget, TextView caption) {
  widget.setCaption(caption);
  return widget;
}

Slider& factorSlider(Slider& slider, TextView caption) {
  slider.setRange(smallestFactor, largestFactor);
  return captioned(slider, caption);
}

std::array<OptionButton*, 3> kindButtons(DialogWindow& window, Widget* container) {
  constexpr TextView name = u"OptTypFeuille";
  OptionButton& empty = captioned(window.addOptionButton({name, 0, container}, nullptr), u"Empty");
  OptionButton& message = captioned(window.addOptionButton({name, 1, container}, &empty), u"Message");
  OptionButton& control = captioned(window.addOptionButton({name, 2, container}, &empty), u"Controle");
  return {&empty, &message, &control};
}

}  // namespace

DlgTraductionWidgets::DlgTraductionWidgets(DialogWindow& window)
    : mFichier(captioned(window.addMenuItem({u"mFichier"}), u"Fichier")),
      m_Save(captioned(window.addMenuItem({u"m_Save", -1, &mFichier}), u"Save")),
      m_SaveAs(captioned(window.addMenuItem({u"m_SaveAs", -1, &mFichier}), u"Save As")),
      mEdit(captioned(window.addMenuItem({u"mEdit"}), u"Edition")),
      m_Search(captioned(window.addMenuItem({u"m_Search", -1, &mEdit}), u"Search")),
      ImageList1(window.addImageList({u"ImageList1"})),
      DlgFile(window.addSaveFileDialog({u"DlgFile"})),
      pConteneur(window.addPictureBox({u"pConteneur"})),
      TV(window.addTreeView({u"TV", -1, &pConteneur})),
      PProperty(window.addPictureBox({u"PProperty", -1, &pConteneur})),
      bAdd(captioned(window.addButton({u"bAdd", -1, &PProperty}), u"Ajouter un noeuds")),
      bSupp(captioned(window.addButton({u"bSupp", -1, &PProperty}), u"Supprimer un noeuds")),
      FrName(window.addFrame({u"FrName", -1, &PProperty})),
      lbName(captioned(window.addLabel({u"lbName", -1, &FrName}), u"Name")),
      tbNom(window.addTextBox({u"tbNom", -1, &FrName})),
      Label2(captioned(window.addLabel({u"Label2", -1, &FrName}), u"Alias")),
      tbAlias(window.addTextBox({u"tbAlias", -1, &FrName})),
      OptTypFeuille(kindButtons(window, &FrName)),
      chkContexte(captioned(window.addCheckBox({u"chkContexte", -1, &FrName}), u"Contexte")),
      lContexte(captioned(window.addLabel({u"lContexte", -1, &FrName}), u"Contexte")),
      tbContexte(window.addTextBox({u"tbContexte", -1, &FrName})),
      FrMessage(window.addFrame({u"FrMessage", -1, &PProperty})),
      FrControl(window.addFrame({u"FrControl", -1, &PProperty})),
      LstNomTrad(window.addListBox({u"LstNomTrad", -1, &FrControl})),
      bAddTrad(captioned(window.addButton({u"bAddTrad", -1, &FrControl}), u"Ajouter")),
      bSupTrad(captioned(window.addButton({u"bSupTrad", -1, &FrControl}), u"Supp")),
      chkPosition(captioned(window.addCheckBox({u"chkPosition", -1, &FrControl}), u"Position Active")),
      lbStatus(window.addLabel({u"lbStatus"})) {
  constexpr TextView image = u"ImgTradMess";
  for (std::size_t i = 0; i < shownLanguages; ++i) {
    const auto index = static_cast<std::int32_t>(i);
    window.addPictureBox({image, index, &FrMessage});
    tbTradMessage[i] = &window.addTextBox({u"tbTradMessage", index, &FrMessage});
  }
  for (std::size_t i = 0; i < shownLanguages; ++i) {
    const auto index = static_cast<std::int32_t>(i);
    // The same pictures again, numbered on.
    window.addPictureBox({image, index + static_cast<std::int32_t>(shownLanguages), &FrControl});
    tbTradCtrl[i] = &window.addTextBox({u"tbTradCtrl", index, &FrControl});
    sldLeft[i] = &factorSlider(window.addSlider({u"sldLeft", index, &FrControl}), u"Left");
    bl1[i] = &captioned(window.addButton({u"bl1", index, &FrControl}), u"1");
    sldwidth[i] = &factorSlider(window.addSlider({u"sldwidth", index, &FrControl}), u"Width");
    bw1[i] = &captioned(window.addButton({u"bw1", index, &FrControl}), u"1");
  }
}

}  // namespace kob
