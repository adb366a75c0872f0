// SPDX-FileCopyrightText: The KOBTraduction authors
// Controls that tell their place at once are translated as those whose path is written.
#include <gtest/gtest.h>
#include <kobtraduction/model/KOBModeleTraduction.h>
#include <tests/doubles/RecordedMessages.h>

#include <algorithm>
#include <functional>
#include <string>
#include <utility>
#include <vector>

namespace kob::testing {
namespace {

/// A host object without a tag that tells its place, or does not and is asked.
class PlainObject final : public HostObject {
 public:
  PlainObject(Text name, HostRef owner, Property link = Property::Container)
      : name_(std::move(name)), owner_(std::move(owner)), link_(link) {}

  std::optional<Value> get(Property property) override {
    switch (property) {
      case Property::Name:
        return Value(name_);
      case Property::Tag:
        return Value(u"");
      case Property::Controls:
        return controls.empty() ? std::nullopt
                                : std::optional<Value>(std::make_shared<HostCollection>(controls));
      default:
        return property == link_ && owner_ != nullptr ? std::optional<Value>(owner_) : std::nullopt;
    }
  }
  bool set(Property property, const Value& value) override {
    if (property == Property::Caption) {
      caption = toUtf8(*value.text());
      onCaption();
    }
    return true;
  }
  bool tellPlace(PlainPlace& place) override {
    if (!tells || owner_ == nullptr) {
      return false;
    }
    place.container = &owner_;
    place.link = link_;
    place.name = name_;
    return true;
  }

  std::string caption = "-";
  std::function<void()> onCaption = [] {};
  std::vector<HostRef> controls;
  bool tells = false;

 private:
  Text name_;
  HostRef owner_;
  Property link_;
};

/// Every case runs on controls that tell their place and on controls that do not.
class ControlCellsTest : public ::testing::TestWithParam<bool> {
 protected:
  ControlCellsTest() : form(std::make_shared<PlainObject>(u"Form", nullptr)) {}
  /// The controls hold the form.
  ~ControlCellsTest() override { form->controls.clear(); }

  std::shared_ptr<PlainObject> add(TextView name, const HostRef& owner, Property link = Property::Container) {
    auto control = std::make_shared<PlainObject>(Text(name), owner, link);
    control->tells = GetParam();
    form->controls.push_back(control);
    return control;
  }
  std::shared_ptr<PlainObject> add(TextView name) { return add(name, form); }

  /// A control cell with a caption, and the nodes that lead to it.
  std::shared_ptr<KOBCellTraduction> translated(TextView path, TextView caption) {
    auto cell = model.Racine();
    while (!path.empty()) {
      const TextView name = path.substr(0, path.find(u'\\'));
      path.remove_prefix(std::min(name.size() + 1, path.size()));
      const auto child = cell->GetCell(name);
      cell = child != nullptr ? child : cell->AddNoeuds(name);
    }
    cell->setTypeFeuille(2);
    auto entry = std::make_shared<KOBTraductionObj>();
    entry->setnom(u"Caption");
    entry->ChangeTraduction(caption, 2);
    cell->ColTraduction()->Add(entry);
    return cell;
  }

  KOBCellTraduction& cellOf(TextView path) const { return *model.GetCell(path); }

  void apply(TextView module = {}) { model.TraduitDialog(form, 2, module); }

  /// The captions in the order of the controls, "-" for one that was not written.
  std::string captions() const {
    std::string all;
    for (const HostRef& control : form->controls) {
      all += static_cast<const PlainObject&>(*control).caption + ' ';
    }
    return all;
  }

