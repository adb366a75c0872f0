// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include <CLI/CLI.hpp>

#include <string>

/// What is installed beside the command, made from the same description as its --help.
namespace kob::command {

/// The manual page, for man(7).
std::string manualPage(const CLI::App& command);

/// The completion for bash: verbs, the options of each, the values of those that have a choice, else files.
std::string bashCompletion(const CLI::App& command);

}  // namespace kob::command
