#include <kor/f01.h>
#include <kor/f03.h>
#include <kor/f04.h>

#include "support/specimen.hpp"

namespace {

// A small system in all its forms; all of it counts as output.
struct System {
    double a[9] = {4.0, 1.0, -0.5, 1.0, 5.0, 2.0, -0.5, 2.0, 6.0}, factor[9], b[6] = {1.0, -2.0, 0.5, 3.0, 2.5, -1.0};
    double x[6] = {9.0, 9.0, 9.0, 9.0, 9.0, 9.0}, rest[6] = {9.0, 9.0, 9.0, 9.0, 9.0, 9.0}, p[3] = {9.0, 9.0, 9.0};
    Complex za[9], zb[6], zx[6] = {}, zdet{9.0, 9.0};
    double det = 9.0;
    Integer pivot[3] = {-1, -1, -1}, dete = -1, iterations = -1, unused = 0;

    System()
    {
        for (int i = 0; i < 9; ++i) factor[i] = a[i];
        for (int i = 0; i < 9; ++i) za[i] = {a[i], i == 1 || i == 2 ? 0.5 : i == 3 || i == 6 ? -0.5 : 0.0};
        for (int i = 0; i < 6; ++i) zb[i] = {b[i], 0.25 * i};
    }
    void cholesky()
    {
        KorError fail{};
        f03aec(3, a, 3, p, &det, &dete, &fail);
    }
    void lu()
    {
        KorError fail{};
        f03afc(3, factor, 3, pivot, &det, &dete, &fail);
    }
};

} // namespace

#define SYSTEM_SPECIMEN(name, prepare, ...)                                                                            \
    KOR_SPECIMEN(name)                                                                                                 \
    {                                                                                                                  \
        System s;                                                                                                      \
        prepare;                                                                                                       \
        call([&](KorError *fail) { __VA_ARGS__; });                                                                    \
        outputs(s);                                                                                                    \
    }

SYSTEM_SPECIMEN(f03abc, , f03abc(3, s.a, 3, &s.det, &s.dete, fail))
SYSTEM_SPECIMEN(f03aec, , f03aec(3, s.a, 3, s.p, &s.det, &s.dete, fail))
SYSTEM_SPECIMEN(f03afc, , f03afc(3, s.a, 3, s.pivot, &s.det, &s.dete, fail))
SYSTEM_SPECIMEN(f03ahc, , f03ahc(3, s.za, 3, s.pivot, &s.zdet, &s.dete, fail))
SYSTEM_SPECIMEN(f04ajc, s.lu(), f04ajc(3, 2, s.factor, 3, s.pivot, s.b, 2, fail))
SYSTEM_SPECIMEN(f04akc, f03ahc(3, s.za, 3, s.pivot, &s.zdet, &s.dete, nullptr),
                f04akc(3, 2, s.za, 3, s.pivot, s.zb, 2, fail))
SYSTEM_SPECIMEN(f04agc, s.cholesky(), f04agc(3, 2, s.a, 3, s.p, s.b, 2, s.x, 2, fail))
SYSTEM_SPECIMEN(f04awc, f01bnc(3, s.za, 3, s.p, nullptr), f04awc(3, 2, s.za, 3, s.p, s.zb, 2, s.zx, 2, fail))
SYSTEM_SPECIMEN(f04arc, , f04arc(3, s.a, 3, s.b, s.x, fail))
SYSTEM_SPECIMEN(f04adc, , f04adc(3, 2, s.za, 3, s.zb, 2, s.zx, 2, fail))
SYSTEM_SPECIMEN(f04asc, , f04asc(3, s.a, 3, s.b, s.x, s.p, s.rest, fail))
SYSTEM_SPECIMEN(f04aec, , f04aec(3, 2, s.a, 3, s.b, 2, s.x, 2, s.factor, 3, s.rest, 2, fail))
SYSTEM_SPECIMEN(f04ahc, s.lu(),
                f04ahc(3, 2, s.a, 3, s.factor, 3, s.pivot, s.b, 2, s.x, 2, s.rest, 2, &s.iterations, fail))
