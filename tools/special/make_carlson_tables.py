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


def rf_series():
    # rows: powers of E3; columns: powers of E2, as far as 2 i + 3 j <= 11, less the constant term 1
    rows = []
    for j in range(4):
        row = [coefficient({2: i, 3: j}, 1, 1) if i + j else mpf(0) for i in range((11 - 3 * j) // 2 + 1)]
        rows.append(array(f"kRfSeries{j}", row, f"RF: E3^{j} times powers of E2"))
    return "\n".join(rows)


header(OUT, "Tables of Carlson's elliptic integrals.", "make_carlson_tables.py", [
    pieces("kRcAbove", "BinadePieces<0.5, 2, {count}, {terms}>", rc_above, binade_centres(-1, 10, 2), TIGHT,
           "RC(r, 1) on [1/2, 1024), four pieces a binade"),
    pieces("kRcBelow", "UniformPieces<0.0, 16, {count}, {terms}>", rc_below, grid(0, mpf("0.75"), 16), TIGHT,
           "RC(c^2, 1) on [0, 3/4), pieces of width 1/16"),
    rf_series(),
])
