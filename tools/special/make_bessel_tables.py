#!/usr/bin/env python3
"""Tables of the Bessel, Airy and Kelvin functions: src/special/{bessel_jy,bessel_ik,airy,kelvin,bessel_order}_tables.hpp.

    tools/special/make_bessel_tables.py [jy ik airy kelvin order]
"""
import os
import sys

import bessel_series as series
from fit import array, double_double, fit, lines, number, pair
from mpmath import mp, mpc, mpf
from piecewise import print_pieces, tile

FOLDER = os.path.join(os.path.dirname(os.path.abspath(__file__)), "..", "..", "src", "special")
TOLERANCE = mpf(2) ** -58  # of the fits for large arguments
SMALL = mpf(1) / 4         # below it: series in z = x^2, with a logarithm
SMALL_TERMS = 7            # (z/4)^7 / 7!^2 < 2^-66 there
JY_END = 66                # beyond the 20th zeros
IK_END = 16
AIRY_BEGIN, AIRY_END = mpf("-20.6875"), 8  # beyond the 20th zeros, half-way between neighbours
KELVIN_J_END = mpf("44.625")
KELVIN_K_END = 16
BEI_BEGIN = mpf(1)         # below it: series in x^4, times x^2
BEI_TERMS = 12


def piecewise(name, what, series_at, begin, end, at_zero=None, oscillating=False, splits=()):
    """`at_zero`: "even" or "odd" for a function whose first piece is centred at 0."""
    begin, end = mpf(begin), mpf(end)
    anchors = [(mpf(0), at_zero == "odd")] if at_zero else []
    if oscillating:
        anchors += series.zeros(series_at, begin + mpf(1) / 8, end)
    return print_pieces(name, what, tile(series_at, begin, end, anchors, splits))


def near_constant_series(name, coefficients, comment):
    return (f"// {comment}\ninline constexpr NearConstantPolynomial<{len(coefficients) - 1}> {name} = {{\n"
            f"    {pair(double_double(coefficients[0]))},\n"
            f"    {{\n{lines([number(c) for c in coefficients[1:]], 8)}}}}};\n")


def large(name, comment, f, end):
    """f(t) on [0, end] as a plain polynomial, with an error that counts after a multiplication with t <= end."""
    coefficients = fit(f, mpf(0), mpf(end), TOLERANCE, scale=lambda t: 1 / mpf(end))
    return array(name, coefficients, comment)


def excess(name, comment, f, end):
    """(f(t) - 1) / t on [0, end], for a function with f(0) = 1."""
    return large(name, comment, lambda t: (f(t) - 1) / t, end)


# ----------------------------------------------------------------------------------------------------------------------
# Series for small arguments
# ----------------------------------------------------------------------------------------------------------------------
def regular(sign, order, terms=SMALL_TERMS):
    """Coefficients of z^k of J (sign -1) or I (sign 1) of order 0, or of order 1 over x."""
    return [(mpf(sign) / 4) ** k / (mp.factorial(k) * mp.factorial(k + order) * 2 ** order) for k in range(terms)]


def logarithmic(sign, order):
    """What comes with the logarithm: c_k (ln 2 + (psi(k+1) + psi(k+1+order)) / 2), c_k from `regular`."""
    psi = mp.digamma
    return [c * (mp.log(2) + (psi(k + 1) + psi(k + 1 + order)) / 2) for k, c in enumerate(regular(sign, order))]


# ----------------------------------------------------------------------------------------------------------------------
# The tables
# ----------------------------------------------------------------------------------------------------------------------
def jy():
    parts = []
    for n in (0, 1):
        parity = "odd" if n else "even"
        parts.append(piecewise(f"kJ{n}", f"J{n} on [0, {JY_END}]", series.j(n), 0, JY_END, parity, True, [8]))
        parts.append(piecewise(f"kY{n}", f"Y{n} on [1/4, {JY_END}]", series.y(n), SMALL, JY_END, None, True, [8]))
    for n in (0, 1):
        def hankel(x):
            """(J + i Y) sqrt(pi x / 2) exp(-i (x - (2 n + 1) pi / 4)), which tends to 1."""
            return (mpc(mp.besselj(n, x), mp.bessely(n, x)) * mp.sqrt(mp.pi * x / 2)
                    * mp.expj((2 * n + 1) * mp.pi / 4 - x))
        end = mpf(1) / JY_END ** 2
        parts.append(excess(f"kModulus{n}", f"(m - 1) / z, m the modulus of J{n} + i Y{n} times sqrt(pi x / 2), in powers of "
                            f"z = 1 / x^2, for x >= {JY_END}", lambda z: abs(hankel(1 / mp.sqrt(z))), end))
        parts.append(large(f"kPhase{n}", f"x times the argument of J{n} + i Y{n} less x - {'3 ' if n else ''}pi / 4, likewise",
                           lambda z: mp.arg(hankel(1 / mp.sqrt(z))) / mp.sqrt(z), end))
    pole = -2 / mp.pi
    parts.append(array("kSmallJ0", regular(-1, 0)[1:], "(J0 - 1) / x^2 in powers of x^2, for x < 1/4"))
    parts.append(array("kSmallJ1", regular(-1, 1), "J1 / x, likewise"))
    parts.append(near_constant_series("kSmallY0", [pole * c for c in logarithmic(-1, 0)],
                                      "Y0 - 2 / pi ln(x) J0, likewise"))
    parts.append(array("kSmallY1", [pole * c for c in logarithmic(-1, 1)],
                       "(Y1 + 2 / (pi x) - 2 / pi ln(x) J1) / x, likewise"))
    return parts


