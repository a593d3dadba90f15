// General eigenproblems: small ones by the classical road in hessenberg.cpp, others by LAPACK, which takes a row-major matrix
// for its transpose: its left eigenvectors, conjugated, are our right ones.
#include "linalg/general_eigen.hpp"

#include <algorithm>
#include <cmath>

#include "frame/constants.hpp"
#include "frame/views.hpp"
#include "frame/workspace.hpp"
#include "linalg/hessenberg.hpp"
#include "linalg/lapack.hpp"
#include "linalg/magnitude.hpp"
#include "linalg/matrix_norm.hpp"
#include "linalg/scalar.hpp"

namespace kor::linalg {

namespace {

// Orders up to which our own reduction and iteration are quicker: see bench/linalg/bench_eigen.
constexpr Integer kSmall = 64;

// Column j of v, and for a complex pair the next one as well, from the rows of real and imaginary parts. The second vector of
// a pair is the conjugate of the first.
void spread_vectors(Integer n, const double *parts, Integer td, const double *wi, double sign, Complex *v, Integer tdv)
{
    const RowMajor<const double> X{parts, td};
    const RowMajor<Complex> V{v, tdv};
    for (Integer j = 0; j < n; ++j) {
        const bool pair = wi[j] != 0.0;
        for (Integer i = 0; i < n; ++i) V(i, j) = {X(j, i), pair ? sign * X(j + 1, i) : 0.0};
        normalise_vector(n, v + j, tdv);
        if (!pair) continue;
        for (Integer i = 0; i < n; ++i) V(i, j + 1) = conj(V(i, j));
        ++j;
    }
}

// So far below the greatest element products underflow, and the QZ iteration may run in a circle.
void drop_below_range(Integer n, double *a, Integer tda, double greatest)
{
    constexpr double kRange = 0x1p-300;
    for (std::ptrdiff_t i = 0; i < n; ++i)
        for (std::ptrdiff_t j = 0; j < n; ++j)
            if (std::fabs(a[i * tda + j]) < kRange * greatest) a[i * tda + j] = 0.0;
}

// `work`, 2 n n elements, is for the vectors.
EigenOutcome small_problem(Integer n, double *a, Integer tda, double *wr, double *wi, Complex *v, Integer tdv,
                           Integer *iter, double *work)
{
    constexpr double kBase = 2.0;
    double d[kSmall], vectors_work[2 * kSmall];
    const BalancedRange range = balance(n, kBase, a, tda, d);
    if (v == nullptr) {
        reflect_to_hessenberg(n, range, a, tda, nullptr, n, vectors_work);
        return hessenberg_eigenvalues(n, range, kPrecision, a, tda, nullptr, n, wr, wi, iter, 30 * n) == 0
                   ? EigenOutcome::success
                   : EigenOutcome::no_convergence;
    }
    double *const zt = work, *const xt = zt + std::ptrdiff_t{n} * n;
    reflect_to_hessenberg(n, range, a, tda, zt, n, vectors_work);
    if (hessenberg_eigenvalues(n, range, kPrecision, a, tda, zt, n, wr, wi, iter, 30 * n) != 0)
        return EigenOutcome::no_convergence;
    schur_eigenvectors(n, a, tda, wr, wi, zt, n, xt, n, vectors_work);
    // The components in the rows of xt: what undo_balance does to rows is done to columns.
    const RowMajor<double> X{xt, n};
    for (Integer j = 0; j < n; ++j) {
        for (Integer i = range.low; i <= range.high; ++i) X(j, i) *= d[i];
        const auto exchange = [&](Integer i) { std::swap(X(j, i), X(j, static_cast<Integer>(d[i]) - 1)); };
        for (Integer i = range.low - 1; i >= 0; --i) exchange(i);
        for (Integer i = range.high + 1; i < n; ++i) exchange(i);
    }
    spread_vectors(n, xt, n, wi, 1.0, v, tdv);
    return EigenOutcome::success;
}

EigenOutcome by_lapack(Integer n, double *a, Integer tda, double *wr, double *wi, Complex *v, Integer tdv,
                       Integer *iter)
{
    const char job = v != nullptr ? 'V' : 'N';
    Workspace<double> left(v != nullptr ? Count{n} * n : Count{1});
    if (!left) return EigenOutcome::no_memory;
    double best, unused;
    lapack::geev(job, 'N', n, a, tda, wr, wi, left.data(), n, &unused, n, &best, -1);
    Workspace<double> work(Count{static_cast<Integer>(best)});
    if (!work) return EigenOutcome::no_memory;
    if (lapack::geev(job, 'N', n, a, tda, wr, wi, left.data(), n, &unused, n, work.data(),
                     static_cast<Integer>(best)) != 0)
        return EigenOutcome::no_convergence;
    std::fill(iter, iter + n, 0);
    if (v != nullptr) spread_vectors(n, left.data(), n, wi, -1.0, v, tdv);
    return EigenOutcome::success;
}

} // namespace

void normalise_vector(Integer n, Complex *x, Integer incx)
{
    Complex largest{};
    double greatest = 0.0;
    for (std::ptrdiff_t i = 0; i < n; ++i) greatest = std::max(greatest, largest_part(x[i * incx]));
    if (greatest == 0.0) return;
    // Scaled first, so that no square overflows or gets lost.
    const double scale = std::ldexp(1.0, -std::max(std::ilogb(greatest), -1021));
    double squares = 0.0, largest_square = 0.0;
    for (std::ptrdiff_t i = 0; i < n; ++i) {
        const Complex z = x[i * incx] = scale * x[i * incx];
        const double square = z.re * z.re + z.im * z.im;
        squares += square;
        // Components that differ by rounding alone do not take turns.
        if (square > largest_square * (1.0 + 0x1p-40)) {
            largest_square = square;
            largest = z;
        }
    }
    const double length = std::sqrt(squares);
    const Complex factor = {largest.re / modulus(largest) / length, -largest.im / modulus(largest) / length};
    for (std::ptrdiff_t i = 0; i < n; ++i) {
        Complex &z = x[i * incx];
        const bool is_largest = z == largest;
        z = z * factor;
        if (is_largest) z.im = 0.0;
    }
}

EigenOutcome general_eigenvalues(Integer n, double *a, Integer tda, Complex *values, Complex *v, Integer tdv,
                                 Integer *iter)
{
    const Magnitude magnitude = magnitude_of(n, n, a, tda);
    if (!magnitude.is_finite()) return EigenOutcome::no_convergence;
    const bool small = n <= kSmall;
    Workspace<double> parts(Count{n} * 2 + (small && v != nullptr ? Count{n} * n * 2 : Count{0}));
    if (!parts) return EigenOutcome::no_memory;
    double *const wr = parts.data(), *const wi = wr + n;

    // LAPACK scales by itself.
    const double scaling = small ? magnitude.scaling() : 1.0;
    if (scaling != 1.0)
        for (std::ptrdiff_t i = 0; i < n; ++i)
            for (std::ptrdiff_t j = 0; j < n; ++j) a[i * tda + j] *= scaling;
    const EigenOutcome outcome =
        small ? small_problem(n, a, tda, wr, wi, v, tdv, iter, wi + n) : by_lapack(n, a, tda, wr, wi, v, tdv, iter);
    if (outcome == EigenOutcome::success)
        for (Integer i = 0; i < n; ++i) values[i] = {wr[i] / scaling, wi[i] / scaling};
    return outcome;
}

EigenOutcome pair_eigenvalues(Integer n, double *a, Integer tda, double *b, Integer tdb, double tol, Complex *alfa,
                              double *beta, double *v, Integer tdv, Integer *iter)
{
    const Magnitude greatest_a = magnitude_of(n, n, a, tda), greatest_b = magnitude_of(n, n, b, tdb);
    if (!greatest_a.is_finite() || !greatest_b.is_finite()) return EigenOutcome::no_convergence;
    const auto negligible = [=](const double *matrix, Integer td) {
        return tol > kPrecision ? tol * matrix_norm(FrobeniusNorm, General, false, n, n, matrix, td) : 0.0;
    };
    const double least_alfa = negligible(a, tda), least_beta = negligible(b, tdb);
    const char job = v != nullptr ? 'V' : 'N';
    // Small problems have no use for the blocks of a greater work space, and asking for its size takes them long.
    constexpr Integer kWorthBlocks = 64;
    double best, unused;
    if (n >= kWorthBlocks)
        lapack::ggev(job, 'N', n, a, tda, b, tdb, &unused, &unused, &unused, &unused, n, &unused, n, &best, -1);
    const Integer lwork = n >= kWorthBlocks ? static_cast<Integer>(best) : 8 * n;
    Workspace<double> room(Count{n} * 2 + (v != nullptr ? Count{n} * n : Count{1}) + Count{lwork});
    if (!room) return EigenOutcome::no_memory;
    double *const work = room.data(), *const re = work + lwork, *const im = re + n, *const left = im + n;
    drop_below_range(n, a, tda, greatest_a.value());
    drop_below_range(n, b, tdb, greatest_b.value());
    if (lapack::ggev(job, 'N', n, a, tda, b, tdb, re, im, beta, left, n, &unused, n, work, lwork) != 0)
        return EigenOutcome::no_convergence;

    for (Integer j = 0; j < n; ++j) {
        // The two of a pair are scaled each in its way, but they stand or fall together.
        const Integer last = im[j] > 0.0 ? j + 1 : j;
        bool no_alfa = false, no_beta = false;
        for (Integer k = j; k <= last; ++k) {
            no_alfa |= modulus(Complex{re[k], im[k]}) <= least_alfa;
            no_beta |= beta[k] <= least_beta;
        }
        for (Integer k = j; k <= last; ++k) {
            alfa[k] = no_alfa ? Complex{} : Complex{re[k], im[k]};
            if (no_beta) beta[k] = 0.0;
            iter[k] = 0;
        }
        j = last;
    }
    if (v == nullptr) return EigenOutcome::success;

    const RowMajor<const double> X{left, n};
    const RowMajor<double> V{v, tdv};
    for (Integer j = 0; j < n; ++j) {
        const bool pair = im[j] != 0.0;
        const auto component = [&](Integer i) { return Complex{X(j, i), pair ? -X(j + 1, i) : 0.0}; };
        // The largest is of the order of one: squares are safe.
        Complex largest{};
        double greatest = 0.0;
        for (Integer i = 0; i < n; ++i) {
            const Complex x = component(i);
            const double square = x.re * x.re + x.im * x.im;
            if (!(square > greatest)) continue;
            greatest = square;
            largest = x;
        }
        const double size = modulus(largest);
        const Complex factor = size > 0.0 ? Complex{largest.re / size / size, -largest.im / size / size} : Complex{};
        for (Integer i = 0; i < n; ++i) {
            const bool is_largest = component(i) == largest;
            const Complex x = is_largest ? one<Complex>() : component(i) * factor;
            V(i, j) = x.re;
            if (pair) V(i, j + 1) = x.im;
        }
        if (pair) ++j;
    }
    return EigenOutcome::success;
}

} // namespace kor::linalg
