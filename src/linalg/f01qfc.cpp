// f01qfc: QR factorisation of a real matrix with interchanges of columns.
//
// P. A. Businger and G. H. Golub, Linear least squares solutions by Householder transformations, Numer. Math. 7 (1965)
// 269-276; the lengths of the columns are brought up to date as in Z. Drmac and Z. Bujanovic, ACM Trans. Math. Softw. 35
// (2008) 12.
#include <kor/f01.h>

#include <algorithm>
#include <cmath>

#include "frame/dispatch.hpp"
#include "frame/report.hpp"
#include "frame/views.hpp"
#include "linalg/arguments.hpp"
#include "linalg/dense_arguments.hpp"
#include "linalg/householder.hpp"
#include "linalg/norm.hpp"
#include "linalg/reflection.hpp"

namespace {

using namespace kor::linalg;

constexpr double kRootOfPrecision = 0x1p-26;

// The rows of the m by n matrix Y lose old_z * pending; next = zeta Y(0) + z' of the rows below. Columns of z and old_z are
// in the same array as Y, with rows of td elements; z starts one row above its first element. old_z may be null.
KOR_CLONES void pivoted_qr_pass(Integer m, Integer n, const double *old_z, double zeta, const double *z, double *y,
                                std::ptrdiff_t td, const double *__restrict pending, double *__restrict next)
{
    for (std::ptrdiff_t i = 0; i < m; ++i) {
        const double old_factor = old_z != nullptr ? old_z[i * td] : 0.0, factor = i == 0        ? zeta
                                                                                   : zeta != 0.0 ? z[i * td]
                                                                                                 : 0.0;
        double *const __restrict row = y + i * td;
        if (i == 0)
            for (Integer j = 0; j < n; ++j) next[j] = factor * (row[j] -= old_factor * pending[j]);
        else
            for (Integer j = 0; j < n; ++j) next[j] += factor * (row[j] -= old_factor * pending[j]);
    }
}

// The factorisation with the effect of the last reflection on the rows below it still pending: it is carried out in the
// same pass over the matrix that prepares the effect of the next one.
class PivotedQr {
  public:
    PivotedQr(Integer m, Integer n, double *a, Integer tda, double *length, double *exact, double *pending)
        : m_{m}, n_{n}, A_{a, tda}, tda_{tda}, length_{length}, exact_{exact}, pending_{pending}, next_{pending + n}
    {
    }

    void factor(double *zeta, Integer *perm)
    {
        for (Integer j = 0; j < n_; ++j) exact_[j] = length_[j] = euclidean_norm(m_, A_.a + j, tda_);
        std::fill(pending_, pending_ + n_, 0.0);
        const Integer steps = std::min(m_, n_);
        for (Integer k = 0; k < steps; ++k) {
            const auto chosen = static_cast<Integer>(std::max_element(length_ + k, length_ + n_) - length_);
            perm[k] = chosen + 1;
            if (chosen != k) interchange(k, chosen);
            settle_column(k, k);
            zeta[k] = k + 1 < m_ ? make_reflection(m_ - k - 1, A_(k, k), &A_(k + 1, k), tda_, 0.0) : 0.0;
            if (k + 1 == n_) break;
            pass(k, zeta[k]);
            for (Integer j = k + 1; j < n_; ++j) shorten(k, j);
        }
    }

  private:
    void interchange(Integer k, Integer chosen)
    {
        for (Integer i = 0; i < m_; ++i) std::swap(A_(i, k), A_(i, chosen));
        length_[chosen] = length_[k];
        exact_[chosen] = exact_[k];
        std::swap(pending_[k], pending_[chosen]);
    }

    // What is pending of reflection k - 1, in the rows from k on of column j.
    void settle_column(Integer k, Integer j)
    {
        if (k > 0 && pending_[j] != 0.0)
            for (Integer i = k; i < m_; ++i) A_(i, j) -= A_(i, k - 1) * pending_[j];
        pending_[j] = 0.0;
    }

    // Carries out what is pending in the columns behind k, and leaves the effect of the reflection of column k pending; its
    // own row is final.
    void pass(Integer k, double zeta)
    {
        const Integer columns = n_ - k - 1;
        double *const first = &A_(k, k) + 1;
        pivoted_qr_pass(m_ - k, columns, k > 0 ? &A_(k, k - 1) : nullptr, zeta, &A_(k, k), first, tda_,
                        pending_ + k + 1, next_ + k + 1);
        for (Integer j = 0; j < columns; ++j) first[j] -= zeta * next_[k + 1 + j];
        std::swap(pending_, next_);
    }

    // The length of the rows below k of column j: length_[j] is what they have, exact_[j] what they had when it was summed.
    void shorten(Integer k, Integer j)
    {
        if (length_[j] == 0.0) return;
        const double share = A_(k, j) / length_[j], left = std::max((1.0 + share) * (1.0 - share), 0.0);
        const double shrunk = length_[j] / exact_[j];
        // A length that has shrunk to this has lost half its digits.
        if (left * shrunk * shrunk > kRootOfPrecision) {
            length_[j] *= std::sqrt(left);
            return;
        }
        settle_column(k + 1, j);
        exact_[j] = length_[j] = k + 1 < m_ ? euclidean_norm(m_ - k - 1, &A_(k + 1, j), tda_) : 0.0;
    }

    Integer m_, n_;
    kor::RowMajor<double> A_;
    Integer tda_;
    double *length_, *exact_, *pending_, *next_;
};

} // namespace

void f01qfc(Integer pivot, Integer m, Integer n, double a[], Integer tda, double zeta[], Integer perm[], double work[],
            KorError *fail)
{
    const kor::Report report{"f01qfc", fail};
    if (pivot != VariablePivot && pivot != FixedPivot) return report.error<NE_BAD_PARAM>("pivot");
    if (negative(report, "m", m) || negative(report, "n", n) || shorter(report, "tda", tda, "n", n)) return;
    const kor::Workspace<double> memory{pivot == FixedPivot ? reflection_work(m, n) : kor::Count{n} * 2};
    if (no_memory(report, bool{memory})) return;

    if (pivot == FixedPivot) {
        qr_factor(m, n, a, tda, zeta, memory.data());
        for (Integer k = 0; k < std::min(m, n); ++k) perm[k] = k + 1;
    } else {
        PivotedQr{m, n, a, tda, work, work + n, memory.data()}.factor(zeta, perm);
    }
    report.success();
}
