#!/usr/bin/env python3
"""Prints src/ode/interval_tables.hpp: the Lobatto rule of five points on an interval and the integrals that go with it, from
their definitions, in 50 digits."""
import mpmath as mp

mp.mp.dps = 50
nodes = [mp.mpf(0), mp.mpf(1) / 2 - mp.sqrt(21) / 14, mp.mpf(1) / 2, mp.mpf(1) / 2 + mp.sqrt(21) / 14, mp.mpf(1)]


def integral(j, a, b):
    """Of the polynomial that is 1 at node j and 0 at the others."""
    coefficients = [mp.mpf(1)]
    for k, c in enumerate(nodes):
        if k != j:
            coefficients = [(high - c * low) / (nodes[j] - c)
                            for high, low in zip(coefficients + [mp.mpf(0)], [mp.mpf(0)] + coefficients)]
    value = lambda x: mp.fsum(a * x**(len(coefficients) - i) / (len(coefficients) - i) for i, a in enumerate(coefficients))
    return value(b) - value(a)


def row(values):
    return "{" + ", ".join(mp.nstr(mp.chop(v, 1e-40), 17) for v in values) + "}"


print("""// The Lobatto rule of five points on an interval of unit length; printed by tools/boundary_weights.py.
#pragma once

namespace kor::ode {

inline constexpr int kNodes = 5;""")
print("inline constexpr double kNode[kNodes] = %s;" % row(nodes))
print("inline constexpr double kRule[kNodes] = %s;" % row(integral(j, 0, 1) for j in range(5)))
print("""
// Half the integral from 0 to the node less half that from the node to 1, of the polynomial through the slopes: added to the mean
// of the values at both ends it gives the value at the node. The rows are those of the three inner nodes.""")
print("inline constexpr double kFromMean[kNodes - 2][kNodes] = {%s};" % ", ".join(
    row((integral(j, 0, c) - integral(j, c, 1)) / 2 for j in range(5)) for c in nodes[1:4]))
print("\n} // namespace kor::ode")
