// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include "Verb.h"

#include <memory>

namespace kob::command {

/// The whole command line: every verb with its arguments and help. What is printed about it (--help, the
/// manual page, the completion) is made from this object. The verb that a line names sets `job`, which must
/// outlive the object.
std::unique_ptr<CLI::App> makeCommand(Job& job);

/// Understands the arguments and does what they ask for; the number to end with.
int run(int argc, const char* const* argv);

}  // namespace kob::command
