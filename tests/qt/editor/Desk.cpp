// SPDX-FileCopyrightText: The KOBTraduction authors
#include "Desk.h"

#include <QLineEdit>
#include <QListView>
#include <QPlainTextEdit>
#include <QPushButton>

#include <stdexcept>

namespace kob::qt::testing {

namespace {

constexpr int lookEvery = 5;
constexpr int patience = 30000;

void clickItem(QAbstractItemView& view, const QModelIndex& index) {
  if (!index.isValid()) {
    throw std::runtime_error("nothing to click");
  }
  view.scrollTo(index);
  QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, view.visualRect(index).center());
}

/// The toolkit's own test of it is content with an owner that is active still.
bool becomesActive(QWidget& window) {
  if (QApplication::activeWindow() != &window) {
    window.activateWindow();
  }
  return QTest::qWaitFor([&window] { return QApplication::activeWindow() == &window; });
}

}  // namespace

void Window::type(const char* textBox, const QString& text) const {
  auto& box = the<QWidget>(textBox);
  box.setFocus();
  QTest::keyClick(&box, Qt::Key_A, Qt::ControlModifier);
  if (text.isEmpty()) {
    QTest::keyClick(&box, Qt::Key_Delete);
  }
  for (const QChar letter : text) {
    if (letter == QLatin1Char('\n')) {
      QTest::keyClick(&box, Qt::Key_Return);
    } else {
      QTest::sendKeyEvent(QTest::Click, &box, Qt::Key_unknown, QString(letter), Qt::NoModifier);
    }
  }
}

void Window::press(const char* button) const {
  auto& pressed = the<QAbstractButton>(button);
  if (!pressed.isVisible()) {
    throw std::runtime_error(std::string(button) + " is hidden");
  }
  QTest::mouseClick(&pressed, Qt::LeftButton, {}, {8, pressed.height() / 2});
}

void Window::key(Qt::Key key, Qt::KeyboardModifiers modifiers) const {
  EXPECT_TRUE(becomesActive(window_));
  QWidget* const focus = window_.focusWidget();
  QTest::keyClick(focus != nullptr ? focus : &window_, key, modifiers);
}

void Window::clickNode(const QString& path) const {
  clickItem(tree(), node(path));
}

void Window::clickLine(const char* list, int line) const {
  // Lines are shown a little after they were added.
  QCoreApplication::processEvents();
  auto& view = the<QListView>(list);
  clickItem(view, view.model()->index(line, 0));
}

QString Window::text(const char* textBox) const {
  if (const auto* const line = window_.findChild<QLineEdit*>(QLatin1String(textBox))) {
    return line->text();
  }
  return the<QPlainTextEdit>(textBox).toPlainText();
}

QStringList Window::lines(const char* list) const {
  QCoreApplication::processEvents();
  const auto& view = the<QListView>(list);
  QStringList all;
  for (int row = 0; row < view.model()->rowCount(); ++row) {
    all += view.model()->index(row, 0).data().toString();
  }
  return all;
}

int Window::line(const char* list) const {
  return the<QListView>(list).currentIndex().row();
}

QString Window::selectedNode() const {
  QStringList names;
  for (QModelIndex node = tree().currentIndex(); node.isValid(); node = node.parent()) {
    names.prepend(node.data().toString());
  }
  return names.join(QLatin1Char('\\'));
}

QModelIndex Window::node(const QString& path) const {
  const QAbstractItemModel& nodes = *tree().model();
  QModelIndex found;
  for (const QString& name : path.split(QLatin1Char('\\'))) {
    QModelIndex next;
    for (int row = 0; row < nodes.rowCount(found) && !next.isValid(); ++row) {
      if (const QModelIndex child = nodes.index(row, 0, found); child.data().toString() == name) {
        next = child;
      }
    }
    if (!next.isValid()) {
      return {};
    }
    found = next;
  }
  return found;
}

Desk::Desk() {
  QTimer::singleShot(lookEvery, &rescue_, [this] { look(); });
  QObject::connect(&rescue_, &QTimer::timeout, [] {
    ADD_FAILURE() << "a window stayed open";
    QApplication::closeAllWindows();
  });
  rescue_.start(patience);
}

Desk::~Desk() {
  EXPECT_TRUE(scripts_.empty()) << scripts_.size() << " windows did not open";
}

void Desk::look() {
  // Scripts open windows of their own.
  QTimer::singleShot(lookEvery, &rescue_, [this] { look(); });
  QWidget* const window = QApplication::activeModalWidget();
  if (window == nullptr || !window->isVisible() || known_.contains(window)) {
    return;
  }
  known_ += window;
  opened_ += window->windowTitle();
  const QPointer<QWidget> open = window;
  if (!scripts_.empty()) {
    const Script script = std::move(scripts_.front());
    scripts_.pop_front();
    try {
      ASSERT_TRUE(becomesActive(*window));
      script(Window(*window));
    } catch (const std::exception& failure) {
      ADD_FAILURE() << failure.what();
    }
  }
  if (!open.isNull()) {
    known_.removeOne(open);
    if (open->isVisible()) {
      open->close();
    }
  }
}

}  // namespace kob::qt::testing
