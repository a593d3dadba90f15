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


cosh = fit(even, 0, mpf("0.2501"), mpf(2) ** -56)
header(OUT, "Tables of the hyperbolic functions.", "make_hyperbolic_tables.py", [
    series("kSinhSeries", mp.sinh, mpf(1) / 6, 1, "sinh x"),
    array("kCoshSeries", cosh, f"(cosh x - 1) / x^2 in x^2, |x| <= 1/2; error {mp.nstr(table_error(even, 0, mpf('0.25'), [], cosh), 2)}"),
    series("kTanhSeries", mp.tanh, -mpf(1) / 3, 0.5, "tanh x"),
    pieces("kTanh", "BinadePieces<0.5, 3, {count}, {terms}>", mp.tanh, binade_centres(-1, 2, 3), mpf(2) ** -57,
           "tanh on [1/2, 4), eight pieces a binade"),
    series("kArcsinhSeries", mp.asinh, -mpf(1) / 6, 0.25, "arcsinh x"),
    series("kArctanhSeries", mp.atanh, mpf(1) / 3, 0.25, "arctanh x"),
    pair_constant("kLn2", mp.log(2), "ln 2"),
])
