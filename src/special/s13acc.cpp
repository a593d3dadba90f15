// s13acc: the cosine integral.
#include <kor/s13.h>

#include <cmath>

#include "frame/report.hpp"
#include "special/elementary.hpp"
#include "special/sine_cosine_integral.hpp"

namespace {

constexpr double kLogarithmBelow = 0.5;

double cosine_integral(double x)
{
    using namespace kor::special;
    if (x < kLogarithmBelow) {
        const double square = x * x;
        return (extended_log(x) + (tables::kEuler + square * polynomial(tables::kCiSeries, square))).rounded();
    }
    if (x < kAuxiliaryFrom) {
        // The distance from the zero next to x, times a factor without zeros. The k-th zero serves from 3 k - 1 on.
        const int quarters = static_cast<int>(4.0 * x);
        const DoubleDouble zero = tables::kCiZeros[(quarters + 4) / 12];
        return tables::kCiFactor.times(two_sum(x, -zero.hi) + -zero.lo, {x}).rounded();
    }
    if (std::isinf(x)) return 0.0;
    if (x > kAuxiliaryUpTo) { // two terms of the asymptotic series, rounded once
        const long double argument = x;
        return static_cast<double>((std::sin(argument) - std::cos(argument) / argument) / argument);
    }
    const auto [sine, cosine] = extended_sine_cosine_of({x});
    const auto [f, g] = scaled_auxiliary(x);
    return ((f * sine - g.hi * cosine.hi / x) / x).rounded();
}

} // namespace

double s13acc(double x, KorError *fail)
{
    const kor::Report report{"s13acc", fail};
    if (std::isnan(x)) return x;

    if (x <= 0.0) {
        report.error<NE_REAL_ARG_LE>("x", "0.0", "x", x);
        return 0.0;
    }
    const double value = cosine_integral(x);
    report.success();
    return value;
}
