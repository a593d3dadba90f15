// How the special functions evaluate: polynomials by Estrin's scheme, and the last steps in numbers of two doubles.
//
// The family's one pattern: a function is a leading part, known to more than double precision, plus a correction that is
// small enough for plain arithmetic. So each approximation keeps its first one to three coefficients as DoubleDouble and
// sums the rest with `polynomial`, whose rounding errors the small factor x^k in front of it pushes below the last bit.
// Everything here gives the same bits on every processor: products are made exact by splitting or by an FMA, never rounded
// by chance.
#pragma once

#include <array>
#include <bit>
#include <cmath>
#include <cstddef>
#include <cstdint>

// Functions this small must vanish in their callers, also where the optimiser thinks them too large.
#define KOR_INLINE [[gnu::always_inline]] inline

namespace kor::special {

// ---------------------------------------------------------------------------------------------------------------------
// Polynomials with plain coefficients
// ---------------------------------------------------------------------------------------------------------------------

namespace detail {

// c[First] + c[First + 1] x + ... with Count terms; powers[k] holds x^(2^k).
template <std::size_t First, std::size_t Count, class T, std::size_t N, class X>
KOR_INLINE constexpr auto estrin(const std::array<T, N> &c, const X *powers)
{
    if constexpr (Count == 1) {
        return c[First];
    } else {
        constexpr std::size_t low = std::bit_floor(Count - 1); // 1 <= low < Count <= 2 low
        return estrin<First, low>(c, powers) +
               powers[std::countr_zero(low)] * estrin<First + low, Count - low>(c, powers);
    }
}

} // namespace detail

// c[0] + c[1] x + ... + c[N-1] x^(N-1), terms combined in pairs: the length of the chain is log2(N), not N. T is double, or
// several of them side by side; x may be complex.
template <class T, std::size_t N, class X>
KOR_INLINE constexpr auto polynomial(const std::array<T, N> &c, X x)
{
    static_assert(N > 0);
    constexpr std::size_t levels = std::bit_width(N - 1) + (N == 1);
    X powers[levels] = {x};
    for (std::size_t k = 1; k < levels; ++k) powers[k] = powers[k - 1] * powers[k - 1];
    return detail::estrin<0, N>(c, powers);
}

// The same for series whose length depends on the argument, by Horner's rule.
inline double polynomial(const double *c, std::size_t n, double x)
{
    double sum = 0.0;
    while (n > 0) sum = sum * x + c[--n];
    return sum;
}

// ---------------------------------------------------------------------------------------------------------------------
// Numbers of two doubles
// ---------------------------------------------------------------------------------------------------------------------

// The unevaluated sum hi + lo; normalised when |lo| <= ulp(hi)/2. Results of the operators below are normalised and good
// to a few units of 2^-104, barring overflow, and underflow of the low parts.
struct DoubleDouble {
    double hi;
    double lo = 0.0;

