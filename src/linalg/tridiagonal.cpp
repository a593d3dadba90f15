// Reduction of a symmetric or Hermitian matrix to tridiagonal form, row by row in the lower triangle.
//
// Row i is the conjugate of the column x above its diagonal element. The reflection H = I - gamma u conj(u)' with
// H x = (0, ..., 0, beta) acts on the leading i rows and columns: with p = A u,
//     H A conj(H)' = A - w conj(u)' - u conj(w)',   w = conj(gamma) p - |gamma|^2 (conj(u)' p) u / 2.
#include "linalg/tridiagonal.hpp"

#include <algorithm>

#include "frame/dispatch.hpp"
#include "frame/views.hpp"
#include "frame/workspace.hpp"
#include "linalg/inner_product.hpp"
#include "linalg/lapack.hpp"
#include "linalg/reflection.hpp"
#include "linalg/roomy_copy.hpp"
#include "linalg/scalar.hpp"

namespace kor::linalg {

namespace {

double zeta_of(double zeta) { return zeta; }
Complex zeta_of(Complex theta) { return {theta.re, 0.0}; }

// gamma of a reflection with the leading element zeta, 0 if it was left out; in the complex case from its scalar.
double gamma_of(double zeta, const double *, Integer) { return zeta == 0.0 ? 0.0 : 1.0; }
Complex gamma_of(Complex zeta, const Complex *scalars, Integer i)
{
    return zeta.re == 0.0 ? Complex{} : Complex{1.0, scalars[i].im};
}

template <Scalar T>
void reduce(Integer n, T *a, Integer tda, double *d, double *e, T *work, double tol)
{
    const RowMajor<T> A{a, tda};
    T *const w = work; // p, then w, in the elements before i: those behind keep the scalars
    for (Integer i = n - 1; i > 0; --i) {
        T *const u = A.row(i);
        for (Integer j = 0; j < i; ++j) u[j] = conj(u[j]);
        T beta = u[i - 1];
        const T scalar = make_reflection(i - 1, beta, u, 1, tol);
        e[i] = real(beta);
        u[i - 1] = zeta_of(scalar);
        work[i] = scalar;
        const T gamma = gamma_of(u[i - 1], work, i);
        if (!(gamma == T{})) {
            for (Integer r = 0; r < i; ++r) {
                const T *const row = A.row(r);
                const T factor = u[r];
                for (Integer c = 0; c < r; ++c) w[c] += conj(row[c]) * factor;
                w[r] = plain_product(r, row, u) + real(row[r]) * factor;
            }
            const T product = inner_product(i, u, w);
            const T shift = real(0.5 * (gamma * conj(gamma))) * product;
            for (Integer r = 0; r < i; ++r) w[r] = conj(gamma) * w[r] - shift * u[r];
            for (Integer r = 0; r < i; ++r) {
                T *const row = A.row(r);
                const T ur = u[r], wr = w[r];
                for (Integer c = 0; c <= r; ++c) row[c] -= wr * conj(u[c]) + ur * conj(w[c]);
            }
        }
    }
    for (Integer i = 0; i < n; ++i) d[i] = real(A(i, i));
    if (n > 0) e[0] = 0.0;
}

// Q = conj(H_{n-1})' ... conj(H_1)': the reflections are taken in from the first, each of which enlarges the part that
// differs from I by one row and column. Row i stays the vector of reflection i until its turn.
template <Scalar T>
void form_basis(Integer n, T *a, Integer tda, const T *work)
{
    const RowMajor<T> A{a, tda};
    for (Integer i = 0; i < n; ++i) {
        T *const u = A.row(i);
        const T gamma = i > 0 ? conj(gamma_of(u[i - 1], work, i)) : T{};
        for (Integer r = 0; r < i; ++r) {
            T *const __restrict row = A.row(r);
            if (!(gamma == T{})) {
                const T factor = gamma * inner_product(i, u, row);
                for (Integer c = 0; c < i; ++c) row[c] -= factor * u[c];
            }
            row[i] = T{};
        }
        std::fill(u, u + i, T{});
        u[i] = one<T>();
    }
}

// LAPACK takes the lower triangle for the upper one of the transpose, conj(A): so Q comes conjugated, and by rows.
template <Scalar T>
bool reduce_in_blocks(bool want_basis, Integer n, T *a, Integer tda, double *d, double *e)
{
    const RoomyCopy<T> matrix{n, n, a, tda};
    if (!matrix) return false;
    T best[2], unused;
    lapack::hetrd('U', n, matrix.data(), matrix.td(), d, e + 1, &unused, &best[0], -1);
    lapack::orgtr('U', n, matrix.data(), matrix.td(), &unused, &best[1], -1);
    const Integer lwork = static_cast<Integer>(std::max(real(best[0]), real(best[1])));
    Workspace<T> work(Count{n} + lwork + RoomyCopy<T>::behind_work(n));
    if (!work) return false;
    T *const tau = work.data(), *const room = tau + n;
    matrix.take();
    lapack::hetrd('U', n, matrix.data(), matrix.td(), d, e + 1, tau, room, lwork);
    e[0] = 0.0;
    if (want_basis) lapack::orgtr('U', n, matrix.data(), matrix.td(), tau, room, lwork);
    matrix.give_back();
    if (!want_basis) return true;
    if constexpr (std::is_same_v<T, Complex>)
        for (std::ptrdiff_t i = 0; i < n; ++i)
            for (std::ptrdiff_t j = 0; j < n; ++j) a[i * tda + j] = conj(a[i * tda + j]);
    return true;
}

constexpr Integer kWorthBlocks = 64;

} // namespace

KOR_CLONES void reduce_to_tridiagonal(Integer n, double *a, Integer tda, double *d, double *e, double *work, double tol)
{
    reduce(n, a, tda, d, e, work, tol);
}
void reduce_to_tridiagonal(Integer n, Complex *a, Integer tda, double *d, double *e, Complex *work, double tol)
{
    reduce(n, a, tda, d, e, work, tol);
}

KOR_CLONES void form_tridiagonal_basis(Integer n, double *a, Integer tda) { form_basis<double>(n, a, tda, nullptr); }
void form_tridiagonal_basis(Integer n, Complex *a, Integer tda, const Complex *work) { form_basis(n, a, tda, work); }

void tridiagonal_form(bool want_basis, Integer n, double *a, Integer tda, double *d, double *e, double *work,
                      double tol)
{
    if (n >= kWorthBlocks && reduce_in_blocks(want_basis, n, a, tda, d, e)) return;
    reduce_to_tridiagonal(n, a, tda, d, e, work, tol);
    if (want_basis) form_tridiagonal_basis(n, a, tda);
}
void tridiagonal_form(bool want_basis, Integer n, Complex *a, Integer tda, double *d, double *e, Complex *work,
                      double tol)
{
    if (n >= kWorthBlocks && reduce_in_blocks(want_basis, n, a, tda, d, e)) return;
    reduce_to_tridiagonal(n, a, tda, d, e, work, tol);
    if (want_basis) form_tridiagonal_basis(n, a, tda, work);
}

} // namespace kor::linalg
