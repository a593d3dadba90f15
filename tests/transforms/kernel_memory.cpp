// Transforms in place keep a table from one call to the next, and do without when there is no memory for it.
#include <kor/c06.h>

#include <thread>

#include <gtest/gtest.h>

#include "support/allocation.hpp"
#include "transforms/reference.hpp"

namespace kor::testing {
namespace {

TEST(Memory, TransformsInPlaceDoWithout)
{
    constexpr Integer n = 1000;
    const Doubles start = random_doubles(n, 7);
    Doubles usual = start, without = start;
    c06eac(n, usual.data(), nullptr);
    long allocations = 0;
    std::thread fresh{[&] {
        const AllocationWatch watch{1};
        c06eac(n, without.data(), nullptr);
        allocations = AllocationWatch::allocations();
    }};
    fresh.join();
    EXPECT_EQ(allocations, 1);
    EXPECT_EQ(without, usual);
}

} // namespace
} // namespace kor::testing