    KOR_INLINE constexpr double rounded() const { return hi + lo; }
    KOR_INLINE constexpr DoubleDouble operator-() const { return {-hi, -lo}; }
    KOR_INLINE constexpr DoubleDouble scaled(double power_of_two) const
    {
        return {hi * power_of_two, lo * power_of_two};
    }
};

// a + b exactly, for |a| >= |b| (or a = 0).
KOR_INLINE constexpr DoubleDouble fast_two_sum(double a, double b)
{
    const double sum = a + b;
    return {sum, b - (sum - a)};
}

// a + b exactly.
KOR_INLINE constexpr DoubleDouble two_sum(double a, double b)
{
    const double sum = a + b;
    const double b_part = sum - a;
    return {sum, (a - (sum - b_part)) + (b - b_part)};
}

// The upper 26 bits of x, rounded to nearest; the rest, x - upper_half(x), fits in 26 bits as well, so that products of
// halves are exact. |x| must stay a little below the overflow limit.
KOR_INLINE constexpr double upper_half(double x)
{
    constexpr std::uint64_t half_unit = std::uint64_t{1} << 26;
    constexpr std::uint64_t lower_bits = (std::uint64_t{1} << 27) - 1;
    return std::bit_cast<double>((std::bit_cast<std::uint64_t>(x) + half_unit) & ~lower_bits);
}

// a b exactly, for |a b| from 2^-968 up.
KOR_INLINE constexpr DoubleDouble two_product(double a, double b)
{
    const double product = a * b;
#ifdef __FMA__
    return {product, __builtin_fma(a, b, -product)};
#else
    const double a_hi = upper_half(a), a_lo = a - a_hi;
    const double b_hi = upper_half(b), b_lo = b - b_hi;
    return {product, ((a_hi * b_hi - product) + a_hi * b_lo + a_lo * b_hi) + a_lo * b_lo};
#endif
}

// a^2 exactly, likewise.
KOR_INLINE constexpr DoubleDouble two_square(double a)
{
    const double square = a * a;
#ifdef __FMA__
    return {square, __builtin_fma(a, a, -square)};
#else
    const double hi = upper_half(a), lo = a - hi;
    return {square, ((hi * hi - square) + 2.0 * hi * lo) + lo * lo};
#endif
}

KOR_INLINE constexpr DoubleDouble operator+(DoubleDouble a, double b)
{
    const DoubleDouble sum = two_sum(a.hi, b);
    return fast_two_sum(sum.hi, sum.lo + a.lo);
}
KOR_INLINE constexpr DoubleDouble operator+(double a, DoubleDouble b) { return b + a; }

// Safe under cancellation too: the low parts are summed exactly before they are joined.
KOR_INLINE constexpr DoubleDouble operator+(DoubleDouble a, DoubleDouble b)
{
    const DoubleDouble high = two_sum(a.hi, b.hi);
    const DoubleDouble low = two_sum(a.lo, b.lo);
    const DoubleDouble sum = fast_two_sum(high.hi, high.lo + low.hi);
    return fast_two_sum(sum.hi, sum.lo + low.lo);
}
KOR_INLINE constexpr DoubleDouble operator-(DoubleDouble a, DoubleDouble b) { return a + -b; }
KOR_INLINE constexpr DoubleDouble operator-(DoubleDouble a, double b) { return a + -b; }
KOR_INLINE constexpr DoubleDouble operator-(double a, DoubleDouble b) { return -b + a; }

KOR_INLINE constexpr DoubleDouble operator*(DoubleDouble a, double b)
{
    const DoubleDouble product = two_product(a.hi, b);
    return fast_two_sum(product.hi, product.lo + a.lo * b);
}
KOR_INLINE constexpr DoubleDouble operator*(double a, DoubleDouble b) { return b * a; }

KOR_INLINE constexpr DoubleDouble operator*(DoubleDouble a, DoubleDouble b)
{
    const DoubleDouble product = two_product(a.hi, b.hi);
    return fast_two_sum(product.hi, product.lo + (a.hi * b.lo + a.lo * b.hi));
}

KOR_INLINE constexpr DoubleDouble square(DoubleDouble a)
{
    const DoubleDouble product = two_square(a.hi);
    return fast_two_sum(product.hi, product.lo + 2.0 * (a.hi * a.lo));
}

// A first quotient, corrected by the remainder that it leaves; one division serves both.
KOR_INLINE constexpr DoubleDouble operator/(DoubleDouble a, DoubleDouble b)
{
    const double reciprocal = 1.0 / b.hi;
    const double quotient = a.hi * reciprocal;
    const DoubleDouble product = two_product(quotient, b.hi);
    const double remainder = ((a.hi - product.hi) - product.lo) + (a.lo - quotient * b.lo);
    return fast_two_sum(quotient, remainder * reciprocal);
}
KOR_INLINE constexpr DoubleDouble operator/(DoubleDouble a, double b) { return a / DoubleDouble{b}; }
KOR_INLINE constexpr DoubleDouble operator/(double a, DoubleDouble b) { return DoubleDouble{a} / b; }

// a / b for doubles.
KOR_INLINE constexpr DoubleDouble two_quotient(double a, double b) { return DoubleDouble{a} / DoubleDouble{b}; }

// One Newton step on the root of the high part, a > 0.
KOR_INLINE DoubleDouble sqrt(DoubleDouble a)
{
    const double root = std::sqrt(a.hi);
    const DoubleDouble square = two_square(root);
    return fast_two_sum(root, ((a.hi - square.hi) - square.lo + a.lo) / (2.0 * root));
}

// ---------------------------------------------------------------------------------------------------------------------
// Polynomials whose leading coefficients are numbers of two doubles
// ---------------------------------------------------------------------------------------------------------------------

// head[0] + head[1] x + ... + x^H (tail[0] + tail[1] x + ...). The tail is summed in plain arithmetic: its relative error,
// about 2 eps, counts with the weight that x^H tail(x) has in the whole.
template <std::size_t H, std::size_t T>
struct ExtendedPolynomial {
    std::array<DoubleDouble, H> head;
    std::array<double, T> tail;

