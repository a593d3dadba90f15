#!/usr/bin/env python3
"""Writes src/special/incomplete_gamma_tables.hpp: the uniform expansion of the incomplete gamma functions, and its inverse.

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
START = mpf(10) ** -9


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


def product(*factors):
    """Of power series."""
    total = factors[0]
    for f in factors[1:]:
        total = [sum(total[i] * f[n - i] for i in range(n + 1)) for n in range(min(len(total), len(f)))]
    return total


def combination(*terms):
    """Of power series: sum of factor * series."""
    return [sum(factor * series[n] for factor, series in terms) for n in range(min(len(series) for _, series in terms))]


def derivative(series):
    return [n * c for n, c in enumerate(series)][1:]


def over_eta(series):
    assert abs(series[0]) < mpf(10) ** -50  # no pole at eta = 0
    return series[1:]


def quantile_shifts():
    """e_k of eta = eta_0 + e_1(eta_0)/a + ...: where Q(a, x) = erfc(eta_0 sqrt(a/2)) / 2 (N. M. Temme, Math. Comp. 58 (1992) 755-764).

    With f = eta/mu and S(a) of Stirling's series, comparing the derivatives gives
    ln f(eta) + ln(d eta / d eta_0) - ln S(a) = a (eta^2 - eta_0^2) / 2, to be expanded in 1/a.
    """
    f = reciprocal_mu()[:100]
    log = [mpf(0)] * len(f)
    for n in range(1, len(f)):
        log[n] = f[n] - sum(k * log[k] * f[n - k] for k in range(1, n)) / n
    log_1 = derivative(log)
    log_2 = derivative(log_1)
    log_3 = derivative(log_2)
    one = [mpf(1)] + [mpf(0)] * len(f)
    half = mpf(1) / 2
    e1 = over_eta(log)
    d1 = derivative(e1)
    e2 = over_eta(combination((1, product(log_1, e1)), (1, d1), (-mpf(1) / 12, one), (-half, product(e1, e1))))
    d2 = derivative(e2)
    e3 = over_eta(combination((1, product(log_1, e2)), (half, product(log_2, e1, e1)), (1, d2), (-half, product(d1, d1)),
                              (-1, product(e1, e2))))
    d3 = derivative(e3)
    e4 = over_eta(combination((1, product(log_1, e3)), (1, product(log_2, e1, e2)), (mpf(1) / 6, product(log_3, e1, e1, e1)), (1, d3),
                              (-1, product(d1, d2)), (mpf(1) / 3, product(d1, d1, d1)), (mpf(1) / 360, one),
                              (-1, product(e1, e3)), (-half, product(e2, e2))))
    rows = []
    for k, series in enumerate((e1, e2, e3, e4)):
        g = lambda eta: mp.polyval(series[::-1], eta)
        rows.append("    std::array{" + lines(
            [number(c) for c in fit(g, -1, 1, START * mpf(SMALLEST_A) ** k, 0, lambda x: mpf(1))], 8).lstrip() + "}")
    return ("// eta - eta_0 = e_1(eta_0) / a + ... + e_4(eta_0) / a^4, Q(a, x) = erfc(eta_0 sqrt(a/2)) / 2, |eta_0| <= 1, a >= 16: to 3e-9\n"
            "inline constexpr std::tuple kQuantileShifts = {\n" + ",\n".join(rows) + "};\n")


def mu_slope(eta):
    """mu / eta."""
    if eta == 0:
        return mpf(1)
    return mp.findroot(lambda m: m - mp.log1p(m) - eta ** 2 / 2, eta + eta ** 2 / 3) / eta


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
    quantile_shifts(),
    array("kMuSlope", fit(mu_slope, -mpf(21) / 20, mpf(21) / 20, START / 10), "mu / eta in eta, |eta| <= 1.05; error 1e-10"),
    array("kInverseGammaStar", fit(inverse_gamma_star, 0, mpf(1) / SMALLEST_A, mpf(2) ** -45),
          "sqrt(2 pi / a) (a/e)^a / Gamma(a) in 1/a, a >= 16; error 2^-45"),
    pair_constant("kTwoPi", 2 * mp.pi, "2 pi"),
    f"inline constexpr double kInverseRootTwoPi = {number(1 / mp.sqrt(2 * mp.pi))};\n",
    f"inline constexpr double kRootTwo = {number(mp.sqrt(2))};\n",
], ["tuple"], ["special/lanes.hpp"])
