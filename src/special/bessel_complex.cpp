// s17def_f, s17dcf_f, s18def_f, s18dcf_f: Bessel functions of complex argument, sequences of orders.
//
// Everything is led back to I and K in the right half-plane (bessel_order.hpp): by the formulas of continuation, and by those
// that connect J and Y with I and K (Abramowitz and Stegun, Handbook of Mathematical Functions, 1964, 9.1.3, 9.6.3 to 9.6.5,
// 9.6.30, 9.6.31).
#include "special/bessel_complex.hpp"

#include "frame/constants.hpp"
#include "special/bessel_limits.hpp"
#include "special/bessel_order.hpp"

namespace kor::special {

namespace {

constexpr double kLargestOrder = 1e5;

// exp(-w) I and exp(w) K for a sequence of orders, Re w >= 0.
struct HalfPlane {
    using Sequence = std::array<ExtendedComplex, kMostOrders>;
    Sequence i, k;

    SequenceStatus compute_i(SplitOrder order, int n, ExtendedComplex w)
    {
        if (w.im != 0.0L) return scaled_i_sequence(order.rest, order.whole, n, w, i.data());
        std::array<long double, kMostOrders> real;
        const SequenceStatus status = scaled_i_sequence(order.rest, order.whole, n, w.re, real.data());
        for (int j = 0; j < n; ++j) i[j] = {real[j], 0.0L};
        return status;
    }
    void compute_k(SplitOrder order, int n, ExtendedComplex w)
    {
        if (w.im != 0.0L) return scaled_k_sequence(order.rest, order.whole, n, w, k.data());
        std::array<long double, kMostOrders> real;
        scaled_k_sequence(order.rest, order.whole, n, w.re, real.data());
        for (int j = 0; j < n; ++j) k[j] = {real[j], 0.0L};
    }
};

ExtendedComplex bounded_exp(ExtendedComplex w) { return exp(ExtendedComplex{std::fmin(w.re, kLargestExponent), w.im}); }
ExtendedComplex turn_by(long double angle) { return {std::cos(angle), std::sin(angle)}; }

bool acceptable(double fnu, Complex z, Integer n)
{
    return fnu >= 0.0 && fnu <= kLargestOrder && n >= 1 && n <= kMostOrders && std::isfinite(z.re) &&
           std::isfinite(z.im);
}

Integer fill(Complex cy[], Integer n, Complex value, Integer status)
{
    for (Integer j = 0; j < n; ++j) cy[j] = value;
    return status;
}

// The values rounded to doubles, with what befalls them there.
class Rounding {
  public:
    explicit Rounding(Integer &nz) : nz_{nz} { nz_ = 0; }

    Complex operator()(ExtendedComplex value)
    {
        const Complex z{part(value.re), part(value.im)};
        if (z.re == 0.0 && z.im == 0.0) ++nz_;
        return z;
    }
    // `phase`: what sine and cosine are taken of.
    Integer status(double phase) const
    {
        if (overflow_) return kBesselOverflow;
        return std::fabs(phase) > kPhaseOfHalfTheDigits ? kBesselSomeLoss : kBesselDone;
    }

  private:
    double part(long double x)
    {
        const double value = static_cast<double>(x);
        if (std::isfinite(value)) return value;
        overflow_ = true;
        return std::isnan(value) ? kLargest : std::copysign(kLargest, value);
    }

    Integer &nz_;
    bool overflow_ = false;
};

bool is_zero(Complex z) { return z.re == 0.0 && z.im == 0.0; }

// J and I at 0.
Integer value_at_zero(double fnu, Integer n, Complex cy[], Integer *nz)
{
    fill(cy, n, {0.0, 0.0}, kBesselDone);
    if (fnu == 0.0) cy[0] = {1.0, 0.0};
    *nz = fnu == 0.0 ? n - 1 : n;
    return kBesselDone;
}

// Left half-plane: the function at z = w exp(+-i pi), and the conjugate below the cut.
struct Continuation {
    bool left, below;
    ExtendedComplex w;

