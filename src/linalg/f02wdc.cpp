// f02wdc: QR factorisation of a real matrix, and where its rank is in doubt the singular value decomposition of R.
#include <kor/f02.h>

#include "linalg/householder.hpp"
#include "linalg/singular_report.hpp"
#include "linalg/triangle_condition.hpp"

void f02wdc(Integer m, Integer n, double a[], Integer tda, Boolean wantb, double b[], double tol, Boolean *svd,
            Integer *irank, double z[], double sv[], Boolean wantr, double r[], Integer tdr, Boolean wantpt,
            double pt[], Integer tdpt, double work[], Integer lwork, KorError *fail)
{
    using namespace kor::linalg;
    const kor::Report report{"f02wdc", fail};
    if (below_one(report, "n", n) || shorter(report, "m", m, "n", n) || shorter(report, "tda", tda, "n", n)) return;
    if (wantr && shorter(report, "tdr", tdr, "n", n)) return;
    if (wantpt && shorter(report, "tdpt", tdpt, "n", n)) return;
    if (shorter(report, "lwork", lwork, "n", n)) return;
    if (!magnitude_of(m, n, a, tda).is_finite()) return report.error<NE_QR_FAIL_CONV>(step_limit(n));
    // The factorisation is made in copies: no output is touched before memory and convergence are sure.
    const kor::Workspace<double> room(kor::Count{n} * n + kor::Count{m} * n + kor::Count{m} + kor::Count{n});
    const kor::Workspace<double> panels(reflection_work(m, n));
    if (!room || !panels) return report.error<NE_ALLOC_FAIL>();
    double *const triangle = room.data(), *const factors = triangle + std::ptrdiff_t{n} * n,
                  *const rhs = factors + std::ptrdiff_t{m} * n, *const scalars = rhs + m;
    for (std::ptrdiff_t i = 0; i < m; ++i) std::copy(a + i * tda, a + i * tda + n, factors + i * n);
    qr_factor(m, n, factors, n, scalars, panels.data());
    if (wantb) {
        std::copy(b, b + m, rhs);
        qr_apply(true, m, n, factors, n, scalars, 1, rhs, 1, panels.data());
    }
    copy_triangle(n, factors, n, triangle, n);
    const bool rank_in_doubt = !(condition_of_triangle(n, triangle) * tol <= 1.0);
    copy_triangle(n, factors, n, triangle, n);

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
