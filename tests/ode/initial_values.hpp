// Initial value problems for the tests of all integrators, most with known solutions.
#pragma once

#include <cmath>
#include <functional>
#include <limits>
#include <vector>

#include <kor.h>

namespace kor::testing {

using Vector = std::vector<double>;

// A problem, and the count of what an integrator asks of it.
struct InitialValues {
    std::function<void(double t, const double *y, double *yp)> f;
    double t0;
    Vector y0;
    std::function<Vector(double t)> solution{};
    long calls = 0;
    double furthest = -std::numeric_limits<double>::infinity(); // the largest t that f has seen

    Integer neq() const { return static_cast<Integer>(y0.size()); }
    double error(double t, const double *y) const
    {
        double worst = 0.0;
        const Vector exact = solution(t);
        for (std::size_t i = 0; i < exact.size(); ++i) worst = std::max(worst, std::fabs(y[i] - exact[i]));
        return worst;
    }
};

// The right-hand side for the library: comm is the problem.
inline void evaluate(Integer, double t, const double y[], double yp[], void *comm)
{
    auto &problem = *static_cast<InitialValues *>(comm);
    ++problem.calls;
    problem.furthest = std::max(problem.furthest, t);
    problem.f(t, y, yp);
}

inline InitialValues oscillator(double frequency = 1.0)
{
    return {[=](double, const double *y, double *yp) {
                yp[0] = frequency * y[1];
                yp[1] = -frequency * y[0];
            },
            0.0,
            {0.0, 1.0},
            [=](double t) {
                return Vector{std::sin(frequency * t), std::cos(frequency * t)};
            }};
}

// The same problem so many times over, side by side: all copies go the same way, bit by bit.
inline InitialValues copies(const InitialValues &one, int count)
{
    InitialValues many = one;
    const std::size_t n = one.y0.size();
    for (int i = 1; i < count; ++i) many.y0.insert(many.y0.end(), one.y0.begin(), one.y0.end());
    many.f = [=, f = one.f](double t, const double *y, double *yp) {
        for (int i = 0; i < count; ++i) f(t, y + i * n, yp + i * n);
    };
    return many;
}

// y' = y/4 (1 - y/20), which bends from growth to rest.
inline InitialValues logistic()
{
    return {[](double, const double *y, double *yp) { yp[0] = 0.25 * y[0] * (1.0 - y[0] / 20.0); },
            0.0,
            {1.0},
            [](double t) { return Vector{20.0 / (1.0 + 19.0 * std::exp(-0.25 * t))}; }};
}

// The orbit of a body from its pericentre, by Kepler's equation.
inline InitialValues kepler(double e)
{
    return {[](double, const double *y, double *yp) {
                const double r = std::hypot(y[0], y[1]), r3 = r * r * r;
                yp[0] = y[2];
                yp[1] = y[3];
                yp[2] = -y[0] / r3;
                yp[3] = -y[1] / r3;
            },
            0.0,
            {1.0 - e, 0.0, 0.0, std::sqrt((1.0 + e) / (1.0 - e))},
            [=](double t) {
                long double u = t;
                for (int i = 0; i < 100; ++i) u -= (u - e * std::sin(u) - t) / (1.0L - e * std::cos(u));
                const double c = std::cos(u), s = std::sin(u), b = std::sqrt(1.0 - e * e), r = 1.0 - e * c;
                return Vector{c - e, b * s, -s / r, b * c / r};
            }};
}

// y' = sin(t)^2, which vanishes at the start and wherever a long first step might end.
inline InitialValues hidden_slope()
{
    return {[](double t, const double *, double *yp) { yp[0] = std::sin(t) * std::sin(t); },
            0.0,
            {0.0},
            [](double t) { return Vector{0.5 * t - 0.25 * std::sin(2.0 * t)}; }};
}

// y' = -k (y - cos t): stiff when k is large.
inline InitialValues relaxation(double k)
{
    return {[=](double t, const double *y, double *yp) { yp[0] = -k * (y[0] - std::cos(t)); },
            0.0,
            {0.0},
            [=](double t) { return Vector{k * (k * std::cos(t) + std::sin(t)) / (k * k + 1.0)}; }};
}

// y' = y^2, y(0) = 1: infinite at t = 1.
inline InitialValues explosion()
{
    return {[](double, const double *y, double *yp) { yp[0] = y[0] * y[0]; },
            0.0,
            {1.0},
            [](double t) { return Vector{1.0 / (1.0 - t)}; }};
}

// y' jumps from -1 to 2 at t = 1/3.
inline InitialValues kink()
{
    return {[](double t, const double *, double *yp) { yp[0] = t < 1.0 / 3.0 ? -1.0 : 2.0; },
            0.0,
            {1.0},
            [](double t) { return Vector{t < 1.0 / 3.0 ? 1.0 - t : 2.0 * t}; }};
}

// Not a number from some point on.
inline InitialValues lost_at(double t_lost)
{
    return {[=](double t, const double *, double *yp) {
                yp[0] = t < t_lost ? 1.0 : std::numeric_limits<double>::quiet_NaN();
            },
            0.0,
            {0.0},
            [](double t) { return Vector{t}; }};
}

} // namespace kor::testing
