#!/usr/bin/env python3
"""Writes src/quadrature/gauss_kronrod_tables.hpp: nodes and weights of the Gauss-Kronrod pairs 7/15, 10/21 and 30/61.

The Kronrod nodes are those of the Gauss rule and the zeros of the Stieltjes polynomial (T. J. Stieltjes, 1894; A. S. Kronrod,
1965): of degree n + 1 and orthogonal, with the Legendre polynomial of degree n as weight, to all polynomials up to degree n.
Needs mpmath. Run: python3 tools/gauss_kronrod.py > src/quadrature/gauss_kronrod_tables.hpp
"""
import mpmath as mp

mp.mp.dps = 90


def gauss(n):
    """Nodes and weights of the n-point Gauss-Legendre rule."""
    nodes = []
    for k in range(n):
        x = mp.cos(mp.pi * (k + mp.mpf(3) / 4) / (n + mp.mpf(1) / 2))
        for _ in range(12):
            p0, p1 = mp.mpf(1), x
            for j in range(2, n + 1):
                p0, p1 = p1, ((2 * j - 1) * x * p1 - (j - 1) * p0) / j
            derivative = n * (x * p1 - p0) / (x * x - 1)
            x -= p1 / derivative
        nodes.append((x, 2 / ((1 - x * x) * derivative**2)))
    return nodes


def legendre(n, x):
    p0, p1 = mp.mpf(1), x
    for j in range(2, n + 1):
        p0, p1 = p1, ((2 * j - 1) * x * p1 - (j - 1) * p0) / j
    return p1 if n > 0 else p0


def kronrod(n):
    rule = gauss(n)
    fine = gauss(2 * n + 4)
    table = [[legendre(k, x) for k in range(n + 2)] for x, _ in fine]
    triple = lambda j, k: mp.fsum(w * t[n] * t[j] * t[k] for (_, w), t in zip(fine, table))
    # E = P_(n+1) + sum of c_j P_j, orthogonal to P_0 .. P_n under the weight P_n; only one parity occurs.
    unknown = list(range((n + 1) % 2, n + 1, 2))
    tests = [k for k in range(n + 1) if (k + n + n + 1) % 2 == 0][-len(unknown):]
    a = mp.matrix(len(unknown), len(unknown))
    b = mp.matrix(len(unknown), 1)
    for r, k in enumerate(tests):
        for c, j in enumerate(unknown):
            a[r, c] = triple(j, k)
        b[r] = -triple(n + 1, k)
    c = mp.lu_solve(a, b)
    stieltjes = lambda x: legendre(n + 1, x) + mp.fsum(c[i] * legendre(j, x) for i, j in enumerate(unknown))
    # Its zeros lie between those of the Legendre polynomial, and one beyond each end.
    gauss_nodes = sorted((x for x, _ in rule), reverse=True)
    ends = [mp.mpf(1)] + gauss_nodes + [mp.mpf(-1)]
    zeros = [mp.findroot(stieltjes, (ends[i], ends[i + 1]), solver="anderson", tol=mp.mpf(10) ** -170) for i in range(n + 1)]
    nodes = sorted(gauss_nodes + zeros, reverse=True)
    half = nodes[: n + 1]
    half[n] = mp.mpf(0)
    weights = []
    for x in half:
        product = mp.mpf(1)
        for y in nodes:
            if abs(y - x) > mp.mpf(10) ** -60:
                product *= x - y
        # The integral of the Lagrange polynomial of this node.
        others = [y for y in nodes if abs(y - x) > mp.mpf(10) ** -60]
        integral = mp.fsum(w * mp.fprod(t - y for y in others) for t, w in gauss(2 * n + 2))
        weights.append(integral / product)
    wg = []
    for x in half[1::2]:
        wg.append(min(rule, key=lambda node: abs(node[0] - x))[1])
    return half, weights, wg


def array(name, values):
    body = ",\n".join("    " + mp.nstr(v, 20, strip_zeros=False, min_fixed=-30) for v in values)
    return f"inline constexpr std::array<double, {len(values)}> {name} = {{\n{body}}};\n"


def main():
    print("// Gauss-Kronrod pairs on [-1, 1]: the non-negative half, largest node first, 0 last. Every second Kronrod node, from")
    print("// index 1, is a Gauss node. Rounded to double from 90 digits; written by tools/gauss_kronrod.py.")
    print("#pragma once\n\n#include <array>\n\nnamespace kor::quadrature {\n")
    for n in (7, 10, 30):
        nodes, kronrod_weights, gauss_weights = kronrod(n)
        m = 2 * n + 1
        print(f"// {n} Gauss points, {m} Kronrod points.")
        print(array(f"kNodes{m}", nodes))
        print(array(f"kKronrodWeights{m}", kronrod_weights))
        print(array(f"kGaussWeights{m}", gauss_weights))
    print("} // namespace kor::quadrature")


if __name__ == "__main__":
    main()
