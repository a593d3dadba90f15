#!/usr/bin/env python3
"""Singular values of upper bidiagonal matrices to 17 digits, for tests/linalg/bidiagonal_data.inc.

The eigenvalues of the Golub-Kahan matrix (zero diagonal, d_1, e_1, d_2, e_2, ... beside it) are plus and minus the singular
values. They are bracketed by Sturm sequences in 400 digits, which needs no trust in any eigenvalue routine.

    tools/bidiagonal_values.py > tests/linalg/bidiagonal_data.inc
"""
import random
from mpmath import mp, mpf

mp.dps = 400


def count_above(beside, x):
    """Eigenvalues of the Golub-Kahan matrix that are greater than x > 0."""
    count, q = 0, -x
    for k in range(len(beside) + 1):
        if k:
            q = -x - beside[k - 1] ** 2 / (q if q else mpf(10) ** -390)
        count += q > 0
    return count


def singular_values(d, e):
    beside = []
    for i, x in enumerate(d):
        beside.append(mpf(x))
        if i < len(e):
            beside.append(mpf(e[i]))
    least, greatest = mpf(2) ** -1100, 4 * max(abs(x) for x in beside) + mpf(2) ** -1000
    values = []
    for i in range(len(d)):
        low, high = least, greatest  # value i, from the greatest, lies in between
        if count_above(beside, low) <= i:
            values.append(mpf(0))
            continue
        while high > low * (1 + mpf(2) ** -70):
            middle = mp.sqrt(low * high)
            if count_above(beside, middle) > i:
                low = middle
            else:
                high = middle
        values.append(low)
    return values


def cases():
    rng = random.Random(1873)
    uniform = lambda: rng.uniform(-1, 1)
    yield [uniform() for _ in range(12)], [uniform() for _ in range(11)]
    yield [2.0 ** (-8 * i) * uniform() for i in range(14)], [2.0 ** (-8 * i) * uniform() for i in range(13)]
    yield [2.0 ** (8 * i - 104) * uniform() for i in range(14)], [2.0 ** (8 * i - 100) * uniform() for i in range(13)]
    yield [1.0] * 10, [1.0] * 9
    yield [1.0] * 20, [2.0] * 19                      # the least value is about 2^-20
    yield [1.0 + i * 2.0 ** -50 for i in range(8)], [2.0 ** -40] * 7
    yield [10.0 ** rng.uniform(-150, 50) for _ in range(10)], [10.0 ** rng.uniform(-150, 50) for _ in range(9)]
    yield [10.0 ** rng.uniform(-12, 0) for _ in range(16)], [10.0 ** rng.uniform(-12, 0) for _ in range(15)]
    yield [1.0, 1e-20, 1e-40, 1e-60, 1e-80], [1e-10, 1e-30, 1e-50, 1e-70]
    yield [1e-80, 1.0, 1e-40, 1e3, 1e-60], [1e5, 1e-30, 1.0, 1e-10]
    yield [3.0, 1e-200], [1e200]
    yield [5.0, 5.0], [1e-16]
    yield [1e-9, 1.0, 2.0], [1.0, 1.0]
    yield [1.0, 0.0, 2.0], [1.0, 1.0]
    yield [0.0, 0.0, 0.0], [1.0, 2.0]


def main():
    print("// Written by tools/bidiagonal_values.py: diagonals, superdiagonals, singular values.")
    lines = []
    for k, (d, e) in enumerate(cases()):
        for name, row in (("d", d), ("e", e), ("s", [float(v) for v in singular_values(d, e)])):
            text = ", ".join(float(x).hex() for x in row)
            print(f"const double kBidiagonal{k}{name}[] = {{{text}}};")
        lines.append(f"    {{{len(d)}, kBidiagonal{k}d, kBidiagonal{k}e, kBidiagonal{k}s}},")
    print("const BidiagonalCase kBidiagonalCases[] = {")
    print("\n".join(lines))
    print("};")


main()
