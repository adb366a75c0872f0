// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include <kobtraduction/base/Export.h>
#include <kobtraduction/base/Text.h>

namespace kob {

/// What a document shows for a line end.
inline constexpr char16_t paragraphSeparator = 0x2029;

/// For toolkits whose documents know one kind of line end. A text as a document shows it: each line end
/// ("\r\n", "\r", "\n" or a paragraph separator) is one paragraph separator, as is a unit that documents keep
/// for themselves; a NUL is the symbol of one.
KOB_EXPORT Text shownInDocument(TextView text);

/// What has become of `before` when a document that showed it now shows `shown`. What was not touched keeps
/// its units and its line ends; new line ends are like the first one of `before`, or `newLineEnd` where it
/// has none.
KOB_EXPORT Text editedInDocument(TextView before, TextView shown, TextView newLineEnd);

}  // namespace kob
