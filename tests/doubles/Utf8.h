// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include <kobtraduction/base/Text.h>

#include <string>
#include <string_view>

namespace kob::testing {

/// UTF-8 to the component's text; throws std::runtime_error for what is no UTF-8.
Text fromUtf8(std::string_view utf8);

/// The other way; an unpaired surrogate becomes U+FFFD.
std::string toUtf8(TextView text);

}  // namespace kob::testing
