// What is built on Fourier transforms: convolution and correlation, sine, cosine and quarter-wave transforms.
#include <functional>

#include <gtest/gtest.h>

#include <kor/c06.h>

#include "support/expect_report.hpp"
#include "transforms/reference.hpp"

namespace kor::testing {
namespace {

TEST(Convolution, MatchesTheDefiningSums)
{
    for (const Integer n : {2, 3, 4, 5, 8, 12, 38, 49, 64, 450, 4096}) {
        const std::size_t size = static_cast<std::size_t>(n);
        // Small integers: the sums are exact, and so should be the rounded results.
        Doubles x = random_doubles(size, 1), y = random_doubles(size, 2);
        for (double &value : x) value = std::round(10.0 * value);
        for (double &value : y) value = std::round(10.0 * value);
        for (const Integer operation : {Kor_Convolution, Kor_Correlation}) {
            Doubles z = x, transform = y, expected(size);
            Record fail;
            c06ekc(operation, n, z.data(), transform.data(), &fail);
            EXPECT_SUCCESS(fail);
            for (std::size_t k = 0; k < size; ++k)
                for (std::size_t j = 0; j < size; ++j)
                    expected[k] += x[j] * y[operation == Kor_Convolution ? (k + size - j) % size : (k + j) % size];
            for (std::size_t k = 0; k < size; ++k) EXPECT_NEAR(z[k], expected[k], 1e-9) << n << ", " << k;

            c06eac(n, expected.data(), &fail);
            RelativeError error;
            for (std::size_t k = 0; k < size; ++k) error.add(transform[k], Real{expected[k]});
            EXPECT_LE(error.in_epsilons(), 4 * allowed(n)) << n << ": y leaves with the transform of z";
        }
    }
    Doubles x = {1.0, 2.0}, y = {3.0, 4.0};
    Record fail;
    c06ekc(Kor_ForwardTransform, 0, x.data(), y.data(), &fail);
    EXPECT_REPORT(fail, NE_BAD_PARAM, "Operation");
    EXPECT_EQ(x, (Doubles{1.0, 2.0}));
}

// A transform of rows x_j, j = first..first + count - 1, to results of the same indices:
// z_k = scale sum_j weight(j, k) x_j.
struct Definition {
    const char *name;
    int first; // lowest index
    int extra; // elements of a row less n
    std::function<void(Integer m, Integer n, double *x, const double *trig, KorError *)> run;
    std::function<Real(Integer n, std::int64_t j, std::int64_t k)> weight;
};

Real sine_of(std::int64_t numerator, std::int64_t denominator) // sin(pi numerator / denominator)
{
    return std::sin(kPiLong * static_cast<Real>(numerator % (2 * denominator)) / static_cast<Real>(denominator));
}
Real cosine_of(std::int64_t numerator, std::int64_t denominator)
{
    return std::cos(kPiLong * static_cast<Real>(numerator % (2 * denominator)) / static_cast<Real>(denominator));
}
Real root_of(Integer n) { return std::sqrt(static_cast<Real>(n)); }

const Definition kDefinitions[] = {
    {"sine", 1, -1, [](auto... a) { c06hac(a...); },
     [](Integer n, std::int64_t j, std::int64_t k) { return std::sqrt(Real{2}) / root_of(n) * sine_of(j * k, n); }},
    {"cosine", 0, 1, [](auto... a) { c06hbc(a...); },
     [](Integer n, std::int64_t j, std::int64_t k) {
         return std::sqrt(Real{2}) / root_of(n) * (j == 0 || j == n ? 0.5L : 1.0L) * cosine_of(j * k, n);
     }},
    {"quarter-wave sine, forward", 1, 0, [](auto... a) { c06hcc(Kor_ForwardTransform, a...); },
     [](Integer n, std::int64_t j, std::int64_t k) {
         return (j == n ? 0.5L : 1.0L) / root_of(n) * sine_of(j * (2 * k - 1), 2 * n);
     }},
    {"quarter-wave sine, backward", 1, 0, [](auto... a) { c06hcc(Kor_BackwardTransform, a...); },
     [](Integer n, std::int64_t j, std::int64_t k) { return 2 / root_of(n) * sine_of((2 * j - 1) * k, 2 * n); }},
    {"quarter-wave cosine, forward", 0, 0, [](auto... a) { c06hdc(Kor_ForwardTransform, a...); },
     [](Integer n, std::int64_t j, std::int64_t k) {
         return (j == 0 ? 0.5L : 1.0L) / root_of(n) * cosine_of(j * (2 * k + 1), 2 * n);
     }},
    {"quarter-wave cosine, backward", 0, 0, [](auto... a) { c06hdc(Kor_BackwardTransform, a...); },
     [](Integer n, std::int64_t j, std::int64_t k) { return 2 / root_of(n) * cosine_of((2 * j + 1) * k, 2 * n); }},
};

Doubles table_for(Integer n)
{
    Record fail;
    Doubles trig(2 * static_cast<std::size_t>(n));
    c06gzc(n, trig.data(), &fail);
    return trig;
}

void check_definition(const Definition &definition, Integer m, Integer n, std::int64_t step)
{
    const std::int64_t length = n + definition.extra;
    const Doubles trig = table_for(n), x = random_doubles(static_cast<std::size_t>(m * length), 3);
    Doubles z = x;
    Record fail;
    definition.run(m, n, z.data(), trig.data(), &fail);
    EXPECT_SUCCESS(fail) << definition.name;
    RelativeError error;
    for (std::int64_t i = 0; i < m; ++i)
        for (std::int64_t k = 0; k < length; k += step) {
            Real exact = 0;
            for (std::int64_t j = 0; j < length; ++j)
                exact += definition.weight(n, definition.first + j, definition.first + k) *
                         x[static_cast<std::size_t>(i * length + j)];
            error.add(z[static_cast<std::size_t>(i * length + k)], exact);
        }
    EXPECT_LE(error.in_epsilons(), allowed(n) + 1.0) << definition.name << ", n = " << n;
}

TEST(TrigonometricTransforms, MatchTheirDefinitions)
{
    for (const Definition &definition : kDefinitions) {
        for (Integer n = definition.extra < 0 ? 2 : 1; n <= 40; ++n)
            check_definition(definition, n % 3 == 0 ? 19 : 1, n, 1);
        for (const Integer n : {67, 96, 1000, 10000}) check_definition(definition, 1, n, n > 100 ? n / 37 : 1);
    }
}

TEST(TrigonometricTransforms, RefuseBadArguments)
{
    const Doubles trig = table_for(4), other = table_for(8);
    Doubles x(16, 5.0);
    for (const Definition &definition : kDefinitions) {
        Record fail;
        definition.run(0, 0, x.data(), trig.data(), &fail);
        EXPECT_REPORT(fail, NE_INT_ARG_LT, "m", "1", "m", 0) << "the first offence ends the routine";
        definition.run(1, 0, x.data(), trig.data(), &fail);
        EXPECT_REPORT(fail, NE_INT_ARG_LT, "n", "1", "n", 0);
        definition.run(1, 4, x.data(), other.data(), &fail);
        EXPECT_REPORT(fail, NE_C06_NOT_TRIG, "n", "trig", "trig");
    }
    Record fail;
    c06hcc(Kor_Convolution, 0, 4, x.data(), trig.data(), &fail);
    EXPECT_REPORT(fail, NE_BAD_PARAM, "direct");
    c06hdc(0, 0, 4, x.data(), trig.data(), &fail);
    EXPECT_REPORT(fail, NE_BAD_PARAM, "direct");
    EXPECT_EQ(x, Doubles(16, 5.0));

    // Rows without elements.
    c06hac(5, 1, nullptr, table_for(1).data(), &fail);
    EXPECT_SUCCESS(fail);
}

} // namespace
} // namespace kor::testing