def ik():
    parts = []
    for n in (0, 1):
        parity = "odd" if n else "even"
        parts.append(piecewise(f"kI{n}", f"I{n} on [0, {IK_END}]", series.i(n), 0, IK_END, parity))
        parts.append(piecewise(f"kScaledI{n}", f"exp(-x) I{n} on [0, {IK_END}]", series.i(n, True), 0, IK_END, parity))
        parts.append(piecewise(f"kK{n}", f"K{n} on [1/4, {IK_END}]", series.k(n), SMALL, IK_END, splits=[2, 4]))
        parts.append(piecewise(f"kScaledK{n}", f"exp(x) K{n} on [1/4, {IK_END}]", series.k(n, True), SMALL, IK_END,
                               splits=[2, 4]))
    for n in (0, 1):
        end = mpf(1) / IK_END
        parts.append(excess(f"kLargeI{n}", f"x (sqrt(2 pi x) exp(-x) I{n} - 1) in powers of 1 / x, for x >= {IK_END}",
                            lambda u: mp.besseli(n, 1 / u) * mp.exp(-1 / u) * mp.sqrt(2 * mp.pi / u), end))
        parts.append(excess(f"kLargeK{n}", f"x (sqrt(2 x / pi) exp(x) K{n} - 1), likewise",
                            lambda u: mp.besselk(n, 1 / u) * mp.exp(1 / u) * mp.sqrt(2 / (mp.pi * u)), end))
    parts.append(array("kSmallI0", regular(1, 0)[1:], "(I0 - 1) / x^2 in powers of x^2, for x < 1/4"))
    parts.append(array("kSmallI1", regular(1, 1), "I1 / x, likewise"))
    parts.append(near_constant_series("kSmallK0", logarithmic(1, 0), "K0 + ln(x) I0, likewise"))
    parts.append(array("kSmallK1", [-c for c in logarithmic(1, 1)], "(K1 - 1 / x - ln(x) I1) / x, likewise"))
    return parts


def airy():
    parts = []
    interval = f"[{number(AIRY_BEGIN)}, {AIRY_END}]"
    functions = (("Ai", False, False), ("Bi", True, False), ("AiSlope", False, True), ("BiSlope", True, True))
    for name, second, slope in functions:
        what = name.replace("Slope", "'")
        parts.append(piecewise(f"k{name}", f"{what} on {interval}", series.airy(second, slope), AIRY_BEGIN, AIRY_END,
                               None, True))
    for name, second, slope in functions:
        what = name.replace("Slope", "'")
        f = mp.airybi if second else mp.airyai
        factor = mp.sqrt(mp.pi) * (1 if second else -2 if slope else 2)

        def scaled(u):
            x = (mpf(3) / (2 * u)) ** (mpf(2) / 3)
            power = x ** (mpf(-1 if slope else 1) / 4)
            return f(x, derivative=int(slope)) * power * mp.exp((-1 if second else 1) / u) * factor
        parts.append(excess(f"kLarge{name}", f"zeta (f - 1), f = {what} over its leading term for large x, in powers of "
                            f"1 / zeta, zeta = 2/3 x^(3/2), for x >= {AIRY_END}",
                            scaled, 1 / (mpf(2) / 3 * mpf(AIRY_END) ** mpf(1.5))))
    end = mpf(-1) / AIRY_BEGIN ** 3
    for slope in (0, 1):
        def rotating(x):
            """(Ai + i Bi)(-x), or of the derivatives, over its leading term: it tends to 1."""
            y = mpc(mp.airyai(-x, derivative=slope), mp.airybi(-x, derivative=slope))
            zeta = mpf(2) / 3 * x ** mpf(1.5)
            return y * mp.sqrt(mp.pi) * x ** (mpf(-1 if slope else 1) / 4) * mp.expj(zeta - (2 * slope + 1) * mp.pi / 4)
        name, what = ("Slope", "Ai' + i Bi'") if slope else ("", "Ai + i Bi")
        parts.append(excess(f"kModulus{name}", f"(m - 1) / w, m the modulus of ({what})(-x) over its leading term, in powers "
                            f"of w = 1 / x^3, for x >= {number(-AIRY_BEGIN)}", lambda w: abs(rotating(1 / mp.cbrt(w))), end))
        parts.append(large(f"kPhase{name}", f"x^(3/2) times the argument of ({what})(-x) plus zeta less "
                           f"{'3 ' if slope else ''}pi / 4, likewise",
                           lambda w: mp.arg(rotating(1 / mp.cbrt(w))) / mp.sqrt(w), end))
    return parts


