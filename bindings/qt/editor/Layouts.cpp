// SPDX-FileCopyrightText: The KOBTraduction authors
#include "Layouts.h"

#include "Panes.h"
#include "QtDialogWindow.h"

#include <QSplitterHandle>
#include <QWidget>

namespace kob::qt {

namespace {

/// The widgets were added in the order in which they are read.
void setTabOrder(const QtDialogWindow& window) {
  QWidget* last = nullptr;
  const auto follow = [&last](QWidget* next) {
    if (last != nullptr) {
      QWidget::setTabOrder(last, next);
    }
    last = next;
  };
  for (QWidget* const shown : window.shown()) {
    if (shown->focusPolicy() != Qt::NoFocus || shown->focusProxy() != nullptr) {
      follow(shown);
    }
    // The strip between the panes comes after the left one.
    if (auto* const area = qobject_cast<PaneSplitter*>(shown->parentWidget());
        area != nullptr && area->indexOf(shown) == 0) {
      follow(area->handle(1));
    }
  }
}

}  // namespace

void layOut(QtDialogWindow& window) {
  switch (window.kind()) {
    case DialogKind::Traduction:
      layOutTraduction(window);
      break;
    case DialogKind::AddNoeud:
      layOutAddNoeud(window);
      break;
    case DialogKind::AddTrad:
      layOutAddTrad(window);
      break;
    case DialogKind::Recherche:
      layOutRecherche(window);
      break;
  }
  setTabOrder(window);
}

}  // namespace kob::qt
