#include <kor/g05.h>

#include "support/specimen.hpp"

namespace {

constexpr Integer kSeed = 17;
constexpr Integer kCount = 9;

} // namespace

KOR_SPECIMEN_WITHOUT_RECORD(g05cac)
{
    double u = 99.0;
    g05cbc(kSeed);
    call([&](KorError *) { u = g05cac(); });
    outputs(u);
}

KOR_SPECIMEN_WITHOUT_RECORD(g05cbc)
{
    double u = 99.0;
    call([&](KorError *) {
        g05cbc(kSeed);
        u = g05cac();
    });
    outputs(u);
}

// What the clock gives cannot be compared from run to run; that it gives a stream can.
KOR_SPECIMEN_WITHOUT_RECORD(g05ccc)
{
    bool is_number = false;
    call([&](KorError *) {
        g05ccc();
        const double u = g05cac();
        is_number = u > 0.0 && u < 1.0;
    });
    outputs(is_number);
}

KOR_SPECIMEN_WITHOUT_RECORD(g05cxc)
{
    double u = 99.0;
    call([&](KorError *) {
        g05cxc();
        u = g05cac();
    });
    outputs(u);
}

KOR_SPECIMEN_WITHOUT_RECORD(g05cfc)
{
    Integer istate[9] = {};
    double xstate[4] = {};
    g05cbc(kSeed);
    call([&](KorError *) { g05cfc(istate, xstate); });
    outputs(istate, 9);
    outputs(xstate, 4);
}

KOR_SPECIMEN(g05cgc)
{
    Integer istate[9];
    double xstate[4];
    g05cbc(kSeed);
    g05cac();
    g05cfc(istate, xstate);
    g05cbc(kSeed);
    double u = 99.0;
    call([&](KorError *fail) {
        g05cgc(istate, xstate, fail);
        u = g05cac();
    });
    outputs(u);
}

KOR_SPECIMEN_WITHOUT_RECORD(g05dac)
{
    double x = 99.0;
    g05cbc(kSeed);
    call([&](KorError *) { x = g05dac(-1.0, 2.0); });
    outputs(x);
}

KOR_SPECIMEN_WITHOUT_RECORD(g05dbc)
{
    double x = 99.0;
    g05cbc(kSeed);
    call([&](KorError *) { x = g05dbc(2.0); });
    outputs(x);
}

KOR_SPECIMEN_WITHOUT_RECORD(g05ddc)
{
    double x = 99.0;
    g05cbc(kSeed);
    call([&](KorError *) { x = g05ddc(1.0, 2.0); });
    outputs(x);
}

KOR_SPECIMEN_WITHOUT_RECORD(g05dfc)
{
    double x = 99.0;
    g05cbc(kSeed);
    call([&](KorError *) { x = g05dfc(1.0, 2.0); });
    outputs(x);
}

KOR_SPECIMEN(g05dgc)
{
    double x = 99.0;
    g05cbc(kSeed);
    call([&](KorError *fail) { x = g05dgc(2.5, 2.0, fail); });
    outputs(x);
}

KOR_SPECIMEN_WITHOUT_RECORD(g05drc)
{
    Integer k = -1, status = -1;
    g05cbc(kSeed);
    call([&](KorError *) { k = g05drc(12.5, &status); });
    outputs(k, status);
}

KOR_SPECIMEN_WITHOUT_RECORD(g05dyc)
{
    Integer k = -1;
    g05cbc(kSeed);
    call([&](KorError *) { k = g05dyc(1, 6); });
    outputs(k);
}

KOR_SPECIMEN(g05eac)
{
    const double mean[] = {1.0, 2.0}, c[] = {4.0, 1.0, 1.0, 3.0};
    double r[7] = {};
    call([&](KorError *fail) { g05eac(mean, 2, c, 2, 0.0, r, 7, fail); });
    outputs(r, 7);
}

KOR_SPECIMEN(g05ecc)
{
    double r[44] = {};
    call([&](KorError *fail) { g05ecc(1.4, r, 44, fail); });
    outputs(r, 44);
}

