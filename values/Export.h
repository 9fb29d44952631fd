#pragma once

/// Stands before a class that programs use from the shared libraries; all else stays inside them.
#if defined(__GNUC__) && !defined(_WIN32)
#define KELCONTROLS8_EXPORT __attribute__((visibility("default")))
#else
#define KELCONTROLS8_EXPORT
#endif
