// f04yac: covariances of the solution of a least-squares problem.
#include <kor/f04.h>

#include <algorithm>

#include "frame/report.hpp"
#include "frame/workspace.hpp"
#include "linalg/copies.hpp"
#include "linalg/dense_arguments.hpp"
#include "linalg/lapack.hpp"
#include "linalg/vector_operations.hpp"

namespace {

using namespace kor::linalg;

// C = sigma^2 F' F: the rows of F, `rank` by n, are rows of P', each over its singular value; or F = inverse(R)', upper
// triangular from the other side. Either way row k of F is formed, element i at f[k * n + i].
void form_factor(Integer n, Integer rank, const double *a, Integer tda, bool svd, const double *sv, double *f)
{
    if (svd) {
        for (std::ptrdiff_t k = 0; k < rank; ++k)
            for (std::ptrdiff_t i = 0; i < n; ++i) f[k * n + i] = a[k * tda + i] / sv[k];
        return;
    }
    for (std::ptrdiff_t i = 0; i < n; ++i) {
        std::fill(f + i * n, f + i * n + i, 0.0);
        std::copy(a + i * tda + i, a + i * tda + n, f + i * n + i);
    }
    kor::lapack::trtri(LowerTriangle, NotUnitTriangular, n, f, n);
    transpose_in_place<false>(n, f, n);
}

} // namespace

void f04yac(Integer job, Integer n, double sigma, Integer rank, double a[], Integer tda, Boolean svd, const double sv[],
            double cj[], KorError *fail)
{
    const kor::Report report{"f04yac", fail};
    if (job < -1) return report.error<NE_INT_ARG_LT>("job", "-1", "job", job);
    if (below_one(report, "n", n) || longer(report, "job", job, "n", n)) return;
    if (!(sigma >= 0.0)) return report.error<NE_REAL_ARG_LT>("sigma", "0.0", "sigma", sigma);
    if (negative(report, "rank", rank) || longer(report, "rank", rank, "n", n)) return;
    if (!svd && shorter(report, "rank", rank, "n", n)) return; // without singular values the rank is full
    if (shorter(report, "tda", tda, "n", n)) return;
    for (std::ptrdiff_t k = 0; k < rank; ++k)
        if ((svd ? sv[k] : a[k * tda + k]) == 0.0) return report.error<NE_SINGULAR>();
    const kor::Workspace<double> f{kor::Count{rank} * n};
    if (no_memory(report, bool{f})) return;

    form_factor(n, rank, a, tda, svd != 0, sv, f.data());
    // sigma^2 may be out of range where the covariances are not.
    for (double &element : f) element *= sigma;
    const auto covariance = [&](Integer i, Integer j) { return dot(rank, f.data() + i, n, f.data() + j, n); };
    if (job == 0) {
        for (std::ptrdiff_t i = 0; i < n; ++i) std::fill(a + i * tda, a + i * tda + n, 0.0);
        if (rank > 0)
            kor::blas::syrk(kor::blas::kRowMajor, UpperTriangle, Transpose, n, rank, 1.0, f.data(), n, 0.0, a, tda);
        reflect_upper(n, a, tda, a, tda);
    } else {
        for (Integer i = 0; i < n; ++i) cj[i] = job < 0 ? covariance(i, i) : covariance(i, job - 1);
    }
    report.success();
}
