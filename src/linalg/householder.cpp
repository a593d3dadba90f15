// Reflections in blocks. The product of the w reflections of a block is I - U T conj(U)', and the inverse of the triangle T
// is the upper triangle of conj(U)' U with the numbers 1/conj(gamma) on its diagonal (C. Puglisi, SIAM J. Sci. Stat. Comput.
// 13 (1992) 723-726; T. Joffrain et al., ACM Trans. Math. Softw. 32 (2006) 169-179): one product, and triangular solves.
#include "linalg/householder.hpp"

#include <algorithm>

#include "frame/dispatch.hpp"
#include "frame/views.hpp"
#include "linalg/blas.hpp"
#include "linalg/reflection.hpp"
#include "linalg/vector_operations.hpp"

namespace kor::linalg {

namespace {

constexpr Integer kWidest = 32;   // most reflections that are applied to the rest of a matrix at once
constexpr Integer kNarrow = 8;    // columns of a block that are reduced one by one
constexpr Integer kFew = 16;      // columns of a matrix that are,
constexpr Integer kFewShort = 32; // and of one that is not tall
constexpr Integer kTall = 48;     // rows from which columns are copied for that, so that each is contiguous

// Reflections that are applied at once, of so many: what a block costs besides grows with its width, what a product of
// matrices gains does so only where it does not fit the cache. See bench/linalg/bench_dense.
constexpr Integer block_of(Integer reflections) { return reflections <= 600 ? 16 : kWidest; }

double zeta_of(double scalar) { return scalar; }
double zeta_of(Complex scalar) { return scalar.re; }
[[gnu::always_inline]] inline double gamma_of(double) { return 1.0; }
[[gnu::always_inline]] inline Complex gamma_of(Complex scalar) { return {1.0, scalar.im}; }

// 1 / conj(gamma)
double inverse_adjoint_gamma(double) { return 1.0; }
Complex inverse_adjoint_gamma(Complex scalar)
{
    const double square = 1.0 + scalar.im * scalar.im;
    return {1.0 / square, scalar.im / square};
}

template <Scalar T>
[[gnu::always_inline]] inline void reflect_rows(Integer m, Integer n, T scalar, double zeta, const T *z,
                                                std::ptrdiff_t incz, T *__restrict first, T *y, std::ptrdiff_t tdy,
                                                T *__restrict w)
{
    for (Integer j = 0; j < n; ++j) w[j] = zeta * first[j];
    for (std::ptrdiff_t i = 0; i < m; ++i) {
        const T factor = conj(z[i * incz]);
        const T *const row = y + i * tdy;
        for (Integer j = 0; j < n; ++j) w[j] = w[j] + factor * row[j];
    }
    const T gamma = gamma_of(scalar);
    for (Integer j = 0; j < n; ++j) w[j] = gamma * w[j];
    for (Integer j = 0; j < n; ++j) first[j] = first[j] - zeta * w[j];
    for (std::ptrdiff_t i = 0; i < m; ++i) {
        const T factor = z[i * incz];
        T *const __restrict row = y + i * tdy;
        for (Integer j = 0; j < n; ++j) row[j] = row[j] - factor * w[j];
    }
}

// A block of reflections: U and the inverse of T, in work space; behind them stands room for a product.
template <Scalar T>
struct Block {
    Integer rows, width;
    T *u;       // rows by width in the column form, conj(U)', width by rows, in the row form
    T *inverse; // width by width
    T *product;

    Block(Integer m, Integer w, T *work) : rows{m}, width{w}, u{work}, inverse{u + std::ptrdiff_t{m} * w}
    {
        product = inverse + std::ptrdiff_t{w} * w;
    }

