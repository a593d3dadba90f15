// s18ecf_f to s18ekf_f: Bessel functions of real argument and fractional order.
//
// For positive x the recurrences of bessel_order.hpp run in real arithmetic; J alone goes through the complex kernels. Negative
// orders come from reflection, I_(-nu) = I_nu + 2/pi sin(nu pi) K_nu and J_(-nu) = cos(nu pi) J_nu - sin(nu pi) Y_nu, negative
// arguments from exp(i pi nu).
#include "special/bessel_fractional.hpp"

#include <algorithm>
#include <cstdlib>

#include "frame/constants.hpp"
#include "special/bessel_limits.hpp"
#include "special/bessel_order.hpp"

namespace kor::special {

namespace {

constexpr Integer kMostK = 100;  // orders above the first, of K
constexpr Integer kMostIJ = 101; // and of I and J

using Orders = std::array<long double, kMostOrders>;

// exp(x), for a product that may come back into the range of doubles.
long double growth(long double x) { return std::exp(std::fmin(x, kLargestExponent)); }

Integer round_to(double &result, long double value)
{
    result = static_cast<double>(value);
    if (std::isfinite(result)) return kBesselDone;
    result = std::copysign(kLargest, result);
    return kBesselOverflow;
}

// ---------------------------------------------------------------------------------------------------------------------
// Orders nu/4
// ---------------------------------------------------------------------------------------------------------------------

bool valid_quarters(Integer nu) { return nu != 0 && nu >= -3 && nu <= 3; }

// exp(-x) I of order nu/4 for x > 0.
SequenceStatus scaled_i_of_quarters(long double x, Integer nu, long double &value)
{
    const long double order = std::abs(nu) / 4.0L;
    const SequenceStatus status = scaled_i_sequence(order, 0, 1, x, &value);
    if (nu < 0) {
        const long double reflected = 2.0L / kExtendedPi * CosineAndSinePi{order}.sine;
        value += reflected * scaled_k(order, x).lower * std::exp(-2.0L * x);
    }
    return status;
}

Integer i_of_quarters(double x, Integer nu, Scaling scaling, double *value)
{
    if (!valid_quarters(nu) || !(nu > 0 ? x >= 0.0 : x > 0.0)) return kBesselArgument;
    *value = 0.0;
    if (x == 0.0) return kBesselDone;
    if (std::isinf(x)) return scaling == Scaling::none ? round_to(*value, HUGE_VALL) : kBesselDone;
    long double scaled = 0.0L;
    if (scaled_i_of_quarters(x, nu, scaled) != SequenceStatus::done) return kBesselNotTerminated;
    return round_to(*value, scaling == Scaling::none ? scaled * growth(x) : scaled);
}

Integer k_of_quarters(double x, Integer nu, Scaling scaling, double *value)
{
    if (!valid_quarters(nu) || !(x > 0.0)) return kBesselArgument;
    *value = 0.0;
    if (std::isinf(x)) return kBesselDone;
    const long double z = x, scaled = scaled_k(std::abs(nu) / 4.0L, z).lower;
    return round_to(*value, scaling == Scaling::none ? scaled * growth(-z) : scaled);
}

// ---------------------------------------------------------------------------------------------------------------------
// Sequences of orders
// ---------------------------------------------------------------------------------------------------------------------

Integer k_sequence(double x, Integer ia, Integer ja, Integer nl, Scaling scaling, double b[])
{
    if (!(x > 0.0) || !valid_order_pair(ia, ja) || nl < 0 || nl > kMostK) return kBesselArgument;
    Orders values{};
    const long double z = x;
    if (!std::isinf(x)) scaled_k_sequence(static_cast<long double>(ia) / ja, 0, nl + 1, z, values.data());
    const long double scale = scaling == Scaling::none ? growth(-z) : 1.0L;
    Integer status = kBesselDone;
    for (Integer k = 0; k <= nl; ++k) status = std::max(status, round_to(b[k], values[k] * scale));
    return status;
}

bool valid_sequence(double x, double a, Integer nl)
{
    return !std::isnan(x) && !(x == 0.0 && nl < 0) && a >= 0.0 && a < 1.0 && valid_sequence_length(nl);
}

// 1 - a, the first of the orders of which reflection makes a - 1, a - 2, ...
SplitOrder reflected(double a)
{
    const long double first = 1.0L - a;
    return first < 1.0L ? SplitOrder{0, first} : SplitOrder{1, 0.0L};
}

// I of orders a + k or a - k for x > 0, k = 0, ..., count - 1.
SequenceStatus i_sequence(double a, bool rising, Integer count, long double x, Orders &values)
{
    const SequenceStatus status =
        scaled_i_sequence(static_cast<long double>(a), 0, rising ? count : 1, x, values.data());
    const long double scale = growth(x);
    if (!rising && count > 1) {
        const SplitOrder orders = reflected(a);
        Orders k;
        scaled_i_sequence(orders.rest, orders.whole, count - 1, x, &values[1]);
        scaled_k_sequence(orders.rest, orders.whole, count - 1, x, k.data());
        const long double weight = 2.0L / kExtendedPi * CosineAndSinePi{a}.sine * std::exp(-2.0L * x);
        for (Integer j = 1; j < count && weight != 0.0L; ++j) values[j] += (j % 2 == 0 ? -weight : weight) * k[j - 1];
    }
    for (Integer j = 0; j < count; ++j) values[j] *= scale;
    return status;
}

// J of orders a + k or a - k for x > 0; J_(a-k) = (-1)^k (cos(pi a) J_(k-a) + sin(pi a) Y_(k-a)).
SequenceStatus j_sequence(double a, bool rising, Integer count, long double x, Orders &values)
{
    const SequenceStatus status = real_j_sequence({0, a}, rising ? count : 1, x, values.data());
    if (!rising && count > 1) {
        const SplitOrder orders = reflected(a);
        const CosineAndSinePi angle{a};
        Orders y;
        real_j_sequence(orders, count - 1, x, &values[1]);
        if (angle.sine != 0.0L) real_y_sequence(orders, count - 1, x, y.data());
        for (Integer k = 1; k < count; ++k) {
            long double value = angle.cosine * values[k];
            if (angle.sine != 0.0L) value += angle.sine * (std::isfinite(y[k - 1]) ? y[k - 1] : -HUGE_VALL);
            values[k] = k % 2 == 0 ? value : -value;
        }
    }
    return status;
}

using Sequence = SequenceStatus(double a, bool rising, Integer count, long double x, Orders &values);

// The frame of both: value at 0, sign of the argument, rounding.
Integer sequence(Sequence positive, double x, double a, Integer nl, Complex b[])
{
    const Integer count = std::abs(nl) + 1;
    Orders values{};
    if (x == 0.0)
        values[0] = a == 0.0 ? 1.0L : 0.0L;
    else if (positive(a, nl >= 0, count, std::fmin(std::fabs(x), kLargest), values) != SequenceStatus::done)
        return kBesselNotTerminated;

    Integer status = kBesselDone;
    const CosineAndSinePi angle{a};
    for (Integer k = 0; k < count; ++k) {
        b[k].im = 0.0;
        if (x >= 0.0) {
            status = std::max(status, round_to(b[k].re, values[k]));
            continue;
        }
        // exp(i pi (a + k)) = (-1)^k exp(i pi a), for falling orders as well
        const long double turned = k % 2 == 0 ? values[k] : -values[k];
        status = std::max(status, round_to(b[k].re, angle.cosine != 0.0L ? turned * angle.cosine : 0.0L));
        if (angle.sine != 0.0L) status = std::max(status, round_to(b[k].im, turned * angle.sine));
    }
    return status;
}

} // namespace

bool valid_order_pair(Integer ia, Integer ja)
{
    constexpr Integer kLargestDenominator = 4;
    if (ia == 0) return ja >= 1;
    const bool lowest_terms = !(ia == 2 && ja == 4);
    return ia > 0 && ia < ja && ja <= kLargestDenominator && lowest_terms;
}

bool valid_sequence_length(Integer nl) { return nl >= -kMostIJ && nl <= kMostIJ; }

Integer s18ecf_f(double x, Integer nu, double *value) { return i_of_quarters(x, nu, Scaling::exponential, value); }
Integer s18eef_f(double x, Integer nu, double *value) { return i_of_quarters(x, nu, Scaling::none, value); }
Integer s18edf_f(double x, Integer nu, double *value) { return k_of_quarters(x, nu, Scaling::exponential, value); }
Integer s18eff_f(double x, Integer nu, double *value) { return k_of_quarters(x, nu, Scaling::none, value); }

Integer s18egf_f(double x, Integer ia, Integer ja, Integer nl, double b[])
{
    return k_sequence(x, ia, ja, nl, Scaling::none, b);
}

Integer s18ehf_f(double x, Integer ia, Integer ja, Integer nl, double b[])
{
    return k_sequence(x, ia, ja, nl, Scaling::exponential, b);
}

Integer s18ejf_f(double x, double a, Integer nl, Complex b[])
{
    if (!valid_sequence(x, a, nl)) return kBesselArgument;
    return sequence(i_sequence, x, a, nl, b);
}

Integer s18ekf_f(double x, double a, Integer nl, Complex b[])
{
    if (!valid_sequence(x, a, nl)) return kBesselArgument;
    if (std::fabs(x) > kLargestOscillating) {
        std::fill(b, b + std::abs(nl) + 1, Complex{0.0, 0.0});
        return kBesselTotalLoss;
    }
    const Integer status = sequence(j_sequence, x, a, nl, b);
    return status == kBesselDone && std::fabs(x) > kPhaseOfHalfTheDigits ? kBesselSomeLoss : status;
}

} // namespace kor::special
