// Transpositions: of an array, and between the rows and the columns of a transform.
#include "transforms/transpose.hpp"

#include <algorithm>

namespace kor::transforms {

namespace {

// The row whose digits are those of `column`, turned round.
Index row_of(const Stage *stages, int lead, Index column)
{
    Index row = 0;
    for (int i = 0; i < lead; ++i) {
        row = row * stages[i].radix + column % stages[i].radix;
        column /= stages[i].radix;
    }
    return row;
}

} // namespace

void transpose(Index rows, Index columns, const double *in, double *out)
{
    constexpr Index kSquare = 8; // every line of the cache is used whole
    for (Index i0 = 0; i0 < rows; i0 += kSquare)
        for (Index j0 = 0; j0 < columns; j0 += kSquare)
            for (Index j = j0; j < std::min(j0 + kSquare, columns); ++j)
                for (Index i = i0; i < std::min(i0 + kSquare, rows); ++i) out[j * rows + i] = in[i * columns + j];
}

void rows_to_columns(const Stage *stages, int lead, Index n, const double *rows, double *columns)
{
    const Index length = stages[lead - 1].after, count = n / length;
    for (Index c = 0; c < count; ++c) {
        const double *row = rows + row_of(stages, lead, c) * length;
        for (Index j = 0; j < length; ++j) columns[j * count + c] = row[j];
    }
}

void columns_to_rows(const Stage *stages, int lead, Index n, const double *columns, double *rows)
{
    const Index length = stages[lead - 1].after, count = n / length;
    for (Index c = 0; c < count; ++c) {
        double *row = rows + row_of(stages, lead, c) * length;
        for (Index j = 0; j < length; ++j) row[j] = columns[j * count + c];
    }
}

} // namespace kor::transforms
