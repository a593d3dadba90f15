// s17alf_f: zeros of Bessel functions of real order and of their derivatives.
//
// The first zero comes from Newton's method, started by Olver's expansion for large order, on quotients of neighbouring
// orders: they are what the recurrence gives without knowing the size of the function. From one zero the differential
// equation leads to the next: the solution that vanishes there, or whose slope does, is known but for a factor, so the
// errors of one stretch do not travel along, and the distance is summed by Taylor series (A. Glaser, X. Liu and V. Rokhlin,
// SIAM J. Sci. Comput. 29 (2007) 1420-1438). All in long double.
#include "special/bessel_zeros.hpp"

#include "special/bessel_order.hpp"

namespace kor::special {

namespace {

constexpr long double kConverged = 0x1p-61L; // of a step of Newton's method, against x
constexpr int kMostSteps = 60;

bool is_slope(ZeroKind kind) { return kind == ZeroKind::j_slope || kind == ZeroKind::y_slope; }
bool is_y(ZeroKind kind) { return kind == ZeroKind::y || kind == ZeroKind::y_slope; }

// J_(nu+1) / J_nu by the recurrence downwards, as i_quotient().
long double j_quotient(long double nu, long double x)
{
    constexpr long double kEnough = 0x1p36L;
    const long double twice_inverse = 2.0L / x;
    long double previous = 0.0L, current = 1.0L;
    int n = 0;
    while (std::fabs(current) < kEnough || nu + n < x) {
        ++n;
        const long double next = current * (twice_inverse * (nu + n)) - previous;
        previous = current;
        current = next;
    }
    long double upper = 0.0L, lower = 1.0L;
    for (; n > 0; --n) {
        const long double next = lower * (twice_inverse * (nu + n)) - upper;
        upper = lower;
        lower = next;
    }
    return upper / lower;
}

// y' / y of the function at x.
long double logarithmic_slope(double a, bool of_y, long double x)
{
    const long double nu = a;
    if (!of_y) return nu / x - j_quotient(nu, x);
    long double y[2];
    real_y_sequence(SplitOrder{a}, 2, x, y);
    return nu / x - y[1] / y[0];
}

// The first zero for order a > 1/2 or so by its expansion in powers of a^(-2/3) (Olver; Abramowitz and Stegun 9.5.14 to
// 9.5.21), for smaller orders by what bounds and values at 0 suggest.
long double first_guess(double a, ZeroKind kind)
{
    constexpr double kExpansionFrom = 0.5;
    struct Start {
        double olver[4];        // of a^(1/3), a^(-1/3), a^(-1), a^(-5/3)
        double at_zero, growth; // for small orders
    };
    static constexpr Start kStarts[] = {{{1.8557571, 1.033150, -0.00397, -0.0908}, 2.40483, 1.5},
                                        {{0.9315768, 0.260351, 0.01198, -0.0060}, 0.89358, 1.27},
                                        {{0.8086165, 0.072490, -0.05097, 0.0094}, 0.0, 0.0},
                                        {{1.8210980, 0.940007, -0.05808, -0.0540}, 2.19714, 1.4}};
    const Start &start = kStarts[static_cast<int>(kind) - 1];
    if (a < kExpansionFrom)
        return kind == ZeroKind::j_slope ? std::sqrt(a * (a + 2.0)) : start.at_zero + start.growth * a;
    const double root = std::cbrt(a);
    return a + root * start.olver[0] + start.olver[1] / root + start.olver[2] / a + start.olver[3] / (a * root * root);
}

bool first_zero(double a, ZeroKind kind, long double &x)
{
    constexpr long double kSettled = 0x1p-50L; // where a step that does not shrink any more is the rounding error
    const long double square = static_cast<long double>(a) * a;
    long double previous = HUGE_VALL;
    x = first_guess(a, kind);
    for (int step = 0; step < kMostSteps; ++step) {
        const long double slope = logarithmic_slope(a, is_y(kind), x);
        // For y: y / y'. For y': with h = y' / y, h' = -(1 - a^2/x^2) - h/x - h^2.
        const long double correction =
            is_slope(kind) ? slope / (1.0L - square / (x * x) + slope / x + slope * slope) : -1.0L / slope;
        const long double bounded = std::fmax(-0.3L * x, std::fmin(0.3L * x, correction));
        const long double size = std::fabs(bounded);
        x += bounded;
        if (size <= kConverged * x || (size <= kSettled * x && size >= 0.5L * previous)) return true;
        previous = size;
    }
    return false;
}

// A solution of x^2 y'' + x y' + (x^2 - a^2) y = 0, carried along the axis by its Taylor series.
class Solution {
  public:
    // The one that vanishes at a zero, or whose slope does.
    Solution(double a, long double zero, bool of_slope) : a_{a}, of_slope_{of_slope} { restart(zero, 0.0L); }

