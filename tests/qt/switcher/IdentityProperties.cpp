// SPDX-FileCopyrightText: The KOBTraduction authors
#include "LiveForms.h"
#include "LiveModel.h"

#include <kobtraductionqt/KOBTraductionQt.h>
#include <kobtraductionqt/LanguageSwitcher.h>

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <cmath>
#include <memory>

namespace kob::qt::live {
namespace {

constexpr int languageCount = 5;

/// A random form: the window is number 0, each control stands in an earlier one; left and width of each have
/// a factor per language.
struct RandomForm {
  RandomForm() {
    const int controlCount = *rc::gen::inRange(1, 9);
    window.setObjectName(QStringLiteral("Frm"));
    window.setWindowTitle(QStringLiteral("x"));
    window.resize(*rc::gen::inRange(1, 900), 300);
    widgets.push_back(&window);
    paths.push_back(u"Frm");
    for (int i = 1; i <= controlCount; ++i) {
      const auto parent = static_cast<std::size_t>(*rc::gen::inRange(0, i));
      const std::string name = "c" + std::to_string(i);
      QGroupBox* const control = addFrame(*widgets[parent], name.c_str(), name.c_str());
      control->setGeometry(*rc::gen::inRange(-50, 500), 0, *rc::gen::inRange(0, 400), 20);
      widgets.push_back(control);
      paths.push_back(paths[parent] + u'\\' + toText(control->objectName()));
    }
    model.UpdateWithForm(hostForm(&window));
    for (std::size_t i = 0; i < paths.size(); ++i) {
      for (int langue = 1; langue <= languageCount; ++langue) {
        leftFactors.push_back(randomFactor());
        widthFactors.push_back(randomFactor());
        setLeftFactor(model, paths[i], langue, leftFactors.back());
        setWidthFactor(model, paths[i], langue, widthFactors.back());
        setCaption(model, paths[i], langue, paths[i] + decimal(langue));
      }
    }
    if (*rc::gen::arbitrary<bool>()) {
      window.show();
    }
  }

  static double randomFactor() {
    return *rc::gen::element(1.0, 1.0, 1.0, -1.0, 0.0, 0.5, 0.85, 1.1, 1.37, 2.0);
  }

  std::string print() const {
    std::string out;
    for (const QWidget* const widget : widgets) {
      out += widget->objectName().toStdString() + ' ' + std::to_string(widget->x()) + ' ' +
             std::to_string(widget->width()) + ' ' + widget->property("title").toString().toStdString() +
             ' ' + widget->windowTitle().toStdString() + '\n';
    }
    return out;
  }

  KOBModeleTraduction model;
  QDialog window;
  std::vector<QWidget*> widgets;
  std::vector<Text> paths;
  std::vector<double> leftFactors;
  std::vector<double> widthFactors;
};

/// What a left or a width must be: a small model of its own of "put back what the switcher last wrote, then
/// scale".
class ExpectedNumber {
 public:
  explicit ExpectedNumber(int value) : value_(value) {}

  int value() const { return value_; }
  void changeByApplication(int value) { value_ = value; }

  void apply(double factor) {
    const int base = written_ && *written_ == value_ ? original_ : value_;
    value_ = factor > 0 && factor != 1 ? static_cast<int>(std::trunc(base * factor)) : base;
    original_ = base;
    written_ = value_ != base ? std::optional<int>(value_) : std::nullopt;
  }

 private:
  int value_;
  int original_ = 0;
  std::optional<int> written_;
};

class SwitcherProperties : public testing::Test {
 protected:
  RecordedBoxes boxes;
};

RC_GTEST_FIXTURE_PROP(SwitcherProperties, ComingBackToALanguageIsTheIdentity, ()) {
  RandomForm form;
  LanguageSwitcher switcher(form.model);
  const std::string untouched = form.print();
  switcher.addForm(&form.window);
  const int first = *rc::gen::inRange(1, languageCount + 1);
  switcher.setLanguage(first);
  const std::string before = form.print();
  for (const int langue : *rc::gen::container<std::vector<int>>(rc::gen::inRange(1, languageCount + 1))) {
    switcher.setLanguage(langue);
  }
  switcher.setLanguage(first);
  RC_ASSERT(form.print() == before);
  RC_ASSERT(boxes.notices.empty());

  // Nothing was lost on the way: without a single factor, every left and width is the one before the first
  // language.
  for (const Text& path : form.paths) {
    for (int langue = 1; langue <= languageCount; ++langue) {
      setLeftFactor(form.model, path, langue, 1);
      setWidthFactor(form.model, path, langue, 1);
      setCaption(form.model, path, langue, u"");
    }
    setCaption(form.model, path, 1, path == u"Frm" ? Text(u"x") : path.substr(path.rfind(u'\\') + 1));
  }
  switcher.refresh();
  RC_ASSERT(form.print() == untouched);
}

RC_GTEST_FIXTURE_PROP(SwitcherProperties, AgreesWithItsRuleWhateverTheApplicationDoesInBetween, ()) {
  RandomForm form;
  LanguageSwitcher switcher(form.model);
  std::vector<ExpectedNumber> lefts;
  std::vector<ExpectedNumber> widths;
  for (const QWidget* const widget : form.widgets) {
    lefts.emplace_back(widget->x());
    widths.emplace_back(widget->width());
  }
  const auto expectApplied = [&] {
    for (std::size_t i = 0; i < form.widgets.size(); ++i) {
      const std::size_t at = i * languageCount + static_cast<std::size_t>(switcher.language()) - 1;
      lefts[i].apply(form.leftFactors[at]);
      widths[i].apply(form.widthFactors[at]);
    }
  };
  switcher.addForm(&form.window);
  expectApplied();
  const int stepCount = *rc::gen::inRange(1, 20);
  for (int step = 0; step < stepCount; ++step) {
    switch (*rc::gen::inRange(0, 6)) {
      case 0:
        switcher.refresh();
        expectApplied();
        break;
      case 1:
        switcher.addForm(&form.window);
        expectApplied();
        break;
      case 2:
      case 3: {
        const auto i = static_cast<std::size_t>(*rc::gen::inRange(0, static_cast<int>(form.widgets.size())));
        QWidget& widget = *form.widgets[i];
        // At times the very value that stands there.
        const int value = *rc::gen::weightedOneOf<int>({{3, rc::gen::inRange(0, 600)},
                                                        {1, rc::gen::just(widget.x())},
                                                        {1, rc::gen::just(widget.width())}});
        if (*rc::gen::arbitrary<bool>()) {
          widget.move(value, widget.y());
          lefts[i].changeByApplication(value);
        } else {
          widget.resize(std::max(value, 0), widget.height());
          widths[i].changeByApplication(std::max(value, 0));
        }
        break;
      }
      default:
        switcher.setLanguage(*rc::gen::inRange(1, languageCount + 1));
        expectApplied();
        break;
    }
    for (std::size_t i = 0; i < form.widgets.size(); ++i) {
      RC_ASSERT(form.widgets[i]->x() == lefts[i].value());
      RC_ASSERT(form.widgets[i]->width() == widths[i].value());
    }
  }
}

}  // namespace
}  // namespace kob::qt::live
