// SPDX-FileCopyrightText: The KOBTraduction authors
#include <kobpersistence/Describing.h>
#include <kobpersistence/Format.h>
#include <kobpersistence/SharedOrder.h>

#include <algorithm>

namespace kob::persistence {

namespace {

enum class State : std::uint8_t { Unmet, Open, Done };

/// An object on the way down, and how many of those that it names are still to be visited.
struct Step {
  std::uint32_t object;
  std::uint32_t left;
};

void checkNesting(const NamingGraph& graph, const RecordOrder& order) {
  std::vector<std::uint32_t> levels(graph.count(), 1);
  for (const std::uint32_t object : order.objects) {
    if (levels[object] > deepestNesting) {
      throw tooDeep();
    }
    for (std::uint32_t i = graph.begins[object]; i < graph.begins[object + 1]; ++i) {
      std::uint32_t& level = levels[graph.named[i]];
      level = std::max(level, levels[object] + 1);
    }
  }
}

}  // namespace

RecordOrder orderOf(const NamingGraph& graph) {
  RecordOrder order;
  order.isNext.resize(graph.named.size());
  std::vector<State> states(graph.count(), State::Unmet);
  const auto namedBy = [&graph](std::uint32_t object) {
    return graph.begins[object + 1] - graph.begins[object];
  };
  // From the last named to the first, and each put down once all below it are: backwards that is the order.
  std::vector<Step> way = {{0, namedBy(0)}};
  states[0] = State::Open;
  while (!way.empty()) {
    Step& step = way.back();
    if (step.left == 0) {
      states[step.object] = State::Done;
      order.objects.push_back(step.object);
      way.pop_back();
      continue;
    }
    const std::uint32_t place = graph.begins[step.object] + --step.left;
    const std::uint32_t object = graph.named[place];
    if (states[object] == State::Open) {
      throw failure(
          {u"An object contains itself, so it cannot be saved: look for a cell that was put below "
           u"itself."});
    }
    if (states[object] == State::Unmet) {
      states[object] = State::Open;
      order.isNext[place] = true;
      way.push_back({object, namedBy(object)});
    }
  }
  std::reverse(order.objects.begin(), order.objects.end());
  order.records.resize(graph.count());
  for (std::uint32_t record = 0; record < order.objects.size(); ++record) {
    order.records[order.objects[record]] = record;
  }
  checkNesting(graph, order);
  return order;
}

}  // namespace kob::persistence
