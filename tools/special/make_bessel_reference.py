#!/usr/bin/env python3
"""Reference values of the Bessel, Airy and Kelvin functions: tests/special/bessel_*data.inc, one macro a line.

bessel_data.inc: functions of one variable, at untidy arguments in each range, both sides of the splits, the doubles next to
zeros, and the ends of the domains. bessel_order_data.inc: fractional orders, sequences of orders, and zeros.
bessel_complex_data.inc: complex arguments in all sectors and on both sides of the cut.
"""
import math
import os
import random

from mpmath import mp, mpf

mp.dps = 50
FOLDER = os.path.join(os.path.dirname(os.path.abspath(__file__)), "..", "..", "tests", "special")


def write(name, what, lines):
    with open(os.path.normpath(os.path.join(FOLDER, name)), "w", encoding="utf-8") as file:
        file.write(f"// Made by tools/special/make_bessel_reference.py: {what}.\n")
        file.writelines(line.replace("inf", "HUGE_VAL") + "\n" for line in lines)


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


def functions_of_one_variable():
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
            table.append(f"BESSEL_VALUE({name}, {x!r}, {float(value)!r})")
    write("bessel_data.inc", "routine, argument, value", table)


def fractional_orders():
    """ORDER_VALUE(routine, x, order, value): the function without its scaling is e.g. I of that order at x > 0."""
    table = []
    points = spread(1e-8, 1.0, 3, 10) + spread(1.0, 30.0, 5, 11) + spread(30.0, 700.0, 3, 12) + [3.0, 37.5]
    for nu in (-3, -2, -1, 1, 2, 3):
        for x in points:
            mp.dps = 60
            v, z = mpf(nu) / 4, mpf(x)
            table += [f"QUARTER_VALUE(s18ecc, {x!r}, {nu}, {float(mp.besseli(v, z) * mp.exp(-z))!r})",
                      f"QUARTER_VALUE(s18eec, {x!r}, {nu}, {float(mp.besseli(v, z))!r})",
                      f"QUARTER_VALUE(s18edc, {x!r}, {nu}, {float(mp.besselk(v, z) * mp.exp(z))!r})",
                      f"QUARTER_VALUE(s18efc, {x!r}, {nu}, {float(mp.besselk(v, z))!r})"]
    for ia, ja in ((0, 1), (1, 4), (1, 3), (1, 2), (2, 3), (3, 4)):
        for x in (0.0123, 1.7, 3.3, 23.0, 40.0, 650.0):
            for k in (0, 1, 7, 100):
                v = mpf(ia) / ja + k
                value = mp.besselk(v, mpf(x))
                table.append(f"K_VALUE({ia}, {ja}, {x!r}, {k}, {float(value)!r}, {float(value * mp.exp(mpf(x)))!r})")
    for a in (0.0, 0.1, 0.5, 0.999):
        for x in (-40.0, -1.3, 0.0123, 2.7, 3.3, 19.0, 45.0, 600.0):
            for k in (0, 1, 6, 101, -1, -6, -101):
                v = mpf(a) + k
                # The branch of a negative argument: exp(i pi v) times the value at |x|.
                turn = mp.expjpi(v) if x < 0 else mpf(1)
                for routine, f in (("s18ejc", mp.besseli), ("s18ekc", mp.besselj)):
                    if a == 0.0:  # integer orders: J_(-n) = (-1)^n J_n, I_(-n) = I_n
                        size = f(abs(k), mpf(abs(x))) * ((-1) ** k if k < 0 and routine == "s18ekc" else 1)
                    else:
                        size = f(v, mpf(abs(x)))
                    value = mp.mpc(turn * size)
                    re, im = (float(value.real) if a != 0.5 or x > 0 else 0.0), (float(value.imag) if a != 0.0 else 0.0)
                    if 1e-300 < abs(size) < 1e300:
                        table.append(f"SEQUENCE_VALUE({routine}, {x!r}, {a!r}, {k}, {re!r}, {im!r})")
    for a in (0.0, 0.3, 1.0, 7.7, 60.0):
        for mode, zero in ((1, lambda k: mp.besseljzero(mpf(a), k)), (2, lambda k: mp.besselyzero(mpf(a), k)),
                           (3, lambda k: mp.besseljzero(mpf(a), k, 1)), (4, lambda k: mp.besselyzero(mpf(a), k, 1))):
            mp.dps = 30
            for k in (1, 2, 5, 40):
                table.append(f"ZERO_VALUE({a!r}, {mode}, {k}, {float(zero(k))!r})")
    write("bessel_order_data.inc", "routine, argument, order, value; zeros: order, mode, index, value", table)


def complex_arguments():
    """COMPLEX_VALUE(kernel, order, re, im, value re, value im, size)."""
    rng = random.Random(13)
    table = []
    for modulus in (1e-6, 0.3, 2.9, 3.2, 12.0, 26.0, 38.0, 300.0):
        for eighth in range(8):
            angle = (eighth + rng.random()) * mp.pi / 4
            x, y = float(modulus * mp.cos(angle)), float(modulus * mp.sin(angle))
            if eighth == 3:
                x, y = -modulus, 0.0
            if eighth == 4:
                x, y = -modulus, -0.0
            if eighth == 6:
                x, y = 0.0, -modulus
            order = rng.choice([0.0, 0.25, 0.5, 1.0, 2.75, 40.5])
            mp.dps = 40 + int(modulus)
            v, z = mpf(order), mp.mpc(x, y)
            for kernel, f in (("s17def_f", mp.besselj), ("s17dcf_f", mp.bessely), ("s18def_f", mp.besseli),
                              ("s18dcf_f", mp.besselk)):
                below = math.copysign(1.0, y) < 0 and y == 0.0
                at = lambda w: mp.mpc(mp.conj(f(w, mp.conj(z))) if below else f(w, z))
                value = at(v)
                # Next to a zero errors count against the neighbours in order.
                size = max(abs(value), min(abs(at(v + 1)), abs(at(v - 1)) if v >= 1 else mp.inf))
                if 1e-280 < abs(value) < 1e300:
                    table.append(f"COMPLEX_VALUE({kernel}, {order!r}, {x!r}, {y!r}, {float(value.real)!r}, "
                                 f"{float(value.imag)!r}, {float(size):.3g})")
    write("bessel_complex_data.inc", "kernel, order, argument, value, size against which errors count", table)


def main():
    functions_of_one_variable()
    fractional_orders()
    complex_arguments()


if __name__ == "__main__":
    main()
