// SPDX-FileCopyrightText: The KOBTraduction authors
#include "Pages.h"

#include <sstream>
#include <vector>

namespace kob::command {

namespace {

/// A text as man(7) prints it letter for letter.
std::string roff(const std::string& text) {
  std::string escaped;
  bool isLineStart = true;
  for (const char letter : text) {
    if (isLineStart && (letter == '.' || letter == '\'')) {
      escaped += "\\&";
    }
    isLineStart = letter == '\n';
    if (letter == '\\') {
      escaped += "\\e";
    } else if (letter == '-') {
      escaped += "\\-";
    } else if (letter == '\'') {
      escaped += "\\(aq";
    } else {
      escaped += letter;
    }
  }
  return escaped;
}

std::vector<const CLI::App*> verbsOf(const CLI::App& command) {
  return command.get_subcommands([](const CLI::App* verb) { return !verb->get_name().empty(); });
}

std::vector<const CLI::Option*> optionsOf(const CLI::App& app, bool isPositional) {
  return app.get_options(
      [isPositional](const CLI::Option* option) { return option->get_positional() == isPositional; });
}

std::vector<std::string> spellingsOf(const CLI::Option& option) {
  std::vector<std::string> spellings;
  for (const std::string& name : option.get_snames()) {
    spellings.push_back("-" + name);
  }
  for (const std::string& name : option.get_lnames()) {
    spellings.push_back("--" + name);
  }
  return spellings;
}

bool takesValue(const CLI::Option& option) {
  return option.get_items_expected_max() > 0;
}

std::string synopsis(const CLI::App& verb) {
  std::string line = ".B " + roff("kobtrad " + verb.get_name()) + "\n[\\fIOPTIONS\\fR]";
  for (const CLI::Option* const option : optionsOf(verb, true)) {
    const bool isRepeated = option->get_items_expected_max() > 1;
    const std::string name = "\\fI" + roff(option->get_name(true)) + "\\fR" + (isRepeated ? "..." : "");
    line += option->get_required() ? " " + name : " [" + name + "]";
  }
  return line + "\n";
}

std::string describedOption(const CLI::Option& option) {
  std::string line = ".TP\n";
  if (option.get_positional()) {
    line += "\\fI" + roff(option.get_name(true)) + "\\fR";
  } else {
    std::string divider;
    for (const std::string& spelling : spellingsOf(option)) {
      line += divider + "\\fB" + roff(spelling) + "\\fR";
      divider = ", ";
    }
    if (takesValue(option)) {
      line += " \\fI" + roff(option.get_type_name()) + "\\fR";
    }
  }
  return line + "\n" + roff(option.get_description()) + (option.get_required() ? " (required)" : "") + ".\n";
}

/// Examples with the sentences around them: lines that begin with blanks are examples.
std::string describedFooter(const std::string& text) {
  std::string page;
  bool isExample = false;
  std::istringstream lines(text);
  for (std::string line; std::getline(lines, line);) {
    const bool isNowExample = line.starts_with("  ");
    if (isNowExample != isExample) {
      page += isNowExample ? ".PP\n.RS 4\n.nf\n" : ".fi\n.RE\n.PP\n";
    } else if (line.empty()) {
      page += ".PP\n";
    }
    isExample = isNowExample;
    page += line.empty() ? "" : roff(isNowExample ? line.substr(2) : line) + "\n";
  }
  return page + (isExample ? ".fi\n.RE\n" : "");
}

std::string describedVerb(const CLI::App& verb) {
  std::string page =
      ".SS " + roff(verb.get_name()) + "\n" + synopsis(verb) + ".PP\n" + roff(verb.get_description()) + ".\n";
  for (const bool isPositional : {true, false}) {
    for (const CLI::Option* const option : optionsOf(verb, isPositional)) {
      page += describedOption(*option);
    }
  }
  return page + ".PP\n" + describedFooter(verb.get_footer());
}

std::string joined(const std::vector<std::string>& words) {
  std::string line;
  for (const std::string& word : words) {
    line += (line.empty() ? "" : " ") + word;
  }
  return line;
}

std::vector<std::string> allSpellings(const CLI::App& app) {
  std::vector<std::string> all;
  for (const CLI::Option* const option : optionsOf(app, false)) {
    for (const std::string& spelling : spellingsOf(*option)) {
      all.push_back(spelling);
    }
  }
  return all;
}

/// The branch that completes the value of an option: one of a choice, or, for options whose value is no file,
/// nothing.
std::string valueBranch(const CLI::App& verb, const CLI::Option& option) {
  std::string pattern;
  for (const std::string& spelling : spellingsOf(option)) {
    pattern += (pattern.empty() ? "" : " | ") + verb.get_name() + ":" + spelling;
  }
  std::string choice = option.get_type_name();
  if (choice == "FILE" || choice == "OUT") {
    return "    " + pattern +
           ")\n      mapfile -t COMPREPLY < <(compgen -f -- \"$word\")\n      return\n      ;;\n";
  }
  const bool isChoice = choice.find('|') != std::string::npos;
  for (char& letter : choice) {
    letter = letter == '|' ? ' ' : letter;
  }
  return "    " + pattern + ")\n" +
         (isChoice ? "      mapfile -t COMPREPLY < <(compgen -W \"" + choice + "\" -- \"$word\")\n"
                   : "      COMPREPLY=()\n") +
         "      return\n      ;;\n";
}

}  // namespace

std::string manualPage(const CLI::App& command) {
  std::string page = ".TH KOBTRAD 1 \"\" \"KOBTraduction " KOB_VERSION
                     "\" \"User Commands\"\n"
                     ".SH NAME\nkobtrad \\- harvest, translate and apply the texts of forms\n.SH SYNOPSIS\n";
  for (const CLI::App* const verb : verbsOf(command)) {
    page += synopsis(*verb) + ".br\n";
  }
  page += ".SH DESCRIPTION\n" + roff(command.get_description()) + ".\n.SH OPTIONS\n";
  for (const CLI::Option* const option : optionsOf(command, false)) {
    page += describedOption(*option);
  }
  page += ".SH VERBS\n";
  for (const CLI::App* const verb : verbsOf(command)) {
    page += describedVerb(*verb);
  }
  return page + ".SH EXIT STATUS AND EXAMPLES\n" + describedFooter(command.get_footer());
}

std::string bashCompletion(const CLI::App& command) {
  std::vector<std::string> verbs;
  std::string options;
  std::string values;
  for (const CLI::App* const verb : verbsOf(command)) {
    verbs.push_back(verb->get_name());
    options += "    " + verb->get_name() + ") options=\"" + joined(allSpellings(*verb)) + "\" ;;\n";
    for (const CLI::Option* const option : optionsOf(*verb, false)) {
      values += takesValue(*option) ? valueBranch(*verb, *option) : std::string();
    }
  }
  return "# bash completion of kobtrad\n"
         "_kobtrad() {\n"
         "  local word=${COMP_WORDS[COMP_CWORD]} verb=${COMP_WORDS[1]:-} options=\"\"\n"
         "  COMPREPLY=()\n"
         "  if [ \"$COMP_CWORD\" -eq 1 ]; then\n"
         "    mapfile -t COMPREPLY < <(compgen -W \"" +
         joined(verbs) + " " + joined(allSpellings(command)) +
         "\" -- \"$word\")\n"
         "    return\n"
         "  fi\n"
         "  case \"$verb:${COMP_WORDS[COMP_CWORD - 1]}\" in\n" +
         values +
         "  esac\n"
         "  case \"$verb\" in\n" +
         options +
         "  esac\n"
         "  if [[ $word == -* ]]; then\n"
         "    mapfile -t COMPREPLY < <(compgen -W \"$options\" -- \"$word\")\n"
         "  else\n"
         "    mapfile -t COMPREPLY < <(compgen -f -- \"$word\")\n"
         "  fi\n"
         "}\n"
         "complete -o filenames -F _kobtrad kobtrad\n";
}

}  // namespace kob::command
