// All zeros of a polynomial of any degree.
//
// One zero after the other, smallest first: Laguerre's iteration on what is left of the polynomial, then deflation. The
// start comes from the Newton polygon (Bini, Numer. Algorithms 13 (1996) 179-200). The deflation is composite (Peters and
// Wilkinson, J. Inst. Maths Applics 8 (1971) 16-35): coefficients of the quotient come from both ends and meet where the
// terms of the polynomial are largest at the zero, which keeps the product of all factors close to the polynomial whatever
// the order of the zeros. Zeros are never improved on the original polynomial: within a cluster only the whole set is well
// determined, and single corrections would spoil it.
#include "roots/polynomial_zeros.hpp"

#include <algorithm>
#include <cmath>
#include <limits>
#include <type_traits>

namespace kor::roots {

namespace {

constexpr Extended kMinusInfinity = -std::numeric_limits<Extended>::infinity();
constexpr Extended kUnit = std::numeric_limits<Extended>::epsilon() / 2;
constexpr int kEvaluations = 100;     // Laguerre's method takes about 5 for a simple zero, 20 towards a cluster
constexpr int kFactorSteps = 2;       // of Bairstow's method, from a factor that is right to half the digits
constexpr Extended kFarthest = 1e-6L; // a relative correction larger than this is no improvement of such a factor
constexpr Extended kCloseTogether =
    0.01L;                 // relative distance from the real axis within which a pair is improved as one
constexpr int kStarts = 8; // other angles, should one start fail
constexpr Extended kFirstAngle = 0.7L;
constexpr Extended kAngleStep = 2.399963229728653L; // the golden angle: starts never line up with symmetric zeros

// What an evaluation tells: p'/p and p''/p, the size of p, and whether p is lost in rounding errors.
struct Logarithmic {
    ExtendedComplex first;
    ExtendedComplex second;
    Extended log_modulus; // to base 2
    bool vanishes;
};

// The logarithm to base 2 within 0.09, for coefficients: their size is all that matters. Minus infinity for 0.
Extended rough_log2(Extended x)
{
    if (x == 0.0L) return kMinusInfinity;
    int exponent;
    const Extended mantissa = std::frexp(x, &exponent);
    return static_cast<Extended>(exponent) + 2.0L * mantissa - 2.0L;
}

// x^2 + p x + q.
struct Quadratic {
    Extended p;
    Extended q;
};

template <class Coefficient>
class RemainingPolynomial {
  public:
    RemainingPolynomial(Integer n, Coefficient *b) : degree_{n}, b_{b} {}

    Integer degree() const { return degree_; }
    Coefficient coefficient(Integer k) const { return b_[k]; }

    void divide_by_z()
    {
        std::copy(b_ + 1, b_ + degree_ + 1, b_);
        --degree_;
    }

    // Outside the unit circle the reversed polynomial is evaluated at 1/z, so that no power can overflow.
    // The value counts as zero when it is within `slack` times its rounding error.
    Logarithmic evaluate(ExtendedComplex z, Extended slack = 1.0L) const
    {
        if (square_modulus(z) <= 1.0L) return horner(z, slack, [this](Integer k) { return b_[degree_ - k]; });
        const ExtendedComplex w = ExtendedComplex{1.0L} / z;
        const Logarithmic reversed = horner(w, slack, [this](Integer k) { return b_[k]; });
        const Extended m = static_cast<Extended>(degree_);
        const ExtendedComplex wq = w * reversed.first;
        const ExtendedComplex first = w * (ExtendedComplex{m} - wq);
        const ExtendedComplex second =
            w * w * (ExtendedComplex{m * (m - 1.0L)} - (2.0L * (m - 1.0L)) * wq + w * w * reversed.second);
        return {first, second, reversed.log_modulus - m * std::log2(modulus(w)), reversed.vanishes};
    }

    // Least slope of the Newton polygon at its small end: about the modulus of the smallest zero.
    Extended smallest_modulus() const
    {
        const Extended last = rough_log2(modulus(b_[0]));
        Extended slope = std::numeric_limits<Extended>::infinity();
        for (Integer k = 1; k <= degree_; ++k)
            if (const Extended size = modulus(b_[k]); size > 0.0L)
                slope = std::min(slope, (last - rough_log2(size)) / static_cast<Extended>(k));
        return std::exp2(slope);
    }

