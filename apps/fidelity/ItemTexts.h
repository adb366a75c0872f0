// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include <QString>

#include <vector>

class QObject;

namespace kob::fidelity {

/// A text of an item view or a combo box, by its place ("item 0.2 column 1 tool tip").
struct ItemText {
  QString place;
  QString value;
  bool isHeader;
};

/// The texts that the designer gave to the items and headers of a live list, tree, table or combo box; none
/// for every other object. Only what the toolkit's own item classes hold: the model of a promoted view is
/// data.
std::vector<ItemText> readItemTexts(const QObject& object);

}  // namespace kob::fidelity
