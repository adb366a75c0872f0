// SPDX-FileCopyrightText: The KOBTraduction authors
#include "QtButtons.h"

#include <QButtonGroup>
#include <QScopedValueRollback>

namespace kob::qt {

void QtButton::listen(QObject& reports) {
  QObject::connect(&control(), &QPushButton::clicked, &reports, [this] { personClicked(); });
}

void QtCheckBox::listen(QObject& reports) {
  QObject::connect(&control(), &QCheckBox::clicked, &reports, [this](bool checked) {
    personClicked(checked);
    // The answer may have been another state.
    control().setChecked(isChecked());
  });
}

void QtOptionButton::listen(QObject& reports) {
  // The arrow keys choose without a click.
  QObject::connect(&control(), &QRadioButton::toggled, &reports, [this](bool on) {
    if (on && !isQuiet_) {
      letTabReach();
      personChose();
    }
  });
}

void QtOptionButton::showOn(bool on) {
  const QScopedValueRollback quiet(isQuiet_, true);
  QButtonGroup* const group = control().group();
  if (!on && control().isChecked() && group != nullptr) {
    // A group that is exclusive keeps one of its buttons on.
    group->setExclusive(false);
    control().setChecked(false);
    group->setExclusive(true);
  } else {
    control().setChecked(on);
  }
  if (on) {
    letTabReach();
  }
}

void QtOptionButton::letTabReach() {
  // Of its group Tab goes to the button that is on; the toolkit sees to it only once one has had the focus.
  if (const QButtonGroup* const group = control().group()) {
    for (QAbstractButton* const button : group->buttons()) {
      button->setFocusPolicy(button == &control() ? Qt::StrongFocus : Qt::ClickFocus);
    }
  }
}

void QtSlider::listen(QObject& reports) {
  QObject::connect(&control(), &FactorSlider::moved, &reports, [this](int value) { personMoved(value); });
}

}  // namespace kob::qt