    // Of the column form: rows and columns count from those of the first reflection.
    void gather_columns(const T *a, std::ptrdiff_t tda, const T *zeta)
    {
        const RowMajor<T> U{u, width};
        for (Integer i = 0; i < rows; ++i) {
            const T *const row = a + i * tda;
            for (Integer j = 0; j < width; ++j) U(i, j) = i > j && !(zeta[j] == T{}) ? row[j] : T{};
            if (i < width) U(i, i) = zeta_of(zeta[i]) * one<T>();
        }
        blas::gemm(blas::kRowMajor, ConjugateTranspose, NoTranspose, width, width, rows, one<T>(), u, width, u, width,
                   T{}, inverse, width);
        set_diagonal(zeta);
    }

    void set_diagonal(const T *zeta)
    {
        for (Integer j = 0; j < width; ++j) inverse[j * (std::ptrdiff_t{width} + 1)] = inverse_adjoint_gamma(zeta[j]);
    }

    // C := (I - U T conj(U)') C or its adjoint.
    void apply(bool adjoint, Integer columns, T *c, Integer tdc) const
    {
        if (columns == 0) return;
        blas::gemm(blas::kRowMajor, ConjugateTranspose, NoTranspose, width, columns, rows, one<T>(), u, width, c, tdc,
                   T{}, product, columns);
        blas::trsm(blas::kRowMajor, LeftSide, UpperTriangle, adjoint ? ConjugateTranspose : NoTranspose,
                   NotUnitTriangular, width, columns, one<T>(), inverse, width, product, columns);
        blas::gemm(blas::kRowMajor, NoTranspose, NoTranspose, rows, columns, width, -one<T>(), u, width, product,
                   columns, one<T>(), c, tdc);
    }
};

// ---- Column form ----

template <Scalar T>
struct Columns {
    Integer m;
    RowMajor<T> A;
    Integer tda;
    T *zeta;
    T *work;

