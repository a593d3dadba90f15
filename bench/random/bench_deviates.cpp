// Random numbers beside the standard library, Boost and GSL: time for a deviate, and how well a sample follows its law.
#include <algorithm>
#include <cmath>
#include <functional>
#include <random>
#include <string>
#include <vector>

#include <kor/g05.h>
#include <kor/x02.h>

#include "support/ratio_table.hpp"

#ifdef KOR_HAVE_BOOST
#include <boost/math/distributions/beta.hpp>
#include <boost/math/distributions/binomial.hpp>
#include <boost/math/distributions/cauchy.hpp>
#include <boost/math/distributions/gamma.hpp>
#include <boost/math/distributions/normal.hpp>
#include <boost/math/distributions/poisson.hpp>
#include <boost/random.hpp>
#include <boost/random/discrete_distribution.hpp>
#endif
#ifdef KOR_HAVE_GSL
#include <gsl/gsl_randist.h>
#include <gsl/gsl_rng.h>
#endif

namespace {

const kor::bench::Heading heading{"Random deviates, time for one",
                                  "Kolmogorov-Smirnov sqrt(n) D of 100,000 (a right sampler: above 1.95 once in 1000)"};

constexpr Integer kItems = 1024;
constexpr std::size_t kSample = 100000;

using Cdf = std::function<double(double)>;
using Fill = std::function<void(double *, Integer)>;

// Largest distance of a sample's distribution from its law, times sqrt(n). For a discrete law the steps are compared.
double distance(const Fill &fill, const Cdf &cdf, bool discrete)
{
    if (!cdf) return -1.0;
    std::vector<double> x(kSample);
    for (std::size_t at = 0; at < kSample; at += kItems)
        fill(x.data() + at, static_cast<Integer>(std::min<std::size_t>(kItems, kSample - at)));
    std::sort(x.begin(), x.end());
    const double n = kSample;
    double worst = 0.0;
    for (std::size_t i = 0; i < kSample; ++i) {
        const bool last_of_ties = i + 1 == kSample || x[i + 1] != x[i];
        if (discrete && !last_of_ties) continue;
        const double p = cdf(x[i]);
        worst = std::max(worst, static_cast<double>(i + 1) / n - p);
        worst = std::max(worst, discrete ? p - static_cast<double>(i + 1) / n : p - static_cast<double>(i) / n);
    }
    return worst * std::sqrt(n);
}

void add(const std::string &name, const Fill &fill, const Cdf &cdf, bool discrete = false)
{
    static std::vector<double> x(kItems);
    kor::bench::add(name,
                    [fill] {
                        fill(x.data(), kItems);
                        kor::bench::keep(x[kItems - 1]);
                    },
                    {.error = distance(fill, cdf, discrete), .items = kItems});
}

// One deviate at a time.
template <class Draw>
Fill each(Draw draw)
{
    return [draw](double *x, Integer n) mutable {
        for (Integer i = 0; i < n; ++i) x[i] = static_cast<double>(draw());
    };
}

std::mt19937_64 std_engine{11};
#ifdef KOR_HAVE_BOOST
boost::random::mt19937_64 boost_engine{11};
#endif
#ifdef KOR_HAVE_GSL
gsl_rng *gsl_engine()
{
    static gsl_rng *const engine = gsl_rng_alloc(gsl_rng_mt19937);
    return engine;
}
#endif

template <class Distribution>
Fill from_std(Distribution distribution)
{
    return each([distribution]() mutable { return distribution(std_engine); });
}

#ifdef KOR_HAVE_BOOST
template <class Distribution>
Fill from_boost(Distribution distribution)
{
    return each([distribution]() mutable { return distribution(boost_engine); });
}
#endif

template <class Law>
Cdf cdf_of(Law law)
{
#ifdef KOR_HAVE_BOOST
    return [law](double x) { return boost::math::cdf(law, x); };
#else
    return {};
#endif
}

// `cdf` of the law, if there is something to compute it; the peers that have a sampler for it.
#ifdef KOR_HAVE_BOOST
#define KOR_LAW(law) cdf_of(boost::math::law)
#define KOR_BOOST(name, distribution, ...) add(name "/Boost", from_boost(boost::random::distribution), __VA_ARGS__)
#else
#define KOR_LAW(law)                                                                                                   \
    Cdf {}
#define KOR_BOOST(name, distribution, ...)
#endif
#ifdef KOR_HAVE_GSL
#define KOR_GSL(name, call, ...) add(name "/GSL", each([=] { return call; }), __VA_ARGS__)
#else
#define KOR_GSL(name, call, ...)
#endif

void uniform()
{
    const Cdf cdf = [](double x) { return x; };
    add("uniform one by one/KOR", each([] { return g05cac(); }), cdf);
    add("uniform one by one/std", from_std(std::uniform_real_distribution<double>{}), cdf);
    KOR_BOOST("uniform one by one", uniform_01<double>{}, cdf);
    KOR_GSL("uniform one by one", gsl_rng_uniform(gsl_engine()), cdf);
    kor::bench::add("uniform one by one/an empty call of the library",
                    [] {
                        for (Integer i = 0; i < kItems; ++i) kor::bench::keep(x02ajc());
                    },
                    {.items = kItems});
    add(
        "uniform in bulk/KOR", [](double *x, Integer n) { g05fac(0.0, 1.0, n, x); }, cdf);
    add("uniform in bulk/std", from_std(std::uniform_real_distribution<double>{}), cdf);
    KOR_BOOST("uniform in bulk", uniform_01<double>{}, cdf);
    add(
        "uniform (2, 5) in bulk/KOR", [](double *x, Integer n) { g05fac(2.0, 5.0, n, x); },
        [](double x) { return (x - 2.0) / 3.0; });
    add("uniform (2, 5) in bulk/std", from_std(std::uniform_real_distribution<double>{2.0, 5.0}),
        [](double x) { return (x - 2.0) / 3.0; });
    const Cdf sixth = [](double x) { return x / 6.0; };
    add("integer 1 to 6/KOR", each([] { return g05dyc(1, 6); }), sixth, true);
    add("integer 1 to 6/std", from_std(std::uniform_int_distribution<int>{1, 6}), sixth, true);
    KOR_BOOST("integer 1 to 6", uniform_int_distribution<int>(1, 6), sixth, true);
}

void normal_and_exponential()
{
    const Cdf normal = KOR_LAW(normal{});
    add(
        "normal in bulk/KOR", [](double *x, Integer n) { g05fdc(0.0, 1.0, n, x); }, normal);
    add("normal in bulk/std", from_std(std::normal_distribution<double>{}), normal);
    KOR_BOOST("normal in bulk", normal_distribution<double>{}, normal);
    KOR_GSL("normal in bulk", gsl_ran_gaussian_ziggurat(gsl_engine(), 1.0), normal);
    add("normal one by one/KOR", each([] { return g05ddc(0.0, 1.0); }), normal);
    add("normal one by one/std", from_std(std::normal_distribution<double>{}), normal);
    KOR_BOOST("normal one by one", normal_distribution<double>{}, normal);
    KOR_GSL("normal one by one", gsl_ran_gaussian(gsl_engine(), 1.0), normal);

    const Cdf exponential = [](double x) { return -std::expm1(-x); };
    add(
        "exponential in bulk/KOR", [](double *x, Integer n) { g05ffc(1.0, 1.0, n, x, nullptr); }, exponential);
    add("exponential in bulk/std", from_std(std::exponential_distribution<double>{}), exponential);
    KOR_BOOST("exponential in bulk", exponential_distribution<double>{}, exponential);
    add("exponential one by one/KOR", each([] { return g05dbc(1.0); }), exponential);
    add("exponential one by one/std", from_std(std::exponential_distribution<double>{}), exponential);
    KOR_BOOST("exponential one by one", exponential_distribution<double>{}, exponential);
    KOR_GSL("exponential one by one", gsl_ran_exponential(gsl_engine(), 1.0), exponential);

    const Cdf cauchy = KOR_LAW(cauchy{});
    add("Cauchy/KOR", each([] { return g05dfc(0.0, 1.0); }), cauchy);
    add("Cauchy/std", from_std(std::cauchy_distribution<double>{}), cauchy);
    KOR_GSL("Cauchy", gsl_ran_cauchy(gsl_engine(), 1.0), cauchy);
}

void gamma(const std::string &name, double shape)
{
    const Cdf cdf = KOR_LAW(gamma_distribution<double>(shape));
    add(
        name + "/KOR", [shape](double *x, Integer n) { g05ffc(shape, 1.0, n, x, nullptr); }, cdf);
    add(name + "/std", from_std(std::gamma_distribution<double>{shape}), cdf);
#ifdef KOR_HAVE_BOOST
    add(name + "/Boost", from_boost(boost::random::gamma_distribution<double>{shape}), cdf);
#endif
#ifdef KOR_HAVE_GSL
    add(name + "/GSL", each([shape] { return gsl_ran_gamma(gsl_engine(), shape, 1.0); }), cdf);
#endif
}

void beta(const std::string &name, double a, double b)
{
    const Cdf cdf = KOR_LAW(beta_distribution<double>(a, b));
    add(
        name + "/KOR", [=](double *x, Integer n) { g05fec(a, b, n, x, nullptr); }, cdf);
#ifdef KOR_HAVE_BOOST
    add(name + "/Boost", from_boost(boost::random::beta_distribution<double>{a, b}), cdf);
#endif
#ifdef KOR_HAVE_GSL
    add(name + "/GSL", each([=] { return gsl_ran_beta(gsl_engine(), a, b); }), cdf);
#endif
}

void poisson(const std::string &name, double mean)
{
    const Cdf cdf = KOR_LAW(poisson{mean});
    static Integer status;
    add(name + "/KOR", each([mean] { return g05drc(mean, &status); }), cdf, true);
    std::vector<double> r(static_cast<std::size_t>(20.0 * std::sqrt(mean)) + 20);
    g05ecc(mean, r.data(), static_cast<Integer>(r.size()), nullptr);
    add(name + "/KOR by table", each([r] { return g05eyc(r.data()); }), cdf, true);
    add(name + "/std", from_std(std::poisson_distribution<int>{mean}), cdf, true);
#ifdef KOR_HAVE_BOOST
    add(name + "/Boost", from_boost(boost::random::poisson_distribution<int>{mean}), cdf, true);
#endif
#ifdef KOR_HAVE_GSL
    add(name + "/GSL", each([mean] { return gsl_ran_poisson(gsl_engine(), mean); }), cdf, true);
#endif
}

void tables()
{
    std::vector<double> weights(1000), sums;
    for (std::size_t i = 0; i < weights.size(); ++i)
        weights[i] = 1.0 + std::fmod(7.3 * static_cast<double>(i * i), 11.0);
    double total = 0.0;
    for (const double weight : weights) sums.push_back(total += weight);
    const Cdf cdf = [sums, total](double x) { return sums[static_cast<std::size_t>(x)] / total; };
    std::vector<double> r(1405);
    g05exc(weights.data(), 1000, 0, Kor_PDF, r.data(), 1405, nullptr);
    add("table of 1000 values/KOR", each([r] { return g05eyc(r.data()); }), cdf, true);
    std::vector<double> longer(5005);
    g05exc(weights.data(), 1000, 0, Kor_PDF, longer.data(), 5005, nullptr);
    add("table of 1000 values/KOR, longer vector", each([longer] { return g05eyc(longer.data()); }), cdf, true);
    add("table of 1000 values/std", from_std(std::discrete_distribution<int>(weights.begin(), weights.end())), cdf,
        true);
#ifdef KOR_HAVE_BOOST
    add("table of 1000 values/Boost",
        from_boost(boost::random::discrete_distribution<int>(weights.begin(), weights.end())), cdf, true);
#endif
#ifdef KOR_HAVE_GSL
    static gsl_ran_discrete_t *const alias = gsl_ran_discrete_preproc(weights.size(), weights.data());
    add("table of 1000 values/GSL", each([] { return gsl_ran_discrete(gsl_engine(), alias); }), cdf, true);
#endif
    const Cdf binomial = KOR_LAW(binomial(100, 0.3));
    std::vector<double> b(111);
    g05edc(100, 0.3, b.data(), 111, nullptr);
    add("binomial 100, 0.3/KOR", each([b] { return g05eyc(b.data()); }), binomial, true);
    add("binomial 100, 0.3/std", from_std(std::binomial_distribution<int>{100, 0.3}), binomial, true);
    KOR_BOOST("binomial 100, 0.3", binomial_distribution<int>(100, 0.3), binomial, true);
    KOR_GSL("binomial 100, 0.3", gsl_ran_binomial(gsl_engine(), 0.3, 100), binomial, true);
}

void orders()
{
    static std::vector<Integer> index(kItems);
    kor::bench::add("permutation of 1024/KOR", [] { g05ehc(index.data(), kItems, nullptr); }, {.items = kItems});
    kor::bench::add("permutation of 1024/std", [] { std::shuffle(index.begin(), index.end(), std_engine); },
                    {.items = kItems});
#ifdef KOR_HAVE_GSL
    kor::bench::add("permutation of 1024/GSL",
                    [] { gsl_ran_shuffle(gsl_engine(), index.data(), index.size(), sizeof(Integer)); },
                    {.items = kItems});
#endif
}

const bool registered = [] {
    g05cbc(11);
    uniform();
    normal_and_exponential();
    gamma("gamma 0.01", 0.01);
    gamma("gamma 0.5", 0.5);
    gamma("gamma 2.5", 2.5);
    gamma("gamma 1000", 1000.0);
    beta("beta 0.5, 0.7", 0.5, 0.7);
    beta("beta 2, 3.5", 2.0, 3.5);
    beta("beta 300, 200", 300.0, 200.0);
    poisson("Poisson 3", 3.0);
    poisson("Poisson 20", 20.0);
    poisson("Poisson 1000", 1000.0);
    tables();
    orders();
    return true;
}();

} // namespace
