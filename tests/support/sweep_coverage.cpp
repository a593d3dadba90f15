// Every exported routine has exactly one specimen, and every specimen is of an exported routine.
#include <algorithm>
#include <string>

#include <gtest/gtest.h>

#include "support/specimen.hpp"

namespace kor::testing {
namespace {

const std::vector<std::string> kRoutines = {
#define KOR_ROUTINE(name) #name,
#include "routines.inc"
#undef KOR_ROUTINE
};

TEST(Sweep, EveryRoutineHasASpecimen)
{
    std::vector<std::string> specimens;
    for (const Registration &routine : registry()) specimens.emplace_back(routine.routine);
    std::sort(specimens.begin(), specimens.end());
    EXPECT_EQ(specimens, kRoutines);
}

} // namespace
} // namespace kor::testing
