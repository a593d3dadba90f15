#!/usr/bin/env python3
"""Prints the tables of src/random: dyadic quantiles of the normal law, and roots of factorials. Needs mpmath."""
from mpmath import erfinv, factorial, mp, mpf, sqrt

mp.dps = 50


def show(name, values):
    print(f"{name}:")
    for i in range(0, len(values), 5):
        print("    " + ", ".join(repr(float(v)) for v in values[i:i + 5]) + ",")


show("kDyadicQuantiles", [sqrt(2) * erfinv(1 - 2 * mpf(2) ** -k) for k in range(1, 42)])
show("kRootOfFactorial", [0] + [factorial(k) ** (-mpf(1) / k) for k in range(1, 171)])
