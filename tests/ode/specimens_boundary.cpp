#include <cmath>

#include <kor/d02.h>

#include "support/specimen.hpp"

namespace {

constexpr Integer kMost = 40;

void bratu(Integer, double, const double y[], double f[], void *)
{
    f[0] = y[1];
    f[1] = -std::exp(y[0]);
}
void bratu_by_parameter(Integer, double, double eps, const double y[], double f[], void *)
{
    f[0] = y[1];
    f[1] = -eps * std::exp(y[0]);
}
void ends(Integer, double, const double ya[], const double yb[], double bc[], void *)
{
    bc[0] = ya[0];
    bc[1] = yb[0];
}
void oscillator(Integer, double, double f[], void *)
{
    f[1] = 1.0;
    f[2] = -1.0;
}
void push(Integer, double x, double g[], void *) { g[1] = x; }

} // namespace

KOR_SPECIMEN(d02gac)
{
    const double u[4] = {0.0, 0.0, 0.5, -0.5};
    const Integer v[4] = {0, 0, 1, 1};
    double x[kMost] = {}, y[2 * kMost] = {};
    Integer np = 0;
    call([&](KorError *fail) { d02gac(2, bratu, 0.0, 1.0, u, v, 1e-6, kMost, &np, x, y, kMost, nullptr, fail); });
    outputs(np, x, y);
}

KOR_SPECIMEN(d02gbc)
{
    double c[4] = {0, 0, 1, 0}, d[4] = {1, 1, 0, 0}, gamma[2] = {2, 1}, x[kMost] = {}, y[2 * kMost] = {};
    Integer np = 0;
    call([&](KorError *fail) {
        d02gbc(2, oscillator, push, 0.0, 1.0, c, d, gamma, 1e-6, kMost, &np, x, y, kMost, nullptr, fail);
    });
    outputs(np, x, y, c, d, gamma);
}

KOR_SPECIMEN(d02rac)
{
    double deleps = 0.3, x[kMost] = {}, y[2 * kMost] = {}, errest[2] = {};
    Integer np = 9;
    x[8] = 1.0;
    call([&](KorError *fail) {
        d02rac(2, &deleps, bratu_by_parameter, 1, 0, ends, Kor_DefInitMesh, kMost, &np, x, y, kMost, errest, 1e-6,
               nullptr, nullptr, nullptr, nullptr, nullptr, fail);
    });
    outputs(np, x, y, errest, deleps);
}
