// e02afc: the Chebyshev coefficients of the polynomial through values at the extrema of a Chebyshev polynomial.
#include <kor/e02.h>

#include <algorithm>
#include <cmath>

#include <kor/c06.h>

#include "frame/report.hpp"
#include "frame/workspace.hpp"

void e02afc(Integer nplus1, const double f[], double a[], KorError *fail)
{
    const kor::Report report{"e02afc", fail};
    if (nplus1 < 2) return report.error<NE_INT_ARG_LT>("nplus1", "2", "nplus1", nplus1);
    const Integer n = nplus1 - 1;
    const kor::Workspace<double> trig(kor::Count{2} * kor::Count{n}), z(kor::Count{nplus1});
    if (!trig || !z) return report.error<NE_ALLOC_FAIL>();

    // The coefficients are the cosine transform of the values, up to a factor.
    KorError inner{};
    std::copy_n(f, nplus1, z.data());
    c06gzc(n, trig.data(), &inner);
    if (inner.code == NE_NOERROR) c06hbc(1, n, z.data(), trig.data(), &inner);
    if (inner.code == NE_ALLOC_FAIL) return report.error<NE_ALLOC_FAIL>();
    if (inner.code != NE_NOERROR) return report.error<NE_INTERNAL_ERROR>();

    const double factor = std::sqrt(2.0 / n);
    for (Integer k = 0; k < n; ++k) a[k] = factor * z[k];
    a[n] = 0.5 * factor * z[n];
    report.success();
}
