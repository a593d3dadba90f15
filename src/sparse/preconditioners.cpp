// Preconditioners: forward and backward substitution with incomplete factors and with the triangles of the matrix itself.
#include "sparse/preconditioners.hpp"

#include "sparse/vectors.hpp"

namespace kor::sparse {

namespace {

// Rows one after the other from behind the matrix to within the arrays, each of at least its diagonal.
bool rows_follow_each_other(Integer n, Integer nnz, Integer length, const Integer row_start[])
{
    if (row_start[0] != nnz + 1) return false;
    for (Integer i = 0; i < n; ++i)
        if (row_start[i + 1] <= row_start[i] || row_start[i + 1] - 1 > length) return false;
    return true;
}

// Row i, from 0: its places are p = first..last, from 1, and its columns increase from 1 or more to at most `greatest`.
bool row_is_sound(const Integer row[], const Integer column[], Integer i, Integer first, Integer last, Integer greatest)
{
    Integer previous = 0;
    for (Integer p = first - 1; p < last; ++p) {
        if (row[p] != i + 1 || column[p] <= previous || column[p] > greatest) return false;
        previous = column[p];
    }
    return true;
}

} // namespace

bool LuFactor::is_sound(Integer nnz, Integer length, Integer work[]) const
{
    if (!invert_order(n, row_order, work) || !invert_order(n, column_order, work)) return false;
    if (!rows_follow_each_other(n, nnz, length, row_start)) return false;
    for (Integer i = 0; i < n; ++i) {
        if (diagonal[i] < row_start[i] || diagonal[i] >= row_start[i + 1] || column[diagonal[i] - 1] != i + 1)
            return false;
        if (!row_is_sound(row, column, i, row_start[i], row_start[i + 1] - 1, n)) return false;
    }
    return true;
}

void LuFactor::solve(const double y[], double x[], double work[]) const
{
    for (Integer i = 0; i < n; ++i) {
        double sum = y[row_order[i] - 1];
        for (Integer p = row_start[i] - 1; p < diagonal[i] - 1; ++p) sum -= value[p] * work[column[p] - 1];
        work[i] = sum;
    }
    for (Integer i = n - 1; i >= 0; --i) {
        double sum = work[i];
        for (Integer p = diagonal[i]; p < row_start[i + 1] - 1; ++p) sum -= value[p] * work[column[p] - 1];
        work[i] = sum * value[diagonal[i] - 1];
        x[column_order[i] - 1] = work[i];
    }
}

bool CholeskyFactor::is_sound(Integer nnz, Integer length, Integer work[]) const
{
    if (!invert_order(n, order, work) || !rows_follow_each_other(n, nnz, length, row_start)) return false;
    for (Integer i = 0; i < n; ++i) {
        const Integer last = row_start[i + 1] - 1;
        if (column[last - 1] != i + 1 || !row_is_sound(row, column, i, row_start[i], last, i + 1)) return false;
    }
    return true;
}

void CholeskyFactor::solve(const double y[], double x[], double work[]) const
{
    for (Integer i = 0; i < n; ++i) {
        double sum = y[order[i] - 1];
        for (Integer p = row_start[i] - 1; p < row_start[i + 1] - 2; ++p) sum -= value[p] * work[column[p] - 1];
        work[i] = sum;
    }
    for (Integer i = 0; i < n; ++i) work[i] *= value[row_start[i + 1] - 2];
    // By columns of L': each unknown that is found is taken out of those before it.
    for (Integer i = n - 1; i >= 0; --i) {
        const double found = work[i];
        for (Integer p = row_start[i] - 1; p < row_start[i + 1] - 2; ++p) work[column[p] - 1] -= value[p] * found;
        x[order[i] - 1] = found;
    }
}

Diagonal::Found Diagonal::find(const Matrix &a, const Integer start[])
{
    if (!reciprocal_.allocate(a.n) || !place_.allocate(a.n)) return Found::no_memory;
    for (Integer i = 0; i < a.n; ++i) {
        Integer p = start[i];
        while (p < start[i + 1] && a.column[p] < i + 1) ++p;
        if (p == start[i + 1] || a.column[p] != i + 1 || a.value[p] == 0.0) return Found::zero;
        place_[i] = p;
        reciprocal_[i] = 1.0 / a.value[p];
    }
    return Found::all;
}

void Diagonal::jacobi(Integer n, const double y[], double x[]) const
{
    for (Integer i = 0; i < n; ++i) x[i] = reciprocal_[i] * y[i];
}

void Diagonal::over_relax(const Matrix &a, const Integer start[], double omega, const double y[], double x[]) const
{
    for (Integer i = 0; i < a.n; ++i) {
        double sum = 0.0;
        for (Integer p = start[i]; p < place_[i]; ++p) sum += a.value[p] * x[a.column[p] - 1];
        x[i] = (y[i] - omega * sum) * reciprocal_[i];
    }
    for (Integer i = a.n - 1; i >= 0; --i) {
        double sum = 0.0;
        for (Integer p = place_[i] + 1; p < start[i + 1]; ++p) sum += a.value[p] * x[a.column[p] - 1];
        x[i] -= omega * sum * reciprocal_[i];
    }
}

void Diagonal::over_relax_symmetric(const Matrix &a, const Integer start[], double omega, const double y[],
                                    double x[]) const
{
    for (Integer i = 0; i < a.n; ++i) {
        double sum = 0.0;
        for (Integer p = start[i]; p < place_[i]; ++p) sum += a.value[p] * x[a.column[p] - 1];
        x[i] = (y[i] - omega * sum) * reciprocal_[i];
    }
    for (Integer i = a.n - 1; i >= 0; --i) {
        const double found = omega * x[i];
        for (Integer p = start[i]; p < place_[i]; ++p) {
            const Integer j = a.column[p] - 1;
            x[j] -= a.value[p] * found * reciprocal_[j];
        }
    }
}

} // namespace kor::sparse
