// Transpositions: of an array, and between the rows and the columns of a transform.
#pragma once

#include "transforms/stages.hpp"

namespace kor::transforms {

// out(j, i) = in(i, j) for a row-major `rows` by `columns` array `in`; the two must not overlap.
void transpose(Index rows, Index columns, const double *in, double *out);

// Rows of n / R elements, R the product of the first `lead` radices. Row (..(l1 * p2 + l2) * p3 + ..) of one array is
// column l1 + p1 l2 + p1 p2 l3 + .. of the other: the digits turn round.
void rows_to_columns(const Stage *stages, int lead, Index n, const double *rows, double *columns);
void columns_to_rows(const Stage *stages, int lead, Index n, const double *columns, double *rows);

} // namespace kor::transforms
