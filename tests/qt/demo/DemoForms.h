// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include "QtPrinting.h"

#include <Demo.h>
#include <PrintedBoxes.h>

#include <gtest/gtest.h>

#include <QAction>
#include <QMap>
#include <QString>
#include <QStringList>

#include <stdexcept>

namespace kob::demo {

inline constexpr int French = 1;
inline constexpr int English = 2;
inline constexpr int German = 4;

/// What is not the same in both, each with its name.
QStringList differences(const QMap<QString, QString>& before, const QMap<QString, QString>& after);

/// The demo after its start: recorded, filled in, in French.
class DemoForms : public testing::Test {
 protected:
  DemoForms();
  ~DemoForms() override;

  /// Every text and tool tip of the three forms, by the object that shows it.
  QMap<QString, QString> texts();
  /// The left and width of every control of a form, and the width of the form.
  static QMap<QString, QString> places(const QWidget& form);

  template <class Object>
  Object& object(const char* name) {
    auto* const found = demo_.window().findChild<Object*>(QLatin1String(name));
    if (found == nullptr) {
      throw std::runtime_error(name);
    }
    return *found;
  }

  Demo demo_;
  PrintedBoxes boxes_;
  Filled harvested_;
  Filled filled_;
};

}  // namespace kob::demo
