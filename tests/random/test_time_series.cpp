// Simulated ARMA and GARCH series: stationary from the first value, recursions that hold, continuation, refusals.
#include <cmath>
#include <limits>
#include <vector>

#include <gtest/gtest.h>

#include <kor/g05.h>

#include "support/expect_report.hpp"

namespace kor::testing {
namespace {

constexpr double kNan = std::numeric_limits<double>::quiet_NaN();
constexpr double kUntouched = 99.0;
constexpr double kDeviations = 6.5; // a false alarm has a probability of 8e-11
using Values = std::vector<double>;

struct Model {
    const char *name;
    Values phi, theta;
    double variance;
};

// Autocovariances from the weights of the process as an infinite moving average, summed until they vanish.
Values autocovariances(const Model &model, int lags)
{
    constexpr int kTerms = 20000;
    Values psi(kTerms), gamma(lags + 1);
    for (int j = 0; j < kTerms; ++j) {
        psi[j] = j == 0 ? 1.0 : j <= static_cast<int>(model.theta.size()) ? -model.theta[j - 1] : 0.0;
        for (int i = 1; i <= std::min<int>(j, static_cast<int>(model.phi.size())); ++i)
            psi[j] += model.phi[i - 1] * psi[j - i];
    }
    for (int lag = 0; lag <= lags; ++lag)
        for (int j = 0; j + lag < kTerms; ++j) gamma[lag] += model.variance * psi[j] * psi[j + lag];
    return gamma;
}

TEST(Arma, IsStationaryFromItsFirstValue)
{
    const Model models[] = {{"noise", {}, {}, 2.0},
                            {"near the unit circle", {0.99}, {}, 1.0},
                            {"oscillating", {0.3, -0.8}, {}, 0.5},
                            {"moving average", {}, {0.6, -0.3}, 1.0},
                            {"mixed", {0.5, 0.2}, {0.4}, 1.5},
                            {"longer average than memory", {-0.7}, {0.4, 0.2, -0.5}, 1.0}};
    constexpr int kSeries = 20000, kLength = 5;
    g05cbc(4);
    for (const Model &model : models) {
        const Values gamma = autocovariances(model, kLength);
        double product[kLength][kLength] = {};
        for (int series = 0; series < kSeries; ++series) {
            double z[kLength];
            Record fail;
            g05hac(static_cast<Integer>(model.phi.size()), static_cast<Integer>(model.theta.size()), model.phi.data(),
                   model.theta.data(), model.variance, kLength, z, &fail);
            EXPECT_SUCCESS(fail);
            for (int s = 0; s < kLength; ++s)
                for (int t = s; t < kLength; ++t) product[s][t] += z[s] * z[t];
        }
        for (int s = 0; s < kLength; ++s)
            for (int t = s; t < kLength; ++t) {
                const double spread = std::sqrt((gamma[0] * gamma[0] + gamma[t - s] * gamma[t - s]) / kSeries);
                EXPECT_NEAR(product[s][t] / kSeries, gamma[t - s], kDeviations * spread)
                    << model.name << " " << s << " " << t;
            }
    }
}

TEST(Arma, Refusals)
{
    const double explosive[][2] = {
        {1.0, 0.0}, {-1.0, 0.0}, {0.6, 0.4},  {2.0, -1.0},
        {0.5, 0.6}, {kNan, 0.1}, {0.1, kNan}, {0.1, std::numeric_limits<double>::infinity()}};
    double z = kUntouched;
    Record fail;
    for (const auto &phi : explosive) {
        g05hac(2, 0, phi, nullptr, 1.0, 1, &z, &fail);
        EXPECT_REPORT(fail, NE_STATIONARITY) << phi[0] << " " << phi[1];
    }
    g05hac(-1, -1, nullptr, nullptr, 0.0, 0, &z, &fail);
    EXPECT_REPORT(fail, NE_INT_ARG_LT, "p", "0", "p", -1);
    g05hac(1, -1, explosive[0], nullptr, 0.0, 0, &z, &fail);
    EXPECT_REPORT(fail, NE_INT_ARG_LT, "q", "0", "q", -1);
    for (const double variance : {0.0, -1.0}) {
        g05hac(1, 0, explosive[0], nullptr, variance, 0, &z, &fail);
        EXPECT_REPORT(fail, NE_REAL_ARG_LE, "vara", "0.0", "vara", variance);
    }
    g05hac(1, 0, explosive[0], nullptr, kNan, 1, &z, &fail);
    EXPECT_EQ(fail.code, NE_REAL_ARG_LE);
    g05hac(1, 0, explosive[0], nullptr, 1.0, 0, &z, &fail);
    EXPECT_REPORT(fail, NE_INT_ARG_LT, "n", "1", "n", 0);
    EXPECT_EQ(z, kUntouched);
}

using Simulator = void (*)(Integer, Integer, Integer, const double *, double, Integer, double *, double *, KorError *);
struct GarchKind {
    const char *name;
    Simulator simulate;
    double (*news)(double alpha, double gamma, double e);
    double gamma, stationary_variance; // for the coefficients below
};
const Values kTheta = {0.1, 0.12, 0.05, 0.6};
const GarchKind kKinds[] = {
    {"shifted", g05hkc, [](double alpha, double gamma, double e) { return alpha * std::pow(e + gamma, 2.0); }, -0.3,
     (0.1 + 0.17 * 0.09) / (1.0 - 0.77)},
    {"scaled", g05hlc,
     [](double alpha, double gamma, double e) { return alpha * std::pow(std::fabs(e) + gamma * e, 2.0); }, -0.4,
     0.1 / (1.0 - 0.17 * 1.16 - 0.6)},
    {"threshold", g05hmc, [](double alpha, double gamma, double e) { return (alpha + (e < 0.0) * gamma) * e * e; },
     0.06, 0.1 / (1.0 - 0.17 - 0.06 - 0.6)},
};

TEST(Garch, RecursionHoldsAcrossContinuation)
{
    for (const GarchKind &kind : kKinds) {
        constexpr Integer kLags = 2;
        Values h, e;
        Record fail;
        g05cbc(6);
        Values ht(100 + kLags), et(100 + kLags);
        // Lengths above, at and below the number of lags; the history moves when the length changes.
        Integer before = 0;
        for (const Integer num : {7, 1, 1, 2, 100, 1, 3}) {
            for (Integer i = 0; before > 0 && i < kLags; ++i) {
                EXPECT_EQ(ht[before + i], h[h.size() - kLags + i]) << kind.name;
                EXPECT_EQ(et[before + i], e[e.size() - kLags + i]) << kind.name;
            }
            for (Integer i = 0; before > 0 && i < kLags; ++i) {
                ht[num + i] = h[h.size() - kLags + i];
                et[num + i] = e[e.size() - kLags + i];
            }
            kind.simulate(num, 1, kLags, kTheta.data(), kind.gamma,
                          before == 0 ? Kor_Garch_Fcall_True : Kor_Garch_Fcall_False, ht.data(), et.data(), &fail);
            EXPECT_SUCCESS(fail);
            h.insert(h.end(), ht.begin(), ht.begin() + num);
            e.insert(e.end(), et.begin(), et.begin() + num);
            before = num;
        }
        for (std::size_t t = kLags; t < h.size(); ++t) {
            const double expected = kTheta[0] + kind.news(kTheta[1], kind.gamma, e[t - 1]) +
                                    kind.news(kTheta[2], kind.gamma, e[t - 2]) + kTheta[3] * h[t - 1];
            EXPECT_NEAR(h[t], expected, 4e-16 * expected) << kind.name << " " << t;
        }
    }
}

TEST(Garch, StartsInItsStationaryLaw)
{
    constexpr int kSeries = 20000;
    for (const GarchKind &kind : kKinds) {
        g05cbc(8);
        double sum = 0.0, squares = 0.0, signed_sum = 0.0;
        for (int series = 0; series < kSeries; ++series) {
            double ht[3], et[3];
            Record fail;
            kind.simulate(1, 1, 2, kTheta.data(), kind.gamma, Kor_Garch_Fcall_True, ht, et, &fail);
            sum += ht[0];
            squares += ht[0] * ht[0];
            signed_sum += et[0];
        }
        const double mean = sum / kSeries, spread = std::sqrt((squares / kSeries - mean * mean) / kSeries);
        EXPECT_NEAR(mean, kind.stationary_variance, kDeviations * spread) << kind.name;
        EXPECT_NEAR(signed_sum / kSeries, 0.0, kDeviations * std::sqrt(mean / kSeries)) << kind.name;
    }
}

TEST(Garch, Refusals)
{
    for (const GarchKind &kind : kKinds) {
        double ht[12], et[12];
        std::fill(ht, ht + 12, kUntouched);
        std::fill(et, et + 12, kUntouched);
        Record fail;
        const auto call = [&](Integer num, Integer p, Integer q, const Values &theta, double gamma, Integer fcall) {
            kind.simulate(num, p, q, theta.data(), gamma, fcall, ht, et, &fail);
            return fail.code;
        };
        call(0, -1, 0, {}, 0.0, 0);
        EXPECT_REPORT(fail, NE_INT_ARG_LT, "num", "1", "num", 0);
        call(1, -1, 0, {}, 0.0, 0);
        EXPECT_REPORT(fail, NE_INT_ARG_LT, "p", "0", "p", -1);
        call(1, 0, 0, {}, 0.0, 0);
        EXPECT_REPORT(fail, NE_INT_ARG_LT, "q", "1", "q", 0);
        for (const Values &theta :
             {Values{0.0, 0.1}, Values{-1.0, 0.1}, Values{kNan, 0.1}, Values{0.1, -0.1}, Values{0.1, kNan}})
            EXPECT_EQ(call(1, 0, 1, theta, 0.0, 0), NE_ARRAY_CONS);
        EXPECT_EQ(call(1, 0, 1, {0.1, 0.1}, kNan, 0), NE_REAL_ARG_CONS);
        call(1, 0, 1, {0.1, 0.1}, 0.0, 0);
        EXPECT_REPORT(fail, NE_BAD_PARAM, "fcall");
        EXPECT_EQ(call(1, 1, 1, {0.1, 0.4, 0.6}, 0.0, Kor_Garch_Fcall_True), NE_STATIONARITY);
        EXPECT_EQ(ht[0], kUntouched);
        ht[1] = -1.0;
        EXPECT_EQ(call(1, 1, 1, {0.1, 0.4, 0.5}, 0.0, Kor_Garch_Fcall_False), NE_ARRAY_CONS) << "no history there";
        ht[1] = kNan;
        EXPECT_EQ(call(1, 1, 1, {0.1, 0.4, 0.5}, 0.0, Kor_Garch_Fcall_False), NE_ARRAY_CONS);
        EXPECT_EQ(ht[0], kUntouched);
        // From a history of one's own, without a stationary variance.
        ht[1] = 1.0;
        et[1] = 0.5;
        EXPECT_EQ(call(1, 1, 1, {0.1, 0.4, 0.6}, 0.0, Kor_Garch_Fcall_False), NE_NOERROR);
        EXPECT_NEAR(ht[0], 0.1 + 0.4 * 0.25 + 0.6, 1e-15);
    }
    double ht[2] = {1.0, 1.0}, et[2] = {1.0, 1.0};
    const double theta[] = {0.1, 0.2};
    Record fail;
    g05hmc(1, 0, 1, theta, -0.3, Kor_Garch_Fcall_True, ht, et, &fail);
    EXPECT_EQ(fail.code, NE_REAL_ARG_CONS);
}

} // namespace
} // namespace kor::testing
