// SPDX-FileCopyrightText: The KOBTraduction authors
#include "Suite.h"
#include "TranslatedModel.h"

#include <kobtraduction/model/KOBModeleTraduction.h>
#include <kobtraductionqt/KOBTraductionQt.h>

#include <benchmark/benchmark.h>

#include <cstddef>
#include <stdexcept>
#include <vector>

namespace bench {

namespace {

/// The least that a path costs: the names from the window down, joined.
kob::Text joinedNames(QWidget* widget) {
  QString path;
  for (; widget != nullptr; widget = widget->parentWidget()) {
    path.prepend('\\' + widget->objectName());
  }
  return kob::qt::toText(path);
}

void contestAtSize(int controls, const std::function<void(Contest&)>& run) {
  const WidgetForm form(controls, 10, Placing::Fixed);
  const kob::KOBModeleTraduction model;
  const std::vector<kob::HostRef> hosts = hostControls(form);
  for (std::size_t i = 0; i < hosts.size(); ++i) {
    if (model.GetPath(hosts[i]) != joinedNames(form.parts()[i].widget)) {
      throw std::runtime_error("GetPath gives another path than the names of the widgets");
    }
  }
  Contest contest("GetPath", std::to_string(controls));
  contest.add("GetPath", controls, [&](int) {
    for (const kob::HostRef& host : hosts) {
      benchmark::DoNotOptimize(model.GetPath(host));
    }
  });
  contest.add("names joined", controls, [&](int) {
    for (const Part& part : form.parts()) {
      benchmark::DoNotOptimize(joinedNames(part.widget));
    }
  });
  run(contest);
}

}  // namespace

void addControlPaths(Suite& suite) {
  for (const int controls : {100, 1000, 10000}) {
    if (!suite.settings().quick || controls <= 1000) {
      suite.add("GetPath/" + std::to_string(controls),
                [controls](const auto& run) { contestAtSize(controls, run); });
    }
  }
}

}  // namespace bench
