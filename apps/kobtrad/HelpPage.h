// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include <CLI/CLI.hpp>

#include <string>

namespace kob::command {

/// The layout of --help: two columns, sentences broken at a width that every terminal has.
class HelpPage final : public CLI::Formatter {
 public:
  HelpPage();

  std::string make_description(const CLI::App* app) const override;
  std::string make_option(const CLI::Option* option, bool isPositional) const override;
  std::string make_subcommand(const CLI::App* verb) const override;
  std::string make_option_opts(const CLI::Option* option) const override;
};

}  // namespace kob::command
