// Dense solvers and factorisations beside LAPACK called directly, GSL and Eigen. Copies of the data are in all times. Errors
// are residuals over norm products, |PA - LU| over |L||U| for instance, in n eps: the same measure for all.
#include <algorithm>
#include <cmath>
#include <cstring>
#include <memory>
#include <random>
#include <string>
#include <vector>

#include <kor/f01.h>
#include <kor/f03.h>
#include <kor/f04.h>

#include "support/ratio_table.hpp"

#ifdef KOR_HAVE_EIGEN
#include <Eigen/Dense>
#endif
#ifdef KOR_HAVE_GSL
#include <gsl/gsl_linalg.h>
#endif

extern "C" {
void dgesv_(const int *n, const int *nrhs, double *a, const int *lda, int *ipiv, double *b, const int *ldb, int *info);
void zgesv_(const int *n, const int *nrhs, Complex *a, const int *lda, int *ipiv, Complex *b, const int *ldb,
            int *info);
void dgetrf_(const int *m, const int *n, double *a, const int *lda, int *ipiv, int *info);
void dgetri_(const int *n, double *a, const int *lda, const int *ipiv, double *work, const int *lwork, int *info);
void dposv_(const char *uplo, const int *n, const int *nrhs, double *a, const int *lda, double *b, const int *ldb,
            int *info, std::size_t);
void dpotrf_(const char *uplo, const int *n, double *a, const int *lda, int *info, std::size_t);
void dpotri_(const char *uplo, const int *n, double *a, const int *lda, int *info, std::size_t);
void dgeqrf_(const int *m, const int *n, double *a, const int *lda, double *tau, double *work, const int *lwork,
             int *info);
void zgeqrf_(const int *m, const int *n, Complex *a, const int *lda, Complex *tau, Complex *work, const int *lwork,
             int *info);
void dgerqf_(const int *m, const int *n, double *a, const int *lda, double *tau, double *work, const int *lwork,
             int *info);
void dgeqp3_(const int *m, const int *n, double *a, const int *lda, int *jpvt, double *tau, double *work,
             const int *lwork, int *info);
void dorgqr_(const int *m, const int *n, const int *k, double *a, const int *lda, const double *tau, double *work,
             const int *lwork, int *info);
void dgels_(const char *trans, const int *m, const int *n, const int *nrhs, double *a, const int *lda, double *b,
            const int *ldb, double *work, const int *lwork, int *info, std::size_t);
}

namespace {

using kor::bench::add;

const kor::bench::Heading heading{"Dense solvers and factorisations", "residual over norms, in n eps"};

// What one benchmark works on, kept as long as the program runs.
struct Data {
    int m, n, lwork;
    std::vector<double> a, f, b, x, tau, work, extra;
    std::vector<Complex> za, zf, zb, zx, ztau, zwork;
    std::vector<int> pivot;
    Integer dete, rank;
    double det, sigma;
    Complex zdet;
    Boolean svd;
    KorError fail{};

    Data(int rows, int columns, bool complex = false) : m{rows}, n{columns}, lwork{64 * (rows + columns)}
    {
        std::mt19937 bits{7};
        const auto uniform = [&] { return std::ldexp(static_cast<double>(bits()), -31) - 1.0; };
        const std::size_t size = static_cast<std::size_t>(m) * n;
        pivot.resize(m + n);
        work.resize(lwork + 4 * n);
        tau.resize(m + n);
        extra.resize(complex ? 0 : size);
        a.resize(size);
        for (double &v : a) v = uniform();
        b.resize(std::max(m, n));
        for (double &v : b) v = uniform();
        f = a;
        x = b;
        if (!complex) return;
        za.resize(size);
        for (Complex &v : za) v = {uniform(), uniform()};
        zb.resize(m);
        for (Complex &v : zb) v = {uniform(), uniform()};
        zf = za;
        zx = zb;
        ztau.resize(m + n);
        zwork.resize(lwork);
    }
    void make_definite()
    {
        for (int i = 0; i < n; ++i)
            for (int j = 0; j < i; ++j) a[i * n + j] = a[j * n + i] = a[j * n + i] / n;
        for (int i = 0; i < n; ++i) a[i * n + i] = 2.0;
    }
    void restore()
    {
        std::memcpy(f.data(), a.data(), a.size() * sizeof(double));
        std::memcpy(x.data(), b.data(), b.size() * sizeof(double));
    }
    void zrestore()
    {
        std::memcpy(zf.data(), za.data(), za.size() * sizeof(Complex));
        std::memcpy(zx.data(), zb.data(), zb.size() * sizeof(Complex));
    }
    // |op(A) x - b| over |A||x|: LAPACK takes the row-major matrix for its transpose.
    double solution_error(bool transposed) const
    {
        long double worst = 0.0L, ax = 0.0L;
        for (int i = 0; i < n; ++i) {
            long double sum = -b[i], row = 0.0L;
            for (int j = 0; j < n; ++j) {
                const long double element = transposed ? a[j * n + i] : a[i * n + j];
                sum += element * x[j];
                row += std::fabs(element * x[j]);
            }
            worst = std::max(worst, std::fabs(sum));
            ax = std::max(ax, row);
        }
        return static_cast<double>(worst / ax * 0x1p53L / n);
    }
};

// The same work by several libraries, each measured for accuracy first.
struct Work {
    std::string name;
    std::shared_ptr<Data> data;

