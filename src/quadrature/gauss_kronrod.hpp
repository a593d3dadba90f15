// Gauss-Kronrod pairs: one evaluation of the rule for any integrand and any of the tables.
#pragma once

#include <array>
#include <cstddef>

#include <kor.h>

#include "quadrature/gauss_kronrod_tables.hpp"
#include "quadrature/rules.hpp"

namespace kor::quadrature {

// A pair of n Gauss and 2 n + 1 Kronrod points, by the non-negative halves of its tables.
template <std::size_t half, std::size_t gauss>
struct GaussKronrodPair {
    const std::array<double, half> &nodes;
    const std::array<double, half> &kronrod;
    const std::array<double, gauss> &weights; // Gauss weights of the nodes 1, 3, 5, ...
    static constexpr Integer points = 2 * half - 1;
};

inline constexpr GaussKronrodPair<8, 4> kPair15{kNodes15, kKronrodWeights15, kGaussWeights15};
inline constexpr GaussKronrodPair<11, 5> kPair21{kNodes21, kKronrodWeights21, kGaussWeights21};
inline constexpr GaussKronrodPair<31, 15> kPair61{kNodes61, kKronrodWeights61, kGaussWeights61};

// The integral of f over (a, b).
template <std::size_t half, std::size_t gauss, class Function>
RuleValue apply_pair(const GaussKronrodPair<half, gauss> &pair, const Function &f, double a, double b)
{
    constexpr std::size_t last = half - 1; // the centre
    constexpr bool centre_is_gauss = last % 2 == 1;
    const double centre = 0.5 * (a + b);
    const double h = 0.5 * (b - a);

    double below[last], above[last];
    const double middle = f(centre);
    for (std::size_t j = 0; j < last; ++j) {
        const double offset = h * pair.nodes[j];
        below[j] = f(centre - offset);
        above[j] = f(centre + offset);
    }

    double resk = pair.kronrod[last] * middle;
    double resg = centre_is_gauss ? pair.weights[gauss - 1] * middle : 0.0;
    double resabs = std::fabs(resk);
    for (std::size_t j = 0; j < last; ++j) {
        const double sum = below[j] + above[j];
        resk += pair.kronrod[j] * sum;
        resabs += pair.kronrod[j] * (std::fabs(below[j]) + std::fabs(above[j]));
        if (j % 2 == 1) resg += pair.weights[j / 2] * sum;
    }
    const double mean = 0.5 * resk;
    double resasc = pair.kronrod[last] * std::fabs(middle - mean);
    for (std::size_t j = 0; j < last; ++j)
        resasc += pair.kronrod[j] * (std::fabs(below[j] - mean) + std::fabs(above[j] - mean));

    const double width = std::fabs(h);
    resabs *= width;
    resasc *= width;
    return {resk * h, error_estimate((resk - resg) * h, resabs, resasc), resabs, resasc};
}

} // namespace kor::quadrature
