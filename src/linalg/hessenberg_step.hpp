// The Hessenberg iteration as a public step: tests and scaling around it.
#pragma once

#include <algorithm>

#include "frame/constants.hpp"
#include "frame/views.hpp"
#include "frame/workspace.hpp"
#include "linalg/eigen_report.hpp"
#include "linalg/general_eigen.hpp"
#include "linalg/hessenberg.hpp"
#include "linalg/magnitude.hpp"
#include "linalg/transpose.hpp"

namespace kor::linalg {

// With vecs, whose columns turn: the eigenvectors replace them.
inline void iterate_and_report(const Report &report, Integer n, BalancedRange range, double eps, double *h, Integer tdh,
                               double *vecs, Integer tdvecs, double *wr, double *wi, Integer *count)
{
    Magnitude magnitude;
    for (std::ptrdiff_t i = 0; i < n; ++i) {
        const std::ptrdiff_t first = std::max<std::ptrdiff_t>(i - 1, 0);
        magnitude.take(n - first, h + i * tdh + first);
    }
    if (!magnitude.is_finite()) return report.error<NE_TOO_MANY_ITERATIONS>(iteration_limit(n));
    Workspace<double> work(vecs != nullptr ? Count{n} * n : Count{1});
    Workspace<Complex> vector(Count{n});
    if (!work || !vector) return report.error<NE_ALLOC_FAIL>();

    const double scaling = magnitude.scaling();
    const auto scale = [&](double factor) {
        for (std::ptrdiff_t i = 0; i < n; ++i)
            for (std::ptrdiff_t j = std::max<std::ptrdiff_t>(i - 1, 0); j < n; ++j) h[i * tdh + j] *= factor;
    };
    if (scaling != 1.0) scale(scaling);
    if (vecs != nullptr) transpose_in_place<false>(n, vecs, tdvecs);
    const Integer unsplit = hessenberg_eigenvalues(n, range, effective_precision(eps, kPrecision), h, tdh, vecs, tdvecs,
                                                   wr, wi, count, iteration_limit(n));
    if (unsplit == 0 && vecs != nullptr) {
        const RowMajor<double> X{work.data(), n}, V{vecs, tdvecs};
        schur_eigenvectors(n, h, tdh, wr, wi, vecs, tdvecs, X.a, n, &vector[0].re);
        for (Integer j = 0; j < n; ++j) {
            const bool pair = wi[j] != 0.0;
            for (Integer i = 0; i < n; ++i) vector[i] = {X(j, i), pair ? X(j + 1, i) : 0.0};
            normalise_vector(n, vector.data(), 1);
            for (Integer i = 0; i < n; ++i) V(i, j) = vector[i].re;
            if (!pair) continue;
            ++j;
            for (Integer i = 0; i < n; ++i) V(i, j) = vector[i].im;
        }
    }
    if (scaling != 1.0) {
        scale(1.0 / scaling);
        for (Integer i = unsplit; i < n; ++i) {
            wr[i] /= scaling;
            wi[i] /= scaling;
        }
    }
    report_outcome(report, unsplit == 0 ? EigenOutcome::success : EigenOutcome::no_convergence, n);
}

} // namespace kor::linalg
