// Gaussian rules of the stored orders, carried to a caller's range.
#pragma once

#include <kor.h>

namespace kor::quadrature {

inline constexpr Integer kMostGaussPoints = 64;

enum class GaussStatus {
    ready,
    invalid_range,    // the parameters fit no range of this family
    weight_underflow, // a weight is zero, and counts as none
};

// The largest stored order up to `npts`, at least 1.
Integer stored_order(Integer npts);

// Weights and abscissae of the rule of this stored order, abscissae in the order of the stored nodes. The weights are those
// for the integral of f itself over the range.
GaussStatus gauss_rule(Integer quadrule, double a, double b, Integer order, double *weight, double *abscis);

// What a caller did wrong, for the report.
struct GaussConstraint {
    const char *family, *constraint, *quantity;
    double value;
};
GaussConstraint gauss_constraint(Integer quadrule, double a, double b);

inline bool is_gauss_family(Integer quadrule)
{
    return quadrule == Kor_Legendre || quadrule == Kor_Rational || quadrule == Kor_Laguerre || quadrule == Kor_Hermite;
}

} // namespace kor::quadrature
