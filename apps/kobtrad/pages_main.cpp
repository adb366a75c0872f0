// SPDX-FileCopyrightText: The KOBTraduction authors
#include "Command.h"
#include "Pages.h"

#include <cstdio>
#include <fstream>

// kobtrad_pages MANUAL COMPLETION: writes the two files that are installed beside the command.
int main(int argc, char** argv) {
  if (argc != 3) {
    std::fputs("kobtrad_pages: two files are to be named\n", stderr);
    return 2;
  }
  kob::command::Job job;
  const std::unique_ptr<CLI::App> command = kob::command::makeCommand(job);
  std::ofstream manual(argv[1]);
  manual << kob::command::manualPage(*command);
  std::ofstream completion(argv[2]);
  completion << kob::command::bashCompletion(*command);
  manual.flush();
  completion.flush();
  return manual && completion ? 0 : 4;
}
