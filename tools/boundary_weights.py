#!/usr/bin/env python3
"""Prints src/ode/interval_tables.hpp: Lobatto's rules of four and five points on an interval and the integrals that go with them,
from their definitions, in 50 digits."""
import mpmath as mp

mp.mp.dps = 50


def integral(nodes, j, a, b):
    """Of the polynomial that is 1 at node j and 0 at the others."""
    coefficients = [mp.mpf(1)]
    for k, c in enumerate(nodes):
        if k != j:
            coefficients = [(high - c * low) / (nodes[j] - c)
                            for high, low in zip(coefficients + [mp.mpf(0)], [mp.mpf(0)] + coefficients)]
    degree = len(coefficients)
    value = lambda x: mp.fsum(a * x**(degree - i) / (degree - i) for i, a in enumerate(coefficients))
    return value(b) - value(a)


def row(values):
    return "{" + ", ".join(mp.nstr(mp.chop(v, 1e-40), 17) for v in values) + "}"


def rule(name, offset):
    """offset: of the inner nodes from the middle."""
    half = mp.mpf(1) / 2
    nodes = [mp.mpf(0), half - offset] + ([half] if name == "kLobatto5" else []) + [half + offset, mp.mpf(1)]
    count = range(len(nodes))
    print("inline constexpr LobattoRule %s = {%d, %s, %s, {%s}};" % (
        name, len(nodes), row(nodes), row(integral(nodes, j, 0, 1) for j in count), ", ".join(
            row((integral(nodes, j, 0, c) - integral(nodes, j, c, 1)) / 2 for j in count) for c in nodes[1:-1])))


print("""// Lobatto's rules on an interval of unit length; printed by tools/boundary_weights.py.
#pragma once

namespace kor::ode {

inline constexpr int kMostNodes = 5, kMostInner = kMostNodes - 2;

struct LobattoRule {
    int nodes; // both ends are among them
    double node[kMostNodes];
    double weight[kMostNodes];
    // For each inner node: half the integral from 0 to it less half that from it to 1, of the polynomial through the slopes. Added
    // to the mean of the values at both ends it gives the value at the node.
    double from_mean[kMostInner][kMostNodes];
    constexpr int inner() const { return nodes - 2; }
};
""")
rule("kLobatto4", mp.sqrt(5) / 10)
rule("kLobatto5", mp.sqrt(21) / 14)
print("\n} // namespace kor::ode")
