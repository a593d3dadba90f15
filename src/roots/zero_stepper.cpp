// One step of the search for a zero: interpolation in a shrinking bracket, safeguarded by bisection.
//
// Bus and Dekker, ACM Trans. Math. Softw. 1 (1975) 330-345. After a bisection two linear steps may follow, then a
// quadratic one; the fourth step must bisect again, so that slow convergence cannot go on. Two values in a row that are
// larger than the first ones by 1/sqrt(precision) are the mark of a pole.
#include "roots/zero_stepper.hpp"

#include <algorithm>
#include <cmath>
#include <utility>

#include "frame/constants.hpp"

namespace kor::roots {

namespace {

// The caller's array by names; the order of the elements is part of the interface.
struct State {
    double *c;
    double &u() { return c[0]; }  // the opposite end of the bracket,
    double &fu() { return c[1]; } // and f there
    double &b() { return c[2]; }  // the best point so far
    double &fb() { return c[3]; }
    double &p() { return c[4]; } // the best point before
    double &fp() { return c[5]; }
    double &d() { return c[6]; } // the one before that
    double &fd() { return c[7]; }
    double &f1() { return c[8]; } // divided differences of the last quadratic step
    double &f2() { return c[9]; }
    double &step() { return c[10]; } // the last step
    double &m() { return c[11]; }    // half the bracket, signed
    double &root_precision() { return c[12]; }
    double &tiny() { return c[13]; }  // a numerator below this counts as zero
    double &fmax() { return c[14]; }  // the larger |f| of the two starting points, never raised
    double &pole() { return c[15]; }  // 0; 1 after one value beyond the watch; -1 after two in a row
    double &count() { return c[16]; } // interpolation steps since the last bisection
};

bool positive(double f) { return f > 0.0; }

// Weak on purpose: a zero of either sign, and a NaN, counts as a change.
bool same_side(double fu, double fb) { return (fu >= 0.0 && fb >= 0.0) || (fu < 0.0 && fb <= 0.0); }

double half_bracket(double u, double b)
{
    const double half = 0.5 * (u - b);
    return std::isfinite(half) ? half : 0.5 * u - 0.5 * b; // a bracket longer than the largest number
}

void watch_for_pole(State s)
{
    if (std::fabs(s.fb()) * s.root_precision() <= s.fmax())
        s.pole() = 0.0;
    else if (s.pole() == 1.0)
        s.pole() = -1.0;
    else if (s.pole() == 0.0)
        s.pole() = 1.0;
}

void start_bracket(State s)
{
    s.u() = s.p();
    s.fu() = s.fp();
    s.count() = 0.0;
}

// Makes b the end with the smaller |f|.
void keep_better_end(State s, double &x)
{
    if (std::fabs(s.fu()) < std::fabs(s.fb())) {
        if (s.p() != s.u()) {
            s.d() = s.p();
            s.fd() = s.fp();
        }
        s.p() = s.b();
        s.fp() = s.fb();
        s.b() = s.u();
        s.fb() = s.fu();
        s.u() = s.p();
        s.fu() = s.fp();
    }
    x = s.b();
}

// The step from b, at most m, at least delta. False when the points of a quadratic step have run together.
bool choose_step(State s, double delta)
{
    if (s.count() >= 2.5) {
        s.step() = s.m();
        return true;
    }
    if (!(s.m() > 0.0)) delta = -delta;
    double numerator = (s.b() - s.p()) * s.fb();
    double denominator;
    if (s.count() <= 1.5) {
        denominator = s.fp() - s.fb();
    } else {
        if (s.d() == s.b() || s.d() == s.p()) return false;
        s.f1() = (s.fd() - s.fb()) / (s.d() - s.b());
        s.f2() = (s.fd() - s.fp()) / (s.d() - s.p());
        numerator *= s.f2();
        denominator = s.f1() * s.fp() - s.f2() * s.fb();
    }
    if (numerator < 0.0) {
        numerator = -numerator;
        denominator = -denominator;
    }
    if (std::fabs(numerator) <= s.tiny() || numerator <= denominator * delta)
        s.step() = delta;
    else if (s.m() * denominator > numerator)
        s.step() = numerator / denominator;
    else
        s.step() = s.m(); // beyond the half bracket, or infinities have made a NaN
    return true;
}

// The bracket is in order: has it converged, and if not, where next?
ZeroStatus next_point(State s, double &x, double &y, double xtol, Integer ir, Integer &ind)
{
    const double relative = ir == 1 ? 0.0 : 1.0;
    const double absolute = ir == 2 ? 0.0 : 1.0;

    ind = 0;
    keep_better_end(s, x);
    const double scale = std::max(relative * std::fabs(s.b()), absolute);
    const double delta = 0.5 * xtol * scale;
    s.m() = half_bracket(s.u(), s.b());
    if (s.m() == 0.0) return ZeroStatus::no_progress;
    if (std::fabs(s.m()) <= delta) {
        if (s.pole() < 0.0) return ZeroStatus::pole; // y stays unset
        y = s.u();
        return ZeroStatus::found;
    }
    if (!(scale * 2.0 * kPrecision < std::fabs(s.m()))) return ZeroStatus::no_progress;
    if (!choose_step(s, delta)) return ZeroStatus::no_progress;

    s.d() = s.p();
    s.fd() = s.fp();
    s.p() = s.b();
    s.fp() = s.fb();
    s.b() += s.step();
    x = s.b();
    y = s.u();
    ind = 4;
    return ZeroStatus::evaluate;
}

ZeroStatus found_exactly(double x, double &y, Integer &ind)
{
    y = x;
    ind = 0;
    return ZeroStatus::found;
}

// The value at the first point: the points change places, so that f is wanted at the second.
void take_first_value(State s, double &x, double &y, double fx)
{
    s.fb() = fx;
    s.pole() = 0.0;
    s.fmax() = std::fabs(fx);
    x = std::exchange(y, s.b());
    s.fu() = s.fb();
    s.p() = x;
}

// Where the bracket is in order, the next two answer `evaluate`: on to the next point.
ZeroStatus take_second_value(State s, double x, double &y, double fx, Integer &ind)
{
    if (fx == 0.0) return found_exactly(x, y, ind);
    if (positive(fx) == positive(s.fb())) {
        ind = 0;
        return ZeroStatus::same_sign;
    }
    s.fp() = fx;
    s.root_precision() = std::sqrt(kPrecision);
    s.fmax() = std::max(std::fabs(fx), s.fmax());
    s.tiny() = kSmallest;
    s.pole() = 0.0;
    start_bracket(s);
    return ZeroStatus::evaluate;
}

ZeroStatus take_new_value(State s, double x, double &y, double fx, Integer &ind)
{
    if (fx == 0.0) return found_exactly(x, y, ind);
    s.fb() = fx;
    watch_for_pole(s);
    if (same_side(s.fu(), s.fb()))
        start_bracket(s);
    else
        s.count() = s.m() == s.step() ? 0.0 : s.count() + 1.0;
    return ZeroStatus::evaluate;
}

} // namespace

ZeroStatus zero_step(double &x, double &y, double fx, double xtol, Integer ir, double *c, Integer &ind)
{
    if (ind == 0 || ind < -1 || ind > 4) return ZeroStatus::bad_ind;
    if (!(xtol > 0.0)) {
        ind = 0;
        return ZeroStatus::bad_xtol;
    }
    if (ir < 0 || ir > 2) {
        ind = 0;
        return ZeroStatus::bad_ir;
    }

    State s{c};
    ZeroStatus status = ZeroStatus::evaluate;
    switch (ind) {
    case 1:
        s.b() = x;
        ind = 2;
        return ZeroStatus::evaluate;
    case 2:
        if (fx == 0.0) return found_exactly(x, y, ind);
        take_first_value(s, x, y, fx);
        ind = 3;
        return ZeroStatus::evaluate;
    case -1: {
        const double second_value = s.u();
        s.b() = x;
        if (fx == 0.0) return found_exactly(x, y, ind);
        take_first_value(s, x, y, fx);
        status = take_second_value(s, x, y, second_value, ind);
        break;
    }
    case 3:
        status = take_second_value(s, x, y, fx, ind);
        break;
    default:
        status = take_new_value(s, x, y, fx, ind);
    }
    // Called from one place, it is compiled into it: a value that has just arrived stays in its register.
    return status == ZeroStatus::evaluate ? next_point(s, x, y, xtol, ir, ind) : status;
}

} // namespace kor::roots
