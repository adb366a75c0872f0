// SPDX-FileCopyrightText: The KOBTraduction authors
#include "PictureChecks.h"

#include <QAbstractItemView>
#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QSlider>
#include <QStyle>
#include <QStyleOptionButton>
#include <QStyleOptionComboBox>

#include <algorithm>
#include <cmath>
#include <map>
#include <vector>

namespace kob::qt::testing {

namespace {

/// What a text needs that is meant to be read, what one needs that is disabled, and what the toolkit's own
/// colours of a selection give.
constexpr double readable = 4.5;
constexpr double discernible = 3;
constexpr double selected = 3;
/// Of a picture that shows something.
constexpr std::size_t fewestColours = 16;
constexpr std::size_t fewestColoursOfNode = 3;

using Colours = std::map<QRgb, int>;

/// Where a text stands on a widget, and how well it has to be read.
struct Reading {
  QRect area;
  double contrast;
};
using Readings = std::vector<Reading>;

bool isBadge(const QWidget& widget) {
  return widget.objectName().startsWith(QLatin1String("ImgTradMess"));
}

/// What the editor's dialogs are made of, without what the toolkit makes widgets of.
bool isLookedAt(const QWidget& widget) {
  if (!widget.isVisible() || widget.isWindow() || widget.objectName().startsWith(QLatin1String("qt_"))) {
    return false;
  }
  return qobject_cast<const QLabel*>(&widget) != nullptr ||
         qobject_cast<const QAbstractButton*>(&widget) != nullptr ||
         qobject_cast<const QLineEdit*>(&widget) != nullptr ||
         qobject_cast<const QPlainTextEdit*>(&widget) != nullptr ||
         qobject_cast<const QComboBox*>(&widget) != nullptr ||
         qobject_cast<const QSlider*>(&widget) != nullptr ||
         qobject_cast<const QGroupBox*>(&widget) != nullptr ||
         qobject_cast<const QAbstractItemView*>(&widget) != nullptr ||
         qobject_cast<const QMenuBar*>(&widget) != nullptr || isBadge(widget);
}

std::vector<const QWidget*> lookedAt(const QWidget& window) {
  std::vector<const QWidget*> all;
  for (const QWidget* const widget : window.findChildren<QWidget*>()) {
    if (isLookedAt(*widget)) {
      all.push_back(widget);
    }
  }
  return all;
}

QString nameOf(const QWidget& widget) {
  const QString inside =
      widget.objectName().isEmpty() ? widget.parentWidget()->objectName() : widget.objectName();
  return QStringLiteral("%1 (%2)").arg(inside, QLatin1String(widget.metaObject()->className()));
}

/// What what stands on a widget needs.
QSize needed(const QWidget& widget) {
  if (const auto* const label = qobject_cast<const QLabel*>(&widget)) {
    return label->wordWrap() ? QSize(0, label->heightForWidth(label->width())) : label->sizeHint();
  }
  if (const auto* const button = qobject_cast<const QPushButton*>(&widget)) {
    // The toolkit asks for more around a short text.
    constexpr int border = 4;
    return button->fontMetrics().size(Qt::TextShowMnemonic, button->text()) + QSize(2 * border, border);
  }
  const bool isFixed = qobject_cast<const QAbstractButton*>(&widget) != nullptr ||
                       qobject_cast<const QComboBox*>(&widget) != nullptr || isBadge(widget);
  if (isFixed) {
    return widget.sizeHint();
  }
  if (qobject_cast<const QLineEdit*>(&widget) != nullptr) {
    return {widget.minimumSizeHint().width(), widget.sizeHint().height()};
  }
  return widget.minimumSizeHint();
}

/// In the window: what is not scrolled away or cut off of a part of a widget.
QRect inWindow(const QWidget& widget, const QRect& part, const QWidget& window) {
  QRect seen = part;
  for (const QWidget* one = &widget; one != &window; one = one->parentWidget()) {
    seen = (seen & one->rect()).translated(one->pos());
  }
  return seen & window.rect();
}

QStringList cutOff(const QWidget& widget) {
  QStringList faults;
  const QSize least = needed(widget);
  if (least.width() > widget.width() || least.height() > widget.height()) {
    faults += QStringLiteral("%1 needs %2x%3 and has %4x%5")
                  .arg(nameOf(widget))
                  .arg(least.width())
                  .arg(least.height())
                  .arg(widget.width())
                  .arg(widget.height());
  }
  if (!widget.parentWidget()->rect().contains(widget.geometry())) {
    faults += nameOf(widget) + QStringLiteral(" sticks out of what it stands on");
  }
  return faults;
}

QStringList overlaps(const std::vector<const QWidget*>& widgets, const QWidget& window) {
  QStringList faults;
  for (std::size_t i = 0; i < widgets.size(); ++i) {
    for (std::size_t j = i + 1; j < widgets.size(); ++j) {
      const QWidget& a = *widgets[i];
      const QWidget& b = *widgets[j];
      const bool isInside = a.isAncestorOf(&b) || b.isAncestorOf(&a);
      if (!isInside && inWindow(a, a.rect(), window).intersects(inWindow(b, b.rect(), window))) {
        faults += nameOf(a) + QStringLiteral(" overlaps ") + nameOf(b);
      }
    }
  }
  return faults;
}

QRect contents(const QAbstractButton& button) {
  QStyleOptionButton option;
  option.initFrom(&button);
  option.text = button.text();
  const bool isRadio = qobject_cast<const QRadioButton*>(&button) != nullptr;
  return button.style()->subElementRect(
      isRadio ? QStyle::SE_RadioButtonContents : QStyle::SE_CheckBoxContents, &option, &button);
}

std::vector<QModelIndex> rowsInView(const QAbstractItemView& view) {
  std::vector<QModelIndex> rows;
  const int middle = view.viewport()->width() / 2;
  for (int y = 1; view.indexAt({middle, y}).isValid(); y += view.visualRect(rows.back()).height()) {
    rows.push_back(view.indexAt({middle, y}));
  }
  return rows;
}

int pictureWidth(const QAbstractItemView& view, const QModelIndex& row) {
  constexpr int space = 4;
  const bool hasPicture = !view.model()->data(row, Qt::DecorationRole).isNull();
  return hasPicture ? view.style()->pixelMetric(QStyle::PM_SmallIconSize) + space : 0;
}

Readings rowsOf(const QAbstractItemView& view) {
  Readings rows;
  for (const QModelIndex& row : rowsInView(view)) {
    const QRect whole = view.visualRect(row).translated(view.viewport()->pos());
    const bool isSelected = view.selectionModel()->isSelected(row);
    rows.push_back({whole.adjusted(pictureWidth(view, row), 0, 0, 0), isSelected ? selected : readable});
  }
  return rows;
}

Readings menusOf(const QMenuBar& bar) {
  Readings menus;
  for (QAction* const menu : bar.actions()) {
    menus.push_back({bar.actionGeometry(menu), readable});
  }
  return menus;
}

QRect editField(const QComboBox& combo) {
  QStyleOptionComboBox option;
  option.initFrom(&combo);
  return combo.style()->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, &combo);
}

Readings readingsOf(const QWidget& widget) {
  constexpr int frame = 4;
  const QRect inner = widget.rect().adjusted(frame, frame, -frame, -frame);
  const auto unlessEmpty = [&widget](const QString& text, const QRect& area) {
    const double wanted = widget.isEnabled() ? readable : discernible;
    return text.isEmpty() ? Readings() : Readings{{area, wanted}};
  };
  if (const auto* const label = qobject_cast<const QLabel*>(&widget)) {
    return unlessEmpty(label->text(), label->rect());
  }
  if (const auto* const push = qobject_cast<const QPushButton*>(&widget)) {
    return unlessEmpty(push->text(), inner);
  }
  if (const auto* const button = qobject_cast<const QAbstractButton*>(&widget)) {
    return unlessEmpty(button->text(), contents(*button));
  }
  if (const auto* const line = qobject_cast<const QLineEdit*>(&widget)) {
    return unlessEmpty(line->text(), inner);
  }
  if (const auto* const box = qobject_cast<const QPlainTextEdit*>(&widget)) {
    return unlessEmpty(box->toPlainText(), box->viewport()->geometry());
  }
  if (const auto* const combo = qobject_cast<const QComboBox*>(&widget)) {
    return unlessEmpty(combo->currentText(), editField(*combo));
  }
  if (const auto* const view = qobject_cast<const QAbstractItemView*>(&widget)) {
    return rowsOf(*view);
  }
  if (const auto* const bar = qobject_cast<const QMenuBar*>(&widget)) {
    return menusOf(*bar);
  }
  return isBadge(widget) ? Readings{{inner, readable}} : Readings();
}

Colours coloursOf(const QImage& picture, const QRect& area) {
  const double scale = picture.devicePixelRatio();
  const QRect pixels(QPointF(area.topLeft() * scale).toPoint(), (QSizeF(area.size()) * scale).toSize());
  Colours colours;
  const QRect within = pixels & picture.rect();
  for (int y = within.top(); y <= within.bottom(); ++y) {
    for (int x = within.left(); x <= within.right(); ++x) {
      ++colours[picture.pixel(x, y)];
    }
  }
  return colours;
}

/// Relative luminance, as accessibility guidelines compute it.
double luminance(QRgb colour) {
  const auto linear = [](int channel) {
    const double value = channel / 255.0;
    return value <= 0.04045 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
  };
  return 0.2126 * linear(qRed(colour)) + 0.7152 * linear(qGreen(colour)) + 0.0722 * linear(qBlue(colour));
}

/// Between the ground, which is the most frequent colour, and what stands out most from it.
double contrastIn(const Colours& colours) {
  const auto ground = std::max_element(colours.begin(), colours.end(),
                                       [](const auto& a, const auto& b) { return a.second < b.second; });
  double most = 1;
  for (const auto& [colour, count] : colours) {
    const double a = luminance(ground->first);
    const double b = luminance(colour);
    most = std::max(most, (std::max(a, b) + 0.05) / (std::min(a, b) + 0.05));
  }
  return most;
}

QStringList unreadable(const QWidget& widget, const QWidget& window, const QImage& picture) {
  QStringList faults;
  for (const Reading& reading : readingsOf(widget)) {
    const QRect seen = inWindow(widget, reading.area, window);
    // What is scrolled away in part is read once it is scrolled back.
    if (seen.size() != reading.area.size() || seen.isEmpty()) {
      continue;
    }
    const double contrast = contrastIn(coloursOf(picture, seen));
    if (contrast < reading.contrast) {
      faults += QStringLiteral("%1: a text with a contrast of %2, not %3")
                    .arg(nameOf(widget))
                    .arg(contrast)
                    .arg(reading.contrast);
    }
  }
  return faults;
}

QStringList blankNodes(const QWidget& widget, const QWidget& window, const QImage& picture) {
  QStringList faults;
  const auto* const view = qobject_cast<const QAbstractItemView*>(&widget);
  if (view == nullptr) {
    return faults;
  }
  for (const QModelIndex& row : rowsInView(*view)) {
    QRect area = view->visualRect(row).translated(view->viewport()->pos());
    area.setWidth(pictureWidth(*view, row));
    if (!area.isEmpty() && coloursOf(picture, inWindow(widget, area, window)).size() < fewestColoursOfNode) {
      faults += QStringLiteral("no picture beside %1").arg(row.data().toString());
    }
  }
  return faults;
}

}  // namespace

QStringList faultsOf(const QWidget& window, const QImage& picture) {
  QStringList faults;
  if (coloursOf(picture, window.rect()).size() < fewestColours) {
    faults += QStringLiteral("the picture is blank");
  }
  const std::vector<const QWidget*> widgets = lookedAt(window);
  for (const QWidget* const widget : widgets) {
    faults += cutOff(*widget);
    faults += unreadable(*widget, window, picture);
    faults += blankNodes(*widget, window, picture);
  }
  return faults + overlaps(widgets, window);
}

}  // namespace kob::qt::testing
