// Products with matrices in coordinate storage, and their norms.
#include "sparse/products.hpp"

#include <algorithm>
#include <cmath>

#include "sparse/vectors.hpp"

namespace kor::sparse {

void multiply(const Matrix &a, const Integer start[], const double x[], double y[])
{
    for (Integer i = 0; i < a.n; ++i) {
        double sum = 0.0;
        for (Integer p = start[i]; p < start[i + 1]; ++p) sum += a.value[p] * x[a.column[p] - 1];
        y[i] = sum;
    }
}

// Row by row: an element left of the diagonal serves its row and its column. What it adds to the column goes to a row that
// has been set already.
void multiply_symmetric(const Matrix &a, const Integer start[], const double x[], double y[])
{
    for (Integer i = 0; i < a.n; ++i) {
        const double xi = x[i];
        double sum = 0.0;
        Integer p = start[i];
        const Integer end = start[i + 1];
        const bool has_diagonal = p < end && a.column[end - 1] == i + 1;
        for (const Integer last = end - has_diagonal; p < last; ++p) {
            const Integer j = a.column[p] - 1;
            sum += a.value[p] * x[j];
            y[j] += a.value[p] * xi;
        }
        y[i] = has_diagonal ? sum + a.value[end - 1] * xi : sum;
    }
}

double infinity_norm(const Matrix &a, Triangle triangle, double work[])
{
    std::fill_n(work, a.n, 0.0);
    for (Integer p = 0; p < a.nnz; ++p) {
        const Integer i = a.row[p], j = a.column[p];
        work[i - 1] += std::abs(a.value[p]);
        if (triangle == Triangle::lower && i != j) work[j - 1] += std::abs(a.value[p]);
    }
    return norm_of(Norm::infinity, a.n, work);
}

} // namespace kor::sparse