def kelvin():
    parts = []
    parts.append(piecewise("kBer", f"ber on [0, {number(KELVIN_J_END)}]", series.kelvin_j(series.real), 0, KELVIN_J_END,
                           "even", True))
    parts.append(piecewise("kBei", f"bei on [{number(BEI_BEGIN)}, {number(KELVIN_J_END)}]",
                           series.kelvin_j(series.imaginary), BEI_BEGIN, KELVIN_J_END, None, True))
    for name, part in (("Ker", series.real), ("Kei", series.imaginary)):
        parts.append(piecewise(f"k{name}", f"{name.lower()} on [1/4, {KELVIN_K_END}]", series.kelvin_k(part), SMALL,
                               KELVIN_K_END, None, True))

    def rotating(x):
        """ker + i kei over its leading term: it tends to 1."""
        z = x * series.ROTATION_K
        return mp.besselk(0, z) * mp.exp(z) * mp.sqrt(2 * z / mp.pi)
    end = mpf(1) / KELVIN_K_END
    parts.append(excess("kModulus", "x (m - 1), m the modulus of ker + i kei times sqrt(2 x / pi) exp(x / sqrt(2)), in powers "
                        f"of 1 / x, for x >= {KELVIN_K_END}", lambda u: abs(rotating(1 / u)), end))
    parts.append(large("kPhase", "x times the argument of ker + i kei plus x / sqrt(2) + pi / 8, likewise",
                       lambda u: mp.arg(rotating(1 / u)) / u, end))
    # K0(s x) = -ln(x) I0(s x) - i pi/4 I0(s x) + logarithmic part, with s^2 = i and I0(s x) = ber + i bei.
    turned = [mpc(0, 1) ** k * (c - mpc(0, 1) * mp.pi / 4 * r)
              for k, (c, r) in enumerate(zip(logarithmic(1, 0), regular(1, 0)))]
    rotated = [mpc(0, 1) ** k * r for k, r in enumerate(regular(1, 0, BEI_TERMS))]
    parts.append(array("kSmallBer", [mp.re(c) for c in rotated[2:SMALL_TERMS:2]], "(ber - 1) / x^4 in powers of x^4, for x < 1/4"))
    parts.append(near_constant_series("kSmallBei", [mp.im(c) for c in rotated[1::2]], "bei / x^2 in powers of x^4, for x < 1"))
    parts.append(near_constant_series("kSmallKer", [mp.re(c) for c in turned], "ker + ln(x) ber in powers of x^2, for x < 1/4"))
    parts.append(near_constant_series("kSmallKei", [mp.im(c) for c in turned], "kei + ln(x) bei, likewise"))
    return parts


def order():
    """1 / Gamma(1 + x) = sum c_k x^k, split into its even and odd part, for |x| <= 1/2."""
    terms = 24  # 2^-24 c_24 < 2^-90
    c = mp.taylor(lambda x: mp.rgamma(1 + x), 0, terms - 1)
    parts = []
    for name, what, coefficients in (("kReciprocalGammaEven", "Half the sum of 1 / Gamma(1 + x) and 1 / Gamma(1 - x)", c[0::2]),
                                     ("kReciprocalGammaOdd", "Half their difference, over x", c[1::2])):
        body = lines([mp.nstr(x, 25) + "L" for x in coefficients])
        parts.append(f"// {what}, in powers of x^2, for |x| <= 1/2\n"
                     f"inline constexpr std::array<long double, {len(coefficients)}> {name} = {{\n{body}}};\n")
    return parts


TABLES = {
    "jy": ("bessel_jy", "Bessel functions J0, J1, Y0, Y1.", jy),
    "ik": ("bessel_ik", "Modified Bessel functions I0, I1, K0, K1.", ik),
    "airy": ("airy", "Airy functions and their derivatives.", airy),
    "kelvin": ("kelvin", "Kelvin functions.", kelvin),
    "order": ("bessel_order", "Bessel functions of fractional order.", order),
}


def main():
    for key in sys.argv[1:] or TABLES:
        stem, purpose, make = TABLES[key]
        path = os.path.normpath(os.path.join(FOLDER, stem + "_tables.hpp"))
        text = "\n".join(make())
        with open(path, "w", encoding="utf-8") as file:
            file.write(f"// {purpose}\n// Made by tools/special/make_bessel_tables.py: do not edit.\n#pragma once\n\n"
                       '#include "special/piecewise.hpp"\n\n// clang-format off\n'
                       f"namespace kor::special::tables::{stem} {{\n\n{text}"
                       f"\n}} // namespace kor::special::tables::{stem}\n// clang-format on\n")
        print(path)


if __name__ == "__main__":
    main()
