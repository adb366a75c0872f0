// SPDX-FileCopyrightText: The KOBTraduction authors
#include <kobpersistence/LargePages.h>

namespace kob::persistence {

void expectUseOf(void* /*block*/, std::size_t /*size*/) noexcept {}

}  // namespace kob::persistence
