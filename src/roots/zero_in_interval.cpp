// The driver behind c05adc and c05sdc.
#include "roots/zero_in_interval.hpp"

#include <cmath>

#include "roots/zero_stepper.hpp"

namespace kor::roots {

namespace {

constexpr Integer kAbsoluteMeasure = 1;
constexpr int kMaxSteps = 10000; // far beyond what bisections of a bracket of doubles can need

struct Outcome {
    ZeroStatus status;
    double x;
};

// The order of the tests is part of the contract: a small value at an end is accepted before any sign is looked at, and
// a NaN is never taken for a zero.
Outcome search(double a, double b, FunctionRef<double(double)> f, double xtol, double ftol)
{
    const auto accepted = [ftol](double fx) { return std::fabs(fx) < ftol || fx == 0.0; };

    const double fa = f(a);
    if (accepted(fa)) return {ZeroStatus::found, a};
    double x = b;
    double fx = f(x);
    if (accepted(fx)) return {ZeroStatus::found, b};

    double y = a;
    double c[kZeroStateSize];
    c[0] = fa;
    Integer ind = -1;
    for (int i = 0; i < kMaxSteps; ++i) {
        const ZeroStatus status = zero_step(x, y, fx, xtol, kAbsoluteMeasure, c, ind);
        if (status != ZeroStatus::evaluate) return {status, x};
        fx = f(x);
        if (accepted(fx)) return {ZeroStatus::found, x};
    }
    return {ZeroStatus::no_progress, x};
}

} // namespace

void zero_in_interval(const Report &report, double a, double b, double *x, FunctionRef<double(double)> f, double xtol,
                      double ftol)
{
    if (!(xtol > 0.0)) return report.error<NE_REAL_ARG_LE>("xtol", "0.0", "xtol", xtol);
    if (a == b) return report.error<NE_2_REAL_ARG_EQ>("a", a, "b", b, "a", "b");

    const Outcome outcome = search(a, b, f, xtol, ftol);
    *x = outcome.status == ZeroStatus::same_sign ? b : outcome.x;

    switch (outcome.status) {
    case ZeroStatus::found:
        return report.success();
    case ZeroStatus::same_sign:
        return report.error<NE_FUNC_END_VAL>("a", "b", "a");
    case ZeroStatus::pole:
        return report.error<NE_PROBABLE_POLE>("[a,b]");
    case ZeroStatus::no_progress:
        return report.error<NE_XTOL_TOO_SMALL>(xtol);
    case ZeroStatus::evaluate:
    case ZeroStatus::bad_ind:
    case ZeroStatus::bad_xtol:
    case ZeroStatus::bad_ir:
        break;
    }
    report.error<NE_INTERNAL_ERROR>();
}

} // namespace kor::roots