    // Moves to the next zero of the same kind.
    bool advance()
    {
        long double before = 0.0L;
        for (int step = 0; step < kMostSteps; ++step) {
            const long double h = expand();
            const Value at_end = sum(h);
            const long double after = wanted(at_end);
            if (before * after < 0.0L) return find_zero(h * before / (before - after));
            x_ += h;
            value_ = at_end;
            before = after;
        }
        return false;
    }
    long double x() const { return x_; }

  private:
    struct Value {
        long double y, slope;
    };
    static constexpr int kMostCoefficients = 64;

    // At a zero x + rest, where x + rest rounds to x: without the rest many small errors would make a large one.
    void restart(long double x, long double rest)
    {
        x_ = x;
        value_ = of_slope_ ? Value{1.0L, weight(x) * rest} : Value{-rest, 1.0L};
    }
    // -y'' / y where y' is 0.
    long double weight(long double x) const
    {
        const long double quotient = a_ / x;
        return 1.0L - quotient * quotient;
    }
    long double wanted(Value v) const { return of_slope_ ? v.slope : v.y; }

    // Coefficients about x, and how far they are to be used: a good third of a half-wave, and well inside the circle of
    // convergence, whose radius is x.
    long double expand()
    {
        constexpr long double kRadians = 1.3L, kOfRadius = 0.35L;
        const long double order = a_, quotient = order / x_, turning = std::cbrt(1.0L / std::fmax(order, 1.0L));
        const long double frequency = std::sqrt(std::fmax(1.0L - quotient * quotient, turning * turning));
        const long double wanted = std::fmin(kOfRadius * x_, kRadians / frequency);
        const long double h = (x_ + wanted) - x_; // x_ + h is exact

        // In t = (x - x_) / h, so that the coefficients themselves tell when to stop.
        const long double ratio = h / x_, square = ratio * ratio, h_square = h * h;
        c_[0] = value_.y;
        c_[1] = value_.slope * h;
        int small = 0;
        for (count_ = 2; count_ < kMostCoefficients && small < 4; ++count_) {
            const int k = count_ - 2;
            long double sum =
                ratio * ((k + 1) * (2 * k + 1)) * c_[k + 1] + (square * (k * k - order * order) + h_square) * c_[k];
            if (k >= 1) sum += 2.0L * h_square * ratio * c_[k - 1];
            if (k >= 2) sum += h_square * square * c_[k - 2];
            c_[count_] = -sum / ((k + 2) * (k + 1));
            small = std::fabs(c_[count_]) < 0x1p-70L * (std::fabs(c_[0]) + std::fabs(c_[1])) ? small + 1 : 0;
        }
        h_ = h;
        return h;
    }

    Value sum(long double distance) const
    {
        const long double t = distance / h_;
        long double y = 0.0L, slope = 0.0L;
        for (int k = count_ - 1; k >= 0; --k) {
            slope = slope * t + y;
            y = y * t + c_[k];
        }
        return {y, slope / h_};
    }

    // Newton's method on the series, of third order: the differential equation gives the next derivative.
    bool find_zero(long double h)
    {
        for (int step = 0; step < kMostSteps; ++step) {
            const Value at = sum(h);
            const long double x = x_ + h, second = -at.slope / x - weight(x) * at.y;
            long double correction;
            if (of_slope_) {
                correction = at.slope / second;
            } else {
                const long double newton = at.y / at.slope;
                correction = newton / (1.0L - 0.5L * newton * second / at.slope);
            }
            h -= correction;
            if (!(std::fabs(correction) > kConverged * x)) {
                const long double zero = x_ + h;
                restart(zero, h - (zero - x_));
                return std::isfinite(x_);
            }
        }
        return false;
    }

    double a_;
    bool of_slope_;
    long double x_, h_ = 0.0L;
    Value value_{};
    int count_ = 0;
    long double c_[kMostCoefficients];
};

} // namespace

bool s17alf_f(double a, Integer n, ZeroKind kind, double x[])
{
    Integer found = 0;
    if (kind == ZeroKind::j_slope && a == 0.0) {
        x[found++] = 0.0;
        kind = ZeroKind::j; // J0' = -J1
        a = 1.0;
        if (found == n) return true;
    }
    long double zero = 0.0L;
    if (!first_zero(a, kind, zero)) return false;
    Solution solution{a, zero, is_slope(kind)};
    x[found++] = static_cast<double>(zero);
    while (found < n) {
        if (!solution.advance()) return false;
        x[found++] = static_cast<double>(solution.x());
    }
    return true;
}

} // namespace kor::special
