// Boundary value problems: time, evaluations, points and true errors; and how the time grows with the mesh.
#include <algorithm>
#include <cmath>
#include <functional>
#include <numbers>
#include <string>
#include <vector>

#include <kor/d02.h>

#include "support/ratio_table.hpp"

namespace {

const kor::bench::Heading heading{"Boundary value problems, a solution", "largest true error of y"};

long calls = 0;

struct Solution {
    std::vector<double> x, y;
    Integer np = 0;
    KorError fail{};
    explicit Solution(Integer neq, Integer mnp) : x(mnp), y(neq * mnp) {}
    double worst(const std::function<double(double)> &exact) const
    {
        double error = fail.code == NE_NOERROR ? 0.0 : HUGE_VAL;
        for (Integer i = 0; i < np; ++i) error = std::max(error, std::fabs(y[i] - exact(x[i])));
        return error;
    }
};

Solution bratu(double tol)
{
    Solution s{2, 300};
    const double u[4] = {0.0, 0.0, 0.5, -0.5};
    const Integer v[4] = {0, 0, 1, 1};
    d02gac(
        2,
        [](Integer, double, const double y[], double f[], void *) {
            ++calls;
            f[0] = y[1];
            f[1] = -std::exp(y[0]);
        },
        0.0, 1.0, u, v, tol, 300, &s.np, s.x.data(), s.y.data(), 300, nullptr, &s.fail);
    return s;
}
double bratu_exact(double x)
{
    constexpr double theta = 1.5171645990508; // of theta = sqrt(2) cosh(theta / 4)
    return -2.0 * std::log(std::cosh((x - 0.5) * theta / 2) / std::cosh(theta / 4));
}

double layer_width = 1.0;
Solution layer(double tol)
{
    Solution s{2, 400};
    double c[4] = {1, 0, 0, 0}, d[4] = {0, 0, 1, 0}, gamma[2] = {0, 1};
    d02gbc(
        2,
        [](Integer, double, double f[], void *) {
            ++calls;
            f[1] = 1.0 / layer_width;
            f[3] = -1.0 / layer_width;
        },
        nullptr, 0.0, 1.0, c, d, gamma, tol, 400, &s.np, s.x.data(), s.y.data(), 400, nullptr, &s.fail);
    return s;
}
double layer_exact(double x) { return std::expm1(-x / layer_width) / std::expm1(-1.0 / layer_width); }

Solution troesch(double tol)
{
    Solution s{2, 400};
    double deleps = 0.1, errest[2];
    s.np = 17;
    s.x[16] = 1.0;
    d02rac(
        2, &deleps,
        [](Integer, double, double eps, const double y[], double f[], void *) {
            ++calls;
            f[0] = y[1];
            f[1] = 10.0 * eps * std::sinh(10.0 * eps * y[0]);
        },
        1, 0,
        [](Integer, double, const double ya[], const double yb[], double bc[], void *) {
            bc[0] = ya[0];
            bc[1] = yb[0] - 1.0;
        },
        Kor_DefInitMesh, 400, &s.np, s.x.data(), s.y.data(), 400, errest, tol, nullptr, nullptr, nullptr, nullptr,
        nullptr, &s.fail);
    return s;
}

Solution falkner_skan(double tol)
{
    Solution s{3, 300};
    const double u[6] = {0, 10, 0, 1, 0, 0};
    const Integer v[6] = {0, 1, 0, 0, 1, 1};
    d02gac(
        3,
        [](Integer, double, const double y[], double f[], void *) {
            ++calls;
            f[0] = y[1];
            f[1] = y[2];
            f[2] = -y[0] * y[2] - 0.5 * (1.0 - y[1] * y[1]);
        },
        0.0, 10.0, u, v, tol, 300, &s.np, s.x.data(), s.y.data(), 300, nullptr, &s.fail);
    return s;
}

// A given mesh that needs no refinement: the time of one mesh.
Solution given_mesh(Integer points)
{
    Solution s{2, points};
    double c[4] = {1, 0, 0, 0}, d[4] = {0, 0, 1, 0}, gamma[2] = {0, 1};
    s.np = points;
    for (Integer i = 0; i < points; ++i) s.x[i] = static_cast<double>(i) / (points - 1);
    d02gbc(
        2,
        [](Integer, double, double f[], void *) {
            ++calls;
            f[1] = 1.0;
            f[2] = -1.0;
        },
        nullptr, 0.0, 1.0, c, d, gamma, 1e-6, points, &s.np, s.x.data(), s.y.data(), points, nullptr, &s.fail);
    return s;
}

void add(const std::string &name, std::function<Solution()> solve, const std::function<double(double)> &exact)
{
    calls = 0;
    const Solution s = solve();
    const double made = static_cast<double>(calls);
    kor::bench::note(name + ": " + std::to_string(s.np) + " points, error code " + std::to_string(s.fail.code));
    kor::bench::add(name + "/KOR", [solve] { solve(); }, {exact ? s.worst(exact) : -1.0, made, 1.0});
}

const bool registered = [] {
    for (const double tol : {1e-4, 1e-8}) {
        const std::string at = tol > 1e-6 ? ", 1e-4" : ", 1e-8";
        add(
            "Bratu" + at, [tol] { return bratu(tol); }, bratu_exact);
        for (const double width : {1e-2, 1e-4, 1e-6}) {
            const std::string name =
                "layer of " + std::to_string(static_cast<int>(std::lround(1e6 * width))) + "e-6" + at;
            layer_width = width;
            add(
                name,
                [tol, width] {
                    layer_width = width;
                    return layer(tol);
                },
                layer_exact);
        }
        add(
            "Troesch 10" + at, [tol] { return troesch(tol); }, nullptr);
        add(
            "Falkner-Skan 0.5" + at, [tol] { return falkner_skan(tol); }, nullptr);
    }
    for (const Integer points : {1000, 10000, 100000})
        add(
            "mesh of " + std::to_string(points), [points] { return given_mesh(points); },
            [](double x) { return std::sin(x) / std::sin(1.0); });
    return true;
}();

} // namespace
