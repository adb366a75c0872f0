// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

/// Marks what the shared library shows to the outside; everything else is hidden.
/// KOB_BUILDING is set while the library itself is compiled, KOB_STATIC when it is linked statically.
#if defined(KOB_STATIC)
#define KOB_EXPORT
#elif defined(_WIN32)
#if defined(KOB_BUILDING)
#define KOB_EXPORT __declspec(dllexport)
#else
#define KOB_EXPORT __declspec(dllimport)
#endif
#else
#define KOB_EXPORT __attribute__((visibility("default")))
#endif
