// SPDX-FileCopyrightText: The KOBTraduction authors
#include "Suite.h"
#include "Words.h"

#include <kobtraduction/model/KOBModeleTraduction.h>
#include <kobtraductionqt/KOBTraductionQt.h>
#include <kobtraductionqt/QtWidgetSet.h>

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QDialog>
#include <QKeyEvent>
#include <QLineEdit>
#include <QListView>
#include <QListWidget>
#include <QMouseEvent>
#include <QPlainTextEdit>
#include <QPointer>
#include <QStyle>
#include <QTimer>
#include <QTreeWidget>
#include <QVBoxLayout>

#include <array>
#include <cstddef>
#include <functional>
#include <string>
#include <vector>

namespace bench {

namespace {

constexpr int perForm = 100;
constexpr int languages = 6;
constexpr int passes = 10;
/// What a person does not notice, in seconds: one picture of sixty in a second.
constexpr double frame = 0.016;

QString nameOf(int cell) {
  return QStringLiteral("Controle%1").arg(cell);
}
QString formOf(int cell) {
  return QStringLiteral("Formulaire%1").arg(cell / perForm);
}

/// `count` messages, a hundred in a form.
void fill(kob::KOBModeleTraduction& model, int count) {
  std::shared_ptr<kob::KOBCellTraduction> form;
  for (int i = 0; i < count; ++i) {
    if (i % perForm == 0) {
      form = model.Racine()->AddNoeuds(kob::qt::toText(formOf(i)));
    }
    const auto cell = form->AddNoeuds(kob::qt::toText(nameOf(i)));
    cell->setTypeFeuille(1);
    for (int language = 1; language <= 3; ++language) {
      cell->Traduction()->ChangeTraduction(
          kob::qt::toText(QString::fromStdString(textFor(TextKind::Caption, i, language))), language);
    }
  }
}

/// Opens the editor and acts in its window; the window is closed afterwards.
void inEditor(kob::KOBModeleTraduction& model, const QString& path,
              const std::function<void(QWidget&)>& act) {
  QTimer::singleShot(0, [&act] {
    const QPointer<QWidget> editor = QApplication::activeModalWidget();
    act(*editor);
    editor->close();
  });
  model.Show(0, kob::qt::toText(path));
}

void key(QWidget& widget, Qt::Key code, const QString& text) {
  QKeyEvent press(QEvent::KeyPress, code, Qt::NoModifier, text);
  QApplication::sendEvent(&widget, &press);
  QKeyEvent release(QEvent::KeyRelease, code, Qt::NoModifier, text);
  QApplication::sendEvent(&widget, &release);
}

/// Types a letter and takes it away again in turn, and lets the screen follow.
void typeIn(QPlainTextEdit& box, int pass) {
  key(box, pass % 2 == 0 ? Qt::Key_A : Qt::Key_Backspace, pass % 2 == 0 ? QStringLiteral("a") : QString());
  QApplication::processEvents();
}

void click(QAbstractItemView& view, const QModelIndex& index) {
  const QPointF place = view.visualRect(index).center();
  for (const QEvent::Type type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
    QMouseEvent event(type, place, view.viewport()->mapToGlobal(place), Qt::LeftButton, Qt::LeftButton, {});
    QApplication::sendEvent(view.viewport(), &event);
  }
  QApplication::processEvents();
}

/// What one would make of the toolkit's own items: a tree beside six boxes.
class BareWindow {
 public:
  explicit BareWindow(int count) : hits_(&window_) {
    auto* const row = new QHBoxLayout(&window_);
    tree_ = new QTreeWidget(&window_);
    tree_->setHeaderHidden(true);
    tree_->setUniformRowHeights(true);
    row->addWidget(tree_);
    auto* const column = new QVBoxLayout;
    row->addLayout(column);
    for (QPlainTextEdit*& box : boxes_) {
      box = new QPlainTextEdit(&window_);
      column->addWidget(box);
    }
    window_.resize(1000, 720);
    addItems(*tree_, count);
    QObject::connect(tree_, &QTreeWidget::itemClicked, &window_, [this](auto* item) { show(*item); });
    tree_->topLevelItem(0)->setExpanded(true);
    window_.show();
    QApplication::processEvents();
  }

