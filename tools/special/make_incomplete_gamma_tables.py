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


def table():
    rows = []
    for k, series in enumerate(expansions()):
        f = lambda eta: mp.polyval(series[::-1], eta)
        tolerance = mpf(2) ** -58 * mpf(SMALLEST_A) ** k
        rows.append("    std::array{" + lines([number(c) for c in fit(f, -1, 1, tolerance, 0, lambda x: mpf(1), 45)], 8).lstrip() + "}")
    return ("// c_0, c_1, ... in powers of eta, |eta| <= 1, each to 2^-58 of what a = 16 makes of it\n"
            "inline constexpr std::tuple kUniformExpansion = {\n" + ",\n".join(rows) + "};\n")


log_series = fit(lambda m: (m - mp.log1p(m) - m ** 2 / 2) / m ** 3 if m else -mpf(1) / 3, -mpf(1) / 64, mpf(1) / 64, mpf(2) ** -54)
header(OUT, "Tables of the incomplete gamma functions.", "make_incomplete_gamma_tables.py", [
    table(),
    array("kLessLogSeries", log_series, "(mu - ln(1 + mu) - mu^2/2) / mu^3, |mu| <= 1/64"),
    pair_constant("kTwoPi", 2 * mp.pi, "2 pi"),
], ["tuple"])
