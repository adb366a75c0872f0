// SPDX-FileCopyrightText: The KOBTraduction authors
#include "Child.h"

#include <grp.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>

namespace kob::test {

namespace {

constexpr uid_t nobody = 65534;

bool giveUpRights() {
  return geteuid() != 0 || (setgroups(0, nullptr) == 0 && setgid(nobody) == 0 && setuid(nobody) == 0);
}

}  // namespace

bool inChild(const std::function<bool()>& action) {
  std::fflush(nullptr);
  const pid_t child = fork();
  if (child == 0) {
    const bool isRight = action();
    std::fflush(nullptr);
    // The parent's test program must not come to its end here, too.
    _exit(isRight ? EXIT_SUCCESS : EXIT_FAILURE);
  }
  int status = 0;
  return child > 0 && waitpid(child, &status, 0) == child && WIFEXITED(status) &&
         WEXITSTATUS(status) == EXIT_SUCCESS;
}

bool asOrdinaryUser(const std::function<bool()>& action) {
  return inChild([&] { return giveUpRights() && action(); });
}

}  // namespace kob::test
