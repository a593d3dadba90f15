// Gaussian rules of the stored orders, carried to a caller's range.
//
// P. J. Davis and P. Rabinowitz, Methods of Numerical Integration, 2nd edition, Academic Press 1984, chapters 2.7 and 3.6.
#include "quadrature/gauss_rules.hpp"

#include <cmath>

#include "quadrature/gauss_rules_tables.hpp"

namespace kor::quadrature {

namespace {

// Where the rule of an order starts in a table that holds `points(order)` points of each.
template <class Points>
Integer offset_of(Integer order, Points points)
{
    Integer offset = 0;
    for (const int stored : kGaussOrders) {
        if (stored == order) break;
        offset += points(stored);
    }
    return offset;
}

constexpr Integer half_of(Integer order) { return (order + 1) / 2; }

// Point i of a rule of which the non-negative half is stored.
struct SymmetricPoint {
    double sign;
    Integer index;
};
SymmetricPoint symmetric_point(Integer order, Integer i, Integer offset)
{
    const Integer half = half_of(order);
    const Integer from_centre = order % 2 == 1 ? i - half + 1 : i - half;
    if (from_centre >= 0) return {1.0, offset + from_centre};
    return {-1.0, offset + (order % 2 == 1 ? -from_centre : -from_centre - 1)};
}

} // namespace

Integer stored_order(Integer npts)
{
    Integer best = 1;
    for (const int stored : kGaussOrders)
        if (stored <= npts) best = stored;
    return best;
}

GaussConstraint gauss_constraint(Integer quadrule, double a, double b)
{
    if (quadrule == Kor_Rational) return {"Rational", "a+b != 0", "a+b = ", a + b};
    if (quadrule == Kor_Laguerre) return {"Laguerre", "b != 0", "b = ", b};
    return {"Hermite", "b > 0", "b = ", b};
}

GaussStatus gauss_rule(Integer quadrule, double a, double b, Integer order, double *weight, double *abscis)
{
    if (quadrule == Kor_Rational && !(a + b != 0.0)) return GaussStatus::invalid_range;
    if (quadrule == Kor_Laguerre && !(b != 0.0)) return GaussStatus::invalid_range;
    if (quadrule == Kor_Hermite && !(b > 0.0)) return GaussStatus::invalid_range;

    const Integer half_offset = offset_of(order, half_of);
    const Integer full_offset = offset_of(order, [](Integer n) { return n; });
    bool underflow = false;
    for (Integer i = 0; i < order; ++i) {
        const auto [sign, index] = symmetric_point(order, i, half_offset);
        if (quadrule == Kor_Legendre) {
            const double h = 0.5 * (b - a);
            abscis[i] = 0.5 * (a + b) + h * sign * kLegendrePoints[index].node;
            weight[i] = h * kLegendrePoints[index].weight;
        } else if (quadrule == Kor_Rational) {
            // x = 2 (a + b)/(1 + t) - b: near t = -1 the sum needs the whole of the node.
            const double sum = (1.0 + sign * kLegendrePoints[index].node) + sign * kLegendreNodeRests[index];
            abscis[i] = 2.0 * (a + b) / sum - b;
            weight[i] = 2.0 * std::fabs(a + b) * kLegendrePoints[index].weight / (sum * sum);
        } else if (quadrule == Kor_Laguerre) {
            const GaussPoint &point = kLaguerrePoints[full_offset + i];
            abscis[i] = a + point.node / b;
            weight[i] = point.weight / std::fabs(b);
        } else {
            const double scale = std::sqrt(b);
            abscis[i] = a + sign * kHermitePoints[index].node / scale;
            weight[i] = kHermitePoints[index].weight / scale;
        }
        underflow |= weight[i] == 0.0 && quadrule != Kor_Legendre;
    }
    return underflow ? GaussStatus::weight_underflow : GaussStatus::ready;
}

} // namespace kor::quadrature
