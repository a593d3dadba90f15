// Euclidean norms and largest elements: kernels on contiguous numbers, to which other vectors are brought in pieces.
#include "linalg/norm.hpp"

#include <algorithm>
#include <cmath>

#include "frame/constants.hpp"
#include "frame/dispatch.hpp"
#include "linalg/scalar.hpp"
#include "linalg/strided.hpp"

namespace kor::linalg {

namespace {

// A piece is summed in independent lanes, 16 terms a lane at most, and the sums of the pieces are added with their
// rounding errors kept: the error of a long sum stays that of a short one.
constexpr std::ptrdiff_t kLanes = 32;
constexpr std::ptrdiff_t kPiece = 16 * kLanes;

// A sum of squares within these bounds lost nothing: no square overflowed, and what underflowed was negligible even
// 2^31 times over. One below 2^-960 or above is formed again from scaled numbers.
constexpr double kLeastSquare = 0x1p-960;

struct Sum {
    double high = 0.0, low = 0.0;
    void add(double term) // 2Sum, Knuth
    {
        const double sum = high + term;
        const double part = sum - high;
        low += (high - (sum - part)) + (term - part);
        high = sum;
    }
    double value() const { return std::isfinite(high) ? high + low : high; } // low is NaN beside an infinity
};

// Adds the squares of x[i] factor.
KOR_CLONES void add_contiguous_squares(Sum &sum, std::ptrdiff_t n, const double *x, double factor)
{
    for (std::ptrdiff_t start = 0; start < n; start += kPiece) {
        const double *piece = x + start;
        const std::ptrdiff_t length = std::min(kPiece, n - start);
        double lane[kLanes] = {};
        std::ptrdiff_t i = 0;
        for (; i + kLanes <= length; i += kLanes)
            for (std::ptrdiff_t j = 0; j < kLanes; ++j) {
                const double scaled = piece[i + j] * factor;
                lane[j] += scaled * scaled;
            }
        for (std::ptrdiff_t j = 0; i + j < length; ++j) {
            const double scaled = piece[i + j] * factor;
            lane[j] += scaled * scaled;
        }
        for (std::ptrdiff_t half = kLanes / 2; half > 0; half /= 2)
            for (std::ptrdiff_t j = 0; j < half; ++j) lane[j] += lane[j + half];
        sum.add(lane[0]);
    }
}

// Greatest |x[i]| of all that are not NaN, not less than `least`.
KOR_CLONES double greatest_contiguous(std::ptrdiff_t n, const double *x, double least)
{
    double lane[kLanes];
    for (double &greatest : lane) greatest = least;
    std::ptrdiff_t i = 0;
    for (; i + kLanes <= n; i += kLanes)
        for (std::ptrdiff_t j = 0; j < kLanes; ++j) {
            const double a = std::fabs(x[i + j]);
            lane[j] = a > lane[j] ? a : lane[j];
        }
    for (; i < n; ++i) {
        const double a = std::fabs(x[i]);
        lane[0] = a > lane[0] ? a : lane[0];
    }
    double greatest = least;
    for (const double a : lane) greatest = a > greatest ? a : greatest;
    return greatest;
}

// Calls work(numbers, count) on the elements of x as runs of real numbers: on x itself if it is contiguous, else on
// copies of its pieces.
template <class Work>
void in_pieces(Integer n, const double *x, Integer incx, Work work)
{
    if (incx == 1 || incx == -1 || n <= 0) return work(x, std::max<std::ptrdiff_t>(n, 0));
    const Strided<const double> u{x, n, incx};
    double piece[kPiece];
    for (std::ptrdiff_t start = 0; start < n; start += kPiece) {
        const std::ptrdiff_t length = std::min<std::ptrdiff_t>(kPiece, n - start);
        for (std::ptrdiff_t i = 0; i < length; ++i) piece[i] = u[start + i];
        work(piece, length);
    }
}
template <class Work>
void in_pieces(Integer n, const Complex *x, Integer incx, Work work)
{
    if (incx == 1 || incx == -1 || n <= 0)
        return work(reinterpret_cast<const double *>(x), 2 * std::max<std::ptrdiff_t>(n, 0));
    const Strided<const Complex> u{x, n, incx};
    double piece[kPiece];
    for (std::ptrdiff_t start = 0; start < n; start += kPiece / 2) {
        const std::ptrdiff_t length = std::min<std::ptrdiff_t>(kPiece / 2, n - start);
        for (std::ptrdiff_t i = 0; i < length; ++i) {
            piece[2 * i] = u[start + i].re;
            piece[2 * i + 1] = u[start + i].im;
        }
        work(piece, 2 * length);
    }
}

template <class T>
double greatest_part(Integer n, const T *x, Integer incx, double least)
{
    in_pieces(n, x, incx,
              [&](const double *numbers, std::ptrdiff_t count) { least = greatest_contiguous(count, numbers, least); });
    return least;
}

template <class T>
double sum_of_squares(Integer n, const T *x, Integer incx, double factor)
{
    Sum sum;
    in_pieces(n, x, incx, [&](const double *numbers, std::ptrdiff_t count) {
        add_contiguous_squares(sum, count, numbers, factor);
    });
    return sum.value();
}

// A power of two that brings a finite positive number near to 1; a subnormal one at least to 2^-53.
double scaling_of(double greatest) { return std::ldexp(1.0, -std::max(std::ilogb(greatest), -1021)); }

// The update, number by number, as it is defined.
template <class T>
void add_squares_one_by_one(ScaledSquares &norm, Integer n, const T *x, Integer incx)
{
    in_pieces(n, x, incx, [&](const double *numbers, std::ptrdiff_t count) {
        for (std::ptrdiff_t i = 0; i < count; ++i) {
            const double a = std::fabs(numbers[i]);
            if (a == 0.0) continue;
            if (norm.scale < a) {
                const double ratio = norm.scale / a;
                norm.sumsq = 1.0 + norm.sumsq * ratio * ratio;
                norm.scale = a;
            } else {
                const double ratio = a == norm.scale ? 1.0 : a / norm.scale; // two infinities
                norm.sumsq += ratio * ratio;
            }
        }
    });
}

template <class T>
void add_squares_of(ScaledSquares &norm, Integer n, const T *x, Integer incx)
{
    constexpr Integer kFew = 8; // not worth two passes
    if (n <= kFew) return add_squares_one_by_one(norm, n, x, incx);

    const double scale = greatest_part(n, x, incx, std::max(norm.scale, 0.0));
    const double factor = scale > 0.0 && std::isfinite(scale) ? scaling_of(scale) : 1.0;
    const double sum = sum_of_squares(n, x, incx, factor);
    if (!std::isfinite(sum) || !std::isfinite(scale)) return add_squares_one_by_one(norm, n, x, incx);
    if (scale == 0.0) return;

    const double ratio = norm.scale / scale, unit = scale * factor;
    norm.sumsq = norm.sumsq * ratio * ratio + sum / (unit * unit);
    norm.scale = scale;
}

template <class T>
double euclidean_norm_of(Integer n, const T *x, Integer incx)
{
    if (n <= 0) return 0.0;
    const double plain = sum_of_squares(n, x, incx, 1.0);
    if (plain > kLeastSquare && plain <= kLargest) return std::sqrt(plain);

    const double greatest = greatest_part(n, x, incx, 0.0);
    if (greatest == 0.0 || std::isinf(greatest)) return plain; // 0, infinity, or NaN
    const double factor = scaling_of(greatest);
    return std::sqrt(sum_of_squares(n, x, incx, factor)) / factor;
}

} // namespace

void add_squares(ScaledSquares &norm, Integer n, const double *x, Integer incx) { add_squares_of(norm, n, x, incx); }
void add_squares(ScaledSquares &norm, Integer n, const Complex *x, Integer incx) { add_squares_of(norm, n, x, incx); }

double length_of(const ScaledSquares &norm)
{
    constexpr double kBound = 1.0 / kSafeSmall;
    const double root = std::sqrt(norm.sumsq);
    const bool beyond = norm.scale >= kBound / root && std::isfinite(norm.scale) && std::isfinite(root);
    return beyond ? kBound : norm.scale * root;
}

double euclidean_norm(Integer n, const double *x, Integer incx)
{
    return n == 1 ? std::fabs(*x) : euclidean_norm_of(n, x, incx);
}
double euclidean_norm(Integer n, const Complex *x, Integer incx) { return euclidean_norm_of(n, x, incx); }

Integer index_of_greatest(Integer n, const double *x, Integer incx)
{
    if (n <= 0) return -1;
    const Strided<const double> u{x, n, incx};
    if (std::isnan(u[0])) return 0;
    if (incx == 1) {
        // The value first: without an index to carry, the search for it runs in lanes.
        const double greatest = greatest_contiguous(n, x, -1.0);
        return static_cast<Integer>(std::find_if(x, x + n, [=](double a) { return std::fabs(a) == greatest; }) - x);
    }
    Integer greatest = 0;
    for (Integer i = 1; i < n; ++i)
        if (std::fabs(u[i]) > std::fabs(u[greatest])) greatest = i;
    return greatest;
}

Integer index_of_greatest(Integer n, const Complex *x, Integer incx)
{
    if (n <= 0) return -1;
    const Strided<const Complex> u{x, n, incx};
    Integer index = 0;
    double greatest = modulus_sum(u[0]);
    for (Integer i = 1; i < n; ++i)
        if (const double a = modulus_sum(u[i]); a > greatest) {
            index = i;
            greatest = a;
        }
    return index;
}

} // namespace kor::linalg