    KOR_INLINE DoubleDouble operator()(double x) const
    {
        DoubleDouble sum = head[H - 1] + two_product(polynomial(tail, x), x);
        for (std::size_t k = H - 1; k-- > 0;) sum = head[k] + sum * x;
        return sum;
    }
    KOR_INLINE DoubleDouble operator()(DoubleDouble x) const
    {
        DoubleDouble sum = head[H - 1] + x * polynomial(tail, x.hi);
        for (std::size_t k = H - 1; k-- > 0;) sum = head[k] + sum * x;
        return sum;
    }
};

// A sum whose rounding waits: until it is wanted as one double, or as two. `small` is no rounding error: products need both.
struct OpenSum {
    double large, small;

    KOR_INLINE constexpr double rounded() const { return large + small; }
    KOR_INLINE constexpr operator DoubleDouble() const { return fast_two_sum(large, small); }
};

// a b, the large part of a having but 26 bits: exactly with the upper half of b, and the rest.
KOR_INLINE constexpr OpenSum times_split(OpenSum a, DoubleDouble b)
{
    const double b_1 = upper_half(b.hi), b_2 = (b.hi - b_1) + b.lo;
    return {a.large * b_1, a.large * b_2 + a.small * b.hi};
}

// a b for any a.
KOR_INLINE constexpr OpenSum open_product(DoubleDouble a, DoubleDouble b)
{
    const double a_1 = upper_half(a.hi);
    return times_split({a_1, (a.hi - a_1) + a.lo}, b);
}

// a / b by one division: the upper half of the quotient, and the rest from the remainder that this leaves, which is exact.
KOR_INLINE constexpr OpenSum open_quotient(DoubleDouble a, DoubleDouble b)
{
    const double reciprocal = 1.0 / b.hi, quotient = upper_half(a.hi * reciprocal);
    const double b_1 = upper_half(b.hi), b_2 = b.hi - b_1;
    const double remainder = ((a.hi - quotient * b_1) - quotient * b_2) + (a.lo - quotient * b.lo);
    return {quotient, remainder * reciprocal};
}

// head + x tail(x), for functions that stay near their constant term: with |x tail(x)| below |head| / 8 the sum is good to
// 2^-55, without any exact product. head.hi has but 26 bits, so that its product with another short number is exact.
template <std::size_t T>
struct NearConstantPolynomial {
    DoubleDouble head;
    std::array<double, T> tail;

    KOR_INLINE OpenSum open(double x) const { return {head.hi, x * polynomial(tail, x) + head.lo}; }
    KOR_INLINE OpenSum open(DoubleDouble x) const { return open(x.hi + x.lo); }
    KOR_INLINE DoubleDouble operator()(double x) const { return open(x); }
    // The same times `factor`: one exact product, and what is left is small.
    KOR_INLINE OpenSum times(DoubleDouble factor, double x) const
    {
        const double factor_1 = upper_half(factor.hi);
        return times_split({factor_1, (factor.hi - factor_1) + factor.lo}, x);
    }
    // The same for a factor whose large part has but 26 bits.
    KOR_INLINE OpenSum times_split(OpenSum factor, double x) const
    {
        const double rest = x * polynomial(tail, x) + head.lo;
        return {factor.large * head.hi, factor.large * rest + factor.small * (head.hi + rest)};
    }
};

// head + x (slope + tail(x)), |slope x| below |head|, for errors of the size of x^2 2^-53: slope has but 26 bits, so that its
// product with the upper half of x is exact, and tail[0] has the rest of it.
template <std::size_t T>
struct NearLinearPolynomial {
    DoubleDouble head;
    double slope;
    std::array<double, T> tail;

