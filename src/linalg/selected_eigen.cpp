// Selected eigenvectors by LAPACK: balancing, Hessenberg form, all eigenvalues, inverse iteration for those in the range.
#include "linalg/selected_eigen.hpp"

#include <algorithm>
#include <cmath>

#include "frame/views.hpp"
#include "frame/workspace.hpp"
#include "linalg/arguments.hpp"
#include "linalg/eigen_report.hpp"
#include "linalg/general_eigen.hpp"
#include "linalg/lapack.hpp"
#include "linalg/magnitude.hpp"
#include "linalg/scalar.hpp"

namespace kor::linalg {

namespace {

// The eigenvalues of a Hessenberg matrix, and its eigenvectors, as LAPACK keeps them: real and imaginary parts apart if the
// matrix is real. Both write the vectors of the selected eigenvalues to the leading columns.
template <class T>
struct Spectrum;

template <>
struct Spectrum<double> {
    static constexpr Integer kParts = 2;
    double *w; // real parts, then imaginary parts
    Integer n;
    Integer find(double *h, Integer low, Integer high, double *work, Integer lwork) const
    {
        double unused;
        return lapack::hseqr('E', 'N', n, low, high, h, n, w, w + n, &unused, 1, work, lwork);
    }
    Complex value(Integer j) const { return {w[j], w[n + j]}; }
    Integer vectors(Integer *select, const double *h, double *x, Integer columns, double *work, double *,
                    Integer *ifail) const
    {
        Integer m;
        return lapack::hsein(select, n, h, n, w, w + n, x, n, columns, &m, work, ifail);
    }
};

template <>
struct Spectrum<Complex> {
    static constexpr Integer kParts = 1;
    Complex *w;
    Integer n;
    Integer find(Complex *h, Integer low, Integer high, Complex *work, Integer lwork) const
    {
        Complex unused;
        return lapack::hseqr('E', 'N', n, low, high, h, n, w, &unused, 1, work, lwork);
    }
    Complex value(Integer j) const { return w[j]; }
    Integer vectors(Integer *select, const Complex *h, Complex *x, Integer columns, Complex *work, double *rwork,
                    Integer *ifail) const
    {
        Integer m;
        return lapack::hsein(select, n, h, n, w, x, n, columns, &m, work, rwork, ifail);
    }
};

template <Scalar T>
void find_selected(const Report &report, Integer crit, Integer n, const T *a, Integer tda, double wl, double wu,
                   Integer mest, Integer *m, Complex *w, Complex *v, Integer tdv)
{
    if (!between(crit, Kor_Select_Modulus, Kor_Select_RealPart)) return report.error<NE_BAD_PARAM>("crit");
    if (negative(report, "n", n)) return;
    if (tda < std::max(1, n)) return report.error<NE_INT_2>("tda", tda, "n", n, "tda >= max(1,n)");
    if (!(wu > wl)) return report.error<NE_2_REAL_ARG_LE>("wu", wu, "wl", wl, "wu", "wl");
    if (below_one(report, "mest", mest)) return;
    if (tdv < std::max(1, mest)) return report.error<NE_INT_2>("tdv", tdv, "mest", mest, "tdv >= max(1,mest)");
    if (n == 0) {
        *m = 0;
        return report.success();
    }
    const Magnitude magnitude = magnitude_of(n, n, a, tda);
    if (!magnitude.is_finite()) return report.error<NE_TOO_MANY_ITERATIONS>(iteration_limit(n));
    const double scaling = magnitude.scaling();

    // Two copies of the matrix, column-major; scalars of reflections; eigenvalues.
    const Count square = Count{n} * n;
    Workspace<T> room(square * 2 + Count{n} * (1 + Spectrum<T>::kParts));
    Workspace<double> scale(Count{n} * 2); // and the real work space of the complex case
    Workspace<Integer> integers(Count{n} * 2);
    // Inverse iteration wants n (n + 2) elements, n n if complex.
    Workspace<T> vectors(Count{n} * std::min(mest, n)), iteration(Count{n} * (Count{n} + 2));
    if (!room || !scale || !integers || !vectors || !iteration) return report.error<NE_ALLOC_FAIL>();
    const std::ptrdiff_t size = std::ptrdiff_t{n} * n;
    T *const hessenberg = room.data(), *const copy = hessenberg + size, *const tau = copy + size;
    const Spectrum<T> spectrum{tau + n, n};
    for (std::ptrdiff_t i = 0; i < n; ++i)
        for (std::ptrdiff_t j = 0; j < n; ++j) hessenberg[j * n + i] = scaling * a[i * tda + j];

    Integer low, high;
    lapack::gebal('B', n, hessenberg, n, &low, &high, scale.data());
    T best[2];
    lapack::gehrd(n, low, high, hessenberg, n, tau, &best[0], -1);
    lapack::ormhr('L', 'N', n, n, low, high, hessenberg, n, tau, copy, n, &best[1], -1);
    const Integer lwork =
        std::max(3 * n, static_cast<Integer>(std::max(real(best[0]), real(best[1])))); // hseqr thrives on 3 n
    Workspace<T> work(Count{lwork});
    if (!work) return report.error<NE_ALLOC_FAIL>();
    lapack::gehrd(n, low, high, hessenberg, n, tau, work.data(), lwork);
    std::copy(hessenberg, hessenberg + size, copy);
    if (spectrum.find(copy, low, high, work.data(), lwork) != 0)
        return report.error<NE_TOO_MANY_ITERATIONS>(iteration_limit(n));

    Integer *const select = integers.data(), *const ifail = select + n, selected = 0;
    for (Integer j = 0; j < n; ++j) {
        const Complex lambda = {spectrum.value(j).re / scaling, spectrum.value(j).im / scaling};
        const double measure = crit == Kor_Select_Modulus ? modulus(lambda) : lambda.re;
        select[j] = measure >= wl && measure <= wu;
        if (select[j]) w[selected++] = lambda;
    }
    Integer others = selected;
    for (Integer j = 0; j < n; ++j)
        if (!select[j]) w[others++] = {spectrum.value(j).re / scaling, spectrum.value(j).im / scaling};
    *m = selected;
    if (selected > mest) return report.error<NE_REQD_EIGVAL>("mest", mest, selected);
    if (selected == 0) return report.success();

    T *const x = vectors.data();
    spectrum.vectors(select, hessenberg, x, selected, iteration.data(), scale.data() + n, ifail);
    lapack::ormhr('L', 'N', n, selected, low, high, hessenberg, n, tau, x, n, work.data(), lwork);
    lapack::gebak('B', 'R', n, low, high, scale.data(), selected, x, n);

    bool failed = false;
    const RowMajor<Complex> V{v, tdv};
    for (std::ptrdiff_t j = 0; j < selected; ++j) {
        const T *const column = x + j * n;
        bool pair = false;
        if constexpr (std::is_same_v<T, Complex>) {
            for (Integer i = 0; i < n; ++i) V(i, j) = column[i];
        } else {
            pair = w[j].im != 0.0;
            for (Integer i = 0; i < n; ++i) V(i, j) = {column[i], pair ? column[n + i] : 0.0};
        }
        if (ifail[j] != 0) {
            failed = true;
            for (Integer i = 0; i < n; ++i) V(i, j) = Complex{};
        }
        normalise_vector(n, v + j, tdv);
        if (!pair) continue;
        for (Integer i = 0; i < n; ++i) V(i, j + 1) = conj(V(i, j));
        ++j;
    }
    if (failed) return report.error<NE_EIGVEC>();
    report.success();
}

} // namespace

void selected_eigenvectors(const Report &report, Integer crit, Integer n, const double *a, Integer tda, double wl,
                           double wu, Integer mest, Integer *m, Complex *w, Complex *v, Integer tdv)
{
    find_selected(report, crit, n, a, tda, wl, wu, mest, m, w, v, tdv);
}
void selected_eigenvectors(const Report &report, Integer crit, Integer n, const Complex *a, Integer tda, double wl,
                           double wu, Integer mest, Integer *m, Complex *w, Complex *v, Integer tdv)
{
    find_selected(report, crit, n, a, tda, wl, wu, mest, m, w, v, tdv);
}

} // namespace kor::linalg