SYSTEM_SPECIMEN(f04afc, s.cholesky(), f04afc(3, 2, s.a, 3, s.p, s.b, 2, s.x, 2, s.rest, 2, &s.iterations, fail))
SYSTEM_SPECIMEN(f04aac, , f04aac(3, 2, s.a, 3, s.b, 2, s.x, 2, fail))
SYSTEM_SPECIMEN(f01aac, , f01aac(s.a, 3, 3, nullptr, s.factor, 3, fail))
SYSTEM_SPECIMEN(f01bnc, , f01bnc(3, s.za, 3, s.p, fail))

KOR_SPECIMEN_WITHOUT_RECORD(f01acc)
{
    System s;
    call([&](KorError *) { f01acc(3, s.a, 3, s.factor, 3, &s.iterations); });
    outputs(s);
}
KOR_SPECIMEN_WITHOUT_RECORD(f01adc)
{
    System s;
    call([&](KorError *) { f01adc(3, s.a, 3); });
    outputs(s);
}

namespace {

// Rectangles, more rows than columns and fewer, and what belongs to them.
struct Rectangles {
    double tall[12] = {1.0, 2.0, -0.5, 0.3, 1.5, 0.7, -1.2, 0.1, 2.2, 0.9, -0.4, 0.6}, wide[12], square[9], c[8], z[9];
    double zeta[4] = {9.0, 9.0, 9.0, 9.0}, work[16] = {}, d[3] = {9.0, 9.0, 9.0}, e[3] = {9.0, 9.0, 9.0};
    double b[4] = {1.0, 2.0, 3.0, -1.0}, sigma = 9.0;
    Complex ztall[12], zwide[12], theta[4] = {}, zc[8];
    Integer perm[3] = {-1, -1, -1}, rank = -1, jmax = -1, row[4] = {1, 2, 2, 2};
    Boolean svd = 9, unused[11] = {}; // no padding: the bytes are compared

    Rectangles()
    {
        for (int i = 0; i < 12; ++i) {
            wide[i] = tall[(5 * i) % 12];
            ztall[i] = {tall[i], wide[i]};
            zwide[i] = {wide[i], -tall[i]};
        }
        for (int i = 0; i < 9; ++i) z[i] = square[i] = tall[i] + (i % 4 == 0 ? 4.0 : 0.0);
        for (int i = 0; i < 8; ++i) {
            c[i] = wide[i];
            zc[i] = ztall[i];
        }
    }
    void make_definite()
    {
        for (int i = 0; i < 9; ++i) square[i] = i % 4 == 0 ? 6.0 : 0.5;
    }
    void make_band() // tridiagonal
    {
        for (int i = 0; i < 7; ++i) tall[i] = i % 2 == 0 ? 3.0 : 0.5;
    }
};

} // namespace

#define RECTANGLE_SPECIMEN(name, prepare, ...)                                                                         \
    KOR_SPECIMEN(name)                                                                                                 \
    {                                                                                                                  \
        Rectangles r;                                                                                                  \
        prepare;                                                                                                       \
        call([&](KorError *fail) { __VA_ARGS__; });                                                                    \
        outputs(r);                                                                                                    \
    }

RECTANGLE_SPECIMEN(f01qcc, , f01qcc(4, 3, r.tall, 3, r.zeta, fail))
RECTANGLE_SPECIMEN(f01rcc, , f01rcc(4, 3, r.ztall, 3, r.theta, fail))
RECTANGLE_SPECIMEN(f01qdc, f01qcc(4, 3, r.tall, 3, r.zeta, nullptr),
                   f01qdc(Transpose, Kor_ElementsSeparate, 4, 3, r.tall, 3, r.zeta, 2, r.c, 2, fail))
