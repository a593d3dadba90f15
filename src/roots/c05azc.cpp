// c05azc: a zero of a continuous function by reverse communication.
#include <kor/c05.h>

#include "frame/report.hpp"
#include "roots/zero_stepper.hpp"

void c05azc(double *x, double *y, double *fx, double xtol, Integer ir, double c[], Integer *ind, KorError *fail)
{
    using kor::roots::ZeroStatus;
    const kor::Report report{"c05azc", fail};

    switch (kor::roots::zero_step(*x, *y, *fx, xtol, ir, c, *ind)) {
    case ZeroStatus::evaluate:
        return; // work is requested: no report yet
    case ZeroStatus::found:
        return report.success();
    case ZeroStatus::same_sign:
        return report.error<NE_FUNC_END_VAL>("x", "y", "x");
    case ZeroStatus::bad_ind:
        return report.error<NE_ARG_INVALID>("ind", *ind, "ind", "-1, 1, 2, 3, 4");
    case ZeroStatus::bad_xtol:
        return report.error<NE_REAL_ARG_LE>("xtol", "0.0", "xtol", xtol);
    case ZeroStatus::bad_ir:
        return report.error<NE_ARG_INVALID>("ir", ir, "ir", "0, 1, 2");
    // The stepper does not know what its caller calls the interval: the entry goes out with its "%s" unfilled.
    case ZeroStatus::pole:
        return report.error_as_it_stands(NE_PROBABLE_POLE);
    case ZeroStatus::no_progress:
        return report.error<NE_XTOL_TOO_SMALL>(xtol);
    }
    report.error<NE_INTERNAL_ERROR>();
}
