// SPDX-FileCopyrightText: The KOBTraduction authors
#include "QtDialogWindow.h"

#include "EditorDialog.h"
#include "Layouts.h"
#include "NodePictures.h"
#include "QtButtons.h"
#include "QtLists.h"
#include "QtMenuItem.h"
#include "QtPictureBoxes.h"
#include "QtSaveFileDialog.h"
#include "QtTextBox.h"

#include <QButtonGroup>
#include <QEventLoop>
#include <QMenu>
#include <QMenuBar>

#include <algorithm>
#include <array>
#include <utility>

namespace kob::qt {

namespace {

constexpr int languages = 6;

/// As the editor's own names are written.
QString arrayName(const QString& name, int index) {
  return index < 0 ? name : name + QStringLiteral("(%1)").arg(index);
}

bool hasManyLines(TextView name) {
  constexpr std::array<TextView, 4> names{u"tbTradMessage", u"tbTradCtrl", u"tb1", u"tb2"};
  return std::find(names.begin(), names.end(), name) != names.end();
}

}  // namespace

QtDialogWindow::QtDialogWindow(DialogKind kind, QWidget* parent)
    : DialogWindow(kind),
      dialog_(std::make_unique<EditorDialog>(parent, kind == DialogKind::Traduction)),
      reports_(std::make_unique<QObject>()) {
  QObject::connect(dialog_.get(), &QDialog::finished, reports_.get(), [this] {
    hasEnded_ = true;
    if (loop_ != nullptr) {
      loop_->quit();
    }
  });
}

QtDialogWindow::~QtDialogWindow() {
  reports_.reset();
}

QWidget* QtDialogWindow::shown(const char* name, int index) const {
  return byName_.value(arrayName(QLatin1String(name), index));
}

QWidget* QtDialogWindow::inside(const Widget* container) const {
  QWidget* const control = container == nullptr ? dialog_.get() : controls_.value(container, dialog_.get());
  const auto* const pane = qobject_cast<const Pane*>(control);
  return pane != nullptr ? pane->widget() : control;
}

template <class Kind, class Control, class... More>
Kind& QtDialogWindow::keep(const WidgetId& id, Control* control, More... more) {
  auto widget = std::make_unique<Kind>(*this, id, *control, more...);
  Kind& kept = *widget;
  widgets_.push_back(std::move(widget));
  const QString name = arrayName(toQString(id.name), id.index);
  control->setObjectName(name);
  controls_.insert(&kept, control);
  byName_.insert(name, control);
  order_.push_back(control);
  return kept;
}

template <class Kind, class Control, class... More>
Kind& QtDialogWindow::keepListening(const WidgetId& id, Control* control, More... more) {
  Kind& kept = keep<Kind>(id, control, more...);
  kept.listen(*reports_);
  return kept;
}

Button& QtDialogWindow::addButton(const WidgetId& id) {
  auto* const button = new QPushButton(inside(id.container));
  button->setAutoDefault(false);
  return keepListening<QtButton>(id, button);
}

CheckBox& QtDialogWindow::addCheckBox(const WidgetId& id) {
  return keepListening<QtCheckBox>(id, new QCheckBox(inside(id.container)));
}

ComboBox& QtDialogWindow::addComboBox(const WidgetId& id) {
  return keepListening<QtComboBox>(id, new QComboBox(inside(id.container)));
}

Frame& QtDialogWindow::addFrame(const WidgetId& id) {
  return keep<QtFrame>(id, new QGroupBox(inside(id.container)));
}

Label& QtDialogWindow::addLabel(const WidgetId& id) {
  auto* const label = new QLabel(inside(id.container));
  label->setTextFormat(Qt::PlainText);
  return keep<QtLabel>(id, label);
}

ListBox& QtDialogWindow::addListBox(const WidgetId& id) {
  return keepListening<QtListBox>(id, new LineList(inside(id.container)));
}

MenuItem& QtDialogWindow::addMenuItem(const WidgetId& id) {
  QAction* action = nullptr;
  if (id.container == nullptr) {
    if (menuBar_ == nullptr) {
      menuBar_ = new QMenuBar(dialog_.get());
    }
    action = menuBar_->addMenu(QString())->menuAction();
  } else {
    action = static_cast<QtMenuItem*>(id.container)->action().menu()->addAction(QString());
  }
  action->setObjectName(arrayName(toQString(id.name), id.index));
  auto item = std::make_unique<QtMenuItem>(*this, id, *action);
  QtMenuItem& kept = *item;
  widgets_.push_back(std::move(item));
  kept.listen(*reports_);
  return kept;
}

OptionButton& QtDialogWindow::addOptionButton(const WidgetId& id, OptionButton* group) {
  auto* const button = new QRadioButton(inside(id.container));
  auto* const together = group != nullptr ? static_cast<QtOptionButton*>(group)->control().group()
                                          : new QButtonGroup(dialog_.get());
  together->addButton(button);
  return keepListening<QtOptionButton>(id, button, group);
}

PictureBox& QtDialogWindow::addPictureBox(const WidgetId& id) {
  if (id.name == u"pConteneur") {
    return keepListening<QtPaneArea>(id, new PaneSplitter(inside(id.container)));
  }
  if (id.name == u"PProperty") {
    return keepListening<QtPane>(id, new Pane(inside(id.container)));
  }
  // The pictures of the control's texts are numbered on after those of the message's.
  return keep<QtLanguagePicture>(id, new LanguageBadge(id.index % languages + 1, inside(id.container)));
}

Slider& QtDialogWindow::addSlider(const WidgetId& id) {
  return keepListening<QtSlider>(id, new FactorSlider(inside(id.container)));
}

TextBox& QtDialogWindow::addTextBox(const WidgetId& id) {
  if (hasManyLines(id.name)) {
    return keepListening<QtTextBox>(id, new TextField(inside(id.container)));
  }
  return keepListening<QtLineBox>(id, new QLineEdit(inside(id.container)));
}

TreeView& QtDialogWindow::addTreeView(const WidgetId& id) {
  return keepListening<QtTreeView>(id, new NodeTree(inside(id.container)));
}

ImageList& QtDialogWindow::addImageList(const WidgetId& /*id*/) {
  return *imageLists_.emplace_back(std::make_unique<QtImageList>());
}

SaveFileDialog& QtDialogWindow::addSaveFileDialog(const WidgetId& /*id*/) {
  return *fileDialogs_.emplace_back(std::make_unique<QtSaveFileDialog>(*dialog_));
}

void QtDialogWindow::showCaption(TextView caption) {
  // The mark of changes has a place of its own; a caption that reads like it is written twice.
  const QString mark = QStringLiteral("[*]");
  dialog_->setWindowTitle(toQString(caption).replace(mark, mark + mark) + mark);
}

void QtDialogWindow::showModified(bool modified) {
  dialog_->setWindowModified(modified);
}

void QtDialogWindow::runModal() {
  if (!std::exchange(isLaidOut_, true)) {
    layOut(*this);
  }
  hasEnded_ = false;
  QEventLoop loop;
  loop_ = &loop;
  dialog_->show();
  // Showing handles events already.
  if (!hasEnded_) {
    loop.exec(QEventLoop::DialogExec);
  }
  loop_ = nullptr;
  dialog_->hide();
}

void QtDialogWindow::endModal() noexcept {
  dialog_->done(QDialog::Rejected);
}

}  // namespace kob::qt
