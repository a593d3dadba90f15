#include <kor/e01.h>
#include <kor/e02.h>
#include <kor/x04.h>

#include "support/specimen.hpp"

namespace {

const double kX[6] = {0.0, 1.0, 2.0, 3.5, 5.0, 6.0};
const double kY[6] = {1.0, 2.5, 2.0, 4.0, 3.0, 3.5};
const double kOnes[6] = {1.0, 1.0, 1.0, 1.0, 1.0, 1.0};

double kLamda[8] = {0.0, 0.0, 0.0, 0.0, 2.0, 2.0, 2.0, 2.0};
double kCubic[8] = {1.0, -1.0, 2.0, 0.5, 0.0, 0.0, 0.0, 0.0};
double kBicubic[16] = {1, 2, 3, 4, 2, 3, 4, 5, -1, 0, 2, 1, 0, 0, 3, 1};
const KorSpline kSpline{8, kLamda, kCubic};
const KorSpline2D kSurface{8, 8, kLamda, kLamda, kBicubic};

const double kDerivatives[6] = {0.5, 0.0, 0.0, 0.0, 0.0, 0.25};
const double kPoints[3] = {0.5, 1.25, 1.75};

void release(KorSpline &spline)
{
    x04bdc(reinterpret_cast<void **>(&spline.lamda));
    x04bdc(reinterpret_cast<void **>(&spline.c));
}

void release(KorSplineWarm &state)
{
    x04bdc(reinterpret_cast<void **>(&state.wrk));
    x04bdc(reinterpret_cast<void **>(&state.iwrk));
}

void release(KorSpline2D &spline)
{
    x04bdc(reinterpret_cast<void **>(&spline.lamda));
    x04bdc(reinterpret_cast<void **>(&spline.mu));
    x04bdc(reinterpret_cast<void **>(&spline.c));
}

} // namespace

KOR_SPECIMEN(e01bac)
{
    KorSpline spline{};
    call([&](KorError *fail) { e01bac(6, kX, kY, &spline, fail); });
    outputs(spline.n);
    if (spline.c != nullptr) outputs(spline.c, 6);
    release(spline);
}

KOR_SPECIMEN(e01bec)
{
    double d[6] = {99.0};
    call([&](KorError *fail) { e01bec(6, kX, kY, d, fail); });
    outputs(d);
}

KOR_SPECIMEN(e01bfc)
{
    double pf[3] = {99.0};
    call([&](KorError *fail) { e01bfc(6, kX, kY, kDerivatives, 3, kPoints, pf, fail); });
    outputs(pf);
}

KOR_SPECIMEN(e01bgc)
{
    double pf[3] = {99.0}, pd[3] = {99.0};
    call([&](KorError *fail) { e01bgc(6, kX, kY, kDerivatives, 3, kPoints, pf, pd, fail); });
    outputs(pf, pd);
}

KOR_SPECIMEN(e01bhc)
{
    double integral = 99.0;
    call([&](KorError *fail) { e01bhc(6, kX, kY, kDerivatives, 0.5, 4.0, &integral, fail); });
    outputs(integral);
}

KOR_SPECIMEN(e01dac)
{
    double f[30];
    for (int i = 0; i < 30; ++i) f[i] = (7 * i) % 11;
    KorSpline2D spline{};
    call([&](KorError *fail) { e01dac(6, 5, kX, kX, f, &spline, fail); });
    outputs(spline.nx, spline.ny);
    if (spline.c != nullptr) outputs(spline.c, 30);
    release(spline);
}

KOR_SPECIMEN(e02adc)
{
    double a[9] = {99.0}, s[3] = {99.0};
    call([&](KorError *fail) { e02adc(6, 3, 3, kX, kY, kOnes, a, s, fail); });
    outputs(a, s);
}

KOR_SPECIMEN(e02aec)
{
    double p = 99.0;
    call([&](KorError *fail) { e02aec(6, kY, 0.75, &p, fail); });
    outputs(p);
}

KOR_SPECIMEN(e02afc)
{
    double a[6] = {99.0};
    call([&](KorError *fail) { e02afc(6, kY, a, fail); });
    outputs(a);
}

KOR_SPECIMEN(e02bac)
{
    double knots[9] = {99.0, 99.0, 99.0, 99.0, 2.5, 99.0, 99.0, 99.0, 99.0}, ss = 99.0;
    KorSpline spline{9, knots, nullptr};
    call([&](KorError *fail) { e02bac(6, kX, kY, kOnes, &ss, &spline, fail); });
    outputs(ss, knots);
    if (spline.c != nullptr) outputs(spline.c, 9);
    x04bdc(reinterpret_cast<void **>(&spline.c));
}

KOR_SPECIMEN(e02bbc)
{
    double s = 99.0;
    call([&](KorError *fail) { e02bbc(0.75, &s, &kSpline, fail); });
    outputs(s);
}

KOR_SPECIMEN(e02bcc)
{
    double s[4] = {99.0};
    call([&](KorError *fail) { e02bcc(Kor_LeftDerivs, 0.75, s, &kSpline, fail); });
    outputs(s);
}