  RecordedMessages messages;
  KOBModeleTraduction model;
  std::shared_ptr<PlainObject> form;
};

INSTANTIATE_TEST_SUITE_P(Telling, ControlCellsTest, ::testing::Bool(),
                         [](const auto& shape) { return shape.param ? "TellingTheirPlace" : "Asked"; });

TEST_P(ControlCellsTest, SiblingsAndContainersFindTheirCells) {
  const auto frame = add(u"Frame");
  add(u"inside", frame);
  add(u"OUTSIDE");
  add(u"inside", frame);
  add(u"unknown", frame);
  translated(u"Form\\Frame", u"frame");
  translated(u"Form\\Frame\\inside", u"in");
  translated(u"Form\\outside", u"out");
  apply();
  EXPECT_EQ(captions(), "frame in out in - ");
}

TEST_P(ControlCellsTest, ContainerAndParentLeadToDifferentPaths) {
  const auto outer = add(u"Outer");
  // Its Container is the form, and a Parent it does not have: by Parent the chain ends with it.
  const auto owner = add(u"Owner", outer);
  add(u"x", owner);
  add(u"x", owner, Property::Parent);
  translated(u"Form\\Outer\\Owner\\x", u"contained");
  translated(u"Owner\\x", u"parented");
  apply();
  EXPECT_EQ(captions(), "- - contained parented ");
}

TEST_P(ControlCellsTest, AContainerThatHasAParentOnlyEndsTheChain) {
  add(u"x", add(u"Menu", form, Property::Parent));
  translated(u"Form\\Menu\\x", u"by its parent");
  translated(u"Menu\\x", u"by itself");
  apply();
  EXPECT_EQ(captions(), "- by itself ");
}

TEST_P(ControlCellsTest, NamesMayBeEmptyOrHoldSeparators) {
  const auto frame = add(u"A\\B");
  add(u"x\\\\y", frame);
  add(u"", frame);
  add(u"\\", frame);
  translated(u"Form\\A\\B", u"ab");
  translated(u"Form\\A\\B\\x\\y", u"xy");
  apply();
  EXPECT_EQ(captions(), "ab xy ab ab ");
}

TEST_P(ControlCellsTest, TheRootsNameIsANameLikeOthers) {
  add(u"RACINE");
  translated(u"Form\\RACINE", u"racine");
  apply();
  EXPECT_EQ(captions(), "racine ");
}

TEST_P(ControlCellsTest, AModuleStartsThePath) {
  add(u"x");
  translated(u"Form\\x", u"no module");
  translated(u"Achats\\Form\\x", u"module");
  apply(u"Achats");
  EXPECT_EQ(captions(), "module ");
}

TEST_P(ControlCellsTest, AFormThatIsNotInTheModelIsLeftAlone) {
  add(u"x");
  apply();
  EXPECT_EQ(captions(), "- ");
}

TEST_P(ControlCellsTest, ADamagedListIsShownForEachControlThatPassesIt) {
  const auto frame = add(u"Frame");
  add(u"x", frame);
  add(u"y", frame);
  translated(u"Form\\Frame\\x", u"x");
  cellOf(u"Form").ColCell()->Add(nullptr, 1);
  apply();
  EXPECT_EQ(captions(), "- - - ");
  const std::string shown = "notice \"GetCell - KOBCellTraduction\"\n";
  EXPECT_EQ(messages.take(), shown + shown + shown);
}

TEST_P(ControlCellsTest, WhatStandsBeforeTheDamageIsFound) {
  add(u"a");
  add(u"z");
  translated(u"Form\\a", u"a");
  translated(u"Form\\z", u"z");
  cellOf(u"Form").ColCell()->Add(nullptr, 2);
  apply();
  EXPECT_EQ(captions(), "a - ");
  EXPECT_EQ(messages.take(), "notice \"GetCell - KOBCellTraduction\"\n");
}

TEST_P(ControlCellsTest, ANodeWithoutAListIsDamage) {
  add(u"a");
  translated(u"Form\\a", u"a");
  cellOf(u"Form").setColCell(nullptr);
  apply();
  EXPECT_EQ(captions(), "- ");
  EXPECT_EQ(messages.take(), "notice \"GetCell - KOBCellTraduction\"\n");
}

TEST_P(ControlCellsTest, ACellThatTheHostRenamesMeanwhileIsLost) {
  const auto frame = add(u"Frame");
  add(u"x", frame)->onCaption = [this] { cellOf(u"Form\\Frame").setnom(u"Other"); };
  add(u"y", frame);
  translated(u"Form\\Frame\\x", u"x");
  translated(u"Form\\Frame\\y", u"y");
  apply();
  EXPECT_EQ(captions(), "- x - ");
}

TEST_P(ControlCellsTest, ATreeThatTheHostTakesAwayMeanwhileIsGone) {
  const auto frame = add(u"Frame");
  add(u"x", frame)->onCaption = [this] { model.Racine()->ColCell()->Remove(1); };
  add(u"y", frame);
  translated(u"Form\\Frame\\x", u"x");
  translated(u"Form\\Frame\\y", u"y");
  apply();
  EXPECT_EQ(captions(), "- x - ");
}

TEST_P(ControlCellsTest, ACellThatTheHostAddsMeanwhileIsFound) {
  add(u"x")->onCaption = [this] { translated(u"Form\\Frame\\y", u"y"); };
  add(u"y", add(u"Frame"));
  translated(u"Form\\x", u"x");
  apply();
  EXPECT_EQ(captions(), "x - y ");
}

}  // namespace
}  // namespace kob::testing
