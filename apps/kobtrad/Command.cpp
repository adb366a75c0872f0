// SPDX-FileCopyrightText: The KOBTraduction authors
#include "Command.h"

#include "Console.h"
#include "HelpPage.h"
#include "ModelFile.h"
#include "PathHints.h"
#include "Utf8.h"

#include <kobtraduction/base/Failure.h>

#include <string>

namespace kob::command {

namespace {

constexpr const char* about =
    "Keeps the texts of an application's forms in a translation file: records them from the forms, shows and "
    "changes their translations, and shows the forms in other languages";
constexpr const char* footer =
    "Ends with:\n"
    "  0  all is well\n"
    "  1  done, but something asks for attention: a refused text, a finding of a check\n"
    "  2  the arguments are wrong, or name a path, a text or a language that the file lacks\n"
    "  3  an input cannot be read, or is damaged\n"
    "  4  a result cannot be written\n\n"
    "What was asked for goes to standard output, messages go to standard error. No file is changed without "
    "-o or\n"
    "--in-place, and none is touched when a verb fails.\n\n"
    "Examples:\n"
    "  kobtrad harvest order.ui -o app.trad\n"
    "  kobtrad set app.trad 'Order\\BtnAccept' 2 '&Accept' --in-place\n"
    "  kobtrad apply order.ui app.trad --lang 2 --png order-en.png\n"
    "  kobtrad VERB --help            # all about one verb";

bool hasVerb(const CLI::App& command, const std::string& name) {
  return !command.get_subcommands([&name](const CLI::App* verb) { return verb->get_name() == name; }).empty();
}

/// The verb that a mistyped one stands for, as the end of a message.
std::string verbHint(const CLI::App& command, const std::string& typed) {
  constexpr std::size_t limit = 2;
  const Text wanted = fromUtf8(typed).value_or(Text());
  for (const CLI::App* const verb : command.get_subcommands({})) {
    if (distance(*fromUtf8(verb->get_name()), wanted, limit) <= limit) {
      return "; did you mean \"" + verb->get_name() + "\"?";
    }
  }
  return "; see kobtrad --help";
}

int status(Status status) {
  return static_cast<int>(status);
}

int failed(Status kind, const std::string& message) {
  tell(message);
  return status(kind);
}

int finish(const Job& job) {
  try {
    const Status result = job();
    return flushPrinted() ? status(result) : failed(Status::CannotWrite, "standard output cannot be written");
  } catch (const UsageError& error) {
    return failed(Status::Usage, error.what());
  } catch (const WriteError& error) {
    return failed(Status::CannotWrite, error.what());
  } catch (const ReadError& error) {
    return failed(Status::Unreadable, error.what());
  } catch (const Failure& failure) {
    // A list of the model that is missing or too short: the file was read, and makes no sense.
    return failed(Status::Unreadable,
                  std::string("the model is damaged: ") + failure.what() + "; see kobtrad check");
  } catch (const std::exception& error) {
    return failed(Status::Unreadable, error.what());
  }
}

}  // namespace

std::unique_ptr<CLI::App> makeCommand(Job& job) {
  auto command = std::make_unique<CLI::App>(about, "kobtrad");
  command->formatter(std::make_shared<HelpPage>());
  command->footer(footer);
  command->set_help_flag("-h,--help", "Print this help");
  command->set_version_flag("--version", KOB_VERSION, "Print the version");
  command->require_subcommand(1);
  command->failure_message([](const CLI::App*, const CLI::Error& error) {
    return std::string("kobtrad: ") + error.what() + "\nRun kobtrad --help, or kobtrad VERB --help.\n";
  });
  addHarvest(*command, job);
  addShow(*command, job);
  addGet(*command, job);
  addSet(*command, job);
  addEdit(*command, job);
  addApply(*command, job);
  addLanguages(*command, job);
  addStats(*command, job);
  addCheck(*command, job);
  addMerge(*command, job);
  addComplete(*command, job);
  addTestLanguage(*command, job);
  addClearLanguage(*command, job);
  return command;
}

int run(int argc, const char* const* argv) {
  Job job;
  const std::unique_ptr<CLI::App> command = makeCommand(job);
  if (argc > 1 && argv[1][0] != '-' && !hasVerb(*command, argv[1])) {
    return failed(Status::Usage,
                  std::string("there is no verb \"") + argv[1] + "\"" + verbHint(*command, argv[1]));
  }
  try {
    command->parse(argc, argv);
  } catch (const CLI::ParseError& error) {
    return command->exit(error) == 0 ? status(Status::Fine) : status(Status::Usage);
  }
  return finish(job);
}

}  // namespace kob::command
