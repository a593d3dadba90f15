// c05azf_f: the zero stepper with an integer status, for callers inside the library.
#include "roots/c05azf_f.hpp"

#include "frame/kernel_report.hpp"
#include "roots/zero_stepper.hpp"

namespace kor::roots {

namespace {

Integer status_of(ZeroStatus outcome)
{
    switch (outcome) {
    case ZeroStatus::evaluate:
    case ZeroStatus::found:
        return 0;
    case ZeroStatus::same_sign:
        return 1;
    case ZeroStatus::bad_ind:
        return 2;
    case ZeroStatus::bad_xtol:
    case ZeroStatus::bad_ir:
        return 3;
    case ZeroStatus::pole:
        return 4;
    case ZeroStatus::no_progress:
        return 5;
    }
    return 5;
}

} // namespace

void c05azf_f(double &x, double &y, double fx, double xtol, Integer ir, double *c, Integer &ind, Integer &ifail)
{
    ifail = p01abf_f(ifail, status_of(zero_step(x, y, fx, xtol, ir, c, ind)), "C05AZF", 0, nullptr);
}

} // namespace kor::roots
