#!/usr/bin/env python3
"""Writes src/special/integral_tables.hpp: exponential, cosine and sine integral."""
import os
from fit import *

OUT = os.path.join(os.path.dirname(__file__), "../../src/special/integral_tables.hpp")
TIGHT = mpf(2) ** -57


def e1_less_log(x):
    """E1(x) + ln x."""
    return mp.e1(x) + mp.log(x) if x else -mp.euler


def scaled_e1(x):
    return mp.exp(x) * mp.e1(x)


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


# Ci changes sign at these points; the k-th serves from 3 k - 1 on. What is left without the zero is near constant.
CI_ZEROS = [mp.findroot(mp.ci, x) for x in (0.6, 3.4, 6.4, 9.5, 12.6, 15.7)]


def ci_pieces():
    zero = None

    def factor(x):
        return mp.ci(x) / (x - zero)

    rows, worst = [], mpf(0)
    intervals = list(grid(mpf("0.5"), 16, 4))
    terms = 0
    for final in (False, True):
        for a, b in intervals:
            zero, centre = CI_ZEROS[int((a + 1) / 3)], (a + b) / 2
            if not final:
                terms = max(terms, len(fit(factor, a, b, TIGHT, centre)))
            else:
                head, tail = rounded_near_constant(fit_terms(factor, a, b, terms, centre))
                worst = max(worst, table_error(factor, a, b, head, tail, centre, None, 39))
                rows.append("    {" + pair(head[0]) + ",\n     {" + lines([number(v) for v in tail], 6).lstrip() + "}}")
    return (f"// Ci(x) / (x - zero) on [1/2, 16), pieces of width 1/4; error {mp.nstr(worst, 2)}\n"
            f"inline constexpr UniformPieces<0.5, 4, {len(rows)}, {terms - 1}> kCiFactor = {{{{{{\n" + ",\n".join(rows) + "}}};\n")


parts = [
    near_constant("kE1LessLog", e1_less_log, 0, mpf("0.0625"), mpf(2) ** -56, "E1(x) + ln x, x <= 1/16"),
    pieces("kE1", "BinadePieces<0.0625, 4, {count}, {terms}>", mp.e1, binade_centres(-4, 0, 4), TIGHT,
           "E1 on [1/16, 1), sixteen pieces a binade"),
    pieces("kScaledE1", "BinadePieces<1.0, 3, {count}, {terms}>", scaled_e1, binade_centres(0, 10, 3), TIGHT,
           "exp(x) E1(x) on [1, 1024), eight pieces a binade"),
    pair_constant("kEuler", mp.euler, "Euler's constant"),
    array("kCiSeries", fit(ci_less_log, 0, mpf("0.25"), mpf(2) ** -56),
          "(Ci(x) - ln x - euler) / x^2 in x^2, x <= 1/2"),
    pair_array("kCiZeros", [double_double(z) for z in CI_ZEROS], "zeros of Ci"),
    ci_pieces(),
    near_constant("kSiSlope", si_slope, 0, mpf("1.0001"), TIGHT, "Si(x) / x in x^2, x <= 1"),
    pieces("kSi", "UniformPieces<1.0, 4, {count}, {terms}>", mp.si, grid(1, 16, 4), TIGHT, "Si on [1, 16), pieces of width 1/4"),
    near_constant("kAuxiliaryF", f_tail, 0, mpf(1) / 256, TIGHT, "x f(x) in 1/x^2, x >= 16"),
    near_constant("kAuxiliaryG", g_tail, 0, mpf(1) / 256, TIGHT, "x^2 g(x) in 1/x^2, x >= 16"),
]
header(OUT, "Tables of the exponential, cosine and sine integrals.", "make_integral_tables.py", parts)
