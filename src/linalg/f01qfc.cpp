// f01qfc: QR factorisation of a real matrix with interchanges of columns.
//
// P. A. Businger and G. H. Golub, Linear least squares solutions by Householder transformations, Numer. Math. 7 (1965)
// 269-276; in blocks after G. Quintana-Orti, X. Sun and C. H. Bischof, SIAM J. Sci. Comput. 19 (1998) 1486-1494; the lengths
// of the columns are brought up to date as in Z. Drmac and Z. Bujanovic, ACM Trans. Math. Softw. 35 (2008) 12.
#include <kor/f01.h>

#include <algorithm>
#include <cmath>
#include <utility>

#include "frame/dispatch.hpp"
#include "frame/report.hpp"
#include "frame/views.hpp"
#include "linalg/arguments.hpp"
#include "linalg/blas.hpp"
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
        const double old_factor = old_z != nullptr ? old_z[i * td] : 0.0;
        const double below = zeta != 0.0 ? z[i * td] : 0.0, factor = i == 0 ? zeta : below;
        double *const __restrict row = y + i * td;
        if (i == 0)
            for (Integer j = 0; j < n; ++j) next[j] = factor * (row[j] -= old_factor * pending[j]);
        else
            for (Integer j = 0; j < n; ++j) next[j] += factor * (row[j] -= old_factor * pending[j]);
    }
}

constexpr double kUnknown = -1.0;

// Brings the lengths of n columns up to date, from which these elements of theirs have gone into the factor. length[j] is what
// column j has, exact[j] what it had when it was measured: it becomes kUnknown where half the digits are lost. False if
// there is such a column.
KOR_CLONES bool shorten(Integer n, const double *gone, double *__restrict length, double *__restrict exact)
{
    double lost = 0.0;
    for (Integer j = 0; j < n; ++j) {
        const bool known = length[j] != 0.0 && exact[j] != kUnknown;
        const double share = gone[j] / length[j], rest = (1.0 + share) * (1.0 - share), left = rest > 0.0 ? rest : 0.0;
        const double shrunk = length[j] / exact[j];
        const bool good = left * shrunk * shrunk > kRootOfPrecision;
        length[j] = known & good ? length[j] * std::sqrt(left) : length[j];
        lost = known & !good ? 1.0 : lost;
        exact[j] = known & !good ? kUnknown : exact[j];
    }
    return lost == 0.0;
}

// Large matrices are factorised in blocks; in small ones, and at the end of large ones, the effect of the last reflection
// on the rows below it is left pending, and carried out in the same pass over the matrix that prepares the next.
class PivotedQr {
  public:
    PivotedQr(Integer m, Integer n, double *a, Integer tda, double *length, double *exact, double *pending)
        : m_{m}, n_{n}, A_{a, tda}, tda_{tda}, length_{length}, exact_{exact}, pending_{pending}, next_{pending + n}
    {
    }

    // `block` has room for kBlock rows of n elements and kBlock more.
    void factor(double *zeta, Integer *perm, double *block)
    {
        for (Integer j = 0; j < n_; ++j) exact_[j] = length_[j] = euclidean_norm(m_, A_.a + j, tda_);
        const Integer steps = std::min(m_, n_);
        Integer k = 0;
        while (steps - k > kFused) k = factor_block(k, k + kBlock, zeta, perm, block);
        factor_rest(k, steps, zeta, perm);
    }

    static kor::Count block_size(Integer m, Integer n)
    {
        return std::min(m, n) > kFused ? (kor::Count{n} + 1) * kBlock : kor::Count{0};
    }

  private:
    // Reflections whose effect is gathered in a product of matrices, and the number of them from which that pays.
    static constexpr Integer kBlock = 8, kFused = 128;

    Integer choose(Integer k, Integer *perm)
    {
        const auto chosen = static_cast<Integer>(std::max_element(length_ + k, length_ + n_) - length_);
        perm[k] = chosen + 1;
        if (chosen != k) interchange(k, chosen);
        return chosen;
    }

