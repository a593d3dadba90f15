// Counts the library's allocations on this thread, and makes a chosen one fail.
#pragma once

namespace kor::testing {

class AllocationWatch {
  public:
    // `failing`: which allocation returns null, from 1; 0 for none. Later ones succeed again.
    explicit AllocationWatch(long failing = 0);
    ~AllocationWatch();
    AllocationWatch(const AllocationWatch &) = delete;

    static long allocations(); // since the watch began
    static long live();        // allocated and not freed since then
};

} // namespace kor::testing
