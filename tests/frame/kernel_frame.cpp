// What every routine stands on: work space and its sizes, references to functions, the compile-time check of reports.
#include <cmath>
#include <cstdint>
#include <ctime>
#include <limits>
#include <numeric>
#include <string>
#include <utility>

#include <gtest/gtest.h>

#include <kor/x05.h>

#include "frame/complex.hpp"
#include "frame/complex_parts.hpp"
#include "frame/constants.hpp"
#include "frame/function_ref.hpp"
#include "frame/report.hpp"
#include "frame/workspace.hpp"
#include "support/allocation.hpp"

namespace {

bool clock_is_broken = false;

} // namespace

// Stands in for the system's clock in this program.
extern "C" std::time_t time(std::time_t *) noexcept
{
    timespec now{};
    clock_gettime(CLOCK_REALTIME, &now);
    return clock_is_broken ? static_cast<std::time_t>(-1) : now.tv_sec;
}

namespace kor {
namespace {

using testing::AllocationWatch;

TEST(Count, NegativeFactorsCountAsNone)
{
    EXPECT_EQ((Count{-3} * 7).value(), 0u);
    EXPECT_EQ((Count{-3} + 7).value(), 7u);
    EXPECT_EQ((Count{3} * 7 + 1).value(), 22u);
    EXPECT_FALSE((Count{std::numeric_limits<Integer>::min()} * Count{std::numeric_limits<Integer>::min()}).overflow());
}

TEST(Count, OverflowIsRemembered)
{
    constexpr auto most = std::numeric_limits<std::size_t>::max();
    EXPECT_FALSE(Count{most}.overflow());
    EXPECT_TRUE((Count{most} + 1).overflow());
    EXPECT_TRUE((Count{most / 2 + 1} * 2).overflow());
    EXPECT_TRUE((Count{most / 2 + 1} * 2 * 0).overflow()); // once lost, always lost
    EXPECT_TRUE((Count{most} + 1 + 1).overflow());
    EXPECT_EQ(Count{std::numeric_limits<std::uint64_t>::max()}.overflow(), sizeof(std::size_t) < sizeof(std::uint64_t));
}

TEST(Workspace, TooLargeIsAFailureNotAnAllocation)
{
    constexpr auto most = std::numeric_limits<std::size_t>::max();
    const AllocationWatch watch;
    EXPECT_FALSE(Workspace<double>{Count{most}});
    EXPECT_FALSE(Workspace<double>{Count{most / sizeof(double)}}); // fits a size_t, but no object is that large
    EXPECT_FALSE(Workspace<char>{Count{most} + 1});
    EXPECT_EQ(AllocationWatch::allocations(), 0);
}

TEST(Workspace, FreedOnEveryPath)
{
    const AllocationWatch watch{3};
    {
        Workspace<double> a{10};
        ASSERT_TRUE(a);
        EXPECT_EQ(a.size(), 10u);
        std::iota(a.begin(), a.end(), 0.0);
        EXPECT_EQ(a[9], 9.0);

        Workspace<double> b{std::move(a)};
        EXPECT_FALSE(a);
        EXPECT_EQ(b[9], 9.0);
        a = std::move(b);
        EXPECT_EQ(a[9], 9.0);
        a = std::move(a);
        EXPECT_EQ(a[9], 9.0);

        Workspace<Integer> empty{-5}; // an empty array is an array
        EXPECT_TRUE(empty);
        EXPECT_EQ(empty.size(), 0u);

        EXPECT_FALSE(a.allocate(20)); // the third allocation fails, and the old array is gone
        EXPECT_FALSE(a);
        EXPECT_EQ(a.size(), 0u);
        EXPECT_TRUE(a.allocate(20));
        EXPECT_EQ(AllocationWatch::live(), 2);

        double *mine = a.release();
        EXPECT_FALSE(a);
        void *block = mine;
        x04bdc(&block);
    }
    EXPECT_EQ(AllocationWatch::live(), 0);
}

double twice(double x) { return 2.0 * x; }

TEST(FunctionRef, TakesWhateverCanBeCalled)
{
    const auto at_three = [](FunctionRef<double(double)> f) { return f(3.0); };
    EXPECT_EQ(at_three(twice), 6.0);
    EXPECT_EQ(at_three(&twice), 6.0);
    double factor = 5.0;
    EXPECT_EQ(at_three([&](double x) { return factor * x; }), 15.0);
    EXPECT_EQ(at_three([](float x) { return static_cast<int>(x); }), 3.0);

    int calls = 0;
    auto counter = [&calls, last = 0.0](double x) mutable { return ++calls, std::exchange(last, x); };
    const FunctionRef<double(double)> reference{counter};
    const FunctionRef<double(double)> copy{reference}; // refers to the counter itself, not to the other reference
    reference(1.0);
    EXPECT_EQ(copy(2.0), 1.0);
    EXPECT_EQ(calls, 2);

    const FunctionRef<void(double)> ignoring{counter};
    ignoring(0.0);
    EXPECT_EQ(calls, 3);
    static_assert(!std::is_constructible_v<FunctionRef<double(double)>, double (*)(const char *)>);
    static_assert(sizeof(FunctionRef<double(double)>) == 2 * sizeof(void *));
}

// A report whose arguments do not fit its entry does not compile.
using detail::arguments_fit;
static_assert(arguments_fit<NE_ALLOC_FAIL>());
static_assert(!arguments_fit<NE_ALLOC_FAIL, Integer>());
static_assert(arguments_fit<NE_REAL_ARG_LE, const char *, const char *, const char *, double>());
static_assert(arguments_fit<NE_REAL_ARG_LE, char *, const char *, const char *, float>());
static_assert(!arguments_fit<NE_REAL_ARG_LE, const char *, const char *, const char *>());
static_assert(!arguments_fit<NE_REAL_ARG_LE, const char *, const char *, const char *, Integer>());
static_assert(!arguments_fit<NE_REAL_ARG_LE, const char *, const char *, double, const char *>());
static_assert(arguments_fit<NE_INT_ARG_LE, const char *, const char *, const char *, Integer>());
static_assert(!arguments_fit<NE_INT_ARG_LE, const char *, const char *, const char *, double>());
static_assert(!arguments_fit<NE_INT_ARG_LE, const char *, const char *, const char *, const char *>());

static_assert(conversions_of("100%% of %s").count == 1);
static_assert(conversions_of("%-8.8s %13.5e %6ld").count == 3);
static_assert(!conversions_of("%d").well_formed); // an Integer travels as a long
static_assert(!conversions_of("%c").well_formed);
static_assert(!conversions_of("%").well_formed);

TEST(Report, EveryEntryIsWellFormedAndFitsTheRecord)
{
    for (Integer code = 0; code < KOR_ERROR_COUNT; ++code) {
        const Conversions conversions = conversions_of(kCatalogue[static_cast<std::size_t>(code)]);
        EXPECT_TRUE(conversions.well_formed) << kCatalogue[static_cast<std::size_t>(code)];
        constexpr std::size_t widest = 24; // a name, or a number with its sign and exponent
        EXPECT_LT(std::string_view{kCatalogue[static_cast<std::size_t>(code)]}.size() + conversions.count * widest,
                  sizeof(KorError::message))
            << kCatalogue[static_cast<std::size_t>(code)];
    }
}

TEST(Report, FillsInWidensAndCuts)
{
    KorError fail{};
    fail.code = NE_INTERNAL_ERROR;
    fail.errnum = 9;
    const Report report{"x99abc", &fail};
    EXPECT_EQ(fail.code, NE_NOERROR);
    EXPECT_EQ(fail.errnum, 0);

    report.error<NE_INT_ARG_LT>("n", "1", "n", std::numeric_limits<Integer>::min());
    EXPECT_STREQ(fail.message, "NE_INT_ARG_LT:\n  On entry, n must not be less than 1: n = -2147483648.");
    report.user_stop(-3);
    EXPECT_EQ(fail.code, NE_USER_STOP);
    EXPECT_EQ(fail.errnum, -3);
    EXPECT_STREQ(fail.message, "NE_USER_STOP:\n  User requested termination, user flag value = -3.");

    const std::string long_name(600, 'n');
    report.error<NE_INT_ARG_LT>(long_name.c_str(), "1", "n", 0);
    EXPECT_EQ(std::string_view{fail.message}.size(), sizeof fail.message - 1);

    const Report without_record{"x99abc", nullptr};
    without_record.set_errnum(1);
    without_record.success();
}

TEST(ClockDeathTest, BrokenClockEndsTheProcess)
{
    EXPECT_GE(x05aac(), 0);
    clock_is_broken = true;
    const std::string text = std::string{"Error detected by KOR routine x05aac:\n"} + kor_errlist[NE_SYSTEM_TIME] +
                             "\n...Program Terminated\n";
    EXPECT_EXIT(x05aac(), ::testing::ExitedWithCode(1), ::testing::Eq(text));
    clock_is_broken = false;
}

TEST(Constants, PiAndTheMachineArray)
{
    EXPECT_EQ(x01aaf_f(), std::acos(-1.0));
    double wmach[kMachineArraySize];
    x02zaz(wmach);
    const double expected[] = {2.0,      53.0,    kPrecision, std::sqrt(kPrecision), 0x1p-1022, 0x1p-511,
                               0x1p1022, 0x1p511, 0.0};
    for (int i = 0; i < kMachineArraySize; ++i) EXPECT_EQ(wmach[i], expected[i]) << i;
}

TEST(ComplexParts, AgreeWithTheRecords)
{
    EXPECT_EQ(a02abf_f(3e300, -4e300), 5e300);
    EXPECT_EQ(a02abf_f(0.0, 0.0), 0.0);
    // |yr| = |yi|: the tie divides by the imaginary part.
    for (const Complex divisor : {Complex{3.0, 0.1}, Complex{0.1, 3.0}, Complex{3.0, 3.0}, Complex{-3.0, 3.0}}) {
        double re = 0.0, im = 0.0;
        a02acf(7.0, 0.3, divisor.re, divisor.im, re, im);
        const Complex whole = quotient({7.0, 0.3}, divisor);
        EXPECT_EQ(re, whole.re);
        EXPECT_EQ(im, whole.im);
    }
}

} // namespace
} // namespace kor
