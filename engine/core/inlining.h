#pragma once

// For the few functions that every field of a file goes through: what has to be inlined into them, and the rare paths
// that must stay out of them, so that the usual path runs in registers alone.
#if defined(__GNUC__)
#define VORN_ALWAYS_INLINE [[gnu::always_inline]] inline
#define VORN_RARE [[gnu::noinline, gnu::cold]]
#else
#define VORN_ALWAYS_INLINE inline
#define VORN_RARE
#endif
