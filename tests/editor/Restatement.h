// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include "tests/model/ModelVocabulary.h"

#include <array>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

/// The editor's rules once more, without widgets and events: what a person does changes a screen that is
/// plain data, and a model. What the model itself does by its operations is not restated.
namespace kob::testing {

using namespace kob::test;

/// What is on the editor's screen.
struct Screen {
  struct Node {
    Text text;
    Text tag;
    std::int32_t image = 0;
    std::size_t parent = 0;
    bool operator==(const Node&) const = default;
  };
  template <class Item>
  using Six = std::array<Item, 6>;

  /// Node n is item n - 1; 0 is none.
  std::vector<Node> nodes;
  std::size_t selected = 0;

  bool seesButtons = true;
  bool seesName = true;
  bool seesMessage = true;
  bool seesControl = true;

  Text nom;
  Text alias;
  Text contextName;
  bool seesContextName = true;
  std::int32_t kind = -1;
  bool isContext = false;
  Six<Text> messageTexts;
  Six<Text> controlTexts;
  std::vector<Text> names;
  std::int32_t name = -1;

  bool isPositioned = false;
  Six<bool> seesLeft = {true, true, true, true, true, true};
  Six<bool> seesWidth = {true, true, true, true, true, true};
  Six<std::int32_t> left = {10, 10, 10, 10, 10, 10};
  Six<std::int32_t> width = {10, 10, 10, 10, 10, 10};

  bool tellsNotRecorded = false;

  bool operator==(const Screen&) const = default;
  std::string printed() const;
};

/// What a person entered for a new cell.
struct NewCell {
  bool isOk = false;
  Text nom;
  Text alias;
  std::int32_t kind = 0;
  bool isContext = false;
  Text text1;
  Text text2;
};

/// The editor on a model. Any function may fail as the model does; the editor is closed then. Each is called
/// for what a person can do at that moment only.
class Restatement {
 public:
  Restatement(KOBModeleTraduction& model, std::int32_t mode, TextView path);

  Screen screen;
  /// What was shown in boxes since it was last emptied.
  std::string boxes;

  void clickNode(std::size_t node);
  void typeNom(TextView text);
  void typeAlias(TextView text);
  void typeContextName(TextView text) { screen.contextName = text; }
  void typeMessage(std::size_t i, TextView text);
  void typeControl(std::size_t i, TextView text);
  void chooseKind(std::int32_t kind);
  void checkContext();
  void clickName(std::int32_t line);
  void addCell(const NewCell& cell);
  void deleteCell(bool yes);
  void addName(const std::optional<Text>& name);
  void deleteName(bool yes);
  void checkPosition();
  void moveLeft(std::size_t i, std::int32_t value);
  void moveWidth(std::size_t i, std::int32_t value);
  void resetLeft(std::size_t i);
  void resetWidth(std::size_t i);
  void saveAs(TextView file);

  /// The search dialog.
  std::optional<std::vector<CellRef>> hits;
  void findText(TextView text);
  void findUntranslated(std::int32_t line);
  void clickHit(std::size_t line);

 private:
  void rebuild();
  void addNodes(const CellRef& cell, std::size_t parent);
  void display(std::size_t node);
  void displayControl();
  void select(const CellRef& cell);
  void complete(KOBTraductionObj& entry);
  bool records() const { return !guard_ && cell_ != nullptr; }

  KOBModeleTraduction& model_;
  std::int32_t mode_;
  CellRef cell_;
  bool guard_ = false;
};

}  // namespace kob::testing
