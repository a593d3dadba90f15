#!/usr/bin/env python3
"""Reference values of the complex scalars, from mpmath with 400 bits, rounded once.

    tools/complex_scalars.py > tests/frame/complex_data.inc     writes the data of the tests
    tools/complex_scalars.py --sweep 20000 build/release/libkorc.so
                                                  measures the library at random points, in ulps
"""
import argparse
import ctypes
import math
import random
from fractions import Fraction

import mpmath
from mpmath import mp, mpc, mpf

mp.prec = 400

PI_2 = math.pi / 2
UP, DOWN = 1 + 2.0**-52, 1 - 2.0**-53


def nearest(x):
    """An mpf as the nearest double, subnormal numbers and overflow included."""
    if not mpmath.isfinite(x):
        return float(x)
    sign, man, exp, _ = x._mpf_
    exact = Fraction(int(man)) * Fraction(2)**int(exp) if abs(int(exp)) < 20000 else None
    if exact is None:
        value = math.inf if int(exp) > 0 else 0.0
    else:
        try:
            value = float(exact)
        except OverflowError:
            value = math.inf
    return -value if sign else value


def number(z):
    return mpc(mpf(z[0]), mpf(z[1]))


def tangent(z):
    """By the real formula: mpmath's own tangent loses digits far from the real axis."""
    x, y = z.real, z.imag
    if abs(y) > 2000:
        return mpc(mpf(0), mpmath.sign(y))
    d = mpmath.cos(x)**2 + mpmath.sinh(y)**2
    return mpc(mpmath.sin(x) * mpmath.cos(x) / d, mpmath.sinh(y) * mpmath.cosh(y) / d)


UNARY = {
    "a02dcc": mpmath.sqrt,
    "a02dgc": mpmath.log,
    "a02dhc": mpmath.exp,
    "a02djc": mpmath.sin,
    "a02dkc": mpmath.cos,
    "a02dlc": tangent,
}
REAL = {"a02dac": mpmath.arg, "a02dbc": abs}
BINARY = {"a02ccc": lambda a, b: a * b, "a02cdc": lambda a, b: a / b, "a02dfc": lambda a, b: mpmath.exp(b * mpmath.log(a))}

# Points where formulas break: cuts, the unit circle, poles, both ends of the range.
SPECIAL = [
    (3.0, 4.0), (-3.0, 4.0), (-3.0, -4.0), (-4.0, 0.0), (4.0, 0.0), (0.0, 9.0), (0.0, -2.0), (1.0, 1e-300), (1.0, 1e-155),
    (3e300, 4e300), (-1.7e308, 1.7e308), (1.2e308, -1.2e308), (5e-324, 5e-324), (-3e-310, 4e-310), (-1e300, -1e-300),
    (-1e-300, 1e300), (0.6, 0.8), (-0.8, 0.6), (UP, 1e-9), (DOWN, -1e-8), (0.9999999, 4.4721e-4), (0.7071067811865476, 0.7071067811865475),
    (PI_2, 1e-18), (PI_2, -1e-8), (-PI_2, 0.5), (3 * PI_2, 1e-20), (math.pi, 1e-17), (1e22, 0.75), (2.0, 400.0),
    (1e-300, 709.0), (709.5, 1.25), (1000.0, PI_2), (-745.0, 0.5), (0.3, 1e-12), (1e-9, -1e-9), (2.0, 2000.0), (0.5, 19.0), (1.25, -30.0),
]
PAIRS = [
    ((1.0, 2.0), (3.0, 4.0)), ((-5.0, 10.0), (3.0, -4.0)), ((1.7e308, 1.7e308), (2.0, 2.0)), ((1.0, 1.0), (1.7e308, 1.7e308)),
    ((1.5e308, -1.2e308), (1.1e308, 1.6e308)), ((3e-310, 4e-310), (5e-310, -2e-310)), ((1.0, 1.0), (1.0, 2.0**-1060)),
    ((2.0**1023, 2.0**-1023), (2.0**677, 2.0**-677)), ((2.0**-1074, 2.0**-1074), (2.0**-1073, 2.0**-1074)),
    ((2.0**-622, 2.0**-1071), (2.0**360, 2.0**-798)), ((0.0, 2.0**900), (2.0**500, 2.0**-600)), ((7.0, 3.0), (3.0, 3.0)),
    ((1e300, 1e-300), (1e-200, 1e200)), ((0.1, 0.2), (-0.3, 1e-17)), ((2.0**-1022, 2.0**-1022), (2.0**10, 2.0**-10)),
]
POWERS = [
    ((1.0, 1.0), 4), ((0.6, 0.8), 1000), ((-0.25, 1.75), -7), ((1.5, -0.5), 100), ((1e150, 1e150), 2), ((1e-5, 3e-5), -60),
    ((3.0, 0.0), 33), ((0.9, 0.1), 5000), ((1e-160, 1e-160), 2), ((2.0, 1.0), -800),
]
REAL_POWERS = [
    ((0.0, 4.0), 0.5), ((-1.0, 0.0), 1.5), ((2.5, -1.25), -3.75), ((1.0000001, 1e-7), 1e7), ((1e100, 1e99), 3.0625),
    ((0.5, 0.5), 1000.0), ((1e-200, 1e-220), 1.5), ((7.0, 24.0), 219.75),
]


