// SPDX-FileCopyrightText: The KOBTraduction authors
#include "HelpPage.h"

#include <sstream>

namespace kob::command {

namespace {

constexpr std::size_t pageWidth = 100;
constexpr std::size_t firstColumn = 30;

/// The words in lines of the page's width, each line but the first behind `indent` blanks.
std::string wrapped(const std::string& words, std::size_t indent) {
  std::istringstream rest(words);
  std::string lines;
  std::size_t column = indent;
  for (std::string word; rest >> word;) {
    if (column > indent && column + 1 + word.size() > pageWidth) {
      lines += "\n" + std::string(indent, ' ');
      column = indent;
    } else if (column > indent) {
      lines += ' ';
      ++column;
    }
    lines += word;
    column += word.size();
  }
  return lines;
}

std::string row(const std::string& left, const std::string& right) {
  std::string line = "  " + left;
  // What is too long for its column has a line of its own.
  line += line.size() + 2 > firstColumn ? "\n" + std::string(firstColumn, ' ')
                                        : std::string(firstColumn - line.size(), ' ');
  return line + wrapped(right, firstColumn) + "\n";
}

}  // namespace

HelpPage::HelpPage() {
  label("SUBCOMMAND", "VERB");
  label("Positionals", "Arguments");
}

std::string HelpPage::make_description(const CLI::App* app) const {
  return wrapped(app->get_description() + ".", 0) + "\n\n";
}

std::string HelpPage::make_option(const CLI::Option* option, bool isPositional) const {
  return row(make_option_name(option, isPositional) + make_option_opts(option),
             option->get_description() + (option->get_required() && !isPositional ? " (required)" : ""));
}

std::string HelpPage::make_subcommand(const CLI::App* verb) const {
  return row(verb->get_display_name(true), verb->get_description());
}

std::string HelpPage::make_option_opts(const CLI::Option* option) const {
  if (option->get_positional()) {
    return option->get_items_expected_max() > 1 ? "..." : "";
  }
  return option->get_type_size() > 0 ? " " + option->get_type_name() : "";
}

}  // namespace kob::command
