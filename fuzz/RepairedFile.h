// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include <kobpersistence/Bytes.h>

#include <cstddef>
#include <vector>

namespace kob::fuzz {

using Bytes = std::vector<persistence::Byte>;

/// How much of a mutated file is put right again, so that a mutation reaches what lies behind the first
/// check. A file for the fuzzer ends in a byte that chooses.
enum class Repair : unsigned {
  Nothing,
  Sums,     ///< length and checksum
  Framing,  ///< also the rest of the header, the class table and the length of every record
  Records,  ///< also what records say of each other: every object that is named exists
};

/// The repair that a byte chooses; most bytes choose the last.
Repair repairOf(persistence::Byte choice) noexcept;
/// A byte that chooses it.
persistence::Byte choiceOf(Repair repair) noexcept;

/// Where the records begin in a file of a model.
std::size_t recordsBegin();

/// The file, repaired.
Bytes repaired(Bytes file, Repair repair);

}  // namespace kob::fuzz
