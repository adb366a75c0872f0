// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include <kobtraduction/model/KOBModeleTraduction.h>

#include <cstdint>
#include <string>
#include <vector>

namespace kob::command {

struct ListingOptions {
  /// The languages to show below language 1, in this order; empty for all that have a text.
  std::vector<std::int32_t> languages;
  /// Only texts that language 1 has and one of the shown languages lacks, with the cells around them.
  bool isMissingOnly = false;
  /// The left and width factors that are not 1, too.
  bool hasFactors = false;
};

/// The cells from `top` down as a tree with their texts, one line per text and language:
///
///   Order
///   │   Caption  1  Commande
///   │            2  Order
///   └── BtnAccept
///           Caption  1  &Valider
///                    2  –
std::string listTree(const KOBModeleTraduction& model, const KOBCellTraduction& top,
                     const ListingOptions& options);

}  // namespace kob::command
