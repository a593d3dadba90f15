// Every generation of processors gives the same bits, for every kind of pass.
#include <cstring>

#include <gtest/gtest.h>

#include "transforms/generations.hpp"
#include "transforms/reference.hpp"
#include "transforms/root_table.hpp"

namespace kor::testing {
namespace {

using namespace kor::transforms;

// All passes of all kinds for one length, and the table itself.
Doubles everything(const Kernels &kernel, Index n)
{
    const std::size_t size = static_cast<std::size_t>(n);
    Doubles trig(2 * size), collected;
    fill_root_table(n, trig.data());
    Doubles c(101), s(101);
    kernel.unit_roots(n, 1, n / 3, 101, c.data(), s.data());
    collected.insert(collected.end(), c.begin(), c.end());
    collected.insert(collected.end(), s.begin(), s.end());

    const Stages stages{n, trig.data()};
    const Index batch = 3;
    const Doubles x = random_doubles(batch * size, 1), y = random_doubles(batch * size, 2);
    for (int i = 0; i < stages.count; ++i) {
        const Stage &stage = stages.stage[i];
        const auto run = [&](auto pass) {
            Doubles u(batch * size), v(batch * size);
            pass(u.data(), v.data());
            collected.insert(collected.end(), u.begin(), u.end());
            collected.insert(collected.end(), v.begin(), v.end());
        };
        // Each element of the sequence is a row of `batch` numbers.
        const Block block{stage.before, stage.after, batch, batch, batch};
        const auto at = [](const Doubles &data) { return const_cast<double *>(data.data()); };
        run([&](double *u, double *v) { kernel.complex_pass(stage, block, {at(x), at(y)}, {u, v}, 0.3); });
        run([&](double *u, double *) { kernel.real_pass(stage, block, {at(x), nullptr}, {u, nullptr}, 0.3); });
        run([&](double *u, double *) { kernel.hermitian_pass(stage, block, {at(x), nullptr}, {u, nullptr}, 0.3); });
    }
    return collected;
}

TEST(Generations, GiveTheSameBits)
{
#if defined(KOR_TRANSFORM_GENERATIONS)
    for (const Index n : {240, 1296, 1001, 945, 2 * 61 * 61}) {
        const Doubles base = everything(kernels_for_all(), n);
        const auto same = [&](const Doubles &other) {
            return std::memcmp(base.data(), other.data(), base.size() * sizeof(double)) == 0;
        };
        if (__builtin_cpu_supports("x86-64-v3")) {
            EXPECT_TRUE(same(everything(kernels_for_v3(), n))) << n;
        }
        if (__builtin_cpu_supports("x86-64-v4")) {
            EXPECT_TRUE(same(everything(kernels_for_v4(), n))) << n;
        }
    }
#else
    GTEST_SKIP() << "this build has one generation";
#endif
}

} // namespace
} // namespace kor::testing
