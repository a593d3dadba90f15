// The stiffness monitor of the Runge-Kutta suite: are the dominant eigenvalues of h J what keeps the steps short?
//
// A nonlinear power iteration with differences of f for products with the Jacobian J: three vectors of one Krylov sequence give
// the quadratic whose roots are the dominant pair of eigenvalues. After L. F. Shampine, Diagnosing stiffness for Runge-Kutta
// methods, SIAM J. Sci. Stat. Comput. 12 (1991) 260-272.
#include <algorithm>
#include <cmath>

#include "frame/constants.hpp"
#include "ode/runge_kutta.hpp"

namespace kor::ode {

namespace {

constexpr Integer kSample = 40; // steps between two looks at the count of failures
constexpr Integer kSampleStart = 10;
constexpr Integer kManyFailures = 10; // among them
constexpr double kSteadyLow = 0.2;    // h/havg outside these bounds: the step is changing, wait
constexpr double kSteadyHigh = 5.0;
constexpr double kFit = 1e-3; // accuracy wanted of the quadratic, and of its roots
constexpr double kMargin = 0.9;

struct Eigenvalues {
    double re1, im1, re2, im2; // the larger first
    double size1() const { return std::hypot(re1, im1); }
    double size2() const { return std::hypot(re2, im2); }
};

// Roots of x^2 + p x + q.
Eigenvalues roots(double p, double q)
{
    const double half = -0.5 * p;
    const double discriminant = half * half - q;
    if (discriminant < 0.0) {
        const double im = std::sqrt(-discriminant);
        return {half, im, half, -im};
    }
    const double larger = half + std::copysign(std::sqrt(discriminant), half);
    return {larger, 0.0, larger != 0.0 ? q / larger : 0.0, 0.0};
}

bool agree(const Eigenvalues &a, const Eigenvalues &b)
{
    const double bound = kFit * a.size1();
    return std::hypot(a.re1 - b.re1, a.im1 - b.im1) <= bound && std::hypot(a.re2 - b.re2, a.im2 - b.im2) <= bound;
}

} // namespace

bool RungeKutta::stiffness_is_due(bool much_work)
{
    if (state_.steps_ok == 0) return false;
    bool due = much_work;
    // A failed step calls for a test as well, but not more often than once a sample: a test costs as much as two steps.
    if (state_.after_failure && state_.steps_ok >= state_.stiff_check) due = true;
    if (state_.steps_ok >= kSampleStart && (state_.steps_ok - kSampleStart) % kSample == 0) {
        if (state_.hard_steps >= kManyFailures) due = true;
        state_.hard_steps = 0;
    }
    if (!due) return false;
    const double ratio = std::fabs(state_.h / state_.havg);
    if (!(kSteadyLow <= ratio && ratio <= kSteadyHigh) || !(work_ahead() > kMuchWork)) return false;
    state_.after_failure = false;
    state_.stiff_check = state_.steps_ok + kSample;
    return true;
}

// h J v, v of unit norm, by a difference of f.
void RungeKutta::jacobian_product(const double *v, double perturbation, double *product)
{
    for (std::size_t i = 0; i < n_; ++i) scratch_[i] = y_[i] + perturbation * v[i];
    (*f_)(state_.tnow, scratch_, product);
    ++state_.fcn_count;
    for (std::size_t i = 0; i < n_; ++i) product[i] = state_.h * ((product[i] - yp_[i]) / perturbation);
}

bool RungeKutta::looks_stiff()
{
    double *v0 = products_, *v1 = v0 + n_, *v2 = v1 + n_;
    // All in units of the error weights.
    const auto dot = [&](const double *a, const double *b) {
        double sum = 0.0;
        for (std::size_t i = 0; i < n_; ++i) {
            const double wt = weight(i);
            sum += (a[i] / wt) * (b[i] / wt);
        }
        return sum;
    };
    const auto normalise = [&](double *v) {
        const double norm = std::sqrt(dot(v, v));
        for (std::size_t i = 0; i < n_; ++i) v[i] /= norm;
        return norm;
    };

    const double y_norm = std::sqrt(dot(y_, y_));
    const double perturbation = std::sqrt(kPrecision) * (y_norm > 0.0 ? y_norm : 1.0);
    std::copy_n(yp_, n_, v0);
    if (dot(v0, v0) == 0.0) std::fill_n(v0, n_, 1.0);
    normalise(v0);

    Eigenvalues before{};
    bool have_before = false;
    const int passes = static_cast<int>(std::clamp(std::lround(pair_.cost * 2.5), 1L, 8L));
    const double negligible = std::cbrt(kPrecision);
    for (int pass = 0; pass < passes; ++pass) {
        jacobian_product(v0, perturbation, v1);
        const double norm1 = normalise(v1);
        if (!(norm1 >= negligible)) return false;
        jacobian_product(v1, perturbation, v2);
        for (std::size_t i = 0; i < n_; ++i) v2[i] *= norm1;
        const double square2 = dot(v2, v2);
        if (!(square2 >= negligible * negligible)) return false;

        // The least squares fit v2 + p v1 + q v0 = 0, where |v0| = 1 and v1 stands for norm1 times a unit vector.
        const double along = dot(v1, v0), b1 = dot(v1, v2), b0 = dot(v0, v2);
        const double determinant = 1.0 - along * along;
        const bool one_direction = determinant <= kFit * kFit;
        const double p1 = one_direction ? -b1 : -(b1 - along * b0) / determinant; // p norm1
        const double q = one_direction ? 0.0 : -(b0 - along * b1) / determinant;
        double residual = 0.0;
        for (std::size_t i = 0; i < n_; ++i) {
            const double rest = (v2[i] + p1 * v1[i] + q * v0[i]) / weight(i);
            residual += rest * rest;
        }
        const bool fits = residual <= kFit * kFit * square2;
        const Eigenvalues pair = roots(p1 / norm1, q);
        if (fits && have_before && agree(pair, before)) {
            const double rho = pair.size1();
            if (pair.re1 > 0.0) return false;
            if (kMargin * rho <= pair.size2() && pair.re2 > 0.0) return false;
            if (std::fabs(pair.re1) * pair_.sector_tangent < std::fabs(pair.im1)) return false;
            return kMargin * pair_.stability_radius <= rho;
        }
        before = pair;
        have_before = fits;
        std::copy_n(v2, n_, v0);
        normalise(v0);
    }
    return false;
}

} // namespace kor::ode
