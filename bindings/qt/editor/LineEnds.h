// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include <kobtraduction/base/Text.h>

namespace kob::qt {

/// A text as a document shows it: each line end ("\r\n", "\r", "\n" or a paragraph separator) is one
/// paragraph separator, as is a unit that documents keep for themselves.
Text shownInDocument(TextView text);

/// What has become of `before` when a document that showed it now shows `shown`. What was not touched keeps
/// its units and its line ends; new line ends are like the first one of `before`, or "\n".
Text editedInDocument(TextView before, TextView shown);

}  // namespace kob::qt
