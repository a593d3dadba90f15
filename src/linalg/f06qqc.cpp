// f06qqc: adds a row to a real upper triangular factor: QR factorisation of a triangle above a row.
#include <kor/f06.h>

#include "frame/views.hpp"
#include "linalg/arguments.hpp"
#include "linalg/rotation.hpp"
#include "linalg/vector_operations.hpp"

void f06qqc(Integer n, double alpha, double x[], Integer incx, double a[], Integer tda, double c[], double s[])
{
    using namespace kor::linalg;
    if (!accepted("f06qqc", argument(1, n >= 0), argument(4, incx != 0), argument(6, row_fits(tda, n)))) return;
    if (alpha == 0.0)
        fill(n, 0.0, x, incx);
    else
        scal(n, alpha, x, incx);

    const Strided<double> row{x, n, incx};
    const kor::RowMajor<double> U{a, tda};
    for (Integer k = 0; k < n; ++k) {
        const Rotation<double> rotation = annihilate(U(k, k), row[k]);
        c[k] = rotation.c;
        s[k] = rotation.s;
        if (!rotation.is_identity())
            for (Integer j = k + 1; j < n; ++j) turn(U(k, j), row[j], rotation.c, rotation.s);
    }
}
