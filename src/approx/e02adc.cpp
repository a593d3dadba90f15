// e02adc: least-squares polynomials of all degrees, as Chebyshev series.
//
// Method: the matrix of weighted Chebyshev polynomials is triangularised by Householder reflections, a block of rows at a
// time, together with the right-hand side. The leading parts of one triangle serve all degrees.
#include <kor/e02.h>

#include <algorithm>
#include <cmath>

#include "approx/arguments.hpp"
#include "frame/views.hpp"
#include "frame/workspace.hpp"
#include "linalg/blas.hpp"

namespace {

constexpr Integer kBlock = 128; // rows: a column of a block fills a kilobyte

// Columns 0..k-1 are those of the polynomials, column k is the right-hand side. Their first k rows are the triangle so
// far, the rest a block of new rows.
class GrowingTriangle {
  public:
    GrowingTriangle(double *storage, Integer k) : k_{k}, a_{storage, k + kBlock} { std::fill_n(storage, size(k), 0.0); }
    static std::ptrdiff_t size(Integer k) { return static_cast<std::ptrdiff_t>(k + kBlock) * (k + 1); }

    double *new_rows(Integer column) const { return a_.column(column) + k_; }

    // Takes in the first `rows` of the new rows, and returns the part of their right-hand side that no polynomial fits.
    double absorb(Integer rows)
    {
        for (Integer j = 0; j < k_; ++j) {
            double *const v = new_rows(j);
            const double below = kor::blas::dot(rows, v, 1, v, 1);
            if (below == 0.0) continue;
            double &pivot = a_(j, j);
            const double length = std::copysign(std::sqrt(pivot * pivot + below), -pivot);
            const double head = pivot - length; // no cancellation: the signs differ
            pivot = length;
            for (Integer c = j + 1; c <= k_; ++c) {
                const double tau = (head * a_(j, c) + kor::blas::dot(rows, v, 1, new_rows(c), 1)) / (head * length);
                a_(j, c) += tau * head;
                kor::blas::axpy(rows, tau, v, 1, new_rows(c), 1);
            }
        }
        return kor::blas::dot(rows, new_rows(k_), 1, new_rows(k_), 1);
    }

    double right_hand_side(Integer i) const { return a_(i, k_); }

    // The coefficients of the fit by the first n polynomials.
    void solve(Integer n, double c[]) const
    {
        for (Integer i = n - 1; i >= 0; --i) {
            double sum = a_(i, k_);
            for (Integer j = i + 1; j < n; ++j) sum -= a_(i, j) * c[j];
            c[i] = sum / a_(i, i);
        }
    }

  private:
    Integer k_;
    kor::ColumnMajor<double> a_;
};

// Rows of weighted polynomials for `rows` points. On differences, from the nearer end: no digits are lost there.
void fill_rows(GrowingTriangle &triangle, Integer k, Integer rows, const double x[], const double y[],
               const double weights[], double first, double last)
{
    for (Integer r = 0; r < rows; ++r) {
        const bool upper = x[r] - first > last - x[r];
        // 2 (1 - |xcap|), where xcap runs from -1 to 1.
        const double d = 4.0 * ((upper ? last - x[r] : x[r] - first) / (last - first));
        const double sign = upper ? 1.0 : -1.0;
        double value = weights[r], difference = -0.5 * d * weights[r], alternating = 1.0;
        for (Integer j = 0; j < k; ++j) {
            triangle.new_rows(j)[r] = alternating * value;
            value += difference;
            difference -= d * value;
            alternating *= sign;
        }
        triangle.new_rows(k)[r] = weights[r] * y[r];
    }
}

} // namespace

void e02adc(Integer m, Integer kplus1, Integer tda, const double x[], const double y[], const double weights[],
            double a[], double s[], KorError *fail)
{
    constexpr const char *sequence = "x[r],r=0,1,...m-1";
    const kor::Report report{"e02adc", fail};
    if (m < 1) return report.error<NE_INT_ARG_LT>("m", "1", "m", m);
    if (kplus1 < 1) return report.error<NE_INT_ARG_LT>("kplus1", "1", "kplus1", kplus1);
    if (!kor::approx::weights_positive(report, m, weights)) return;
    Integer mdist = 1;
    for (Integer r = 1; r < m; ++r) {
        if (!(x[r - 1] <= x[r])) return report.error<NE_NOT_NON_DECREASING>(sequence);
        mdist += x[r - 1] < x[r];
    }
    if (!kor::approx::all_finite(report, "x", m, x)) return;
    if (mdist == 1) return report.error<NE_NO_NORMALISATION>("values", sequence);
    if (kplus1 > mdist) return report.error<NE_2_INT_ARG_GT>("kplus1", kplus1, "mdist", mdist, "kplus1", "mdist");
    if (tda < kplus1) return report.error<NE_2_INT_ARG_LT>("tda", tda, "kplus1", kplus1, "tda", "kplus1");

    const kor::Workspace<double> storage((kor::Count{kplus1} + kor::Count{kBlock}) *
                                         (kor::Count{kplus1} + kor::Count{1}));
    if (!storage) return report.error<NE_ALLOC_FAIL>();

    GrowingTriangle triangle{storage.data(), kplus1};
    double rest = 0.0;
    for (Integer r = 0; r < m; r += std::min(kBlock, m - r)) {
        const Integer rows = std::min(kBlock, m - r);
        fill_rows(triangle, kplus1, rows, x + r, y + r, weights + r, x[0], x[m - 1]);
        rest += triangle.absorb(rows);
    }

    const kor::RowMajor<double> fits{a, tda};
    for (Integer i = kplus1 - 1; i >= 0; --i) {
        s[i] = rest;
        rest += triangle.right_hand_side(i) * triangle.right_hand_side(i);
        triangle.solve(i + 1, fits.row(i));
        fits(i, 0) *= 2.0; // its term is halved in the series
    }
    report.success();
}