    template <class Once, class Error>
    void by(const char *who, Once once, Error error) const
    {
        once(*data);
        const double measured = error(*data);
        add(name + "/" + who, [once, d = data] { once(*d); }, {.error = measured});
    }
    template <class Once>
    void by(const char *who, Once once) const
    {
        add(name + "/" + who, [once, d = data] { once(*d); });
    }
};
Work work(const char *what, int m, int n, bool complex = false)
{
    return {std::string{what} + ", n = " + std::to_string(n), std::make_shared<Data>(m, n, complex)};
}

#ifdef KOR_HAVE_EIGEN
using RowMatrix = Eigen::Matrix<double, Eigen::Dynamic, Eigen::Dynamic, Eigen::RowMajor>;
using Map = Eigen::Map<RowMatrix>;
#endif

void solve(int n)
{
    const Work w = work("LU solve", n, n);
    w.by(
        "KOR", [](Data &d) { f04arc(d.n, d.a.data(), d.n, d.b.data(), d.x.data(), &d.fail); },
        [](const Data &d) { return d.solution_error(false); });
    w.by(
        "LAPACK",
        [](Data &d) {
            const int one = 1;
            int info;
            d.restore();
            dgesv_(&d.n, &one, d.f.data(), &d.n, d.pivot.data(), d.x.data(), &d.n, &info);
        },
        [](const Data &d) { return d.solution_error(true); });
#ifdef KOR_HAVE_GSL
    if (n <= 300)
        w.by(
            "GSL",
            [](Data &d) {
                d.restore();
                gsl_matrix_view m = gsl_matrix_view_array(d.f.data(), d.n, d.n);
                gsl_vector_view x = gsl_vector_view_array(d.x.data(), d.n);
                std::vector<std::size_t> order(d.n);
                gsl_permutation p{static_cast<std::size_t>(d.n), order.data()};
                int sign;
                gsl_linalg_LU_decomp(&m.matrix, &p, &sign);
                gsl_linalg_LU_svx(&m.matrix, &p, &x.vector);
            },
            [](const Data &d) { return d.solution_error(false); });
#endif
#ifdef KOR_HAVE_EIGEN
    w.by(
        "Eigen",
        [](Data &d) {
            d.restore();
            Eigen::Map<Eigen::VectorXd> x{d.x.data(), d.n};
            x = Eigen::PartialPivLU<Eigen::Ref<RowMatrix>>{*std::make_unique<Map>(d.f.data(), d.n, d.n)}
                    .solve(Eigen::Map<Eigen::VectorXd>{d.b.data(), d.n})
                    .eval();
        },
        [](const Data &d) { return d.solution_error(false); });
#endif
    if (n > 300) return;
    const Work refined = work("LU solve, refined", n, n);
    refined.by(
        "KOR",
        [](Data &d) {
            f04aec(d.n, 1, d.a.data(), d.n, d.b.data(), 1, d.x.data(), 1, d.f.data(), d.n, d.tau.data(), 1, &d.fail);
        },
        [](const Data &d) { return d.solution_error(false); });
    refined.by("LAPACK, unrefined", [](Data &d) {
        const int one = 1;
        int info;
        d.restore();
        dgesv_(&d.n, &one, d.f.data(), &d.n, d.pivot.data(), d.x.data(), &d.n, &info);
    });
}

void complex_solve(int n)
{
    const Work w = work("complex LU solve", n, n, true);
    w.by("KOR", [](Data &d) { f04adc(d.n, 1, d.za.data(), d.n, d.zb.data(), 1, d.zx.data(), 1, &d.fail); });
    w.by("LAPACK", [](Data &d) {
        const int one = 1;
        int info;
        d.zrestore();
        zgesv_(&d.n, &one, d.zf.data(), &d.n, d.pivot.data(), d.zx.data(), &d.n, &info);
    });
}

void cholesky(int n)
{
    const Work w = work("Cholesky solve", n, n);
    w.data->make_definite();
    w.by(
        "KOR",
        [](Data &d) {
            d.restore();
            f03aec(d.n, d.f.data(), d.n, d.tau.data(), &d.det, &d.dete, &d.fail);
            f04agc(d.n, 1, d.f.data(), d.n, d.tau.data(), d.b.data(), 1, d.x.data(), 1, &d.fail);
        },
        [](const Data &d) { return d.solution_error(false); });
    w.by(
        "LAPACK",
        [](Data &d) {
            const int one = 1;
            int info;
            d.restore();
            dposv_("L", &d.n, &one, d.f.data(), &d.n, d.x.data(), &d.n, &info, 1);
        },
        [](const Data &d) { return d.solution_error(false); });
#ifdef KOR_HAVE_GSL
    if (n <= 300)
        w.by(
            "GSL",
            [](Data &d) {
                d.restore();
                gsl_matrix_view m = gsl_matrix_view_array(d.f.data(), d.n, d.n);
                gsl_vector_view x = gsl_vector_view_array(d.x.data(), d.n);
                gsl_linalg_cholesky_decomp1(&m.matrix);
                gsl_linalg_cholesky_svx(&m.matrix, &x.vector);
            },
            [](const Data &d) { return d.solution_error(false); });
#endif
#ifdef KOR_HAVE_EIGEN
    w.by(
        "Eigen",
        [](Data &d) {
            d.restore();
            Map m{d.f.data(), d.n, d.n};
            Eigen::LLT<Eigen::Ref<RowMatrix>, Eigen::Lower> llt{m};
            Eigen::Map<Eigen::VectorXd> x{d.x.data(), d.n};
            x = llt.solve(Eigen::Map<Eigen::VectorXd>{d.b.data(), d.n}).eval();
        },
        [](const Data &d) { return d.solution_error(false); });
#endif
    const Work inverse = work("Cholesky inverse", n, n);
    inverse.data->make_definite();
    inverse.by("KOR", [](Data &d) {
        d.restore();
        f01adc(d.n, d.f.data(), d.n);
    });
    inverse.by("LAPACK", [](Data &d) {
        int info;
        d.restore();
        dpotrf_("L", &d.n, d.f.data(), &d.n, &info, 1);
        dpotri_("L", &d.n, d.f.data(), &d.n, &info, 1);
    });
}

void inverse(int n)
{
    const Work w = work("inverse", n, n);
    w.by("KOR", [](Data &d) {
        d.restore();
        f01aac(d.f.data(), d.n, d.n, nullptr, d.extra.data(), d.n, &d.fail);
    });
    w.by("LAPACK", [](Data &d) {
        int info;
        d.restore();
        dgetrf_(&d.n, &d.n, d.f.data(), &d.n, d.pivot.data(), &info);
        dgetri_(&d.n, d.f.data(), &d.n, d.pivot.data(), d.work.data(), &d.lwork, &info);
    });
#ifdef KOR_HAVE_EIGEN
    w.by("Eigen", [](Data &d) {
        d.restore();
        Map m{d.f.data(), d.n, d.n};
        Map{d.extra.data(), d.n, d.n} = Eigen::PartialPivLU<Eigen::Ref<RowMatrix>>{m}.inverse();
    });
#endif
}

void orthogonal(int m, int n)
{
    const Work w = work(m == n ? "QR, square" : "QR, twice as many rows", m, n);
    w.by("KOR", [](Data &d) {
        d.restore();
        f01qcc(d.m, d.n, d.f.data(), d.n, d.tau.data(), &d.fail);
    });
    w.by("LAPACK", [](Data &d) {
        int info;
        d.restore();
        dgeqrf_(&d.m, &d.n, d.f.data(), &d.m, d.tau.data(), d.work.data(), &d.lwork, &info);
    });
#ifdef KOR_HAVE_GSL
    if (n <= 300)
        w.by("GSL", [](Data &d) {
            d.restore();
            gsl_matrix_view view = gsl_matrix_view_array(d.f.data(), d.m, d.n);
            gsl_vector_view tau = gsl_vector_view_array(d.tau.data(), d.n);
            gsl_linalg_QR_decomp(&view.matrix, &tau.vector);
        });
#endif
#ifdef KOR_HAVE_EIGEN
    w.by("Eigen", [](Data &d) {
        d.restore();
        Eigen::Map<Eigen::MatrixXd> view{d.f.data(), d.m, d.n};
        kor::bench::keep(Eigen::HouseholderQR<Eigen::Ref<Eigen::MatrixXd>>{view}.hCoeffs()[0]);
    });
#endif
    const Work form = work(m == n ? "QR and Q, square" : "QR and Q, twice as many rows", m, n);
    form.by("KOR", [](Data &d) {
        d.restore();
        f01qcc(d.m, d.n, d.f.data(), d.n, d.tau.data(), &d.fail);
        f01qec(Kor_ElementsSeparate, d.m, d.n, d.n, d.f.data(), d.n, d.tau.data(), &d.fail);
    });
    form.by("LAPACK", [](Data &d) {
        int info;
        d.restore();
        dgeqrf_(&d.m, &d.n, d.f.data(), &d.m, d.tau.data(), d.work.data(), &d.lwork, &info);
        dorgqr_(&d.m, &d.n, &d.n, d.f.data(), &d.m, d.tau.data(), d.work.data(), &d.lwork, &info);
    });
    if (m == n) {
        const Work rq = work("RQ", n, n);
        rq.by("KOR", [](Data &d) {
            d.restore();
            f01qjc(d.n, d.n, d.f.data(), d.n, d.tau.data(), &d.fail);
        });
        rq.by("LAPACK", [](Data &d) {
            int info;
            d.restore();
            dgerqf_(&d.n, &d.n, d.f.data(), &d.n, d.tau.data(), d.work.data(), &d.lwork, &info);
        });
        const Work pivoted = work("QR with interchanges", n, n);
        pivoted.by("KOR", [](Data &d) {
            d.restore();
            f01qfc(VariablePivot, d.n, d.n, d.f.data(), d.n, d.tau.data(), d.pivot.data(), d.work.data(), &d.fail);
        });
        pivoted.by("LAPACK", [](Data &d) {
            int info;
            d.restore();
            std::fill(d.pivot.begin(), d.pivot.end(), 0);
            dgeqp3_(&d.n, &d.n, d.f.data(), &d.n, d.pivot.data(), d.tau.data(), d.work.data(), &d.lwork, &info);
        });
        const Work complex = work("complex QR", n, n, true);
        complex.by("KOR", [](Data &d) {
            d.zrestore();
            f01rcc(d.n, d.n, d.zf.data(), d.n, d.ztau.data(), &d.fail);
        });
        complex.by("LAPACK", [](Data &d) {
            int info;
            d.zrestore();
            zgeqrf_(&d.n, &d.n, d.zf.data(), &d.n, d.ztau.data(), d.zwork.data(), &d.lwork, &info);
        });
        return;
    }
    const Work fit = work("least squares, twice as many rows", m, n);
    fit.by("KOR", [](Data &d) {
        d.restore();
        f04jgc(d.m, d.n, d.f.data(), d.n, d.x.data(), 1e-12, &d.svd, &d.sigma, &d.rank, d.work.data(), &d.fail);
    });
    fit.by("LAPACK", [](Data &d) {
        const int one = 1;
        int info;
        d.restore();
        dgels_("N", &d.m, &d.n, &one, d.f.data(), &d.m, d.x.data(), &d.m, d.work.data(), &d.lwork, &info, 1);
    });
}

const bool registered = [] {
    for (const int n : {4, 8, 10, 16, 32, 100, 300, 1000}) {
        solve(n);
        complex_solve(n);
        cholesky(n);
        inverse(n);
        orthogonal(n, n);
        orthogonal(2 * n, n);
    }
    return true;
}();

} // namespace
