// Kelvin functions: series, piecewise polynomials, and modulus and phase for large arguments.
#include "special/kelvin.hpp"

#include "special/bessel_support.hpp"
#include "special/kelvin_tables.hpp"

namespace kor::special {

namespace {

using namespace tables::kelvin;

// ker + i kei = exp(-t) size exp(-i angle) for large x, t = x / sqrt(2).
template <class Products>
struct DecayingOscillation {
    Exponential decay;
    Oscillation<Products> oscillation;

    KOR_INLINE double ker() const { return decayed(oscillation.cosine()); }
    KOR_INLINE double kei() const { return -decayed(oscillation.sine()); }
    KOR_INLINE double decayed(DoubleDouble value) const
    {
        return times_power_of_two((decay.value * value).rounded(), decay.exponent);
    }
};

template <class Products>
KOR_INLINE DecayingOscillation<Products> decaying_oscillation(double x)
{
    const DoubleDouble product = Products::product(kRootHalf.hi, x), t{product.hi, product.lo + kRootHalf.lo * x};
    const RootOfQuotient<Products> size{kHalfPi, x};
    const double u = size.quotient * kTwoOverPi.hi;
    return {extended_exp(-t),
            {size.factor.times_one_plus(u * polynomial(kModulus, u)), t + (kEighthPi - u * polynomial(kPhase, u))}};
}

double large_ker(double x)
{
    return with_exact_products([x]<class P>(P) KOR_INLINE_LAMBDA { return decaying_oscillation<P>(x).ker(); });
}

double large_kei(double x)
{
    return with_exact_products([x]<class P>(P) KOR_INLINE_LAMBDA { return decaying_oscillation<P>(x).kei(); });
}

double small_ker(double x)
{
    const double z = x * x, w = z * z;
    const OpenSum log_x = open_log(x), constant = kSmallKer.open(z);
    const DoubleDouble sum = fast_two_sum(-log_x.large, constant.large);
    return sum.hi + (sum.lo + ((constant.small - log_x.small) - log_x.rounded() * (w * polynomial(kSmallBer, w))));
}

double small_bei(double x)
{
    const DoubleDouble z = two_square(x);
    const DoubleDouble quotient = kSmallBei(z.hi * z.hi);
    return z.hi * quotient.hi + (z.lo * quotient.hi + z.hi * quotient.lo);
}

double small_kei(double x)
{
    const double z = x * x;
    const DoubleDouble rest = kSmallKei(z);
    return rest.hi + (rest.lo - std::log(x) * (z * kSmallBei(z * z).hi));
}

} // namespace

double kelvin_ber(double x) { return kBer(std::fabs(x)); }

double kelvin_bei(double x)
{
    const double a = std::fabs(x);
    return a < kBei.begin() ? small_bei(a) : kBei(a);
}

double kelvin_ker(double x)
{
    if (x < kSmallArgument) return small_ker(x);
    return x < kKer.end() ? kKer(x) : large_ker(x);
}

double kelvin_kei(double x)
{
    if (x < kSmallArgument) return small_kei(x);
    return x < kKei.end() ? kKei(x) : large_kei(x);
}

} // namespace kor::special
