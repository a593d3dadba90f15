#!/usr/bin/env python3
"""Writes src/special/erf_tables.hpp: the error function and its scaled complement."""
import os
from fit import *

OUT = os.path.join(os.path.dirname(__file__), "../../src/special/erf_tables.hpp")


def slope(u):
    """erf(x) / x as a function of u = x^2."""
    return mp.erf(mp.sqrt(u)) / mp.sqrt(u) if u else 2 / mp.sqrt(mp.pi)


def scaled_erfc(x):
    return mp.erfc(x) * mp.exp(x * x)


mp.dps = 50
tight = mpf(2) ** -57
parts = [
    near_constant("kErfSlope", slope, 0, mpf("0.2501"), tight, "erf(x) / x in x^2, |x| <= 1/2"),
    pieces("kErf", "BinadePieces<0.5, 3, {count}, {terms}>", mp.erf, list(binade_centres(-1, 3, 3))[:29], tight,
           "erf on [1/2, 6.5), eight pieces a binade"),
    pieces("kScaledErfc", "BinadePieces<0.5, 3, {count}, {terms}>", scaled_erfc, binade_centres(-1, 5, 3), tight,
           "exp(x^2) erfc(x) on [1/2, 32), eight pieces a binade"),
    pair_constant("kRootHalf", mp.sqrt(mpf(1) / 2), "1 / sqrt 2"),
]
header(OUT, "Tables of the error function.", "make_erf_tables.py", parts)
