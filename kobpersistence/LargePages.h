// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include <cstddef>

namespace kob::persistence {

/// Tells the system that all of a new block is about to be used. What is large then comes in large pages
/// where the system has them, which costs a fraction of being given the small ones one by one. Only a hint.
/// Defined per system.
void expectUseOf(void* block, std::size_t size) noexcept;

}  // namespace kob::persistence
