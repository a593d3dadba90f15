#include <kor/f01.h>
#include <kor/f02.h>
#include <kor/x02.h>

#include "support/specimen.hpp"

namespace {

// A matrix of order 3, real and complex, symmetric and Hermitian, definite; room for results. No padding: bytes are compared.
struct Data {
    double a[9] = {4.0, 1.0, -2.0, 1.0, 3.0, 0.5, -2.0, 0.5, 5.0},
           b[9] = {2.0, 0.5, 0.0, 0.5, 3.0, 0.25, 0.0, 0.25, 1.0};
    double d[3] = {1.0, 2.0, 3.0}, e[3] = {0.5, 0.25, 0.125}, r[3] = {}, v[9] = {}, w[9] = {}, y[3] = {1.0, 2.0, 3.0};
    Complex za[9], zv[9] = {}, zw[3] = {}, zy[3] = {{1.0, 0.5}, {2.0, 0.25}, {3.0, 0.0}};
    Integer k[4] = {-1, -1, -1, -1};
    Boolean flags[16] = {};

    Data()
    {
        for (int i = 0; i < 3; ++i)
            for (int j = 0; j < 3; ++j) za[3 * i + j] = {a[3 * i + j], i == j ? 0.0 : i > j ? 0.5 : -0.5};
    }
};

} // namespace

#define EIGEN_SPECIMEN_AS(kind, name, prepare, ...)                                                                    \
    kind(name)                                                                                                         \
    {                                                                                                                  \
        Data d;                                                                                                        \
        [[maybe_unused]] KorError own{};                                                                               \
        prepare;                                                                                                       \
        call([&]([[maybe_unused]] KorError *fail) { __VA_ARGS__; });                                                   \
        outputs(d);                                                                                                    \
    }
#define EIGEN_SPECIMEN(name, ...) EIGEN_SPECIMEN_AS(KOR_SPECIMEN, name, , __VA_ARGS__)
#define STEP_SPECIMEN(name, prepare, ...) EIGEN_SPECIMEN_AS(KOR_SPECIMEN_WITHOUT_RECORD, name, prepare, __VA_ARGS__)

STEP_SPECIMEN(f01aec, , d.k[0] = f01aec(3, d.a, 3, d.b, 3, d.r))
STEP_SPECIMEN(f01afc, f01aec(3, d.a, 3, d.b, 3, d.r), f01afc(3, 1, 3, d.b, 3, d.r, d.a, 3))
STEP_SPECIMEN(f01agc, , f01agc(3, 0.0, d.a, 3, d.d, d.e, d.r))
STEP_SPECIMEN(f01ajc, , f01ajc(3, 0.0, d.a, 3, d.d, d.e, d.v, 3))
STEP_SPECIMEN(f01akc, , f01akc(3, 1, 3, d.a, 3, d.k))
STEP_SPECIMEN(f01apc, f01akc(3, 1, 3, d.a, 3, d.k), f01apc(3, 1, 3, d.k, d.a, 3, d.v, 3))
STEP_SPECIMEN(f01atc, d.a[1] = 4096.0, f01atc(3, 2, d.a, 3, &d.k[0], &d.k[1], d.r))
STEP_SPECIMEN(f01auc, , f01auc(3, 1, 3, 3, d.d, d.a, 3))
STEP_SPECIMEN(f01bcc, , f01bcc(3, 0.0, d.za, 3, d.d, d.e, d.zw))

