// c06fuc: the two-dimensional transform of a complex array.
//
// The rows, then, through a transposed copy, the columns. All memory is taken first, so that a failure leaves the array
// as it was.
#include <kor/c06.h>

#include "transforms/arguments.hpp"
#include "transforms/rows.hpp"

using namespace kor::transforms;

void c06fuc(Integer m, Integer n, double x[], double y[], const double trigm[], const double trign[], KorError *fail)
{
    const kor::Report report{"c06fuc", fail};
    if (!both_positive(report, m, n)) return;
    const bool m_fits = table_fits(report, "m", m, "trigm", trigm);
    const bool n_fits = table_fits(report, "n", n, "trign", trign);
    if (!m_fits || !n_fits) return;

    Rows rows{Kind::complex, n, trign}, columns{Kind::complex, m, trigm};
    const kor::Workspace<double> transposed{kor::Count{m} * kor::Count{n} * kor::Count{2}};
    if (!transposed || !rows.prepare(m) || !columns.prepare(n)) return report.error<NE_ALLOC_FAIL>();

    const Sequence turned{transposed.data(), transposed.data() + Index{m} * n};
    rows.transform(m, {x, y});
    kernels().transpose(m, n, x, n, turned.re, m);
    kernels().transpose(m, n, y, n, turned.im, m);
    columns.transform(n, turned);
    kernels().transpose(n, m, turned.re, m, x, n);
    kernels().transpose(n, m, turned.im, m, y, n);
    report.success();
}
