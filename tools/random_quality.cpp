// Do the samplers of chapter g05 follow their laws? Ten million draws a case, seeds fixed; prints a table of p-values.
//
//   c++ -O2 -std=c++20 -Iinclude tools/random_quality.cpp -Lbuild/release -lkorc -Wl,-rpath,build/release -o quality
//   ./quality > docs/random_quality.txt          (a few minutes; needs Boost.Math for the laws)
//
// Continuous laws: Kolmogorov-Smirnov. Discrete ones, and counts: chi-squared, cells of few expected draws put together.
#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>
#include <functional>
#include <map>
#include <numeric>
#include <string>
#include <vector>

#include <boost/math/distributions/beta.hpp>
#include <boost/math/distributions/binomial.hpp>
#include <boost/math/distributions/cauchy.hpp>
#include <boost/math/distributions/chi_squared.hpp>
#include <boost/math/distributions/gamma.hpp>
#include <boost/math/distributions/normal.hpp>
#include <boost/math/distributions/poisson.hpp>

#include <kor/g05.h>

namespace {

using Values = std::vector<double>;
using Cdf = std::function<double(double)>;

// Boost.Math in plain doubles.
constexpr boost::math::policies::policy<boost::math::policies::promote_double<false>> kPlain;

constexpr Integer kDraws = 10000000;
Integer seed = 1;
Values p_values;

void show(const std::string &name, const char *test, double draws, double p)
{
    std::printf("%-52s %-20s %9.0e %9.4f\n", name.c_str(), test, draws, p);
    std::fflush(stdout);
    p_values.push_back(p);
}

// Probability that Kolmogorov's statistic sqrt(n) D exceeds t, for large n.
double kolmogorov_tail(double t)
{
    if (t < 0.2) return 1.0;
    double sum = 0.0;
    for (int k = 1; k < 100; ++k) sum += (k % 2 == 1 ? 2.0 : -2.0) * std::exp(-2.0 * k * k * t * t);
    return std::clamp(sum, 0.0, 1.0);
}

// The law is compared at one in fifty of the sorted draws, which hides at most 2 percent of a standard deviation.
// `below(x)` and `upto(x)`: the probabilities of what rounds to less than x, and to x or less. They differ only where a
// part of the law falls on one double.
void kolmogorov_smirnov(const std::string &name, Values x, const Cdf &upto, const Cdf &below)
{
    std::sort(x.begin(), x.end());
    const auto n = static_cast<double>(x.size());
    constexpr std::size_t kStride = 50;
    double worst = 0.0;
    for (std::size_t i = 0; i < x.size();) {
        std::size_t next = i;
        while (next < x.size() && x[next] == x[i]) ++next;
        worst = std::max({worst, std::fabs(static_cast<double>(next) / n - upto(x[i])),
                          std::fabs(static_cast<double>(i) / n - below(x[i]))});
        i = next + kStride;
    }
    show(name, "Kolmogorov-Smirnov", n, kolmogorov_tail(worst * std::sqrt(n)));
}
void kolmogorov_smirnov(const std::string &name, Values x, const Cdf &cdf)
{
    kolmogorov_smirnov(name, std::move(x), cdf, cdf);
}

void chi_squared(const std::string &name, const Values &counts, const Values &probability)
{
    constexpr double kFewest = 20.0;
    const double draws = std::accumulate(counts.begin(), counts.end(), 0.0);
    Values seen, expected;
    double some_seen = 0.0, some_expected = 0.0;
    for (std::size_t i = 0; i < counts.size(); ++i) {
        some_seen += counts[i];
        some_expected += draws * probability[i];
        if (some_expected < kFewest) continue;
        seen.push_back(some_seen);
        expected.push_back(some_expected);
        some_seen = some_expected = 0.0;
    }
    seen.back() += some_seen;
    expected.back() += some_expected;
    double sum = 0.0;
    for (std::size_t i = 0; i < seen.size(); ++i)
        sum += (seen[i] - expected[i]) * (seen[i] - expected[i]) / expected[i];
    if (seen.size() < 2) return show(name, "all as it must be", draws, seen[0] == draws ? 1.0 : 0.0);
    const boost::math::chi_squared law(static_cast<double>(seen.size() - 1));
    show(name, "chi-squared", draws, boost::math::cdf(boost::math::complement(law, sum)));
}

void equally_likely(const std::string &name, const Values &counts)
{
    chi_squared(name, counts, Values(counts.size(), 1.0 / static_cast<double>(counts.size())));
}

// A discrete law by its distribution function, in at most 1000 cells around its mean.
template <class Draw>
void discrete(const std::string &name, Draw draw, double mean, double deviation, const Cdf &cdf)
{
    const double low = std::max(0.0, std::floor(mean - 7.0 * deviation)),
                 high = std::ceil(mean + 7.0 * deviation) + 8.0;
    const double width = std::max(1.0, std::floor((high - low) / 1000.0));
    const auto cells = static_cast<std::size_t>((high - low) / width) + 1;
    Values counts(cells), probability(cells);
    for (Integer i = 0; i < kDraws; ++i) {
        const double cell = std::floor((static_cast<double>(draw()) - low) / width);
        ++counts[static_cast<std::size_t>(std::clamp(cell, 0.0, static_cast<double>(cells - 1)))];
    }
    double before = 0.0;
    for (std::size_t i = 0; i < cells; ++i) {
        const double upto = i + 1 == cells ? 1.0 : cdf(low + width * static_cast<double>(i + 1) - 1.0);
        probability[i] = upto - before;
        before = upto;
    }
    chi_squared(name, counts, probability);
}

void start() { g05cbc(++seed); }

template <class Draw>
Values draws(Draw draw, Integer n = kDraws)
{
    start();
    Values x(n);
    for (double &value : x) value = draw();
    return x;
}

std::string with(const char *name, std::initializer_list<double> parameters)
{
    std::string text = name;
    for (const double p : parameters) {
        char number[32];
        std::snprintf(number, sizeof number, " %g", p);
        text += number;
    }
    return text;
}

void uniform_stream()
{
    start();
    Values u(kDraws);
    g05fac(0.0, 1.0, kDraws, u.data());
    kolmogorov_smirnov("g05fac 0 1", u, [](double x) { return x; });

    for (const int lag : {1, 2, 3, 7, 62, 63, 64}) {
        constexpr int kSide = 128;
        Values counts(kSide * kSide);
        for (std::size_t i = 0; i + lag < u.size(); i += lag == 1 ? 2 : 2 * lag)
            for (std::size_t k = i; k < std::min(i + lag, u.size() - lag); ++k)
                ++counts[static_cast<std::size_t>(u[k] * kSide) * kSide + static_cast<std::size_t>(u[k + lag] * kSide)];
        equally_likely("pairs at distance " + std::to_string(lag), counts);
    }
    {
        constexpr int kSide = 24;
        Values counts(kSide * kSide * kSide);
        for (std::size_t i = 0; i + 2 < u.size(); i += 3)
            ++counts[(static_cast<std::size_t>(u[i] * kSide) * kSide + static_cast<std::size_t>(u[i + 1] * kSide)) *
                         kSide +
                     static_cast<std::size_t>(u[i + 2] * kSide)];
        equally_likely("triples", counts);
    }
    {
        Values counts(120);
        for (std::size_t i = 0; i + 4 < u.size(); i += 5) {
            std::size_t order = 0;
            for (std::size_t j = 0; j < 5; ++j) {
                std::size_t smaller = 0;
                for (std::size_t k = j + 1; k < 5; ++k) smaller += u[i + k] < u[i + j];
                order = order * (5 - j) + smaller;
            }
            ++counts[order];
        }
        equally_likely("orders of five", counts);
    }
    {
        // Lengths of runs up; the number behind a run is left out, which makes them independent.
        Values counts(7), probability(7);
        for (std::size_t i = 0; i + 20 < u.size();) {
            std::size_t length = 1;
            while (length < 19 && u[i + length] > u[i + length - 1]) ++length;
            ++counts[std::min<std::size_t>(length, 7) - 1];
            i += length + 1;
        }
        double factorial = 1.0, rest = 1.0;
        for (int k = 1; k < 7; ++k) {
            factorial *= k;
            probability[k - 1] = 1.0 / factorial - 1.0 / (factorial * (k + 1));
            rest -= probability[k - 1];
        }
        probability[6] = rest;
        chi_squared("runs up", counts, probability);
    }
    {
        // Gaps between visits to (0, 1/16).
        Values counts(200), probability(200);
        int gap = 0;
        for (const double x : u) {
            if (x < 1.0 / 16.0) {
                ++counts[std::min(gap, 199)];
                gap = 0;
            } else {
                ++gap;
            }
        }
        double left = 1.0;
        for (int k = 0; k < 199; ++k) {
            probability[k] = left / 16.0;
            left -= probability[k];
        }
        probability[199] = left;
        chi_squared("gaps between visits to (0, 1/16)", counts, probability);
    }
    {
        // Bits 25 to 32 of the number, which no cell above sees.
        Values counts(256);
        for (const double x : u) ++counts[static_cast<std::size_t>(std::fmod(x * 0x1p32, 256.0))];
        equally_likely("bits 25 to 32", counts);
    }
    {
        // Largest of five: its fifth power is uniform.
        Values largest;
        for (std::size_t i = 0; i + 4 < u.size(); i += 5)
            largest.push_back(std::pow(*std::max_element(u.begin() + i, u.begin() + i + 5), 5.0));
        kolmogorov_smirnov("largest of five", largest, [](double x) { return x; });
    }
    {
        // Autocorrelations up to lag 200: their squares sum to chi-squared.
        double sum = 0.0;
        for (std::size_t lag = 1; lag <= 200; ++lag) {
            double product = 0.0;
            for (std::size_t i = 0; i + lag < u.size(); ++i) product += (u[i] - 0.5) * (u[i + lag] - 0.5);
            sum += std::pow(12.0 * product, 2.0) / static_cast<double>(u.size() - lag);
        }
        show("autocorrelations to lag 200", "chi-squared", kDraws,
             boost::math::cdf(boost::math::complement(boost::math::chi_squared(200.0), sum)));
    }
}

void simple_laws()
{
    const boost::math::normal normal;
    const Cdf normal_cdf = [=](double x) { return boost::math::cdf(normal, x); };
    start();
    Values x(kDraws);
    g05fdc(0.0, 1.0, kDraws, x.data());
    kolmogorov_smirnov("g05fdc 0 1", x, normal_cdf);
    kolmogorov_smirnov("g05ddc 0 1", draws([] { return g05ddc(0.0, 1.0); }), normal_cdf);
    kolmogorov_smirnov("g05dbc 1", draws([] { return g05dbc(1.0); }), [](double y) { return -std::expm1(-y); });
    kolmogorov_smirnov("g05dfc 0 1", draws([] { return g05dfc(0.0, 1.0); }),
                       [](double y) { return boost::math::cdf(boost::math::cauchy(), y); });
    for (const double g : {0.5, 1.0, 1.5, 20.0})
        kolmogorov_smirnov(with("g05dgc", {g}), draws([g] { return g05dgc(g, 1.0, nullptr); }, kDraws / 10),
                           [g](double y) { return boost::math::gamma_p(g, y, kPlain); });
    {
        start();
        Values counts(6);
        for (Integer i = 0; i < kDraws; ++i) ++counts[g05dyc(1, 6) - 1];
        equally_likely("g05dyc 1 6", counts);
    }
    {
        start();
        Values counts(1000);
        for (Integer i = 0; i < kDraws; ++i)
            ++counts[static_cast<std::size_t>((g05dyc(-2147483647 - 1, 2147483647) + 2147483648.0) / 4294967.296)];
        equally_likely("g05dyc, the whole range", counts);
    }
}

// Next to 0 a part of a law that behaves as c x^a there lies on single doubles: the probability of what rounds to less than
// x, with `edge` = -1/2, or to x or less, with `edge` = 1/2.
constexpr double kTiny = 1e-290;
double tiny_part(double log_c, double a, double x, double edge)
{
    const long double end = static_cast<long double>(x) + edge * 0x1p-1074L;
    return end > 0.0L ? std::exp(log_c + a * static_cast<double>(std::log(end))) : 0.0;
}

void gammas()
{
    for (const double a : {1e-3, 0.02, 0.3, 0.7, 0.999, 1.0, 1.001, 2.5, 30.0, 1e3, 1e6}) {
        start();
        Values x(kDraws);
        g05ffc(a, 1.0, kDraws, x.data(), nullptr);
        const auto cdf = [=](double y, double edge) {
            return y > kTiny ? boost::math::gamma_p(a, y, kPlain) : tiny_part(-std::lgamma(1.0 + a), a, y, edge);
        };
        kolmogorov_smirnov(
            with("g05ffc", {a}), x, [=](double y) { return cdf(y, 0.5); }, [=](double y) { return cdf(y, -0.5); });
    }
}

void betas()
{
    const double pairs[][2] = {{1e-3, 1e-3}, {0.01, 5.0}, {3.0, 0.02},    {0.5, 0.7}, {1.0, 1.0}, {1.01, 1.02},
                               {2.0, 3.5},   {0.9, 1e4},  {300.0, 200.0}, {1e6, 1e3}, {1e6, 1e6}};
    for (const auto &[a, b] : pairs) {
        start();
        Values x(kDraws);
        g05fec(a, b, kDraws, x.data(), nullptr);
        // Above 1/2, too, single doubles may carry a part of the law.
        const double log_c = -std::log(a * boost::math::beta(a, b, kPlain));
        const auto cdf = [=, a = a, b = b](double y, double edge) {
            return y > 0.5     ? boost::math::ibetac(b, a, std::max(0.0, (1.0 - y) - edge * 0x1p-53), kPlain)
                   : y > kTiny ? boost::math::ibeta(a, b, y, kPlain)
                               : tiny_part(log_c, a, y, edge);
        };
        kolmogorov_smirnov(
            with("g05fec", {a, b}), x, [=](double y) { return cdf(y, 0.5); }, [=](double y) { return cdf(y, -0.5); });
    }
}

void discrete_laws()
{
    for (const double mean : {0.01, 1.0, 7.4999, 7.5, 20.0, 86.99, 87.0, 1e3, 1e6, 1e9}) {
        const boost::math::poisson law(mean);
        const Cdf cdf = [=](double k) { return boost::math::cdf(law, k); };
        Integer status;
        start();
        discrete(
            with("g05drc", {mean}), [&] { return g05drc(mean, &status); }, mean, std::sqrt(mean), cdf);
        Values r(static_cast<std::size_t>(20.0 * std::sqrt(mean)) + 20);
        g05ecc(mean, r.data(), static_cast<Integer>(r.size()), nullptr);
        discrete(
            with("g05ecc", {mean}), [&] { return g05eyc(r.data()); }, mean, std::sqrt(mean), cdf);
    }
    const std::pair<Integer, double> cases[] = {{10, 0.0},  {10, 1.0},     {1, 0.5},         {100, 1e-3},
                                                {100, 0.3}, {1000, 0.999}, {2000000000, 0.5}};
    for (const auto &[n, p] : cases) {
        const double mean = n * p, deviation = std::sqrt(mean * (1.0 - p));
        Values r(static_cast<std::size_t>(20.0 * deviation) + 20);
        g05edc(n, p, r.data(), static_cast<Integer>(r.size()), nullptr);
        start();
        const boost::math::binomial law(n, p);
        discrete(
            with("g05edc", {static_cast<double>(n), p}), [&] { return g05eyc(r.data()); }, mean, deviation,
            [&, n = n](double k) { return k >= n ? 1.0 : boost::math::cdf(law, k); });
    }
    const Values weights = {0.0, 1e-4, 0.3, 0.0, 0.2, 0.4999, 0.0};
    Values r(15);
    g05exc(weights.data(), 7, 0, Kor_PDF, r.data(), 15, nullptr);
    start();
    Values counts(7);
    for (Integer i = 0; i < kDraws; ++i) ++counts[g05eyc(r.data())];
    chi_squared("g05exc, some probabilities 0", counts, weights);
    show("g05exc, values of probability 0 drawn", "none", kDraws, counts[0] + counts[3] + counts[6] == 0.0 ? 1.0 : 0.0);
}

void orders_and_samples()
{
    start();
    std::map<std::array<Integer, 5>, double> seen;
    for (Integer i = 0; i < kDraws / 10; ++i) {
        std::array<Integer, 5> order = {0, 1, 2, 3, 4};
        g05ehc(order.data(), 5, nullptr);
        ++seen[order];
    }
    Values counts;
    for (const auto &[order, count] : seen) counts.push_back(count);
    counts.resize(120);
    equally_likely("g05ehc 5", counts);

    start();
    std::map<std::array<Integer, 3>, double> chosen;
    const Integer population[] = {0, 1, 2, 3, 4, 5, 6, 7};
    for (Integer i = 0; i < kDraws / 10; ++i) {
        std::array<Integer, 3> sample;
        g05ejc(population, 8, sample.data(), 3, nullptr);
        ++chosen[sample];
    }
    counts.clear();
    for (const auto &[sample, count] : chosen) counts.push_back(count);
    counts.resize(56);
    equally_likely("g05ejc 8 3", counts);
}

void multivariate()
{
    // Squared distance from the mean in units of the covariance; for a nearly singular matrix the direction in which it is
    // narrow.
    const double mean[] = {1.0, -2.0}, tight = 1.0 - 1e-12;
    for (const double correlation : {0.3, tight}) {
        const double c[] = {4.0, 2.0 * correlation, 2.0 * correlation, 1.0};
        double r[7], z[2];
        g05eac(mean, 2, c, 2, 0.0, r, 7, nullptr);
        start();
        Values along(kDraws / 10), across(kDraws / 10);
        for (std::size_t i = 0; i < along.size(); ++i) {
            g05ezc(z, r);
            along[i] = (z[0] - 1.0) / 2.0;
            across[i] = ((z[1] + 2.0) - correlation * along[i]) / std::sqrt((1.0 - correlation) * (1.0 + correlation));
        }
        const Cdf cdf = [](double x) { return boost::math::cdf(boost::math::normal(), x); };
        kolmogorov_smirnov(with("g05ezc, correlation 1 -", {1.0 - correlation}), along, cdf);
        kolmogorov_smirnov(with("  across", {}), across, cdf);
        double product = 0.0;
        for (std::size_t i = 0; i < along.size(); ++i) product += along[i] * across[i];
        const double score = product / std::sqrt(static_cast<double>(along.size()));
        show("  correlation of the two", "normal", kDraws / 10, std::erfc(std::fabs(score) / std::sqrt(2.0)));
    }
}

void series()
{
    const double phi[] = {0.5, 0.45}, theta[] = {0.4};
    // Variance of the ARMA process, from its weights as a moving average.
    double variance = 0.0, before = 0.0, weight = 1.0;
    for (int j = 0; j < 100000; ++j) {
        variance += weight * weight;
        const double next = phi[0] * weight + phi[1] * before - (j == 0 ? theta[0] : 0.0);
        before = weight;
        weight = next;
    }
    start();
    Values first(kDraws / 10), tenth(kDraws / 10);
    for (std::size_t i = 0; i < first.size(); ++i) {
        double z[10];
        g05hac(2, 1, phi, theta, 1.0, 10, z, nullptr);
        first[i] = z[0] / std::sqrt(variance);
        tenth[i] = z[9] / std::sqrt(variance);
    }
    const Cdf cdf = [](double x) { return boost::math::cdf(boost::math::normal(), x); };
    kolmogorov_smirnov("g05hac 2 1, first value", first, cdf);
    kolmogorov_smirnov("g05hac 2 1, tenth value", tenth, cdf);
    const double garch[] = {0.1, 0.15, 0.8};
    const auto simulators = {g05hkc, g05hlc, g05hmc};
    const char *names[] = {"g05hkc 1 1", "g05hlc 1 1", "g05hmc 1 1"};
    int which = 0;
    for (const auto simulate : simulators) {
        start();
        Values h(kDraws / 10 + 1), e(kDraws / 10 + 1);
        simulate(kDraws / 10, 1, 1, garch, 0.05, Kor_Garch_Fcall_True, h.data(), e.data(), nullptr);
        Values shocks(kDraws / 10);
        for (std::size_t i = 0; i < shocks.size(); ++i) shocks[i] = e[i] / std::sqrt(h[i]);
        kolmogorov_smirnov(names[which++], shocks, cdf);
    }
}

} // namespace

int main()
{
    std::printf("%-52s %-20s %9s %9s\n", "case", "test", "draws", "p");
    uniform_stream();
    simple_laws();
    gammas();
    betas();
    discrete_laws();
    orders_and_samples();
    multivariate();
    series();
    std::sort(p_values.begin(), p_values.end());
    std::printf(
        "%zu p-values; the least %.4f. (Of as many right samplers' the least is below %.4f in one of twenty tables.)\n",
        p_values.size(), p_values[0], 0.05 / static_cast<double>(p_values.size()));
}
