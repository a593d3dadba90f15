// Modified Bessel functions I and K of any order nu >= 0 at z in the right half-plane, Re z >= 0, z not 0: sequences of
// orders. Z is long double for z > 0, else ExtendedComplex. All values come scaled: exp(-z) I and exp(z) K.
//
// K is found for two orders next to zero (series for small z, Steed's evaluation of the continued fraction for K'/K and its
// normalising sum, Hankel's expansion for large z) and carried upwards by its recurrence, which is stable. Quotients of
// neighbouring I come from the recurrence downwards (Miller), which is stable for I; the Wronskian
// I_nu K_(nu+1) + I_(nu+1) K_nu = 1/z gives them their size. See N. M. Temme, J. Comput. Phys. 19 (1975) 324-337;
// I. J. Thompson and A. R. Barnett, Comput. Phys. Commun. 47 (1987) 245-257; F. W. J. Olver and D. J. Sookne, Math. Comp. 26
// (1972) 941-947.
#pragma once

#include <array>
#include <cstddef>
#include <cstdlib>

#include "special/bessel_order_tables.hpp"
#include "special/extended_complex.hpp"

namespace kor::special {

inline constexpr long double kExtendedPi = 3.14159265358979323846264338327950288L;
inline constexpr long double kNegligible = 0x1p-67L;      // of a term against its sum
inline constexpr long double kSeriesRadius = 3.0L;        // the series lose 8 bits at its edge
inline constexpr long double kHankelRadius = 25.0L;       // the expansion's smallest term is exp(-2 |z|)
inline constexpr long double kLargestExponent = 11000.0L; // exp of more overflows a long double, and any double before
inline constexpr ExtendedComplex kI{0.0L, 1.0L};
inline constexpr int kMostTerms = 1000; // of any series or fraction with a radius: never reached
inline constexpr int kMostOrders = 128; // in a sequence

// cos(pi a) and sin(pi a), 0 <= a < 1, exact at multiples of 1/2.
struct CosineAndSinePi {
    long double cosine, sine;

    explicit CosineAndSinePi(long double a)
        : cosine{a == 0.5L ? 0.0L : std::cos(kExtendedPi * a)}, sine{a == 0.0L ? 0.0L : std::sin(kExtendedPi * a)}
    {
    }
};

// An order as its whole part and the rest, 0 <= rest < 1.
struct SplitOrder {
    int whole;
    long double rest;

    SplitOrder(int whole_part, long double fraction) : whole{whole_part}, rest{fraction} {}
    explicit SplitOrder(double nu) : whole{static_cast<int>(nu)}, rest{static_cast<long double>(nu) - whole} {}
};

// exp(quarters i pi order / 2), for orders that rise by 1; |quarters| is 1 or 2.
class Rotation {
  public:
    Rotation(SplitOrder order, int quarters) : step_{quarters == 1 ? kI : quarters == -1 ? -kI : ExtendedComplex{-1.0L}}
    {
        const CosineAndSinePi angle{order.rest * std::abs(quarters) / 2.0L};
        value_ = {angle.cosine, quarters < 0 ? -angle.sine : angle.sine};
        for (int k = order.whole % 4; k > 0; --k) value_ = value_ * step_;
    }
    // The value for the present order; the order rises.
    ExtendedComplex next()
    {
        const ExtendedComplex present = value_;
        value_ = value_ * step_;
        return present;
    }

