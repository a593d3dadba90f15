// The standard operations beside BLAS called directly and beside Eigen, at sizes where the call is all there is and at
// sizes where it is nothing. Ours over BLAS is the price of argument tests; below 1, a loop in place paid.
//
// Work that overwrites its operand uses factors and matrices so near to unit that a billion runs leave the numbers in range.
#include <cblas.h>

#include <cmath>
#include <random>
#include <string>
#include <tuple>
#include <vector>

#include <kor/f06.h>

#include "support/ratio_table.hpp"

#ifdef KOR_HAVE_EIGEN
#include <Eigen/Dense>
#endif

namespace {

using kor::bench::add;
using kor::bench::keep;

const kor::bench::Heading heading{"Vector and matrix operations", "error of the result, in eps times its terms"};

constexpr double kSmall = 1e-12;

struct Data {
    int n;
    std::vector<double> a, b, c, x, y;
    std::vector<Complex> za, zb, zc, zx, zy;

    Data(int order, bool matrices) : n{order}
    {
        std::mt19937 bits{7};
        const auto number = [&] { return std::ldexp(static_cast<double>(bits()), -31) - 1.0; };
        const std::size_t square = matrices ? static_cast<std::size_t>(n) * n : 0;
        for (auto *v : {&a, &b, &c}) v->resize(square);
        for (auto *v : {&x, &y}) v->resize(n);
        for (auto *v : {&za, &zb, &zc}) v->resize(square);
        for (auto *v : {&zx, &zy}) v->resize(n);
        for (auto *v : {&a, &b, &c, &x, &y})
            for (double &element : *v) element = number();
        for (auto *v : {&za, &zb, &zc, &zx, &zy})
            for (Complex &element : *v) element = {number(), number()};
    }
    // A triangle that hardly changes what it multiplies.
    void near_unit()
    {
        for (int i = 0; i < n; ++i)
            for (int j = 0; j < n; ++j) {
                a[i * n + j] = i == j ? 1.0 : kSmall;
                za[i * n + j] = {i == j ? 1.0 : kSmall, 0.0};
            }
    }
};

// Enough calls in one go that the clock and the wrapper count for nothing.
int repeats(double work) { return work > 2e4 ? 1 : static_cast<int>(2e4 / (work + 20.0)) + 1; }

template <class Work>
void entry(const std::string &name, double work, Work once, double error)
{
    const int count = repeats(work);
    const auto several = [=] {
        for (int r = 0; r < count; ++r) once();
    };
    add(name, several, {.error = error, .items = static_cast<double>(count)});
}

// A result against one of extended precision, in eps of the sum of the moduli of its terms.
double error_of(long double result, long double exact, long double terms)
{
    return static_cast<double>(std::fabs(result - exact) / terms * 0x1p53L);
}

const Complex kZSmall{kSmall, 0.0}, kZOne{1.0, 0.0}, kZZero{0.0, 0.0};

#ifdef KOR_HAVE_EIGEN
using Matrix = Eigen::Matrix<double, Eigen::Dynamic, Eigen::Dynamic, Eigen::RowMajor>;
using ZMatrix = Eigen::Matrix<std::complex<double>, Eigen::Dynamic, Eigen::Dynamic, Eigen::RowMajor>;
Eigen::Map<Matrix> matrix(double *p, int n) { return {p, n, n}; }
Eigen::Map<ZMatrix> matrix(Complex *p, int n) { return {reinterpret_cast<std::complex<double> *>(p), n, n}; }
Eigen::Map<Eigen::VectorXd> vector(double *p, int n) { return {p, n}; }
Eigen::Map<Eigen::VectorXcd> vector(Complex *p, int n) { return {reinterpret_cast<std::complex<double> *>(p), n}; }
#endif

// A scalar result, with its error.
template <class Value>
void value_entry(const std::string &name, double work, Value value, long double exact, long double terms)
{
    entry(
        name, work, [=] { keep(value()); }, error_of(value(), exact, terms));
}

// One line a contestant: the call stands as a user writes it. `error` runs it once and looks at what it made.
#define CONTEST(who, name, work, error, ...)                                                                           \
    do {                                                                                                               \
        const auto once = [=] {                                                                                        \
            auto &d = *data;                                                                                           \
            (void)d;                                                                                                   \
            __VA_ARGS__;                                                                                               \
        };                                                                                                             \
        entry(name + size + who, work, once, error(once));                                                             \
    } while (false)
#define OURS(name, work, ...) CONTEST("/KOR", name, work, unchecked, __VA_ARGS__)
#define BLAS(name, work, ...) CONTEST("/OpenBLAS", name, work, unchecked, __VA_ARGS__)
#ifdef KOR_HAVE_EIGEN
#define EIGEN(name, work, ...) CONTEST("/Eigen", name, work, unchecked, __VA_ARGS__)
#else
#define EIGEN(...)
#endif
constexpr auto unchecked = [](const auto &) { return -1.0; };

using std::string_literals::operator""s;

void vectors(int n)
{
    auto *data = new Data{n, false};
    const std::string size = ", n = " + std::to_string(n);
    const double *x = data->x.data(), *y = data->y.data();
    long double product = 0.0, terms = 0.0, squares = 0.0, sum = 0.0;
    for (int i = 0; i < n; ++i) {
        product += static_cast<long double>(x[i]) * y[i];
        terms += std::fabs(static_cast<long double>(x[i]) * y[i]);
        squares += static_cast<long double>(x[i]) * x[i];
        sum += std::fabs(x[i]);
    }
    const long double length = std::sqrt(squares);
    value_entry(
        "dot" + size + "/KOR", n, [=] { return f06eac(n, x, 1, y, 1); }, product, terms);
    value_entry(
        "dot" + size + "/OpenBLAS", n, [=] { return cblas_ddot(n, x, 1, y, 1); }, product, terms);
    value_entry(
        "nrm2" + size + "/KOR", n, [=] { return f06ejc(n, x, 1); }, length, length);
    value_entry(
        "nrm2" + size + "/OpenBLAS", n, [=] { return cblas_dnrm2(n, x, 1); }, length, length);
    value_entry(
        "asum" + size + "/KOR", n, [=] { return f06ekc(n, x, 1); }, sum, sum);
    value_entry(
        "asum" + size + "/OpenBLAS", n, [=] { return cblas_dasum(n, x, 1); }, sum, sum);
#ifdef KOR_HAVE_EIGEN
    const Eigen::Map<const Eigen::VectorXd> u{x, n}, v{y, n};
    value_entry(
        "dot" + size + "/Eigen", n, [=] { return u.dot(v); }, product, terms);
    value_entry(
        "nrm2" + size + "/Eigen", n, [=] { return u.stableNorm(); }, length, length);
    value_entry(
        "asum" + size + "/Eigen", n, [=] { return u.lpNorm<1>(); }, sum, sum);
#endif
    // What follows overwrites its operands: with others.
    data = new Data{n, false};
    OURS("axpy"s, n, f06ecc(n, kSmall, d.x.data(), 1, d.y.data(), 1));
    BLAS("axpy"s, n, cblas_daxpy(n, kSmall, d.x.data(), 1, d.y.data(), 1));
    EIGEN("axpy"s, n, vector(d.y.data(), n) += kSmall * vector(d.x.data(), n));
    OURS("scal"s, n, f06edc(n, -1.0, d.x.data(), 1));
    BLAS("scal"s, n, cblas_dscal(n, -1.0, d.x.data(), 1));
    OURS("copy"s, n, f06efc(n, d.x.data(), 1, d.y.data(), 1));
    BLAS("copy"s, n, cblas_dcopy(n, d.x.data(), 1, d.y.data(), 1));
    OURS("swap"s, n, f06egc(n, d.x.data(), 1, d.y.data(), 1));
    BLAS("swap"s, n, cblas_dswap(n, d.x.data(), 1, d.y.data(), 1));
    OURS("rot"s, n, f06epc(n, d.x.data(), 1, d.y.data(), 1, 1.0, kSmall));
    BLAS("rot"s, n, cblas_drot(n, d.x.data(), 1, d.y.data(), 1, 1.0, kSmall));
    OURS("iamax"s, n, keep(f06jlc(n, d.x.data(), 1)));
    BLAS("iamax"s, n, keep(cblas_idamax(n, d.x.data(), 1)));
    OURS("zdotc"s, n, keep(f06gbc(n, d.zx.data(), 1, d.zy.data(), 1)));
    BLAS("zdotc"s, n, Complex z; cblas_zdotc_sub(n, d.zx.data(), 1, d.zy.data(), 1, &z); keep(z));
    OURS("zaxpy"s, n, f06gcc(n, kZSmall, d.zx.data(), 1, d.zy.data(), 1));
    BLAS("zaxpy"s, n, cblas_zaxpy(n, &kZSmall, d.zx.data(), 1, d.zy.data(), 1));
    OURS("zscal"s, n, f06gdc(n, Complex{0.0, 1.0}, d.zx.data(), 1));
    BLAS("zscal"s, n, const Complex i{0.0, 1.0}; cblas_zscal(n, &i, d.zx.data(), 1));
    OURS("dznrm2"s, n, keep(f06jjc(n, d.zx.data(), 1)));
    BLAS("dznrm2"s, n, keep(cblas_dznrm2(n, d.zx.data(), 1)));
    OURS("zdscal"s, n, f06jdc(n, -1.0, d.zx.data(), 1));
    BLAS("zdscal"s, n, cblas_zdscal(n, -1.0, d.zx.data(), 1));
    OURS("izamax"s, n, keep(f06jmc(n, d.zx.data(), 1)));
    BLAS("izamax"s, n, keep(cblas_izamax(n, d.zx.data(), 1)));
}

constexpr auto kRow = CblasRowMajor;
constexpr auto kUp = CblasUpper;
constexpr auto kNo = CblasNoTrans;
constexpr auto kTr = CblasTrans;
constexpr auto kAdj = CblasConjTrans;
constexpr auto kNon = CblasNonUnit;

void matrix_vector(int n)
{
    auto *data = new Data{n, true}, *unit = new Data{n, true};
    unit->near_unit();
    const int k = n / 4;
    const double work = 0.5 * n * n;
    const std::string size = ", n = " + std::to_string(n);
    OURS("gemv N"s, work, f06pac(NoTranspose, n, n, 1.0, d.a.data(), n, d.x.data(), 1, 0.5, d.y.data(), 1));
    BLAS("gemv N"s, work, cblas_dgemv(kRow, kNo, n, n, 1.0, d.a.data(), n, d.x.data(), 1, 0.5, d.y.data(), 1));
    EIGEN("gemv N"s, work, auto y = vector(d.y.data(), n); y *= 0.5;
          y.noalias() += matrix(d.a.data(), n) * vector(d.x.data(), n));
    OURS("gemv T"s, work, f06pac(Transpose, n, n, 1.0, d.a.data(), n, d.x.data(), 1, 0.5, d.y.data(), 1));
    BLAS("gemv T"s, work, cblas_dgemv(kRow, kTr, n, n, 1.0, d.a.data(), n, d.x.data(), 1, 0.5, d.y.data(), 1));
    EIGEN("gemv T"s, work, auto y = vector(d.y.data(), n); y *= 0.5;
          y.noalias() += matrix(d.a.data(), n).transpose() * vector(d.x.data(), n));
    OURS("zgemv N"s, work, f06sac(NoTranspose, n, n, kZOne, d.za.data(), n, d.zx.data(), 1, kZZero, d.zy.data(), 1));
    BLAS("zgemv N"s, work,
         cblas_zgemv(kRow, kNo, n, n, &kZOne, d.za.data(), n, d.zx.data(), 1, &kZZero, d.zy.data(), 1));
    EIGEN("zgemv N"s, work, vector(d.zy.data(), n).noalias() = matrix(d.za.data(), n) * vector(d.zx.data(), n));
    OURS("zgemv C"s, work,
         f06sac(ConjugateTranspose, n, n, kZOne, d.za.data(), n, d.zx.data(), 1, kZZero, d.zy.data(), 1));
    BLAS("zgemv C"s, work,
         cblas_zgemv(kRow, kAdj, n, n, &kZOne, d.za.data(), n, d.zx.data(), 1, &kZZero, d.zy.data(), 1));
    EIGEN("zgemv C"s, work,
          vector(d.zy.data(), n).noalias() = matrix(d.za.data(), n).adjoint() * vector(d.zx.data(), n));
    OURS("gbmv"s, n * (k + 1),
         f06pbc(NoTranspose, n, n, k / 2, k / 2, 1.0, d.a.data(), n, d.x.data(), 1, 0.5, d.y.data(), 1));
    BLAS("gbmv"s, n * (k + 1),
         cblas_dgbmv(kRow, kNo, n, n, k / 2, k / 2, 1.0, d.a.data(), n, d.x.data(), 1, 0.5, d.y.data(), 1));
    OURS("symv"s, work, f06pcc(UpperTriangle, n, 1.0, d.a.data(), n, d.x.data(), 1, 0.5, d.y.data(), 1));
    BLAS("symv"s, work, cblas_dsymv(kRow, kUp, n, 1.0, d.a.data(), n, d.x.data(), 1, 0.5, d.y.data(), 1));
    EIGEN("symv"s, work, auto y = vector(d.y.data(), n); y *= 0.5;
          y.noalias() += matrix(d.a.data(), n).selfadjointView<Eigen::Upper>() * vector(d.x.data(), n));
    OURS("sbmv"s, n * (k + 1), f06pdc(UpperTriangle, n, k, 1.0, d.a.data(), n, d.x.data(), 1, 0.5, d.y.data(), 1));
    BLAS("sbmv"s, n * (k + 1), cblas_dsbmv(kRow, kUp, n, k, 1.0, d.a.data(), n, d.x.data(), 1, 0.5, d.y.data(), 1));
    OURS("spmv"s, work, f06pec(UpperTriangle, n, 1.0, d.a.data(), d.x.data(), 1, 0.5, d.y.data(), 1));
    BLAS("spmv"s, work, cblas_dspmv(kRow, kUp, n, 1.0, d.a.data(), d.x.data(), 1, 0.5, d.y.data(), 1));
    OURS("zhemv"s, work, f06scc(UpperTriangle, n, kZOne, d.za.data(), n, d.zx.data(), 1, kZZero, d.zy.data(), 1));
    BLAS("zhemv"s, work, cblas_zhemv(kRow, kUp, n, &kZOne, d.za.data(), n, d.zx.data(), 1, &kZZero, d.zy.data(), 1));
    OURS("ger"s, work, f06pmc(n, n, kSmall, d.x.data(), 1, d.y.data(), 1, d.a.data(), n));
    BLAS("ger"s, work, cblas_dger(kRow, n, n, kSmall, d.x.data(), 1, d.y.data(), 1, d.a.data(), n));
    EIGEN("ger"s, work,
          matrix(d.a.data(), n).noalias() += kSmall * vector(d.x.data(), n) * vector(d.y.data(), n).transpose());
    OURS("syr"s, work, f06ppc(UpperTriangle, n, kSmall, d.x.data(), 1, d.a.data(), n));
    BLAS("syr"s, work, cblas_dsyr(kRow, kUp, n, kSmall, d.x.data(), 1, d.a.data(), n));
    OURS("spr"s, work, f06pqc(UpperTriangle, n, kSmall, d.x.data(), 1, d.a.data()));
    BLAS("spr"s, work, cblas_dspr(kRow, kUp, n, kSmall, d.x.data(), 1, d.a.data()));
    OURS("syr2"s, work, f06prc(UpperTriangle, n, kSmall, d.x.data(), 1, d.y.data(), 1, d.a.data(), n));
    BLAS("syr2"s, work, cblas_dsyr2(kRow, kUp, n, kSmall, d.x.data(), 1, d.y.data(), 1, d.a.data(), n));
    OURS("zgeru"s, work, f06smc(n, n, kZSmall, d.zx.data(), 1, d.zy.data(), 1, d.za.data(), n));
    BLAS("zgeru"s, work, cblas_zgeru(kRow, n, n, &kZSmall, d.zx.data(), 1, d.zy.data(), 1, d.za.data(), n));
    OURS("zher"s, work, f06spc(UpperTriangle, n, kSmall, d.zx.data(), 1, d.za.data(), n));
    BLAS("zher"s, work, cblas_zher(kRow, kUp, n, kSmall, d.zx.data(), 1, d.za.data(), n));
    data = unit;
    OURS("trmv"s, work, f06pfc(UpperTriangle, NoTranspose, NotUnitTriangular, n, d.a.data(), n, d.x.data(), 1));
    BLAS("trmv"s, work, cblas_dtrmv(kRow, kUp, kNo, kNon, n, d.a.data(), n, d.x.data(), 1));
    OURS("trsv N"s, work, f06pjc(UpperTriangle, NoTranspose, NotUnitTriangular, n, d.a.data(), n, d.x.data(), 1));
    BLAS("trsv N"s, work, cblas_dtrsv(kRow, kUp, kNo, kNon, n, d.a.data(), n, d.x.data(), 1));
    EIGEN("trsv N"s, work, auto x = vector(d.x.data(), n);
          matrix(d.a.data(), n).triangularView<Eigen::Upper>().solveInPlace(x));
    OURS("trsv T"s, work, f06pjc(UpperTriangle, Transpose, NotUnitTriangular, n, d.a.data(), n, d.x.data(), 1));
    BLAS("trsv T"s, work, cblas_dtrsv(kRow, kUp, kTr, kNon, n, d.a.data(), n, d.x.data(), 1));
    EIGEN("trsv T"s, work, auto x = vector(d.x.data(), n);
          matrix(d.a.data(), n).triangularView<Eigen::Upper>().transpose().solveInPlace(x));
    OURS("tpsv"s, work, f06plc(UpperTriangle, NoTranspose, UnitTriangular, n, d.b.data(), d.x.data(), 1); d.x[0] = 0.5);
    BLAS("tpsv"s, work, cblas_dtpsv(kRow, kUp, kNo, CblasUnit, n, d.b.data(), d.x.data(), 1); d.x[0] = 0.5);
    OURS("tbsv"s, n * (k + 1), f06pkc(UpperTriangle, NoTranspose, UnitTriangular, n, 0, d.b.data(), n, d.x.data(), 1));
    BLAS("tbsv"s, n * (k + 1), cblas_dtbsv(kRow, kUp, kNo, CblasUnit, n, 0, d.b.data(), n, d.x.data(), 1));
    OURS("ztrsv"s, work, f06sjc(UpperTriangle, NoTranspose, NotUnitTriangular, n, d.za.data(), n, d.zx.data(), 1));
    BLAS("ztrsv"s, work, cblas_ztrsv(kRow, kUp, kNo, kNon, n, d.za.data(), n, d.zx.data(), 1));
}

void matrix_matrix(int n)
{
    auto *data = new Data{n, true}, *unit = new Data{n, true};
    unit->near_unit();
    const double work = 0.5 * n * n * n;
    const std::string size = ", n = " + std::to_string(n);
    const auto checked = [data](const auto &once) {
        once();
        const int order = data->n;
        double worst = 0.0;
        for (int i = 0; i < order; ++i)
            for (int j = 0; j < order; ++j) {
                long double exact = 0.0, terms = 0.0;
                for (int k = 0; k < order; ++k) {
                    const long double term = static_cast<long double>(data->a[i * order + k]) * data->b[k * order + j];
                    exact += term;
                    terms += std::fabs(term);
                }
                worst = std::fmax(worst, error_of(data->c[i * order + j], exact, terms));
            }
        return worst;
    };
    CONTEST("/KOR", "gemm NN"s, work, checked,
            f06yac(NoTranspose, NoTranspose, n, n, n, 1.0, d.a.data(), n, d.b.data(), n, 0.0, d.c.data(), n));
    CONTEST("/OpenBLAS", "gemm NN"s, work, checked,
            cblas_dgemm(kRow, kNo, kNo, n, n, n, 1.0, d.a.data(), n, d.b.data(), n, 0.0, d.c.data(), n));
#ifdef KOR_HAVE_EIGEN
    CONTEST("/Eigen", "gemm NN"s, work, checked,
            matrix(d.c.data(), n).noalias() = matrix(d.a.data(), n) * matrix(d.b.data(), n));
#endif
    for (const auto &[name, ta, tb] : {std::tuple{"gemm NT"s, NoTranspose, Transpose},
                                       {"gemm TN"s, Transpose, NoTranspose},
                                       {"gemm TT"s, Transpose, Transpose}}) {
        const Integer transa = ta, transb = tb;
        OURS(name, work, f06yac(transa, transb, n, n, n, 1.0, d.a.data(), n, d.b.data(), n, 0.0, d.c.data(), n));
        const auto cblas_a = ta == Transpose ? kTr : kNo, cblas_b = tb == Transpose ? kTr : kNo;
        BLAS(name, work,
             cblas_dgemm(kRow, cblas_a, cblas_b, n, n, n, 1.0, d.a.data(), n, d.b.data(), n, 0.0, d.c.data(), n));
    }
    OURS("zgemm NN"s, work,
         f06zac(NoTranspose, NoTranspose, n, n, n, kZOne, d.za.data(), n, d.zb.data(), n, kZZero, d.zc.data(), n));
    BLAS("zgemm NN"s, work,
         cblas_zgemm(kRow, kNo, kNo, n, n, n, &kZOne, d.za.data(), n, d.zb.data(), n, &kZZero, d.zc.data(), n));
    EIGEN("zgemm NN"s, work, matrix(d.zc.data(), n).noalias() = matrix(d.za.data(), n) * matrix(d.zb.data(), n));
    OURS("zgemm CN"s, work,
         f06zac(ConjugateTranspose, NoTranspose, n, n, n, kZOne, d.za.data(), n, d.zb.data(), n, kZZero, d.zc.data(),
                n));
    BLAS("zgemm CN"s, work,
         cblas_zgemm(kRow, kAdj, kNo, n, n, n, &kZOne, d.za.data(), n, d.zb.data(), n, &kZZero, d.zc.data(), n));
    OURS("symm"s, work, f06ycc(LeftSide, UpperTriangle, n, n, 1.0, d.a.data(), n, d.b.data(), n, 0.0, d.c.data(), n));
    BLAS("symm"s, work, cblas_dsymm(kRow, CblasLeft, kUp, n, n, 1.0, d.a.data(), n, d.b.data(), n, 0.0, d.c.data(), n));
    OURS("syrk N"s, work, f06ypc(UpperTriangle, NoTranspose, n, n, 1.0, d.a.data(), n, 0.0, d.c.data(), n));
    BLAS("syrk N"s, work, cblas_dsyrk(kRow, kUp, kNo, n, n, 1.0, d.a.data(), n, 0.0, d.c.data(), n));
    OURS("syrk T"s, work, f06ypc(UpperTriangle, Transpose, n, n, 1.0, d.a.data(), n, 0.0, d.c.data(), n));
    BLAS("syrk T"s, work, cblas_dsyrk(kRow, kUp, kTr, n, n, 1.0, d.a.data(), n, 0.0, d.c.data(), n));
    OURS("syr2k"s, work,
         f06yrc(UpperTriangle, NoTranspose, n, n, 1.0, d.a.data(), n, d.b.data(), n, 0.0, d.c.data(), n));
    BLAS("syr2k"s, work, cblas_dsyr2k(kRow, kUp, kNo, n, n, 1.0, d.a.data(), n, d.b.data(), n, 0.0, d.c.data(), n));
    OURS("zherk"s, work, f06zpc(UpperTriangle, NoTranspose, n, n, 1.0, d.za.data(), n, 0.0, d.zc.data(), n));
    BLAS("zherk"s, work, cblas_zherk(kRow, kUp, kNo, n, n, 1.0, d.za.data(), n, 0.0, d.zc.data(), n));
    data = unit;
    OURS("trmm L"s, work,
         f06yfc(LeftSide, UpperTriangle, NoTranspose, NotUnitTriangular, n, n, 1.0, d.a.data(), n, d.b.data(), n));
    BLAS("trmm L"s, work, cblas_dtrmm(kRow, CblasLeft, kUp, kNo, kNon, n, n, 1.0, d.a.data(), n, d.b.data(), n));
    OURS("trsm L"s, work,
         f06yjc(LeftSide, UpperTriangle, NoTranspose, NotUnitTriangular, n, n, 1.0, d.a.data(), n, d.b.data(), n));
    BLAS("trsm L"s, work, cblas_dtrsm(kRow, CblasLeft, kUp, kNo, kNon, n, n, 1.0, d.a.data(), n, d.b.data(), n));
    EIGEN("trsm L"s, work, auto b = matrix(d.b.data(), n);
          matrix(d.a.data(), n).triangularView<Eigen::Upper>().solveInPlace(b));
    OURS("trsm R"s, work,
         f06yjc(RightSide, UpperTriangle, NoTranspose, NotUnitTriangular, n, n, 1.0, d.a.data(), n, d.b.data(), n));
    BLAS("trsm R"s, work, cblas_dtrsm(kRow, CblasRight, kUp, kNo, kNon, n, n, 1.0, d.a.data(), n, d.b.data(), n));
    OURS("ztrsm L"s, work,
         f06zjc(LeftSide, UpperTriangle, NoTranspose, NotUnitTriangular, n, n, kZOne, d.za.data(), n, d.zb.data(), n));
    BLAS("ztrsm L"s, work, cblas_ztrsm(kRow, CblasLeft, kUp, kNo, kNon, n, n, &kZOne, d.za.data(), n, d.zb.data(), n));
}

const bool registered = [] {
    for (const int n : {2, 4, 8, 16, 1000, 100000}) vectors(n);
    for (const int n : {2, 3, 4, 8, 16, 500}) matrix_vector(n);
    for (const int n : {2, 3, 4, 8, 16, 250}) matrix_matrix(n);
    return true;
}();

} // namespace
