// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include <QDialog>

class QCheckBox;
class QLineEdit;

namespace kob::demo {

struct Member;

/// The sheet of one member. Layouts place its controls, so it grows with its texts.
class MemberDialog final : public QDialog {
  Q_OBJECT

 public:
  explicit MemberDialog(QWidget* parent);

  void showMember(const Member& person);
  void clear();

 private:
  QWidget* identity();
  QWidget* contact();

  QLineEdit* name_ = nullptr;
  QLineEdit* firstName_ = nullptr;
  QLineEdit* street_ = nullptr;
  QLineEdit* town_ = nullptr;
  QLineEdit* phone_ = nullptr;
  QLineEdit* mail_ = nullptr;
};

}  // namespace kob::demo
