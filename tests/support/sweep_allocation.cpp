// Every allocation of every routine fails once: the routine says so, leaves its outputs alone and leaks nothing.
#include <gtest/gtest.h>

#include "support/allocation.hpp"
#include "support/specimen.hpp"

namespace kor::testing {
namespace {

constexpr long kFarTooMany = 10000;

TEST(Sweep, EveryAllocationMayFail)
{
    for (const Registration &routine : registry()) {
        if (!routine.has_record) continue;
        const auto before = run_specimen(routine, nullptr);
        // A thread may keep a small store from its first call on.
        run_specimen(routine, [](const Specimen::Action &action) {
            KorError fail{};
            action(&fail);
        });
        long allocations = 0;
        run_specimen(routine, [&](const Specimen::Action &action) {
            KorError fail{};
            const AllocationWatch watch;
            action(&fail);
            allocations = AllocationWatch::allocations();
        });
        ASSERT_LT(allocations, kFarTooMany) << routine.routine;
        for (long k = 1; k <= allocations; ++k) {
            KorError fail{};
            long live = 0;
            const auto after = run_specimen(routine, [&](const Specimen::Action &action) {
                const AllocationWatch watch{k};
                action(&fail);
                live = AllocationWatch::live();
            });
            EXPECT_EQ(fail.code, NE_ALLOC_FAIL) << routine.routine << ", allocation " << k << " of " << allocations;
            EXPECT_EQ(live, 0) << routine.routine << " leaks when allocation " << k << " fails";
            EXPECT_EQ(after, before) << routine.routine << " touches its outputs when allocation " << k << " fails";
        }
    }
}

} // namespace
} // namespace kor::testing
