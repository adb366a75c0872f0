// SPDX-FileCopyrightText: The KOBTraduction authors
#include "WidgetForm.h"

#include <QCheckBox>
#include <QCoreApplication>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>

#include <algorithm>
#include <cstddef>

namespace bench {

namespace {

constexpr int columns = 8;

QWidget* makeControl(int number, QWidget* parent, Part::Kind& kind, const char*& stem) {
  switch (number % 3) {
    case 0:
      kind = Part::Kind::Label;
      stem = "lblText";
      return new QLabel(parent);
    case 1:
      kind = Part::Kind::Button;
      stem = "cmdAction";
      return new QPushButton(parent);
    default:
      kind = Part::Kind::Button;
      stem = "chkOption";
      return new QCheckBox(parent);
  }
}

/// Puts a widget into the next cell of its parent's grid, by a layout or by hand.
void place(QWidget* widget, int number, int perRow, QSize cell) {
  const int row = number / perRow;
  const int column = number % perRow;
  if (auto* const grid = qobject_cast<QGridLayout*>(widget->parentWidget()->layout())) {
    grid->addWidget(widget, row, column);
  } else {
    widget->setGeometry(column * cell.width(), row * cell.height(), cell.width(), cell.height());
  }
}

}  // namespace

void Part::setCaption(const QString& text) const {
  switch (kind) {
    case Kind::Label:
      static_cast<QLabel*>(widget)->setText(text);
      break;
    case Kind::Button:
      static_cast<QAbstractButton*>(widget)->setText(text);
      break;
    case Kind::GroupBox:
      static_cast<QGroupBox*>(widget)->setTitle(text);
      break;
  }
}

QString Part::caption() const {
  switch (kind) {
    case Kind::Label:
      return static_cast<QLabel*>(widget)->text();
    case Kind::Button:
      return static_cast<QAbstractButton*>(widget)->text();
    default:
      return static_cast<QGroupBox*>(widget)->title();
  }
}

WidgetForm::WidgetForm(int controls, int perGroup, Placing placing) : window_(std::make_unique<QWidget>()) {
  window_->setObjectName("FrmBench");
  window_->setWindowTitle(titleFor(1));
  if (placing == Placing::LaidOut) {
    auto* const grid = new QGridLayout(window_.get());
    // The window stays as large as it is, whatever the texts need.
    grid->setSizeConstraint(QLayout::SetNoConstraint);
  }
  const QSize cell(150, 26);
  const int perRow = perGroup > 100 ? columns : 2;
  const QSize groupCell(perRow * cell.width(), (perGroup / perRow + 2) * cell.height());
  QGroupBox* group = nullptr;
  for (int i = 0; i < controls; ++i) {
    const int inGroup = i % perGroup;
    if (inGroup == 0) {
      group = new QGroupBox(window_.get());
      addPart(Part::Kind::GroupBox, group, "fraGroup");
      place(group, i / perGroup, columns, groupCell);
      if (placing == Placing::LaidOut) {
        new QGridLayout(group);
      }
      continue;
    }
    Part::Kind kind = Part::Kind::Label;
    const char* stem = nullptr;
    QWidget* const control = makeControl(i, group, kind, stem);
    addPart(kind, control, stem);
    place(control, inGroup - 1, perRow, cell);
  }
  window_->resize(1200, 800);
  window_->show();
  settle();
}

void WidgetForm::addPart(Part::Kind kind, QWidget* widget, const char* stem) {
  const int number = static_cast<int>(parts_.size());
  widget->setObjectName(stem + QString::number(number));
  parts_.push_back({kind, widget});
  parts_.back().setCaption(QString::fromStdString(textFor(TextKind::Caption, number, 1)));
  widget->setToolTip(QString::fromStdString(textFor(TextKind::ToolTip, number, 1)));
}

void WidgetForm::settle() {
  QCoreApplication::sendPostedEvents();
  QCoreApplication::processEvents();
}

QString titleFor(int language) {
  return QString::fromStdString(textFor(TextKind::Caption, 0, language));
}

}  // namespace bench
