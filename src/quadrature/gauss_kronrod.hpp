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
template <const auto &pair, class Function>
RuleValue apply_pair(const Function &f, double a, double b)
{
    constexpr std::size_t last = pair.nodes.size() - 1; // the centre
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

    // Two sums side by side, one of them over the Gauss nodes: a single one would wait for each of its additions.
    const auto add_modulus = [&](std::size_t i, double centre_value, double &to) {
        to += pair.kronrod[i] * (std::fabs(below[i] - centre_value) + std::fabs(above[i] - centre_value));
    };
    double kronrod_only = pair.kronrod[last] * middle, at_gauss = 0.0;
    double modulus = std::fabs(kronrod_only), modulus_at_gauss = 0.0;
    double resg = centre_is_gauss ? pair.weights[last / 2] * middle : 0.0;
    for (std::size_t j = 1; j < last; j += 2) {
        const double sum = below[j] + above[j];
        kronrod_only += pair.kronrod[j - 1] * (below[j - 1] + above[j - 1]);
        at_gauss += pair.kronrod[j] * sum;
        resg += pair.weights[j / 2] * sum;
        add_modulus(j - 1, 0.0, modulus);
        add_modulus(j, 0.0, modulus_at_gauss);
    }
    if constexpr (centre_is_gauss) {
        kronrod_only += pair.kronrod[last - 1] * (below[last - 1] + above[last - 1]);
        add_modulus(last - 1, 0.0, modulus);
    }
    const double resk = kronrod_only + at_gauss;
    const double mean = 0.5 * resk;
    double deviation = pair.kronrod[last] * std::fabs(middle - mean), deviation_at_gauss = 0.0;
    for (std::size_t j = 1; j < last; j += 2) {
        add_modulus(j - 1, mean, deviation);
        add_modulus(j, mean, deviation_at_gauss);
    }
    if constexpr (centre_is_gauss) add_modulus(last - 1, mean, deviation);

    const double width = std::fabs(h);
    const double resabs = (modulus + modulus_at_gauss) * width;
    const double resasc = (deviation + deviation_at_gauss) * width;
    return {resk * h, error_estimate((resk - resg) * h, resabs, resasc), resabs, resasc};
}

} // namespace kor::quadrature
