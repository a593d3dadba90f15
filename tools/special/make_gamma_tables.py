#!/usr/bin/env python3
"""Writes src/special/gamma_tables.hpp: the gamma function and its logarithm."""
import os
from fit import *

OUT = os.path.join(os.path.dirname(__file__), "../../src/special/gamma_tables.hpp")
TIGHT = mpf(2) ** -58


def log_gamma_factor(d):
    """ln Gamma(1 + d) over its zero next to d: over d below 1/2, over d - 1 from there on."""
    zero = 0 if d < mpf(1) / 2 else 1
    if d == zero:
        return -mp.euler if zero == 0 else 1 - mp.euler
    return mp.loggamma(1 + d) / (d - zero)


def stirling(u):
    """x (ln Gamma(x) - (x - 1/2) ln x + x - ln sqrt(2 pi)) as a function of u = 1/x^2."""
    if u == 0:
        return mpf(1) / 12
    with mp.workdps(100):
        x = 1 / mp.sqrt(u)
        return x * (mp.loggamma(x) - (x - 0.5) * mp.log(x) + x - mp.log(2 * mp.pi) / 2)


ZERO = mp.findroot(mp.digamma, mpf("1.46"))


def digamma_zero():
    first, _ = short_pair(ZERO)
    return [first, *double_double(ZERO - first)]


def digamma_factor(x):
    return mp.digamma(x) / (x - ZERO)


def digamma_tail(u):
    """x^2 (ln x - 1/(2 x) - digamma(x)) as a function of u = 1/x^2."""
    if u == 0:
        return mpf(1) / 12
    with mp.workdps(100):
        x = 1 / mp.sqrt(u)
        return x * x * (mp.log(x) - 1 / (2 * x) - mp.digamma(x))


def trigamma_tail(u):
    """x^3 (trigamma(x) - 1/x - 1/(2 x^2)) as a function of u = 1/x^2."""
    if u == 0:
        return mpf(1) / 6
    with mp.workdps(100):
        x = 1 / mp.sqrt(u)
        return x ** 3 * (mp.polygamma(1, x) - 1 / x - 1 / (2 * x * x))


def polygamma_series():
    """Asymptotic series of the derivatives: B_2j / (2j)! (2j + k - 1)! / (k - 1)!, for k = 0 without the last factor."""
    rows = []
    for k in range(7):
        row = [mp.bernoulli(2 * j) / mp.factorial(2 * j) * mp.factorial(2 * j + k - 1) / mp.factorial(max(k - 1, 0))
               for j in range(1, 13)]
        rows.append("    {" + lines([number(c) for c in row], 5).lstrip() + "}")
    return ("// |psi^(k)(y)| y^k / (k - 1)! = 1 + k / (2 y) + (1/y^2) times this series in 1/y^2;\n"
            "// k = 0: ln y - 1 / (2 y) - psi(y) = (1/y^2) times the series\n"
            f"inline constexpr std::array<double, 12> kPolygammaSeries[] = {{\n" + ",\n".join(rows) + "};\n")


parts = [
    pieces("kGamma", "UniformPieces<0.5, 8, {count}, {terms}>", mp.gamma, grid(mpf("0.5"), 12, 8), TIGHT,
           "gamma on [1/2, 12), pieces of width 1/8"),
    pieces("kLogGammaFactor", "UniformPieces<-0.5, 16, {count}, {terms}>", log_gamma_factor, grid(mpf("-0.5"), 2, 16), TIGHT,
           "ln gamma(1 + d) / d on [-1/2, 1/2), ln gamma(1 + d) / (d - 1) on [1/2, 2), pieces of width 1/16"),
    pieces("kLogGammaBelowHalf", "BinadePieces<0.0625, 4, {count}, {terms}>", mp.loggamma, binade_centres(-4, -1, 4), TIGHT,
           "ln gamma on [1/16, 1/2), sixteen pieces a binade"),
    pieces("kLogGamma", "BinadePieces<3.0, 4, {count}, {terms}>", mp.loggamma,
           [p for p in binade_centres(1, 4, 4) if p[0] >= 3], TIGHT, "ln gamma on [3, 16), sixteen pieces a binade"),
    near_constant("kStirling", stirling, 0, mpf(1) / 144, mpf(2) ** -56,
                  "x (ln gamma(x) - (x - 1/2) ln x + x - ln sqrt(2 pi)) in 1/x^2, x >= 12"),
    pair_constant("kLogRootTwoPi", mp.log(2 * mp.pi) / 2, "ln sqrt(2 pi)"),
    array("kDigammaZero", digamma_zero(), "the positive zero of digamma, its first part of 26 bits"),
    pieces("kDigammaFactor", "BinadePieces<0.5, 3, {count}, {terms}>", digamma_factor, binade_centres(-1, 6, 3), TIGHT,
           "digamma(x) / (x - zero) on [1/2, 64), eight pieces a binade"),
    array("kDigammaTail", fit(digamma_tail, 0, mpf(1) / 4096, mpf(2) ** -42),
          "x^2 (ln x - 1/(2 x) - digamma(x)) in 1/x^2, x >= 64; error 2^-42"),
    pieces("kTrigamma", "BinadePieces<0.5, 3, {count}, {terms}>", lambda x: mp.polygamma(1, x), binade_centres(-1, 6, 3), TIGHT,
           "trigamma on [1/2, 64), eight pieces a binade"),
    array("kTrigammaTail", fit(trigamma_tail, 0, mpf(1) / 4096, mpf(2) ** -42),
          "x^3 (trigamma(x) - 1/x - 1/(2 x^2)) in 1/x^2, x >= 64; error 2^-42"),
    polygamma_series(),
]
header(OUT, "Tables of the gamma function and its logarithm.", "make_gamma_tables.py", parts)
