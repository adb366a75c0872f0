// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include <QAbstractListModel>
#include <QListView>

#include <functional>

namespace kob::qt {

/// Lines that somebody else keeps. Many that are added one after the other are shown at once, a little later.
class LineModel final : public QAbstractListModel {
  Q_OBJECT

 public:
  using Count = std::function<int()>;
  using Line = std::function<QString(int)>;

  explicit LineModel(QObject* parent) : QAbstractListModel(parent) {}

  void setSource(Count count, Line line);
  void cleared();
  void added();
  /// Shows at once what was added.
  void showAdded();

  int rowCount(const QModelIndex& parent = {}) const override { return parent.isValid() ? 0 : shown_; }
  QVariant data(const QModelIndex& index, int role) const override;

 private:
  Count count_;
  Line line_;
  int shown_ = 0;
  bool isWaiting_ = false;
};

/// A list on the screen. Only what a person does is signalled.
class LineList final : public QListView {
  Q_OBJECT

 public:
  /// Whether a line is reached by walking over it with the arrow keys, or only by Return or the space bar.
  enum class Keys { WalkReaches, ReturnReaches };

  explicit LineList(QWidget* parent);

  LineModel& lines() noexcept { return lines_; }
  void setKeys(Keys keys) { keys_ = keys; }
  /// -1 for none.
  void showSelected(int line);
  void removeAll();

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

 Q_SIGNALS:
  void lineReached(int line);

 protected:
  void mousePressEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;

 private:
  int heightOf(int lines) const;

  LineModel lines_;
  Keys keys_ = Keys::WalkReaches;
  /// The present change is the program's, or reported as a click.
  bool isQuiet_ = false;
};

}  // namespace kob::qt
