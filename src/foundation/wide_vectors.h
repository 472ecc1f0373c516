#pragma once

/// Before a function with a hot loop: it is compiled for several widths of vectors, and the machine's widest
/// is taken when the program starts. Every width gives the same bits, since no product is fused with a sum
/// (-ffp-contract=off) and no sum is taken in another order. Where a system or a sanitizer cannot choose at
/// the start, the plain code is all there is. Such a function does not throw:
/// an exception does not get past the place where g++ chooses the width.
#if defined(__x86_64__) && defined(__linux__) && defined(__GNUC__) && !defined(__clang__) && \
    !defined(__SANITIZE_ADDRESS__) && !defined(VELMAR_NARROW_VECTORS)
#define VELMAR_WIDE_VECTORS __attribute__((target_clones("avx512f", "avx2", "default")))
#else
#define VELMAR_WIDE_VECTORS
#endif

/// Before a function that a loop over lanes calls: the loop only becomes vectors when the function is part of
/// it.
#define VELMAR_LANE_FUNCTION [[gnu::always_inline]] inline
