// SPDX-FileCopyrightText: The KOBTraduction authors
#include "Panes.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QSplitterHandle>

namespace kob::qt {

namespace {

constexpr int stripWidth = 7;
/// How far an arrow key takes the strip.
constexpr int keyStep = 16;
/// Less than the rules leave to the panes, so that they decide.
constexpr int leastTreeWidth = 100;
constexpr int leastPaneWidth = 200;
constexpr int leastPaneHeight = 200;

class Strip final : public QSplitterHandle {
 public:
  explicit Strip(PaneSplitter& splitter) : QSplitterHandle(Qt::Horizontal, &splitter), splitter_(splitter) {
    setMouseTracking(true);
    setFocusPolicy(Qt::TabFocus);
    setAccessibleName(QStringLiteral("Séparateur"));
    unsetCursor();
  }

 protected:
  void mousePressEvent(QMouseEvent* /*event*/) override {}
  void mouseMoveEvent(QMouseEvent* event) override { report(*event); }
  void mouseReleaseEvent(QMouseEvent* /*event*/) override {}

  void keyPressEvent(QKeyEvent* event) override {
    if (event->key() == Qt::Key_Left || event->key() == Qt::Key_Right) {
      const int step = event->key() == Qt::Key_Left ? -keyStep : keyStep;
      emit splitter_.pointerMoved(splitter_.leftWidth() + step, true);
    } else {
      QSplitterHandle::keyPressEvent(event);
    }
  }
  void focusOutEvent(QFocusEvent* event) override {
    QSplitterHandle::focusOutEvent(event);
    update();
    emit splitter_.lostFocus();
  }
  void focusInEvent(QFocusEvent* event) override {
    QSplitterHandle::focusInEvent(event);
    update();
  }
  void paintEvent(QPaintEvent* event) override {
    QSplitterHandle::paintEvent(event);
    if (hasFocus()) {
      QPainter(this).fillRect(rect().adjusted(2, 0, -2, 0), palette().highlight());
    }
  }

 private:
  void report(const QMouseEvent& event) {
    emit splitter_.pointerMoved(mapTo(&splitter_, event.position()).x(), event.buttons() == Qt::LeftButton);
  }

  PaneSplitter& splitter_;
};

}  // namespace

PaneSplitter::PaneSplitter(QWidget* parent) : QSplitter(Qt::Horizontal, parent) {
  setHandleWidth(stripWidth);
  setChildrenCollapsible(false);
}

QSplitterHandle* PaneSplitter::createHandle() {
  return new Strip(*this);
}

int PaneSplitter::leftWidth() const {
  return count() > 0 ? widget(0)->width() : 0;
}

void PaneSplitter::setLeftWidth(int width) {
  if (count() > 1) {
    widget(0)->setMinimumWidth(leastTreeWidth);
    widget(1)->setMinimumWidth(leastPaneWidth);
    setSizes({width, this->width() - handleWidth() - width});
  }
}

void PaneSplitter::showSizePointer(bool show) {
  if (count() > 1) {
    if (show) {
      handle(1)->setCursor(Qt::SplitHCursor);
    } else {
      handle(1)->setCursor(Qt::ArrowCursor);
    }
  }
}

Pane::Pane(QWidget* parent) : QScrollArea(parent) {
  setWidgetResizable(true);
  setFrameShape(QFrame::NoFrame);
  setFocusPolicy(Qt::NoFocus);
  setMinimumSize(leastPaneWidth, leastPaneHeight);
  auto* const content = new QWidget(this);
  setWidget(content);
  content->setMouseTracking(true);
  content->installEventFilter(this);
}

bool Pane::eventFilter(QObject* watched, QEvent* event) {
  if (watched == widget() && event->type() == QEvent::MouseMove) {
    emit pointerMoved(static_cast<QMouseEvent*>(event)->position().x());
  }
  return QScrollArea::eventFilter(watched, event);
}

}  // namespace kob::qt
