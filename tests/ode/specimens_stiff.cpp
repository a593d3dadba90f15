#include <kor/d02.h>

#include "support/specimen.hpp"

namespace {

void decay(Integer, double t, const double y[], double f[], void *)
{
    f[0] = -1000.0 * (y[0] - t) + 1.0;
    f[1] = y[0] - y[1];
}
void decay_jacobian(Integer, double, const double[], double pw[], void *)
{
    pw[0] = -1000.0;
    pw[2] = 1.0;
    pw[3] = -1.0;
}
void every_half(Integer, double *xsol, const double[], void *) { *xsol += 0.5; }
double crossing(Integer, double, const double y[], void *) { return y[1] - 1.5; }

// A problem on the way, up to the first request or to the end.
struct Stiff {
    KorBdfState st{};
    double ysav[12] = {}, work[14] = {}, t = 0.0, y[2] = {1.0, 2.0}, ydot[2] = {}, res[2] = {}, pw[4] = {};
    Integer iwork[2] = {}, irevcm = 0, status = 9;

    Stiff()
    {
        d02nvc(2, 6, 5, &st, &status);
        d02nsc(2, "numerical", &st, &status);
        st.ysav = ysav;
        st.work = work;
        st.iwork = iwork;
    }
    void integrate()
    {
        const double rtol = 1e-6, atol = 1e-6;
        do {
            d02nmc(2, &t, 1.0, y, ydot, &rtol, &atol, 1, res, pw, &st, &irevcm, &status);
            if (irevcm == 1) decay(2, t, y, ydot, nullptr);
        } while (irevcm != 0);
    }
};

} // namespace

KOR_SPECIMEN(d02cjc)
{
    double x = 0.0, y[2] = {1.0, 2.0};
    call([&](KorError *fail) { d02cjc(2, decay, &x, y, 1.0, 1e-6, Kor_Mixed, every_half, crossing, nullptr, fail); });
    outputs(x, y);
}

KOR_SPECIMEN(d02ejc)
{
    double x = 0.0, y[2] = {1.0, 2.0};
    call([&](KorError *fail) {
        d02ejc(2, decay, decay_jacobian, &x, y, 5.0, 1e-6, Kor_Mixed, every_half, crossing, nullptr, fail);
    });
    outputs(x, y);
}

KOR_SPECIMEN_WITHOUT_RECORD(d02nvc)
{
    KorBdfState st{};
    Integer status = 9;
    call([&](KorError *) { d02nvc(2, 6, 5, &st, &status); });
    outputs(st.neq, st.nhist, st.maxord, status);
}

KOR_SPECIMEN_WITHOUT_RECORD(d02nsc)
{
    Stiff problem;
    call([&](KorError *) { d02nsc(2, "ANALYT", &problem.st, &problem.status); });
    outputs(problem.st.jacobian, problem.status);
}

KOR_SPECIMEN_WITHOUT_RECORD(d02nmc)
{
    Stiff problem;
    call([&](KorError *) { problem.integrate(); });
    outputs(problem.t, problem.y, problem.irevcm, problem.status);
}

KOR_SPECIMEN_WITHOUT_RECORD(d02xkc)
{
    Stiff problem;
    problem.integrate();
    double sol[2] = {99.0, 99.0};
    Integer status = 9;
    call([&](KorError *) {
        d02xkc(problem.st.t - 0.3 * problem.st.hlast, sol, 2, problem.ysav, 2, 6, &problem.st, &status);
    });
    outputs(sol, status);
}

KOR_SPECIMEN_WITHOUT_RECORD(d02zac)
{
    const double v[3] = {1.0, 2.0, 3.0}, w[3] = {0.5, 4.0, 3.0};
    Integer status = 9;
    double size = 99.0;
    call([&](KorError *) { size = d02zac(3, v, w, &status); });
    outputs(size, status);
}