    KOR_INLINE OpenSum open(DoubleDouble x) const
    {
        const double whole = x.hi + x.lo, x_1 = upper_half(whole), x_2 = (x.hi - x_1) + x.lo;
        const DoubleDouble lead = fast_two_sum(head.hi, slope * x_1);
        return {lead.hi, lead.lo + (head.lo + (slope * x_2 + whole * polynomial(tail, whole)))};
    }
};

// ---------------------------------------------------------------------------------------------------------------------
// Functions in pieces
// ---------------------------------------------------------------------------------------------------------------------

// The distance from the centre is exact for a plain argument; a low part of the argument joins it.

// From First on, each binade is cut into 2^CutsLog2 equal pieces, and the function is near constant in each. The piece is
// found from the leading bits of x, and so is its centre.
template <double First, unsigned CutsLog2, std::size_t Pieces, std::size_t Terms>
struct BinadePieces {
    std::array<NearConstantPolynomial<Terms>, Pieces> piece;

    KOR_INLINE OpenSum open(DoubleDouble x) const
    {
        const auto [p, centre] = find(x.hi);
        return p.open((x.hi - centre) + x.lo);
    }
    KOR_INLINE DoubleDouble operator()(DoubleDouble x) const { return open(x); }
    KOR_INLINE OpenSum times(DoubleDouble factor, DoubleDouble x) const
    {
        const auto [p, centre] = find(x.hi);
        return p.times(factor, (x.hi - centre) + x.lo);
    }
    KOR_INLINE OpenSum times_split(OpenSum factor, DoubleDouble x) const
    {
        const auto [p, centre] = find(x.hi);
        return p.times_split(factor, (x.hi - centre) + x.lo);
    }

  private:
    struct Found {
        const NearConstantPolynomial<Terms> &piece;
        double centre;
    };
    KOR_INLINE Found find(double x) const
    {
        constexpr unsigned shift = 52 - CutsLog2;
        constexpr std::uint64_t first = std::bit_cast<std::uint64_t>(First) >> shift;
        const std::uint64_t cell = std::bit_cast<std::uint64_t>(x) >> shift;
        return {piece[cell - first], std::bit_cast<double>(cell << shift | std::uint64_t{1} << (shift - 1))};
    }
};

// The same with pieces of one width, 1/PerUnit, from First on.
template <double First, int PerUnit, std::size_t Pieces, std::size_t Terms,
          template <std::size_t> class Polynomial = NearConstantPolynomial>
struct UniformPieces {
    std::array<Polynomial<Terms>, Pieces> piece;

    KOR_INLINE OpenSum open(DoubleDouble x) const
    {
        const auto [p, centre] = find(x.hi);
        return p.open(DoubleDouble{x.hi - centre, x.lo});
    }
    KOR_INLINE DoubleDouble operator()(DoubleDouble x) const { return open(x); }
    KOR_INLINE OpenSum times(DoubleDouble factor, DoubleDouble x) const
    {
        const auto [p, centre] = find(x.hi);
        return p.times(factor, (x.hi - centre) + x.lo);
    }

  private:
    struct Found {
        const Polynomial<Terms> &piece;
        double centre;
    };
    KOR_INLINE Found find(double x) const
    {
        const int k = static_cast<int>((x - First) * PerUnit);
        return {piece[k], (k + (First * PerUnit + 0.5)) / PerUnit}; // exact
    }
};

} // namespace kor::special
