#!/usr/bin/env python3
"""Reference values of the Bessel, Airy and Kelvin functions: tests/special/bessel_data.inc, one BESSEL_VALUE a line.

Arguments: untidy ones in each range, both sides of the splits, the doubles next to zeros, and the ends of the domains.
"""
import math
import os
import random

from mpmath import mp, mpf

mp.dps = 50
PATH = os.path.join(os.path.dirname(os.path.abspath(__file__)), "..", "..", "tests", "special", "bessel_data.inc")


def around(*points):
    return [x for p in points for x in (math.nextafter(p, -math.inf), p, math.nextafter(p, math.inf))]


def next_to_zeros(f, brackets):
    """The doubles on both sides of the zeros in the brackets."""
    points = []
    for a, b in brackets:
        zero = mp.findroot(f, (mpf(a), mpf(b)), solver="anderson")
        nearest = float(zero)
        points += [nearest, math.nextafter(nearest, math.inf if mpf(nearest) < zero else -math.inf)]
    return points


def brackets(f, begin, end, step, keep):
    """Brackets of some of the zeros in [begin, end]: the first, the last, and `keep` between."""
    found = []
    x, y = begin, f(begin)
    while x < end:
        z = f(x + step)
        if y * z < 0:
            found.append((x, x + step))
        x, y = x + step, z
    if len(found) <= keep:
        return found
    return [found[round(k * (len(found) - 1) / (keep - 1))] for k in range(keep)]


def spread(low, high, count, seed):
    """Untidy points, even in the logarithm."""
    rng = random.Random(seed)
    return [math.exp(math.log(low) + (math.log(high) - math.log(low)) * (k + rng.random()) / count) for k in range(count)]


def main():
    exp_scaled = lambda f, sign: lambda x: f(x) * mp.exp(sign * abs(x))
    ber = lambda x: mp.re(mp.besselj(0, x * mp.expjpi(mpf(3) / 4)))
    bei = lambda x: mp.im(mp.besselj(0, x * mp.expjpi(mpf(3) / 4)))
    ker = lambda x: mp.re(mp.besselk(0, x * mp.expjpi(mpf(1) / 4)))
    kei = lambda x: mp.im(mp.besselk(0, x * mp.expjpi(mpf(1) / 4)))
    j = lambda n: lambda x: mp.besselj(n, x)
    y = lambda n: lambda x: mp.bessely(n, x)
    i = lambda n: lambda x: mp.besseli(n, x)
    k = lambda n: lambda x: mp.besselk(n, x)

    jy_points = spread(0.2, 66, 12, 1) + spread(66, 1e16, 12, 2) + around(0.25, 8.0, 66.0) + [1e16]
    ik_points = spread(0.2, 16, 10, 3) + around(0.25, 2.0, 4.0, 16.0) + spread(16, 700, 6, 4)
    small = [5e-324, 1e-310, 3e-300, 1e-17, 3.7e-5]
    small_with_pole = [2.23e-308, 3e-300, 1e-17, 3.7e-5]
    airy_points = [-x for x in spread(0.01, 20.6, 8, 5)] + spread(0.01, 104, 8, 6) + around(-20.6875, 8.0) + [0.0, 1e-300]
    table = []
    for name, f, points, zero_range in (
            ("s17acc", y(0), small + jy_points, (0.3, 66)),
            ("s17adc", y(1), small_with_pole + jy_points, (0.3, 66)),
            ("s17aec", j(0), small + jy_points + [-2.7], (0.3, 66)),
            ("s17afc", j(1), small + jy_points + [-2.7], (0.3, 66)),
            ("s17agc", mp.airyai, airy_points + [-5.6e10, -33.3, 107.0], (-20.65, 0)),
            ("s17ahc", mp.airybi, airy_points + [-5.6e10, -33.3, 104.1], (-20.65, 0)),
            ("s17ajc", lambda x: mp.airyai(x, derivative=1), airy_points + [-1.8e9, -33.3, 107.0], (-20.65, 0)),
            ("s17akc", lambda x: mp.airybi(x, derivative=1), airy_points + [-1.8e9, -33.3, 104.1], (-20.65, 0)),
            ("s18acc", k(0), small + ik_points + [705.1], None),
            ("s18adc", k(1), small_with_pole + ik_points + [705.1], None),
            ("s18aec", i(0), small + ik_points + [711.6, -2.7], None),
            ("s18afc", i(1), small + ik_points + [711.6, -2.7], None),
            ("s18ccc", exp_scaled(k(0), 1), small + ik_points + [1e9], None),
            ("s18cdc", exp_scaled(k(1), 1), small_with_pole + ik_points + [1e9], None),
            ("s18cec", exp_scaled(i(0), -1), small + ik_points + [1e9, -2.7], None),
            ("s18cfc", exp_scaled(i(1), -1), small + ik_points + [1e9, -2.7], None),
            ("s19aac", ber, small + spread(0.2, 44.6, 12, 7) + [math.nextafter(44.625, 0.0), -2.7], (0.3, 44.6)),
            ("s19abc", bei, [3.7e-5] + around(1.0) + spread(0.2, 44.6, 12, 7) + [-2.7], (0.3, 44.6)),
            ("s19acc", ker, small + around(0.25, 16.0) + spread(0.2, 997, 14, 8) + [997.26], (0.3, 16)),
            ("s19adc", kei, small + around(0.25, 16.0) + spread(0.2, 997, 14, 8) + [997.26], (0.3, 16))):
        if zero_range:
            points = points + next_to_zeros(f, brackets(f, *zero_range, 0.1, 4))
        for x in points:
            mp.dps = 50 + max(0, int(math.log10(abs(x) + 1e-300))) * 2
            value = f(mpf(x))
            mp.dps = 50
            table.append(f"BESSEL_VALUE({name}, {x!r}, {float(value)!r})\n")
    with open(os.path.normpath(PATH), "w", encoding="utf-8") as file:
        file.write("// Made by tools/special/make_bessel_reference.py: routine, argument, value.\n")
        file.writelines(table)


if __name__ == "__main__":
    main()
