// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include "LineList.h"
#include "NodeTree.h"
#include "OnScreen.h"
#include "Panes.h"

#include <kobtraduction/editor/ComboBox.h>
#include <kobtraduction/editor/ListBox.h>
#include <kobtraduction/editor/TreeView.h>

#include <QComboBox>

namespace kob::qt {

class QtTreeView final : public OnScreen<TreeView, NodeTree> {
 public:
  using OnScreen::OnScreen;
  /// Reports what a person does as long as `reports` lives.
  void listen(QObject& reports);

  /// The left pane; assigning moves the strip beside it.
  double width() const override { return control().width() * unitsPerPixel; }
  void setWidth(double width) override;

 protected:
  /// All trees show the same pictures.
  void showImageList(ImageList& /*images*/) override {}
  void showFilling(bool filling) override;
  void showCleared() override { control().removeAll(); }
  void showAdded(Node /*node*/, Node parent, TextView text, std::int32_t image) override {
    control().add(parent, toQString(text), image);
  }
  void showImage(Node node, std::int32_t image) override { control().setImage(node, image); }
  void showSelected(Node node) override { control().showSelected(node); }
  void showExpanded(Node node) override { control().showExpanded(node); }
};

class QtListBox final : public OnScreen<ListBox, LineList> {
 public:
  using OnScreen::OnScreen;
  void listen(QObject& reports);

 protected:
  void showCleared() override { control().removeAll(); }
  void showAdded(TextView /*line*/) override { control().lines().added(); }
  void showListIndex(std::int32_t index) override { control().showSelected(index); }
};

class QtComboBox final : public OnScreen<ComboBox, QComboBox> {
 public:
  using OnScreen::OnScreen;
  void listen(QObject& reports);

 protected:
  void showAdded(TextView line) override;
  /// `activated`, which is reported, is for a person alone.
  void showListIndex(std::int32_t index) override { control().setCurrentIndex(index); }
};

}  // namespace kob::qt
