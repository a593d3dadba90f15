// Zeros of a real cubic or quartic with error estimates.
//
// The eigenvalues of the companion matrix, and their condition numbers, come from LAPACK's balanced QR algorithm: they give
// the error estimates. The zeros themselves come from the solver for any degree, which works in extended precision and so
// keeps within estimates that hold for double.
#include "roots/companion_zeros.hpp"

#include <algorithm>
#include <cmath>

#include "frame/constants.hpp"
#include "linalg/lapack.hpp"
#include "roots/polynomial_zeros.hpp"

namespace kor::roots {

namespace {

constexpr int kN = kMaxCompanionDegree;

enum class CompanionStatus { found = 0, zero_leading = 1, overflow = 2, not_converged = 3 };

struct Eigenvalues {
    double re[kN], im[kN], condition[kN];
};

// Column-major, as LAPACK takes it.
struct Companion {
    Integer n;
    double h[kN * kN];
    double &operator()(Integer i, Integer j) { return h[i + j * n]; }
};

bool form(Companion &m, const double *a)
{
    std::fill(m.h, m.h + kN * kN, 0.0);
    for (Integer i = 1; i < m.n; ++i) m(i, i - 1) = 1.0;
    for (Integer i = 0; i < m.n; ++i) {
        const double quotient = -a[m.n - i] / a[0];
        if (!(std::fabs(quotient) <= kLargest)) return false;
        m(i, m.n - 1) = quotient;
    }
    return true;
}

double one_norm(Companion m)
{
    double largest = 0.0;
    for (Integer j = 0; j < m.n; ++j) {
        double sum = 0.0;
        for (Integer i = 0; i < m.n; ++i) sum += std::fabs(m(i, j));
        largest = std::max(largest, sum);
    }
    return largest;
}

// Balances, reduces to Schur form, and finds the condition of each eigenvalue.
bool eigenvalues(Companion &m, Eigenvalues &found_values)
{
    const Integer n = m.n;
    double scale[kN], work[kN * (kN + 6)];
    Integer low = 1, high = n;
    if (lapack::gebal('B', n, m.h, n, &low, &high, scale) != 0) return false;

    // Permutations may have brought elements below the subdiagonal: the companion matrix is no Hessenberg matrix then.
    double tau[kN], q[kN * kN];
    if (lapack::gehrd(n, low, high, m.h, n, tau, work, kN * (kN + 6)) != 0) return false;
    if (lapack::hseqr('S', 'N', n, low, high, m.h, n, found_values.re, found_values.im, q, n, work, kN * (kN + 6)) != 0)
        return false;
    double left[kN * kN], right[kN * kN], separation[kN];
    Integer found = 0, unused[2 * kN];
    if (lapack::trevc('B', 'A', nullptr, n, m.h, n, left, n, right, n, n, &found, work) != 0) return false;
    return lapack::trsna('E', 'A', nullptr, n, m.h, n, left, n, right, n, found_values.condition, separation, n, &found,
                         work, n, unused) == 0;
}

// The eigenvalue that belongs to a zero: the nearest of those not taken yet.
Integer nearest(Integer n, const Eigenvalues &eigenvalues, const bool *taken, Complex z)
{
    Integer best = -1;
    double least = 0.0;
    for (Integer i = 0; i < n; ++i) {
        if (taken[i]) continue;
        const double distance = std::fabs(eigenvalues.re[i] - z.re) + std::fabs(eigenvalues.im[i] - z.im);
        if (best < 0 || distance < least) {
            best = i;
            least = distance;
        }
    }
    return best;
}

CompanionStatus solve(Integer n, const double *a, Complex *z, double *errest)
{
    if (a[0] == 0.0) return CompanionStatus::zero_leading;
    for (Integer i = 0; i <= n; ++i)
        if (!std::isfinite(a[i])) return CompanionStatus::not_converged;
    Companion m{n, {}};
    if (!form(m, a)) return CompanionStatus::overflow;
    Eigenvalues eigenvalue;
    if (!eigenvalues(m, eigenvalue)) return CompanionStatus::not_converged;

    Extended coefficients[kN + 1];
    for (Integer k = 0; k <= n; ++k) coefficients[n - k] = a[k];
    if (polynomial_zeros(n, coefficients, z) != PolynomialStatus::found) return CompanionStatus::not_converged;

    const double norm = one_norm(m); // of the matrix as the QR algorithm left it
    bool taken[kN] = {};
    for (Integer i = 0; i < n; ++i) {
        const Integer match = nearest(n, eigenvalue, taken, z[i]);
        taken[match] = true;
        // Never less than what the rounding of the zero to double may cost.
        const double estimate =
            std::max(kPrecision * norm / eigenvalue.condition[match], kPrecision * std::hypot(z[i].re, z[i].im));
        errest[i] = estimate <= 1.0 / kSafeSmall ? estimate : 1.0 / kSafeSmall;
    }
    return CompanionStatus::found;
}

} // namespace

void companion_zeros(const Report &report, Integer n, const double *a, const char *leading, const char *constraint,
                     double *zeror, double *zeroi, double *errest)
{
    Complex z[kN];
    double bounds[kN];
    const CompanionStatus status = solve(n, a, z, bounds);
    report.set_errnum(static_cast<Integer>(status));
    switch (status) {
    case CompanionStatus::found:
        for (Integer i = 0; i < n; ++i) {
            zeror[i] = z[i].re;
            zeroi[i] = z[i].im;
            errest[i] = bounds[i];
        }
        return report.success();
    case CompanionStatus::zero_leading:
        return report.error<NE_REAL>(leading, a[0], constraint);
    case CompanionStatus::overflow:
        return report.error<NE_C02_OVERFLOW>();
    case CompanionStatus::not_converged:
        return report.error<NE_C02_NOT_CONV>();
    }
    report.error<NE_INTERNAL_ERROR>();
}

} // namespace kor::roots
