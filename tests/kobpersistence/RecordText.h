// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include <kobtraduction/model/KOBModeleTraduction.h>

#include <string>

namespace kob::test {

/// The records of a model that is a tree, in the words of trad_reader.py: what each object writes, numbered
/// as a walk meets them.
std::string recordText(KOBModeleTraduction& model);

}  // namespace kob::test
