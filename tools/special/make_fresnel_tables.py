#!/usr/bin/env python3
"""Writes src/special/fresnel_tables.hpp: the Fresnel integrals."""
import os
from fit import *

OUT = os.path.join(os.path.dirname(__file__), "../../src/special/fresnel_tables.hpp")
TIGHT = mpf(2) ** -57


def auxiliary(x):
    """f and g of S = 1/2 - f cos(pi x^2/2) - g sin(pi x^2/2), C = 1/2 + f sin(pi x^2/2) - g cos(pi x^2/2)."""
    with mp.workdps(100):
        s, c = mpf(1) / 2 - mp.fresnels(x), mpf(1) / 2 - mp.fresnelc(x)
        phase = mp.pi * x * x / 2
        return s * mp.cos(phase) - c * mp.sin(phase), c * mp.cos(phase) + s * mp.sin(phase)


def f_tail(u):
    """pi x f(x) as a function of u = 1/x^4."""
    if u == 0:
        return mpf(1)
    x = u ** (-mpf(1) / 4)
    return mp.pi * x * auxiliary(x)[0]


def g_tail(u):
    """pi^2 x^3 g(x) as a function of u = 1/x^4."""
    if u == 0:
        return mpf(1)
    x = u ** (-mpf(1) / 4)
    return mp.pi ** 2 * x ** 3 * auxiliary(x)[1]


def sine_start(u):
    """S(x) / x^3 as a function of u = x^4."""
    x = u ** (mpf(1) / 4)
    return mp.fresnels(x) / x ** 3 if u else mp.pi / 6


def cosine_start(u):
    """(C(x) / x - 1) / x^4 as a function of u = x^4."""
    x = u ** (mpf(1) / 4)
    return (mp.fresnelc(x) / x - 1) / u if u else -mp.pi ** 2 / 40


header(OUT, "Tables of the Fresnel integrals.", "make_fresnel_tables.py", [
    near_constant("kFresnelSineStart", sine_start, 0, mpf("0.0626"), TIGHT, "S(x) / x^3 in x^4, x <= 1/2"),
    array("kFresnelCosineStart", fit(cosine_start, 0, mpf("0.0626"), mpf(2) ** -52), "(C(x) / x - 1) / x^4 in x^4, x <= 1/2"),
    pieces("kFresnelSine", "UniformPieces<0.5, 16, {count}, {terms}>", mp.fresnels, grid(mpf("0.5"), 4, 16), TIGHT,
           "S on [1/2, 4), pieces of width 1/16"),
    pieces("kFresnelCosine", "UniformPieces<0.5, 16, {count}, {terms}>", mp.fresnelc, grid(mpf("0.5"), 4, 16), TIGHT,
           "C on [1/2, 4), pieces of width 1/16"),
    near_constant("kFresnelF", f_tail, 0, mpf(1) / 256, TIGHT, "pi x f(x) in 1/x^4, x >= 4"),
    near_constant("kFresnelG", g_tail, 0, mpf(1) / 256, TIGHT, "pi^2 x^3 g(x) in 1/x^4, x >= 4"),
])
