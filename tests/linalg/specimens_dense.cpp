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