KOR_SPECIMEN(e02bdc)
{
    double integral = 99.0;
    call([&](KorError *fail) { e02bdc(&integral, &kSpline, fail); });
    outputs(integral);
}

KOR_SPECIMEN(e02dbc)
{
    const Integer point[4] = {2, 3, 0, 1};
    double ff[3] = {99.0};
    call([&](KorError *fail) { e02dbc(3, kPoints, kPoints, ff, point, &kSurface, fail); });
    outputs(ff);
}

KOR_SPECIMEN(e02dec)
{
    double ff[3] = {99.0};
    call([&](KorError *fail) { e02dec(3, kPoints, kPoints, ff, &kSurface, fail); });
    outputs(ff);
}

KOR_SPECIMEN(e02dfc)
{
    double ff[9] = {99.0};
    call([&](KorError *fail) { e02dfc(3, 3, kPoints, kPoints, ff, &kSurface, fail); });
    outputs(ff);
}

KOR_SPECIMEN(e02zac)
{
    Integer point[4] = {-1, -1, -1, -1};
    call([&](KorError *fail) { e02zac(8, 8, kLamda, kLamda, 3, kPoints, kPoints, point, 4, fail); });
    outputs(point);
}

KOR_SPECIMEN(e02bec)
{
    KorSpline spline{};
    KorSplineWarm state{};
    double fp = 99.0;
    call([&](KorError *fail) { e02bec(Kor_Cold, 6, kX, kY, kOnes, 0.5, 10, &fp, &state, &spline, fail); });
    outputs(fp, spline.n);
    if (spline.c != nullptr) outputs(spline.c, spline.n);
    release(spline);
    release(state);
}

namespace {

const double kPlaneX[8] = {0.0, 1.0, 0.0, 1.0, 0.5, 0.25, 0.75, 0.4};
const double kPlaneY[8] = {0.0, 0.0, 1.0, 1.0, 0.45, 0.75, 0.3, 0.1};
const double kPlaneF[8] = {1.0, 2.0, 0.5, 3.0, 1.5, 2.5, 0.0, 1.0};

} // namespace

KOR_SPECIMEN(e01sac)
{
    KorScatterRecord comm{};
    KorScatterOptions options{2.0, 3.0, 1, 1, 0};
    call([&](KorError *fail) { e01sac(Kor_Shep, 8, kPlaneX, kPlaneY, kPlaneF, &comm, &options, fail); });
    outputs(options.rnw, options.rnq, options.nw, options.nq, options.minnq);
    if (comm.has_memory) outputs(comm.quad, 40);
    e01szc(&comm);
}

KOR_SPECIMEN(e01sbc)
{
    KorScatterRecord comm{};
    KorError quiet{};
    e01sac(Kor_RC, 8, kPlaneX, kPlaneY, kPlaneF, &comm, nullptr, &quiet);
    double pf[3] = {99.0};
    const double px[3] = {0.3, 0.6, 0.9}, py[3] = {0.3, 0.5, 0.2};
    call([&](KorError *fail) { e01sbc(&comm, 3, px, py, pf, fail); });
    outputs(pf);
    e01szc(&comm);
}

KOR_SPECIMEN_WITHOUT_RECORD(e01szc)
{
    KorScatterRecord comm{};
    KorError quiet{};
    e01sac(Kor_RC, 8, kPlaneX, kPlaneY, kPlaneF, &comm, nullptr, &quiet);
    call([&](KorError *) { e01szc(&comm); });
    outputs(comm.has_memory);
    e01szc(&comm);
}

KOR_SPECIMEN(e02dcc)
{
    double f[36];
    for (int i = 0; i < 36; ++i) f[i] = (7 * i) % 11;
    KorSpline2D spline{};
    KorSplineWarm state{};
    double fp = 99.0;
    call([&](KorError *fail) { e02dcc(Kor_Cold, 6, kX, 6, kX, f, 20.0, 10, 10, &fp, &state, &spline, fail); });
    outputs(fp, spline.nx, spline.ny);
    if (spline.c != nullptr) outputs(spline.c, (spline.nx - 4) * (spline.ny - 4));
    release(spline);
    release(state);
}

KOR_SPECIMEN(e02ddc)
{
    // Two clouds with nothing between them: some coefficients stay free.
    constexpr Integer m = 60;
    double x[m], y[m], f[m], w[m];
    for (int r = 0; r < m; ++r) {
        x[r] = (r % 2 == 0 ? 0.0 : 8.0) + (r * 37 % 61) / 61.0;
        y[r] = (r * 23 % 59) / 59.0;
        f[r] = x[r] * y[r] + (r * 7 % 11);
        w[r] = 1.0;
    }
    KorSpline2D spline{};
    KorSplineWarm state{};
    double fp = 99.0;
    Integer rank = -1;
    call([&](KorError *fail) { e02ddc(Kor_Cold, m, x, y, f, w, 400.0, 14, 14, &fp, &rank, &state, &spline, fail); });
    outputs(fp, rank, spline.nx, spline.ny);
    if (spline.c != nullptr) outputs(spline.c, (spline.nx - 4) * (spline.ny - 4));
    release(spline);
    release(state);
}
