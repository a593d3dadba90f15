// Transpositions, a square of registers at a time. Part of kernels.inl.

inline void transpose(Index rows, Index columns, const double *in, Index in_row, double *out, Index out_row)
{
    if (rows < kLanes || columns < kLanes) {
        for (Index i = 0; i < rows; ++i)
            for (Index j = 0; j < columns; ++j) out[j * out_row + i] = in[i * in_row + j];
        return;
    }
    for (Index i = 0; i < rows; i += kLanes) {
        if (i > rows - kLanes) i = rows - kLanes; // squares at the edges overlap those before
        for (Index j = 0; j < columns; j += kLanes) {
            if (j > columns - kLanes) j = columns - kLanes;
            const double *const from = in + i * in_row + j;
            double *const to = out + j * out_row + i;
            Lanes a[kLanes];
            KOR_UNROLL for (Index l = 0; l < kLanes; ++l) a[l] = load_lanes(from + l * in_row);
            transpose_square(a);
            KOR_UNROLL for (Index l = 0; l < kLanes; ++l) store_lanes(to + l * out_row, a[l]);
        }
    }
}

// Exchanges a(i, j) with b(j, i) for i < rows, j < columns. The two may be the same tile, on the diagonal, but overlap
// in no other way.
inline void exchange_transposed(Index rows, Index columns, Index stride, double *a, double *b)
{
    if (rows == kLanes && columns == kLanes) {
        Lanes u[kLanes], v[kLanes];
        KOR_UNROLL for (Index i = 0; i < kLanes; ++i) u[i] = load_lanes(a + i * stride);
        KOR_UNROLL for (Index i = 0; i < kLanes; ++i) v[i] = load_lanes(b + i * stride);
        transpose_square(u);
        transpose_square(v);
        KOR_UNROLL for (Index i = 0; i < kLanes; ++i) store_lanes(b + i * stride, u[i]);
        KOR_UNROLL for (Index i = 0; i < kLanes; ++i) store_lanes(a + i * stride, v[i]);
        return;
    }
    for (Index i = 0; i < rows; ++i)
        for (Index j = a == b ? i + 1 : 0; j < columns; ++j) {
            const double kept = a[i * stride + j];
            a[i * stride + j] = b[j * stride + i];
            b[j * stride + i] = kept;
        }
}

inline void swap_transposed(Index size, Index stride, double *a, double *b)
{
    for (Index i = 0; i < size; i += kLanes)
        for (Index j = a == b ? i : 0; j < size; j += kLanes) {
            const Index rows = size - i < kLanes ? size - i : kLanes, columns = size - j < kLanes ? size - j : kLanes;
            exchange_transposed(rows, columns, stride, a + i * stride + j, b + j * stride + i);
        }
}
