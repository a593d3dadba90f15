// All routines at once on several threads: the same bits as in the serial run. The thread sanitizer watches.
#include <latch>
#include <thread>

#include <gtest/gtest.h>

#include "support/specimen.hpp"

namespace kor::testing {
namespace {

constexpr int kThreads = 4;
constexpr int kRounds = 3;

std::vector<unsigned char> plain_run(const Registration &routine)
{
    return run_specimen(routine, [](const Specimen::Action &action) {
        KorError fail{};
        action(&fail);
    });
}

TEST(Sweep, ThreadsAgreeWithTheSerialRun)
{
    const auto &all = registry();
    std::vector<std::vector<unsigned char>> serial;
    for (const Registration &routine : all) serial.push_back(plain_run(routine));

    std::vector<std::string> faults(kThreads);
    std::latch start{kThreads};
    std::vector<std::thread> threads;
    for (int t = 0; t < kThreads; ++t)
        threads.emplace_back([&, t] {
            start.arrive_and_wait();
            for (std::size_t i = 0; i < kRounds * all.size(); ++i) {
                // Each thread starts elsewhere in the list, so that different routines meet.
                const std::size_t which = (i + static_cast<std::size_t>(t) * all.size() / kThreads) % all.size();
                if (plain_run(all[which]) != serial[which]) faults[t] += std::string{" "} + all[which].routine;
            }
        });
    for (auto &thread : threads) thread.join();
    for (const auto &fault : faults) EXPECT_EQ(fault, "");
}

} // namespace
} // namespace kor::testing