def untidy(rng):
    """A number of any size: most near 1, some anywhere in the range."""
    mantissa = rng.uniform(1, 2) * rng.choice((-1, 1))
    return math.ldexp(mantissa, rng.randint(-3, 3) if rng.random() < 0.7 else rng.randint(-40, 40))


def points(count, seed):
    rng = random.Random(seed)
    return [(untidy(rng), untidy(rng)) for _ in range(count)]


def parts(value):
    return nearest(value.real), nearest(value.imag)


def literal(x):
    if math.isinf(x):
        return "kInf" if x > 0 else "-kInf"
    return x.hex()


def pair(z):
    return "{" + literal(z[0]) + ", " + literal(z[1]) + "}"


def write():
    print("// Reference values of the complex scalars: made by tools/complex_scalars.py, do not edit.")
    print("// UNARY(routine, z, value), REAL(...), BINARY(routine, z1, z2, value), INTEGER_POWER, REAL_POWER(z, exponent, value)")
    for name, function in UNARY.items():
        for z in SPECIAL + points(14, name):
            print(f"UNARY({name}, ({pair(z)}), ({pair(parts(function(number(z))))}))")
    for name, function in REAL.items():
        for z in SPECIAL + points(14, name):
            print(f"REAL({name}, ({pair(z)}), {literal(nearest(function(number(z))))})")
    for name, function in BINARY.items():
        rng_pairs = list(zip(points(16, name), points(16, name + "2")))
        cases = rng_pairs if name != "a02cdc" else PAIRS + rng_pairs
        for a, b in cases:
            if name == "a02dfc":
                b = (math.remainder(b[0], 37.5), math.remainder(b[1], 17.25))
            print(f"BINARY({name}, ({pair(a)}), ({pair(b)}), ({pair(parts(function(number(a), number(b))))}))")
    for z, n in POWERS:
        print(f"INTEGER_POWER(({pair(z)}), {n}, ({pair(parts(number(z)**n))}))")
    for z, r in REAL_POWERS:
        print(f"REAL_POWER(({pair(z)}), {literal(r)}, ({pair(parts(mpmath.exp(mpf(r) * mpmath.log(number(z)))))}))")


class Complex(ctypes.Structure):
    _fields_ = [("re", ctypes.c_double), ("im", ctypes.c_double)]


def ulps(computed, exact):
    """Distance of a double from an mpf, in units in the last place of the latter."""
    rounded = nearest(exact)
    if not math.isfinite(rounded) or not math.isfinite(computed):
        return 0.0 if computed == rounded else math.inf
    return float(abs(mpf(computed) - exact) / mpf(math.ulp(rounded)))


def sweep(count, path):
    library = ctypes.CDLL(path)
    for name, function in list(UNARY.items()) + list(REAL.items()):
        routine = getattr(library, name)
        routine.argtypes, routine.restype = [Complex], Complex if name in UNARY else ctypes.c_double
        worst, where = 0.0, None
        for z in SPECIAL + points(count, name + "sweep"):
            exact, computed = function(number(z)), routine(Complex(*z))
            if name in UNARY:
                error = max(ulps(computed.re, exact.real), ulps(computed.im, exact.imag))
            else:
                error = ulps(computed, exact)
            if error > worst:
                worst, where = error, z
        print(f"{name}: {worst:.3f} ulps at {where}")
    for name, function in BINARY.items():
        routine = getattr(library, name)
        routine.argtypes, routine.restype = [Complex, Complex], Complex
        worst, where = 0.0, None
        for a, b in PAIRS + list(zip(points(count, name), points(count, name + "2"))):
            if name == "a02dfc":
                b = (math.remainder(b[0], 37.5), math.remainder(b[1], 17.25))
            exact, computed = function(number(a), number(b)), routine(Complex(*a), Complex(*b))
            size = abs(exact)
            if nearest(size) == math.inf or nearest(size) < 1e-290 or not (math.isfinite(computed.re) and math.isfinite(computed.im)):
                continue
            error = float(abs(number((computed.re, computed.im)) - exact) / size * mpf(2)**53)
            if error > worst:
                worst, where = error, (a, b)
        print(f"{name}: {worst:.3f} units of 2^-53 |value| at {where}")


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("--sweep", type=int, help="number of random points")
    parser.add_argument("library", nargs="?")
    arguments = parser.parse_args()
    if arguments.sweep:
        sweep(arguments.sweep, arguments.library)
    else:
        write()


if __name__ == "__main__":
    main()
