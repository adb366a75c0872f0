// SPDX-FileCopyrightText: The KOBTraduction authors
#include "PathHints.h"

#include "ModelTexts.h"
#include "Utf8.h"

#include <algorithm>
#include <numeric>
#include <vector>

namespace kob::command {

namespace {

TextView lastName(TextView path) {
  const std::size_t divider = path.rfind(u'\\');
  return divider == TextView::npos ? path : path.substr(divider + 1);
}

}  // namespace

std::size_t distance(TextView a, TextView b, std::size_t limit) {
  if (std::max(a.size(), b.size()) - std::min(a.size(), b.size()) > limit) {
    return limit + 1;
  }
  std::vector<std::size_t> row(b.size() + 1);
  std::iota(row.begin(), row.end(), std::size_t{0});
  for (std::size_t i = 0; i < a.size(); ++i) {
    std::size_t diagonal = row[0];
    row[0] = i + 1;
    for (std::size_t j = 0; j < b.size(); ++j) {
      const std::size_t changed = diagonal + (upperUnit(a[i]) == upperUnit(b[j]) ? 0 : 1);
      diagonal = row[j + 1];
      row[j + 1] = std::min({changed, row[j] + 1, diagonal + 1});
    }
    if (*std::min_element(row.begin(), row.end()) > limit) {
      return limit + 1;
    }
  }
  return row.back();
}

std::string pathHint(const KOBModeleTraduction& model, TextView path) {
  constexpr std::size_t most = 3;
  const std::size_t limit = std::max<std::size_t>(2, path.size() / 4);
  struct Candidate {
    std::size_t distance;
    Text path;
  };
  std::vector<Candidate> candidates;
  for (const CellPlace& place : cellsOf(model)) {
    if (place.depth == 0) {
      continue;
    }
    // A control named without its form is as near as a slip of the finger.
    const bool hasSameName = equalUpper(place.cell->nom(), lastName(path));
    Text known = place.cell->GetCellPath();
    const std::size_t found = hasSameName ? 1 : distance(known, path, limit);
    if (found <= limit) {
      candidates.push_back({found, std::move(known)});
    }
  }
  std::stable_sort(candidates.begin(), candidates.end(),
                   [](const Candidate& a, const Candidate& b) { return a.distance < b.distance; });
  std::string hint;
  for (std::size_t i = 0; i < std::min(most, candidates.size()); ++i) {
    hint += (i == 0 ? "; did you mean \"" : "\" or \"") + visible(candidates[i].path);
  }
  return hint.empty() ? hint : hint + "\"?";
}

}  // namespace kob::command
