// Fourier transforms of real, Hermitian and complex sequences by both engines, against the defining sums.
#include <algorithm>
#include <complex>
#include <limits>
#include <numeric>

#include <gtest/gtest.h>

#include <kor/c06.h>

#include "support/expect_report.hpp"
#include "support/ulp.hpp"
#include "transforms/reference.hpp"

namespace kor::testing {
namespace {

enum class Kind { complex, real, hermitian };
constexpr Kind kKinds[] = {Kind::complex, Kind::real, Kind::hermitian};

Doubles table_for(Integer n)
{
    Record fail;
    Doubles trig(2 * static_cast<std::size_t>(n));
    c06gzc(n, trig.data(), &fail);
    EXPECT_SUCCESS(fail);
    return trig;
}

void transform_many(Kind kind, Integer m, Integer n, double *x, double *y, const Doubles &trig)
{
    Record fail;
    switch (kind) {
    case Kind::complex:
        c06frc(m, n, x, y, trig.data(), &fail);
        break;
    case Kind::real:
        c06fpc(m, n, x, trig.data(), &fail);
        break;
    case Kind::hermitian:
        c06fqc(m, n, x, trig.data(), &fail);
        break;
    }
    EXPECT_SUCCESS(fail);
}

void transform_in_place(Kind kind, Integer n, double *x, double *y)
{
    Record fail;
    switch (kind) {
    case Kind::complex:
        c06ecc(n, x, y, &fail);
        break;
    case Kind::real:
        c06eac(n, x, &fail);
        break;
    case Kind::hermitian:
        c06ebc(n, x, &fail);
        break;
    }
    EXPECT_SUCCESS(fail);
}

bool suits_in_place(Integer n)
{
    int count = 0;
    for (Integer prime = 2; prime <= 19; ++prime)
        for (; n % prime == 0; n /= prime) ++count;
    return n == 1 && count > 0 && count <= 20;
}

ComplexVector input(Kind kind, Integer n, const double *x, const double *y)
{
    ComplexVector in(static_cast<std::size_t>(n));
    for (Integer j = 0; j < n; ++j)
        in[static_cast<std::size_t>(j)] = kind == Kind::complex ? std::complex<double>{x[j], y[j]}
                                          : kind == Kind::real  ? std::complex<double>{x[j]}
                                                                : unpacked(x, n, j);
    return in;
}

std::complex<double> output(Kind kind, Integer n, const double *x, const double *y, Integer k)
{
    return kind == Kind::complex ? std::complex<double>{x[k], y[k]} : kind == Kind::real ? unpacked(x, n, k) : x[k];
}

// Checks both engines at the frequencies given; the middle one of three sequences for the multiple-sequence engine.
void check_length(Integer n, const std::vector<Integer> &frequencies)
{
    const ComplexVector roots = roots_of_unity(n);
    const Doubles trig = table_for(n);
    const std::size_t size = static_cast<std::size_t>(n);
    for (const Kind kind : kKinds) {
        const Doubles x = random_doubles(3 * size, 1), y = random_doubles(3 * size, 2);
        const ComplexVector in = input(kind, n, x.data() + n, y.data() + n);
        Doubles u = x, v = y, s(x.begin() + n, x.begin() + 2 * n), t(y.begin() + n, y.begin() + 2 * n);
        transform_many(kind, 3, n, u.data(), v.data(), trig);
        const bool single = suits_in_place(n);
        if (single) transform_in_place(kind, n, s.data(), t.data());
        RelativeError many_error, single_error;
        for (const Integer k : frequencies) {
            const std::complex<Real> exact = transform_at(k, in, roots);
            many_error.add(output(kind, n, u.data() + n, v.data() + n, k), exact);
            if (single) single_error.add(output(kind, n, s.data(), t.data(), k), exact);
        }
        EXPECT_LE(many_error.in_epsilons(), allowed(n)) << "n = " << n << ", kind " << static_cast<int>(kind);
        EXPECT_LE(single_error.in_epsilons(), allowed(n)) << "n = " << n << ", kind " << static_cast<int>(kind);
    }
}

std::vector<Integer> all_frequencies(Integer n)
{
    std::vector<Integer> k(static_cast<std::size_t>(n));
    std::iota(k.begin(), k.end(), 0);
    return k;
}

// The ends, the middle, and a few in between.
std::vector<Integer> some_frequencies(Integer n)
{
    std::vector<Integer> k{0, 1, 2, n / 2 - 1, n / 2, n / 2 + 1, n - 2, n - 1};
    for (std::int64_t i = 1; i < 9; ++i) k.push_back(static_cast<Integer>(i * 982451653 % n));
    return k;
}

TEST(Fourier, AllShortLengths)
{
    for (Integer n = 1; n <= 512; ++n) check_length(n, all_frequencies(n));
}

TEST(Fourier, LongerLengths)
{
    // Powers of each radix and mixtures; lengths with and without mirrored factors, around the size of a block on the
    // stack, with none but single factors; sweeps that leave a few columns over; large primes, p - 1 smooth and not, alone and with others.
    for (const Integer n :
         {539,   576,   675,   729,   891,   945,      1089,     1125,    1000,     1001,     1024,    1296,   1728,
          2047,  2048,  2187,  2401,  2310,  3125,     4096,     4097,    5040,     6859,     7776,    8192,   15625,
          16384, 28561, 30030, 32768, 44100, 59049,    65536,    67,      127,      521,      1009,    2017,   5003,
          10007, 2052,  2057,  2058,  2178,  2 * 5003, 3 * 4093, 67 * 71, 16 * 131, 9 * 1021, 83 * 64, 510510, 131072})
        check_length(n, some_frequencies(n));
}

TEST(Fourier, ImpulsesGiveTheRootsOfUnity)
{
    // Every element of the result is known to the last bit or two, which catches what an average over random data hides.
    const Integer n = 1 << 18, at = 98765;
    const ComplexVector roots = roots_of_unity(n);
    Doubles x(n), y(n);
    x[at] = 1.0;
    const Doubles trig = table_for(n);
    for (const bool in_place : {true, false}) {
        Doubles u = x, v = y;
        if (in_place)
            transform_in_place(Kind::complex, n, u.data(), v.data());
        else
            transform_many(Kind::complex, 1, n, u.data(), v.data(), trig);
        double worst = 0.0;
        for (std::int64_t k = 0; k < n; ++k) {
            const auto exact = roots[static_cast<std::size_t>(k * at % n)] / std::sqrt(static_cast<Real>(n));
            const std::size_t i = static_cast<std::size_t>(k);
            worst = std::max(worst, static_cast<double>(std::abs(std::complex<Real>{u[i], v[i]} - exact)));
        }
        EXPECT_LE(worst * std::sqrt(static_cast<double>(n)), 8 * kEpsilon);
    }
}

TEST(Fourier, ForwardConjugateForwardIsTheIdentity)
{
    for (const Integer n : {2, 5, 16, 60, 77, 4096, 44100}) {
        const Doubles x = random_doubles(static_cast<std::size_t>(n), 3);
        Record fail;
        Doubles single = x, many = x;
        c06eac(n, single.data(), &fail);
        c06gbc(n, single.data(), &fail);
        c06ebc(n, single.data(), &fail);
        const Doubles trig = table_for(n);
        c06fpc(1, n, many.data(), trig.data(), &fail);
        c06gqc(1, n, many.data(), &fail);
        c06fqc(1, n, many.data(), trig.data(), &fail);
        RelativeError single_error, many_error;
        for (std::size_t j = 0; j < x.size(); ++j) {
            single_error.add(single[j], Real{x[j]});
            many_error.add(many[j], Real{x[j]});
        }
        EXPECT_LE(single_error.in_epsilons(), 2 * allowed(n)) << n;
        EXPECT_LE(many_error.in_epsilons(), 2 * allowed(n)) << n;
    }
}

TEST(Fourier, RowsDoNotTouchEachOther)
{
    // The same bits for a row wherever it stands; a NaN, an infinity or a huge row beside it changes nothing.
    for (const Kind kind : kKinds)
        for (Integer n = 2; n <= 1000; n += n < 100 ? 1 : 75) {
            const Integer m = 37; // two groups side by side, and a few
            const std::size_t row = static_cast<std::size_t>(n);
            const Doubles trig = table_for(n);
            Doubles x = random_doubles(m * row, 4), y = random_doubles(m * row, 5);
            x[0] = std::numeric_limits<double>::quiet_NaN();
            x[2 * row] = std::numeric_limits<double>::infinity();
            for (std::size_t j = 0; j < row; ++j) x[4 * row + j] *= 1e200;
            Doubles u = x, v = y;
            transform_many(kind, m, n, u.data(), v.data(), trig);
            for (const std::size_t i : {1u, 3u, 5u, 17u, 36u}) {
                Doubles a(x.begin() + i * row, x.begin() + (i + 1) * row),
                    b(y.begin() + i * row, y.begin() + (i + 1) * row);
                transform_many(kind, 1, n, a.data(), b.data(), trig);
                EXPECT_TRUE(std::equal(a.begin(), a.end(), u.begin() + i * row)) << n << ", row " << i;
                if (kind == Kind::complex) {
                    EXPECT_TRUE(std::equal(b.begin(), b.end(), v.begin() + i * row)) << n << ", row " << i;
                }
            }
            EXPECT_TRUE(std::isnan(u[0]));
        }
}

TEST(Fourier, LengthOneIsLeftAsItIs)
{
    Doubles trig = {7.0, 7.0, 7.0};
    Record fail;
    c06gzc(1, trig.data(), &fail);
    EXPECT_EQ(trig, (Doubles{1.0, 1.0, 7.0})) << "the stamps, and no more";
    for (const Kind kind : kKinds) {
        Doubles x = {3.0, 4.0, 5.0}, y = {6.0, 7.0, 8.0};
        transform_many(kind, 3, 1, x.data(), y.data(), trig);
        EXPECT_EQ(x, (Doubles{3.0, 4.0, 5.0}));
        EXPECT_EQ(y, (Doubles{6.0, 7.0, 8.0}));
    }
}

TEST(FourierTable, HoldsTheAnglesOfEachStage)
{
    struct Case {
        Integer n;
        std::vector<Integer> factors;
    };
    const Case cases[] = {{2, {2}},
                          {7, {7}},
                          {16, {4, 4}},
                          {72, {6, 6, 2}},
                          {77, {7, 11}},
                          {245, {5, 7, 7}},
                          {1000, {4, 2, 5, 5, 5}},
                          {99991, {99991}},
                          {124416, {6, 6, 6, 6, 6, 4, 4}}};
    for (const auto &[n, factors] : cases) {
        const ComplexVector roots = roots_of_unity(n);
        const Doubles trig = table_for(n);
        double worst = 0.0;
        std::int64_t place = 0, before = 1;
        for (const Integer p : factors) {
            const std::int64_t after = n / (before * p);
            for (std::int64_t k = 1; k < p; ++k)
                for (std::int64_t j = 0; j < after; ++j, ++place) {
                    const std::int64_t t = p > 6 && j == 0 ? n / p * k : before * j * k % n;
                    const auto w = roots[static_cast<std::size_t>(t)];
                    const auto off = [&](double computed, Real exact) {
                        const double nearest = static_cast<double>(exact);
                        if (nearest == 0.0) return std::fabs(computed) / kEpsilon;
                        return static_cast<double>(std::fabs(computed - exact)) /
                               std::ldexp(1.0, std::ilogb(nearest) - 52);
                    };
                    const std::size_t i = static_cast<std::size_t>(place);
                    worst =
                        std::max({worst, off(trig[i], w.real()), off(trig[static_cast<std::size_t>(n) + i], w.imag())});
                }
            before *= p;
        }
        EXPECT_EQ(place, n - 1);
        EXPECT_LE(worst, 0.75) << "ulp, n = " << n;
        EXPECT_EQ(trig[static_cast<std::size_t>(n) - 1], n);
        EXPECT_EQ(trig[2 * static_cast<std::size_t>(n) - 1], n);
    }
}

TEST(FourierTable, TheStampIsAllThatIsChecked)
{
    const Integer n = 8;
    const Doubles good = table_for(n), longer = table_for(2 * n);
    Doubles x(2 * n), y(2 * n), damaged = good, first = good, second = good;
    damaged[0] = 123.0;
    first[n - 1] = 7.0;
    second[2 * n - 1] = std::numeric_limits<double>::quiet_NaN();
    Record fail;
    c06frc(1, n, x.data(), y.data(), damaged.data(), &fail);
    EXPECT_SUCCESS(fail);
    x[3] = 5.0;
    const Doubles before = x;
    for (const Doubles &bad : {first, second, longer}) {
        c06fpc(1, n, x.data(), bad.data(), &fail);
        EXPECT_REPORT(fail, NE_C06_NOT_TRIG, "n", "trig", "trig");
        c06fqc(1, n, x.data(), bad.data(), &fail);
        EXPECT_REPORT(fail, NE_C06_NOT_TRIG, "n", "trig", "trig");
        c06frc(1, n, x.data(), y.data(), bad.data(), &fail);
        EXPECT_REPORT(fail, NE_C06_NOT_TRIG, "n", "trig", "trig");
    }
    EXPECT_EQ(x, before);
}

TEST(FourierInPlace, RefusesLengths)
{
    const auto each = [](Integer n, auto expect) {
        Doubles x = {1.0, 2.0}, y = {3.0, 4.0};
        Record fail;
        c06eac(n, x.data(), &fail);
        expect(fail);
        c06ebc(n, x.data(), &fail);
        expect(fail);
        c06ecc(n, x.data(), y.data(), &fail);
        expect(fail);
        for (const Integer operation : {Kor_Convolution, Kor_Correlation}) {
            c06ekc(operation, n, x.data(), y.data(), &fail);
            expect(fail);
        }
        EXPECT_EQ(x, (Doubles{1.0, 2.0}));
        EXPECT_EQ(y, (Doubles{3.0, 4.0}));
    };
    for (const Integer n : {1, 0, -7, std::numeric_limits<Integer>::min()})
        each(n, [&](const Record &fail) { EXPECT_REPORT(fail, NE_INT_ARG_LE, "n", "1", "n", n); });
    for (const Integer n : {23, 2 * 23, 19 * 19 * 29, std::numeric_limits<Integer>::max(), (1 << 20) * 23})
        each(n, [](const Record &fail) { EXPECT_REPORT(fail, NE_C06_FACTOR_GT); });
    for (const Integer n : {1 << 21, 3 << 20, 1 << 30, (1 << 21) * 23})
        each(n, [](const Record &fail) { EXPECT_REPORT(fail, NE_C06_TOO_MANY_FACTORS, 20); });
}

TEST(FourierMany, ReportsBothCounts)
{
    static int reports;
    Doubles x(8, 1.0), y(8, 2.0), u(8), v(8);
    const Doubles trig = table_for(4), before = x;
    const auto each = [&](Integer m, Integer n, auto expect) {
        const auto with_record = [&](auto call) {
            Record fail;
            fail.handler = [](const char *, Integer, const char *) { ++reports; };
            reports = 0;
            call(&fail);
            expect(fail);
        };
        with_record([&](KorError *fail) { c06fpc(m, n, x.data(), trig.data(), fail); });
        with_record([&](KorError *fail) { c06fqc(m, n, x.data(), trig.data(), fail); });
        with_record([&](KorError *fail) { c06frc(m, n, x.data(), y.data(), trig.data(), fail); });
        with_record([&](KorError *fail) { c06fuc(m, n, x.data(), y.data(), trig.data(), trig.data(), fail); });
        with_record([&](KorError *fail) { c06gqc(m, n, x.data(), fail); });
        with_record([&](KorError *fail) { c06gsc(m, n, x.data(), u.data(), v.data(), fail); });
    };
    each(0, 4, [](const Record &fail) {
        EXPECT_REPORT(fail, NE_INT_ARG_LT, "m", "1", "m", 0);
        EXPECT_EQ(reports, 1);
    });
    each(2, -1, [](const Record &fail) {
        EXPECT_REPORT(fail, NE_INT_ARG_LT, "n", "1", "n", -1);
        EXPECT_EQ(reports, 1);
    });
    each(-3, 0, [](const Record &fail) {
        EXPECT_REPORT(fail, NE_INT_ARG_LT, "n", "1", "n", 0) << "the second report stays";
        EXPECT_EQ(reports, 2);
    });
    EXPECT_EQ(x, before);

    Record fail;
    for (const Integer n : {0, -1}) {
        c06gbc(n, x.data(), &fail);
        EXPECT_REPORT(fail, NE_INT_ARG_LT, "n", "1", "n", n);
        c06gcc(n, y.data(), &fail);
        EXPECT_REPORT(fail, NE_INT_ARG_LT, "n", "1", "n", n);
        c06gzc(n, u.data(), &fail);
        EXPECT_REPORT(fail, NE_INT_ARG_LT, "n", "1", "n", n);
    }
}

TEST(FourierConjugate, NegatesTheImaginaryPartsAndNoOthers)
{
    for (const Integer n : {1, 2, 3, 4, 5, 8}) {
        const std::size_t size = static_cast<std::size_t>(n);
        const Doubles x = random_doubles(2 * size, 6);
        Doubles conjugated = x, one(x.begin(), x.begin() + n), u(2 * size), v(2 * size), y = x;
        Record fail;
        c06gqc(2, n, conjugated.data(), &fail);
        EXPECT_SUCCESS(fail);
        c06gbc(n, one.data(), &fail);
        EXPECT_SUCCESS(fail);
        EXPECT_TRUE(std::equal(one.begin(), one.end(), conjugated.begin()));
        c06gsc(2, n, x.data(), u.data(), v.data(), &fail);
        EXPECT_SUCCESS(fail);
        c06gcc(2 * n, y.data(), &fail);
        EXPECT_SUCCESS(fail);
        for (Integer i = 0; i < 2; ++i)
            for (Integer k = 0; k < n; ++k) {
                const std::size_t at = static_cast<std::size_t>(i * n + k);
                EXPECT_EQ(std::conj(unpacked(x.data() + i * n, n, k)), unpacked(conjugated.data() + i * n, n, k));
                EXPECT_EQ(unpacked(x.data() + i * n, n, k), (std::complex<double>{u[at], v[at]}));
                EXPECT_EQ(y[at], -x[at]);
            }
    }
}

TEST(FourierInTwoDimensions, MatchesTheDoubleSum)
{
    for (const auto &[m, n] :
         {std::pair<Integer, Integer>{1, 1}, {1, 6}, {5, 1}, {3, 4}, {16, 9}, {13, 67}, {24, 32}}) {
        const std::size_t rows = static_cast<std::size_t>(m), columns = static_cast<std::size_t>(n);
        const Doubles x = random_doubles(rows * columns, 7), y = random_doubles(rows * columns, 8);
        const Doubles trigm = table_for(m), trign = table_for(n);
        const ComplexVector by_row = roots_of_unity(n), by_column = roots_of_unity(m);
        // The rows, then the columns, each by the definition.
        std::vector<ComplexVector> half(columns, ComplexVector(rows));
        for (std::size_t i = 0; i < rows; ++i)
            for (std::size_t l = 0; l < columns; ++l)
                half[l][i] =
                    transform_at(static_cast<std::int64_t>(l),
                                 input(Kind::complex, n, x.data() + i * columns, y.data() + i * columns), by_row);
        Doubles u = x, v = y;
        Record fail;
        c06fuc(m, n, u.data(), v.data(), trigm.data(), trign.data(), &fail);
        EXPECT_SUCCESS(fail);
        RelativeError error;
        for (std::size_t k = 0; k < rows; ++k)
            for (std::size_t l = 0; l < columns; ++l)
                error.add({u[k * columns + l], v[k * columns + l]},
                          transform_at(static_cast<std::int64_t>(k), half[l], by_column));
        EXPECT_LE(error.in_epsilons(), allowed(m) + allowed(n)) << m << " by " << n;
    }

    static int reports;
    reports = 0;
    const Doubles trig4 = table_for(4), trig6 = table_for(6);
    Doubles x(24, 1.0), y(24, 1.0);
    Record fail;
    fail.handler = [](const char *, Integer, const char *) { ++reports; };
    c06fuc(4, 6, x.data(), y.data(), trig6.data(), trig4.data(), &fail);
    EXPECT_REPORT(fail, NE_C06_NOT_TRIG, "n", "trign", "trign");
    EXPECT_EQ(reports, 2) << "both tables are reported";
    c06fuc(4, 6, x.data(), y.data(), trig6.data(), trig6.data(), &fail);
    EXPECT_REPORT(fail, NE_C06_NOT_TRIG, "m", "trigm", "trigm");
    EXPECT_EQ(x, Doubles(24, 1.0));
}

} // namespace
} // namespace kor::testing
