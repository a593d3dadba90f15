// Reduction to bidiagonal form by reflections, column and row by turns. All loops run along rows.
#include "linalg/bidiagonal.hpp"

#include <algorithm>
#include <cmath>

#include "frame/dispatch.hpp"
#include "frame/views.hpp"
#include "frame/workspace.hpp"
#include "linalg/inner_product.hpp"
#include "linalg/lapack.hpp"
#include "linalg/reflected_rows.hpp"
#include "linalg/reflection.hpp"
#include "linalg/roomy_copy.hpp"
#include "linalg/scalar.hpp"
#include "linalg/transpose.hpp"

namespace kor::linalg {

namespace {

double zeta_of(double zeta) { return zeta; }
Complex zeta_of(Complex theta) { return {theta.re, 0.0}; }
double twist_of(double) { return 0.0; }
double twist_of(Complex theta) { return theta.im; }

template <Scalar T>
void reduce(Integer m, Integer n, T *a, Integer tda, double *d, double *e, double *left, double *right, T *work)
{
    const RowMajor<T> A{a, tda};
    T *const vector = work, *const w = work + m;
    for (Integer k = 0; k < n; ++k) {
        for (Integer i = k; i < m; ++i) vector[i - k] = A(i, k);
        T beta = vector[0];
        const T h = make_reflection(m - k - 1, beta, vector + 1, 1, 0.0);
        vector[0] = zeta_of(h);
        d[k] = real(beta);
        left[k] = twist_of(h);
        for (Integer i = k; i < m; ++i) A(i, k) = vector[i - k];
        right[k] = 0.0;
        if (k + 1 == n) break;
        reflect_rows(m - k, n - k - 1, reflection_factor(vector[0], left[k]), vector, 1, A.row(k) + k + 1, tda, w);

        // The row is conj(y)', and G y = (e, 0, ...): the row times conj(G)'.
        T *const u = A.row(k) + k + 1;
        for (Integer j = 0; j < n - k - 1; ++j) u[j] = conj(u[j]);
        beta = u[0];
        const T g = make_reflection(n - k - 2, beta, u + 1, 1, 0.0);
        u[0] = zeta_of(g);
        e[k] = real(beta);
        right[k] = twist_of(g);
        // A conj(G)' = A - conj(gamma) (A u) conj(u)'.
        const T gamma = conj(reflection_factor(u[0], right[k]));
        if (gamma == T{}) continue;
        for (Integer i = k + 1; i < m; ++i) {
            T *const __restrict row = A.row(i) + k + 1;
            const T factor = gamma * plain_product(n - k - 1, row, u);
            for (Integer j = 0; j < n - k - 1; ++j) row[j] -= factor * conj(u[j]);
        }
    }
}

// LAPACK's reflections I - tau v conj(v)', v with a leading 1, in our form: with conj(gamma) zeta^2 = tau the vector is
// zeta v. LAPACK keeps the vectors from the right conjugated.
template <Scalar T>
double zeta_of_tau(T tau, double &twist)
{
    const double zeta = std::sqrt(real(tau));
    twist = zeta != 0.0 ? -twist_of(tau) / real(tau) : 0.0;
    return zeta;
}

template <Scalar T>
bool reduce_in_blocks(Integer n, T *a, double *d, double *e, double *left, double *right)
{
    T best;
    lapack::gebrd(n, n, a, n, d, e, &best, &best, &best, -1);
    const Integer lwork = static_cast<Integer>(real(best));
    const Workspace<T> work(Count{n} * 2 + lwork + RoomyCopy<T>::behind_work(n));
    if (!work) return false;
    T *const tau_left = work.data(), *const tau_right = tau_left + n, *const room = tau_right + n;
    const RoomyCopy<T> matrix{n, n, a, n};
    if (!matrix) return false;
    transpose_in_place<false>(n, a, n);
    matrix.take();
    lapack::gebrd(n, n, matrix.data(), n, d, e, tau_left, tau_right, room, lwork);
    matrix.give_back();
    transpose_in_place<false>(n, a, n);
    const RowMajor<T> A{a, n};
    for (Integer k = 0; k < n; ++k) {
        const double zeta = zeta_of_tau(tau_left[k], left[k]);
        A(k, k) = zeta * one<T>();
        for (Integer i = k + 1; i < n; ++i) A(i, k) = zeta * A(i, k);
    }
    for (Integer k = 0; k + 1 < n; ++k) {
        const double zeta = zeta_of_tau(tau_right[k], right[k]);
        A(k, k + 1) = zeta * one<T>();
        for (Integer j = k + 2; j < n; ++j) A(k, j) = zeta * conj(A(k, j));
    }
    return true;
}

constexpr Integer kWorthBlocks = 64;

template <Scalar T>
void apply_left(Integer m, Integer n, const T *a, Integer tda, const double *left, Integer ncolb, T *b, Integer tdb,
                T *work)
{
    const RowMajor<const T> A{a, tda};
    for (Integer k = 0; k < n; ++k)
        reflect_rows(m - k, ncolb, reflection_factor(A(k, k), left[k]), &A(k, k), tda, b + std::ptrdiff_t{k} * tdb, tdb,
                     work);
}

template <Scalar T>
void apply_right(Integer n, const T *a, Integer tda, const double *right, Integer ncoly, T *y, Integer tdy, T *work)
{
    const RowMajor<const T> A{a, tda};
    for (Integer k = 0; k + 1 < n; ++k)
        reflect_rows(n - k - 1, ncoly, reflection_factor(A(k, k + 1), right[k]), &A(k, k + 1), 1,
                     y + std::ptrdiff_t{k + 1} * tdy, tdy, work);
}

template <Scalar T>
void set_identity(Integer m, Integer n, T *a, Integer tda)
{
    const RowMajor<T> A{a, tda};
    for (Integer i = 0; i < m; ++i) {
        std::fill(A.row(i), A.row(i) + n, T{});
        A(i, i) = one<T>();
    }
}

template <Scalar T>
void form_left(Integer m, Integer n, const T *a, Integer tda, const double *left, T *qt, Integer tdq, T *work)
{
    const RowMajor<const T> A{a, tda};
    const RowMajor<T> Q{qt, tdq};
    set_identity(n, m, qt, tdq);
    for (Integer k = n - 1; k >= 0; --k) {
        for (Integer i = k; i < m; ++i) work[i - k] = A(i, k);
        reflect_each_row(n - k, m - k, conj(reflection_factor(work[0], left[k])), work, Q.row(k) + k, tdq);
    }
}

template <Scalar T>
void form_right(Integer n, const T *a, Integer tda, const double *right, T *pt, Integer tdp)
{
    const RowMajor<const T> A{a, tda};
    const RowMajor<T> P{pt, tdp};
    set_identity(n, n, pt, tdp);
    for (Integer k = n - 2; k >= 0; --k)
        reflect_each_row(n - k - 1, n - k - 1, conj(reflection_factor(A(k, k + 1), right[k])), &A(k, k + 1),
                         P.row(k + 1) + k + 1, tdp);
}

} // namespace

KOR_CLONES void reduce_to_bidiagonal(Integer m, Integer n, double *a, Integer tda, double *d, double *e, double *left,
                                     double *right, double *work)
{
    reduce(m, n, a, tda, d, e, left, right, work);
}
void reduce_to_bidiagonal(Integer m, Integer n, Complex *a, Integer tda, double *d, double *e, double *left,
                          double *right, Complex *work)
{
    reduce(m, n, a, tda, d, e, left, right, work);
}

void bidiagonal_form(Integer n, double *a, double *d, double *e, double *left, double *right, double *work)
{
    if (n >= kWorthBlocks && reduce_in_blocks(n, a, d, e, left, right)) return;
    reduce_to_bidiagonal(n, n, a, n, d, e, left, right, work);
}
void bidiagonal_form(Integer n, Complex *a, double *d, double *e, double *left, double *right, Complex *work)
{
    if (n >= kWorthBlocks && reduce_in_blocks(n, a, d, e, left, right)) return;
    reduce_to_bidiagonal(n, n, a, n, d, e, left, right, work);
}

KOR_CLONES void apply_left_reflections(Integer m, Integer n, const double *a, Integer tda, const double *left,
                                       Integer ncolb, double *b, Integer tdb, double *work)
{
    apply_left(m, n, a, tda, left, ncolb, b, tdb, work);
}
void apply_left_reflections(Integer m, Integer n, const Complex *a, Integer tda, const double *left, Integer ncolb,
                            Complex *b, Integer tdb, Complex *work)
{
    apply_left(m, n, a, tda, left, ncolb, b, tdb, work);
}
KOR_CLONES void apply_right_reflections(Integer n, const double *a, Integer tda, const double *right, Integer ncoly,
                                        double *y, Integer tdy, double *work)
{
    apply_right(n, a, tda, right, ncoly, y, tdy, work);
}
void apply_right_reflections(Integer n, const Complex *a, Integer tda, const double *right, Integer ncoly, Complex *y,
                             Integer tdy, Complex *work)
{
    apply_right(n, a, tda, right, ncoly, y, tdy, work);
}

KOR_CLONES void form_left_basis(Integer m, Integer n, const double *a, Integer tda, const double *left, double *qt,
                                Integer tdq, double *work)
{
    form_left(m, n, a, tda, left, qt, tdq, work);
}
void form_left_basis(Integer m, Integer n, const Complex *a, Integer tda, const double *left, Complex *qt, Integer tdq,
                     Complex *work)
{
    form_left(m, n, a, tda, left, qt, tdq, work);
}
KOR_CLONES void form_right_basis(Integer n, const double *a, Integer tda, const double *right, double *pt, Integer tdp)
{
    form_right(n, a, tda, right, pt, tdp);
}
void form_right_basis(Integer n, const Complex *a, Integer tda, const double *right, Complex *pt, Integer tdp)
{
    form_right(n, a, tda, right, pt, tdp);
}

} // namespace kor::linalg
