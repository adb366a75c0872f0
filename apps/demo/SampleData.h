// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include <QDate>
#include <QString>

#include <vector>

namespace kob::demo {

enum class Category { PowerTools, Garden, Measuring, Woodworking };
enum class Fee { Paid, Due, Free };

enum Accessory : unsigned { Case = 1, Manual = 2, Charger = 4, Goggles = 8 };

struct Tool {
  QString number;
  QString name;
  Category category;
  int deposit;
  unsigned accessories;
  /// Who has it; empty while it stands on its shelf.
  QString borrower;
  QDate lent;
  QDate due;

  bool isLent() const { return !borrower.isEmpty(); }
};

struct Member {
  QString number;
  QString name;
  QString street;
  QString town;
  QString phone;
  QString mail;
  Fee fee;
};

/// The day on which the demo takes place, so that its pictures are the same every day.
inline QDate today() {
  return {2024, 5, 15};
}

/// What the association owns and who its members are. Invented.
struct SampleData {
  std::vector<Tool> tools;
  std::vector<Member> members;
};

SampleData sampleData();

}  // namespace kob::demo
