// Norms of matrices, in one walk over the stored part: element (i, j) of a symmetric matrix counts at (j, i) as well.
#include "linalg/matrix_norm.hpp"

#include <algorithm>
#include <cmath>

#include "linalg/matrix.hpp"
#include "linalg/norm.hpp"

namespace kor::linalg {

namespace {

// Column sums are formed for so many columns at a time, on the stack.
constexpr Integer kColumnsAtOnce = 128;

double greater(double a, double b) { return a >= b || std::isnan(a) ? a : b; }

template <class T>
struct Matrix {
    RowMajor<const T> a;
    Integer type;
    bool unit;
    Integer m, n;

    bool is_symmetric() const { return type >= SymmetricUpper; }
    bool is_hermitian() const { return type == HermitianUpper || type == HermitianLower; }

    T element(Integer i, Integer j) const
    {
        if (i == j && unit) return one<T>();
        if constexpr (std::is_same_v<T, Complex>)
            if (i == j && is_hermitian()) return {a(i, j).re, 0.0};
        return a(i, j);
    }

    // Stored columns of row i beside the diagonal, in two stretches, one of them empty for a triangle.
    Columns below(Integer i) const
    {
        const Columns stored = stored_columns(type, i, n);
        return {stored.first, std::min(i, stored.last)};
    }
    Columns above(Integer i) const
    {
        const Columns stored = stored_columns(type, i, n);
        return {std::min(std::max(i + 1, stored.first), stored.last), stored.last};
    }
};

template <class T>
double greatest_modulus(const Matrix<T> &matrix)
{
    double greatest = 0.0;
    for (Integer i = 0; i < matrix.m; ++i) {
        const Columns columns = stored_columns(matrix.type, i, matrix.n);
        for (Integer j = columns.first; j < columns.last; ++j)
            greatest = greater(greatest, modulus(matrix.element(i, j)));
    }
    return greatest;
}

template <class T>
double row_sum(const Matrix<T> &matrix, Integer i)
{
    const Columns columns = stored_columns(matrix.type, i, matrix.n);
    double sum = 0.0;
    for (Integer j = columns.first; j < columns.last; ++j) sum += modulus(matrix.element(i, j));
    return sum;
}

template <class T>
double greatest_row_sum(const Matrix<T> &matrix)
{
    double greatest = 0.0;
    for (Integer i = 0; i < matrix.m; ++i) greatest = greater(greatest, row_sum(matrix, i));
    return greatest;
}

// The stored part of row i without the diagonal.
template <class T>
double sum_beside_diagonal(const Matrix<T> &matrix, Integer i)
{
    double sum = 0.0;
    for (const Columns columns : {matrix.below(i), matrix.above(i)})
        for (Integer j = columns.first; j < columns.last; ++j) sum += modulus(matrix.a(i, j));
    return sum;
}

template <class T>
double greatest_column_sum(const Matrix<T> &matrix)
{
    double greatest = 0.0;
    for (Integer start = 0; start < matrix.n; start += kColumnsAtOnce) {
        const Integer end = std::min(matrix.n, start + kColumnsAtOnce);
        double sum[kColumnsAtOnce] = {};
        for (Integer i = 0; i < matrix.m; ++i) {
            const Columns columns = stored_columns(matrix.type, i, matrix.n);
            for (Integer j = std::max(start, columns.first); j < std::min(end, columns.last); ++j)
                sum[j - start] += modulus(matrix.element(i, j));
        }
        for (Integer j = start; j < end; ++j) {
            if (matrix.is_symmetric()) sum[j - start] += sum_beside_diagonal(matrix, j);
            greatest = greater(greatest, sum[j - start]);
        }
    }
    return greatest;
}

template <class T>
double euclidean_norm_of(const Matrix<T> &matrix)
{
    ScaledSquares squares;
    for (Integer i = 0; i < matrix.m; ++i)
        for (const Columns columns : {matrix.below(i), matrix.above(i)})
            add_squares(squares, columns.last - columns.first, matrix.a.row(i) + columns.first, 1);
    if (matrix.is_symmetric()) squares.sumsq *= 2.0;
    for (Integer i = 0; i < std::min(matrix.m, matrix.n); ++i) {
        const T diagonal = matrix.element(i, i);
        add_squares(squares, 1, &diagonal, 1);
    }
    return squares.scale * std::sqrt(squares.sumsq);
}

template <class T>
double norm_of(Integer norm, const Matrix<T> &matrix)
{
    if (norm == MaxAbsValue) return greatest_modulus(matrix);
    if (norm == FrobeniusNorm) return euclidean_norm_of(matrix);
    if (norm == OneNorm || matrix.is_symmetric()) return greatest_column_sum(matrix);
    return greatest_row_sum(matrix);
}

} // namespace

double matrix_norm(Integer norm, Integer matrix, bool unit, Integer m, Integer n, const double *a, Integer tda)
{
    return norm_of(norm, Matrix<double>{{a, tda}, matrix, unit, m, n});
}
double matrix_norm(Integer norm, Integer matrix, bool unit, Integer m, Integer n, const Complex *a, Integer tda)
{
    return norm_of(norm, Matrix<Complex>{{a, tda}, matrix, unit, m, n});
}

} // namespace kor::linalg