    // The columns [first, last), the ones before them done; what is right of them waits.
    void factor(Integer first, Integer last)
    {
        const Integer width = last - first;
        if (width <= kNarrow) return one_by_one(first, last, last);
        const Integer middle = first + (width / 2 + kNarrow - 1) / kNarrow * kNarrow;
        factor(first, middle);
        apply(first, middle, middle, last);
        factor(middle, last);
    }
    void apply(Integer first, Integer middle, Integer from, Integer to)
    {
        Block<T> block{m - first, middle - first, work};
        block.gather_columns(&A(first, first), tda, zeta + first);
        block.apply(true, to - from, &A(first, from), tda);
    }
    // The reflections of the columns [first, last), felt by those up to `end`.
    void one_by_one(Integer first, Integer last, Integer end)
    {
        if (m - first >= kTall && last - first > 1) return in_contiguous_columns(first, last, end);
        for (Integer k = first; k < last; ++k) {
            T *const below = k + 1 < m ? &A(k + 1, k) : nullptr;
            zeta[k] = make_reflection(m - k - 1, A(k, k), below, tda, 0.0);
            if (k + 1 < end && !(zeta[k] == T{}))
                reflect(m - k - 1, end - k - 1, zeta[k], below, tda, &A(k, k) + 1, below + 1, tda, work);
        }
    }
    // The same in a copy, where each column is contiguous.
    void in_contiguous_columns(Integer first, Integer last, Integer end)
    {
        const Integer rows = m - first, width = end - first;
        const ColumnMajor<T> C{work, rows};
        for (Integer i = 0; i < rows; ++i)
            for (Integer j = 0; j < width; ++j) C(i, j) = A(first + i, first + j);
        for (Integer k = 0; k < last - first; ++k) {
            T *const z = C.column(k) + k + 1;
            const Integer length = rows - k - 1;
            const T scalar = zeta[first + k] = make_reflection(length, C(k, k), z, 1, 0.0);
            if (scalar == T{}) continue;
            const double lead = zeta_of(scalar);
            for (Integer j = k + 1; j < width; ++j) {
                T *const y = C.column(j) + k + 1;
                const T sum = gamma_of(scalar) * (C(k, j) * lead + dot(length, z, 1, y, 1));
                C(k, j) -= sum * lead;
                axpy(length, -sum, z, 1, y, 1);
            }
        }
        for (Integer i = 0; i < rows; ++i)
            for (Integer j = 0; j < width; ++j) A(first + i, first + j) = C(i, j);
    }
};

template <Scalar T>
void factor_columns(Integer m, Integer n, T *a, Integer tda, T *zeta, T *work)
{
    const Integer all = std::min(m, n);
    // The last row of a real square matrix has nothing below it, and its sign may stay.
    const Integer steps = std::is_same_v<T, double> ? std::min(n, m - 1) : all;
    Columns<T> columns{m, {a, tda}, tda, zeta, work};
    if (n <= kFew || (n <= kFewShort && m < kTall))
        columns.one_by_one(0, steps, n);
    else
        for (Integer k = 0, most = block_of(steps); k < steps; k += most) {
            const Integer end = std::min(k + most, steps);
            columns.factor(k, end);
            if (end < n) columns.apply(k, end, end, n);
        }
    std::fill(zeta + std::max(steps, 0), zeta + all, T{});
}

template <Scalar T>
void apply_columns(bool adjoint, Integer m, Integer k, const T *a, Integer tda, const T *zeta, Integer ncolb, T *b,
                   Integer tdb, T *work)
{
    const RowMajor<const T> A{a, tda};
    const RowMajor<T> B{b, tdb};
    const Integer most = block_of(k), blocks = (k + most - 1) / most;
    for (Integer step = 0; step < blocks; ++step) {
        const Integer first = (adjoint ? step : blocks - 1 - step) * most, width = std::min(most, k - first);
        Block<T> block{m - first, width, work};
        block.gather_columns(&A(first, first), tda, zeta + first);
        block.apply(adjoint, ncolb, B.row(first), tdb);
    }
}

template <Scalar T>
void form_columns(Integer m, Integer k, Integer ncolq, T *a, Integer tda, const T *zeta, T *work)
{
    const RowMajor<T> A{a, tda};
    k = std::min(k, ncolq); // the others do not reach the first columns
    for (Integer j = k; j < ncolq; ++j)
        for (Integer i = 0; i < m; ++i) A(i, j) = i == j ? one<T>() : T{};
    const Integer most = block_of(k);
    for (Integer first = (k - 1) / most * most; first >= 0 && k > 0; first -= most) {
        const Integer width = std::min(most, k - first), last = first + width;
        Block<T> block{m - first, width, work};
        block.gather_columns(&A(first, first), tda, zeta + first);
        block.apply(false, ncolq - last, &A(first, last), tda);
        // The columns of the block itself are those of the unit matrix so far.
        for (Integer i = 0; i < m; ++i)
            for (Integer j = first; j < last; ++j) A(i, j) = T{};
        for (Integer j = first; j < last; ++j) A(j, j) = one<T>();
        block.apply(false, width, &A(first, first), tda);
    }
}

// ---- Row form ----
//
// The reflections of a block touch the columns up to its last row, which are gathered in conj(U)', and those from m on,
// which are taken from where they are.

template <Scalar T>
struct Rows {
    Integer m, n;
    RowMajor<T> A;
    Integer tda;
    T *work;

    // Applies the reflections of the rows [first, last), whose vectors stand in `tail` from column m on, to the rows of X,
    // from the right: the product P of them, or its adjoint.
    struct Applied {
        Integer first, last, tail_length;
        T *vectors, *inverse, *product;
        const T *tail;
        Integer tail_stride;

        void operator()(bool adjoint, Integer rows, T *x, Integer m, Integer tdx) const
        {
            if (rows == 0) return;
            const Integer width = last - first;
            blas::gemm(blas::kRowMajor, NoTranspose, ConjugateTranspose, rows, width, last, one<T>(), x, tdx, vectors,
                       last, T{}, product, width);
            if (tail_length > 0)
                blas::gemm(blas::kRowMajor, NoTranspose, ConjugateTranspose, rows, width, tail_length, one<T>(), x + m,
                           tdx, tail, tail_stride, one<T>(), product, width);
            blas::trsm(blas::kRowMajor, RightSide, LowerTriangle, adjoint ? ConjugateTranspose : NoTranspose,
                       NotUnitTriangular, rows, width, one<T>(), inverse, width, product, width);
            blas::gemm(blas::kRowMajor, NoTranspose, NoTranspose, rows, last, width, -one<T>(), product, width, vectors,
                       last, one<T>(), x, tdx);
            if (tail_length > 0)
                blas::gemm(blas::kRowMajor, NoTranspose, NoTranspose, rows, tail_length, width, -one<T>(), product,
                           width, tail, tail_stride, one<T>(), x + m, tdx);
        }
    };

