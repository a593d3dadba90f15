// Published non-stiff initial value problems, in any arithmetic, and a reference solver that shares nothing with the library.
#pragma once

#include <cmath>
#include <functional>
#include <string>
#include <vector>

namespace kor::bench {

template <class Real>
using RightHandSide = std::function<void(Real t, const Real *y, Real *yp)>;

// A problem in double for the solvers, in long double for the reference.
struct Problem {
    std::string name;
    double t_end;
    std::vector<double> y0;
    RightHandSide<double> f;
    RightHandSide<long double> reference_f;
    std::vector<double> solution{}; // at t_end
};

template <class F>
Problem problem(std::string name, double t_end, std::vector<double> y0, F f)
{
    return {std::move(name), t_end, std::move(y0), f, f};
}

// Extrapolation of the modified midpoint rule (W. B. Gragg) in long double, in steps that are halved until two
// different orders agree.
inline std::vector<double> reference_solution(const Problem &p)
{
    using Real = long double;
    constexpr int kRows = 12;
    const std::size_t n = p.y0.size();
    std::vector<Real> y(p.y0.begin(), p.y0.end());
    const auto midpoint = [&](Real t, Real h, int parts, const std::vector<Real> &start) {
        std::vector<Real> before = start, now(n), next(n), slope(n);
        const Real step = h / parts;
        p.reference_f(t, before.data(), slope.data());
        for (std::size_t i = 0; i < n; ++i) now[i] = before[i] + step * slope[i];
        for (int m = 1; m < parts; ++m) {
            p.reference_f(t + m * step, now.data(), slope.data());
            for (std::size_t i = 0; i < n; ++i) next[i] = before[i] + 2 * step * slope[i];
            before.swap(now);
            now.swap(next);
        }
        return now;
    };
    Real t = 0, h = p.t_end / 100.0L;
    while (t < p.t_end) {
        if (t + h > p.t_end) h = p.t_end - t;
        std::vector<std::vector<Real>> table;
        Real worst = 1;
        for (int row = 0; row < kRows && worst > 3e-18L; ++row) {
            table.push_back(midpoint(t, h, 2 * (row + 1), y));
            worst = row < 3 ? 1 : 0;
            for (int column = row - 1; column >= 0; --column) {
                const Real ratio = static_cast<Real>(row + 1) / (column + 1);
                for (std::size_t i = 0; i < n; ++i) {
                    const Real difference = table[column + 1][i] - table[column][i];
                    const Real refined = table[column + 1][i] + difference / (ratio * ratio - 1);
                    if (column == 0 && row >= 3)
                        worst = std::max(worst, std::fabs(refined - table[0][i]) / (1 + std::fabs(refined)));
                    table[column][i] = refined;
                }
            }
        }
        if (worst > 3e-17L) {
            h /= 2;
            continue;
        }
        y = table[0];
        t = t + h >= p.t_end ? static_cast<Real>(p.t_end) : t + h;
        h *= 1.3L;
    }
    return {y.begin(), y.end()};
}

inline std::vector<Problem> classic_problems()
{
    std::vector<Problem> all;
    all.push_back(problem("Lotka-Volterra", 15.0, {10.0, 5.0}, [](auto, const auto *y, auto *d) {
        d[0] = 1.5 * y[0] - y[0] * y[1];
        d[1] = y[0] * y[1] - 3.0 * y[1];
    }));
    all.push_back(problem("Arenstorf", 17.0652165601579625588917206249,
                          {0.994, 0.0, 0.0, -2.00158510637908252240537862224}, [](auto, const auto *y, auto *d) {
                              using std::sqrt;
                              const auto moon = 0.012277471L * (0 * y[0] + 1), earth = 1 - moon;
                              const auto a = y[0] + moon, b = y[0] - earth;
                              const auto r1 = sqrt(a * a + y[1] * y[1]), r2 = sqrt(b * b + y[1] * y[1]);
                              const auto d1 = r1 * r1 * r1, d2 = r2 * r2 * r2;
                              d[0] = y[2];
                              d[1] = y[3];
                              d[2] = y[0] + 2 * y[3] - earth * a / d1 - moon * b / d2;
                              d[3] = y[1] - 2 * y[2] - earth * y[1] / d1 - moon * y[1] / d2;
                          }));
    all.push_back(problem("Brusselator", 20.0, {1.5, 3.0}, [](auto, const auto *y, auto *d) {
        const auto q = y[0] * y[0] * y[1];
        d[0] = 1 + q - 4 * y[0];
        d[1] = 3 * y[0] - q;
    }));
    all.push_back(problem("Pleiades", 3.0, {3, 3, -1, -3, 2, -2,   2,    3, -3, 2, 0,     0, -4, 4,
                                            0, 0, 0,  0,  0, 1.75, -1.5, 0, 0,  0, -1.25, 1, 0,  0},
                          [](auto, const auto *y, auto *d) {
                              using std::sqrt;
                              for (int i = 0; i < 14; ++i) d[i] = y[14 + i];
                              for (int i = 0; i < 7; ++i) {
                                  auto ax = 0 * y[0], ay = ax;
                                  for (int j = 0; j < 7; ++j) {
                                      if (j == i) continue;
                                      const auto dx = y[j] - y[i], dy = y[7 + j] - y[7 + i];
                                      const auto square = dx * dx + dy * dy, cube = square * sqrt(square);
                                      ax += (j + 1) * dx / cube;
                                      ay += (j + 1) * dy / cube;
                                  }
                                  d[14 + i] = ax;
                                  d[21 + i] = ay;
                              }
                          }));
    all.push_back(problem("Kepler, e = 0.9", 20.0, {0.1, 0.0, 0.0, std::sqrt(19.0)}, [](auto, const auto *y, auto *d) {
        using std::sqrt;
        const auto square = y[0] * y[0] + y[1] * y[1], cube = square * sqrt(square);
        d[0] = y[2];
        d[1] = y[3];
        d[2] = -y[0] / cube;
        d[3] = -y[1] / cube;
    }));
    all.push_back(problem("Lorenz", 5.0, {1.0, 1.0, 1.0}, [](auto, const auto *y, auto *d) {
        d[0] = 10 * (y[1] - y[0]);
        d[1] = y[0] * (28 - y[2]) - y[1];
        d[2] = y[0] * y[1] - 8 * y[2] / 3;
    }));
    return all;
}

// T. E. Hull, W. H. Enright, B. M. Fellen and A. E. Sedgwick, Comparing numerical methods for ordinary differential equations, SIAM J.
// Numer. Anal. 9 (1972) 603-637: their set without the five bodies.
inline std::vector<Problem> detest_problems()
{
    std::vector<Problem> all;
    const auto add = [&](const char *name, std::vector<double> y0, auto f) {
        all.push_back(problem(name, 20.0, std::move(y0), f));
    };
    const auto unit = [](std::size_t n) {
        std::vector<double> y(n, 0.0);
        y[0] = 1.0;
        return y;
    };
    add("A1", {1}, [](auto, const auto *y, auto *d) { d[0] = -y[0]; });
    add("A2", {1}, [](auto, const auto *y, auto *d) { d[0] = -y[0] * y[0] * y[0] / 2; });
    add("A3", {1}, [](auto t, const auto *y, auto *d) { d[0] = y[0] * std::cos(t); });
    add("A4", {1}, [](auto, const auto *y, auto *d) { d[0] = y[0] / 4 * (1 - y[0] / 20); });
    add("A5", {4}, [](auto t, const auto *y, auto *d) { d[0] = (y[0] - t) / (y[0] + t); });
    add("B1", {1, 3}, [](auto, const auto *y, auto *d) {
        d[0] = 2 * (y[0] - y[0] * y[1]);
        d[1] = -(y[1] - y[0] * y[1]);
    });
    add("B2", {2, 0, 1}, [](auto, const auto *y, auto *d) {
        d[0] = -y[0] + y[1];
        d[1] = y[0] - 2 * y[1] + y[2];
        d[2] = y[1] - y[2];
    });
    add("B3", {1, 0, 0}, [](auto, const auto *y, auto *d) {
        d[0] = -y[0];
        d[1] = y[0] - y[1] * y[1];
        d[2] = y[1] * y[1];
    });
    add("B4", {3, 0, 0}, [](auto, const auto *y, auto *d) {
        const auto r = std::sqrt(y[0] * y[0] + y[1] * y[1]);
        d[0] = -y[1] - y[0] * y[2] / r;
        d[1] = y[0] - y[1] * y[2] / r;
        d[2] = y[0] / r;
    });
    add("B5", {0, 1, 1}, [](auto, const auto *y, auto *d) {
        d[0] = y[1] * y[2];
        d[1] = -y[0] * y[2];
        d[2] = -51 * y[0] * y[1] / 100;
    });
    add("C1", unit(10), [](auto, const auto *y, auto *d) {
        d[0] = -y[0];
        for (int i = 1; i < 9; ++i) d[i] = y[i - 1] - y[i];
        d[9] = y[8];
    });
    add("C2", unit(10), [](auto, const auto *y, auto *d) {
        d[0] = -y[0];
        for (int i = 1; i < 9; ++i) d[i] = i * y[i - 1] - (i + 1) * y[i];
        d[9] = 9 * y[8];
    });
    const auto diffusion = [](int n) {
        return [=](auto, const auto *y, auto *d) {
            for (int i = 0; i < n; ++i)
                d[i] = (i > 0 ? y[i - 1] : 0 * y[0]) - 2 * y[i] + (i < n - 1 ? y[i + 1] : 0 * y[0]);
        };
    };
    add("C3", unit(10), diffusion(10));
    add("C4", unit(51), diffusion(51));
    for (const double e : {0.1, 0.3, 0.5, 0.7, 0.9})
        add("D", {1.0 - e, 0.0, 0.0, std::sqrt((1.0 + e) / (1.0 - e))}, [](auto, const auto *y, auto *d) {
            const auto square = y[0] * y[0] + y[1] * y[1], cube = square * std::sqrt(square);
            d[0] = y[2];
            d[1] = y[3];
            d[2] = -y[0] / cube;
            d[3] = -y[1] / cube;
        });
    add("E1", {0.6713967071418030, 0.09540051444747446}, [](auto t, const auto *y, auto *d) {
        const auto s = t + 1;
        d[0] = y[1];
        d[1] = -(y[1] / s + (1 - 1 / (4 * s * s)) * y[0]);
    });
    add("E2", {2, 0}, [](auto, const auto *y, auto *d) {
        d[0] = y[1];
        d[1] = (1 - y[0] * y[0]) * y[1] - y[0];
    });
    add("E3", {0, 0}, [](auto t, const auto *y, auto *d) {
        d[0] = y[1];
        d[1] = y[0] * y[0] * y[0] / 6 - y[0] + 2 * std::sin(2.78535 * t);
    });
    add("E4", {30, 0}, [](auto, const auto *y, auto *d) {
        d[0] = y[1];
        d[1] = 0.032 - 0.4 * y[1] * y[1];
    });
    add("E5", {0, 0}, [](auto t, const auto *y, auto *d) {
        d[0] = y[1];
        d[1] = std::sqrt(1 + y[1] * y[1]) / (25 - t);
    });
    return all;
}

} // namespace kor::bench
