// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include <kobtraduction/engine/HostObject.h>
#include <tests/doubles/FormText.h>
#include <QObject>
#include <QWidget>

#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

class QAction;

namespace kob::testing {

/// Live Qt widgets built from the text of a form: no layouts, geometry as the text says. What is printed is
/// read from the widgets themselves, not through the binding.
class LiveForm {
 public:
  /// Throws std::runtime_error for what widgets cannot do.
  explicit LiveForm(std::string_view text);

  HostRef form() const;
  HostRef control(std::string_view id) const;
  void set(std::string_view id, const std::string& key, const Value& value);
  std::string print() const;

 private:
  void build(const ObjectText& text, const ObjectText* above);
  QObject* make(const ObjectText& text, const ObjectText* above);
  QWidget* makeWidget(const ObjectText& text, QWidget* parent) const;
  QAction* makeAction(const ObjectText& text, const ObjectText& above);
  QWidget* makeMenu(const ObjectText& text, const ObjectText& above);

  std::vector<ObjectText> objects_;
  std::unique_ptr<QWidget> window_;
  std::map<const ObjectText*, QObject*> built_;
};

}  // namespace kob::testing
