// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include "ServiceTest.h"

/// What programs save that are killed meanwhile.
namespace kob::test {

/// How many: a save must last long enough to be met by a kill.
inline constexpr int messages = 1'500;

inline void fill(KOBModeleTraduction& model, TextView text) {
  for (int i = 0; i < messages; ++i) {
    message(model.Racine(), decimal(i), {text, u"and another text", u"", u"", u"", u""});
  }
}

}  // namespace kob::test
