#!/usr/bin/env python3
"""Writes src/special/hyperbolic_tables.hpp: hyperbolic functions and their inverses next to zero."""
import os
from fit import *

OUT = os.path.join(os.path.dirname(__file__), "../../src/special/hyperbolic_tables.hpp")


def odd(f, limit):
    """(f(x) / x - 1) / x^2 in u = x^2."""
    def g(u):
        x = mp.sqrt(u)
        return (f(x) / x - 1) / u if u else limit
    return g


def series(name, f, limit, bound, text):
    g = odd(f, limit)
    b = mpf(bound) ** 2 * mpf("1.0001")
    # What is left of the function beside x is u g(u): its error counts with the weight u |g|.
    c = fit(g, 0, b, mpf(2) ** -59 / b)
    return array(name, c, f"({text} / x - 1) / x^2 in x^2, |x| <= {bound}; error {mp.nstr(table_error(g, 0, b, [], c), 2)}")


def even(u):
    return (mp.cosh(mp.sqrt(u)) - 1) / u if u else mpf(1) / 2


def arccosh_near_one(d):
    """arccosh(1 + d) / sqrt(d)."""
    return mp.acosh(1 + d) / mp.sqrt(d) if d else mp.sqrt(2)


def less_log(f):
    """f(x) - ln(2 x), times x^2, as a function of u = 1/x^2."""
    def g(u):
        with mp.workdps(100):
            x = 1 / mp.sqrt(u)
            return (f(x) - mp.log(2 * x)) * x * x
    return g


def arcs(name, f, limit, text):
    g = less_log(f)
    c = fit(lambda u: g(u) if u else limit, 0, mpf(1) / 256, mpf(2) ** -46)
    return array(name, c, f"({text} - ln(2 x)) x^2 in 1/x^2, x >= 16")


cosh = fit(even, 0, mpf("0.2501"), mpf(2) ** -56)
header(OUT, "Tables of the hyperbolic functions.", "make_hyperbolic_tables.py", [
    series("kSinhSeries", mp.sinh, mpf(1) / 6, 1, "sinh x"),
    array("kCoshSeries", cosh, f"(cosh x - 1) / x^2 in x^2, |x| <= 1/2; error {mp.nstr(table_error(even, 0, mpf('0.25'), [], cosh), 2)}"),
    series("kTanhSeries", mp.tanh, -mpf(1) / 3, 0.5, "tanh x"),
    pieces("kTanh", "BinadePieces<0.5, 3, {count}, {terms}>", mp.tanh, binade_centres(-1, 2, 3), mpf(2) ** -57,
           "tanh on [1/2, 4), eight pieces a binade"),
    series("kArcsinhSeries", mp.asinh, -mpf(1) / 6, 0.25, "arcsinh x"),
    pieces("kArcsinh", "BinadePieces<0.25, 3, {count}, {terms}>", mp.asinh, binade_centres(-2, 4, 3), mpf(2) ** -57,
           "arcsinh on [1/4, 16), eight pieces a binade"),
    arcs("kArcsinhTail", mp.asinh, mpf(1) / 4, "arcsinh x"),
    near_constant("kArccoshNearOne", arccosh_near_one, 0, mpf("0.5"), mpf(2) ** -57, "arccosh(1 + d) / sqrt d, d <= 1/2"),
    pieces("kArccosh", "BinadePieces<1.5, 4, {count}, {terms}>", mp.acosh, [p for p in binade_centres(0, 4, 4) if p[0] >= 1.5],
           mpf(2) ** -57, "arccosh on [3/2, 16), sixteen pieces a binade"),
    arcs("kArccoshTail", mp.acosh, -mpf(1) / 4, "arccosh x"),
    pieces("kArctanh", "BinadePieces<0.25, 4, {count}, {terms}>", mp.atanh,
           [p for p in binade_centres(-2, 0, 4) if p[0] < mpf("0.875")], mpf(2) ** -57,
           "arctanh on [1/4, 7/8), sixteen pieces a binade"),
    series("kArctanhSeries", mp.atanh, mpf(1) / 3, 0.25, "arctanh x"),
    pair_constant("kLn2", mp.log(2), "ln 2"),
])