    // The columns from `first` up to at most `last`: of the effect V F' of the reflections only the row and the column in turn are carried out, the
    // rest at the end, or when the length of a column can no longer be told from the rows. Returns where it stopped.
    Integer factor_block(Integer first, Integer last, double *zeta, Integer *perm, double *block)
    {
        using namespace kor::blas;
        const kor::RowMajor<double> F{block, n_}; // row j belongs to the reflection of column first + j
        double *const products = F.row(kBlock);
        bool lengths_known = true;
        Integer k = first;
        for (; k < last && lengths_known; ++k) {
            const Integer j = k - first, rows = m_ - k, columns = n_ - k - 1;
            if (const Integer chosen = choose(k, perm); chosen != k)
                for (Integer i = 0; i < j; ++i) std::swap(F(i, k), F(i, chosen));
            if (j > 0)
                gemv(kRowMajor, NoTranspose, rows, j, -1.0, &A_(k, first), tda_, &F(0, k), n_, 1.0, &A_(k, k), tda_);
            zeta[k] = k + 1 < m_ ? make_reflection(rows - 1, A_(k, k), &A_(k + 1, k), tda_, 0.0) : 0.0;
            if (columns == 0) continue;

            // u = (zeta; z) in its column; F(j) = u' A - (u' V) F.
            const double diagonal = std::exchange(A_(k, k), zeta[k]);
            double *const row = F.row(j) + k + 1;
            if (zeta[k] != 0.0) {
                gemv(kRowMajor, Transpose, rows, columns, 1.0, &A_(k, k) + 1, tda_, &A_(k, k), tda_, 0.0, row, 1);
                if (j > 0) {
                    gemv(kRowMajor, Transpose, rows, j, 1.0, &A_(k, first), tda_, &A_(k, k), tda_, 0.0, products, 1);
                    gemv(kRowMajor, Transpose, j, columns, -1.0, F.row(0) + k + 1, n_, products, 1, 1.0, row, 1);
                }
            } else {
                std::fill(row, row + columns, 0.0);
            }
            gemv(kRowMajor, Transpose, j + 1, columns, -1.0, F.row(0) + k + 1, n_, &A_(k, first), 1, 1.0, &A_(k, k) + 1,
                 1);
            A_(k, k) = diagonal;
            lengths_known = shorten(columns, &A_(k, k) + 1, length_ + k + 1, exact_ + k + 1);
        }
        if (k < m_ && k < n_)
            gemm(kRowMajor, NoTranspose, NoTranspose, m_ - k, n_ - k, k - first, -1.0, &A_(k, first), tda_,
                 F.row(0) + k, n_, 1.0, &A_(k, k), tda_);
        for (Integer c = k; c < n_; ++c)
            if (exact_[c] == kUnknown) measure(k, c);
        return k;
    }

    // The columns [k, steps) one by one.
    void factor_rest(Integer first, Integer steps, double *zeta, Integer *perm)
    {
        std::fill(pending_, pending_ + n_, 0.0);
        for (Integer k = first; k < steps; ++k) {
            choose(k, perm);
            settle_column(k, k);
            zeta[k] = k + 1 < m_ ? make_reflection(m_ - k - 1, A_(k, k), &A_(k + 1, k), tda_, 0.0) : 0.0;
            if (k + 1 == n_) break;
            pass(k, zeta[k]);
            if (shorten(n_ - k - 1, &A_(k, k) + 1, length_ + k + 1, exact_ + k + 1)) continue;
            for (Integer j = k + 1; j < n_; ++j)
                if (exact_[j] == kUnknown) {
                    settle_column(k + 1, j);
                    measure(k + 1, j);
                }
        }
    }

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

    void measure(Integer from, Integer j)
    {
        exact_[j] = length_[j] = from < m_ ? euclidean_norm(m_ - from, &A_(from, j), tda_) : 0.0;
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
    const kor::Workspace<double> memory{pivot == FixedPivot ? reflection_work(m, n)
                                                            : kor::Count{n} * 2 + PivotedQr::block_size(m, n)};
    if (no_memory(report, bool{memory})) return;

    if (pivot == FixedPivot) {
        qr_factor(m, n, a, tda, zeta, memory.data());
        for (Integer k = 0; k < std::min(m, n); ++k) perm[k] = k + 1;
    } else {
        PivotedQr{m, n, a, tda, work, work + n, memory.data()}.factor(zeta, perm,
                                                                      memory.data() + 2 * std::ptrdiff_t{n});
    }
    report.success();
}
