// Singular value decompositions: small ones by reflections and the bidiagonal QR iteration, others by LAPACK's divide and
// conquer.
//
// LAPACK takes a row-major matrix for its transpose, A' = P S Q': what it calls U is our P', by rows, and its V' is our Q.
#include "linalg/singular_values.hpp"

#include <algorithm>
#include <cmath>

#include "frame/dispatch.hpp"
#include "frame/views.hpp"
#include "frame/workspace.hpp"
#include "linalg/bidiagonal.hpp"
#include "linalg/bidiagonal_qr.hpp"
#include "linalg/blas.hpp"
#include "linalg/lapack.hpp"
#include "linalg/magnitude.hpp"
#include "linalg/roomy_copy.hpp"
#include "linalg/transpose.hpp"
#include "linalg/vector_operations.hpp"

namespace kor::linalg {

namespace {

// Limits within which our own reduction and iteration are quicker: see bench/linalg/bench_eigen.
constexpr Integer kSmallOrder = 40;
constexpr Integer kSmallSize = 4096;

template <Scalar T>
constexpr Integer kWorthwhileOrder = std::is_same_v<T, Complex> ? 24 : kSmallOrder;

template <Scalar T>
bool is_small(Integer m, Integer n)
{
    return std::min(m, n) <= kWorthwhileOrder<T> && m <= kSmallSize / n;
}

// Values alone: from so many on LAPACK's dqds is quicker.
constexpr Integer kWorthQds = 12;

Integer iterate(Integer n, double *d, double *e, Integer &steps)
{
    if (n >= kWorthQds) {
        double work[4 * kSmallOrder];
        return lapack::bdsqr(n, d, e, work);
    }
    return diagonalise_bidiagonal(n, d, e, step_limit(n), steps, NoRows{}, NoRows{});
}
template <Scalar T>
[[gnu::always_inline]] inline Integer iterate_rows(Integer n, double *d, double *e, Integer &steps, bool b_on_the_left,
                                                   const TurningRows<T> &left, const TurningRows<T> &right,
                                                   const TurningRows<T> &b)
{
    const Integer limit = step_limit(n);
    return b_on_the_left ? diagonalise_bidiagonal(n, d, e, limit, steps, BothRows{left, b}, right)
                         : diagonalise_bidiagonal(n, d, e, limit, steps, left, BothRows{right, b});
}
KOR_CLONES Integer iterate(Integer n, double *d, double *e, Integer &steps, bool b_on_the_left,
                           const TurningRows<double> &left, const TurningRows<double> &right,
                           const TurningRows<double> &b)
{
    return iterate_rows(n, d, e, steps, b_on_the_left, left, right, b);
}
Integer iterate(Integer n, double *d, double *e, Integer &steps, bool b_on_the_left, const TurningRows<Complex> &left,
                const TurningRows<Complex> &right, const TurningRows<Complex> &b)
{
    return iterate_rows(n, d, e, steps, b_on_the_left, left, right, b);
}

// A tall matrix is reduced as it stands, a wide one as conj(A)' = P S conj(Q)': left and right change places.
template <Scalar T>
SingularOutcome decompose_small(Integer m, Integer n, const T *a, Integer tda, Integer ncolb, T *b, Integer tdb,
                                double *values, const SingularVectors<T> &vectors, IterationRecord &record,
                                double scaling)
{
    const bool tall = m >= n;
    const Integer rows = std::max(m, n), r = std::min(m, n);
    const bool want_long = (tall ? vectors.q : vectors.pt) != nullptr;
    const bool want_short = (tall ? vectors.pt : vectors.q) != nullptr;
    Workspace<T> work(Count{rows} * r + Count{want_long ? rows : 0} * r + Count{want_short ? r : 0} * r +
                      (Count{rows} + r + ncolb));
    if (!work) return SingularOutcome::no_memory;
    T *const copy = work.data();
    T *const long_vectors = copy + std::ptrdiff_t{rows} * r;
    T *const short_vectors = long_vectors + (want_long ? std::ptrdiff_t{rows} * r : 0);
    T *const vector = short_vectors + (want_short ? std::ptrdiff_t{r} * r : 0);

    if (tall)
        for (std::ptrdiff_t i = 0; i < m; ++i) std::copy(a + i * tda, a + i * tda + n, copy + i * r);
    else
        transpose_into(m, n, a, tda, copy, r);
    if (scaling != 1.0)
        for (std::ptrdiff_t i = 0; i < std::ptrdiff_t{rows} * r; ++i) copy[i] = scaling * copy[i];

    double e[kSmallOrder], left[kSmallOrder], right[kSmallOrder];
    reduce_to_bidiagonal(rows, r, copy, r, values, e, left, right, vector);
    if (want_long) form_left_basis(rows, r, copy, r, left, long_vectors, rows, vector);
    if (want_short) form_right_basis(r, copy, r, right, short_vectors, r);
    if (ncolb > 0) {
        if (tall)
            apply_left_reflections(m, n, copy, r, left, ncolb, b, tdb, vector);
        else
            apply_right_reflections(r, copy, r, right, ncolb, b, tdb, vector);
    }

    if (!want_long && !want_short && ncolb == 0) {
        record.failures = iterate(r, values, e, record.steps);
    } else {
        const TurningRows<T> long_rows{long_vectors, rows, want_long ? rows : 0};
        const TurningRows<T> short_rows{short_vectors, r, want_short ? r : 0}, b_rows{b, tdb, ncolb};
        record.failures = iterate(r, values, e, record.steps, tall, long_rows, short_rows, b_rows);
    }
    if (scaling != 1.0)
        for (Integer i = 0; i < r; ++i) values[i] /= scaling;
    if (record.e != nullptr)
        for (Integer i = 0; i + 1 < r; ++i) record.e[i] = e[i] / scaling;
    if (record.failures != 0) return SingularOutcome::no_convergence;

    // The rows of long_vectors and short_vectors are the singular vectors.
    const T *const q_rows = tall ? long_vectors : short_vectors, *const p_rows = tall ? short_vectors : long_vectors;
    if (vectors.q != nullptr)
        for (std::ptrdiff_t i = 0; i < m; ++i)
            for (std::ptrdiff_t j = 0; j < r; ++j) vectors.q[i * vectors.tdq + j] = q_rows[j * m + i];
    if (vectors.pt != nullptr)
        for (std::ptrdiff_t j = 0; j < r; ++j)
            for (std::ptrdiff_t i = 0; i < n; ++i) vectors.pt[j * vectors.tdpt + i] = conj(p_rows[j * n + i]);
    return SingularOutcome::success;
}

// Thin vectors, or none; a is destroyed and no output is in it.
template <Scalar T>
SingularOutcome by_divide_and_conquer(Integer m, Integer n, T *a, Integer tda, double *values,
                                      const SingularVectors<T> &vectors)
{
    const Integer r = std::min(m, n);
    const std::int64_t s = std::max(m, n);
    const char job = vectors.q != nullptr || vectors.pt != nullptr ? 'S' : 'N';
    // LAPACK makes both sides or none.
    Workspace<T> spare(job == 'S' && vectors.q == nullptr    ? Count{m} * r
                       : job == 'S' && vectors.pt == nullptr ? Count{r} * n
                                                             : Count{1});
    constexpr bool complex = std::is_same_v<T, Complex>;
    const Count real_room =
        job == 'N' ? Count{7} * r
                   : Count{r} * std::max<std::int64_t>(5 * std::int64_t{r} + 7, 2 * s + 2 * std::int64_t{r} + 1);
    Workspace<double> rwork(complex ? real_room : Count{1});
    Workspace<Integer> iwork(Count{8} * r);
    if (!spare || !rwork || !iwork) return SingularOutcome::no_memory;
    T *const u = vectors.pt != nullptr ? vectors.pt : spare.data(), *const vt =
                                                                        vectors.q != nullptr ? vectors.q : spare.data();
    const Integer ldu = vectors.pt != nullptr ? vectors.tdpt : n, ldvt = vectors.q != nullptr ? vectors.tdq : r;
    const bool wanted = job == 'S';
    const RoomyCopy<T> matrix{m, n, a, tda}, left{wanted ? r : 0, n, u, ldu}, right{wanted ? m : 0, r, vt, ldvt};
    if (!matrix || !left || !right) return SingularOutcome::no_memory;
    const auto decompose_in = [&](T *work, Integer lwork) {
        return lapack::gesdd(job, n, m, matrix.data(), matrix.td(), values, left.data(), left.td(), right.data(),
                             right.td(), work, lwork, rwork.data(), iwork.data());
    };
    T best;
    decompose_in(&best, -1);
    const double room = real(best);
    if (!(room < 0x1p31)) return SingularOutcome::no_memory;
    Workspace<T> work(Count{static_cast<Integer>(room)} + RoomyCopy<T>::behind_work(std::max(m, n)));
    if (!work) return SingularOutcome::no_memory;
    matrix.take();
    if (decompose_in(work.data(), static_cast<Integer>(room)) != 0) return SingularOutcome::no_convergence;
    left.give_back();
    right.give_back();
    return SingularOutcome::success;
}

// b := conj(q)' b, q of order m.
template <Scalar T>
bool multiply_by_left_vectors(Integer m, const T *q, Integer tdq, Integer ncolb, T *b, Integer tdb)
{
    Workspace<T> product(Count{m} * ncolb);
    if (!product) return false;
    blas::gemm(blas::kRowMajor, ConjugateTranspose, NoTranspose, m, ncolb, m, one<T>(), q, tdq, b, tdb, T{},
               product.data(), ncolb);
    for (std::ptrdiff_t i = 0; i < m; ++i)
        std::copy(product.data() + i * ncolb, product.data() + (i + 1) * ncolb, b + i * tdb);
    return true;
}

// A tall matrix with b: A = Q R by LAPACK, whose L Q of the transpose it is; then R.
template <Scalar T>
SingularOutcome decompose_tall_with_rhs(Integer m, Integer n, T *a, Integer tda, Integer ncolb, T *b, Integer tdb,
                                        double *values, const SingularVectors<T> &vectors)
{
    constexpr char kAdjoint = std::is_same_v<T, Complex> ? 'C' : 'T';
    const Count square = Count{n} * n;
    Workspace<T> room(Count{m} * n + square * 2 + Count{n});
    if (!room) return SingularOutcome::no_memory;
    T *const factors = room.data(), *const r = factors + std::ptrdiff_t{m} * n, *const q1 = r + std::ptrdiff_t{n} * n,
             *const tau = q1 + std::ptrdiff_t{n} * n;
    for (std::ptrdiff_t i = 0; i < m; ++i) std::copy(a + i * tda, a + i * tda + n, factors + i * n);

    T best[3]{};
    lapack::gelqf(n, m, factors, n, tau, &best[0], -1);
    lapack::ormlq('R', kAdjoint, ncolb, m, n, factors, n, tau, b, tdb, &best[1], -1);
    if (vectors.q != nullptr) lapack::ormlq('R', 'N', n, m, n, factors, n, tau, vectors.q, vectors.tdq, &best[2], -1);
    const Integer lwork = static_cast<Integer>(std::max({real(best[0]), real(best[1]), real(best[2])}));
    Workspace<T> work(Count{lwork});
    if (!work) return SingularOutcome::no_memory;
    lapack::gelqf(n, m, factors, n, tau, work.data(), lwork);
    lapack::ormlq('R', kAdjoint, ncolb, m, n, factors, n, tau, b, tdb, work.data(), lwork);

    for (std::ptrdiff_t i = 0; i < n; ++i) {
        std::fill(r + i * n, r + i * n + i, T{});
        std::copy(factors + i * n + i, factors + i * n + n, r + i * n + i);
    }
    const SingularOutcome outcome = by_divide_and_conquer(n, n, r, n, values, {q1, n, vectors.pt, vectors.tdpt});
    if (outcome != SingularOutcome::success) return outcome;
    if (!multiply_by_left_vectors(n, q1, n, ncolb, b, tdb)) return SingularOutcome::no_memory;
    if (vectors.q != nullptr) {
        for (std::ptrdiff_t i = 0; i < m; ++i) {
            T *const row = vectors.q + i * vectors.tdq;
            if (i < n)
                std::copy(q1 + i * n, q1 + i * n + n, row);
            else
                std::fill(row, row + n, T{});
        }
        lapack::ormlq('R', 'N', n, m, n, factors, n, tau, vectors.q, vectors.tdq, work.data(), lwork);
    }
    return SingularOutcome::success;
}

template <Scalar T>
SingularOutcome decompose(Integer m, Integer n, T *a, Integer tda, Integer ncolb, T *b, Integer tdb, double *values,
                          const SingularVectors<T> &vectors, IterationRecord &record)
{
    const Integer r = std::min(m, n);
    record.steps = record.failures = 0;
    const Magnitude magnitude = magnitude_of(m, n, a, tda);
    if (!magnitude.is_finite()) {
        record.failures = r;
        return SingularOutcome::no_convergence;
    }
    if (is_small<T>(m, n))
        return decompose_small(m, n, a, tda, ncolb, b, tdb, values, vectors, record, magnitude.scaling());

    if (record.e != nullptr) std::fill(record.e, record.e + (r - 1), 0.0);
    SingularOutcome outcome;
    if (ncolb > 0 && m >= n) {
        outcome = decompose_tall_with_rhs(m, n, a, tda, ncolb, b, tdb, values, vectors);
    } else {
        // With b, the left vectors of a wide matrix are needed in any case; and an output must not lie in a.
        SingularVectors<T> targets = vectors;
        const bool spare_q = ncolb > 0 && vectors.q == nullptr, copied = vectors.q == a || vectors.pt == a;
        Workspace<T> q(spare_q ? Count{m} * r : Count{1}), copy(copied ? Count{m} * n : Count{1});
        if (!q || !copy) return SingularOutcome::no_memory;
        if (spare_q) {
            targets.q = q.data();
            targets.tdq = r;
        }
        if (copied)
            for (std::ptrdiff_t i = 0; i < m; ++i) std::copy(a + i * tda, a + i * tda + n, copy.data() + i * n);
        outcome = by_divide_and_conquer(m, n, copied ? copy.data() : a, copied ? n : tda, values, targets);
        if (outcome == SingularOutcome::success && ncolb > 0 &&
            !multiply_by_left_vectors(m, targets.q, targets.tdq, ncolb, b, tdb))
            return SingularOutcome::no_memory;
    }
    if (outcome == SingularOutcome::no_convergence) record.failures = r;
    return outcome;
}

} // namespace

SingularOutcome singular_decomposition(Integer m, Integer n, double *a, Integer tda, Integer ncolb, double *b,
                                       Integer tdb, double *values, const SingularVectors<double> &vectors,
                                       IterationRecord &record)
{
    return decompose(m, n, a, tda, ncolb, b, tdb, values, vectors, record);
}
SingularOutcome singular_decomposition(Integer m, Integer n, Complex *a, Integer tda, Integer ncolb, Complex *b,
                                       Integer tdb, double *values, const SingularVectors<Complex> &vectors,
                                       IterationRecord &record)
{
    return decompose(m, n, a, tda, ncolb, b, tdb, values, vectors, record);
}

} // namespace kor::linalg
