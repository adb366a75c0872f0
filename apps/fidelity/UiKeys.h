// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include "TsCatalog.h"

#include <QHash>
#include <QString>
#include <QStringList>

#include <vector>

namespace pugi {
class xml_node;
}

namespace kob::fidelity {

/// One text of a designer's form and what names it in the translation files.
struct UiText {
  /// Which element of the form it belongs to (UiKeys::elements).
  int element;
  QString property;
  /// The page whose tab shows the text, from 0; -1 for a text of the element itself.
  int page;
  TextKey key;
  /// False where the designer said that the text stays as it is.
  bool translatable;
};

/// A widget, menu or action of a designer's form.
struct UiElement {
  /// The names from the form down to the element itself; a class name where there is no name.
  QStringList chain;
  /// Its class; for a promoted one the toolkit's class that it extends.
  QString className;
};

/// The keys of a form's texts, read from the `.ui` file alone.
class UiKeys {
 public:
  enum class Entry { Caption, ToolTip };

  /// False, and a sentence in `error`, when the file cannot be read or holds no form.
  bool read(const QString& path, QString* error);

  /// The class of the form: the context of its texts.
  const QString& formClass() const noexcept { return formClass_; }
  const std::vector<UiElement>& elements() const noexcept { return elements_; }
  const std::vector<UiText>& texts() const noexcept { return texts_; }

  /// The text that a cell of the model stands for, or null. `path` holds the names of the cells from the
  /// form's down, `reference` the text that was recorded. Of several elements of one name the one whose
  /// containers fit best is taken, and among equals the one that the cell's index counts.
  const UiText* find(const QStringList& path, Entry entry, const QString& reference) const;

  /// The context in which the toolkit itself looks up the text of such a cell (the buttons that a button box
  /// makes by itself), or "".
  QString toolkitContext(const QStringList& path) const;

 private:
  void visit(const pugi::xml_node& node, int parent, int* page);
  int addElement(const pugi::xml_node& node, int parent);
  void addText(const pugi::xml_node& property, int element, int page);
  QString baseClass(QString className) const;
  const UiText* best(const QStringList& path, const QStringList& properties, int page,
                     const QString& reference) const;

  QString formClass_;
  bool isIdBased_ = false;
  QHash<QString, QString> extends_;
  std::vector<UiElement> elements_;
  std::vector<UiText> texts_;
  /// Positions in texts_ and in elements_ by the element's name.
  QMultiHash<QString, int> textsByName_;
  QMultiHash<QString, int> elementsByName_;
};

}  // namespace kob::fidelity