  static void addItems(QTreeWidget& tree, int count) {
    const QIcon picture = QApplication::style()->standardIcon(QStyle::SP_FileIcon);
    QTreeWidgetItem* form = nullptr;
    QList<QTreeWidgetItem*> forms;
    for (int i = 0; i < count; ++i) {
      if (i % perForm == 0) {
        form = item(formOf(i), formOf(i), picture);
        forms += form;
      }
      form->addChild(item(nameOf(i), formOf(i) + QLatin1Char('\\') + nameOf(i), picture));
    }
    tree.addTopLevelItems(forms);
  }

  /// A list in a window over this one; a click on one of its lines selects and shows an item, and hides it.
  QListWidget& hits(const std::vector<int>& cells) {
    auto* const column = new QVBoxLayout(&hits_);
    auto* const list = new QListWidget(&hits_);
    column->addWidget(list);
    for (const int cell : cells) {
      list->addItem(nameOf(cell));
    }
    QObject::connect(list, &QListWidget::itemClicked, &window_, [this, list, cells] {
      const int cell = cells[static_cast<std::size_t>(list->currentRow())];
      QTreeWidgetItem* const item = tree_->topLevelItem(cell / perForm)->child(cell % perForm);
      tree_->setCurrentItem(item);
      show(*item);
      hits_.hide();
    });
    return *list;
  }
  QDialog& hitsWindow() { return hits_; }

  QTreeWidget& tree() const { return *tree_; }
  QPlainTextEdit& box() const { return *boxes_.front(); }
  QModelIndex child(int row) const { return tree_->model()->index(row, 0, tree_->model()->index(0, 0)); }

 private:
  static QTreeWidgetItem* item(const QString& text, const QString& tag, const QIcon& picture) {
    auto* const made = new QTreeWidgetItem;
    made->setText(0, text);
    made->setIcon(0, picture);
    made->setData(0, Qt::UserRole, tag);
    return made;
  }

  void show(const QTreeWidgetItem& item) const {
    for (QPlainTextEdit* const box : boxes_) {
      box->setPlainText(item.text(0));
    }
  }

