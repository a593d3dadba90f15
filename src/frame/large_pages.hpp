// Large arrays in large pages: their first use costs fewer faults, and visits far apart cost fewer walks through page tables.
#pragma once

#include <cstddef>
#include <cstdint>

#if defined(__linux__)
#include <sys/mman.h>
#endif

namespace kor {

// A hint, where the system takes one, for memory of which all will be used. Small arrays are left as they are.
inline void suggest_large_pages([[maybe_unused]] void *start, [[maybe_unused]] std::size_t bytes)
{
#if defined(__linux__) && defined(MADV_HUGEPAGE)
    constexpr std::size_t kLeast = std::size_t{8} << 20, kPage = 4096;
    if (bytes < kLeast) return;
    const std::size_t to_page = -reinterpret_cast<std::uintptr_t>(start) % kPage;
    madvise(static_cast<char *>(start) + to_page, (bytes - to_page) / kPage * kPage, MADV_HUGEPAGE);
#endif
}

} // namespace kor
