// Symmetric eigenproblems: small ones by reflections and the implicit QL iteration here, others by LAPACK's divide and
// conquer.
//
// The lower triangle of a row-major matrix is to LAPACK the upper triangle of its transpose, which for a Hermitian matrix
// is the conjugate: so are its eigenvectors, which come as rows.
#include "linalg/symmetric_eigen.hpp"

#include <algorithm>
#include <cmath>
#include <optional>

#include "frame/dispatch.hpp"
#include "frame/views.hpp"
#include "frame/workspace.hpp"
#include "linalg/cholesky.hpp"
#include "linalg/lapack.hpp"
#include "linalg/magnitude.hpp"
#include "linalg/roomy_copy.hpp"
#include "linalg/transpose.hpp"
#include "linalg/tridiagonal.hpp"
#include "linalg/tridiagonal_ql.hpp"
#include "linalg/vector_operations.hpp"

namespace kor::linalg {

namespace {

// Orders up to which our own reduction and iteration are quicker: see bench/linalg/bench_eigen.
constexpr Integer kSmall = 40;

// The diagonal of a Hermitian matrix is real by agreement, whatever the imaginary parts hold.
void clear_imaginary_diagonal(Integer, double *, Integer) {}
void clear_imaginary_diagonal(Integer n, Complex *a, Integer tda)
{
    for (std::ptrdiff_t i = 0; i < n; ++i) a[i * tda + i].im = 0.0;
}

template <Scalar T>
void copy_lower(Integer n, const T *a, Integer tda, T *to, Integer td, double scaling)
{
    for (std::ptrdiff_t i = 0; i < n; ++i)
        for (std::ptrdiff_t j = 0; j <= i; ++j) to[i * td + j] = scaling * a[i * tda + j];
}

void scale_back(Integer n, double scaling, double *values)
{
    if (scaling != 1.0)
        for (Integer i = 0; i < n; ++i) values[i] /= scaling;
}

bool iterate(Integer n, double *d, double *e) { return find_eigenvalues(n, kPrecision, d, e, 30 * n); }
KOR_CLONES bool iterate(Integer n, double *d, double *e, double *qt, Integer tdq)
{
    return diagonalise(n, kPrecision, d, e, 30 * n, TurningRows<double>{qt, tdq, n});
}
KOR_CLONES bool iterate(Integer n, double *d, double *e, Complex *qt, Integer tdq)
{
    return diagonalise(n, kPrecision, d, e, 30 * n, TurningRows<Complex>{qt, tdq, n});
}

// The work space of LAPACK, had before any output is touched. Small problems want none.
template <Scalar T>
class EigenRoom {
  public:
    // For the matrix a of order n, as it will be when it is diagonalised.
    EigenRoom(bool vectors, Integer n, T *a, Integer tda) : job_{vectors ? 'V' : 'N'}
    {
        // Beyond, the work space is counted in more than an Integer.
        constexpr Integer kGreatestOrder = 30000;
        if (n <= kSmall) {
            is_there_ = true;
            return;
        }
        if (n > kGreatestOrder) return;
        T best_work, unused;
        double best_rwork, values;
        Integer best_iwork;
        lapack::heevd(job_, 'U', n, &unused, n, &values, &best_work, &best_rwork, &best_iwork, {-1, -1, -1});
        constexpr bool complex = std::is_same_v<T, Complex>;
        size_ = {static_cast<Integer>(real(best_work)), complex ? static_cast<Integer>(best_rwork) : 1, best_iwork};
        matrix_.emplace(n, n, a, tda);
        is_there_ = *matrix_ && work_.allocate(Count{size_.work} + RoomyCopy<T>::behind_work(n)) &&
                    rwork_.allocate(size_.rwork) && iwork_.allocate(size_.iwork);
    }
    explicit operator bool() const { return is_there_; }

    EigenOutcome divide_and_conquer(Integer n, double *values) const
    {
        matrix_->take();
        const Integer info = lapack::heevd(job_, 'U', n, matrix_->data(), matrix_->td(), values, work_.data(),
                                           rwork_.data(), iwork_.data(), size_);
        if (job_ == 'V') matrix_->give_back();
        return info == 0 ? EigenOutcome::success : EigenOutcome::no_convergence;
    }