    Applied gather(Integer first, Integer last, const T *zeta, bool keep_tail)
    {
        const Integer width = last - first;
        Applied block{first, last, n - m, work, nullptr, nullptr, nullptr, tda};
        const RowMajor<T> V{work, last};
        for (Integer j = 0; j < width; ++j) {
            for (Integer i = 0; i < last; ++i) V(j, i) = i < first + j ? A(first + j, i) : T{};
            V(j, first + j) = zeta_of(zeta[first + j]) * one<T>();
        }
        T *next = work + std::ptrdiff_t{width} * last;
        block.tail = &A(first, m);
        if (keep_tail) {
            block.tail = next;
            block.tail_stride = n - m;
            for (Integer j = 0; j < width; ++j) next = std::copy(&A(first + j, m), &A(first + j, 0) + n, next);
        }
        block.inverse = next;
        block.product = next + std::ptrdiff_t{width} * width;
        blas::gemm(blas::kRowMajor, NoTranspose, ConjugateTranspose, width, width, last, one<T>(), V.a, last, V.a, last,
                   T{}, block.inverse, width);
        if (n > m)
            blas::gemm(blas::kRowMajor, NoTranspose, ConjugateTranspose, width, width, n - m, one<T>(), block.tail,
                       block.tail_stride, block.tail, block.tail_stride, one<T>(), block.inverse, width);
        for (Integer j = 0; j < width; ++j)
            block.inverse[j * (std::ptrdiff_t{width} + 1)] = inverse_adjoint_gamma(zeta[first + j]);
        return block;
    }
};

// One row: the reflection that leaves of it only the element on the diagonal, and its effect on the rows above.
template <Scalar T>
T reduce_row(Integer m, Integer n, RowMajor<T> A, Integer k, Integer first, T *vector)
{
    // The vector u: the part left of the diagonal, and the one from column m on.
    const Integer tail = n - m, length = k + tail;
    for (Integer j = 0; j < k; ++j) vector[j] = conj(A(k, j));
    for (Integer j = 0; j < tail; ++j) vector[k + j] = conj(A(k, m + j));
    T alpha = conj(A(k, k));
    const T scalar = make_reflection(length, alpha, vector, 1, 0.0);
    A(k, k) = alpha;                                            // real
    if (scalar == T{}) std::fill(vector, vector + length, T{}); // what was negligible must not be felt
    for (Integer j = 0; j < k; ++j) A(k, j) = conj(vector[j]);
    for (Integer j = 0; j < tail; ++j) A(k, m + j) = conj(vector[k + j]);
    if (scalar == T{}) return scalar;
    const double zeta = zeta_of(scalar);
    const T gamma = conj(gamma_of(scalar));
    // Row k itself holds conj(u)'.
    for (Integer i = first; i < k; ++i) {
        T *const row = A.row(i);
        T sum = row[k] * zeta + dot(k, A.row(k), 1, row, 1) + dot(tail, A.row(k) + m, 1, row + m, 1);
        sum = gamma * sum;
        row[k] -= sum * zeta;
        axpy(k, -sum, A.row(k), 1, row, 1);
        axpy(tail, -sum, A.row(k) + m, 1, row + m, 1);
    }
    return scalar;
}

template <Scalar T>
void factor_rows(Integer m, Integer n, T *a, Integer tda, T *zeta, T *work)
{
    Rows<T> rows{m, n, {a, tda}, tda, work};
    const Integer most = block_of(m);
    for (Integer last = m; last > 0; last -= std::min(most, last)) {
        const Integer first = std::max(last - most, 0);
        for (Integer k = last - 1; k >= first; --k) zeta[k] = reduce_row(m, n, rows.A, k, first, work);
        if (first > 0) rows.gather(first, last, zeta, false)(false, first, a, m, tda);
    }
}

template <Scalar T>
void form_rows(Integer m, Integer n, Integer nrowp, T *a, Integer tda, const T *zeta, T *work)
{
    Rows<T> rows{m, n, {a, tda}, tda, work};
    const RowMajor<T> &A = rows.A;
    const auto set_unit = [&](Integer from, Integer to) {
        for (Integer i = from; i < to; ++i) {
            std::fill(A.row(i), A.row(i) + n, T{});
            A(i, i) = one<T>();
        }
    };
    set_unit(m, nrowp);
    for (Integer first = 0, most = block_of(m); first < m; first += most) {
        const Integer last = std::min(first + most, m), done = std::min(last, nrowp);
        const auto block = rows.gather(first, last, zeta, true);
        if (first < nrowp) set_unit(first, done);
        block(true, done, a, m, tda);
        block(true, std::max(nrowp - m, 0), A.row(m), m, tda);
    }
}

} // namespace

// U, the inverse of T, and a product of a block with n columns.
Count reflection_work(Integer m, Integer n) { return (Count{m} + n + kWidest) * Count{kWidest}; }

KOR_CLONES void reflect(Integer m, Integer n, double scalar, const double *z, Integer incz, double *first, double *y,
                        Integer tdy, double *w)
{
    reflect_rows(m, n, scalar, scalar, z, incz, first, y, tdy, w);
}
KOR_CLONES void reflect(Integer m, Integer n, Complex scalar, const Complex *z, Integer incz, Complex *first,
                        Complex *y, Integer tdy, Complex *w)
{
    reflect_rows(m, n, scalar, scalar.re, z, incz, first, y, tdy, w);
}

void qr_factor(Integer m, Integer n, double *a, Integer tda, double *zeta, double *work)
{
    factor_columns(m, n, a, tda, zeta, work);
}
void qr_factor(Integer m, Integer n, Complex *a, Integer tda, Complex *zeta, Complex *work)
{
    factor_columns(m, n, a, tda, zeta, work);
}
void qr_apply(bool adjoint, Integer m, Integer k, const double *a, Integer tda, const double *zeta, Integer ncolb,
              double *b, Integer tdb, double *work)
{
    apply_columns(adjoint, m, k, a, tda, zeta, ncolb, b, tdb, work);
}
void qr_apply(bool adjoint, Integer m, Integer k, const Complex *a, Integer tda, const Complex *zeta, Integer ncolb,
              Complex *b, Integer tdb, Complex *work)
{
    apply_columns(adjoint, m, k, a, tda, zeta, ncolb, b, tdb, work);
}
void qr_form(Integer m, Integer k, Integer ncolq, double *a, Integer tda, const double *zeta, double *work)
{
    form_columns(m, k, ncolq, a, tda, zeta, work);
}
void qr_form(Integer m, Integer k, Integer ncolq, Complex *a, Integer tda, const Complex *zeta, Complex *work)
{
    form_columns(m, k, ncolq, a, tda, zeta, work);
}
void rq_factor(Integer m, Integer n, double *a, Integer tda, double *zeta, double *work)
{
    factor_rows(m, n, a, tda, zeta, work);
}
void rq_factor(Integer m, Integer n, Complex *a, Integer tda, Complex *zeta, Complex *work)
{
    factor_rows(m, n, a, tda, zeta, work);
}
void rq_form(Integer m, Integer n, Integer nrowp, double *a, Integer tda, const double *zeta, double *work)
{
    form_rows(m, n, nrowp, a, tda, zeta, work);
}
void rq_form(Integer m, Integer n, Integer nrowp, Complex *a, Integer tda, const Complex *zeta, Complex *work)
{
    form_rows(m, n, nrowp, a, tda, zeta, work);
}

} // namespace kor::linalg