    // Takes off a zero.
    void deflate(Coefficient z)
    {
        const Integer join = join_of_one(std::log2(modulus(z)));
        // b_k = c_(k-1) - z c_k, from the top down to the join, from the bottom up to it.
        Coefficient above = b_[degree_];
        for (Integer k = degree_ - 1; k >= join; --k) {
            const Coefficient next = b_[k] + z * above;
            b_[k] = above;
            above = next;
        }
        Coefficient below = join > 0 ? -b_[0] / z : Coefficient{};
        for (Integer k = 0; k < join; ++k) {
            const Coefficient next = (below - b_[k + 1]) / z;
            b_[k] = below;
            below = next;
        }
        --degree_;
    }

    // Improves a factor of a real polynomial by Bairstow's method (L. Bairstow, Applied Aerodynamics, 1920). The factor of
    // two zeros close to each other is well determined where they themselves are not.
    Quadratic improved(Quadratic factor) const requires std::is_same_v<Coefficient, Extended>
    {
        // Zeros outside the unit circle are improved as their reciprocals: see evaluate().
        if (std::fabs(factor.q) <= 1.0L) return bairstow(factor, [this](Integer k) { return b_[k]; });
        const Quadratic reversed =
            bairstow({factor.p / factor.q, 1.0L / factor.q}, [this](Integer k) { return b_[degree_ - k]; });
        return {reversed.p / reversed.q, 1.0L / reversed.q};
    }

    // Takes off two zeros of a real polynomial.
    void deflate(Quadratic factor) requires std::is_same_v<Coefficient, Extended>
    {
        const auto [p, q] = factor;
        const Integer join = join_of_pair(0.5L * std::log2(std::fabs(q)));
        // b_k = c_(k-2) + p c_(k-1) + q c_k. The upper part of the quotient stands two places too high at first, where it
        // meets no coefficient that is still wanted; the two coefficients at the join are not used.
        Extended after = 0.0L, next_after = 0.0L; // c_(k+1), c_(k+2)
        for (Integer k = degree_ - 2; k >= join; --k) {
            const Extended c = b_[k + 2] - p * after - q * next_after;
            next_after = after;
            after = b_[k + 2] = c;
        }
        Extended before = 0.0L, next_before = 0.0L; // c_(k-1), c_(k-2)
        for (Integer k = 0; k < join; ++k) {
            const Extended c = (b_[k] - p * before - next_before) / q;
            next_before = before;
            before = b_[k] = c;
        }
        std::copy(b_ + join + 2, b_ + degree_ + 1, b_ + join);
        degree_ -= 2;
    }

  private:
    template <class At>
    Quadratic bairstow(Quadratic factor, At at) const
    {
        for (int i = 0; i < kFactorSteps; ++i) {
            Extended d1 = 0.0L, d2 = 0.0L;            // the quotient, and at last the remainder d1 (x + p) + d
            Extended e1 = 0.0L, e2 = 0.0L, e3 = 0.0L; // the same of the quotient's division
            for (Integer k = degree_; k >= 1; --k) {
                const Extended d = at(k) - factor.p * d1 - factor.q * d2;
                d2 = d1;
                d1 = d;
                const Extended e = d - factor.p * e1 - factor.q * e2;
                e3 = e2;
                e2 = e1;
                e1 = e;
            }
            const Extended d = at(0) - factor.p * d1 - factor.q * d2;
            const Extended determinant = e2 * e2 - e3 * e1;
            const Extended dp = (d1 * e2 - d * e3) / determinant;
            const Extended dq = (d * e2 - d1 * e1) / determinant;
            if (!(std::fabs(dp) * std::sqrt(std::fabs(factor.q)) + std::fabs(dq) <= kFarthest * std::fabs(factor.q)))
                break;
            factor.p += dp;
            factor.q += dq;
        }
        return factor;
    }

