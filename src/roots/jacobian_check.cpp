// Does a Jacobian fit its function? Its product with a direction is compared with a difference of the function along it.
//
// Each equation is compared on its own, in the scale of its own terms: a scalar product of all of them would let a large
// equation hide the errors of a small one. The direction moves each variable in proportion to itself.
#include "roots/jacobian_check.hpp"

#include <algorithm>
#include <cmath>

#include "frame/constants.hpp"
#include "frame/workspace.hpp"

namespace kor::roots {

namespace {

constexpr double kGoldenSection = 0.618033988749895;
constexpr double kRoundingShare = 1e-3; // of |f| in the scale of a row: lets the rounding error of a difference pass

// A fixed direction without small elements: its magnitudes lie in [1/2, 1) and spread evenly.
void first_direction(Integer n, double *p)
{
    for (Integer j = 0; j < n; ++j) {
        const double turn = (j + 1.0) * kGoldenSection;
        p[j] = 0.5 + 0.5 * (turn - std::floor(turn));
    }
}

// A direction at right angles to it.
void second_direction(Integer n, double *p)
{
    double along = 0.0, square = 0.0;
    const auto alternating = [](Integer j, double magnitude) { return (j % 2 == 0 ? 1.5 : -1.5) - magnitude; };
    for (Integer j = 0; j < n; ++j) {
        along += alternating(j, p[j]) * p[j];
        square += p[j] * p[j];
    }
    for (Integer j = 0; j < n; ++j) p[j] = alternating(j, p[j]) - along / square * p[j];
}

// Whether row i's product with the steps agrees with the difference of f over them.
bool row_agrees(Integer n, const double *row, const double *steps, double h, double f, double shifted_f)
{
    double product = 0.0, scale = kRoundingShare * std::fabs(f);
    double terms = 0.0;
    for (Integer j = 0; j < n; ++j) {
        const double term = row[j] * (steps[j] / h);
        product += term;
        terms += std::fabs(term);
    }
    scale = std::max(scale, terms);
    if (scale == 0.0) scale = 1.0;
    const double difference = (shifted_f - f) / h;
    const double gap = (difference - product) / scale;
    const double relative = product / scale;
    return gap * gap < h * (1.0 + relative * relative);
}

} // namespace

void check_jacobian(const Report &report, Integer n, SystemWithJacobian f, const double *x, double *fvec, double *fjac,
                    Integer tdfjac)
{
    if (n <= 0) return report.error<NE_INT_ARG_LE>("n", "0", "n", n);
    if (tdfjac < n) return report.error<NE_2_INT_ARG_LT>("tdfjac", tdfjac, "n", n, "tdfjac", "n");
    Workspace<double> work{Count{n} * Count{4}};
    if (!work) return report.error<NE_ALLOC_FAIL>();
    double *const direction = work.data(), *const steps = direction + n;
    double *const shifted_x = steps + n, *const shifted_f = shifted_x + n;

    const RowMajor<double> jacobian{fjac, tdfjac};
    for (const Integer wanted : {kWantsJacobian, kWantsFunction}) {
        Integer flag = wanted;
        f(x, fvec, jacobian, &flag);
        if (flag < 0) return report.user_stop(flag);
    }

    const double h = std::sqrt(kPrecision);
    bool agrees = true;
    first_direction(n, direction);
    for (int which = 0; which < std::min<Integer>(n, 2) && agrees; ++which) {
        if (which == 1) second_direction(n, direction);
        for (Integer j = 0; j < n; ++j) {
            shifted_x[j] = x[j] + h * direction[j] * (x[j] == 0.0 ? 1.0 : std::fabs(x[j]));
            steps[j] = shifted_x[j] - x[j]; // what is left of the step after rounding
        }
        Integer flag = kWantsFunction;
        f(shifted_x, shifted_f, jacobian, &flag);
        if (flag < 0) return report.user_stop(flag);
        for (Integer i = 0; i < n && agrees; ++i)
            agrees = row_agrees(n, jacobian.row(i), steps, h, fvec[i], shifted_f[i]);
    }
    if (!agrees) return report.error<NE_DERIV_ERRORS>();
    report.success();
}

} // namespace kor::roots
