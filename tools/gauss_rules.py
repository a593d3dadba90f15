#!/usr/bin/env python3
"""Writes src/quadrature/gauss_rules_tables.hpp: Gauss-Legendre, Laguerre and Hermite rules of sixteen orders.

Nodes by Newton's method on the three-term recurrences in 60 digits. The weights of the Laguerre and Hermite rules are multiplied by
exp(t) and exp(t^2), so that they serve integrands that hold the weight function, and do not underflow. Needs mpmath.
Run: python3 tools/gauss_rules.py > src/quadrature/gauss_rules_tables.hpp
"""
import mpmath as mp

mp.mp.dps = 60
ORDERS = [1, 2, 3, 4, 5, 6, 8, 10, 12, 14, 16, 20, 24, 32, 48, 64]


def jacobi_nodes(diagonal, off):
    """Eigenvalues of the symmetric tridiagonal matrix, as starting values in double precision."""
    n = len(diagonal)
    import numpy as np

    a = np.diag([float(d) for d in diagonal]) + np.diag([float(o) for o in off], 1) + np.diag([float(o) for o in off], -1)
    return sorted(float(v) for v in np.linalg.eigvalsh(a))


def newton(x, value):
    for _ in range(8):
        p, derivative = value(x)
        x -= p / derivative
    return x


def legendre(n):
    def value(x):
        p0, p1 = mp.mpf(1), x
        for j in range(2, n + 1):
            p0, p1 = p1, ((2 * j - 1) * x * p1 - (j - 1) * p0) / j
        return p1, n * (x * p1 - p0) / (x * x - 1)

    starts = jacobi_nodes([0] * n, [k / mp.sqrt(4 * k * k - 1) for k in range(1, n)])
    rule = []
    for start in starts:
        x = newton(mp.mpf(start), value)
        rule.append((x, 2 / ((1 - x * x) * value(x)[1] ** 2)))
    return rule


def laguerre(n):
    def value(x):
        p0, p1 = mp.mpf(1), 1 - x
        for j in range(2, n + 1):
            p0, p1 = p1, ((2 * j - 1 - x) * p1 - (j - 1) * p0) / j
        return p1, n * (p1 - p0) / x

    starts = jacobi_nodes([2 * k + 1 for k in range(n)], list(range(1, n)))
    rule = []
    for start in starts:
        x = newton(mp.mpf(start), value)
        rule.append((x, mp.exp(x) / (x * value(x)[1] ** 2)))
    return rule


def hermite(n):
    def value(x):  # orthonormal polynomials, to stay in range
        p0, p1 = mp.pi ** (-mp.mpf(1) / 4), mp.sqrt(2) * x * mp.pi ** (-mp.mpf(1) / 4)
        for j in range(2, n + 1):
            p0, p1 = p1, x * mp.sqrt(mp.mpf(2) / j) * p1 - mp.sqrt(mp.mpf(j - 1) / j) * p0
        return p1, mp.sqrt(2 * n) * p0

    starts = jacobi_nodes([0] * n, [mp.sqrt(mp.mpf(k) / 2) for k in range(1, n)])
    rule = []
    for start in starts:
        x = newton(mp.mpf(start), value)
        rule.append((x, mp.exp(x * x) * 2 / value(x)[1] ** 2))
    return rule


def half(rule):
    n = len(rule)
    return [(mp.mpf(0), w) if n % 2 and i == n // 2 else (x, w) for i, (x, w) in enumerate(rule)][n // 2:]


def table(name, comment, rules):
    flat = [point for rule in rules for point in rule]
    number = lambda v: mp.nstr(v, 20, strip_zeros=False)
    print(f"// {comment}")
    print(f"inline constexpr std::array<GaussPoint, {len(flat)}> {name} = {{{{")
    print(",\n".join(f"    {{{number(x)}, {number(w)}}}" for x, w in flat) + "}};\n")


def main():
    print("// Gaussian rules of sixteen orders, one after the other. Rounded to double from 60 digits; written by")
    print("// tools/gauss_rules.py. Exact for polynomials of degree 2 n - 1, times the weight function where there is one.")
    print("#pragma once\n\n#include <array>\n\nnamespace kor::quadrature {\n")
    print("struct GaussPoint {\n    double node;\n    double weight;\n};\n")
    print(f"inline constexpr std::array<int, {len(ORDERS)}> kGaussOrders = {{" + ", ".join(map(str, ORDERS)) + "};\n")
    table("kLegendrePoints", "On [-1, 1]: the non-negative half of each rule, ascending.", [half(legendre(n)) for n in ORDERS])
    legendre_half = [point for n in ORDERS for point in half(legendre(n))]
    print("// What the rounding of these nodes left: for the rational rules, which divide by 1 + node.")
    print(f"inline constexpr std::array<double, {len(legendre_half)}> kLegendreNodeRests = {{")
    print(",\n".join("    " + mp.nstr(x - mp.mpf(float(x)), 17, strip_zeros=False) for x, _ in legendre_half) + "};\n")
    table("kLaguerrePoints", "On [0, infinity), ascending; weights times exp(t).", [laguerre(n) for n in ORDERS])
    table("kHermitePoints", "On the line: the non-negative half of each rule, ascending; weights times exp(t^2).",
          [half(hermite(n)) for n in ORDERS])
    print("} // namespace kor::quadrature")


if __name__ == "__main__":
    main()
