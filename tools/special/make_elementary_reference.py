#!/usr/bin/env python3
"""Reference values of the functions of chapters s01 to s15, s20 and s21: tests/special/elementary_data.inc.

Arguments: untidy ones over each domain, and the ends and splits that the routines document. Needs mpmath.
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


def main():
    normal = lambda x: mp.erfc(x / mp.sqrt(2)) / 2
    functions = (
        ("s01bac", mp.log1p, [-0.999999, -0.5, 1e-300] + both(spread(1e-12, 0.9, 8, 1)) + spread(1.0, 1e300, 6, 2)),
        ("s07aac", mp.tan, both(spread(1e-9, 1e10, 14, 3)) + [1e10, 1.5707963267948966 - 1e-9]),
        ("s10aac", mp.tanh, both(spread(1e-9, 18.5, 12, 4)) + [0.5, 4.0, 18.5]),
        ("s10abc", mp.sinh, both(spread(1e-9, 700, 12, 5)) + [1.0, 20.0, 708.0]),
        ("s10acc", mp.cosh, both(spread(1e-9, 700, 12, 6)) + [708.0]),
        ("s11aac", mp.atanh, both(spread(1e-9, 0.99, 10, 7)) + [0.25, 0.9999999999]),
        ("s11abc", mp.asinh, both(spread(1e-9, 1e12, 14, 8)) + [0.25, 1e300]),
        ("s11acc", mp.acosh, [1.0000000001, 1.01, 1.5] + spread(2.0, 1e12, 8, 9) + [1e300]),
        ("s13aac", mp.e1, spread(1e-9, 700, 16, 10) + [0.25, 16.0]),
        ("s13acc", mp.ci, spread(1e-9, 1e3, 18, 11) + [0.5, 0.6165054856207162, 3.384180422551186, 1e-310]),
        ("s13adc", mp.si, both(spread(1e-9, 1e3, 12, 12)) + [1.0]),
        ("s14aac", mp.gamma, [-x for x in (0.3, 1.7, 5.01, 20.3, 100.25, 169.7)] + spread(1e-9, 169.9, 14, 13) + [170.0, 1e-300]),
        ("s14abc", mp.loggamma, spread(1e-9, 1e3, 14, 14) + [0.9999, 1.0001, 1.9999, 2.0001, 6.8e6, 2.5e305]),
        ("s15abc", lambda x: normal(-x), both(spread(1e-3, 37, 10, 15))),
        ("s15acc", normal, both(spread(1e-3, 37, 10, 16))),
        ("s15adc", mp.erfc, both(spread(1e-3, 6, 8, 17)) + [26.5, 12.3]),
        ("s15aec", mp.erf, both(spread(1e-9, 6, 10, 18))),
        ("s20acc", mp.fresnels, both(spread(1e-5, 100, 10, 19))),
        ("s20adc", mp.fresnelc, both(spread(1e-5, 100, 10, 20))),
    )
    with open(os.path.normpath(PATH), "w", encoding="utf-8") as file:
        file.write("// Made by tools/special/make_elementary_reference.py: routine, argument, value.\n")
        for name, f, points in functions:
            for x in points:
                file.write(f"FUNCTION_VALUE({name}, {x!r}, {float(f(mpf(x)))!r})\n")
        rng = random.Random(99)
        for _ in range(12):
            x, y, z, r = (10.0 ** rng.uniform(-6, 6) for _ in range(4))
            file.write(f"CARLSON_VALUE({x!r}, {y!r}, {z!r}, {r!r}, {float(mp.elliprc(x, y))!r}, {float(mp.elliprf(x, y, z))!r}, "
                       f"{float(mp.elliprd(x, y, z))!r}, {float(mp.elliprj(x, y, z, r))!r})\n")
        for a in (1e-3, 0.7, 3.3, 40.0, 1e4):
            for factor in (0.01, 0.6, 0.98, 1.0, 1.05, 1.7, 8.0):
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
            for x, q in ((0.3, 0.2), (0.05, 0.7), (0.4, 0.93)):
                file.write(f"THETA({k}, {x!r}, {q!r}, {float(mp.jtheta(k, mp.pi * mpf(x), mpf(q)).real)!r})\n")
        for x, y, m in ((0.5, 0.25, 0.3), (2.3, -0.7, 0.9), (-1.1, 1.0, 0.05)):
            z = mp.mpc(x, y)
            sn, cn, dn = (mp.ellipfun(kind, z, m=mpf(m)) for kind in ("sn", "cn", "dn"))
            parts = ", ".join(repr(float(v)) for w in (sn, cn, dn) for v in (w.real, w.imag))
            file.write(f"JACOBI({x!r}, {y!r}, {m!r}, {parts})\n")
        for x, y, akp in ((1.0, 0.5, 0.7), (0.2, -2.0, 1.6), (30.0, 3.0, 0.1)):
            z = mp.mpc(x, y)
            f = lambda t: mp.sqrt(1 + mpf(akp) ** 2 * t * t) / (1 + t * t) ** mpf("1.5")
            value = mp.quad(lambda s: f(x * s) * x, [0, 0.1, 1]) + mp.quad(lambda s: f(x + 1j * y * s) * 1j * y, [0, 0.5, 1])
            file.write(f"ELLIPTIC({x!r}, {y!r}, {akp!r}, {float(value.real)!r}, {float(value.imag)!r})\n")


if __name__ == "__main__":
    main()
