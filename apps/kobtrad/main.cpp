// SPDX-FileCopyrightText: The KOBTraduction authors
#include "Command.h"

#include <kobpersistence/KOBPersistence.h>

int main(int argc, char** argv) {
  kob::setPersistenceService(&kob::makeFileManager);
  return kob::command::run(argc, argv);
}
