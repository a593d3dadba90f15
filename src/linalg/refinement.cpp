// Residuals in doubled precision: T. J. Dekker's exact products (Numer. Math. 18 (1971) 224-242), summed with the rounding
// error of each sum carried along (T. Ogita, S. M. Rump and S. Oishi, SIAM J. Sci. Comput. 26 (2005) 1955-1988), eight
// columns at a time. x is split once for all rows.
#include "linalg/refinement.hpp"

#include "frame/dispatch.hpp"
#include "frame/exact.hpp"
#include "frame/x03aay.hpp"
#include "linalg/lanes.hpp"

namespace kor::linalg {

namespace {

constexpr double kVeltkamp = 134217729.0; // 2^27 + 1: splits a double into halves of 26 bits

// b - a'x for a row a and x = high + low, as a high part and the sum of all rounding errors.
template <class Number>
struct ExactSum {
    Number sum{}, error{};

    [[gnu::always_inline]] void subtract_product(Number a, Number x_high, Number x_low)
    {
        const Number x = x_high + x_low, shifted = a * kVeltkamp;
        const Number a_high = shifted - (shifted - a), a_low = a - a_high;
        const Number product = a * x;
        const Number product_error = ((a_high * x_high - product) + (a_high * x_low + a_low * x_high)) + a_low * x_low;
        add(-product, -product_error);
    }
    [[gnu::always_inline]] void add(Number term, Number term_error)
    {
        const Number s = sum + term, shift = s - sum;
        error += ((sum - (s - shift)) + (term - shift)) + term_error;
        sum = s;
    }
};

KOR_CLONES double row_residual(Integer n, const double *a, const double *x_high, const double *x_low, double b)
{
    ExactSum<Lanes> lanes;
    ExactSum<double> whole{b, 0.0};
    Integer j = 0;
    for (; j + kWidth <= n; j += kWidth) lanes.subtract_product(load(a + j), load(x_high + j), load(x_low + j));
    for (int l = 0; l < kWidth; ++l) whole.add(lanes.sum[l], lanes.error[l]);
    for (; j < n; ++j) whole.subtract_product(a[j], x_high[j], x_low[j]);
    return whole.sum + whole.error;
}

} // namespace

void residual(Integer n, const double *a, Integer tda, const double *x, Integer tdx, const double *b, Integer tdb,
              double *r, Integer tdr, double *work)
{
    double *const x_high = work, *const x_low = work + n;
    for (std::ptrdiff_t i = 0; i < n; ++i) {
        const DoubleDouble halves = split(x[i * tdx]);
        x_high[i] = halves.high;
        x_low[i] = halves.low;
    }
    for (std::ptrdiff_t i = 0; i < n; ++i) {
        const double *const row = a + i * tda;
        double rest = row_residual(n, row, x_high, x_low, b[i * tdb]);
        // Near the ends of the range the slower way, which guards its splits.
        if (!std::isfinite(rest)) rest = -x03aay(row, x, n, 1, tdx, {-b[i * tdb], 0.0}).high;
        r[i * tdr] = rest;
    }
}

} // namespace kor::linalg
