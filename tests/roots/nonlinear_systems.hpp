// The systems of More, Garbow and Hillstrom, ACM Trans. Math. Softw. 7 (1981) 17-41, with their starting points. For the
// tests and the benchmark of the solvers; Jacobians by extrapolated central differences.
#pragma once

#include <algorithm>
#include <cmath>
#include <numbers>
#include <vector>

namespace kor::testing {

using Vector = std::vector<double>;

struct NonlinearSystem {
    const char *name;
    int n;
    void (*f)(int n, const double *x, double *fvec);
    Vector (*start)(int n);
};

namespace mgh {

inline double square(double x) { return x * x; }

inline void rosenbrock(int, const double *x, double *f)
{
    f[0] = 1.0 - x[0];
    f[1] = 10.0 * (x[1] - x[0] * x[0]);
}

inline void powell_singular(int, const double *x, double *f)
{
    f[0] = x[0] + 10.0 * x[1];
    f[1] = std::sqrt(5.0) * (x[2] - x[3]);
    f[2] = square(x[1] - 2.0 * x[2]);
    f[3] = std::sqrt(10.0) * square(x[0] - x[3]);
}

inline void powell_badly_scaled(int, const double *x, double *f)
{
    f[0] = 1e4 * x[0] * x[1] - 1.0;
    f[1] = std::exp(-x[0]) + std::exp(-x[1]) - 1.0001;
}

inline void wood(int, const double *x, double *f)
{
    const double a = x[1] - x[0] * x[0];
    const double b = x[3] - x[2] * x[2];
    f[0] = -200.0 * x[0] * a - (1.0 - x[0]);
    f[1] = 200.0 * a + 20.2 * (x[1] - 1.0) + 19.8 * (x[3] - 1.0);
    f[2] = -180.0 * x[2] * b - (1.0 - x[2]);
    f[3] = 180.0 * b + 20.2 * (x[3] - 1.0) + 19.8 * (x[1] - 1.0);
}

inline void helical_valley(int, const double *x, double *f)
{
    double turn = x[0] == 0.0 ? std::copysign(0.25, x[1]) : std::atan(x[1] / x[0]) / (2.0 * std::numbers::pi);
    if (x[0] < 0.0) turn += 0.5;
    f[0] = 10.0 * (x[2] - 10.0 * turn);
    f[1] = 10.0 * (std::hypot(x[0], x[1]) - 1.0);
    f[2] = x[2];
}

inline void watson(int n, const double *x, double *f)
{
    std::fill(f, f + n, 0.0);
    for (int i = 1; i <= 29; ++i) {
        const double t = i / 29.0;
        double sum1 = 0.0, sum2 = 0.0, power = 1.0;
        for (int j = 1; j < n; ++j, power *= t) sum1 += j * power * x[j];
        power = 1.0;
        for (int j = 0; j < n; ++j, power *= t) sum2 += power * x[j];
        const double residual = sum1 - sum2 * sum2 - 1.0;
        power = 1.0 / t;
        for (int k = 0; k < n; ++k, power *= t) f[k] += power * (k - 2.0 * t * sum2) * residual;
    }
    const double residual = x[1] - x[0] * x[0] - 1.0;
    f[0] += x[0] * (1.0 - 2.0 * residual);
    f[1] += residual;
}

inline void chebyquad(int n, const double *x, double *f)
{
    std::fill(f, f + n, 0.0);
    for (int j = 0; j < n; ++j) {
        double before = 1.0, now = 2.0 * x[j] - 1.0;
        const double twice = 2.0 * now;
        for (int i = 0; i < n; ++i) {
            f[i] += now;
            const double next = twice * now - before;
            before = now;
            now = next;
        }
    }
    for (int i = 0; i < n; ++i) {
        f[i] /= n;
        if (i % 2 == 1) f[i] += 1.0 / (square(i + 1.0) - 1.0);
    }
}

inline void brown_almost_linear(int n, const double *x, double *f)
{
    double sum = -(n + 1.0), product = 1.0;
    for (int j = 0; j < n; ++j) {
        sum += x[j];
        product *= x[j];
    }
    for (int j = 0; j < n; ++j) f[j] = x[j] + sum;
    f[n - 1] = product - 1.0;
}

inline void discrete_boundary_value(int n, const double *x, double *f)
{
    const double h = 1.0 / (n + 1.0);
    for (int k = 0; k < n; ++k) {
        const double left = k > 0 ? x[k - 1] : 0.0;
        const double right = k < n - 1 ? x[k + 1] : 0.0;
        f[k] = 2.0 * x[k] - left - right + 0.5 * h * h * std::pow(x[k] + (k + 1.0) * h + 1.0, 3.0);
    }
}

inline void discrete_integral(int n, const double *x, double *f)
{
    const double h = 1.0 / (n + 1.0);
    const auto cube = [&](int j) { return std::pow(x[j] + (j + 1.0) * h + 1.0, 3.0); };
    for (int k = 0; k < n; ++k) {
        const double t = (k + 1.0) * h;
        double below = 0.0, above = 0.0;
        for (int j = 0; j <= k; ++j) below += (j + 1.0) * h * cube(j);
        for (int j = k + 1; j < n; ++j) above += (1.0 - (j + 1.0) * h) * cube(j);
        f[k] = x[k] + 0.5 * h * ((1.0 - t) * below + t * above);
    }
}

inline void trigonometric(int n, const double *x, double *f)
{
    double sum = 0.0;
    for (int j = 0; j < n; ++j) sum += std::cos(x[j]);
    for (int k = 0; k < n; ++k) f[k] = (n + k + 1.0) - std::sin(x[k]) - sum - (k + 1.0) * std::cos(x[k]);
}

inline void variably_dimensioned(int n, const double *x, double *f)
{
    double sum = 0.0;
    for (int j = 0; j < n; ++j) sum += (j + 1.0) * (x[j] - 1.0);
    for (int k = 0; k < n; ++k) f[k] = x[k] - 1.0 + (k + 1.0) * sum * (1.0 + 2.0 * sum * sum);
}

inline void broyden_tridiagonal(int n, const double *x, double *f)
{
    for (int k = 0; k < n; ++k) {
        const double left = k > 0 ? x[k - 1] : 0.0;
        const double right = k < n - 1 ? x[k + 1] : 0.0;
        f[k] = (3.0 - 2.0 * x[k]) * x[k] - left - 2.0 * right + 1.0;
    }
}

inline void broyden_banded(int n, const double *x, double *f)
{
    for (int k = 0; k < n; ++k) {
        double sum = 0.0;
        for (int j = std::max(0, k - 5); j <= std::min(n - 1, k + 1); ++j)
            if (j != k) sum += x[j] * (1.0 + x[j]);
        f[k] = x[k] * (2.0 + 5.0 * x[k] * x[k]) + 1.0 - sum;
    }
}

inline Vector grid_start(int n, double (*value)(double t, int n))
{
    Vector x(n);
    for (int j = 0; j < n; ++j) x[j] = value((j + 1.0) / (n + 1.0), n);
    return x;
}

} // namespace mgh

inline const std::vector<NonlinearSystem> &nonlinear_systems()
{
    using namespace mgh;
    static const std::vector<NonlinearSystem> all = {
        {"Rosenbrock", 2, rosenbrock,
         [](int) {
             return Vector{-1.2, 1.0};
         }},
        {"Powell singular", 4, powell_singular,
         [](int) {
             return Vector{3.0, -1.0, 0.0, 1.0};
         }},
        {"Powell badly scaled", 2, powell_badly_scaled,
         [](int) {
             return Vector{0.0, 1.0};
         }},
        {"Wood", 4, wood,
         [](int) {
             return Vector{-3.0, -1.0, -3.0, -1.0};
         }},
        {"helical valley", 3, helical_valley,
         [](int) {
             return Vector{-1.0, 0.0, 0.0};
         }},
        {"Watson 6", 6, watson, [](int n) { return Vector(n, 0.0); }},
        {"Watson 9", 9, watson, [](int n) { return Vector(n, 0.0); }},
        {"Chebyquad 5", 5, chebyquad, [](int n) { return grid_start(n, [](double t, int) { return t; }); }},
        {"Chebyquad 6", 6, chebyquad, [](int n) { return grid_start(n, [](double t, int) { return t; }); }},
        {"Chebyquad 7", 7, chebyquad, [](int n) { return grid_start(n, [](double t, int) { return t; }); }},
        {"Chebyquad 9", 9, chebyquad, [](int n) { return grid_start(n, [](double t, int) { return t; }); }},
        {"Brown almost-linear 10", 10, brown_almost_linear, [](int n) { return Vector(n, 0.5); }},
        {"Brown almost-linear 30", 30, brown_almost_linear, [](int n) { return Vector(n, 0.5); }},
        {"Brown almost-linear 40", 40, brown_almost_linear, [](int n) { return Vector(n, 0.5); }},
        {"discrete boundary value", 10, discrete_boundary_value,
         [](int n) { return grid_start(n, [](double t, int) { return t * (t - 1.0); }); }},
        {"discrete boundary value 100", 100, discrete_boundary_value,
         [](int n) { return grid_start(n, [](double t, int) { return t * (t - 1.0); }); }},
        {"discrete integral", 10, discrete_integral,
         [](int n) { return grid_start(n, [](double t, int) { return t * (t - 1.0); }); }},
        {"trigonometric", 10, trigonometric, [](int n) { return Vector(n, 1.0 / n); }},
        {"variably dimensioned", 10, variably_dimensioned,
         [](int n) {
             Vector x(n);
             for (int j = 0; j < n; ++j) x[j] = 1.0 - (j + 1.0) / n;
             return x;
         }},
        {"Broyden tridiagonal", 10, broyden_tridiagonal, [](int n) { return Vector(n, -1.0); }},
        {"Broyden tridiagonal 100", 100, broyden_tridiagonal, [](int n) { return Vector(n, -1.0); }},
        {"Broyden banded", 10, broyden_banded, [](int n) { return Vector(n, -1.0); }},
    };
    return all;
}

// The standard starting point times 1, 10, 100; where it is zero, a vector of that factor.
inline Vector scaled_start(const NonlinearSystem &system, double factor)
{
    Vector x = system.start(system.n);
    const bool zero = std::all_of(x.begin(), x.end(), [](double v) { return v == 0.0; });
    for (double &v : x) v = zero && factor != 1.0 ? factor : factor * v;
    return x;
}

// Central differences with Richardson's extrapolation: good to about ten digits.
inline void difference_jacobian(const NonlinearSystem &system, const double *x, double *jacobian, int ld)
{
    const int n = system.n;
    Vector at(x, x + n), plus(n), minus(n), plus2(n), minus2(n);
    for (int j = 0; j < n; ++j) {
        const double h = 1e-3 * std::max(1e-3, std::fabs(x[j]));
        const auto evaluate = [&](double shift, Vector &f) {
            at[j] = x[j] + shift;
            system.f(n, at.data(), f.data());
        };
        evaluate(h, plus), evaluate(-h, minus), evaluate(2.0 * h, plus2), evaluate(-2.0 * h, minus2);
        at[j] = x[j];
        for (int i = 0; i < n; ++i)
            jacobian[i * ld + j] = (8.0 * (plus[i] - minus[i]) - (plus2[i] - minus2[i])) / (12.0 * h);
    }
}

inline double norm2(const Vector &v)
{
    double largest = 0.0, sum = 0.0;
    for (const double x : v) largest = std::max(largest, std::fabs(x));
    if (!(largest > 0.0)) return largest;
    for (const double x : v) sum += (x / largest) * (x / largest);
    return largest * std::sqrt(sum);
}

} // namespace kor::testing
