// SPDX-FileCopyrightText: The KOBTraduction authors
#include "Appliers.h"
#include "Suite.h"
#include "TranslatedModel.h"

#include <kobtraductionqt/KOBTraductionQt.h>

#include <QTemporaryDir>

#include <stdexcept>

namespace bench {

namespace {

// Pass 0 applies language 2 and pass 1 language 3: every text changes every time.
constexpr int passes = 2;

int languageOf(int pass) {
  return pass + 2;
}

void requireLanguage(const WidgetForm& form, int language, const char* who) {
  if (!showsLanguage(form, language)) {
    throw std::runtime_error(std::string("after ") + who + " the form does not show language " +
                             std::to_string(language));
  }
}

void contestAtSize(int controls, Placing placing, const std::function<void(Contest&)>& run) {
  const WidgetForm form(controls, 10, placing);
  Component component(form);
  BareSetters floor(form);
  const QTemporaryDir folder;
  GeneratedCode generated(form, folder.path());
  PropertyWalk walk(form);

  Contest contest(placing == Placing::Fixed ? "Apply, fixed places" : "Apply, laid out",
                  std::to_string(controls));
  contest.setPasses(passes);
  contest.setSettle(&WidgetForm::settle);
  const auto add = [&](const char* name, auto& applier) {
    applier.prepare(2);
    applier.apply(2);
    requireLanguage(form, 2, name);
    WidgetForm::settle();
    contest.add(
        name, controls, [&applier](int pass) { applier.apply(languageOf(pass)); },
        [&applier](int pass) { applier.prepare(languageOf(pass)); });
    applier.prepare(3);
    applier.apply(3);
    requireLanguage(form, 3, name);
    WidgetForm::settle();
  };
  add("TraduitDialog", component);
  add("bare setters", floor);
  add("retranslateUi code", generated);
  add("property walk", walk);
  if (controls >= 1000) {
    contest.expect({"TraduitDialog", "bare setters", 1.75, 1.55});
    contest.expect({"TraduitDialog", "retranslateUi code", 1.0});
  }
  run(contest);
}

/// How much of the time goes where.
void contestOfSteps(const std::function<void(Contest&)>& run) {
  constexpr int controls = 1000;
  const WidgetForm form(controls, 10, Placing::Fixed);
  Component component(form);
  kob::KOBModeleTraduction empty;
  BareSetters floor(form);
  Contest contest("Apply, steps", std::to_string(controls));
  contest.setPasses(passes);
  contest.setSettle(&WidgetForm::settle);
  contest.add("TraduitDialog", controls, [&](int pass) { component.apply(languageOf(pass)); });
  contest.add("with an empty model", controls,
              [&](int pass) { empty.TraduitDialog(kob::qt::hostForm(form.window()), languageOf(pass)); });
  contest.add("walk of the form alone", controls, [&](int) {
    const auto members = kob::qt::hostForm(form.window())->get(kob::Property::Controls)->asObject();
    benchmark::DoNotOptimize((*members)->enumerate());
  });
  contest.add("bare setters", controls, [&](int pass) { floor.apply(languageOf(pass)); });
  run(contest);
}

/// That the time for one control does not depend on how many there are.
void contestOfSizes(const std::function<void(Contest&)>& run) {
  const WidgetForm large(10000, 10, Placing::Fixed);
  const WidgetForm small(1000, 10, Placing::Fixed);
  Component component(large);
  Component smallComponent(small);
  BareSetters floor(large);
  BareSetters smallFloor(small);
  Contest contest("Apply, growth", "1000, 10000");
  contest.setPasses(passes);
  contest.setSettle(&WidgetForm::settle);
  contest.add("10000 controls", 10000, [&](int pass) { component.apply(languageOf(pass)); });
  contest.add("1000 controls", 1000, [&](int pass) { smallComponent.apply(languageOf(pass)); });
  contest.add("bare setters, 10000", 10000, [&](int pass) { floor.apply(languageOf(pass)); });
  contest.add("bare setters, 1000", 1000, [&](int pass) { smallFloor.apply(languageOf(pass)); });
  contest.expect({"10000 controls", "1000 controls", 1.2});
  run(contest);
}

}  // namespace

void addApplying(Suite& suite) {
  for (const Placing placing : {Placing::Fixed, Placing::LaidOut}) {
    for (const int controls : {100, 1000, 10000}) {
      if (suite.settings().quick && controls > 1000) {
        continue;
      }
      const std::string name = placing == Placing::Fixed ? "Apply/fixed/" : "Apply/laid-out/";
      suite.add(name + std::to_string(controls),
                [controls, placing](const auto& run) { contestAtSize(controls, placing, run); });
    }
  }
  suite.add("Apply/steps", [](const auto& run) { contestOfSteps(run); });
  if (!suite.settings().quick) {
    suite.add("Apply/growth", [](const auto& run) { contestOfSizes(run); });
  }
}

}  // namespace bench
