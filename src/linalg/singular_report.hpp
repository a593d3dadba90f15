// What the routines for singular values test, arrange and report alike, real and complex.
#pragma once

#include <algorithm>

#include "frame/views.hpp"
#include "frame/workspace.hpp"
#include "linalg/bidiagonal.hpp"
#include "linalg/bidiagonal_qr.hpp"
#include "linalg/eigen_report.hpp"
#include "linalg/magnitude.hpp"
#include "linalg/reflected_rows.hpp"
#include "linalg/singular_values.hpp"
#include "linalg/transpose.hpp"

namespace kor::linalg {

// Columns of a matrix that may have none.
inline bool columns_refused(const Report &report, const char *count_name, Integer count, const char *stride_name,
                            Integer stride)
{
    return negative(report, count_name, count) ||
           (count > 0 && shorter(report, stride_name, stride, count_name, count));
}

// r is the number of singular values.
inline void report_outcome(const Report &report, SingularOutcome outcome, const IterationRecord &record, Integer r,
                           Integer *iter, Integer *failinfo)
{
    if (outcome == SingularOutcome::no_memory) return report.error<NE_ALLOC_FAIL>();
    *iter = record.steps;
    *failinfo = record.failures;
    if (outcome == SingularOutcome::no_convergence) return report.error<NE_QR_NOT_CONV>(step_limit(r));
    report.success();
}

// f02wec, f02xec: of a rectangular matrix.
template <Scalar T>
void decompose_rectangle(const Report &report, Integer m, Integer n, T *a, Integer tda, Integer ncolb, T *b,
                         Integer tdb, bool wantq, T *q, Integer tdq, double *sv, bool wantp, T *pt, Integer tdpt,
                         Integer *iter, double *e, Integer *failinfo)
{
    if (negative(report, "m", m) || negative(report, "n", n) || shorter(report, "tda", tda, "n", n) ||
        columns_refused(report, "ncolb", ncolb, "tdb", tdb))
        return;
    const bool tall = m >= n;
    if (!tall && wantq && tdq < m) return report.error<NE_TDQ_LT_M>();
    if (tall && wantq && wantp && tdpt < n) return report.error<NE_TDP_LT_N>();

    const Integer r = std::min(m, n);
    IterationRecord record{e};
    if (r == 0) return report_outcome(report, SingularOutcome::success, record, r, iter, failinfo);
    // The longer vectors lie in a; so do the others of a tall matrix, if they are alone.
    SingularVectors<T> vectors{};
    if (wantq) {
        vectors.q = tall ? a : q;
        vectors.tdq = tall ? tda : tdq;
    }
    if (wantp) {
        const bool in_a = !tall || !wantq;
        vectors.pt = in_a ? a : pt;
        vectors.tdpt = in_a ? tda : tdpt;
    }
    const SingularOutcome outcome = singular_decomposition(m, n, a, tda, ncolb, b, tdb, sv, vectors, record);
    report_outcome(report, outcome, record, r, iter, failinfo);
}

// The upper triangle of a, with zeros below.
template <Scalar T>
void copy_triangle(Integer n, const T *a, Integer tda, T *copy, Integer td)
{
    for (std::ptrdiff_t i = 0; i < n; ++i) {
        std::fill(copy + i * td, copy + i * td + i, T{});
        std::copy(a + i * tda + i, a + i * tda + n, copy + i * td + i);
    }
}

// f02wuc, f02xuc: of an upper triangle.
template <Scalar T>
void decompose_triangle(const Report &report, Integer n, T *a, Integer tda, Integer ncolb, T *b, Integer tdb,
                        bool wantq, T *q, Integer tdq, double *sv, bool wantp, Integer *iter, double *e,
                        Integer *failinfo)
{
    if (negative(report, "n", n) || shorter(report, "tda", tda, "n", n) ||
        columns_refused(report, "ncolb", ncolb, "tdb", tdb))
        return;
    if (wantq && tdq < n) return report.error<NE_TDQ_LT_N>();
    IterationRecord record{e};
    if (n == 0) return report_outcome(report, SingularOutcome::success, record, n, iter, failinfo);
    const Workspace<T> triangle(Count{n} * n);
    if (!triangle) return report.error<NE_ALLOC_FAIL>();
    copy_triangle(n, a, tda, triangle.data(), n);
    const SingularVectors<T> vectors{wantq ? q : nullptr, tdq, wantp ? a : nullptr, tda};
    const SingularOutcome outcome =
        singular_decomposition(n, n, triangle.data(), n, ncolb, b, tdb, sv, vectors, record);
    report_outcome(report, outcome, record, n, iter, failinfo);
}

// The scalar of a reflection from the right, as the triangle keeps it: zeta, and in the imaginary part the twist.
inline double kept_scalar(double zeta, double) { return zeta; }
inline Complex kept_scalar(Complex zeta, double twist) { return {zeta.re, twist}; }
inline double twist_of(double) { return 0.0; }
inline double twist_of(Complex scalar) { return scalar.im; }
inline double zeta_of(double zeta) { return zeta; }
inline Complex zeta_of(Complex scalar) { return {scalar.re, 0.0}; }

// f02swc, f02uwc: upper triangle to bidiagonal form. Above its diagonal a keeps the reflections from the right.
template <Scalar T>
void bidiagonalise_triangle(const Report &report, Integer n, T *a, Integer tda, double *d, double *e, Integer ncoly,
                            T *y, Integer tdy, bool wantq, T *q, Integer tdq)
{
    if (negative(report, "n", n) || shorter(report, "tda", tda, "n", n) ||
        columns_refused(report, "ncoly", ncoly, "tdy", tdy))
        return;
    if (wantq && tdq < n) return report.error<NE_TDQ_LT_N>();
    if (n == 0) return report.success();
    const Workspace<T> triangle(Count{n} * n);
    const Workspace<double> twists(Count{n} * 2);
    const Workspace<T> work(Count{n} * 2 + ncoly);
    if (!triangle || !twists || !work) return report.error<NE_ALLOC_FAIL>();
    copy_triangle(n, a, tda, triangle.data(), n);

    double *const left = twists.data(), *const right = left + n;
    bidiagonal_form(n, triangle.data(), d, e, left, right, work.data());
    if (ncoly > 0) apply_left_reflections(n, n, triangle.data(), n, left, ncoly, y, tdy, work.data());
    if (wantq) {
        form_left_basis(n, n, triangle.data(), n, left, q, tdq, work.data());
        transpose_in_place<false>(n, q, tdq);
    }
    const RowMajor<const T> from{triangle.data(), n};
    const RowMajor<T> to{a, tda};
    for (Integer k = 0; k + 1 < n; ++k) {
        std::copy(from.row(k) + k + 1, from.row(k) + n, to.row(k) + k + 1);
        to(k, k + 1) = kept_scalar(to(k, k + 1), right[k]);
    }
    report.success();
}

// f02sxc, f02uxc: y := conj(P)' y, or a := conj(P)' if there is no y.
template <Scalar T>
void apply_right_factor(const Report &report, Integer n, T *a, Integer tda, Integer ncoly, T *y, Integer tdy)
{
    if (negative(report, "n", n) || shorter(report, "tda", tda, "n", n) ||
        columns_refused(report, "ncoly", ncoly, "tdy", tdy))
        return;
    if (n == 0) return report.success();
    const Workspace<T> triangle(Count{n} * n);
    const Workspace<double> right(Count{n});
    const Workspace<T> work(Count{n} + ncoly);
    if (!triangle || !right || !work) return report.error<NE_ALLOC_FAIL>();
    copy_triangle(n, a, tda, triangle.data(), n);
    const RowMajor<T> A{triangle.data(), n};
    for (Integer k = 0; k + 1 < n; ++k) {
        right[k] = twist_of(A(k, k + 1));
        A(k, k + 1) = zeta_of(A(k, k + 1));
    }
    if (ncoly > 0) {
        apply_right_reflections(n, A.a, n, right.data(), ncoly, y, tdy, work.data());
    } else {
        form_right_basis(n, A.a, n, right.data(), a, tda);
        // The rows are the columns of P.
        if constexpr (std::is_same_v<T, Complex>)
            for (std::ptrdiff_t i = 0; i < n; ++i)
                for (std::ptrdiff_t j = 0; j < n; ++j) a[i * tda + j] = conj(a[i * tda + j]);
    }
    report.success();
}

// A scaling under which no step of the iteration over- or underflows.
class ScaledBidiagonal {
  public:
    ScaledBidiagonal(Integer n, double *d, double *e) : n_{n}, d_{d}, e_{e}
    {
        Magnitude magnitude;
        magnitude.take(n, d);
        if (n > 1) magnitude.take(n - 1, e);
        is_finite_ = magnitude.is_finite();
        scaling_ = is_finite_ ? magnitude.scaling() : 1.0;
        scale(scaling_);
    }
    bool is_finite() const { return is_finite_; }
    void restore() const { scale(1.0 / scaling_); }

