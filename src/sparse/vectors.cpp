// Operations on vectors, in one pass each.
#include "sparse/vectors.hpp"

#include <algorithm>
#include <cmath>

#include "frame/dispatch.hpp"
#include "linalg/lanes.hpp"

namespace kor::sparse {

using linalg::absolute;
using linalg::greater;
using linalg::kWidth;
using linalg::Lanes;
using linalg::load;
using linalg::store;
using linalg::sum_of;

namespace {

// The rest of a vector whose length is no multiple of the lanes, filled up with zeros.
[[gnu::always_inline]] inline Lanes load_rest(const double *x, Integer count)
{
    Lanes lanes = {};
    for (Integer i = 0; i < count; ++i) lanes[i] = x[i];
    return lanes;
}

[[gnu::always_inline]] inline double greatest_of(Lanes x)
{
    double greatest = x[0];
    for (int i = 1; i < kWidth; ++i) greatest = x[i] > greatest ? x[i] : greatest;
    return greatest;
}

// The sum of term(i), eight at a time.
template <class Term>
[[gnu::always_inline]] inline double sum_over(Integer n, const double x[], const double y[], Term term)
{
    Lanes sum = {};
    Integer i = 0;
    for (; i + kWidth <= n; i += kWidth) sum += term(load(x + i), load(y + i));
    if (i < n) sum += term(load_rest(x + i, n - i), load_rest(y + i, n - i));
    return sum_of(sum);
}

KOR_CLONES double sum_of_moduli(Integer n, const double x[], const double w[])
{
    return sum_over(n, x, w, [](Lanes a, Lanes b) { return absolute(a * b); });
}
KOR_CLONES double sum_of_squares(Integer n, const double x[], const double w[])
{
    return sum_over(n, x, w, [](Lanes a, Lanes b) { return (a * b) * (a * b); });
}
KOR_CLONES double sum_of_moduli(Integer n, const double x[])
{
    return sum_over(n, x, x, [](Lanes a, Lanes) { return absolute(a); });
}
KOR_CLONES double sum_of_squares(Integer n, const double x[])
{
    return sum_over(n, x, x, [](Lanes a, Lanes) { return a * a; });
}

// The greatest modulus of w x. A comparison never picks a NaN: the sum beside it, of zeros as long as all is finite, does.
KOR_CLONES double greatest_modulus(Integer n, const double x[], const double w[])
{
    Lanes greatest = {}, nothing = {};
    Integer i = 0;
    for (; i + kWidth <= n; i += kWidth) {
        const Lanes a = absolute(load(x + i) * load(w + i));
        greatest = greater(a, greatest);
        nothing += a - a;
    }
    if (i < n) {
        const Lanes a = absolute(load_rest(x + i, n - i) * load_rest(w + i, n - i));
        greatest = greater(a, greatest);
        nothing += a - a;
    }
    const double found = greatest_of(greatest);
    return std::isinf(found) ? found : found + sum_of(nothing);
}

KOR_CLONES double greatest_modulus(Integer n, const double x[])
{
    Lanes greatest = {}, nothing = {};
    Integer i = 0;
    for (; i + kWidth <= n; i += kWidth) {
        const Lanes a = absolute(load(x + i));
        greatest = greater(a, greatest);
        nothing += a - a;
    }
    if (i < n) {
        const Lanes a = absolute(load_rest(x + i, n - i));
        greatest = greater(a, greatest);
        nothing += a - a;
    }
    const double found = greatest_of(greatest);
    return std::isinf(found) ? found : found + sum_of(nothing);
}

// In one pass: w := w - sum of coefficient[k] from[k], then dots[k] := w' to[k]. One of `to` may be w itself.
template <int kFrom, int kTo>
[[gnu::always_inline]] inline void subtract_then_multiply(Integer n, const double coefficient[],
                                                          const double *const from[], double w[],
                                                          const double *const to[], double dots[])
{
    Lanes sum[kTo > 0 ? kTo : 1] = {};
    Integer i = 0;
    for (; i + kWidth <= n; i += kWidth) {
        Lanes part = load(w + i);
        for (int k = 0; k < kFrom; ++k) part -= coefficient[k] * load(from[k] + i);
        if (kFrom > 0) store(w + i, part);
        for (int k = 0; k < kTo; ++k) sum[k] += part * load(to[k] + i);
    }
    double rest[kTo > 0 ? kTo : 1] = {};
    for (; i < n; ++i) {
        for (int k = 0; k < kFrom; ++k) w[i] -= coefficient[k] * from[k][i];
        for (int k = 0; k < kTo; ++k) rest[k] += w[i] * to[k][i];
    }
    for (int k = 0; k < kTo; ++k) dots[k] = sum_of(sum[k]) + rest[k];
}

constexpr int kGroup = 4;

KOR_CLONES void group_dots(Integer n, double w[], const double *const to[], double dots[])
{
    subtract_then_multiply<0, kGroup>(n, nullptr, nullptr, w, to, dots);
}
KOR_CLONES void group_to_group(Integer n, const double c[], const double *const from[], double w[],
                               const double *const to[], double dots[])
{
    subtract_then_multiply<kGroup, kGroup>(n, c, from, w, to, dots);
}
KOR_CLONES void group_to_one(Integer n, const double c[], const double *const from[], double w[], const double *to,
                             double *product)
{
    subtract_then_multiply<kGroup, 1>(n, c, from, w, &to, product);
}

double two_norm(Integer n, const double x[], const double w[])
{
    // Beyond these bounds squares have overflowed or lost digits.
    constexpr double kSafeLow = 0x1p-900, kSafeHigh = 0x1p900;
    const double squares = w != nullptr ? sum_of_squares(n, x, w) : sum_of_squares(n, x);
    if (squares > kSafeLow && squares < kSafeHigh) return std::sqrt(squares);
    const double greatest = norm_of(Norm::infinity, n, x, w);
    if (!(greatest > 0.0) || std::isinf(greatest)) return greatest;
    double sum = 0.0;
    for (Integer i = 0; i < n; ++i) {
        const double ratio = (w != nullptr ? w[i] * x[i] : x[i]) / greatest;
        sum += ratio * ratio;
    }
    return greatest * std::sqrt(sum);
}

} // namespace

KOR_CLONES double dot(Integer n, const double x[], const double y[])
{
    return sum_over(n, x, y, [](Lanes a, Lanes b) { return a * b; });
}

double norm_of(Norm norm, Integer n, const double x[], const double weight[])
{
    switch (norm) {
    case Norm::one:
        return weight != nullptr ? sum_of_moduli(n, x, weight) : sum_of_moduli(n, x);
    case Norm::two:
        return two_norm(n, x, weight);
    case Norm::infinity:
        break;
    }
    return weight != nullptr ? greatest_modulus(n, x, weight) : greatest_modulus(n, x);
}

bool all_zero(Integer n, const double x[])
{
    return std::all_of(x, x + n, [](double element) { return element == 0.0; });
}

double scale_of(Integer n, const double x[])
{
    // Its reciprocal must not overflow.
    constexpr int kGreatestExponent = 1000;
    const double greatest = greatest_modulus(n, x);
    if (!(greatest > 0.0) || std::isinf(greatest)) return 1.0;
    return std::ldexp(1.0, std::clamp(std::ilogb(greatest), -kGreatestExponent, kGreatestExponent));
}

KOR_CLONES void scale(Integer n, double factor, double x[])
{
    for (Integer i = 0; i < n; ++i) x[i] *= factor;
}

KOR_CLONES void subtract(Integer n, const double x[], const double y[], double z[])
{
    for (Integer i = 0; i < n; ++i) z[i] = x[i] - y[i];
}

KOR_CLONES void add_multiple(Integer n, double a, const double x[], double y[])
{
    for (Integer i = 0; i < n; ++i) y[i] += a * x[i];
}

KOR_CLONES void multiple_plus(Integer n, const double x[], double b, double y[])
{
    for (Integer i = 0; i < n; ++i) y[i] = x[i] + b * y[i];
}

KOR_CLONES void set_multiple(Integer n, double a, const double x[], double y[])
{
    for (Integer i = 0; i < n; ++i) y[i] = a * x[i];
}

KOR_CLONES double add_multiple_dot(Integer n, double a, const double x[], double y[], const double z[])
{
    Lanes sum = {};
    Integer i = 0;
    for (; i + kWidth <= n; i += kWidth) {
        const Lanes updated = load(y + i) + a * load(x + i);
        store(y + i, updated);
        sum += updated * load(z + i);
    }
    double rest = 0.0;
    for (; i < n; ++i) {
        y[i] += a * x[i];
        rest += y[i] * z[i];
    }
    return sum_of(sum) + rest;
}

KOR_CLONES AfterStep step_along(Integer n, double a, double s, const double p[], const double q[], double x[],
                                double r[])
{
    const double step = a * s;
    Lanes solution = {}, residual = {}, squares = {};
    Integer i = 0;
    for (; i + kWidth <= n; i += kWidth) {
        const Lanes new_x = load(x + i) + step * load(p + i);
        const Lanes new_r = load(r + i) - a * load(q + i);
        store(x + i, new_x);
        store(r + i, new_r);
        solution = greater(absolute(new_x), solution);
        residual = greater(absolute(new_r), residual);
        squares += new_r * new_r;
    }
    AfterStep after = {greatest_of(solution), greatest_of(residual), 0.0};
    double rest = 0.0;
    for (; i < n; ++i) {
        x[i] += step * p[i];
        r[i] -= a * q[i];
        after.solution = std::max(after.solution, std::abs(x[i]));
        after.residual = std::max(after.residual, std::abs(r[i]));
        rest += r[i] * r[i];
    }
    after.residual_squared = sum_of(squares) + rest;
    return after;
}

// A group is projected out at once: its members are orthonormal to working accuracy, so that nothing is lost against one after
// the other, and half of the passes through memory are saved.
void orthogonalise(Integer n, Integer count, const double *const v[], double w[], double h[])
{
    Integer k = 0;
    if (count >= kGroup) {
        group_dots(n, w, v, h);
        for (; k + 2 * kGroup <= count; k += kGroup) group_to_group(n, h + k, v + k, w, v + k + kGroup, h + k + kGroup);
        group_to_one(n, h + k, v + k, w, k + kGroup < count ? v[k + kGroup] : w, h + k + kGroup);
        k += kGroup;
    } else {
        h[0] = dot(n, w, v[0]);
    }
    for (; k < count; ++k) h[k + 1] = add_multiple_dot(n, -h[k], v[k], w, k + 1 < count ? v[k + 1] : w);
    h[count] = std::sqrt(h[count]);
}

} // namespace kor::sparse