KOR_SPECIMEN(g05edc)
{
    double r[60] = {};
    call([&](KorError *fail) { g05edc(12, 0.3, r, 60, fail); });
    outputs(r, 60);
}

KOR_SPECIMEN(g05exc)
{
    const double p[] = {0.5, 0.0, 0.25, 0.25};
    double r[11] = {};
    call([&](KorError *fail) { g05exc(p, 4, -1, Kor_PDF, r, 11, fail); });
    outputs(r, 11);
}

KOR_SPECIMEN_WITHOUT_RECORD(g05eyc)
{
    double r[60];
    KorError quiet{};
    g05edc(12, 0.3, r, 60, &quiet);
    g05cbc(kSeed);
    Integer k = -1;
    call([&](KorError *) { k = g05eyc(r); });
    outputs(k);
}

KOR_SPECIMEN_WITHOUT_RECORD(g05ezc)
{
    const double mean[] = {1.0, 2.0}, c[] = {4.0, 1.0, 1.0, 3.0};
    double r[7], z[2] = {};
    KorError quiet{};
    g05eac(mean, 2, c, 2, 0.0, r, 7, &quiet);
    g05cbc(kSeed);
    call([&](KorError *) { g05ezc(z, r); });
    outputs(z, 2);
}

KOR_SPECIMEN(g05ehc)
{
    Integer index[] = {1, 2, 3, 4, 5, 6, 7, 8, 9};
    g05cbc(kSeed);
    call([&](KorError *fail) { g05ehc(index, kCount, fail); });
    outputs(index, kCount);
}

KOR_SPECIMEN(g05ejc)
{
    const Integer ia[] = {1, 2, 3, 4, 5, 6, 7, 8, 9};
    Integer iz[4] = {};
    g05cbc(kSeed);
    call([&](KorError *fail) { g05ejc(ia, kCount, iz, 4, fail); });
    outputs(iz, 4);
}

KOR_SPECIMEN_WITHOUT_RECORD(g05fac)
{
    double x[kCount] = {};
    g05cbc(kSeed);
    call([&](KorError *) { g05fac(-1.0, 2.0, kCount, x); });
    outputs(x, kCount);
}

KOR_SPECIMEN_WITHOUT_RECORD(g05fdc)
{
    double x[kCount] = {};
    g05cbc(kSeed);
    call([&](KorError *) { g05fdc(-1.0, 2.0, kCount, x); });
    outputs(x, kCount);
}

KOR_SPECIMEN(g05fec)
{
    double x[kCount] = {};
    g05cbc(kSeed);
    call([&](KorError *fail) { g05fec(1.5, 2.5, kCount, x, fail); });
    outputs(x, kCount);
}

KOR_SPECIMEN(g05ffc)
{
    double x[kCount] = {};
    g05cbc(kSeed);
    call([&](KorError *fail) { g05ffc(1.5, 2.5, kCount, x, fail); });
    outputs(x, kCount);
}

KOR_SPECIMEN(g05hac)
{
    const double phi[] = {0.4, 0.2}, theta[] = {0.5};
    double z[kCount] = {};
    g05cbc(kSeed);
    call([&](KorError *fail) { g05hac(2, 1, phi, theta, 1.5, kCount, z, fail); });
    outputs(z, kCount);
}

#define KOR_GARCH_SPECIMEN(routine)                                                                                    \
    KOR_SPECIMEN(routine)                                                                                              \
    {                                                                                                                  \
        const double theta[] = {0.1, 0.15, 0.7};                                                                       \
        double ht[kCount + 1] = {}, et[kCount + 1] = {};                                                               \
        g05cbc(kSeed);                                                                                                 \
        call([&](KorError *fail) { routine(kCount, 1, 1, theta, -0.1, Kor_Garch_Fcall_True, ht, et, fail); });         \
        outputs(ht, kCount + 1);                                                                                       \
        outputs(et, kCount + 1);                                                                                       \
    }
KOR_GARCH_SPECIMEN(g05hkc)
KOR_GARCH_SPECIMEN(g05hlc)
KOR_GARCH_SPECIMEN(g05hmc)
