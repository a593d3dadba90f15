// Dense solvers beyond the sizes that need no memory: every allocation fails once, and large orders are solved.
#include <gtest/gtest.h>

#include <cmath>
#include <cstring>
#include <functional>
#include <string>
#include <vector>

#include <kor/f01.h>
#include <kor/f03.h>
#include <kor/f04.h>

#include "linalg/transpose.hpp"
#include "support/allocation.hpp"

namespace kor::testing {
namespace {

// A system of 40 equations, diagonally dominant and symmetric, so that every solver takes it.
struct System {
    static constexpr Integer n = 40;
    std::vector<double> a = std::vector<double>(n * n), f, b = std::vector<double>(2 * n, 1.0), x, rest, p;
    std::vector<Complex> za = std::vector<Complex>(n * n), zb = std::vector<Complex>(n), zx;
    std::vector<Integer> pivot = std::vector<Integer>(n, -1);
    double det = 7.0, sigma = 7.0;
    Complex zdet{7.0, 7.0};
    Integer dete = 7, iterations = 7, rank = 7;
    Boolean svd = 7;

    System()
    {
        for (Integer i = 0; i < n; ++i)
            for (Integer j = 0; j < n; ++j) za[i * n + j] = {a[i * n + j] = i == j ? 3.0 : 1.0 / (1 + i + j), 0.0};
        f = a;
        x = rest = std::vector<double>(2 * n, 7.0);
        p = std::vector<double>(n, 0.5);
        zx = std::vector<Complex>(n, Complex{7.0, 7.0});
    }
    bool operator==(const System &other) const
    {
        const auto same = [](const auto &u, const auto &v) {
            return std::memcmp(u.data(), v.data(), u.size() * sizeof(u[0])) == 0;
        };
        return same(a, other.a) && same(f, other.f) && same(b, other.b) && same(x, other.x) && same(rest, other.rest) &&
               same(p, other.p) && same(za, other.za) && same(zx, other.zx) && same(pivot, other.pivot) &&
               det == other.det && dete == other.dete && iterations == other.iterations && rank == other.rank &&
               sigma == other.sigma && svd == other.svd && zdet.re == other.zdet.re;
    }
};

TEST(DenseMemory, EveryAllocationMayFail)
{
    constexpr Integer n = System::n;
    const std::pair<const char *, std::function<void(System &, KorError *)>> calls[] = {
        {"f03abc", [](System &s, KorError *fail) { f03abc(n, s.a.data(), n, &s.det, &s.dete, fail); }},
        {"f03afc", [](System &s, KorError *fail) { f03afc(n, s.a.data(), n, s.pivot.data(), &s.det, &s.dete, fail); }},
        {"f03ahc",
         [](System &s, KorError *fail) { f03ahc(n, s.za.data(), n, s.pivot.data(), &s.zdet, &s.dete, fail); }},
        {"f04arc", [](System &s, KorError *fail) { f04arc(n, s.a.data(), n, s.b.data(), s.x.data(), fail); }},
        {"f04aac", [](System &s, KorError *fail) { f04aac(n, 2, s.a.data(), n, s.b.data(), 2, s.x.data(), 2, fail); }},
        {"f04adc",
         [](System &s, KorError *fail) { f04adc(n, 1, s.za.data(), n, s.zb.data(), 1, s.zx.data(), 1, fail); }},
        {"f04aec",
         [](System &s, KorError *fail) {
             f04aec(n, 2, s.a.data(), n, s.b.data(), 2, s.x.data(), 2, s.f.data(), n, s.rest.data(), 2, fail);
         }},
        {"f04asc",
         [](System &s, KorError *fail) {
             f04asc(n, s.a.data(), n, s.b.data(), s.x.data(), s.p.data(), s.rest.data(), fail);
         }},
        {"f04afc",
         [](System &s, KorError *fail) {
             f04afc(n, 2, s.a.data(), n, s.p.data(), s.b.data(), 2, s.x.data(), 2, s.rest.data(), 2, &s.iterations,
                    fail);
         }},
        {"f01aac", [](System &s, KorError *fail) { f01aac(s.a.data(), n, n, nullptr, s.f.data(), n, fail); }},
        {"f01bqc", [](System &s, KorError *fail) { f01bqc(n, s.a.data(), n, s.p.data(), &s.dete, fail); }},
        {"f04jgc",
         [](System &s, KorError *fail) {
             f04jgc(n, n, s.a.data(), n, s.b.data(), 0.1, &s.svd, &s.sigma, &s.rank, s.f.data(), fail);
         }},
    };
    for (const auto &[name, call] : calls) {
        long allocations = 0;
        {
            System s;
            KorError fail{};
            const AllocationWatch watch;
            call(s, &fail);
            allocations = AllocationWatch::allocations();
            EXPECT_EQ(AllocationWatch::live(), 0) << name;
        }
        EXPECT_GE(allocations, 1) << name;
        for (long k = 1; k <= allocations; ++k) {
            System s;
            KorError fail{};
            {
                const AllocationWatch watch{k};
                call(s, &fail);
                EXPECT_EQ(AllocationWatch::live(), 0) << name;
            }
            EXPECT_EQ(fail.code, NE_ALLOC_FAIL) << name << ", allocation " << k;
            EXPECT_TRUE(s == System{}) << name << " touches something when allocation " << k << " fails";
        }
    }
    // The one that has no record.
    System s;
    const AllocationWatch watch{1};
    EXPECT_EQ(f01acc(n, s.a.data(), n, s.f.data(), n, &s.iterations), 4);
    EXPECT_TRUE(s == System{});
}

TEST(DenseMemory, SmallSystemsNeedNone)
{
    constexpr Integer n = 10;
    double a[n * n], b[n], x[n], det, p[n];
    Integer pivot[n], dete;
    for (Integer i = 0; i < n * n; ++i) a[i] = i % (n + 1) == 0 ? 3.0 : 1.0 / (1 + i);
    for (Integer i = 0; i < n; ++i) b[i] = i;
    const AllocationWatch watch;
    KorError fail{};
    f04arc(n, a, n, b, x, &fail);
    f04asc(n, a, n, b, x, p, b, &fail);
    f03afc(n, a, n, pivot, &det, &dete, &fail);
    EXPECT_EQ(AllocationWatch::allocations(), 0);
}

// Every order up to a few tiles, rows longer than the matrix: what lies beyond them stays.
TEST(Transposition, ByBlocksAndLeftovers)
{
    for (Integer m = 1; m <= 37; ++m) {
        const Integer n = 1 + m * 7 % 23, td = 41;
        std::vector<double> a(td * td), b(td * td, -1.0);
        for (std::size_t i = 0; i < a.size(); ++i) a[i] = static_cast<double>(i);
        std::vector<double> in_place = a, reflected = a;
        linalg::transpose_into(m, n, a.data(), td, b.data(), td);
        linalg::transpose_in_place<false>(m, in_place.data(), td);
        linalg::reflect_upper(m, a.data(), td, reflected.data(), td);
        for (Integer i = 0; i < td; ++i)
            for (Integer j = 0; j < td; ++j) {
                const double here = a[i * td + j], across = a[j * td + i];
                ASSERT_EQ(b[i * td + j], i < n && j < m ? across : -1.0);
                ASSERT_EQ(in_place[i * td + j], i < m && j < m ? across : here);
                ASSERT_EQ(reflected[i * td + j], j < i && i < m ? across : here);
            }
    }
}

// Systems of 300 and 500 equations with the solution 1: the residual over the norms, and the refined solution itself.
TEST(DenseLarge, ResidualsAndRefinement)
{
    for (const Integer n : {300, 500}) {
        std::vector<double> a(n * n), b(n), x(n), f(n * n), rest(n);
        std::uint32_t seed = 1;
        for (double &v : a) v = std::ldexp(static_cast<double>((seed = seed * 1664525u + 1013904223u) >> 8), -23) - 1.0;
        double norm = 0.0;
        for (Integer i = 0; i < n; ++i) {
            long double sum = 0.0L, squares = 0.0L;
            for (Integer j = 0; j < n; ++j) {
                sum += a[i * n + j];
                squares += a[i * n + j] * a[i * n + j];
            }
            b[i] = static_cast<double>(sum); // exact: multiples of 2^-23
            norm = std::fmax(norm, static_cast<double>(std::sqrt(squares)));
        }
        KorError fail{};
        f04arc(n, a.data(), n, b.data(), x.data(), &fail);
        EXPECT_EQ(fail.code, NE_NOERROR);
        for (Integer i = 0; i < n; ++i) {
            long double residual = -b[i];
            for (Integer j = 0; j < n; ++j) residual += static_cast<long double>(a[i * n + j]) * x[j];
            EXPECT_LE(std::fabs(residual), 10.0 * n * 0x1p-53 * norm * std::sqrt(n));
        }
        f04aec(n, 1, a.data(), n, b.data(), 1, x.data(), 1, f.data(), n, rest.data(), 1, &fail);
        EXPECT_EQ(fail.code, NE_NOERROR);
        for (Integer i = 0; i < n; ++i) EXPECT_NEAR(x[i], 1.0, 2 * 0x1p-53);
    }
}

} // namespace
} // namespace kor::testing
