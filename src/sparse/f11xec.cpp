// f11xec: product of a symmetric matrix in coordinate storage with a vector.
#include <kor/f11.h>

#include "frame/workspace.hpp"
#include "sparse/arguments.hpp"
#include "sparse/products.hpp"

void f11xec(Integer n, Integer nnz, const double a[], const Integer irow[], const Integer icol[], Integer check,
            const double x[], double y[], KorError *fail)
{
    using namespace kor::sparse;
    const kor::Report report{"f11xec", fail};
    if (reports_size(report, n, nnz, Triangle::lower)) return;
    if (check != Kor_SparseSym_Check && check != Kor_SparseSym_NoCheck) return report.error<NE_BAD_PARAM>("check");
    const Matrix matrix{n, nnz, a, irow, icol};
    if (check == Kor_SparseSym_Check && !is_sound(matrix, Triangle::lower)) return report.error<NE_SYMM_MATRIX_DUP>();

    const kor::Workspace<Integer> start{kor::Count{n} + 1};
    if (!start) return report.error<NE_ALLOC_FAIL>();
    find_row_starts(matrix, start.data());
    multiply_symmetric(matrix, start.data(), x, y);
    report.success();
}
