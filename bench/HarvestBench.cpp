// SPDX-FileCopyrightText: The KOBTraduction authors
#include "Suite.h"
#include "TranslatedModel.h"

#include <kobtraduction/model/KOBModeleTraduction.h>
#include <kobtraductionqt/KOBTraductionQt.h>

#include <benchmark/benchmark.h>

#include <memory>
#include <stdexcept>

namespace bench {

namespace {

/// Harvests one form into a model that is empty before, and looks afterwards whether all of it is there.
class Harvest {
 public:
  Harvest(int controls, int perGroup) : form_(controls, perGroup, Placing::Fixed) {
    prepare();
    run();
    for (const kob::HostRef& control : hostControls(form_)) {
      const auto cell = model_->GetCell(model_->GetPath(control));
      if (cell == nullptr || cell->ColTraduction() == nullptr || cell->ColTraduction()->Count() != 2) {
        throw std::runtime_error("a control is missing in the harvested model");
      }
    }
  }

  const WidgetForm& form() const noexcept { return form_; }
  void prepare() { model_ = std::make_unique<kob::KOBModeleTraduction>(); }
  void run() { model_->UpdateWithForm(kob::qt::hostForm(form_.window())); }

 private:
  WidgetForm form_;
  std::unique_ptr<kob::KOBModeleTraduction> model_;
};

/// The least that a harvest does: every text read and copied.
void readTexts(const WidgetForm& form) {
  for (const Part& part : form.parts()) {
    benchmark::DoNotOptimize(part.widget->objectName().toStdU16String());
    benchmark::DoNotOptimize(part.caption().toStdU16String());
    benchmark::DoNotOptimize(part.widget->toolTip().toStdU16String());
  }
}

void contestAtSize(int controls, const std::function<void(Contest&)>& run) {
  Harvest harvest(controls, 10);
  Harvest again(controls, 10);
  Contest contest("Harvest", std::to_string(controls));
  contest.add(
      "UpdateWithForm, new model", controls, [&](int) { harvest.run(); }, [&](int) { harvest.prepare(); });
  contest.add("UpdateWithForm, known form", controls, [&](int) { again.run(); });
  contest.add("texts read and copied", controls, [&](int) { readTexts(harvest.form()); });
  run(contest);
}

void contestOfSizes(const std::function<void(Contest&)>& run) {
  Harvest large(10000, 10000);
  Harvest small(1000, 1000);
  Contest contest("Harvest, one container", "1000, 10000");
  contest.add(
      "10000 controls", 1, [&](int) { large.run(); }, [&](int) { large.prepare(); });
  contest.add(
      "1000 controls", 1, [&](int) { small.run(); }, [&](int) { small.prepare(); });
  contest.expect({"10000 controls", "1000 controls", 12.0, 10.5});
  run(contest);
}

}  // namespace

void addHarvesting(Suite& suite) {
  for (const int controls : {100, 1000, 10000}) {
    if (!suite.settings().quick || controls <= 1000) {
      suite.add("Harvest/" + std::to_string(controls),
                [controls](const auto& run) { contestAtSize(controls, run); });
    }
  }
  suite.add("Harvest/one-container", [](const auto& run) { contestOfSizes(run); });
}

}  // namespace bench
