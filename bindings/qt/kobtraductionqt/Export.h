// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

/// Marks what the Qt binding's shared library shows to the outside.
#if defined(KOB_STATIC)
#define KOB_QT_EXPORT
#elif defined(_WIN32)
#if defined(KOB_QT_BUILDING)
#define KOB_QT_EXPORT __declspec(dllexport)
#else
#define KOB_QT_EXPORT __declspec(dllimport)
#endif
#else
#define KOB_QT_EXPORT __attribute__((visibility("default")))
#endif
