// f01lzc: reduction of a real upper triangular matrix to upper bidiagonal form.
#include <kor/f01.h>

#include <algorithm>

#include "frame/report.hpp"
#include "frame/views.hpp"
#include "frame/workspace.hpp"
#include "linalg/bidiagonal.hpp"
#include "linalg/copies.hpp"
#include "linalg/dense_arguments.hpp"

void f01lzc(Integer n, double a[], Integer tda, double c[], Integer tdc, Boolean want_b, double b[], Boolean want_q,
            Boolean want_y, double y[], Integer tdy, Integer ncol_y, Boolean want_z, double z[], Integer tdz,
            Integer ncol_z, double d[], double e[], KorError *fail)
{
    using namespace kor::linalg;
    const kor::Report report{"f01lzc", fail};
    if (below_one(report, "n", n) || shorter(report, "tda", tda, "n", n) || shorter(report, "tdc", tdc, "n", n)) return;
    if (want_y && (below_one(report, "ncol_y", ncol_y) || shorter(report, "tdy", tdy, "ncol_y", ncol_y))) return;
    if (want_z && (below_one(report, "ncol_z", ncol_z) || shorter(report, "tdz", tdz, "ncol_z", ncol_z))) return;
    const kor::Workspace<double> twists{kor::Count{n} * 2}; // none, in real numbers
    const Integer widest = std::max(want_y ? ncol_y : 0, want_z ? ncol_z : 0);
    const kor::Workspace<double> work{kor::Count{n} * 2 + widest};
    const kor::Workspace<double> basis{want_q ? kor::Count{n} * n : kor::Count{0}};
    if (no_memory(report, twists && work && basis)) return;

    const kor::RowMajor<double> C{c, tdc};
    for (std::ptrdiff_t i = 0; i < n; ++i) {
        if (c != a) std::copy(a + i * tda + i, a + i * tda + n, &C(i, i));
        std::fill(C.row(i), C.row(i) + i, 0.0);
    }
    double *const left = twists.data(), *const right = left + n;
    reduce_to_bidiagonal(n, n, c, tdc, d, e, left, right, work.data());
    if (want_b) apply_left_reflections(n, n, c, tdc, left, 1, b, 1, work.data());
    if (want_y) apply_left_reflections(n, n, c, tdc, left, ncol_y, y, tdy, work.data());
    if (want_z) apply_right_reflections(n, c, tdc, right, ncol_z, z, tdz, work.data());
    if (want_q) {
        form_left_basis(n, n, c, tdc, left, basis.data(), n, work.data());
        transpose_into(n, n, basis.data(), n, c, tdc);
    }
    report.success();
}
