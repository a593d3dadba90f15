// f02bjc: eigenvalues and eigenvectors of a pair of real matrices, A x = lambda B x, by the QZ algorithm.
#include <kor/f02.h>

#include "linalg/eigen_report.hpp"
#include "linalg/general_eigen.hpp"

void f02bjc(Integer n, double a[], Integer tda, double b[], Integer tdb, double tol, Complex alfa[], double beta[],
            Boolean wantv, double v[], Integer tdv, Integer iter[], KorError *fail)
{
    using namespace kor::linalg;
    const kor::Report report{"f02bjc", fail};
    if (order_refused(report, n, tda) || shorter(report, "tdb", tdb, "n", n)) return;
    if (wantv && shorter(report, "tdv", tdv, "n", n)) return;
    const EigenOutcome outcome = pair_eigenvalues(n, a, tda, b, tdb, tol, alfa, beta, wantv ? v : nullptr, tdv, iter);
    if (outcome == EigenOutcome::no_convergence) return report.error<NE_ITERATIONS_QZ>(iteration_limit(n));
    report_outcome(report, outcome, n);
}
