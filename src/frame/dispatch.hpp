// Code for several generations of processors: the marked function is compiled once for each, and the loader picks.
#pragma once

// Clones for plain x86-64 and for the levels v3 (AVX2) and v4 (AVX-512). The arithmetic stays the same, bit for bit:
// contraction is off, so no clone fuses a multiplication with an addition unless the code says std::fma.
// Sanitizers instrument the loader's choice before they are ready for it: no clones there.
#if defined(__x86_64__) && defined(__GNUC__) && !defined(__clang__) && !defined(KOR_SANITIZED)
#define KOR_CLONES __attribute__((target_clones("default", "arch=x86-64-v3", "arch=x86-64-v4")))
#else
#define KOR_CLONES
#endif
