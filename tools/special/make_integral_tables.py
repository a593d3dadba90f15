#!/usr/bin/env python3
"""Writes src/special/integral_tables.hpp: exponential, cosine and sine integral."""
import os
from fit import *
import piecewise

OUT = os.path.join(os.path.dirname(__file__), "../../src/special/integral_tables.hpp")
TIGHT = mpf(2) ** -57


def e1_less_log(x):
    """E1(x) + ln x."""
    return mp.e1(x) + mp.log(x) if x else -mp.euler


def scaled_e1(x):
    return mp.exp(x) * mp.e1(x)


def e1_tail(u):
    """x exp(x) E1(x) as a function of u = 1/x."""
    return mp.exp(1 / u) * mp.e1(1 / u) / u if u else mpf(1)


def auxiliary(x):
    """f and g of the cosine and sine integrals."""
    with mp.workdps(80):
        ci, si, c, s = mp.ci(x), mp.si(x) - mp.pi / 2, mp.cos(x), mp.sin(x)
        return ci * s - si * c, -ci * c - si * s


def f_tail(u):
    """x f(x) as a function of u = 1/x^2."""
    if u == 0:
        return mpf(1)
    x = 1 / mp.sqrt(u)
    return x * auxiliary(x)[0]


def g_tail(u):
    """x^2 g(x) as a function of u = 1/x^2."""
    if u == 0:
        return mpf(1)
    x = 1 / mp.sqrt(u)
    return x * x * auxiliary(x)[1]


def ci_less_log(u):
    """(Ci(x) - ln x - euler) / x^2 as a function of u = x^2."""
    x = mp.sqrt(u)
    return (mp.ci(x) - mp.log(x) - mp.euler) / u if u else -mpf(1) / 4


def si_slope(u):
    x = mp.sqrt(u)
    return mp.si(x) / x if u else mpf(1)


def integral_series(value, waves):
    """Taylor series of a function with derivative wave(x) / x; `waves`: the derivatives of the wave at the centre."""
    def at(centre):
        cycle = waves(centre)
        series, quotient, factorial = [value(centre)], mpf(0), mpf(1)
        for k in range(piecewise.SERIES - 1):
            if k:
                factorial *= k
            quotient = (cycle[k % 4] / factorial - quotient) / centre
            series.append(quotient / (k + 1))
        return series
    return at


ci_series = integral_series(mp.ci, lambda x: [mp.cos(x), -mp.sin(x), -mp.cos(x), mp.sin(x)])
si_series = integral_series(mp.si, lambda x: [mp.sin(x), mp.cos(x), -mp.sin(x), -mp.cos(x)])
ci_zeros = [(mp.findroot(mp.ci, x), True) for x in (0.6, 3.4, 6.4, 9.5, 12.6, 15.7)]

parts = [
    near_constant("kE1LessLog", e1_less_log, 0, mpf("0.25"), mpf(2) ** -56, "E1(x) + ln x, x <= 1/4"),
    pieces("kScaledE1", "BinadePieces<0.25, 3, {count}, {terms}>", scaled_e1, binade_centres(-2, 4, 3), TIGHT,
           "exp(x) E1(x) on [1/4, 16), eight pieces a binade"),
    near_constant("kE1Tail", e1_tail, 0, mpf(1) / 16, TIGHT, "x exp(x) E1(x) in 1/x, x >= 16"),
    pair_constant("kEuler", mp.euler, "Euler's constant"),
    array("kCiSeries", fit(ci_less_log, 0, mpf("0.25"), mpf(2) ** -56),
          "(Ci(x) - ln x - euler) / x^2 in x^2, x <= 1/2"),
    piecewise.print_pieces("kCi", "Ci on [1/2, 16), zeros at the centres of their pieces",
                           piecewise.tile(ci_series, 0.5, 16, ci_zeros)),
    near_constant("kSiSlope", si_slope, 0, mpf("1.0001"), TIGHT, "Si(x) / x in x^2, x <= 1"),
    piecewise.print_pieces("kSi", "Si on [1, 16)", piecewise.tile(si_series, 1, 16)),
    near_constant("kAuxiliaryF", f_tail, 0, mpf(1) / 256, TIGHT, "x f(x) in 1/x^2, x >= 16"),
    near_constant("kAuxiliaryG", g_tail, 0, mpf(1) / 256, TIGHT, "x^2 g(x) in 1/x^2, x >= 16"),
]
header(OUT, "Tables of the exponential, cosine and sine integrals.", "make_integral_tables.py", parts,
       ["special/piecewise.hpp"])
