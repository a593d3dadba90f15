#!/usr/bin/env python3
"""Writes src/special/incomplete_gamma_tables.hpp: the uniform expansion of the incomplete gamma functions.

With mu = x/a - 1, eta^2 / 2 = mu - ln(1 + mu) and eta of the sign of mu,
    Q(a, x) = erfc(eta sqrt(a/2)) / 2 + exp(-a eta^2 / 2) / sqrt(2 pi a) sum c_k(eta) / a^k,
    c_0 = 1/mu - 1/eta,   c_k = c_(k-1)'(eta) / eta + (-1)^k g_k / mu,
g_k being the coefficients of Stirling's series (N. M. Temme, SIAM J. Math. Anal. 10 (1979) 757-766).
"""
import os
from fit import *

OUT = os.path.join(os.path.dirname(__file__), "../../src/special/incomplete_gamma_tables.hpp")
mp.dps = 80
ORDERS = 14
SERIES = 130
SMALLEST_A = 16
TIGHT = mpf(2) ** -57


def reciprocal_mu():
    """Coefficients r of 1/mu = (r_0 + r_1 eta + ...) / eta, from mu mu' = eta (1 + mu)."""
    m = [mpf(0), mpf(1)]
    for n in range(2, SERIES):
        products = sum(m[i] * m[n + 1 - i] for i in range(2, n))
        m.append((2 * m[n - 1] / (n + 1) - products) / 2)
    m = m[1:]
    r = [mpf(1)]
    for n in range(1, len(m)):
        r.append(-sum(m[i] * r[n - i] for i in range(1, n + 1)))
    return r


def stirling_coefficients():
    """g_k of Gamma(a) = sqrt(2 pi / a) (a/e)^a (1 + g_1/a + ...)."""
    log = [mpf(0)] * (ORDERS + 1)
    for j in range(1, ORDERS // 2 + 2):
        if 2 * j - 1 <= ORDERS:
            log[2 * j - 1] = mp.bernoulli(2 * j) / (2 * j * (2 * j - 1))
    g = [mpf(1)]
    for n in range(1, ORDERS + 1):
        g.append(sum(i * log[i] * g[n - i] for i in range(1, n + 1)) / n)
    return g


def expansions():
    r, g = reciprocal_mu(), stirling_coefficients()
    c = [r[1:]]
    for k in range(1, ORDERS):
        sign = (-1) ** k
        assert abs(c[-1][1] + sign * g[k]) < mpf(10) ** -60  # no pole at eta = 0
        c.append([(j + 2) * c[-1][j + 2] + sign * g[k] * r[j + 1] for j in range(len(c[-1]) - 2)])
    return c


LANES = 4


def table():
    """Polynomials of neighbouring orders side by side, short ones filled up with zeros."""
    polynomials = []
    for k, series in enumerate(expansions()):
        f = lambda eta: mp.polyval(series[::-1], eta)
        polynomials.append(fit(f, -1, 1, TIGHT * mpf(SMALLEST_A) ** k, 0, lambda x: mpf(1), 45))
    rows = []
    for first in range(0, ORDERS, LANES):
        block = polynomials[first:first + LANES]
        columns = [[c[j] if j < len(c) else 0 for c in block] + [0] * (LANES - len(block)) for j in range(max(map(len, block)))]
        rows.append(f"    std::array<Lanes, {len(columns)}>{{{{\n" + lines([braces(c) for c in columns], 8) + "}}")
    return ("// c_0, c_1, ... in powers of eta, |eta| <= 1, each to 2^-57 of what a = 16 makes of it, four at a time\n"
            "inline constexpr std::tuple kUniformExpansion = {\n" + ",\n".join(rows) + "};\n")


def inverse_gamma_star(u):
    """sqrt(2 pi / a) (a/e)^a / Gamma(a) as a function of u = 1/a."""
    if u == 0:
        return mpf(1)
    a = 1 / u
    return mp.exp((a - mpf(1) / 2) * mp.log(a) - a + mp.log(2 * mp.pi) / 2 - mp.loggamma(a))


def deviance(mu):
    """(mu - ln(1 + mu)) / mu^2."""
    return (mu - mp.log1p(mu)) / mu ** 2 if mu else mpf(1) / 2


header(OUT, "Tables of the incomplete gamma functions.", "make_incomplete_gamma_tables.py", [
    table(),
    pieces("kDeviance", "UniformPieces<-0.75, 32, {count}, {terms}, NearLinearPolynomial>", deviance,
           grid(mpf(-3) / 4, mpf(3) / 2, 32), mpf(2) ** -65, "(mu - ln(1 + mu)) / mu^2 on [-3/4, 3/2), pieces of width 1/32",
           near_linear=True),
    array("kInverseGammaStar", fit(inverse_gamma_star, 0, mpf(1) / SMALLEST_A, mpf(2) ** -45),
          "sqrt(2 pi / a) (a/e)^a / Gamma(a) in 1/a, a >= 16; error 2^-45"),
    pair_constant("kTwoPi", 2 * mp.pi, "2 pi"),
    f"inline constexpr double kInverseRootTwoPi = {number(1 / mp.sqrt(2 * mp.pi))};\n",
    f"inline constexpr double kRootTwo = {number(mp.sqrt(2))};\n",
], ["tuple"], ["special/lanes.hpp"])
