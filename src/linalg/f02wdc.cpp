// f02wdc: QR factorisation of a real matrix, and where its rank is in doubt the singular value decomposition of R.
#include <kor/f02.h>

#include <cmath>

#include "linalg/matrix_norm.hpp"
#include "linalg/reflection.hpp"
#include "linalg/singular_report.hpp"

namespace {

using namespace kor::linalg;

// A = Q R by reflections: their vectors stay below the diagonal of a, their scalars go to z; b becomes Q' b.
void factorise(Integer m, Integer n, double *a, Integer tda, double *b, double *z, double *work)
{
    const kor::RowMajor<double> A{a, tda};
    for (Integer k = 0; k < n; ++k) {
        double diagonal = A(k, k);
        z[k] = k + 1 < m ? make_reflection(m - k - 1, diagonal, &A(k + 1, k), tda, 0.0) : 0.0;
        if (z[k] != 0.0) {
            A(k, k) = z[k];
            reflect_rows(m - k, n - k - 1, 1.0, &A(k, k), tda, &A(k, k) + 1, tda, work);
            if (b != nullptr) reflect_rows(m - k, 1, 1.0, &A(k, k), tda, b + k, 1, work);
        }
        A(k, k) = diagonal;
    }
}

// The condition number of a triangle in the Euclidean norm, infinite if it is singular. `inverse` has n n elements.
double condition(Integer n, const double *r, double *inverse)
{
    const kor::RowMajor<const double> R{r, n};
    const kor::RowMajor<double> X{inverse, n};
    for (Integer i = n - 1; i >= 0; --i) {
        if (R(i, i) == 0.0) return INFINITY;
        std::fill(X.row(i), X.row(i) + n, 0.0);
        X(i, i) = 1.0;
        for (Integer k = i + 1; k < n; ++k)
            for (Integer j = k; j < n; ++j) X(i, j) -= R(i, k) * X(k, j);
        for (Integer j = i; j < n; ++j) X(i, j) /= R(i, i);
    }
    return matrix_norm(FrobeniusNorm, UpperTriangular, false, n, n, r, n) *
           matrix_norm(FrobeniusNorm, UpperTriangular, false, n, n, inverse, n);
}

} // namespace

void f02wdc(Integer m, Integer n, double a[], Integer tda, Boolean wantb, double b[], double tol, Boolean *svd,
            Integer *irank, double z[], double sv[], Boolean wantr, double r[], Integer tdr, Boolean wantpt,
            double pt[], Integer tdpt, double work[], Integer lwork, KorError *fail)
{
    const kor::Report report{"f02wdc", fail};
    if (less_than(report, "n", n, 1) || row_too_short(report, "m", m, "n", n) ||
        row_too_short(report, "tda", tda, "n", n))
        return;
    if (wantr && row_too_short(report, "tdr", tdr, "n", n)) return;
    if (wantpt && row_too_short(report, "tdpt", tdpt, "n", n)) return;
    if (row_too_short(report, "lwork", lwork, "n", n)) return;
    if (!magnitude_of(m, n, a, tda).is_finite()) return report.error<NE_QR_FAIL_CONV>(step_limit(n));
    // The factorisation is made in copies: no output is touched before memory and convergence are sure.
    const kor::Workspace<double> room(kor::Count{n} * n * 2 + kor::Count{m} * n + kor::Count{m} + kor::Count{n} * 2);
    if (!room) return report.error<NE_ALLOC_FAIL>();
    double *const triangle = room.data(), *const inverse = triangle + std::ptrdiff_t{n} * n,
                  *const factors = inverse + std::ptrdiff_t{n} * n, *const rhs = factors + std::ptrdiff_t{m} * n,
                  *const scalars = rhs + m, *const row = scalars + n;
    for (std::ptrdiff_t i = 0; i < m; ++i) std::copy(a + i * tda, a + i * tda + n, factors + i * n);
    if (wantb) std::copy(b, b + m, rhs);
    factorise(m, n, factors, n, wantb ? rhs : nullptr, scalars, row);
    copy_triangle(n, factors, n, triangle, n);

    const bool rank_in_doubt = !(condition(n, triangle, inverse) * tol <= 1.0);
    Integer rank = n;
    if (rank_in_doubt) {
        IterationRecord record{work};
        const SingularVectors<double> vectors{nullptr, 0, wantpt ? pt : nullptr, tdpt};
        switch (singular_decomposition(n, n, triangle, n, wantb ? 1 : 0, rhs, 1, sv, vectors, record)) {
        case SingularOutcome::success:
            break;
        case SingularOutcome::no_memory:
            return report.error<NE_ALLOC_FAIL>();
        case SingularOutcome::no_convergence:
            return report.error<NE_QR_FAIL_CONV>(step_limit(n));
        }
        rank = static_cast<Integer>(std::count_if(sv, sv + n, [&](double s) { return s > tol * sv[0]; }));
    }
    for (std::ptrdiff_t i = 0; i < m; ++i) std::copy(factors + i * n, factors + (i + 1) * n, a + i * tda);
    if (wantb) std::copy(rhs, rhs + m, b);
    std::copy(scalars, scalars + n, z);
    if (wantr) copy_triangle(n, factors, n, r, tdr);
    *svd = rank_in_doubt;
    *irank = rank;
    report.success();
}
