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
