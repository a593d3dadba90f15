// Cubic B-splines on any non-decreasing knots: the span of a point, values of the basis, values and derivatives of a sum.
//
// A span is named by the index l of its left knot: t[l] <= x < t[l+1]. Four B-splines, those of index l-3 to l, live on it.
// Source: C. de Boor, A Practical Guide to Splines (1978), chapters 9 and 10.
#pragma once

#include <algorithm>
#include <cstddef>

#include <kor.h>

namespace kor::approx {

inline constexpr Integer kDegree = 3;
inline constexpr Integer kOrder = 4;
inline constexpr Integer kEndKnots = 2 * kOrder; // of a spline: four at either end

// The knots of one dimension; the spline is defined on [first(), last()].
struct Knots {
    const double *t;
    Integer n;

    double operator[](std::ptrdiff_t i) const { return t[i]; }
    double first() const { return t[kDegree]; }
    double last() const { return t[n - kOrder]; }
    Integer basis_size() const { return n - kOrder; }
    Integer interior() const { return n - kEndKnots; }

    bool holds(double x) const { return x >= first() && x <= last(); }

    // The span of x, continuous from the right; at the right end, and beyond it, the last span that is not empty.
    Integer span(double x) const
    {
        Integer low = kDegree, high = n - kOrder;
        while (high - low > 1) {
            const Integer middle = low + (high - low) / 2;
            if (t[middle] <= x)
                low = middle;
            else
                high = middle;
        }
        while (low > kDegree && !(t[low] < t[low + 1])) --low;
        return low;
    }

    // The span that ends at x or holds it: continuous from the left.
    Integer span_from_left(double x) const
    {
        const auto *end = std::lower_bound(t + kOrder, t + n - kOrder, x);
        auto low = static_cast<Integer>(end - t) - 1;
        while (low < n - kOrder - 1 && !(t[low] < t[low + 1])) ++low;
        return low;
    }

    // The span of x, where the last one asked for is a good guess.
    Integer span_near(double x, Integer guess) const
    {
        if (t[guess] <= x && x < t[guess + 1]) return guess;
        if (guess + 1 < n - kOrder && t[guess + 1] <= x && x < t[guess + 2]) return guess + 1;
        return span(x);
    }
};

// The reciprocals of the lengths of all runs of 1, 2, 3 knot intervals about span l: run r of k intervals ends at knot
// l+1+r. All at once, so that no division waits for another.
struct RunReciprocals {
    double of[kDegree][kDegree];

    RunReciprocals(const double *t, std::ptrdiff_t l)
    {
        for (int k = 1; k <= kDegree; ++k)
            for (int r = 0; r < k; ++r) of[k - 1][r] = 1.0 / (t[l + 1 + r] - t[l + 1 + r - k]);
    }
};

// The four B-splines that live on span l, at x: non-negative, with sum 1.
inline void basis_values(const double *t, std::ptrdiff_t l, double x, double b[kOrder])
{
    const RunReciprocals reciprocals{t, l};
    b[0] = 1.0;
    for (int k = 1; k <= kDegree; ++k) {
        double carried = 0.0;
        for (int r = 0; r < k; ++r) {
            const double right = t[l + 1 + r], left = t[l + 1 + r - k];
            const double share = b[r] * reciprocals.of[k - 1][r];
            b[r] = carried + share * (right - x);
            carried = share * (x - left);
        }
        b[k] = carried;
    }
}

// sum c[i] B_i(x) on span l: averages of the coefficients, so that no digits are lost.
inline double spline_value(const double *t, const double *c, std::ptrdiff_t l, double x)
{
    const RunReciprocals reciprocals{t, l};
    double d[kOrder];
    for (int j = 0; j < kOrder; ++j) d[j] = c[l - kDegree + j];
    for (int k = kDegree; k >= 1; --k) {
        for (int j = 0; j < k; ++j) {
            const double left = t[l + 1 + j - k], right = t[l + 1 + j], reciprocal = reciprocals.of[k - 1][j];
            d[j] = d[j] * ((right - x) * reciprocal) + d[j + 1] * ((x - left) * reciprocal);
        }
    }
    return d[0];
}

// The value and the three derivatives on span l. The derivatives are splines of lower degree, whose coefficients are
// differences.
inline void spline_derivatives(const double *t, const double *c, std::ptrdiff_t l, double x, double s[kOrder])
{
    double d[kOrder];
    for (int j = 0; j < kOrder; ++j) d[j] = c[l - kDegree + j];
    for (int order = 0; order <= kDegree; ++order) {
        if (order > 0) {
            const int degree = kOrder - order; // of what is differentiated
            for (int j = 0; j < degree; ++j) d[j] = degree * (d[j + 1] - d[j]) / (t[l + 1 + j] - t[l + 1 + j - degree]);
        }
        double e[kOrder];
        for (int j = 0; j < kOrder; ++j) e[j] = d[j];
        for (int k = kDegree - order; k >= 1; --k) {
            for (int j = 0; j < k; ++j) {
                const double left = t[l + 1 + j - k], right = t[l + 1 + j];
                e[j] = (e[j] * (right - x) + e[j + 1] * (x - left)) / (right - left);
            }
        }
        s[order] = e[0];
    }
}

} // namespace kor::approx
