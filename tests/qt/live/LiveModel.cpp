// SPDX-FileCopyrightText: The KOBTraduction authors
#include "LiveModel.h"

#include <kobtraductionqt/KOBTraductionQt.h>

#include <stdexcept>

namespace kob::qt::live {

namespace {

KOBCellTraduction& cellAt(KOBModeleTraduction& model, TextView path) {
  KOBCellTraduction* const cell = model.GetCell(path).get();
  if (cell == nullptr) {
    throw std::runtime_error("the model has no cell " + utf8(path) + ":\n" + print(model));
  }
  return *cell;
}

void setText(KOBModeleTraduction& model, TextView path, TextView name, std::int32_t langue, TextView text) {
  KOBCellTraduction& cell = cellAt(model, path);
  for (const auto& entry : *cell.ColTraduction()) {
    if (equalUpper(entry->nom(), name)) {
      entry->ChangeTraduction(text, langue);
      return;
    }
  }
  const auto entry = std::make_shared<KOBTraductionObj>();
  entry->setnom(name);
  entry->ChangeTraduction(text, langue);
  cell.ColTraduction()->Add(entry);
}

void printCell(const KOBCellTraduction& cell, const std::string& indent, std::string& out) {
  out += indent + utf8(cell.nom());
  if (cell.Contexte()) {
    out += " [context]";
  }
  if (cell.ColTraduction() != nullptr) {
    for (const auto& entry : *cell.ColTraduction()) {
      out += ' ' + utf8(entry->nom()) + " \"" + utf8(entry->ColTraduction()->Item(1)) + '"';
    }
  }
  out += '\n';
  if (cell.ColCell() != nullptr) {
    for (const auto& child : *cell.ColCell()) {
      printCell(*child, indent + "  ", out);
    }
  }
}

}  // namespace

void RecordedBoxes::notice(TextView text, TextView title, MessageIcon) {
  notices.push_back(utf8(text) + (title.empty() ? "" : " / " + utf8(title)));
  if (whileOpen) {
    whileOpen();
  }
}

bool RecordedBoxes::question(TextView text, TextView title, MessageIcon) {
  questions.push_back(utf8(text) + (title.empty() ? "" : " / " + utf8(title)));
  if (whileOpen) {
    whileOpen();
  }
  return answer;
}

std::string utf8(TextView text) {
  return toQString(text).toStdString();
}

std::string print(const KOBModeleTraduction& model) {
  std::string out;
  if (model.Racine()->ColCell() != nullptr) {
    for (const auto& child : *model.Racine()->ColCell()) {
      printCell(*child, "", out);
    }
  }
  return out;
}

void setCaption(KOBModeleTraduction& model, TextView path, std::int32_t langue, TextView text) {
  setText(model, path, u"Caption", langue, text);
}

void setToolTip(KOBModeleTraduction& model, TextView path, std::int32_t langue, TextView text) {
  setText(model, path, u"ToolTip", langue, text);
}

void setLeftFactor(KOBModeleTraduction& model, TextView path, std::int32_t langue, double factor) {
  cellAt(model, path).ChangeLeft(factor, langue);
}

void setWidthFactor(KOBModeleTraduction& model, TextView path, std::int32_t langue, double factor) {
  cellAt(model, path).ChangeWidth(factor, langue);
}

}  // namespace kob::qt::live