  private:
    bool is_there_ = false;
    char job_;
    lapack::Room size_{};
    std::optional<RoomyCopy<T>> matrix_;
    Workspace<T> work_;
    Workspace<double> rwork_;
    Workspace<Integer> iwork_;
};

// Reduces in a, and finds the eigenvalues; with vectors their transpose comes to a.
template <Scalar T>
EigenOutcome solve_small(bool vectors, Integer n, T *a, Integer tda, double scaling, double *values)
{
    double e[kSmall];
    T scratch[kSmall];
    if (scaling != 1.0) copy_lower(n, a, tda, a, tda, scaling);
    reduce_to_tridiagonal(n, a, tda, values, e, scratch, 0.0);
    bool converged;
    if (vectors) {
        if constexpr (std::is_same_v<T, Complex>)
            form_tridiagonal_basis(n, a, tda, scratch);
        else
            form_tridiagonal_basis(n, a, tda);
        converged = iterate(n, values, e + 1, a, tda);
    } else {
        converged = iterate(n, values, e + 1);
    }
    scale_back(n, scaling, values);
    return converged ? EigenOutcome::success : EigenOutcome::no_convergence;
}

template <Scalar T>
EigenOutcome values_of(Integer n, T *a, Integer tda, double *values, const EigenRoom<T> &room)
{
    clear_imaginary_diagonal(n, a, tda);
    const Magnitude magnitude = magnitude_of_lower(n, a, tda);
    if (!magnitude.is_finite()) return EigenOutcome::no_convergence;
    return n <= kSmall ? solve_small(false, n, a, tda, magnitude.scaling(), values)
                       : room.divide_and_conquer(n, values);
}

template <Scalar T>
EigenOutcome vectors_of(Integer n, const T *a, Integer tda, double *values, T *v, Integer tdv, const EigenRoom<T> &room)
{
    const Magnitude magnitude = magnitude_of_lower(n, a, tda);
    if (!magnitude.is_finite()) return EigenOutcome::no_convergence;
    if (v != a) copy_lower(n, a, tda, v, tdv, 1.0);
    if (n <= kSmall) {
        const EigenOutcome outcome = solve_small(true, n, v, tdv, magnitude.scaling(), values);
        transpose_in_place<false>(n, v, tdv);
        return outcome;
    }
    const EigenOutcome outcome = room.divide_and_conquer(n, values);
    transpose_in_place<true>(n, v, tdv);
    return outcome;
}

template <Scalar T>
EigenOutcome all_values(Integer n, T *a, Integer tda, double *values)
{
    const EigenRoom<T> room{false, n, a, tda};
    return room ? values_of(n, a, tda, values, room) : EigenOutcome::no_memory;
}
template <Scalar T>
EigenOutcome all_vectors(Integer n, const T *a, Integer tda, double *values, T *v, Integer tdv)
{
    const EigenRoom<T> room{true, n, v, tdv};
    return room ? vectors_of(n, a, tda, values, v, tdv, room) : EigenOutcome::no_memory;
}

} // namespace

EigenOutcome symmetric_eigenvalues(Integer n, double *a, Integer tda, double *values)
{
    return all_values(n, a, tda, values);
}
EigenOutcome symmetric_eigenvalues(Integer n, Complex *a, Integer tda, double *values)
{
    return all_values(n, a, tda, values);
}
EigenOutcome symmetric_eigenvectors(Integer n, const double *a, Integer tda, double *values, double *v, Integer tdv)
{
    return all_vectors(n, a, tda, values, v, tdv);
}
EigenOutcome symmetric_eigenvectors(Integer n, const Complex *a, Integer tda, double *values, Complex *v, Integer tdv)
{
    return all_vectors(n, a, tda, values, v, tdv);
}

Integer reduce_to_standard(Integer n, double *a, Integer tda, double *b, Integer tdb, double *dl)
{
    const RowMajor<double> L{b, tdb};
    // A NaN below the diagonal of B may leave the pivots as they are.
    if (!magnitude_of_lower(n, b, tdb).is_finite()) return 1;
    if (const Integer minor = cholesky_factor(LowerTriangle, n, b, tdb); minor != 0) return minor;
    lapack::sygst('U', n, a, tda, b, tdb);
    for (Integer i = 0; i < n; ++i) dl[i] = L(i, i);
    return 0;
}

void recover_vectors(Integer n, Integer first, Integer last, const double *b, Integer tdb, const double *dl, double *z,
                     Integer tdz)
{
    constexpr Integer kBlock = 32;
    const RowMajor<const double> L{b, tdb};
    const RowMajor<double> Z{z + first, tdz};
    const Integer columns = last - first;
    if (columns <= 0) return;
    // From the last rows upwards: a block is solved for, then taken off all rows above in one product.
    for (Integer end = n; end > 0; end -= std::min(end, kBlock)) {
        const Integer start = std::max(0, end - kBlock);
        for (Integer i = end - 1; i >= start; --i) {
            double *const row = Z.row(i);
            for (Integer j = 0; j < columns; ++j) row[j] /= dl[i];
            for (Integer k = start; k < i; ++k) {
                const double factor = L(i, k);
                double *const above = Z.row(k);
                for (Integer j = 0; j < columns; ++j) above[j] -= factor * row[j];
            }
        }
        if (start > 0)
            blas::gemm(blas::kRowMajor, Transpose, NoTranspose, start, columns, end - start, -1.0, L.row(start), tdb,
                       Z.row(start), tdz, 1.0, Z.a, tdz);
    }
}

EigenOutcome definite_eigenvalues(Integer n, double *a, Integer tda, double *b, Integer tdb, double *values)
{
    const EigenRoom<double> room{false, n, a, tda};
    if (!room) return EigenOutcome::no_memory;
    // The eigenvalues come last: until then their array holds the diagonal of the factor.
    if (reduce_to_standard(n, a, tda, b, tdb, values) != 0) return EigenOutcome::not_positive_definite;
    return values_of(n, a, tda, values, room);
}

EigenOutcome definite_eigenvectors(Integer n, double *a, Integer tda, double *b, Integer tdb, double *values, double *v,
                                   Integer tdv)
{
    const EigenRoom<double> room{true, n, v, tdv};
    const Workspace<double> dl(Count{n});
    if (!room || !dl) return EigenOutcome::no_memory;
    if (reduce_to_standard(n, a, tda, b, tdb, dl.data()) != 0) return EigenOutcome::not_positive_definite;
    const EigenOutcome outcome = vectors_of(n, a, tda, values, v, tdv, room);
    if (outcome == EigenOutcome::success) recover_vectors(n, 0, n, b, tdb, dl.data(), v, tdv);
    return outcome;
}

} // namespace kor::linalg
