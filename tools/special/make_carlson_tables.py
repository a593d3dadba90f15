#!/usr/bin/env python3
"""Writes src/special/carlson_tables.hpp: the degenerate integral RC, and the series about equal arguments.

The series are B. C. Carlson's (1979, 1995): in the elementary symmetric functions E_j of the relative distances from the
mean, the coefficient of the product of E_j^m_j is (-1)^(M+N) (1/2)_M / prod m_j! times 1/(2N+1) for RF and 3/(2N+3) for RJ,
with M = sum m_j and N = sum j m_j.
"""
import os
from fit import *

OUT = os.path.join(os.path.dirname(__file__), "../../src/special/carlson_tables.hpp")
TIGHT = mpf(2) ** -57


def rc_above(r):
    """RC(r, 1), r >= 1/2."""
    if r == 1:
        return mpf(1)
    return mp.acosh(mp.sqrt(r)) / mp.sqrt(r - 1) if r > 1 else mp.acos(mp.sqrt(r)) / mp.sqrt(1 - r)


def rc_below(c):
    """RC(c^2, 1), c <= sqrt(1/2)."""
    return mp.acos(c) / mp.sqrt(1 - c * c)


def coefficient(powers, numerator, denominator):
    """powers: {j: m_j}."""
    m, n = sum(powers.values()), sum(j * k for j, k in powers.items())
    value = mp.rf(mpf(1) / 2, m) * (-1) ** (m + n) * numerator / (denominator + 2 * n)
    for k in powers.values():
        value /= mp.factorial(k)
    return value


RF_ORDER, RJ_ORDER = 15, 11


def series(name, numerator, denominator, order, text, fourth=0, fifth=0):
    """A tuple of arrays: powers of E3, each with its powers of E2, times E4^fourth E5^fifth; less the constant term 1."""
    rows, left = [], order - 4 * fourth - 5 * fifth
    for j in range(left // 3 + 1):
        row = [coefficient({2: i, 3: j, 4: fourth, 5: fifth}, numerator, denominator) if i + j + fourth + fifth else mpf(0)
               for i in range((left - 3 * j) // 2 + 1)]
        rows.append("    std::array{" + ", ".join(number(c) for c in row) + "}")
    return f"// {text}\ninline constexpr std::tuple {name} = {{\n" + ",\n".join(rows) + "};\n"


header(OUT, "Tables of Carlson's elliptic integrals.", "make_carlson_tables.py", [
    pieces("kRcAbove", "BinadePieces<0.5, 2, {count}, {terms}>", rc_above, binade_centres(-1, 10, 2), TIGHT,
           "RC(r, 1) on [1/2, 1024), four pieces a binade"),
    pieces("kRcBelow", "UniformPieces<0.0, 16, {count}, {terms}>", rc_below, grid(0, mpf("0.75"), 16), TIGHT,
           "RC(c^2, 1) on [0, 3/4), pieces of width 1/16"),
    series("kRfSeries", 1, 1, RF_ORDER, "RF: an array of powers of E2 for each power of E3, to the 15th order"),
    series("kRjSeries", 3, 3, RJ_ORDER, "RJ likewise, to the 11th order: the terms without E4 and E5"),
    series("kRjSeries4", 3, 3, RJ_ORDER, "RJ: the factor of E4", 1, 0),
    series("kRjSeries5", 3, 3, RJ_ORDER, "RJ: the factor of E5", 0, 1),
    series("kRjSeries44", 3, 3, RJ_ORDER, "RJ: the factor of E4^2", 2, 0),
    series("kRjSeries45", 3, 3, RJ_ORDER, "RJ: the factor of E4 E5", 1, 1),
    series("kRjSeries55", 3, 3, RJ_ORDER, "RJ: the factor of E5^2", 0, 2),
], ["tuple"])
