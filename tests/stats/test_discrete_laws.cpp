// The discrete laws against references.
#include <kor/g01.h>

#include <array>
#include <cmath>
#include <limits>

#include "support/expect_report.hpp"

namespace {

using kor::testing::Record;

constexpr double kEps = std::numeric_limits<double>::epsilon();

enum Law { kBinomial, kPoisson, kHypergeometric };

// Parameters: n, p; lambda; n, l, m.
struct Reference {
    Law law;
    double p1, p2, p3;
    Integer k;
    double at_most, above, equal;
};

constexpr Reference kReferences[] = {
#include "discrete_laws_data.inc"
};

struct Result {
    double at_most = 7.0, above = 7.0, equal = 7.0;
    bool untouched() const { return at_most == 7.0 && above == 7.0 && equal == 7.0; }
};

Result binomial(Integer n, double p, Integer k, Record &fail)
{
    Result r;
    g01bjc(n, p, k, &r.at_most, &r.above, &r.equal, &fail);
    return r;
}
Result poisson(double lambda, Integer k, Record &fail)
{
    Result r;
    g01bkc(lambda, k, &r.at_most, &r.above, &r.equal, &fail);
    return r;
}
Result hypergeometric(Integer n, Integer l, Integer m, Integer k, Record &fail)
{
    Result r;
    g01blc(n, l, m, k, &r.at_most, &r.above, &r.equal, &fail);
    return r;
}

void expect_relative(double computed, double exact)
{
    if (exact < 1e-300)
        EXPECT_LE(computed, 1e-299);
    else
        EXPECT_NEAR(computed / exact, 1.0, 1e-14); // a sum of thousands of terms, each from the one before
}

TEST(DiscreteLaws, AgreeWithTheReferences)
{
    for (const Reference &r : kReferences) {
        SCOPED_TRACE(testing::Message() << "law " << r.law << " (" << r.p1 << ", " << r.p2 << ", " << r.p3 << ") k "
                                        << r.k);
        Record fail;
        const auto n = static_cast<Integer>(r.p1), l = static_cast<Integer>(r.p2), m = static_cast<Integer>(r.p3);
        const Result got = r.law == kBinomial  ? binomial(n, r.p2, r.k, fail)
                           : r.law == kPoisson ? poisson(r.p1, r.k, fail)
                                               : hypergeometric(n, l, m, r.k, fail);
        EXPECT_SUCCESS(fail);
        expect_relative(got.at_most, r.at_most);
        expect_relative(got.above, r.above);
        expect_relative(got.equal, r.equal);
    }
}

TEST(DiscreteLaws, IntegerChiSquared)
{
    Record fail;
    for (const Integer n : {1, 2, 3, 119, 120, 1000})
        for (const double x : {0.0, 1e-5, 1.0, 49.0, 120.0, 700.0})
            EXPECT_EQ(g01bcc(x, n, &fail), g01ecc(Kor_UpperTail, x, n, &fail));
    EXPECT_NEAR(g01bcc(4.0, 4, &fail), std::exp(-2.0) * 3.0, 4 * kEps);
    EXPECT_EQ(g01bcc(-1.0, 1, &fail), 0.0);
    EXPECT_REPORT(fail, NE_REAL_ARG_LT, "x", "0.0", "x", -1.0);
    EXPECT_EQ(g01bcc(1.0, 0, &fail), 0.0);
    EXPECT_REPORT(fail, NE_INT_ARG_LT, "n", "1", "n", 0);
}

TEST(DiscreteLaws, DegenerateCases)
{
    Record fail;
    Result r = binomial(0, 0.5, 0, fail);
    EXPECT_EQ(r.at_most, 1.0);
    EXPECT_EQ(r.equal, 1.0);
    r = binomial(5, 1e-200, 5, fail);
    EXPECT_EQ(r.equal, 0.0);
    EXPECT_EQ(r.at_most, 1.0);
    r = binomial(3, 1e-300, 0, fail);
    EXPECT_EQ(r.equal, 1.0);
    EXPECT_NEAR(r.above / 3e-300, 1.0, 4 * kEps);
    r = binomial(3, 1e-300, 1, fail);
    EXPECT_NEAR(r.equal / 3e-300, 1.0, 4 * kEps);
    r = poisson(1.0, 1100001, fail);
    EXPECT_EQ(r.at_most, 1.0);
    EXPECT_EQ(r.above, 0.0);
    EXPECT_EQ(r.equal, 0.0);
    for (const auto [n, l, m, k] : {std::array{0, 0, 0, 0}, {5, 5, 2, 2}, {5, 0, 2, 0}, {5, 2, 0, 0}, {5, 2, 5, 2}}) {
        r = hypergeometric(n, l, m, k, fail);
        EXPECT_EQ(r.at_most, 1.0);
        EXPECT_EQ(r.above, 0.0);
        EXPECT_EQ(r.equal, 1.0);
    }
    EXPECT_SUCCESS(fail);
}

TEST(DiscreteLaws, BadArguments)
{
    Record fail;
    EXPECT_TRUE(binomial(-1, 0.5, 0, fail).untouched());
    EXPECT_REPORT(fail, NE_INT_ARG_LT, "n", "0", "n", -1);
    EXPECT_TRUE(binomial(1, 0.0, 0, fail).untouched());
    EXPECT_REPORT(fail, NE_REAL_ARG_LE, "p", "0.0", "p", 0.0);
    EXPECT_TRUE(binomial(1, 1.0, 0, fail).untouched());
    EXPECT_REPORT(fail, NE_REAL_ARG_GE, "p", "1.0", "p", 1.0);
    EXPECT_TRUE(binomial(1, 0.5, -1, fail).untouched());
    EXPECT_REPORT(fail, NE_INT_ARG_LT, "k", "0", "k", -1);
    EXPECT_TRUE(binomial(1, 0.5, 2, fail).untouched());
    EXPECT_REPORT(fail, NE_2_INT_ARG_GT, "k", 2, "n", 1, "k", "n");
    EXPECT_TRUE(binomial(4000004, 0.5, 2, fail).untouched());
    EXPECT_REPORT(fail, NE_VARIANCE_TOO_LARGE, "n*p*(1.0-p)");
    EXPECT_TRUE(poisson(0.0, 0, fail).untouched());
    EXPECT_REPORT(fail, NE_REAL_ARG_LE, "rlamda", "0.0", "rlamda", 0.0);
    EXPECT_TRUE(poisson(1.5e6, 0, fail).untouched());
    EXPECT_REPORT(fail, NE_REAL_ARG_GT, "rlamda", "1.0e6", "rlamda", 1.5e6);
    EXPECT_TRUE(poisson(1.0, -1, fail).untouched());
    EXPECT_REPORT(fail, NE_INT_ARG_LT, "k", "0", "k", -1);
    EXPECT_TRUE(hypergeometric(-1, 0, 0, 0, fail).untouched());
    EXPECT_REPORT(fail, NE_INT_ARG_LT, "n", "0", "n", -1);
    EXPECT_TRUE(hypergeometric(5, -1, 0, 0, fail).untouched());
    EXPECT_REPORT(fail, NE_INT_ARG_LT, "l", "0", "l", -1);
    EXPECT_TRUE(hypergeometric(5, 6, 0, 0, fail).untouched());
    EXPECT_REPORT(fail, NE_2_INT_ARG_GT, "l", 6, "n", 5, "l", "n");
    EXPECT_TRUE(hypergeometric(5, 3, -1, 0, fail).untouched());
    EXPECT_REPORT(fail, NE_INT_ARG_LT, "m", "0", "m", -1);
    EXPECT_TRUE(hypergeometric(5, 3, 6, 0, fail).untouched());
    EXPECT_REPORT(fail, NE_2_INT_ARG_GT, "m", 6, "n", 5, "m", "n");
    EXPECT_TRUE(hypergeometric(5, 3, 2, -1, fail).untouched());
    EXPECT_REPORT(fail, NE_INT_ARG_LT, "k", "0", "k", -1);
    EXPECT_TRUE(hypergeometric(5, 1, 2, 2, fail).untouched());
    EXPECT_REPORT(fail, NE_2_INT_ARG_GT, "k", 2, "l", 1, "k", "l");
    EXPECT_TRUE(hypergeometric(5, 2, 1, 2, fail).untouched());
    EXPECT_REPORT(fail, NE_2_INT_ARG_GT, "k", 2, "m", 1, "k", "m");
    EXPECT_TRUE(hypergeometric(5, 4, 4, 2, fail).untouched());
    EXPECT_REPORT(fail, NE_INT_ARG_CONS, "k", 2, "k >= l + m - n");
    EXPECT_TRUE(hypergeometric(2000000000, 1000000000, 1000000000, 500000000, fail).untouched());
    EXPECT_REPORT(fail, NE_VARIANCE_TOO_LARGE, "(l*m)(n-l)*(n-m)/n*n*(n-1)");
}

} // namespace
