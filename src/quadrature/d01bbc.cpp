// d01bbc: weights and abscissae of a Gaussian rule.
#include <kor/d01.h>

#include <algorithm>

#include "frame/report.hpp"
#include "quadrature/gauss_rules.hpp"

void d01bbc(Integer quadrule, double a, double b, Integer npts, double weight[], double abscis[], KorError *fail)
{
    using namespace kor::quadrature;
    const kor::Report report{"d01bbc", fail};
    if (!is_gauss_family(quadrule)) return report.error<NE_BAD_PARAM>("quadrule");
    if (npts < 1) return report.error<NE_INT_ARG_LT>("npts", "1", "npts", npts);

    const Integer order = stored_order(npts);
    double w[kMostGaussPoints], x[kMostGaussPoints];
    const GaussStatus status = gauss_rule(quadrule, a, b, order, w, x);
    if (status == GaussStatus::invalid_range) {
        const auto [family, constraint, quantity, value] = gauss_constraint(quadrule, a, b);
        return report.error<NE_QUAD_GAUSS_CONS>(family, constraint, quantity, value);
    }
    std::copy(w, w + order, weight);
    std::copy(x, x + order, abscis);
    std::fill(weight + order, weight + npts, 0.0);
    std::fill(abscis + order, abscis + npts, 0.0);
    if (order != npts) return report.error<NE_QUAD_GAUSS_NPTS_RULE>(order, npts);
    if (status == GaussStatus::weight_underflow) return report.error<NE_QUAD_GAUSS_LAG_HER_WTS>();
    report.success();
}
