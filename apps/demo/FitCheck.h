// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include <QString>
#include <QWidget>

#include <vector>

namespace kob::demo {

/// A text that has not the room it needs.
struct Misfit {
  const QWidget* control;
  /// What of the control, when it is not the whole: "tab 2".
  QString part;
  QString text;
  QString problem;
};

/// Compares every text that a form shows now with the room that it has: the size that the toolkit asks for
/// with the size that the control got; for wrapped texts the height at that width. Where no layout places the
/// controls, those that lie over each other or reach out of their parent are misfits too. The form must have
/// been shown, or at least laid out; what it hides is not looked at.
std::vector<Misfit> findMisfits(const QWidget& form);

/// "Form\Frame\control(0)", from the objects' names.
QString controlPath(const QWidget& control, const QWidget& form);

}  // namespace kob::demo