  QWidget window_;
  QDialog hits_;
  QTreeWidget* tree_ = nullptr;
  std::array<QPlainTextEdit*, languages> boxes_{};
};

void contestOfOpening(int count, const std::function<void(Contest&)>& run) {
  kob::qt::QtWidgetSet widgets;
  kob::KOBModeleTraduction model;
  fill(model, count);
  Contest contest("Editor, opening", std::to_string(count));
  contest.add("Show", 1, [&](int) { inEditor(model, {}, [](QWidget&) { QApplication::processEvents(); }); });
  contest.add("tree items", 1, [&](int) {
    QTreeWidget tree;
    BareWindow::addItems(tree, count);
    benchmark::DoNotOptimize(tree.topLevelItemCount());
  });
  contest.expect({"Show", "tree items", 1.5});
  run(contest);
}

/// The editor on its first cell, beside the bare window.
void besideTheBareWindow(
    int count, const std::function<void(QWidget& editor, BareWindow& bare, kob::KOBModeleTraduction&)>& act) {
  kob::qt::QtWidgetSet widgets;
  kob::KOBModeleTraduction model;
  fill(model, count);
  BareWindow bare(count);
  inEditor(model, formOf(0) + QLatin1Char('\\') + nameOf(0),
           [&](QWidget& editor) { act(editor, bare, model); });
}

void contestOfTyping(int count, const std::function<void(Contest&)>& run) {
  besideTheBareWindow(count, [&](const QWidget& editor, const BareWindow& bare, auto& /*model*/) {
    auto& box = *editor.findChild<QPlainTextEdit*>(QStringLiteral("tbTradMessage(1)"));
    Contest contest("Editor, keystroke", std::to_string(count));
    contest.setPasses(passes);
    contest.add("in the editor", 1, [&](int pass) { typeIn(box, pass); });
    contest.add("in a bare box", 1, [&](int pass) { typeIn(bare.box(), pass); });
    // The index by which clicks complete texts goes along.
    auto& reference = *editor.findChild<QPlainTextEdit*>(QStringLiteral("tbTradMessage(0)"));
    contest.add("in the reference text", 1, [&](int pass) { typeIn(reference, pass); });
    for (const char* const where : {"in the editor", "in the reference text"}) {
      contest.expect({where, "in a bare box", 2});
      contest.expect({where, {}, frame});
    }
    run(contest);
  });
}

void contestOfClicks(int count, const std::function<void(Contest&)>& run) {
  besideTheBareWindow(count, [&](const QWidget& editor, const BareWindow& bare, auto& /*model*/) {
    auto& tree = *editor.findChild<QTreeView*>(QStringLiteral("TV"));
    const auto child = [&tree](int row) { return tree.model()->index(row, 0, tree.model()->index(0, 0)); };
    Contest contest("Editor, click on a node", std::to_string(count));
    contest.setPasses(passes);
    // A click after typing: what the editor knows of reference texts must not be gathered anew for it.
    auto& reference = *editor.findChild<QPlainTextEdit*>(QStringLiteral("tbTradMessage(0)"));
    contest.add(
        "in the editor", 1, [&](int pass) { click(tree, child(pass)); },
        [&](int pass) { typeIn(reference, pass); });
    contest.add("bare tree and boxes", 1, [&](int pass) { click(bare.tree(), bare.child(pass)); });
    contest.expect({"in the editor", "bare tree and boxes", 2});
    contest.expect({"in the editor", {}, frame});
    run(contest);
  });
}

/// A click on a line that is in view, until the screen has followed; the seconds.
double secondsOfClick(QListView& list, int row) {
  const QModelIndex line = list.model()->index(row, 0);
  list.scrollTo(line);
  QApplication::processEvents();
  const double start = now(Clock::Thread);
  click(list, line);
  return now(Clock::Thread) - start;
}

/// Opens the editor's search, lets something happen in it, and returns when it is closed.
void inSearch(const QWidget& editor, const std::function<void(QWidget&)>& act) {
  QTimer::singleShot(0, [&act] {
    QApplication::processEvents();
    act(*QApplication::activeModalWidget());
  });
  editor.findChild<QAction*>(QStringLiteral("m_Search"))->trigger();
}

/// The cells that hold this in their reference text, by their numbers.
std::vector<int> cellsWith(kob::KOBModeleTraduction& model, kob::TextView text) {
  kob::CellResults results;
  model.SearchString(text, &results);
  std::vector<int> cells;
  for (const auto& cell : results) {
    cells.push_back(kob::qt::toQString(cell->nom()).mid(nameOf(0).size() - 1).toInt());
  }
  return cells;
}

void contestOfHits(int count, const std::function<void(Contest&)>& run) {
  besideTheBareWindow(count, [&](const QWidget& editor, BareWindow& bare, kob::KOBModeleTraduction& model) {
    const QString sought = QStringLiteral("e");
    const std::vector<int> cells = cellsWith(model, kob::qt::toText(sought));
    QListWidget& bareList = bare.hits(cells);
    inSearch(editor, [&](QWidget& search) {
      key(*search.findChild<QLineEdit*>(QStringLiteral("tbSearchString")), Qt::Key_E, sought);
      search.findChild<QAbstractButton*>(QStringLiteral("bNewSearch"))->click();
      search.close();
    });
    // All over the model.
    int turn = 0;
    const auto row = [&] { return static_cast<int>(++turn * std::size_t{9973} % cells.size()); };
    Contest contest("Editor, click on a hit", std::to_string(count));
    contest.addTimed("in the editor", [&] {
      double seconds = 0;
      inSearch(editor, [&](QWidget& search) {
        seconds = secondsOfClick(*search.findChild<QListView*>(QStringLiteral("List1")), row());
        if (search.isVisible()) {
          qFatal("no hit was clicked");
        }
      });
      return seconds;
    });
    contest.addTimed("bare list, tree and boxes", [&] {
      bare.hitsWindow().open();
      QApplication::processEvents();
      return secondsOfClick(bareList, row());
    });
    contest.expect({"in the editor", "bare list, tree and boxes", 2});
    contest.expect({"in the editor", {}, frame});
    run(contest);
  });
}

}  // namespace

void addEditing(Suite& suite) {
  const int count = suite.settings().quick ? 10000 : 100000;
  suite.add("Editor/open/" + std::to_string(count),
            [count](const auto& run) { contestOfOpening(count, run); });
  suite.add("Editor/typing/" + std::to_string(count),
            [count](const auto& run) { contestOfTyping(count, run); });
  suite.add("Editor/clicking/" + std::to_string(count),
            [count](const auto& run) { contestOfClicks(count, run); });
  suite.add("Editor/hits/" + std::to_string(count), [count](const auto& run) { contestOfHits(count, run); });
}

}  // namespace bench
