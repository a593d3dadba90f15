#include <kor/d02.h>

#include "support/specimen.hpp"

namespace {

void oscillator(Integer, double, const double y[], double yp[], void *)
{
    yp[0] = y[1];
    yp[1] = -y[0];
}

constexpr double kStart[2] = {0.0, 1.0};
constexpr double kThresholds[2] = {1e-8, 1e-8};

// An integration of the oscillator that is freed with the specimen.
struct Oscillator {
    explicit Oscillator(Integer task, bool set_up = true, Integer errass = Kor_ErrorAssess_off)
    {
        KorError quiet{};
        if (set_up) setup(task, errass, &quiet);
    }
    ~Oscillator() { d02ppc(&state); }
    void setup(Integer task, Integer errass, KorError *fail)
    {
        d02pvc(2, 0.0, kStart, 10.0, 1e-6, kThresholds, Kor_RK_4_5, task, errass, 0.0, &state, fail);
    }
    void step(KorError *fail) { d02pdc(2, oscillator, &t, y, yp, &state, nullptr, fail); }
    void range(double twant, KorError *fail)
    {
        d02pcc(2, oscillator, twant, &t, y, yp, largest, &state, nullptr, fail);
    }

    KorRKState state{};
    double t = 99.0, y[2] = {99.0, 99.0}, yp[2] = {99.0, 99.0}, largest[2] = {99.0, 99.0};
};

} // namespace

KOR_SPECIMEN(d02pvc)
{
    Oscillator problem{Kor_RK_range, false};
    call([&](KorError *fail) { problem.setup(Kor_RK_range, Kor_ErrorAssess_on, fail); });
    KorError quiet{};
    problem.range(1.0, &quiet);
    outputs(problem.t, problem.y, problem.yp);
}

KOR_SPECIMEN(d02pcc)
{
    Oscillator problem{Kor_RK_range};
    call([&](KorError *fail) { problem.range(1.5, fail); });
    outputs(problem.t, problem.y, problem.yp, problem.largest);
}

KOR_SPECIMEN(d02pdc)
{
    Oscillator problem{Kor_RK_onestep};
    call([&](KorError *fail) { problem.step(fail); });
    outputs(problem.t, problem.y, problem.yp);
}

KOR_SPECIMEN(d02pxc)
{
    Oscillator problem{Kor_RK_onestep};
    KorError quiet{};
    problem.step(&quiet);
    double y[2] = {99.0, 99.0}, yp[2] = {99.0, 99.0};
    call([&](KorError *fail) {
        d02pxc(2, 0.5 * problem.t, Kor_SolDer, 2, y, yp, oscillator, &problem.state, nullptr, fail);
    });
    outputs(y, yp);
}

KOR_SPECIMEN(d02pwc)
{
    Oscillator problem{Kor_RK_onestep};
    KorError quiet{};
    problem.step(&quiet);
    call([&](KorError *fail) { d02pwc(1.0, &problem.state, fail); });
    for (int i = 0; i < 100 && problem.t < 1.0; ++i) problem.step(&quiet);
    outputs(problem.t, problem.y, problem.yp);
}

KOR_SPECIMEN_WITHOUT_RECORD(d02pyc)
{
    Oscillator problem{Kor_RK_range};
    KorError quiet{};
    problem.range(3.0, &quiet);
    Integer evaluations = 99, cost = 99, steps = 99;
    double waste = 99.0, next = 99.0;
    call([&](KorError *) { d02pyc(&evaluations, &cost, &waste, &steps, &next, &problem.state); });
    outputs(evaluations, cost, steps, waste, next);
}

KOR_SPECIMEN(d02pzc)
{
    Oscillator problem{Kor_RK_range, true, Kor_ErrorAssess_on};
    KorError quiet{};
    problem.range(3.0, &quiet);
    double rms[2] = {99.0, 99.0}, largest = 99.0, where = 99.0;
    call([&](KorError *fail) { d02pzc(2, rms, &largest, &where, &problem.state, fail); });
    outputs(rms, largest, where);
}

KOR_SPECIMEN_WITHOUT_RECORD(d02ppc)
{
    Oscillator problem{Kor_RK_range};
    call([&](KorError *) { d02ppc(&problem.state); });
    outputs(problem.state.calls);
}