    explicit Continuation(Complex z)
        : left{z.re < 0.0}, below{std::signbit(z.im)}, w{left ? -ExtendedComplex{z} : ExtendedComplex{z}}
    {
    }
    int half_turn() const { return below ? -2 : 2; } // in quarters
};

} // namespace

Integer s18def_f(double fnu, Complex z, Integer n, Scaling scaling, Complex cy[], Integer *nz)
{
    if (!acceptable(fnu, z, n)) return kBesselArgument;
    if (is_zero(z)) return value_at_zero(fnu, n, cy, nz);
    *nz = 0;
    if (std::fabs(z.im) > kLargestOscillating) return fill(cy, n, {0.0, 0.0}, kBesselTotalLoss);

    const SplitOrder order{fnu};
    const Continuation place{z};
    HalfPlane values;
    if (values.compute_i(order, n, place.w) != SequenceStatus::done)
        return fill(cy, n, {0.0, 0.0}, kBesselNotTerminated);

    const ExtendedComplex scale = scaling == Scaling::none ? bounded_exp(place.w) : turn_by(place.w.im);
    Rotation continued{order, place.half_turn()};
    Rounding round{*nz};
    for (Integer j = 0; j < n; ++j) {
        const ExtendedComplex value = scale * values.i[j];
        cy[j] = round(place.left ? continued.next() * value : value);
    }
    return round.status(z.im);
}

Integer s18dcf_f(double fnu, Complex z, Integer n, Scaling scaling, Complex cy[], Integer *nz)
{
    if (!acceptable(fnu, z, n)) return kBesselArgument;
    *nz = 0;
    if (is_zero(z)) return fill(cy, n, {kLargest, 0.0}, kBesselOverflow);
    if (std::fabs(z.im) > kLargestOscillating) return fill(cy, n, {0.0, 0.0}, kBesselTotalLoss);

    const SplitOrder order{fnu};
    const Continuation place{z};
    const ExtendedComplex w = place.w;
    HalfPlane values;
    values.compute_k(order, n, w);
    Rounding round{*nz};
    if (!place.left) {
        const ExtendedComplex scale = scaling == Scaling::none ? exp(-w) : ExtendedComplex{1.0L};
        for (Integer j = 0; j < n; ++j) cy[j] = round(scale * values.k[j]);
        return round.status(z.im);
    }

    // K(w exp(+-i pi)) = exp(-+i pi nu) K(w) -+ i pi I(w)
    if (values.compute_i(order, n, w) != SequenceStatus::done) return fill(cy, n, {0.0, 0.0}, kBesselNotTerminated);
    const bool plain = scaling == Scaling::none;
    const ExtendedComplex of_k = plain ? exp(-w) : exp(-w * 2.0L);
    const ExtendedComplex of_i =
        (plain ? bounded_exp(w) : ExtendedComplex{1.0L}) * kI * (place.below ? kExtendedPi : -kExtendedPi);
    Rotation continued{order, -place.half_turn()};
    for (Integer j = 0; j < n; ++j) cy[j] = round(continued.next() * (of_k * values.k[j]) + of_i * values.i[j]);
    return round.status(z.im);
}

namespace {

// Upper half-plane: J(z) = exp(i pi nu / 2) I(w), Y(z) = i J(z) - 2 / pi exp(-i pi nu / 2) K(w) with w = -i z; below it the
// conjugates. For positive z the values are real.
struct Turned {
    bool below, real;
    ExtendedComplex w;

    explicit Turned(Complex z)
        : below{std::signbit(z.im)}, real{z.im == 0.0 && z.re > 0.0}, w{std::fabs(z.im),
                                                                        -static_cast<long double>(z.re)}
    {
    }
    ExtendedComplex back(ExtendedComplex value) const { return {value.re, real ? 0.0L : below ? -value.im : value.im}; }
};

} // namespace

Integer s17def_f(double fnu, Complex z, Integer n, Scaling scaling, Complex cy[], Integer *nz)
{
    if (!acceptable(fnu, z, n)) return kBesselArgument;
    if (is_zero(z)) return value_at_zero(fnu, n, cy, nz);
    *nz = 0;
    if (std::fabs(z.re) > kLargestOscillating) return fill(cy, n, {0.0, 0.0}, kBesselTotalLoss);

    const SplitOrder order{fnu};
    const Turned turned{z};
    HalfPlane values;
    if (values.compute_i(order, n, turned.w) != SequenceStatus::done)
        return fill(cy, n, {0.0, 0.0}, kBesselNotTerminated);

    const ExtendedComplex scale = scaling == Scaling::none ? bounded_exp(turned.w) : turn_by(turned.w.im);
    Rotation forwards{order, 1};
    Rounding round{*nz};
    for (Integer j = 0; j < n; ++j) cy[j] = round(turned.back(forwards.next() * (scale * values.i[j])));
    return round.status(z.re);
}

Integer s17dcf_f(double fnu, Complex z, Integer n, Scaling scaling, Complex cy[], Integer *nz)
{
    if (!acceptable(fnu, z, n)) return kBesselArgument;
    *nz = 0;
    if (is_zero(z)) return fill(cy, n, {-kLargest, 0.0}, kBesselOverflow);
    if (std::fabs(z.re) > kLargestOscillating) return fill(cy, n, {0.0, 0.0}, kBesselTotalLoss);

    const SplitOrder order{fnu};
    const Turned turned{z};
    const ExtendedComplex w = turned.w;
    HalfPlane values;
    values.compute_k(order, n, w);
    if (values.compute_i(order, n, w) != SequenceStatus::done) return fill(cy, n, {0.0, 0.0}, kBesselNotTerminated);

    const bool plain = scaling == Scaling::none;
    const ExtendedComplex of_i = kI * (plain ? bounded_exp(w) : turn_by(w.im));
    const ExtendedComplex of_k = exp(plain ? -w : ExtendedComplex{-2.0L * w.re, -w.im}) * (-2.0L / kExtendedPi);
    Rotation forwards{order, 1}, backwards{order, -1};
    Rounding round{*nz};
    for (Integer j = 0; j < n; ++j)
        cy[j] = round(turned.back(forwards.next() * (of_i * values.i[j]) + backwards.next() * (of_k * values.k[j])));
    return round.status(z.re);
}

} // namespace kor::special
