// c06gsc: several Hermitian sequences written out as complex sequences.
#include <kor/c06.h>

#include "transforms/arguments.hpp"

using namespace kor::transforms;

void c06gsc(Integer m, Integer n, const double x[], double u[], double v[], KorError *fail)
{
    const kor::Report report{"c06gsc", fail};
    if (!both_positive(report, m, n)) return;

    for (Index i = 0; i < m; ++i, x += n, u += n, v += n) {
        u[0] = x[0];
        v[0] = 0.0;
        for (Index k = 1; 2 * k < n; ++k) {
            u[k] = u[n - k] = x[k];
            v[k] = x[n - k];
            v[n - k] = -x[n - k];
        }
        if (n % 2 == 0) {
            u[n / 2] = x[n / 2];
            v[n / 2] = 0.0;
        }
    }
    report.success();
}
