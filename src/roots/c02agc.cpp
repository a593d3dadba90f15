// c02agc: all zeros of a polynomial with real coefficients.
#include <kor/c02.h>

#include <algorithm>

#include "frame/report.hpp"
#include "frame/workspace.hpp"
#include "roots/polynomial_marker.hpp"
#include "roots/polynomial_zeros.hpp"

// The zeros are found in extended range, which needs no scaling: the flag is accepted and changes nothing.
void c02agc(Integer n, const double a[], [[maybe_unused]] Boolean scale, Complex z[], KorError *fail)
{
    using namespace kor::roots;
    const kor::Report report{"c02agc", fail};
    if (n < 1) return report.error<NE_INT_ARG_LT>("n", "1", "n", n);
    if (a[0] == 0.0) return report.error<NE_REAL_ARG_LE>("a[0]", "0.0", "a[0]", a[0]);

    kor::Workspace<Extended> b{kor::Count{n} + kor::Count{1}};
    if (!b) return report.error<NE_ALLOC_FAIL>();
    std::fill(z, z + n, kZeroNotFound);
    for (Integer k = 0; k <= n; ++k) {
        if (!std::isfinite(a[k])) return report.error<NE_POLY_NOT_CONV>();
        b[n - k] = a[k];
    }
    report_zeros(report, polynomial_zeros(n, b.data(), z));
}
