// Cubic splines through given points: the knots, and the linear equations for the coefficients.
#include "approx/collocation.hpp"

#include <algorithm>

#include "approx/cubic_bspline.hpp"
#include "frame/dispatch.hpp"

namespace kor::approx {

namespace {

constexpr Integer kHalfBand = kCollocationBand / 2;

} // namespace

void interpolation_knots(Integer m, const double *x, double *t)
{
    std::fill_n(t, kOrder, x[0]);
    std::copy_n(x + 2, m - kOrder, t + kOrder);
    std::fill_n(t + m, kOrder, x[m - 1]);
}

void factor_collocation(Integer m, const double *x, const double *t, double *band)
{
    std::fill_n(band, static_cast<std::ptrdiff_t>(m) * kCollocationBand, 0.0);
    // a(i, j) with j the column
    const auto a = [band](std::ptrdiff_t i, std::ptrdiff_t j) -> double & {
        return band[i * kCollocationBand + kHalfBand + (j - i)];
    };
    for (Integer i = 0; i < m; ++i) {
        const Integer l = std::clamp(i + 2, kDegree, m - 1);
        double b[kOrder];
        basis_values(t, l, x[i], b);
        for (Integer j = 0; j < kOrder; ++j)
            if (b[j] != 0.0) a(i, l - kDegree + j) = b[j];
    }
    for (Integer i = 0; i < m; ++i) {
        for (Integer k = i + 1; k <= std::min(i + kHalfBand, m - 1); ++k) {
            if (a(k, i) == 0.0) continue;
            const double factor = a(k, i) / a(i, i);
            a(k, i) = factor;
            for (Integer j = i + 1; j <= std::min(i + kHalfBand, m - 1); ++j) a(k, j) -= factor * a(i, j);
        }
    }
}

KOR_CLONES
void solve_collocation(Integer m, const double *band, double *y, std::ptrdiff_t count, std::ptrdiff_t stride)
{
    const auto subtract = [y, count, stride](Integer i, Integer j, double factor) {
        if (factor == 0.0) return;
        double *const to = y + i * stride;
        const double *const from = y + j * stride;
        for (std::ptrdiff_t k = 0; k < count; ++k) to[k] -= factor * from[k];
    };
    for (Integer i = 0; i < m; ++i) {
        const double *const row = band + static_cast<std::ptrdiff_t>(i) * kCollocationBand + kHalfBand;
        for (Integer d = std::min(kHalfBand, i); d >= 1; --d) subtract(i, i - d, row[-d]);
    }
    for (Integer i = m - 1; i >= 0; --i) {
        const double *const row = band + static_cast<std::ptrdiff_t>(i) * kCollocationBand + kHalfBand;
        for (Integer d = std::min(kHalfBand, m - 1 - i); d >= 1; --d) subtract(i, i + d, row[d]);
        double *const to = y + i * stride;
        for (std::ptrdiff_t k = 0; k < count; ++k) to[k] /= row[0];
    }
}

} // namespace kor::approx
