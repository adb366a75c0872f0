// SPDX-FileCopyrightText: The KOBTraduction authors
#include "FitCheck.h"

#include "TextRoom.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QLayout>
#include <QLineEdit>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QScrollArea>
#include <QSplitter>
#include <QTabBar>
#include <QTabWidget>
#include <QTableView>
#include <QToolBar>
#include <QVariant>

namespace kob::demo {

using namespace Qt::StringLiterals;

namespace {

class Search {
 public:
  std::vector<Misfit> run(const QWidget& form) {
    compare(form, form.windowTitle(), {}, titleRoom(form));
    look(form);
    return std::move(found_);
  }

 private:
  void look(const QWidget& widget) {
    std::vector<const QWidget*> children;
    for (const QObject* const child : widget.children()) {
      const auto* const control = qobject_cast<const QWidget*>(child);
      if (control != nullptr && control->isVisible() && !control->isWindow()) {
        children.push_back(control);
        check(*control);
        look(*control);
      }
    }
    if (placesChildrenItself(widget)) {
      checkPlaces(widget, children);
    }
  }

  void check(const QWidget& widget) {
    if (const auto* const label = qobject_cast<const QLabel*>(&widget)) {
      compare(widget, label->text(), {}, labelRoom(*label));
    } else if (const auto* const button = qobject_cast<const QAbstractButton*>(&widget)) {
      compare(widget, button->text(), {}, {button->sizeHint(), button->size()});
    } else if (const auto* const box = qobject_cast<const QGroupBox*>(&widget)) {
      compare(widget, box->title(), u"title"_s, {box->minimumSizeHint(), box->size()});
    } else if (const auto* const edit = qobject_cast<const QLineEdit*>(&widget)) {
      compare(widget, edit->placeholderText(), u"placeholder"_s, placeholderRoom(*edit));
    } else if (const auto* const memo = qobject_cast<const QPlainTextEdit*>(&widget)) {
      compare(widget, memo->placeholderText(), u"placeholder"_s, placeholderRoom(*memo));
    } else if (const auto* const combo = qobject_cast<const QComboBox*>(&widget)) {
      for (int i = 0; i < combo->count(); ++i) {
        compare(widget, combo->itemText(i), u"item %1"_s.arg(i), itemRoom(*combo, i));
      }
    } else if (const auto* const tabs = qobject_cast<const QTabBar*>(&widget)) {
      checkTabs(*tabs);
    } else if (const auto* const menus = qobject_cast<const QMenuBar*>(&widget)) {
      checkMenus(*menus);
    } else if (const auto* const bar = qobject_cast<const QToolBar*>(&widget)) {
      compare(widget, bar->windowTitle(), u"buttons"_s, {bar->sizeHint(), bar->size()});
    } else if (const auto* const table = qobject_cast<const QTableView*>(&widget)) {
      checkHeader(*table);
    }
  }

  void checkTabs(const QTabBar& tabs) {
    // Inside a tab widget the bar is as wide as its tabs; what it may use is the tab widget.
    const auto* const tabWidget = qobject_cast<const QTabWidget*>(tabs.parentWidget());
    const QWidget& holder = tabWidget != nullptr ? static_cast<const QWidget&>(*tabWidget) : tabs;
    for (int i = 0; i < tabs.count(); ++i) {
      const QRect place = tabs.tabRect(i);
      const int needed = tabs.fontMetrics().size(Qt::TextShowMnemonic, tabs.tabText(i)).width();
      compare(holder, tabs.tabText(i), u"tab %1"_s.arg(i), {{needed, 0}, {place.width(), 0}});
      compare(holder, tabs.tabText(i), u"tab %1"_s.arg(i), {{place.right() + 1, 0}, {holder.width(), 0}});
    }
  }

  void checkMenus(const QMenuBar& menus) {
    for (QAction* const action : menus.actions()) {
      // A menu that found no room is moved into the bar's extension and has no place.
      const QRect place = menus.actionGeometry(action);
      const int right = place.isEmpty() ? menus.sizeHint().width() : place.right() + 1;
      compare(menus, action->text(), u"menu"_s, {{right, 0}, {place.isEmpty() ? 0 : menus.width(), 0}});
    }
  }

  void checkHeader(const QTableView& table) {
    const QHeaderView& header = *table.horizontalHeader();
    for (int i = 0; header.isVisible() && i < header.count(); ++i) {
      compare(table, table.model()->headerData(i, Qt::Horizontal).toString(), u"column %1"_s.arg(i),
              {{header.sectionSizeHint(i), 0}, {header.sectionSize(i), 0}});
    }
  }

  void compare(const QWidget& control, const QString& text, const QString& part, const Room& room) {
    if (text.isEmpty()) {
      return;
    }
    const auto tell = [&](int needed, int available, const QString& side) {
      if (needed > available) {
        found_.push_back(
            {&control, part, text, u"needs %1 pixels of %2, has %3"_s.arg(needed).arg(side).arg(available)});
      }
    };
    tell(room.needed.width(), room.available.width(), u"width"_s);
    tell(room.needed.height(), room.available.height(), u"height"_s);
  }

  // Neither a layout nor one of the toolkit's own containers.
  static bool placesChildrenItself(const QWidget& widget) {
    const QByteArray name = widget.metaObject()->className();
    return widget.layout() == nullptr &&
           (name == "QWidget" || name == "QFrame" || qobject_cast<const QGroupBox*>(&widget) != nullptr ||
            widget.isWindow());
  }

  void checkPlaces(const QWidget& parent, const std::vector<const QWidget*>& children) {
    for (auto one = children.begin(); one != children.end(); ++one) {
      const QRect place = (*one)->geometry();
      if (!parent.rect().contains(place)) {
        found_.push_back(
            {*one,
             {},
             ownText(**one),
             u"needs %1 pixels of width, its parent has %2"_s.arg(place.right() + 1).arg(parent.width())});
      }
      for (auto other = one + 1; other != children.end(); ++other) {
        const QRect common = place.intersected((*other)->geometry());
        if (!common.isEmpty()) {
          found_.push_back({*one,
                            {},
                            ownText(**one),
                            u"lies %1 pixels over %2"_s.arg(common.width()).arg((*other)->objectName())});
        }
      }
    }
  }

  static QString ownText(const QWidget& widget) {
    const QVariant text =
        widget.property(qobject_cast<const QGroupBox*>(&widget) != nullptr ? "title" : "text");
    return text.toString();
  }

  std::vector<Misfit> found_;
};

}  // namespace

std::vector<Misfit> findMisfits(const QWidget& form) {
  return Search().run(form);
}

QString controlPath(const QWidget& control, const QWidget& form) {
  QString path;
  for (const QWidget* widget = &control; widget != nullptr; widget = widget->parentWidget()) {
    QString name = widget->objectName();
    if (name.startsWith("qt_"_L1) || (name.isEmpty() && widget != &control)) {
      continue;
    }
    const QVariant index = widget->property("Index");
    if (index.isValid()) {
      name += u"(%1)"_s.arg(index.toInt());
    }
    path = path.isEmpty() ? name : name + u'\\' + path;
    if (widget == &form) {
      break;
    }
  }
  return path;
}

}  // namespace kob::demo