    // p, p' and p''/2 together; `at(k)` is the k-th coefficient from the top.
    template <class At>
    Logarithmic horner(ExtendedComplex z, Extended slack, At at) const
    {
        ExtendedComplex p = at(0), d{}, s{};
        const Extended size = modulus(z);
        Extended bound = 0.5L * one_norm(p);
        for (Integer k = 1; k <= degree_; ++k) {
            s = z * s + d;
            d = z * d + p;
            p = z * p + at(k);
            bound = size * bound + one_norm(p);
        }
        // Running error of a Horner scheme in complex arithmetic (D. A. Adams, Comm. ACM 10 (1967) 655-658).
        const Extended rounding = 4.0L * kUnit * bound;
        const Extended size_of_p = modulus(p);
        if (!(size_of_p > slack * rounding)) return {{}, {}, 0.0L, true};
        return {d / p, 2.0L * (s / p), std::log2(size_of_p), false};
    }

    // Size of a term at a point whose modulus has this logarithm.
    Extended log_term(Integer k, Extended log_size) const
    {
        return rough_log2(modulus(b_[k])) + static_cast<Extended>(k) * log_size;
    }

    // Where the two halves of a quotient meet an equation is not satisfied exactly: the largest term bears that best.
    Integer join_of_one(Extended log_size) const
    {
        Integer join = 0;
        Extended height = kMinusInfinity;
        for (Integer k = 0; k <= degree_; ++k) {
            const Extended term = log_term(k, log_size);
            if (term > height) {
                height = term;
                join = k;
            }
        }
        return join;
    }

    // A quadratic factor leaves out two equations, next to each other. At a zero there are at least two large terms: the
    // join lies between them, for beyond them even small coefficients decide over zeros of another size.
    Integer join_of_pair(Extended log_size) const
    {
        const Extended threshold =
            log_term(join_of_one(log_size), log_size) - std::log2(2.0L * static_cast<Extended>(degree_ + 1));
        Integer first = 0, last = degree_;
        while (log_term(first, log_size) < threshold) ++first;
        while (log_term(last, log_size) < threshold) --last;
        Integer join = std::min(first, degree_ - 1);
        Extended height = kMinusInfinity;
        for (Integer k = first; k < last; ++k) {
            const Extended lesser = std::min(log_term(k, log_size), log_term(k + 1, log_size));
            if (lesser > height) {
                height = lesser;
                join = k;
            }
        }
        return join;
    }

    Integer degree_;
    Coefficient *b_;
};

// Laguerre's step for degree m.
ExtendedComplex laguerre_step(Extended m, const Logarithmic &l)
{
    const ExtendedComplex h = l.first * l.first - l.second;
    const ExtendedComplex root = square_root((m - 1.0L) * (m * h - l.first * l.first));
    const ExtendedComplex plus = l.first + root, minus = l.first - root;
    return ExtendedComplex{m} / (square_modulus(plus) >= square_modulus(minus) ? plus : minus);
}

// Iterates from one start. False if it does not settle.
//
// A step that does not make |p| smaller is halved and turned: in the middle of a ring of zeros, which is what rounding
// makes of a multiple one, both derivatives are noise, and plain steps would swing across the ring for ever.
template <class Coefficient>
bool iterate(const RemainingPolynomial<Coefficient> &p, ExtendedComplex &z)
{
    const ExtendedComplex turn{std::cos(kAngleStep), std::sin(kAngleStep)};
    const auto m = static_cast<Extended>(p.degree());
    Extended best = std::numeric_limits<Extended>::infinity();
    ExtendedComplex best_z = z;
    ExtendedComplex step;
    for (int i = 0; i < kEvaluations; ++i) {
        const Logarithmic l = p.evaluate(z);
        if (l.vanishes) return true;
        if (l.log_modulus < best) {
            best = l.log_modulus;
            best_z = z;
            step = laguerre_step(m, l);
            if (!(modulus(step) < std::numeric_limits<Extended>::infinity()))
                step = 0.5L * z; // both derivatives vanish
        } else {
            step = 0.5L * (step * turn);
        }
        if (modulus(step) <= kUnit * modulus(best_z)) {
            z = best_z;
            return true;
        }
        z = best_z - step;
    }
    return false;
}

template <class Coefficient>
bool find_one(const RemainingPolynomial<Coefficient> &p, ExtendedComplex &z)
{
    const Extended radius = p.smallest_modulus();
    for (int start = 0; start < kStarts; ++start) {
        const Extended angle = kFirstAngle + kAngleStep * static_cast<Extended>(p.degree() + start);
        z = {radius * std::cos(angle), radius * std::sin(angle)};
        if (iterate(p, z)) return true;
    }
    return false;
}

// The zeros as doubles, and what went wrong with the first that is none.
class Output {
  public:
    explicit Output(Complex *z) : next_{z} {}

