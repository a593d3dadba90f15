// Eigenvalues and singular values beside LAPACK called directly, Eigen and GSL. Copies of the matrix are in all times.
#include <algorithm>
#include <cmath>
#include <complex>
#include <random>
#include <string>
#include <vector>

#include <kor/f02.h>

#include "support/ratio_table.hpp"

#ifdef KOR_HAVE_EIGEN
#include <Eigen/Dense>
#include <Eigen/Eigenvalues>
#endif
#ifdef KOR_HAVE_GSL
#include <gsl/gsl_eigen.h>
#include <gsl/gsl_linalg.h>
#endif

extern "C" {
void dsyev_(const char *, const char *, const int *, double *, const int *, double *, double *, const int *, int *,
            std::size_t, std::size_t);
void dsyevd_(const char *, const char *, const int *, double *, const int *, double *, double *, const int *, int *,
             const int *, int *, std::size_t, std::size_t);
void dgesvd_(const char *, const char *, const int *, const int *, double *, const int *, double *, double *,
             const int *, double *, const int *, double *, const int *, int *, std::size_t, std::size_t);
void dgesdd_(const char *, const int *, const int *, double *, const int *, double *, double *, const int *, double *,
             const int *, double *, const int *, int *, int *, std::size_t);
void dsygv_(const int *, const char *, const char *, const int *, double *, const int *, double *, const int *,
            double *, double *, const int *, int *, std::size_t, std::size_t);
void zheev_(const char *, const char *, const int *, Complex *, const int *, double *, Complex *, const int *, double *,
            int *, std::size_t, std::size_t);
void zgesdd_(const char *, const int *, const int *, Complex *, const int *, double *, Complex *, const int *,
             Complex *, const int *, Complex *, const int *, double *, int *, int *, std::size_t);
void dggev_(const char *, const char *, const int *, double *, const int *, double *, const int *, double *, double *,
            double *, double *, const int *, double *, const int *, double *, const int *, int *, std::size_t,
            std::size_t);
void dgeev_(const char *, const char *, const int *, double *, const int *, double *, double *, double *, const int *,
            double *, const int *, double *, const int *, int *, std::size_t, std::size_t);
}

