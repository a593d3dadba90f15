#include <kor/d02.h>

#include "support/specimen.hpp"

namespace {

void oscillator(Integer, double, const double y[], double f[], void *)
{
    f[0] = y[1];
    f[1] = -y[0];
}
double position(Integer, double, const double y[], const double[], Integer, void *) { return y[0]; }

// An integration of the oscillator, with an event at pi, that is freed with the specimen.
struct Oscillator {
    explicit Oscillator(bool set_up)
    {
        KorError quiet{};
        if (set_up) setup(&quiet);
    }
    ~Oscillator() { d02qyc(&opt); }
    void setup(KorError *fail)
    {
        const double tolerance = 1e-8;
        d02qwc(Kor_NewStart, 2, 0, &tolerance, &tolerance, 0, 0, 0.0, 0.0, 0, 1, 0, 1, &opt, fail);
    }
    void integrate(double tout, KorError *fail) { d02qfc(2, oscillator, &t, y, tout, position, nullptr, &opt, fail); }

    KorAdamsOptions opt{};
    double t = 0.0, y[2] = {0.0, 1.0};
};

} // namespace

KOR_SPECIMEN(d02qwc)
{
    Oscillator problem{false};
    call([&](KorError *fail) { problem.setup(fail); });
    KorError quiet{};
    problem.integrate(4.0, &quiet);
    outputs(problem.t, problem.y);
}

KOR_SPECIMEN(d02qfc)
{
    Oscillator problem{true};
    call([&](KorError *fail) { problem.integrate(4.0, fail); });
    outputs(problem.t, problem.y, problem.opt.root_found, problem.opt.root_index);
}

KOR_SPECIMEN(d02qzc)
{
    Oscillator problem{true};
    KorError quiet{};
    problem.integrate(1.0, &quiet);
    double y[2] = {99.0, 99.0}, yp[2] = {99.0, 99.0};
    call([&](KorError *fail) { d02qzc(2, 1.0, 2, y, yp, &problem.opt, fail); });
    outputs(y, yp);
}

KOR_SPECIMEN_WITHOUT_RECORD(d02qyc)
{
    Oscillator problem{true};
    call([&](KorError *) { d02qyc(&problem.opt); });
    outputs(problem.opt.stamp1, problem.opt.setup_done);
}