EIGEN_SPECIMEN(f02aac, f02aac(3, d.a, 3, d.r, fail))
EIGEN_SPECIMEN(f02abc, f02abc(3, d.a, 3, d.r, d.v, 3, fail))
EIGEN_SPECIMEN(f02adc, f02adc(3, d.a, 3, d.b, 3, d.r, fail))
EIGEN_SPECIMEN(f02aec, f02aec(3, d.a, 3, d.b, 3, d.r, d.v, 3, fail))
EIGEN_SPECIMEN_AS(KOR_SPECIMEN, f02afc, d.a[1] = -1.0, f02afc(3, d.a, 3, d.zw, d.k, fail))
EIGEN_SPECIMEN_AS(KOR_SPECIMEN, f02agc, d.a[1] = -1.0, f02agc(3, d.a, 3, d.zw, d.zv, 3, d.k, fail))
EIGEN_SPECIMEN(f02amc, f02amc(3, x02ajc(), d.d, d.e, d.a, 3, fail))
EIGEN_SPECIMEN(f02apc, f02apc(3, x02ajc(), d.a, 3, d.d, d.e, d.k, fail))
EIGEN_SPECIMEN(f02aqc, f02aqc(3, 1, 3, x02ajc(), d.a, 3, d.b, 3, d.d, d.e, d.k, fail))
EIGEN_SPECIMEN(f02avc, f02avc(3, x02ajc(), d.d, d.e, fail))
EIGEN_SPECIMEN(f02awc, f02awc(3, d.za, 3, d.r, fail))
EIGEN_SPECIMEN(f02axc, f02axc(3, d.za, 3, d.r, d.zv, 3, fail))
EIGEN_SPECIMEN(f02ayc, f02ayc(3, x02ajc(), d.d, d.e, d.za, 3, fail))
EIGEN_SPECIMEN(f02bjc, f02bjc(3, d.a, 3, d.b, 3, 0.0, d.zw, d.d, 1, d.v, 3, d.k, fail))
EIGEN_SPECIMEN(f02ecc, f02ecc(Kor_Select_Modulus, 3, d.a, 3, 1.0, 9.0, 3, d.k, d.zw, d.zv, 3, fail))
EIGEN_SPECIMEN(f02gcc, f02gcc(Kor_Select_RealPart, 3, d.za, 3, 1.0, 9.0, 3, d.k, d.zw, d.zv, 3, fail))
EIGEN_SPECIMEN(f02swc, f02swc(3, d.a, 3, d.d, d.e, 1, d.y, 1, 1, d.v, 3, fail))
EIGEN_SPECIMEN_AS(KOR_SPECIMEN, f02sxc, f02swc(3, d.a, 3, d.d, d.e, 0, nullptr, 0, 0, nullptr, 0, &own),
                  f02sxc(3, d.a, 3, 1, d.y, 1, fail))
EIGEN_SPECIMEN(f02syc, f02syc(3, d.d, d.e, 1, d.y, 1, 3, d.a, 3, 3, d.b, 3, &d.k[0], &d.k[1], fail))
EIGEN_SPECIMEN(f02szc, f02szc(3, d.d, d.e, d.r, 1, d.y, 1, d.a, 3, 3, 1, d.b, 3, 3, d.w, fail))
EIGEN_SPECIMEN(f02uwc, f02uwc(3, d.za, 3, d.d, d.e, 1, d.zy, 1, 1, d.zv, 3, fail))
EIGEN_SPECIMEN_AS(KOR_SPECIMEN, f02uxc, f02uwc(3, d.za, 3, d.d, d.e, 0, nullptr, 0, 0, nullptr, 0, &own),
                  f02uxc(3, d.za, 3, 1, d.zy, 1, fail))
EIGEN_SPECIMEN(f02uyc, f02uyc(3, d.d, d.e, 1, d.zy, 1, 3, d.za, 3, 3, d.zv, 3, &d.k[0], &d.k[1], fail))
EIGEN_SPECIMEN(f02wbc, f02wbc(2, 3, d.a, 3, 1, d.y, d.r, d.w, 9, fail))
EIGEN_SPECIMEN(f02wdc,
               f02wdc(3, 2, d.a, 3, 1, d.y, 1.0, &d.flags[0], &d.k[0], d.d, d.r, 1, d.b, 2, 1, d.v, 2, d.w, 9, fail))
EIGEN_SPECIMEN(f02wec, f02wec(3, 3, d.a, 3, 1, d.y, 1, 1, nullptr, 0, d.r, 1, d.v, 3, &d.k[0], d.e, &d.k[1], fail))
EIGEN_SPECIMEN(f02wuc, f02wuc(3, d.a, 3, 1, d.y, 1, 1, d.v, 3, d.r, 1, &d.k[0], d.e, &d.k[1], fail))
EIGEN_SPECIMEN(f02xec, f02xec(3, 3, d.za, 3, 1, d.zy, 1, 1, nullptr, 0, d.r, 1, d.zv, 3, &d.k[0], d.e, &d.k[1], fail))
EIGEN_SPECIMEN(f02xuc, f02xuc(3, d.za, 3, 1, d.zy, 1, 1, d.zv, 3, d.r, 1, &d.k[0], d.e, &d.k[1], fail))
