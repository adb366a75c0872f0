// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include <string>

namespace bench {

/// What kind of text a number stands for; every kind words it differently.
enum class TextKind { Caption, ToolTip };

/// A made-up text of about 23 characters, different for every number, in one of the languages 1 to 3. UTF-8.
std::string textFor(TextKind kind, int number, int language);

}  // namespace bench