namespace {

using kor::bench::add;
using kor::bench::keep;

const kor::bench::Heading heading{"Eigenvalues and singular values", "reconstruction or residual, in n eps"};
constexpr int kGreatestForGsl = 100; // beyond it takes too long

std::vector<double> random_matrix(int n, bool symmetric)
{
    std::mt19937 bits{11};
    std::vector<double> a(n * n);
    for (double &x : a) x = std::ldexp(static_cast<double>(bits()), -31) - 1.0;
    if (symmetric)
        for (int i = 0; i < n; ++i)
            for (int j = 0; j < i; ++j) a[j * n + i] = a[i * n + j];
    return a;
}

double length(const std::vector<double> &a)
{
    double sum = 0.0;
    for (const double x : a) sum += x * x;
    return std::sqrt(sum);
}

// |A - Q S P'| / (n eps |A|), Q and P' row-major.
double reconstruction(int n, const std::vector<double> &a, const std::vector<double> &q, const std::vector<double> &s,
                      const std::vector<double> &pt)
{
    std::vector<double> difference(a);
    for (int i = 0; i < n; ++i)
        for (int j = 0; j < n; ++j) {
            long double sum = a[i * n + j];
            for (int k = 0; k < n; ++k) sum -= static_cast<long double>(q[i * n + k]) * s[k] * pt[k * n + j];
            difference[i * n + j] = static_cast<double>(sum);
        }
    return length(difference) / length(a) * 0x1p53 / n;
}

std::vector<double> transposed(int n, const std::vector<double> &a)
{
    std::vector<double> t(a.size());
    for (int i = 0; i < n; ++i)
        for (int j = 0; j < n; ++j) t[j * n + i] = a[i * n + j];
    return t;
}

// Arrays that live as long as the program.
struct Arrays {
    std::vector<double> a, q, p, s, t, work;
    std::vector<int> iwork;
    std::vector<Integer> iter;
    std::vector<Complex> w, v;
    explicit Arrays(int n)
        : a(n * n), q(n * n), p(n * n), s(n), t(n), work(10 * n * n + 1000), iwork(10 * n + 10), iter(n), w(n), v(n * n)
    {
    }
};

void add_symmetric(int n)
{
    auto *x = new Arrays(n);
    const std::vector<double> a = random_matrix(n, true);
    const int lwork = static_cast<int>(x->work.size()), liwork = static_cast<int>(x->iwork.size());
    for (const bool vectors : {true, false}) {
        const std::string name =
            std::string(vectors ? "symmetric, vectors, n = " : "symmetric, values, n = ") + std::to_string(n);
        const char *const job = vectors ? "V" : "N";
        const auto error = [&](bool rows) {
            if (!vectors) return -1.0;
            const auto q = rows ? transposed(n, x->a) : x->q;
            return reconstruction(n, a, q, x->s, transposed(n, q));
        };
        const auto ours = [=] {
            KorError fail{};
            x->a = a;
            if (vectors)
                f02abc(n, x->a.data(), n, x->s.data(), x->q.data(), n, &fail);
            else
                f02aac(n, x->a.data(), n, x->s.data(), &fail);
        };
        ours();
        add(name + "/KOR", ours, {.error = error(false)});
        const auto qr = [=] {
            int info;
            x->a = a;
            dsyev_(job, "L", &n, x->a.data(), &n, x->s.data(), x->work.data(), &lwork, &info, 1, 1);
        };
        qr();
        add(name + "/LAPACK QR", qr, {.error = error(true)});
        const auto divide = [=] {
            int info;
            x->a = a;
            dsyevd_(job, "L", &n, x->a.data(), &n, x->s.data(), x->work.data(), &lwork, x->iwork.data(), &liwork, &info,
                    1, 1);
        };
        divide();
        add(name + "/LAPACK D&C", divide, {.error = error(true)});
#ifdef KOR_HAVE_EIGEN
        const Eigen::MatrixXd m = Eigen::Map<const Eigen::MatrixXd>(a.data(), n, n);
        auto *const solver = new Eigen::SelfAdjointEigenSolver<Eigen::MatrixXd>(n);
        add(name + "/Eigen",
            [=] { keep(solver->compute(m, vectors ? Eigen::ComputeEigenvectors : Eigen::EigenvaluesOnly)); });
#endif
#ifdef KOR_HAVE_GSL
        if (n > kGreatestForGsl) continue;
        auto *const with = gsl_eigen_symmv_alloc(n);
        auto *const without = gsl_eigen_symm_alloc(n);
        add(name + "/GSL", [=] {
            x->a = a;
            auto A = gsl_matrix_view_array(x->a.data(), n, n), V = gsl_matrix_view_array(x->q.data(), n, n);
            auto s = gsl_vector_view_array(x->s.data(), n);
            if (vectors)
                gsl_eigen_symmv(&A.matrix, &s.vector, &V.matrix, with);
            else
                gsl_eigen_symm(&A.matrix, &s.vector, without);
        });
#endif
    }
}

void add_singular(int n)
{
    auto *x = new Arrays(n);
    const std::vector<double> a = random_matrix(n, false);
    const int lwork = static_cast<int>(x->work.size());
    for (const bool vectors : {true, false}) {
        const std::string name = std::string(vectors ? "SVD, n = " : "singular values, n = ") + std::to_string(n);
        const char *const job = vectors ? "S" : "N";
        const auto ours = [=] {
            KorError fail{};
            Integer iter, failinfo;
            x->a = a;
            f02wec(n, n, x->a.data(), n, 0, nullptr, 0, vectors, nullptr, 0, x->s.data(), vectors, x->p.data(), n,
                   &iter, x->t.data(), &failinfo, &fail);
        };
        ours();
        add(name + "/KOR", ours, {.error = vectors ? reconstruction(n, a, x->a, x->s, x->p) : -1.0});
        // LAPACK sees the transpose: its U is P', its V' is Q.
        const auto qr = [=] {
            int info;
            x->a = a;
            dgesvd_(job, job, &n, &n, x->a.data(), &n, x->s.data(), x->p.data(), &n, x->q.data(), &n, x->work.data(),
                    &lwork, &info, 1, 1);
        };
        qr();
        add(name + "/LAPACK QR", qr, {.error = vectors ? reconstruction(n, a, x->q, x->s, x->p) : -1.0});
        const auto divide = [=] {
            int info;
            x->a = a;
            dgesdd_(job, &n, &n, x->a.data(), &n, x->s.data(), x->p.data(), &n, x->q.data(), &n, x->work.data(), &lwork,
                    x->iwork.data(), &info, 1);
        };
        divide();
        add(name + "/LAPACK D&C", divide, {.error = vectors ? reconstruction(n, a, x->q, x->s, x->p) : -1.0});
#ifdef KOR_HAVE_EIGEN
        const Eigen::MatrixXd m = Eigen::Map<const Eigen::MatrixXd>(a.data(), n, n);
        const unsigned options = vectors ? Eigen::ComputeThinU | Eigen::ComputeThinV : 0;
        auto *const solver = new Eigen::BDCSVD<Eigen::MatrixXd>(n, n, options);
        add(name + "/Eigen", [=] { keep(solver->compute(m)); });
#endif
#ifdef KOR_HAVE_GSL
        if (n > kGreatestForGsl || !vectors) continue;
        add(name + "/GSL", [=] {
            x->a = a;
            auto A = gsl_matrix_view_array(x->a.data(), n, n), V = gsl_matrix_view_array(x->p.data(), n, n);
            auto s = gsl_vector_view_array(x->s.data(), n), work = gsl_vector_view_array(x->work.data(), n);
            gsl_linalg_SV_decomp(&A.matrix, &V.matrix, &s.vector, &work.vector);
        });
#endif
    }
}

void add_general(int n)
{
    auto *x = new Arrays(n);
    const std::vector<double> a = random_matrix(n, false);
    const int lwork = static_cast<int>(x->work.size());
    for (const bool vectors : {true, false}) {
        const std::string name =
            std::string(vectors ? "general, vectors, n = " : "general, values, n = ") + std::to_string(n);
        const auto ours = [=] {
            KorError fail{};
            x->a = a;
            if (vectors)
                f02agc(n, x->a.data(), n, x->w.data(), x->v.data(), n, x->iter.data(), &fail);
            else
                f02afc(n, x->a.data(), n, x->w.data(), x->iter.data(), &fail);
        };
        ours();
        double worst = -1.0;
        for (int j = 0; j < n && vectors; ++j)
            for (int i = 0; i < n; ++i) {
                const auto number = [](Complex z) { return std::complex<long double>(z.re, z.im); };
                std::complex<long double> sum = -number(x->w[j]) * number(x->v[i * n + j]);
                for (int k = 0; k < n; ++k) sum += static_cast<long double>(a[i * n + k]) * number(x->v[k * n + j]);
                worst = std::max(worst, static_cast<double>(std::abs(sum)) / length(a) * 0x1p53 / n);
            }
        add(name + "/KOR", ours, {.error = worst});
        add(name + "/LAPACK QR", [=] {
            int info;
            x->a = a;
            dgeev_("N", vectors ? "V" : "N", &n, x->a.data(), &n, x->s.data(), x->t.data(), x->q.data(), &n,
                   x->p.data(), &n, x->work.data(), &lwork, &info, 1, 1);
        });
#ifdef KOR_HAVE_EIGEN
        const Eigen::MatrixXd m = Eigen::Map<const Eigen::MatrixXd>(a.data(), n, n);
        auto *const solver = new Eigen::EigenSolver<Eigen::MatrixXd>(n);
        add(name + "/Eigen", [=] { keep(solver->compute(m, vectors)); });
#endif
#ifdef KOR_HAVE_GSL
        if (n > kGreatestForGsl || !vectors) continue;
        auto *const room = gsl_eigen_nonsymmv_alloc(n);
        auto *const w = gsl_vector_complex_alloc(n);
        auto *const v = gsl_matrix_complex_alloc(n, n);
        add(name + "/GSL", [=] {
            x->a = a;
            auto A = gsl_matrix_view_array(x->a.data(), n, n);
            gsl_eigen_nonsymmv(&A.matrix, w, v, room);
        });
#endif
    }
}

void add_complex(int n)
{
    auto *x = new Arrays(n);
    auto *work = new std::vector<Complex>(10 * n * n + 1000);
    auto *p = new std::vector<Complex>(n * n);
    const std::vector<double> re = random_matrix(n, true), im = random_matrix(n, false);
    std::vector<Complex> hermitian(n * n), general(n * n);
    for (int i = 0; i < n; ++i)
        for (int j = 0; j < n; ++j) {
            hermitian[i * n + j] = {re[i * n + j], i == j ? 0.0 : i > j ? im[i * n + j] : -im[j * n + i]};
            general[i * n + j] = {re[i * n + j], im[i * n + j]};
        }
    const int lwork = static_cast<int>(work->size());
    const std::string of = ", n = " + std::to_string(n);
    for (const bool vectors : {true, false}) {
        const std::string name = (vectors ? "Hermitian, vectors" : "Hermitian, values") + of;
        const auto a = hermitian;
        add(name + "/KOR", [=] {
            KorError fail{};
            x->v = a;
            if (vectors)
                f02axc(n, x->v.data(), n, x->s.data(), x->v.data(), n, &fail);
            else
                f02awc(n, x->v.data(), n, x->s.data(), &fail);
        });
        add(name + "/LAPACK QR", [=] {
            int info;
            x->v = a;
            zheev_(vectors ? "V" : "N", "L", &n, x->v.data(), &n, x->s.data(), work->data(), &lwork, x->work.data(),
                   &info, 1, 1);
        });
#ifdef KOR_HAVE_EIGEN
        const Eigen::MatrixXcd m =
            Eigen::Map<const Eigen::MatrixXcd>(reinterpret_cast<const std::complex<double> *>(a.data()), n, n);
        auto *const solver = new Eigen::SelfAdjointEigenSolver<Eigen::MatrixXcd>(n);
        add(name + "/Eigen",
            [=] { keep(solver->compute(m, vectors ? Eigen::ComputeEigenvectors : Eigen::EigenvaluesOnly)); });
#endif
    }
    const auto a = general;
    add("complex SVD" + of + "/KOR", [=] {
        KorError fail{};
        Integer iter, failinfo;
        x->v = a;
        f02xec(n, n, x->v.data(), n, 0, nullptr, 0, 1, nullptr, 0, x->s.data(), 1, p->data(), n, &iter, x->t.data(),
               &failinfo, &fail);
    });
    auto *q = new std::vector<Complex>(n * n);
    add("complex SVD" + of + "/LAPACK D&C", [=] {
        int info;
        x->v = a;
        zgesdd_("S", &n, &n, x->v.data(), &n, x->s.data(), p->data(), &n, q->data(), &n, work->data(), &lwork,
                x->work.data(), x->iwork.data(), &info, 1);
    });
}

void add_definite(int n)
{
    auto *x = new Arrays(n);
    const std::vector<double> a = random_matrix(n, true), b0 = random_matrix(n, false);
    std::vector<double> b(n * n);
    for (int i = 0; i < n; ++i)
        for (int j = 0; j < n; ++j) {
            b[i * n + j] = i == j ? 1.0 : 0.0;
            for (int k = 0; k < n; ++k) b[i * n + j] += b0[k * n + i] * b0[k * n + j] / n;
        }
    const int lwork = static_cast<int>(x->work.size());
    const std::string name = "definite pair, n = " + std::to_string(n);
    add(name + "/KOR", [=] {
        KorError fail{};
        x->a = a;
        x->p = b;
        f02aec(n, x->a.data(), n, x->p.data(), n, x->s.data(), x->q.data(), n, &fail);
    });
    add(name + "/LAPACK QR", [=] {
        const int itype = 1;
        int info;
        x->a = a;
        x->p = b;
        dsygv_(&itype, "V", "L", &n, x->a.data(), &n, x->p.data(), &n, x->s.data(), x->work.data(), &lwork, &info, 1,
               1);
    });
#ifdef KOR_HAVE_EIGEN
    const Eigen::MatrixXd A = Eigen::Map<const Eigen::MatrixXd>(a.data(), n, n),
                          B = Eigen::Map<const Eigen::MatrixXd>(b.data(), n, n);
    auto *const solver = new Eigen::GeneralizedSelfAdjointEigenSolver<Eigen::MatrixXd>(n);
    add(name + "/Eigen", [=] { keep(solver->compute(A, B)); });
#endif
}

void add_pair(int n)
{
    auto *x = new Arrays(n);
    auto *b = new std::vector<double>(n * n);
    const std::vector<double> a = random_matrix(n, false), b0 = random_matrix(n, true);
    const int lwork = static_cast<int>(x->work.size());
    const std::string name = "general pair, n = " + std::to_string(n);
    add(name + "/KOR", [=] {
        KorError fail{};
        x->a = a;
        *b = b0;
        f02bjc(n, x->a.data(), n, b->data(), n, 0.0, x->w.data(), x->s.data(), 1, x->q.data(), n, x->iter.data(),
               &fail);
    });
    add(name + "/LAPACK QR", [=] {
        int info;
        x->a = a;
        *b = b0;
        dggev_("N", "V", &n, x->a.data(), &n, b->data(), &n, x->s.data(), x->t.data(), x->s.data(), x->p.data(), &n,
               x->q.data(), &n, x->work.data(), &lwork, &info, 1, 1);
    });
#ifdef KOR_HAVE_EIGEN
    const Eigen::MatrixXd A = Eigen::Map<const Eigen::MatrixXd>(a.data(), n, n),
                          B = Eigen::Map<const Eigen::MatrixXd>(b0.data(), n, n);
    auto *const solver = new Eigen::GeneralizedEigenSolver<Eigen::MatrixXd>(n);
    add(name + "/Eigen", [=] { keep(solver->compute(A, B)); });
#endif
#ifdef KOR_HAVE_GSL
    if (n > kGreatestForGsl) return;
    auto *const room = gsl_eigen_genv_alloc(n);
    auto *const alpha = gsl_vector_complex_alloc(n);
    auto *const v = gsl_matrix_complex_alloc(n, n);
    add(name + "/GSL", [=] {
        x->a = a;
        *b = b0;
        auto A = gsl_matrix_view_array(x->a.data(), n, n), B = gsl_matrix_view_array(b->data(), n, n);
        auto beta = gsl_vector_view_array(x->s.data(), n);
        gsl_eigen_genv(&A.matrix, &B.matrix, alpha, &beta.vector, v, room);
    });
#endif
}

const bool registered = [] {
    for (const int n : {3, 4, 6, 10, 16, 24, 32, 48, 64, 100, 300}) {
        add_symmetric(n);
        add_singular(n);
        add_general(n);
        add_complex(n);
        add_definite(n);
        if (n <= kGreatestForGsl) add_pair(n);
    }
    return true;
}();

} // namespace