    void put(ExtendedComplex z)
    {
        const Complex rounded{static_cast<double>(z.re), static_cast<double>(z.im)};
        if (!std::isfinite(rounded.re) || !std::isfinite(rounded.im))
            note(PolynomialStatus::overflow);
        else if (rounded.re == 0.0 && rounded.im == 0.0 && square_modulus(z) != 0.0L)
            note(PolynomialStatus::underflow);
        else
            *next_ = rounded;
        ++next_;
    }
    PolynomialStatus status() const { return status_; }

  private:
    void note(PolynomialStatus status)
    {
        if (status_ == PolynomialStatus::found) status_ = status;
    }

    Complex *next_;
    PolynomialStatus status_ = PolynomialStatus::found;
};

// Both zeros of b2 z^2 + b1 z + b0, without cancellation.
void put_quadratic(Output &output, ExtendedComplex b2, ExtendedComplex b1, ExtendedComplex b0)
{
    const ExtendedComplex half = -0.5L * b1;
    const ExtendedComplex root = square_root(half * half - b2 * b0);
    const ExtendedComplex plus = half + root, minus = half - root;
    const ExtendedComplex larger = square_modulus(plus) >= square_modulus(minus) ? plus : minus;
    if (square_modulus(larger) == 0.0L) {
        output.put({});
        output.put({});
        return;
    }
    output.put(b0 / larger);
    output.put(larger / b2);
}

void put_quadratic(Output &output, Extended b2, Extended b1, Extended b0)
{
    const Extended half = -0.5L * b1;
    const Extended discriminant = half * half - b2 * b0;
    if (discriminant < 0.0L) {
        const Extended imaginary = std::fabs(std::sqrt(-discriminant) / b2);
        output.put({half / b2, imaginary});
        output.put({half / b2, -imaginary});
        return;
    }
    const Extended larger = half + std::copysign(std::sqrt(discriminant), half);
    output.put(larger == 0.0L ? 0.0L : b0 / larger);
    output.put(larger / b2);
}

void take_off(RemainingPolynomial<ExtendedComplex> &p, ExtendedComplex z, Output &output)
{
    p.deflate(z);
    output.put(z);
}

void take_off(RemainingPolynomial<Extended> &p, ExtendedComplex z, Output &output)
{
    // Real, if the real part alone is as good a zero: within what the error of z itself can do to the value.
    const Extended slack = 16.0L + static_cast<Extended>(p.degree());
    if (z.im == 0.0L || p.evaluate({z.re}, slack).vanishes) {
        p.deflate(z.re);
        output.put({z.re});
        return;
    }
    Quadratic factor{-2.0L * z.re, square_modulus(z)};
    const bool close_together = std::fabs(z.im) <= kCloseTogether * std::fabs(z.re);
    if (close_together) factor = p.improved(factor);
    p.deflate(factor);
    if (close_together) {
        put_quadratic(output, 1.0L, factor.p, factor.q);
    } else {
        output.put({z.re, std::fabs(z.im)});
        output.put({z.re, -std::fabs(z.im)});
    }
}

template <class Coefficient>
PolynomialStatus all_zeros(Integer n, Coefficient *b, Complex *z)
{
    RemainingPolynomial<Coefficient> p{n, b};
    Output output{z};
    for (;;) {
        while (p.degree() > 0 && modulus(p.coefficient(0)) == 0.0L) {
            p.divide_by_z();
            output.put({});
        }
        if (p.degree() <= 2) break;
        ExtendedComplex zero;
        if (!find_one(p, zero)) return PolynomialStatus::not_converged;
        take_off(p, zero, output);
    }
    if (p.degree() == 2)
        put_quadratic(output, p.coefficient(2), p.coefficient(1), p.coefficient(0));
    else if (p.degree() == 1)
        output.put(-p.coefficient(0) / p.coefficient(1));
    return output.status();
}

} // namespace

PolynomialStatus polynomial_zeros(Integer n, ExtendedComplex *b, Complex *z) { return all_zeros(n, b, z); }

PolynomialStatus polynomial_zeros(Integer n, Extended *b, Complex *z) { return all_zeros(n, b, z); }

} // namespace kor::roots
