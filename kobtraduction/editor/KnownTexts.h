// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include <kobtraduction/base/Export.h>
#include <kobtraduction/model/KOBModeleTraduction.h>

#include <bitset>
#include <cstddef>
#include <cstdint>
#include <exception>
#include <memory>
#include <vector>

namespace kob {

/// GetTraductionsConnues for several texts at the cost of one walk through the model: for each text the list,
/// or the failure, that a call for it gives. As completing an entry from its list adds nothing that the other
/// lists would take differently, the lists can be made first and the entries be completed after. The texts
/// must outlive it. Internal.
class KOB_EXPORT KnownTexts {
 public:
  KnownTexts(const KOBModeleTraduction& model, const std::vector<Text>& references);

  /// The list for a text, or its failure. Lives as long as this object.
  const TextList& of(std::size_t number) const;

 private:
  struct Known {
    TextView reference;
    std::uint32_t hash;
    std::shared_ptr<TextList> texts;
    std::exception_ptr failure;
  };

  void complete(const KOBTraductionObj& entry);
  /// What nearly all texts that are not looked for differ in: their length and their ends.
  static std::size_t sketch(TextView reference) noexcept;

  std::vector<Known> known_;
  /// The texts' numbers by their hashes.
  std::vector<std::size_t> byHash_;
  static constexpr std::size_t sketches = 1024;
  std::bitset<sketches> sketched_;
};

}  // namespace kob
