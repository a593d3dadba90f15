// Every generation of processors gives the same bits, for every kind of pass.
#include <algorithm>
#include <cstring>
#include <initializer_list>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "transforms/generations.hpp"
#include "transforms/reference.hpp"

namespace kor::testing {
namespace {

using namespace kor::transforms;

// What the passes of one generation write.
class Collected {
  public:
    explicit Collected(const Kernels &kernel) : kernel_{kernel} {}

    // Calls pass(from, to) from random numbers to zeros; `to` holds what is written to sequences of these sizes.
    template <class Pass>
    void run(std::size_t in, std::size_t out, Pass pass)
    {
        Doubles x = random_doubles(in, 1), y = random_doubles(in, 2), u(out), v(out);
        pass(Sequence{x.data(), y.data()}, Sequence{u.data(), v.data()});
        add(u);
        add(v);
    }
    void add(const Doubles &values) { values_.insert(values_.end(), values.begin(), values.end()); }
    const Doubles &values() const { return values_; }
    const Kernels &kernel() const { return kernel_; }

  private:
    const Kernels &kernel_;
    Doubles values_;
};

constexpr Index kBatch = 3;

// Each element of the sequence is a row of one number, or of several.
void rows(Collected &to, const Stage &stage, std::size_t n)
{
    const Kernels &kernel = to.kernel();
    for (const Index batch : {Index{1}, kBatch}) {
        const Block block{stage.before, stage.after, batch, batch, batch};
        const std::size_t size = static_cast<std::size_t>(batch) * n;
        for (const auto pass : {kernel.complex_pass, kernel.real_pass, kernel.hermitian_pass})
            to.run(size, size, [&](Sequence x, Sequence y) { pass(stage, block, x, y); });
    }
}
void without_twiddles(Collected &to, const Stage &stage, std::size_t n)
{
    const Block block{stage.before, 1, kBatch, kBatch, kBatch};
    const Kernels &kernel = to.kernel();
    for (const auto pass : {kernel.complex_whole, kernel.real_whole, kernel.hermitian_whole})
        to.run(kBatch * n, kBatch * n, [&](Sequence x, Sequence y) { pass(stage, block, x, y, 0.3); });
}

// A whole sequence in place.
void alone(Collected &to, Index n)
{
    const AloneTable &table = to.kernel().alone;
    for (const auto &[kind, transform] :
         {std::pair{Kind::complex, table.complex}, {Kind::real, table.real}, {Kind::hermitian, table.hermitian}}) {
        if (!has_butterfly(kind, n)) continue;
        Doubles x = random_doubles(static_cast<std::size_t>(n), 1), y = random_doubles(static_cast<std::size_t>(n), 2);
        transform[n]({x.data(), y.data()}, 0.3);
        to.add(x);
        to.add(y);
    }
}

// Runs pass(block, columns, in, out) from each kind of data in `from` to each in `to`: `rows` rows of some of the `count` columns.
template <class Pass>
void kinds_of_columns(Collected &collected, Block block, Index count, Index rows, std::initializer_list<ColumnsOf> from,
                      std::initializer_list<ColumnsOf> to, Pass pass)
{
    const auto is_block = [](ColumnsOf kind) { return kind == ColumnsOf::complex_block; };
    for (const ColumnsOf in : from)
        for (const ColumnsOf out : to) {
            block.in_row = is_block(in) ? block.width : count;
            block.out_row = is_block(out) ? block.width : count;
            collected.run(static_cast<std::size_t>(rows * block.in_row), static_cast<std::size_t>(rows * block.out_row),
                          [&](Sequence x, Sequence y) {
                              pass(block, Columns{count, 1, in, out, rows}, x, y);
                          });
        }
}

constexpr Index kWidth = 11; // some full registers of every size, and a rest

void columns(Collected &to, const Stage &stage)
{
    using enum ColumnsOf;
    const Index count = stage.after, width = std::min(kWidth, (count - 1) / 2);
    if (width < 1) return;
    const Block block{stage.before, 1, width, 0, 0};
    const Index rows = stage.before * stage.radix;
    kinds_of_columns(
        to, block, count, rows, {complex_block, long_sequence}, {complex_block, short_sequences},
        [&](const Block &b, const Columns &c, Sequence x, Sequence y) { to.kernel().columns_pass(stage, b, c, x, y); });
    kinds_of_columns(to, block, count, rows, {complex_block, short_sequences}, {complex_block, long_sequence},
                     [&](const Block &b, const Columns &c, Sequence x, Sequence y) {
                         to.kernel().columns_pass_back(stage, b, c, x, y);
                     });
}

void factors(Collected &to, const Stage &stage, Index n)
{
    using enum ColumnsOf;
    const Index count = 2 * kWidth + 1;
    const Index longest = std::max(n * count, 8 * n * kWidth);
    const std::size_t size = static_cast<std::size_t>(n * kWidth);
    Doubles bases(2 * static_cast<std::size_t>(n)), roots(2 * size);
    to.kernel().unit_roots(longest, 0, 1, n, bases.data(), bases.data() + n);
    const Sequence roots_at{roots.data(), roots.data() + size};
    to.kernel().roots_less_one(longest, n, kWidth, roots_at);
    to.add(roots);
    const Factored factored{{bases.data(), bases.data() + n}, roots_at, kWidth};
    const Block block{stage.before, stage.after, kWidth, 0, 0};
    kinds_of_columns(to, block, count, n, {complex_block, short_sequences}, {complex_block, long_sequence},
                     [&](const Block &b, const Columns &c, Sequence x, Sequence y) {
                         to.kernel().factors_pass(stage, b, c, factored, x, y);
                     });
    kinds_of_columns(to, block, count, n, {complex_block, long_sequence}, {short_sequences},
                     [&](const Block &b, const Columns &c, Sequence x, Sequence y) {
                         to.kernel().factors_pass_back(stage, b, c, factored, x, y);
                     });
    kinds_of_columns(to, block, count, n, {long_sequence}, {complex_block},
                     [&](const Block &b, const Columns &c, Sequence x, Sequence y) {
                         to.kernel().factors_pass_back(stage, b, c, factored, x, y);
                     });
}

// All passes of all kinds for one length, and the table itself.
[[maybe_unused]] Doubles everything(const Kernels &kernel, Index n)
{
    const auto size = static_cast<std::size_t>(n);
    Collected collected{kernel};
    Doubles trig(2 * size);
    kernel.root_table(Stages{n, trig.data()}, n, trig.data());
    collected.add(trig);
    Doubles c(101), s(101);
    kernel.unit_roots(n, 1, n / 3, 101, c.data(), s.data());
    collected.add(c);
    collected.add(s);

    const Stages stages{n, trig.data()};
    for (int i = 0; i < stages.count; ++i) {
        rows(collected, stages.stage[i], size);
        columns(collected, stages.stage[i]);
        factors(collected, stages.stage[i], n);
    }
    for (const Kind kind : {Kind::complex, Kind::real}) {
        const Stages fewest = Stages::fewest(kind, n, trig.data());
        without_twiddles(collected, fewest.stage[fewest.count - 1], size);
        if (fewest.in_first_pass > 0 && fewest.stage[fewest.in_first_pass - 1].after >= kernels().lanes)
            collected.run(size, size + kLine, [&](Sequence x, Sequence y) {
                kernel.complex_lead(fewest.stage, fewest.in_first_pass, x, y);
                std::fill_n(y.re + n, kLine, 0.0); // where it may have written more or less
                std::fill_n(y.im + n, kLine, 0.0);
            });
    }
    alone(collected, n);
    return collected.values();
}

TEST(Generations, GiveTheSameBits)
{
#if defined(KOR_TRANSFORM_GENERATIONS)
    std::vector<Index> lengths{60, 64, 75, 81, 240, 1296, 1001, 945, 61 * 61};
    for (Index n = 2; n <= kLongestButterfly; ++n) lengths.push_back(n);
    for (const Index n : lengths) {
        const Doubles base = everything(kKernelsForAll, n);
        const auto same = [&](const Doubles &other) {
            return std::memcmp(base.data(), other.data(), base.size() * sizeof(double)) == 0;
        };
        if (__builtin_cpu_supports("x86-64-v3")) {
            EXPECT_TRUE(same(everything(kKernelsForV3, n))) << n;
        }
        if (__builtin_cpu_supports("x86-64-v4")) {
            EXPECT_TRUE(same(everything(kKernelsForV4, n))) << n;
        }
    }
#else
    GTEST_SKIP() << "this build has one generation";
#endif
}

} // namespace
} // namespace kor::testing
