#!/usr/bin/env python3
"""Reference values of the functions of chapters s01 to s15 and s20 to s22: tests/special/elementary_data.inc.

Arguments: untidy ones over each domain, the ends and splits that the routines document, and those where the sweeps against
Arb (tools/special/sweep.sh) found the largest errors. Real values are given as the nearest double and what it lacks, so that
an error can be told to a hundredth of an ulp. Needs mpmath.
"""
import math
import os
import random

from mpmath import mp, mpf

mp.dps = 60
PATH = os.path.join(os.path.dirname(os.path.abspath(__file__)), "..", "..", "tests", "special", "elementary_data.inc")


def spread(low, high, count, seed):
    rng = random.Random(seed)
    return [math.exp(math.log(low) + (math.log(high) - math.log(low)) * (k + rng.random()) / count) for k in range(count)]


def both(points):
    return [s * x for x in points for s in (1.0, -1.0)]


def pair(value):
    nearest = float(value)
    return f"{nearest!r}, {float(value - mpf(nearest))!r}"


def legendre(order, degree, x):
    """Associated Legendre function without the alternating sign, by the recurrence in exact arithmetic but for the root."""
    value = mp.fac2(2 * order - 1) * mp.sqrt(1 - x * x) ** order
    before, l = mpf(0), order
    while l < degree:
        before, value, l = value, ((2 * l + 1) * x * value - (l + order) * before) / (l + 1 - order), l + 1
    return value


def theta(k, x, q):
    with mp.workdps(400):
        return mp.re(mp.jtheta(k, mp.pi * mpf(x), mpf(q)))


def principal_value(x, y, z, r):
    """RJ for r < 0, as the mean of the two sides of the cut."""
    return mp.re(mp.elliprj(x, y, z, r))