  private:
    void scale(double factor) const
    {
        if (factor == 1.0) return;
        for (Integer i = 0; i < n_; ++i) d_[i] *= factor;
        for (Integer i = 0; i + 1 < n_; ++i) e_[i] *= factor;
    }
    Integer n_;
    double *d_, *e_, scaling_;
    bool is_finite_;
};

// f02syc, f02uyc: singular values of a bidiagonal matrix. b := Q' b, y := y Q, z := P' z.
template <Scalar T>
void iterate_on_bidiagonal(const Report &report, Integer n, double *d, double *e, Integer ncolb, T *b, Integer tdb,
                           Integer nrowy, T *y, Integer tdy, Integer ncolz, T *z, Integer tdz, Integer *iter,
                           Integer *failinfo)
{
    if (negative(report, "n", n) || columns_refused(report, "ncolb", ncolb, "tdb", tdb) ||
        negative(report, "nrowy", nrowy))
        return;
    if (nrowy > 0 && shorter(report, "tdy", tdy, "n", n)) return;
    if (columns_refused(report, "ncolz", ncolz, "tdz", tdz)) return;
    // The columns of y turn: their copies are rows.
    const Workspace<T> columns(Count{n} * nrowy);
    if (!columns) return report.error<NE_ALLOC_FAIL>();
    IterationRecord record{e};
    const ScaledBidiagonal scaled{n, d, e};
    if (!scaled.is_finite()) {
        record.failures = n;
        return report_outcome(report, SingularOutcome::no_convergence, record, n, iter, failinfo);
    }
    for (std::ptrdiff_t i = 0; i < nrowy; ++i)
        for (std::ptrdiff_t j = 0; j < n; ++j) columns[j * nrowy + i] = y[i * tdy + j];
    record.failures =
        diagonalise_bidiagonal(n, d, e, step_limit(n), record.steps,
                               BothRows{TurningRows<T>{columns.data(), nrowy, nrowy}, TurningRows<T>{b, tdb, ncolb}},
                               TurningRows<T>{z, tdz, ncolz});
    for (std::ptrdiff_t i = 0; i < nrowy; ++i)
        for (std::ptrdiff_t j = 0; j < n; ++j) y[i * tdy + j] = columns[j * nrowy + i];
    scaled.restore();
    report_outcome(report, record.failures == 0 ? SingularOutcome::success : SingularOutcome::no_convergence, record, n,
                   iter, failinfo);
}

} // namespace kor::linalg
