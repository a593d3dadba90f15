// f01bqc: Cholesky factorisation of a symmetric matrix, made positive definite by a perturbation of its diagonal.
//
// P. E. Gill, W. Murray and M. H. Wright, Practical Optimization (1981), section 4.4.2.2, without interchanges: a pivot is
// raised so far that neither it nor the column of L below it can be too small or too great.
#include <kor/f01.h>

#include <algorithm>
#include <cmath>

#include "frame/constants.hpp"
#include "frame/report.hpp"
#include "linalg/blas.hpp"
#include "linalg/copies.hpp"
#include "linalg/dense_arguments.hpp"
#include "linalg/scratch.hpp"

namespace {

using kor::RowMajor;

// The least pivot, and the bound beta^2 of the elements L(i, j)^2 D(j).
struct Bounds {
    double least_pivot, beta_squared;
    bool finite;

    Bounds(Integer n, RowMajor<const double> A)
    {
        double gamma = 0.0, xi = 0.0, sum = 0.0;
        for (Integer i = 0; i < n; ++i) {
            gamma = std::max(gamma, std::fabs(A(i, i)));
            sum += 0.0 * A(i, i);
            for (Integer j = i + 1; j < n; ++j) {
                xi = std::max(xi, std::fabs(A(i, j)));
                sum += 0.0 * A(i, j); // NaN as soon as one element is not finite
            }
        }
        finite = sum == 0.0;
        const double nu = std::max(1.0, std::sqrt(static_cast<double>(n) * n - 1.0));
        // A matrix of zeros has no scale of its own.
        const double scale = gamma + xi > 0.0 ? gamma + xi : 1.0;
        beta_squared = std::max({gamma, xi / nu, kor::kPrecision * scale});
        least_pivot = kor::kPrecision * scale;
    }
};

} // namespace

void f01bqc(Integer n, double a[], Integer tda, double d[], Integer *jmax, KorError *fail)
{
    using namespace kor::linalg;
    const kor::Report report{"f01bqc", fail};
    if (below_one(report, "n", n) || shorter(report, "tda", tda, "n", n)) return;
    const Bounds bounds{n, {a, tda}};
    if (!bounds.finite) return report.error<NE_NOT_POS_DEF>();
    const Scratch<double, 64> memory{kor::Count{n} * 2};
    if (no_memory(report, bool{memory})) return;
    double *const weighted = memory.data(), *const column = weighted + n;

    const RowMajor<double> A{a, tda};
    double greatest = 0.0;
    *jmax = 0;
    for (Integer j = 0; j < n; ++j) {
        // column = A(j.., j) - L(j.., ..) D L(j, ..)'
        for (Integer k = 0; k < j; ++k) weighted[k] = A(j, k) * d[k];
        for (Integer i = j; i < n; ++i) column[i] = A(j, i);
        if (j > 0)
            kor::blas::gemv(kor::blas::kRowMajor, NoTranspose, n - j, j, -1.0, A.row(j), tda, weighted, 1, 1.0,
                            column + j, 1);
        double theta = 0.0;
        for (Integer i = j + 1; i < n; ++i) theta = std::max(theta, std::fabs(column[i]));
        const double pivot =
            std::max({std::fabs(column[j]), theta * (theta / bounds.beta_squared), bounds.least_pivot});
        if (const double perturbation = pivot - column[j]; perturbation > greatest) {
            greatest = perturbation;
            *jmax = j + 1;
        }
        d[j] = pivot;
        for (Integer i = j + 1; i < n; ++i) A(i, j) = column[i] / pivot;
    }
    if (*jmax != 0) return report.error<NE_MATRIX_NOT_ZERO>(*jmax);
    report.success();
}
