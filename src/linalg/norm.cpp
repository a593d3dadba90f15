// Euclidean norms and largest elements: kernels on contiguous numbers, to which other vectors are brought in pieces.
#include "linalg/norm.hpp"

#include <algorithm>
#include <cmath>
#include <cstdint>

#include "frame/constants.hpp"
#include "frame/dispatch.hpp"
#include "linalg/lanes.hpp"
#include "linalg/scalar.hpp"
#include "linalg/strided.hpp"

namespace kor::linalg {

namespace {

// Elements that are taken at once, in four independent sets of lanes.
constexpr std::ptrdiff_t kStride = 4 * kWidth;
// A piece is summed in lanes, 16 terms a lane at most, and the sums of the pieces are added with their rounding errors
// kept: the error of a long sum stays that of a short one.
constexpr std::ptrdiff_t kPiece = 16 * kStride;

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
    const auto square = [=](const double *at) __attribute__((always_inline))
    {
        const Lanes scaled = load(at) * factor;
        return scaled * scaled;
    };
    for (std::ptrdiff_t start = 0; start < n; start += kPiece) {
        const double *const piece = x + start;
        const std::ptrdiff_t length = std::min(kPiece, n - start);
        Lanes sum0{}, sum1{}, sum2{}, sum3{};
        std::ptrdiff_t i = 0;
        for (; i + kStride <= length; i += kStride) {
            sum0 += square(piece + i);
            sum1 += square(piece + i + kWidth);
            sum2 += square(piece + i + 2 * kWidth);
            sum3 += square(piece + i + 3 * kWidth);
        }
        for (; i + kWidth <= length; i += kWidth) sum0 += square(piece + i);
        const Lanes total = (sum0 + sum1) + (sum2 + sum3);
        double rest = 0.0;
        for (; i < length; ++i) {
            const double scaled = piece[i] * factor;
            rest += scaled * scaled;
        }
        sum.add(sum_of(total));
        sum.add(rest);
    }
}

// Greatest |x[i]| of all that are not NaN, not less than `least`.
KOR_CLONES double greatest_contiguous(std::ptrdiff_t n, const double *x, double least)
{
    Lanes greatest0 = Lanes{} + least, greatest1 = greatest0, greatest2 = greatest0, greatest3 = greatest0;
    std::ptrdiff_t i = 0;
    for (; i + kStride <= n; i += kStride) {
        greatest0 = greater(absolute(load(x + i)), greatest0);
        greatest1 = greater(absolute(load(x + i + kWidth)), greatest1);
        greatest2 = greater(absolute(load(x + i + 2 * kWidth)), greatest2);
        greatest3 = greater(absolute(load(x + i + 3 * kWidth)), greatest3);
    }
    const Lanes all = greater(greater(greatest0, greatest1), greater(greatest2, greatest3));
    double greatest = least;
    for (std::ptrdiff_t j = 0; j < kWidth; ++j) greatest = all[j] > greatest ? all[j] : greatest;
    for (; i < n; ++i) {
        const double a = std::fabs(x[i]);
        greatest = a > greatest ? a : greatest;
    }
    return greatest;
}

// Sum of |x[i]|.
KOR_CLONES double contiguous_moduli(std::ptrdiff_t n, const double *x)
{
    Lanes sum0{}, sum1{}, sum2{}, sum3{};
    std::ptrdiff_t i = 0;
    for (; i + kStride <= n; i += kStride) {
        sum0 += absolute(load(x + i));
        sum1 += absolute(load(x + i + kWidth));
        sum2 += absolute(load(x + i + 2 * kWidth));
        sum3 += absolute(load(x + i + 3 * kWidth));
    }
    const Lanes total = (sum0 + sum1) + (sum2 + sum3);
    double sum = 0.0;
    for (; i < n; ++i) sum += std::fabs(x[i]);
    return sum_of(total) + sum;
}

// The greatest size so far in each lane, and where it stood.
struct Greatest {
    Lanes size = Lanes{} - 1.0;
    Places place = {};
    [[gnu::always_inline]] void take(Lanes sizes, std::ptrdiff_t at)
    {
        const Places more = sizes > size;
        size = more ? sizes : size;
        place = more ? Places{} + at : place;
    }
};

// Index of the first greatest of n sizes, none of them negative, the first no NaN: sizes(i) are eight from i on, size(i)
// is one.
template <class Sizes, class Size>
[[gnu::always_inline]] inline std::ptrdiff_t first_greatest(std::ptrdiff_t n, Sizes sizes, Size size)
{
    Greatest even, odd;
    std::ptrdiff_t i = 0;
    for (; i + 2 * kWidth <= n; i += 2 * kWidth) {
        even.take(sizes(i), i);
        odd.take(sizes(i + kWidth), i + kWidth);
    }
    double greatest = -1.0;
    std::int64_t index = 0;
    for (const Greatest &lanes : {even, odd})
        for (std::ptrdiff_t j = 0; j < kWidth; ++j) {
            const std::int64_t place = lanes.place[j] + j;
            if (lanes.size[j] > greatest || (lanes.size[j] == greatest && place < index)) {
                greatest = lanes.size[j];
                index = place;
            }
        }
    for (; i < n; ++i)
        if (size(i) > greatest) {
            greatest = size(i);
            index = i;
        }
    return static_cast<std::ptrdiff_t>(index);
}
KOR_CLONES std::ptrdiff_t first_greatest_contiguous(std::ptrdiff_t n, const double *x)
{
    return first_greatest(
        n, [=](std::ptrdiff_t i) __attribute__((always_inline)) { return absolute(load(x + i)); },
        [=](std::ptrdiff_t i) __attribute__((always_inline)) { return std::fabs(x[i]); });
}
KOR_CLONES std::ptrdiff_t first_greatest_contiguous(std::ptrdiff_t n, const Complex *x)
{
    return first_greatest(
        n,
        [=](std::ptrdiff_t i) __attribute__((always_inline)) {
            const double *const parts = reinterpret_cast<const double *>(x + i);
            const Lanes low = absolute(load(parts)), high = absolute(load(parts + kWidth));
            return __builtin_shufflevector(low, high, 0, 2, 4, 6, 8, 10, 12, 14) +
                   __builtin_shufflevector(low, high, 1, 3, 5, 7, 9, 11, 13, 15);
        },
        [=](std::ptrdiff_t i) __attribute__((always_inline)) { return std::fabs(x[i].re) + std::fabs(x[i].im); });
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

template <class T>
double sum_of_moduli_of(Integer n, const T *x, Integer incx)
{
    double sum = 0.0;
    in_pieces(n, x, incx,
              [&](const double *numbers, std::ptrdiff_t count) { sum += contiguous_moduli(count, numbers); });
    return sum;
}

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

// The sum of squares of a few numbers: in place, two terms at a time.
double few_squares(Integer n, const double *x, Integer incx)
{
    const Strided<const double> u{x, n, incx};
    Sum even, odd;
    Integer i = 0;
    for (; i + 1 < n; i += 2) {
        even.add(u[i] * u[i]);
        odd.add(u[i + 1] * u[i + 1]);
    }
    if (i < n) even.add(u[i] * u[i]);
    return even.value() + odd.value();
}
double few_squares(Integer n, const Complex *x, Integer incx)
{
    const Strided<const Complex> u{x, n, incx};
    Sum real, imaginary;
    for (Integer i = 0; i < n; ++i) {
        real.add(u[i].re * u[i].re);
        imaginary.add(u[i].im * u[i].im);
    }
    return real.value() + imaginary.value();
}

template <class T>
double euclidean_norm_of(Integer n, const T *x, Integer incx)
{
    constexpr Integer kFew = 64 * sizeof(double) / sizeof(T) / 2;
    if (n <= 0) return 0.0;
    const double plain = n <= kFew ? few_squares(n, x, incx) : sum_of_squares(n, x, incx, 1.0);
    if (plain > kLeastSquare && plain <= kLargest) return std::sqrt(plain);

    const double greatest = greatest_part(n, x, incx, 0.0);
    if (greatest == 0.0 || std::isinf(greatest)) return plain; // 0, infinity, or NaN
    const double factor = scaling_of(greatest);
    return std::sqrt(sum_of_squares(n, x, incx, factor)) / factor;
}

template <class T>
Integer index_of_greatest_of(Integer n, const T *x, Integer incx)
{
    constexpr Integer kFew = 32; // lanes do not pay
    if (n <= 0) return -1;
    const Strided<const T> u{x, n, incx};
    double greatest = modulus_sum(u[0]);
    if (std::isnan(greatest)) return 0;
    if (incx == 1 && n > kFew) return static_cast<Integer>(first_greatest_contiguous(n, x));

    // The value first, then its place: two loops without a branch that could be guessed wrong.
    for (Integer i = 1; i < n; ++i) {
        const double a = modulus_sum(u[i]);
        greatest = a > greatest ? a : greatest;
    }
    Integer index = 0;
    while (modulus_sum(u[index]) != greatest) ++index;
    return index;
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

double sum_of_moduli(Integer n, const double *x, Integer incx) { return sum_of_moduli_of(n, x, incx); }
double sum_of_moduli(Integer n, const Complex *x, Integer incx) { return sum_of_moduli_of(n, x, incx); }

Integer index_of_greatest(Integer n, const double *x, Integer incx) { return index_of_greatest_of(n, x, incx); }
Integer index_of_greatest(Integer n, const Complex *x, Integer incx) { return index_of_greatest_of(n, x, incx); }

} // namespace kor::linalg
