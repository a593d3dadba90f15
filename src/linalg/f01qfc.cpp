// f01qfc: QR factorisation of a real matrix with interchanges of columns.
//
// P. A. Businger and G. H. Golub, Linear least squares solutions by Householder transformations, Numer. Math. 7 (1965)
// 269-276; the lengths of the columns are brought up to date as in Z. Drmac and Z. Bujanovic, ACM Trans. Math. Softw. 35
// (2008) 12.
#include <kor/f01.h>

#include <algorithm>
#include <cmath>

#include "frame/constants.hpp"
#include "frame/report.hpp"
#include "frame/views.hpp"
#include "linalg/arguments.hpp"
#include "linalg/dense_arguments.hpp"
#include "linalg/householder.hpp"
#include "linalg/norm.hpp"
#include "linalg/reflection.hpp"

namespace {

using namespace kor::linalg;

// length[j] is what the rows from k on leave of column j, exact[j] what it was when it was last summed.
void factor_with_interchanges(Integer m, Integer n, double *a, Integer tda, double *zeta, Integer *perm, double *length,
                              double *exact, double *row)
{
    const kor::RowMajor<double> A{a, tda};
    const double suspect = std::sqrt(kor::kPrecision); // a length that has shrunk to this has lost half its digits
    const Integer steps = std::min(m, n);
    for (Integer j = 0; j < n; ++j) exact[j] = length[j] = euclidean_norm(m, a + j, tda);
    for (Integer k = 0; k < steps; ++k) {
        const Integer chosen = static_cast<Integer>(std::max_element(length + k, length + n) - length);
        perm[k] = chosen + 1;
        if (chosen != k) {
            for (Integer i = 0; i < m; ++i) std::swap(A(i, k), A(i, chosen));
            length[chosen] = length[k];
            exact[chosen] = exact[k];
        }
        zeta[k] = k + 1 < m ? make_reflection(m - k - 1, A(k, k), &A(k + 1, k), tda, 0.0) : 0.0;
        if (k + 1 == n) break;
        if (zeta[k] != 0.0)
            reflect(m - k - 1, n - k - 1, zeta[k], &A(k + 1, k), tda, &A(k, k) + 1, &A(k + 1, k) + 1, tda, row);
        for (Integer j = k + 1; j < n; ++j) {
            if (length[j] == 0.0) continue;
            const double share = A(k, j) / length[j], left = std::max((1.0 + share) * (1.0 - share), 0.0);
            const double shrunk = length[j] / exact[j];
            if (left * shrunk * shrunk > suspect)
                length[j] *= std::sqrt(left);
            else
                exact[j] = length[j] = k + 1 < m ? euclidean_norm(m - k - 1, &A(k + 1, j), tda) : 0.0;
        }
    }
}

} // namespace

void f01qfc(Integer pivot, Integer m, Integer n, double a[], Integer tda, double zeta[], Integer perm[], double work[],
            KorError *fail)
{
    const kor::Report report{"f01qfc", fail};
    if (pivot != VariablePivot && pivot != FixedPivot) return report.error<NE_BAD_PARAM>("pivot");
    if (negative(report, "m", m) || negative(report, "n", n) || shorter(report, "tda", tda, "n", n)) return;
    const kor::Workspace<double> memory{pivot == FixedPivot ? reflection_work(m, n) : kor::Count{n}};
    if (no_memory(report, bool{memory})) return;

    if (pivot == FixedPivot) {
        qr_factor(m, n, a, tda, zeta, memory.data());
        for (Integer k = 0; k < std::min(m, n); ++k) perm[k] = k + 1;
    } else {
        factor_with_interchanges(m, n, a, tda, zeta, perm, work, work + n, memory.data());
    }
    report.success();
}
