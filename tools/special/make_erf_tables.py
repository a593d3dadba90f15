#!/usr/bin/env python3
"""Writes src/special/erf_tables.hpp: the error function, its scaled complement, and quantiles of the normal law."""
import os
from fit import *

OUT = os.path.join(os.path.dirname(__file__), "../../src/special/erf_tables.hpp")


def slope(u):
    """erf(x) / x as a function of u = x^2."""
    return mp.erf(mp.sqrt(u)) / mp.sqrt(u) if u else 2 / mp.sqrt(mp.pi)


def scaled_erfc(x):
    return mp.erfc(x) * mp.exp(x * x)


def central_quantile_slope(u):
    """x / half as a function of u = half^2, P(0 < X < x) = half."""
    half = mp.sqrt(u)
    return mp.sqrt(2) * mp.erfinv(2 * half) / half if u else mp.sqrt(2 * mp.pi)


def tail_quantile(t):
    """The x with P(X > x) = exp(-t): Newton's method on the logarithm of the tail, which is concave."""
    root_two = mp.sqrt(2)
    x = mp.sqrt(2 * t) - mpf(1) / 2
    for _ in range(60):
        tail = mp.erfc(x / root_two) / 2
        step = (mp.log(tail) + t) * tail * mp.sqrt(2 * mp.pi) * mp.exp(x * x / 2)
        x += step
        if abs(step) < mpf(10) ** -40 * x:
            return x
    raise ValueError(f"no quantile at {t}")


mp.dps = 50
tight = mpf(2) ** -57
parts = [
    near_constant("kErfSlope", slope, 0, mpf("0.2501"), tight, "erf(x) / x in x^2, |x| <= 1/2"),
    pieces("kErf", "BinadePieces<0.5, 3, {count}, {terms}>", mp.erf, list(binade_centres(-1, 3, 3))[:29], tight,
           "erf on [1/2, 6.5), eight pieces a binade"),
    pieces("kScaledErfc", "BinadePieces<0.5, 3, {count}, {terms}>", scaled_erfc, binade_centres(-1, 5, 3), tight,
           "exp(x^2) erfc(x) on [1/2, 32), eight pieces a binade"),
    pieces("kScaledErfcNearZero", "UniformPieces<0.0, 16, {count}, {terms}>", scaled_erfc, grid(0, mpf(1) / 2, 16), tight,
           "the same on [0, 1/2), pieces of width 1/16"),
    pair_constant("kRootHalf", mp.sqrt(mpf(1) / 2), "1 / sqrt 2"),
    pieces("kNormalCentral", "UniformPieces<0.0, 64, {count}, {terms}>", central_quantile_slope, grid(0, mpf(1) / 16, 64), tight,
           "x / half in half^2, P(0 < X < x) = half, half < 1/4, pieces of width 1/64"),
    pieces("kNormalTail", "BinadePieces<1.375, 4, {count}, {terms}>", tail_quantile, list(binade_centres(0, 10, 4))[6:152], tight,
           "x in -ln P(X > x) on [1.375, 768), sixteen pieces a binade"),
]
header(OUT, "Tables of the error function and of normal quantiles.", "make_erf_tables.py", parts)
