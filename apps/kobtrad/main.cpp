// SPDX-FileCopyrightText: The KOBTraduction authors
#include "Command.h"

#include <kobpersistence/KOBPersistence.h>

int main(int argc, char** argv) {
  kob::usePersistence();
  return kob::command::run(argc, argv);
}
