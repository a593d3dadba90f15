// f02szc: singular values of a real bidiagonal matrix, for the least-squares solvers.
#include <kor/f02.h>

#include "linalg/singular_report.hpp"

void f02szc(Integer n, double d[], double e[], double sv[], Boolean want_b, double b[], Boolean want_y, double y[],
            Integer tdy, Integer ncol_y, Boolean want_z, double z[], Integer tdz, Integer ncol_z, double work[],
            KorError *fail)
{
    using namespace kor::linalg;
    const kor::Report report{"f02szc", fail};
    if (below_one(report, "n", n)) return;
    if (want_y && columns_refused(report, "ncol_y", ncol_y, "tdy", tdy)) return;
    if (want_z && columns_refused(report, "ncol_z", ncol_z, "tdz", tdz)) return;

    std::copy(d, d + n, sv);
    std::copy(e, e + n - 1, work);
    const ScaledBidiagonal scaled{n, sv, work};
    if (!scaled.is_finite()) return report.error<NE_QR_FAIL_CONV>(step_limit(n));
    const TurningRows<double> vector{b, 1, want_b ? 1 : 0}, left{y, tdy, want_y ? ncol_y : 0},
        right{z, tdz, want_z ? ncol_z : 0};
    Integer steps;
    const Integer failures = diagonalise_bidiagonal(n, sv, work, step_limit(n), steps, BothRows{vector, left}, right);
    scaled.restore();
    if (failures != 0) return report.error<NE_QR_FAIL_CONV>(step_limit(n));
    report.success();
}
