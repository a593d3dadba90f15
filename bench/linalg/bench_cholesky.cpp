// The Cholesky factorisation beside LAPACK called directly and beside Eigen. The copy of the matrix is in all times.
#include <cmath>
#include <cstring>
#include <random>
#include <string>
#include <vector>

#include <kor/f07.h>

#include "support/ratio_table.hpp"

#ifdef KOR_HAVE_EIGEN
#include <Eigen/Dense>
#endif

extern "C" void dpotrf_(const char *uplo, const int *n, double *a, const int *lda, int *info, std::size_t);

namespace {

const kor::bench::Heading heading{"Cholesky factorisation", "largest |A - U'U|, in n eps"};

std::vector<double> positive_definite(int n)
{
    std::mt19937 bits{5};
    std::vector<double> b(n * n), a(n * n);
    for (double &x : b) x = std::ldexp(static_cast<double>(bits()), -31) - 1.0;
    for (int i = 0; i < n; ++i)
        for (int j = 0; j < n; ++j) {
            double sum = i == j ? 1.0 : 0.0;
            for (int k = 0; k < n; ++k) sum += b[k * n + i] * b[k * n + j];
            a[i * n + j] = sum / n;
        }
    return a;
}

// The upper factor, row by row, against the matrix.
double residual(int n, const std::vector<double> &a, const std::vector<double> &u)
{
    long double worst = 0.0;
    for (int i = 0; i < n; ++i)
        for (int j = i; j < n; ++j) {
            long double sum = -a[i * n + j];
            for (int k = 0; k <= i; ++k) sum += static_cast<long double>(u[k * n + i]) * u[k * n + j];
            worst = std::max(worst, std::fabs(sum));
        }
    return static_cast<double>(worst * 0x1p53L / n);
}

void add(const std::string &work, int n)
{
    const std::vector<double> a = positive_definite(n);
    const std::size_t bytes = a.size() * sizeof(double);
    auto *f = new std::vector<double>(a);
    for (const Integer uplo : {UpperTriangle, LowerTriangle}) {
        const std::string name = work + (uplo == UpperTriangle ? " upper, n = " : " lower, n = ") + std::to_string(n);
        const auto ours = [=] {
            KorError fail{};
            std::memcpy(f->data(), a.data(), bytes);
            f07fdc(uplo, n, f->data(), n, &fail);
        };
        const auto lapack = [=] {
            int info = 0;
            std::memcpy(f->data(), a.data(), bytes);
            dpotrf_(uplo == UpperTriangle ? "L" : "U", &n, f->data(), &n, &info, 1);
        };
        const auto error_of = [&](const auto &factorise) {
            factorise();
            return uplo == UpperTriangle ? residual(n, a, *f) : -1.0;
        };
        kor::bench::add(name + "/KOR", ours, {.error = error_of(ours)});
        kor::bench::add(name + "/LAPACK", lapack, {.error = error_of(lapack)});
#ifdef KOR_HAVE_EIGEN
        using Matrix = Eigen::Matrix<double, Eigen::Dynamic, Eigen::Dynamic, Eigen::RowMajor>;
        const auto eigen = [=] {
            std::memcpy(f->data(), a.data(), bytes);
            Eigen::Map<Matrix> m{f->data(), n, n};
            if (uplo == UpperTriangle)
                kor::bench::keep(Eigen::LLT<Eigen::Ref<Matrix>, Eigen::Upper>{m}.info());
            else
                kor::bench::keep(Eigen::LLT<Eigen::Ref<Matrix>, Eigen::Lower>{m}.info());
        };
        kor::bench::add(name + "/Eigen", eigen, {.error = error_of(eigen)});
#endif
    }
}

const bool registered = [] {
    for (const int n : {2, 4, 6, 10, 16, 24, 32, 50, 100, 300}) add("potrf", n);
    return true;
}();

} // namespace
