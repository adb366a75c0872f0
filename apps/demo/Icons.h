// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include <QIcon>

namespace kob::demo {

enum class Drawing { Lend, Return, Extend, Print, Member, Search };

/// Drawn by the program itself, so that they look the same on every system.
QIcon icon(Drawing drawing);

/// The font and colours of the demo. Sizes are in pixels, as the geometry of its forms is.
void setLook();

}  // namespace kob::demo
