#!/usr/bin/env python3
"""Reference values for splines and polynomials at 40 digits, from definitions that share nothing with the library: B-splines
by divided differences of truncated powers, least squares by normal equations in multiple precision.

    python3 tools/approx_reference.py > tests/approx/reference_data.inc"""
from mpmath import mp, mpf, matrix, lu_solve, cos, pi, exp, sin, quad

mp.dps = 60


def exact(x):
    return mpf(float(x))


def hexa(x):
    return float(x).hex()


def bspline(t, i, x, derivative=0):
    """N_i by the recurrence of its definition, the derivative by that of differences."""
    def value(i, k, d):
        if d > 0:
            left = value(i, k - 1, d - 1) / (t[i + k] - t[i]) if t[i + k] > t[i] else 0
            right = value(i + 1, k - 1, d - 1) / (t[i + k + 1] - t[i + 1]) if t[i + k + 1] > t[i + 1] else 0
            return k * (left - right)
        if k == 0:
            last = t[i] < t[i + 1] == t[-1] == x
            return mpf(1) if t[i] <= x < t[i + 1] or last else mpf(0)
        left = (x - t[i]) / (t[i + k] - t[i]) * value(i, k - 1, 0) if t[i + k] > t[i] else 0
        right = (t[i + k + 1] - x) / (t[i + k + 1] - t[i + 1]) * value(i + 1, k - 1, 0) if t[i + k + 1] > t[i + 1] else 0
        return left + right
    return value(i, 3, derivative)


def solve_normal(a, b, w):
    n = len(a[0])
    normal, right = matrix(n, n), matrix(n, 1)
    for row, value, weight in zip(a, b, w):
        for i in range(n):
            if row[i]:
                right[i] += weight**2 * row[i] * value
                for j in range(n):
                    normal[i, j] += weight**2 * row[i] * row[j]
    return lu_solve(normal, right)


def main():
    # A spline with simple, double and end knots that do not coincide; values, derivatives, integral.
    t = [exact(v) for v in (-1, -0.5, -0.25, 0, 0.3, 1.1, 1.1, 2.7, 3, 3.5, 4, 5)]
    c = [exact(v) for v in (1.5, -2.25, 0.7, 3.1, -1.9, 2.2, 0.4, -0.6)]
    print("// Written by tools/approx_reference.py.")
    print(f"const double kKnots[] = {{{', '.join(hexa(v) for v in t)}}};")
    print(f"const double kCoefficients[] = {{{', '.join(hexa(v) for v in c)}, 0, 0, 0, 0}};")
    print("struct SplinePoint { double x, s[4]; };\nconst SplinePoint kSplinePoints[] = {")
    for x in (0.0, 0.01, 0.3, 0.71, 1.0999, 1.5, 2.385, 2.9):
        x = exact(x)
        values = [sum(c[i] * bspline(t, i, x, d) for i in range(8)) for d in range(4)]
        print(f"    {{{hexa(x)}, {{{', '.join(hexa(v) for v in values)}}}}},")
    print("};")
    whole = quad(lambda x: sum(c[i] * bspline(t, i, x) for i in range(8)), [0, t[4], t[5], t[7], 3], maxdegree=3)
    print(f"const double kSplineIntegral = {hexa(whole)};")

    # Least squares on given knots.
    m = 25
    x = [exact(k * 0.21 + 0.05 * ((k * 7) % 5)) for k in range(m)]
    x.sort()
    y = [exact(sin(v * 1.3) + (k * 3 % 7) / 20) for k, v in enumerate(x)]
    w = [exact(1 + (k % 4) / 2) for k in range(m)]
    interior = [exact(v) for v in (1.2, 1.2, 2.9, 4.0)]
    knots = [x[0]] * 4 + interior + [x[-1]] * 4
    rows = [[bspline(knots, i, v) for i in range(len(knots) - 4)] for v in x]
    solution = solve_normal(rows, y, w)
    residual = sum((wt * (value - sum(r * s for r, s in zip(row, solution))))**2 for wt, value, row in zip(w, y, rows))
    for name, values in (("kFitX", x), ("kFitY", y), ("kFitWeights", w), ("kFitInterior", interior), ("kFitC", solution)):
        print(f"const double {name}[] = {{{', '.join(hexa(v) for v in values)}}};")
    print(f"const double kFitResidual = {hexa(residual)};")

    # Polynomials of all degrees on the same data.
    k = 7
    first, last = x[0], x[-1]
    print(f"const double kPolynomials[{k}][{k}] = {{")
    residuals = []
    for degree in range(k):
        rows = []
        for v in x:
            u = ((v - first) - (last - v)) / (last - first)
            chebyshev = [mpf(1), u]
            while len(chebyshev) < k:
                chebyshev.append(2 * u * chebyshev[-1] - chebyshev[-2])
            rows.append([chebyshev[0] / 2] + chebyshev[1:degree + 1])
        solution = solve_normal(rows, y, w)
        residuals.append(sum((wt * (value - sum(r * s for r, s in zip(row, solution))))**2 for wt, value, row in zip(w, y, rows)))
        print(f"    {{{', '.join(hexa(v) for v in solution)}}},")
    print("};")
    print(f"const double kPolynomialResiduals[] = {{{', '.join(hexa(v) for v in residuals)}}};")

    # A Chebyshev series in the middle and towards the ends; coefficients that fall, and such that do not.
    print("struct SeriesPoint { double x, p; };\nconst SeriesPoint kSeriesPoints[] = {")
    a = [exact((-1)**j * (1 + j % 3) / (1 + j)) for j in range(60)]
    for x in (-1, -1 + 2.0**-52, -1 + 1e-9, -0.999, -0.75, -0.5, -0.3, 0.0, 0.25, 0.5, 0.500001, 0.9, 0.99999, 1 - 1e-12,
              1 - 2.0**-53, 1):
        x = exact(x)
        b1 = b2 = mpf(0)
        for j in range(59, 0, -1):
            b1, b2 = 2 * x * b1 - b2 + a[j], b1
        print(f"    {{{hexa(x)}, {hexa(a[0] / 2 + x * b1 - b2)}}},")
    print("};")


if __name__ == "__main__":
    main()
