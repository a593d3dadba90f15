// The generator and its state: the numbers against exact integer arithmetic, seeding, saving and restoring, threads.
#include <cmath>
#include <cstdint>
#include <ctime>
#include <limits>
#include <thread>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include <kor/g05.h>

#include "support/expect_report.hpp"

namespace kor::testing {
namespace {

constexpr std::int64_t kDefault = -1;
constexpr std::int64_t kLeastInteger = 2147483648; // its modulus

struct ReferenceStream {
    std::int64_t seed;
    std::vector<std::pair<int, double>> numbers;
    std::vector<Integer> pieces;
};
const ReferenceStream kStreams[] = {
#include "stream_data.inc"
};

void start(std::int64_t seed)
{
    if (seed == kDefault)
        g05cxc();
    else
        g05cbc(seed == kLeastInteger ? std::numeric_limits<Integer>::min() : static_cast<Integer>(seed));
}

struct Saved {
    Integer istate[9];
    double xstate[4];
    Saved() { g05cfc(istate, xstate); }
    void seal()
    {
        istate[0] = 0;
        for (int i = 1; i < 9; ++i) istate[0] += istate[i];
        xstate[0] = istate[0] / 4096.0 + xstate[1] + xstate[2] + xstate[3];
    }
    void restore(KorError &fail) const { g05cgc(istate, xstate, &fail); }
};

std::vector<double> next_numbers(int n)
{
    std::vector<double> u(n);
    for (double &x : u) x = g05cac();
    return u;
}

TEST(BaseGenerator, AgreesWithExactArithmetic)
{
    for (const ReferenceStream &stream : kStreams) {
        start(stream.seed);
        const auto one_by_one = next_numbers(stream.numbers.back().first);
        for (const auto &[position, number] : stream.numbers)
            EXPECT_EQ(one_by_one[position - 1], number) << "seed " << stream.seed << ", position " << position;
        const Saved saved;
        EXPECT_EQ(std::vector<Integer>(saved.istate, saved.istate + 6), stream.pieces) << "seed " << stream.seed;

        start(stream.seed);
        std::vector<double> at_once(one_by_one.size());
        g05fac(0.0, 1.0, static_cast<Integer>(at_once.size()), at_once.data());
        EXPECT_EQ(at_once, one_by_one) << "seed " << stream.seed;
    }
}

TEST(BaseGenerator, AnyCutOfTheStreamGivesTheSameNumbers)
{
    g05cbc(7);
    const auto whole = next_numbers(2000);
    for (int first = 0; first < 130; ++first) {
        g05cbc(7);
        std::vector<double> pieces = next_numbers(first);
        for (Integer piece = 1; pieces.size() < 1500; piece = piece * 5 % 257) {
            const std::size_t at = pieces.size();
            pieces.resize(at + piece);
            g05fac(0.0, 1.0, piece, pieces.data() + at);
            pieces.push_back(g05cac());
        }
        pieces.resize(1500);
        EXPECT_TRUE(std::equal(pieces.begin(), pieces.end(), whole.begin())) << "first cut behind " << first;
    }
}

TEST(BaseGenerator, SavedAtAnyPositionItGoesOnFromThere)
{
    for (int position = 0; position < 140; ++position) {
        g05cbc(-5);
        next_numbers(position);
        double bulk[300];
        if (position % 2 == 1) g05fac(0.0, 1.0, 3 * position % 300, bulk);
        const Saved saved;
        const auto after = next_numbers(200);

        Record fail;
        g05cbc(99);
        next_numbers(17);
        saved.restore(fail);
        EXPECT_SUCCESS(fail);
        EXPECT_EQ(next_numbers(200), after) << "position " << position;
        // A stream that is restored and saved at once gives the same arrays.
        saved.restore(fail);
        const Saved again;
        EXPECT_TRUE(std::equal(saved.istate, saved.istate + 9, again.istate));
        EXPECT_TRUE(std::equal(saved.xstate, saved.xstate + 4, again.xstate));
    }
}

TEST(BaseGenerator, SeedsSkipATermAndForgetTheirSign)
{
    g05cbc(5);
    const auto positive = next_numbers(3);
    g05cbc(-5);
    EXPECT_EQ(next_numbers(3), positive);

    // The term that seeding skips: a stream restored right behind x = 2 * 5 + 1 has it first.
    Saved start;
    std::fill(start.istate, start.istate + 9, 0);
    start.istate[5] = 11;
    start.seal();
    Record fail;
    start.restore(fail);
    EXPECT_SUCCESS(fail);
    const auto with_first = next_numbers(4);
    EXPECT_EQ(with_first[0], 11.0 * 302875106592253.0 * 0x1p-59);
    EXPECT_EQ(std::vector<double>(with_first.begin() + 1, with_first.end()), positive);
}

TEST(BaseGenerator, StateHoldsWhatSamplersCarry)
{
    g05cbc(3);
    EXPECT_EQ(get_dg05ca(), 256.0);
    EXPECT_EQ(get_bg05ca().v[0], 1.0);
    EXPECT_EQ(get_bg05ca().v[1], -1.0);

    Record fail;
    double x[3], y[4];
    g05fdc(0.0, 1.0, 3, x);
    g05ddc(0.0, 1.0);
    g05dgc(0.5, 1.0, &fail);
    EXPECT_NE(get_dg05ca(), 256.0);
    EXPECT_GE(get_bg05ca().v[1], 0.0);
    const Saved saved;
    EXPECT_EQ(saved.xstate[1], get_dg05ca());
    EXPECT_EQ(saved.xstate[2], get_bg05ca().v[0]);
    EXPECT_EQ(saved.xstate[3], get_bg05ca().v[1]);
    const auto carried = [&] {
        g05fdc(0.0, 1.0, 2, y);
        y[2] = g05ddc(0.0, 1.0);
        y[3] = g05dgc(0.5, 1.0, &fail);
        return std::vector<double>(y, y + 4);
    };
    const auto expected = carried();
    EXPECT_EQ(expected[0], saved.xstate[1]) << "the spare normal deviate comes first";
    EXPECT_EQ(expected[3], saved.xstate[3]) << "the spare square is used up";
    g05cbc(4);
    saved.restore(fail);
    EXPECT_EQ(carried(), expected);

    g05cbc(3);
    EXPECT_EQ(get_dg05ca(), 256.0) << "seeding discards what was carried";
}

TEST(BaseGenerator, CountSurvivesSeedingAndIsRestoredWithItsOldFactor)
{
    g05cxc();
    Saved saved;
    EXPECT_EQ(saved.istate[6] + saved.istate[7] + saved.istate[8], 0);
    saved.istate[6] = 1;
    saved.istate[7] = 2;
    saved.istate[8] = 3;
    saved.seal();
    Record fail;
    saved.restore(fail);
    EXPECT_SUCCESS(fail);
    g05cbc(12);
    const Saved seeded;
    EXPECT_EQ(seeded.istate[6], 0);
    EXPECT_EQ(seeded.istate[7], 64 + 2) << "the top piece comes back with a factor of 64, not 4096";
    EXPECT_EQ(seeded.istate[8], 3);
    g05cxc();
    const Saved reset;
    EXPECT_EQ(reset.istate[7], 0);
}

TEST(BaseGenerator, RefusesWhatIsNoSavedState)
{
    g05cbc(8);
    g05cac();
    const Saved good;
    const double next = next_numbers(1)[0];
    const auto refused = [&](const Saved &bad, const char *why) {
        Record fail;
        good.restore(fail);
        bad.restore(fail);
        EXPECT_REPORT(fail, NE_STATE_CORRUPT) << why;
        EXPECT_EQ(g05cac(), next) << why << ": the stream goes on";
    };
    for (int i = 0; i < 9; ++i) {
        Saved bad = good;
        ++bad.istate[i];
        refused(bad, "an element of istate");
    }
    for (int i = 0; i < 4; ++i) {
        Saved bad = good;
        bad.xstate[i] += 1e-9;
        refused(bad, "an element of xstate");
        bad.xstate[i] = std::numeric_limits<double>::quiet_NaN();
        refused(bad, "not a number");
        bad.xstate[i] = std::numeric_limits<double>::infinity();
        refused(bad, "infinite");
    }
    Saved zero = good;
    std::fill(zero.istate, zero.istate + 9, 0);
    std::fill(zero.xstate, zero.xstate + 4, 0.0);
    refused(zero, "never saved");
    Saved extreme = good;
    extreme.istate[1] = std::numeric_limits<Integer>::max();
    extreme.istate[0] = static_cast<Integer>(0x7fffffffu - static_cast<std::uint32_t>(good.istate[1]) +
                                             static_cast<std::uint32_t>(good.istate[0]));
    refused(extreme, "a piece of too many bits, the sum wrapped");
    Saved negative = good;
    negative.istate[7] = -1;
    negative.seal();
    refused(negative, "a negative piece");

    // Rounding of the check value within four machine precisions is accepted, more is not.
    Saved near = good;
    near.xstate[0] *= 1.0 + 3e-16;
    Record fail;
    near.restore(fail);
    EXPECT_SUCCESS(fail);
    near.xstate[0] = good.xstate[0] * (1.0 + 1e-15);
    refused(near, "check value too far off");
}

TEST(BaseGenerator, EachThreadHasItsOwnStream)
{
    g05cxc();
    const auto reference = next_numbers(150);
    std::vector<double> unseeded, reset, seeded;
    g05cbc(1);
    const auto mine = next_numbers(100);
    g05cbc(1);
    std::thread{[&] { unseeded = next_numbers(150); }}.join();
    std::thread{[&] {
        g05cxc();
        reset = next_numbers(150);
    }}.join();
    std::thread{[&] {
        g05cbc(77);
        seeded = next_numbers(150);
    }}.join();
    EXPECT_EQ(unseeded, reference);
    EXPECT_EQ(reset, reference);
    EXPECT_NE(seeded, reference);
    EXPECT_EQ(next_numbers(100), mine) << "other threads do not move this one's stream";
}

TEST(BaseGenerator, FirstTouchMayBeAnyRoutine)
{
    double normal = 0.0, spare = 0.0, bulk = 0.0;
    std::thread{[&] { g05fac(0.0, 1.0, 1, &bulk); }}.join();
    std::thread{[&] { spare = get_dg05ca(); }}.join();
    std::thread{[&] {
        const Saved saved;
        Record fail;
        saved.restore(fail);
        normal = g05cac();
    }}.join();
    g05cxc();
    const double first = g05cac();
    EXPECT_EQ(bulk, first);
    EXPECT_EQ(spare, 256.0);
    EXPECT_EQ(normal, first) << "saved before the first draw";
}

// The seed that a stream just started from, looked for among the seconds around now.
std::int64_t seed_from_clock(std::int64_t now)
{
    const double number = g05cac();
    for (std::int64_t seed = now - 5; seed < now + 1000; ++seed) {
        g05cbc(static_cast<Integer>(seed));
        if (g05cac() == number) return seed;
    }
    return -1;
}

TEST(BaseGenerator, ClockNeverGivesASeedTwice)
{
    const std::int64_t now = std::time(nullptr);
    std::vector<std::int64_t> seeds;
    for (int call = 0; call < 20; ++call) {
        g05ccc();
        seeds.push_back(seed_from_clock(now));
        ASSERT_GE(seeds.back(), now) << "call " << call;
        if (call > 0) {
            EXPECT_GT(seeds[call], seeds[call - 1]);
        }
    }
    std::vector<double> first(4);
    std::vector<std::thread> threads;
    for (double &u : first)
        threads.emplace_back([&u] {
            g05ccc();
            u = g05cac();
        });
    for (auto &thread : threads) thread.join();
    for (std::size_t i = 0; i < first.size(); ++i)
        for (std::size_t j = 0; j < i; ++j) EXPECT_NE(first[i], first[j]) << "two threads with the same seed";
}

} // namespace
} // namespace kor::testing
