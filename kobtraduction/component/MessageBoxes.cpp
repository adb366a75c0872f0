// SPDX-FileCopyrightText: The KOBTraduction authors
#include <kobtraduction/component/MessageBoxes.h>

namespace kob {

MessageBoxes::~MessageBoxes() = default;

}  // namespace kob
