// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

/// Marks what the persistence service's shared library shows to the outside.
#if defined(KOB_STATIC)
#define KOB_PERSISTENCE_EXPORT
#elif defined(_WIN32)
#if defined(KOB_PERSISTENCE_BUILDING)
#define KOB_PERSISTENCE_EXPORT __declspec(dllexport)
#else
#define KOB_PERSISTENCE_EXPORT __declspec(dllimport)
#endif
#else
#define KOB_PERSISTENCE_EXPORT __attribute__((visibility("default")))
#endif