  private:
    ExtendedComplex step_, value_;
};

template <class Z>
struct Neighbours {
    Z lower, upper; // at orders nu and nu + 1
};

namespace detail {

inline long double sum_of(const std::array<long double, 12> &c, long double x)
{
    long double sum = 0.0L;
    for (std::size_t k = c.size(); k-- > 0;) sum = sum * x + c[k];
    return sum;
}

// sinh(s) / s, where e = exp(s).
template <class Z>
Z sinh_quotient(Z s, Z e)
{
    if (size_of(s) > 1.0L) return (e - Z{1.0L} / e) / (s * 2.0L);
    Z sum{1.0L}, term{1.0L};
    const Z square = s * s;
    for (int k = 1; k < kMostTerms && size_of(term) > kNegligible; ++k) {
        term = term * square / static_cast<long double>((2 * k) * (2 * k + 1));
        sum = sum + term;
    }
    return sum;
}

// exp(z) K at orders mu and mu + 1, |mu| <= 1/2, by Temme's series in (z/2)^2.
template <class Z>
Neighbours<Z> k_by_series(long double mu, Z z)
{
    using namespace tables::bessel_order;
    const long double even = sum_of(kReciprocalGammaEven, mu * mu), odd = sum_of(kReciprocalGammaOdd, mu * mu);
    const long double inverse_plus = even + mu * odd, inverse_minus = even - mu * odd; // 1 / Gamma(1 +- mu)

    const Z half = z * 0.5L, quarter_square = half * half, log_inverse = -log(half);
    const Z power = exp(log_inverse * mu); // (z/2)^-mu
    const Z cosh = (power + Z{1.0L} / power) * 0.5L;
    Z f = (sinh_quotient(log_inverse * mu, power) * log_inverse * even - cosh * odd) / (inverse_plus * inverse_minus);
    Z p = power / (2.0L * inverse_plus), q = Z{0.5L / inverse_minus} / power;
    Z weight{1.0L}, lower = f, upper = p;
    for (int k = 1; k < kMostTerms; ++k) {
        f = (f * static_cast<long double>(k) + p + q) / (k * k - mu * mu);
        p = p / (k - mu);
        q = q / (k + mu);
        weight = weight * quarter_square / static_cast<long double>(k);
        const Z of_upper = weight * (p - f * static_cast<long double>(k));
        lower = lower + weight * f;
        upper = upper + of_upper;
        if (size_of(weight * f) <= kNegligible * size_of(lower) && size_of(of_upper) <= kNegligible * size_of(upper))
            break;
    }
    const Z growth = exp(z);
    return {lower * growth, upper / half * growth};
}

// The same by continued fraction. With U_n = U(mu + 1/2 + n, 2 mu + 1, 2 z), the quotient U_1 / U_0 is a continued
// fraction, summed forwards; the sum of C_n U_n, whose value is known, is summed along with it and gives U_0 its size.
template <class Z>
Neighbours<Z> k_by_fraction(long double mu, Z z)
{
    const long double first = 0.25L - mu * mu;
    Z denominator = (z + Z{1.0L}) * 2.0L;
    Z d = Z{1.0L} / denominator;
    Z step = d, fraction = d;
    Z previous{0.0L}, current{1.0L}; // the recurrence of the weights
    Z weight_sum{first};
    long double numerator = -first, coefficient = first;
    Z sum = Z{1.0L} + weight_sum * step;
    for (int n = 2; n < kMostTerms; ++n) {
        numerator -= 2.0L * (n - 1);
        coefficient *= -numerator / n;
        const Z next = (previous - denominator * current) / numerator;
        previous = current;
        current = next;
        weight_sum = weight_sum + next * coefficient;
        denominator = denominator + Z{2.0L};
        d = Z{1.0L} / (denominator + d * numerator);
        step = (denominator * d - Z{1.0L}) * step;
        fraction = fraction + step;
        const Z term = weight_sum * step;
        sum = sum + term;
        if (size_of(term) <= kNegligible * size_of(sum)) break;
    }
    const Z lower = sqrt(Z{0.5L * kExtendedPi} / z) / sum;
    return {lower, lower * (z + Z{mu + 0.5L} - fraction * first) / z};
}

// sum of a_k(nu) / (sign z)^k, Hankel's expansion.
template <class Z>
Z hankel_sum(long double nu, Z z, long double sign)
{
    const Z inverse = Z{sign * 0.125L} / z;
    Z sum{1.0L}, term{1.0L};
    long double last = 1.0L;
    for (int k = 1; k < kMostTerms; ++k) {
        const long double odd = 2 * k - 1;
        term = term * inverse * ((4.0L * nu * nu - odd * odd) / k);
        const long double size = size_of(term);
        if (size <= kNegligible || (size > last && k > nu)) break;
        sum = sum + term;
        last = size;
    }
    return sum;
}

template <class Z>
Z k_by_expansion(long double nu, Z z)
{
    return sqrt(Z{0.5L * kExtendedPi} / z) * hankel_sum(nu, z, 1.0L);
}

inline long double i_by_expansion(long double nu, long double z)
{
    return std::sqrt(1.0L / (2.0L * kExtendedPi * z)) * hankel_sum(nu, z, -1.0L);
}

// Next to the imaginary axis the second exponential counts.
inline ExtendedComplex i_by_expansion(long double nu, ExtendedComplex z)
{
    const long double turn = std::copysign(1.0L, z.im);
    const long double whole = std::floor(nu);
    const CosineAndSinePi phase{nu - whole};
    const long double sign = std::fmod(whole, 2.0L) == 0.0L ? 1.0L : -1.0L;
    // turn i exp(turn i pi nu)
    const ExtendedComplex rotation{-sign * phase.sine, turn * sign * phase.cosine};
    const ExtendedComplex second = rotation * exp(z * -2.0L) * hankel_sum(nu, z, 1.0L);
    return sqrt(ExtendedComplex{1.0L} / (z * (2.0L * kExtendedPi))) * (hankel_sum(nu, z, -1.0L) + second);
}

// exp(-z) I of order nu by the power series, |z| <= kSeriesRadius.
template <class Z>
Z i_by_series(long double nu, Z z)
{
    const Z half = z * 0.5L, quarter_square = half * half;
    Z sum{1.0L}, term{1.0L};
    for (int k = 1; k < kMostTerms && size_of(term) > kNegligible * size_of(sum); ++k) {
        term = term * quarter_square / (k * (k + nu));
        sum = sum + term;
    }
    return sum * exp(log(half) * nu - z) / std::tgamma(nu + 1.0L);
}

} // namespace detail

// exp(z) K at orders nu and nu + 1, 0 <= nu < 1.
template <class Z>
Neighbours<Z> scaled_k(long double nu, Z z)
{
    const long double size = size_of(z);
    if (size >= 1.5L * kHankelRadius) return {detail::k_by_expansion(nu, z), detail::k_by_expansion(nu + 1.0L, z)};
    const long double mu = nu > 0.5L ? nu - 1.0L : nu;
    const Neighbours<Z> k = size <= kSeriesRadius ? detail::k_by_series(mu, z) : detail::k_by_fraction(mu, z);
    if (mu == nu) return k;
    return {k.upper, k.lower + k.upper * (Z{2.0L * nu} / z)};
}

// exp(z) K at orders nu + skip, ..., nu + skip + count - 1, 0 <= nu < 1.
template <class Z>
void scaled_k_sequence(long double nu, int skip, int count, Z z, Z values[])
{
    Neighbours<Z> k = scaled_k(nu, z);
    const Z twice_inverse = Z{2.0L} / z;
    for (int j = 0; j < skip + count; ++j) {
        if (j >= skip) values[j - skip] = k.lower;
        k = {k.upper, k.lower + k.upper * (twice_inverse * (nu + j + 1.0L))};
    }
}

enum class SequenceStatus { done, not_terminated };

// I_(nu+1) / I_nu by the recurrence downwards, from an order that its growth upwards tells to be high enough.
template <class Z>
SequenceStatus i_quotient(long double nu, Z z, Z &quotient)
{
    constexpr long double kEnough = 0x1p36L; // of the growth: its square is the error's inverse
    constexpr int kHighest = 2'000'000;
    const Z twice_inverse = Z{2.0L} / z;
    Z previous{0.0L}, current{1.0L};
    int n = 0;
    while (size_of(current) < kEnough) {
        if (++n > kHighest) return SequenceStatus::not_terminated;
        const Z next = previous + current * (twice_inverse * (nu + n));
        previous = current;
        current = next;
    }
    Z upper{0.0L}, lower{1.0L};
    for (; n > 0; --n) {
        const Z next = upper + lower * (twice_inverse * (nu + n));
        upper = lower;
        lower = next;
    }
    quotient = upper / lower;
    return SequenceStatus::done;
}

// exp(-z) I at orders nu + skip, ..., nu + skip + count - 1, 0 <= nu < 1, count <= kMostOrders.
template <class Z>
SequenceStatus scaled_i_sequence(long double nu, int skip, int count, Z z, Z values[])
{
    const long double size = size_of(z), top = nu + skip + count - 1;
    const Z inverse = Z{1.0L} / z;

    // Upwards the recurrence multiplies errors by about exp(order^2 Re(1/z)), and beyond the turning point by more.
    constexpr long double kHarmless = 3.0L;
    if (size >= 1.5L * kHankelRadius && top < 0.5L * size && top * top * real_part(inverse) < kHarmless) {
        Neighbours<Z> i{detail::i_by_expansion(nu, z), detail::i_by_expansion(nu + 1.0L, z)};
        for (int j = 0; j < skip + count; ++j) {
            if (j >= skip) values[j - skip] = i.lower;
            i = {i.upper, i.lower - i.upper * (inverse * (2.0L * (nu + j + 1.0L)))};
        }
        return SequenceStatus::done;
    }

    // Quotients downwards: those between the wanted orders are kept, those below are needed as a product.
    Z quotient{0.0L}, below{1.0L};
    std::array<Z, kMostOrders> quotients;
    if (i_quotient(top, z, quotient) != SequenceStatus::done) return SequenceStatus::not_terminated;
    for (int j = skip + count - 1; j > 0; --j) {
        quotient = Z{1.0L} / (inverse * (2.0L * (nu + j)) + quotient); // order j over order j - 1
        if (j > skip)
            quotients[j - skip] = quotient;
        else
            below = below * quotient;
    }

    Z base{0.0L};
    if (size <= kSeriesRadius) {
        base = detail::i_by_series(nu, z);
    } else if (size >= 1.5L * kHankelRadius) {
        base = detail::i_by_expansion(nu, z);
    } else {
        const Neighbours<Z> k = scaled_k(nu, z);
        base = inverse / (k.upper + quotient * k.lower);
    }
    values[0] = base * below;
    for (int j = 1; j < count; ++j) values[j] = values[j - 1] * quotients[j];
    return SequenceStatus::done;
}

// J of orders nu, nu + 1, ... for x > 0, not scaled: Re exp(i pi nu / 2) I(w) with w = -i x.
inline SequenceStatus real_j_sequence(SplitOrder nu, int count, long double x, long double values[])
{
    const ExtendedComplex w{0.0L, -x}, unscaled = exp(w);
    std::array<ExtendedComplex, kMostOrders> i;
    const SequenceStatus status = scaled_i_sequence(nu.rest, nu.whole, count, w, i.data());
    Rotation rotation{nu, 1};
    for (int k = 0; k < count; ++k) values[k] = (rotation.next() * (unscaled * i[k])).re;
    return status;
}

// Y likewise: J + i Y = 2 / (pi i) exp(-i pi nu / 2) K(w). Not a number where it overflows a long double.
inline void real_y_sequence(SplitOrder nu, int count, long double x, long double values[])
{
    const ExtendedComplex w{0.0L, -x}, unscaled = exp(-w) * (-2.0L / kExtendedPi);
    std::array<ExtendedComplex, kMostOrders> k;
    scaled_k_sequence(nu.rest, nu.whole, count, w, k.data());
    Rotation rotation{nu, -1};
    for (int j = 0; j < count; ++j) values[j] = (rotation.next() * (unscaled * k[j])).re;
}

} // namespace kor::special
