// The integral by a Gaussian rule.
#include "quadrature/gauss_sum.hpp"

#include "quadrature/gauss_rules.hpp"

namespace kor::quadrature {

double gauss_sum(const Report &report, Integer quadrule, Integrand f, double a, double b, Integer npts)
{
    if (!is_gauss_family(quadrule)) return report.error<NE_BAD_PARAM>("quadrule"), 0.0;
    if (npts < 1) return report.error<NE_INT_ARG_LT>("npts", "1", "npts", npts), 0.0;

    const Integer order = stored_order(npts);
    double weight[kMostGaussPoints], abscis[kMostGaussPoints];
    const GaussStatus status = gauss_rule(quadrule, a, b, order, weight, abscis);
    if (status == GaussStatus::invalid_range) {
        const auto [family, constraint, quantity, value] = gauss_constraint(quadrule, a, b);
        return report.error<NE_QUAD_GAUSS_CONS>(family, constraint, quantity, value), 0.0;
    }
    double sum = 0.0;
    for (Integer i = 0; i < order; ++i)
        if (weight[i] != 0.0) sum += weight[i] * f(abscis[i]);

    // The value stands; the caller is told that another rule than asked for made it.
    if (order != npts)
        report.error<NE_QUAD_GAUSS_NPTS_RULE>(order, npts);
    else if (status == GaussStatus::weight_underflow)
        report.error<NE_QUAD_GAUSS_LAG_HER_WTS>();
    else
        report.success();
    return sum;
}

} // namespace kor::quadrature
