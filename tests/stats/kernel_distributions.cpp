// The kernels behind other chapters: the studentized range, and distributions with an integer status.
#include "stats/kernels.hpp"

#include <cmath>
#include <limits>

#include <gtest/gtest.h>

#include <kor/g01.h>

#include "stats/studentized_range.hpp"

namespace {

using namespace kor::stats;

constexpr Integer kSilent = 1;

// The range of two variables is a multiple of the modulus of a t variable.
TEST(StudentizedRange, OfTwoIsStudent)
{
    KorError fail = {};
    for (const double v : {1.0, 2.5, 30.0, 2000.0, 1e9, 1e18})
        for (const double q : {0.1, 1.0, 3.0, 20.0, 1e5}) {
            const Tails tails = studentized_range(q, v, 2.0);
            const double outside = g01ebc(Kor_TwoTailSignif, q / std::sqrt(2.0), v, &fail);
            EXPECT_NEAR(tails.lower / g01ebc(Kor_TwoTailConfid, q / std::sqrt(2.0), v, &fail), 1.0, 1e-13)
                << v << " " << q;
            if (outside > 1e-290) {
                EXPECT_NEAR(tails.upper / outside, 1.0, 1e-13) << v << " " << q;
            }
        }
}

struct Reference {
    double q, v, r, lower;
};

constexpr Reference kReferences[] = {
#include "studentized_range_data.inc"
};

TEST(StudentizedRange, AgreesWithTheReferences)
{
    for (const Reference &r : kReferences) {
        Integer ifail = kSilent;
        EXPECT_NEAR(g01emf_f(r.q, r.v, static_cast<Integer>(r.r), ifail), r.lower, 1e-13)
            << r.q << " " << r.v << " " << r.r;
        EXPECT_EQ(ifail, 0);
    }
}

TEST(StudentizedRange, DeviatesReturnToTheirProbability)
{
    for (const double v : {1.0, 7.0, 5000.0})
        for (const Integer r : {2, 3, 40})
            for (const double p : {1e-6, 0.5, 0.95, 0.9999}) {
                Integer ifail = kSilent;
                const double q = g01fmf_f(p, v, r, ifail);
                EXPECT_EQ(ifail, 0);
                EXPECT_NEAR(g01emf_f(q, v, r, ifail) / p, 1.0, 1e-13) << v << " " << r << " " << p;
            }
}

TEST(Kernels, StatusesOfBadArguments)
{
    constexpr double kNan = std::numeric_limits<double>::quiet_NaN();
    const auto status = [](const auto &kernel) {
        Integer ifail = kSilent;
        kernel(ifail);
        return ifail;
    };
    double p, q, pdf;
    EXPECT_EQ(status([](Integer &i) { g01emf_f(-1.0, 5.0, 3, i); }), 1);
    EXPECT_EQ(status([](Integer &i) { g01emf_f(1.0, 0.5, 3, i); }), 1);
    EXPECT_EQ(status([](Integer &i) { g01emf_f(1.0, 5.0, 1, i); }), 1);
    EXPECT_EQ(status([](Integer &i) { g01emf_f(kNan, 5.0, 3, i); }), 1);
    EXPECT_EQ(status([](Integer &i) { g01fmf_f(0.0, 5.0, 3, i); }), 1);
    EXPECT_EQ(status([](Integer &i) { g01fmf_f(1.0, 5.0, 3, i); }), 1);
    EXPECT_EQ(status([](Integer &i) { g01ecf_f('C', 1.0, 5.0, i); }), 1);
    EXPECT_EQ(status([](Integer &i) { g01ecf_f('U', -1.0, 5.0, i); }), 2);
    EXPECT_EQ(status([](Integer &i) { g01ecf_f('l', 1.0, 0.0, i); }), 3);
    EXPECT_EQ(status([&](Integer &i) { g01eef_f(1.5, 1.0, 1.0, p, q, pdf, i); }), 1);
    EXPECT_EQ(status([&](Integer &i) { g01eef_f(0.5, 1.0, 2e6, p, q, pdf, i); }), 2);
    EXPECT_EQ(status([&](Integer &i) { g01eef_f(0.1, 1e5, 1e5, p, q, pdf, i); }), 4);
    EXPECT_EQ(q, 1.0);
    EXPECT_EQ(status([](Integer &i) { g01fef_f(-0.5, 1.0, 1.0, i); }), 1);
    EXPECT_EQ(status([](Integer &i) { g01fef_f(0.5, 0.0, 1.0, i); }), 2);
    EXPECT_EQ(status([](Integer &i) { g01fff_f(1.0, 1.0, 1.0, i); }), 1);
    EXPECT_EQ(status([](Integer &i) { g01fff_f(0.5, 1.0, 0.0, i); }), 2);
    EXPECT_EQ(status([](Integer &i) { g01fff_f(1e-300, 1e-3, 1.0, i); }), 3);
}

TEST(Kernels, ValuesOfTheirTwins)
{
    KorError fail = {};
    Integer ifail = kSilent;
    double p, q, pdf, p2, q2, pdf2;
    EXPECT_EQ(g01faz_f(0.975), g01cec(0.975, &fail));
    EXPECT_EQ(g01ecf_f('u', 3.0, 5.0, ifail), g01ecc(Kor_UpperTail, 3.0, 5.0, &fail));
    EXPECT_EQ(g01ecf_f('L', 3.0, 5.0, ifail), g01ecc(Kor_LowerTail, 3.0, 5.0, &fail));
    g01eef_f(0.3, 2.0, 5.0, p, q, pdf, ifail);
    g01eec(0.3, 2.0, 5.0, 0.0, &p2, &q2, &pdf2, &fail);
    EXPECT_EQ(p, p2);
    EXPECT_EQ(q, q2);
    EXPECT_EQ(pdf, pdf2);
    EXPECT_EQ(g01fef_f(0.3, 2.0, 5.0, ifail), g01fec(0.3, 2.0, 5.0, 0.0, &fail));
    EXPECT_EQ(g01fff_f(0.3, 2.0, 5.0, ifail), g01ffc(0.3, 2.0, 5.0, 0.0, &fail));
    EXPECT_EQ(ifail, 0);
}

} // namespace