RECTANGLE_SPECIMEN(f01rdc, f01rcc(4, 3, r.ztall, 3, r.theta, nullptr),
                   f01rdc(NoTranspose, Kor_ElementsSeparate, 4, 3, r.ztall, 3, r.theta, 2, r.zc, 2, fail))
RECTANGLE_SPECIMEN(f01qec, f01qcc(4, 3, r.tall, 3, r.zeta, nullptr),
                   f01qec(Kor_ElementsSeparate, 4, 3, 3, r.tall, 3, r.zeta, fail))
RECTANGLE_SPECIMEN(f01rec, f01rcc(4, 3, r.ztall, 3, r.theta, nullptr),
                   f01rec(Kor_ElementsSeparate, 4, 3, 3, r.ztall, 3, r.theta, fail))
RECTANGLE_SPECIMEN(f01qfc, , f01qfc(VariablePivot, 4, 3, r.tall, 3, r.zeta, r.perm, r.work, fail))
RECTANGLE_SPECIMEN(f01qjc, , f01qjc(3, 4, r.wide, 4, r.zeta, fail))
RECTANGLE_SPECIMEN(f01rjc, , f01rjc(3, 4, r.zwide, 4, r.theta, fail))
RECTANGLE_SPECIMEN(f01qkc, f01qjc(3, 4, r.wide, 4, r.zeta, nullptr),
                   f01qkc(Kor_ElementsSeparate, 3, 4, 3, r.wide, 4, r.zeta, fail))
RECTANGLE_SPECIMEN(f01rkc, f01rjc(3, 4, r.zwide, 4, r.theta, nullptr),
                   f01rkc(Kor_ElementsSeparate, 3, 4, 3, r.zwide, 4, r.theta, fail))
RECTANGLE_SPECIMEN(f01qac, , f01qac(4, 3, r.tall, 3, r.c, 2, r.zeta, fail))
RECTANGLE_SPECIMEN(f01qbc, , f01qbc(3, 4, r.wide, 4, r.c, 2, r.zeta, fail))
RECTANGLE_SPECIMEN(f01crc, , f01crc(4, 3, r.tall, fail))
RECTANGLE_SPECIMEN(f01lzc, , f01lzc(3, r.square, 3, r.square, 3, 1, r.b, 1, 1, r.c, 2, 2, 1, r.z, 3, 3, r.d, r.e, fail))
RECTANGLE_SPECIMEN(f01bqc, r.make_definite(), f01bqc(3, r.square, 3, r.d, &r.jmax, fail))
RECTANGLE_SPECIMEN(f01mcc, r.make_band(), f01mcc(4, r.tall, 7, r.row, r.wide, r.zeta, fail))
RECTANGLE_SPECIMEN(f04mcc, r.make_band(), f04mcc(Kor_LX, 4, 1, r.tall, 7, nullptr, r.row, r.b, 1, r.zeta, 1, fail))
RECTANGLE_SPECIMEN(f04jac, , f04jac(4, 3, r.tall, 3, r.b, 1e-10, &r.svd, &r.sigma, &r.rank, r.work, fail))
RECTANGLE_SPECIMEN(f04jdc, , f04jdc(3, 4, r.wide, 4, r.b, 1e-10, &r.svd, &r.sigma, &r.rank, r.work, fail))
RECTANGLE_SPECIMEN(f04jgc, , f04jgc(4, 3, r.tall, 3, r.b, 1e-10, &r.svd, &r.sigma, &r.rank, r.work, fail))
RECTANGLE_SPECIMEN(f04yac, , f04yac(0, 3, 0.5, 3, r.square, 3, 0, nullptr, nullptr, fail))
KOR_SPECIMEN_WITHOUT_RECORD(f04aqc)
{
    double l[] = {1.0, 0.5, 1.0}, d[] = {4.0, 2.0}, b[] = {1.0, 2.0};
    Integer row[] = {1, 2};
    call([&](KorError *) { f04aqc(2, l, d, row, b); });
    outputs(b, 2);
}
