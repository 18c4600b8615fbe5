#pragma once

// For the few functions that every field of a file passes: functions that must be inlined into them, and rare paths
// that must not be, so that the usual path needs registers alone.
#if defined(__GNUC__)
#define VORN_ALWAYS_INLINE [[gnu::always_inline]] inline
#define VORN_RARE [[gnu::noinline, gnu::cold]]
#else
#define VORN_ALWAYS_INLINE inline
#define VORN_RARE
#endif