def main():
    normal = lambda x: mp.erfc(x / mp.sqrt(2)) / 2
    psi = lambda k: lambda x: mp.psi(k, x)
    functions = (
        ("s01bac", mp.log1p, [-0.999999, -0.5, 1e-300, 0.012594610258104622, -1.0217220360804584e-16, 0.41421356]
         + both(spread(1e-12, 0.9, 10, 1)) + spread(1.0, 1e300, 8, 2)),
        ("s07aac", mp.tan, both(spread(1e-9, 1e10, 20, 3)) + [1e10, 1.5707963267948966 - 1e-9, 18126906.225936711,
                                                             -2.3688023228351551, 0.1, 0.785398163397448]),
        ("s10aac", mp.tanh, both(spread(1e-9, 18.5, 14, 4)) + [0.49999999999999251, 0.5, 4.0, 18.5]),
        ("s10abc", mp.sinh, both(spread(1e-9, 700, 14, 5)) + [0.88027112329967938, 1.0, 20.0, 708.0]),
        ("s10acc", mp.cosh, both(spread(1e-9, 700, 14, 6)) + [0.50000279050443397, 20.0, 708.0]),
        ("s11aac", mp.atanh, both(spread(1e-9, 0.99, 12, 7)) + [0.25, 0.24938103191033678, 0.74988178735476552, 0.875, 0.9999999999]),
        ("s11abc", mp.asinh, both(spread(1e-9, 1e12, 16, 8)) + [0.25000002295838908, 16.0, 1e9, 1e300]),
        ("s11acc", mp.acosh, [1.0, 1.0000000001, 1.01, 1.4662757534390742, 1.5, 16.0, 1e300] + spread(2.0, 1e12, 10, 9)),
        ("s13aac", mp.e1, spread(1e-9, 700, 24, 10) + [5e-324, 0.25, 2.0, 4.0, 16.0, 701.87513385213674, 708.3]),
        ("s13acc", mp.ci, spread(1e-9, 15.9, 24, 11) + [0.5, 0.6165054856207162, 3.384180422551186, 1e-310, 15.739680, 1.9999999999999998, 123.456, 10000000000063380.0, 3e17]),
        ("s13adc", mp.si, both(spread(1e-9, 1e3, 16, 12)) + [1.000000000013419, 16.0, 1e10, 1e17]),
        ("s14aac", mp.gamma, [-x for x in (0.3, 1.7, 5.01, 7.498135910864865, 11.2, 20.3, 100.25, 169.7)] + spread(1e-9, 169.9, 20, 13)
         + [7.8754179612942776, 11.875429382738647, 12.0, 170.0, 1e-300, 1.8923907403832371e-15]),
        ("s14abc", mp.loggamma, spread(1e-9, 1e3, 20, 14) + [1e-310, 0.9999, 1.0001, 1.9999, 2.0001, 0.5, 3.0, 16.0, 6.8e6, 2.5e305,
                                                           9748450580108314.0]),
        ("psi_0", psi(0), spread(1e-5, 1e5, 12, 21) + [1.4616321449683622, 1.4616321449683624, 1.0, -0.3, -3.7, -20.1]),
        ("psi_1", psi(1), spread(1e-5, 1e5, 10, 22) + [4.9849478678135304, -3.7]),
        ("psi_2", psi(2), spread(1e-5, 1e5, 10, 23) + [6.6585538421264934, -3.1]),
        ("psi_3", psi(3), spread(1e-3, 1e4, 10, 24) + [-3.7]),
        ("psi_4", psi(4), spread(1e-3, 1e4, 10, 25) + [-3.1]),
        ("psi_5", psi(5), spread(1e-3, 1e4, 10, 26) + [-3.7]),
        ("psi_6", psi(6), spread(1e-3, 1e4, 10, 27) + [-3.1]),
        ("s15abc", lambda x: normal(-x), both(spread(1e-3, 37, 14, 15)) + [-38.4, -37.569945882765694, 8.2]),
        ("s15acc", normal, both(spread(1e-3, 37, 14, 16)) + [38.4, 37.521767499083843]),
        ("s15adc", mp.erfc, both(spread(1e-3, 6, 12, 17)) + [0.5, 26.5, 12.3, 26.532381707209783]),
        ("s15aec", mp.erf, both(spread(1e-9, 6, 12, 18)) + [-0.47574217911087063, 0.5]),
        ("s20acc", mp.fresnels, both(spread(1e-5, 100, 14, 19)) + [0.5, 4.0000581078161677, 12345.678]),
        ("s20adc", mp.fresnelc, both(spread(1e-5, 100, 14, 20)) + [0.5, 4.3484007967418989, 12345.678]),
    )
    with open(os.path.normpath(PATH), "w", encoding="utf-8") as file:
        file.write("// Made by tools/special/make_elementary_reference.py: routine, argument, value and what it lacks.\n")
        for name, f, points in functions:
            for x in points:
                file.write(f"FUNCTION_VALUE({name}, {x!r}, {pair(f(mpf(x)))})\n")
        rng = random.Random(99)
        for k in range(24):
            x, y, z, r = (10.0 ** rng.uniform(-6, 6) if k % 2 else rng.uniform(0.5, 2) for _ in range(4))
            if k % 8 == 0:
                x = 0.0
            arguments = f"{x!r}, {y!r}, {z!r}, {r!r}"
            file.write(f"CARLSON_VALUE(rc, {arguments}, {pair(mp.elliprc(x, y))})\n")
            file.write(f"CARLSON_VALUE(rf, {arguments}, {pair(mp.elliprf(x, y, z))})\n")
            file.write(f"CARLSON_VALUE(rd, {arguments}, {pair(mp.elliprd(x, y, z))})\n")
            file.write(f"CARLSON_VALUE(rj, {arguments}, {pair(mp.elliprj(x, y, z, r))})\n")
        for x, y in ((1.0, -2.0), (0.3, -1e-5), (1e5, -3.0)):
            file.write(f"CARLSON_VALUE(rc, {x!r}, {y!r}, 0.0, 0.0, {pair(mp.re(mp.elliprc(x, y)))})\n")
        for x, y, z, r in ((2.0, 3.0, 4.0, -0.5), (0.0, 1.0, 2.0, -1.5), (0.1, 7.0, 3.0, -2.5)):
            file.write(f"CARLSON_VALUE(rj_principal, {x!r}, {y!r}, {z!r}, {r!r}, {pair(principal_value(x, y, z, r))})\n")
        for mode, order, degree, x in ((1, 0, 100, 0.3), (1, 0, 100, -0.99999), (2, 0, 57, 0.7), (1, 3, 50, 0.12), (2, -3, 50, -0.6),
                                       (1, -5, 40, 0.2), (2, 27, 28, 0.4), (1, 27, 27, 0.999), (1, 2, 9, -0.9)):
            m = abs(order)
            value = legendre(m, degree, mpf(x))
            ratio = mp.factorial(degree - m) / mp.factorial(degree + m)
            if mode == 2:
                value *= mp.sqrt((degree + mpf(1) / 2) * ratio)
            elif order < 0:
                value *= ratio
            file.write(f"LEGENDRE({mode}, {order}, {degree}, {x!r}, {float(value)!r})\n")
        for a in (1e-3, 0.7, 3.3, 15.9, 40.0, 1e4):
            for factor in (0.01, 0.3, 0.6, 0.98, 1.0, 1.05, 1.7, 8.0):
                x = a * factor
                p = mp.gammainc(mpf(a), 0, mpf(x), regularized=True)
                q = mp.gammainc(mpf(a), mpf(x), mp.inf, regularized=True)
                if p > mpf(10) ** -290 and q > mpf(10) ** -290:
                    file.write(f"INCOMPLETE_GAMMA({a!r}, {x!r}, {float(p)!r}, {float(q)!r})\n")
        for k in range(5):
            for x, y in ((1.3, 0.4), (0.2, -3.0), (-2.7, 0.6), (15.0, 30.0)):
                value = mp.psi(k, mp.mpc(x, y))
                file.write(f"POLYGAMMA({k}, {x!r}, {y!r}, {float(value.real)!r}, {float(value.imag)!r})\n")
        for k in range(1, 5):
            for x, q in ((0.3, 1e-6), (-0.7, 0.04), (0.3, 0.2), (0.05, 0.7), (0.4, 0.93), (1.499999, 0.5), (2.000001, 0.5), (12.25, 0.99)):
                file.write(f"THETA({k}, {x!r}, {q!r}, {pair(theta(k, x, q))})\n")
        for x, y, m in ((0.5, 0.25, 0.3), (2.3, -0.7, 0.9), (-1.1, 1.0, 0.05), (0.7, 0.3, 1e-12), (1.5, 0.2, 0.999999), (0.4, 1.2, 1.0),
                        (0.4, 1.2, 0.0)):
            z = mp.mpc(x, y)
            sn, cn, dn = (mp.ellipfun(kind, z, m=mpf(m)) for kind in ("sn", "cn", "dn"))
            parts = ", ".join(repr(float(v)) for w in (sn, cn, dn) for v in (w.real, w.imag))
            file.write(f"JACOBI({x!r}, {y!r}, {m!r}, {parts})\n")
        for x, y, akp in ((1.0, 0.5, 0.7), (0.2, -2.0, 1.6), (30.0, 3.0, 0.1), (0.5, 1.9, 0.5), (1e-3, 1.4, 0.7), (2.0, 0.0, 0.0)):
            f = lambda t: mp.sqrt(1 + mpf(akp) ** 2 * t * t) / (1 + t * t) ** mpf("1.5")
            # Round the pole at i, well to the right of it.
            corners = [mp.mpc(0), mp.mpc(max(x, 1)), mp.mpc(max(x, 1), y), mp.mpc(x, y)]
            value = sum(mp.quad(f, [p, (p + q) / 2, q]) for p, q in zip(corners, corners[1:]) if p != q)
            file.write(f"ELLIPTIC({x!r}, {y!r}, {akp!r}, {float(value.real)!r}, {float(value.imag)!r})\n")


if __name__ == "__main__":
    main()
