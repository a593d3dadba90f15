"""Polynomial approximations and their C++ tables: shared by the make_*_tables.py scripts of this folder.

A polynomial interpolates at the Chebyshev points of its interval, in mpmath arithmetic, and is turned into powers of the
distance from a centre. That is within a small factor of the best approximation, and an extra coefficient is cheaper than
Remez's last bit. Errors quoted in the tables are measured with the rounded coefficients, in exact arithmetic.
"""
from mpmath import mp, mpf, matrix, cos, pi, chop

mp.dps = 60


def double_double(x):
    """x as a pair of doubles, the first x rounded."""
    hi = float(x)
    return hi, float(mpf(x) - mpf(hi))


def short_pair(x):
    """x as a pair of doubles, the first of 26 bits."""
    if x == 0:
        return 0.0, 0.0
    mantissa, exponent = mp.frexp(x)
    hi = float(mp.ldexp(mp.nint(mp.ldexp(mantissa, 26)), exponent - 26))
    return hi, float(mpf(x) - mpf(hi))


def chebyshev_coefficients(f, a, b, n):
    """Coefficients on [a, b] of the interpolant of f with n terms."""
    points = [cos(pi * (k + mpf(1) / 2) / n) for k in range(n)]
    values = [f((a + b) / 2 + (b - a) / 2 * t) for t in points]
    return [2 / mpf(n) * sum(v * cos(pi * j * (k + mpf(1) / 2) / n) for k, v in enumerate(values)) / (2 if j == 0 else 1)
            for j in range(n)]


def powers_from_chebyshev(c, a, b, centre):
    """Coefficients of powers of x - centre of sum c_j T_j((2 x - a - b) / (b - a))."""
    slope, shift = 2 / (b - a), (2 * centre - a - b) / (b - a)  # t = slope (x - centre) + shift
    previous, current = [mpf(1)], [shift, slope]
    total = [mpf(0)] * len(c)
    for j, cj in enumerate(c):
        if j == 0:
            term = previous
        elif j == 1:
            term = current
        else:
            term = [2 * shift * p for p in current] + [mpf(0)]
            for i, p in enumerate(current):
                term[i + 1] += 2 * slope * p
            for i, p in enumerate(previous):
                term[i] -= p
            previous, current = current, term
        for i, p in enumerate(term):
            total[i] += cj * p
    return total


def fit(f, a, b, tolerance, centre=0, scale=None, max_terms=40):
    """Shortest interpolant with |error| <= tolerance * scale(x); scale defaults to |f|. Returns powers of x - centre."""
    a, b, centre = mpf(a), mpf(b), mpf(centre)
    long = chebyshev_coefficients(f, a, b, max_terms)
    samples = [(a + b) / 2 + (b - a) / 2 * cos(pi * (k + mpf(1) / 3) / 50) for k in range(50)]
    floor = min(abs(f(x)) if scale is None else scale(x) for x in samples)
    # The sum of what is cut off bounds the error of the series that is kept.
    n = max_terms
    cut = mpf(0)
    while n > 1 and cut + abs(long[n - 1]) <= tolerance * floor:
        cut += abs(long[n - 1])
        n -= 1
    if n == max_terms:
        raise ValueError(f"no fit on [{a}, {b}]: last coefficient {long[-1]}")
    return powers_from_chebyshev(long[:n], a, b, centre)


def fit_terms(f, a, b, n, centre=0):
    """The interpolant with n terms."""
    a, b, centre = mpf(a), mpf(b), mpf(centre)
    return powers_from_chebyshev(chebyshev_coefficients(f, a, b, n), a, b, centre)


def rounded(coefficients, heads):
    """What a table holds of the coefficients: pairs for the first `heads`, doubles behind."""
    return ([double_double(c) for c in coefficients[:heads]], [float(c) for c in coefficients[heads:]])


def rounded_near_linear(coefficients):
    """Head, and the tail behind the short part of the slope, which is returned in the middle."""
    slope, slope_low = short_pair(coefficients[1])
    return [double_double(coefficients[0])], slope, [slope_low, *(float(c) for c in coefficients[2:])]


def rounded_near_constant(coefficients):
    return ([short_pair(coefficients[0])], [float(c) for c in coefficients[1:]])


def table_error(f, a, b, heads, tail, centre=0, scale=None, samples=200):
    """Largest error of the rounded table, relative to scale(x) (|f| by default)."""
    a, b, centre = mpf(a), mpf(b), mpf(centre)
    c = [mpf(h) + mpf(l) for h, l in heads] + [mpf(t) for t in tail]
    worst = mpf(0)
    for k in range(samples + 1):
        x = a + (b - a) * (k + mpf(1) / 100) / (samples + mpf(1) / 50)  # inside: the ends may belong to a neighbour
        y = f(x)
        s = abs(y) if scale is None else scale(x)
        if s == 0:
            continue
        p = mpf(0)
        for coefficient in reversed(c):
            p = p * (x - centre) + coefficient
        worst = max(worst, abs(p - y) / s)
    return worst


# ----------------------------------------------------------------------------------------------------------------------
# C++ text
# ----------------------------------------------------------------------------------------------------------------------

def number(x):
    return repr(float(x))


def lines(items, indent=4, width=118):
    """Items joined with commas, broken into lines."""
    out, line = [], " " * indent
    for i, item in enumerate(items):
        item += "," if i + 1 < len(items) else ""
        if len(line) + len(item) > width and line.strip():
            out.append(line.rstrip())
            line = " " * indent
        line += item + " "
    out.append(line.rstrip())
    return "\n".join(out)


def braces(values):
    return "{" + ", ".join(number(v) for v in values) + "}"


def pair(p):
    return braces(p)


def array(name, values, comment):
    body = lines([number(v) for v in values])
    return f"// {comment}\ninline constexpr std::array<double, {len(values)}> {name} = {{\n{body}}};\n"


def pair_array(name, values, comment):
    body = lines([pair(p) for p in values])
    return f"// {comment}\ninline constexpr std::array<DoubleDouble, {len(values)}> {name} = {{{{\n{body}}}}};\n"


def pair_constant(name, value, comment):
    return f"// {comment}\ninline constexpr DoubleDouble {name} = {pair(double_double(value))};\n"


def extended_polynomial(name, f, a, b, tolerance, heads, comment, centre=0, scale=None):
    """ExtendedPolynomial<heads, .> for f on [a, b] in powers of x - centre."""
    head, tail = rounded(fit(f, a, b, tolerance, centre, scale), heads)
    error = table_error(f, a, b, head, tail, centre, scale)
    return (f"// {comment}; error {mp.nstr(error, 2)}\n"
            f"inline constexpr ExtendedPolynomial<{heads}, {len(tail)}> {name} = {{\n"
            f"    {{{{{', '.join(pair(p) for p in head)}}}}},\n"
            f"    {{\n{lines([number(v) for v in tail], 8)}}}}};\n")


def near_constant(name, f, a, b, tolerance, comment, centre=0):
    head, tail = rounded_near_constant(fit(f, a, b, tolerance, centre))
    error = table_error(f, a, b, head, tail, centre)
    return (f"// {comment}; error {mp.nstr(error, 2)}\n"
            f"inline constexpr NearConstantPolynomial<{len(tail)}> {name} = {{\n"
            f"    {pair(head[0])},\n"
            f"    {{\n{lines([number(v) for v in tail], 8)}}}}};\n")


def binade_centres(first, last, cuts_log2):
    """(a, b) of the pieces of [2^first, 2^last), each binade cut into 2^cuts_log2 equal pieces."""
    for e in range(first, last):
        width = mpf(2) ** (e - cuts_log2)
        for k in range(2 ** cuts_log2):
            yield mpf(2) ** e + k * width, mpf(2) ** e + (k + 1) * width


def grid(first, last, per_unit):
    """(a, b) of the pieces of [first, last), each of width 1/per_unit."""
    for k in range(int(first * per_unit), int(last * per_unit)):
        yield mpf(k) / per_unit, mpf(k + 1) / per_unit


def pieces(name, type_text, f, intervals, tolerance, comment, scale=None, centre_of=None, near_linear=False):
    """One NearConstantPolynomial, or NearLinearPolynomial, a piece, all of one length."""
    intervals = list(intervals)
    centres = [centre_of(a, b) if centre_of else (a + b) / 2 for a, b in intervals]
    fits = [fit(f, a, b, tolerance, c, scale) for (a, b), c in zip(intervals, centres)]
    n = max(len(c) for c in fits)
    rows, worst = [], mpf(0)
    for (a, b), centre in zip(intervals, centres):
        coefficients = fit_terms(f, a, b, n, centre)
        if near_linear:
            head, slope, tail = rounded_near_linear(coefficients)
            whole, first = [mpf(slope) + mpf(tail[0]), *tail[1:]], f"{pair(head[0])}, {number(slope)}"
        else:
            head, tail = rounded_near_constant(coefficients)
            whole, first = tail, pair(head[0])
        worst = max(worst, table_error(f, a, b, head, whole, centre, scale, 40))
        rows.append("    {" + first + ",\n     {" + lines([number(v) for v in tail], 6).lstrip() + "}}")
    return (f"// {comment}; error {mp.nstr(worst, 2)}\n"
            f"inline constexpr {type_text.format(count=len(rows), terms=n - 1)} {name} = {{{{{{\n" + ",\n".join(rows) + "}}};\n")


def header(path, purpose, script, parts, system=(), own=("special/evaluate.hpp",)):
    """Writes the header `path`; `system`, `own`: standard headers and headers of the library that it needs."""
    standard = "".join(f"#include <{name}>\n" for name in system) + ("\n" if system else "")
    text = (f"// {purpose}\n// Made by tools/special/{script}: do not edit.\n#pragma once\n\n"
            f"{standard}" + "".join(f"#include \"{name}\"\n" for name in own) + "\n"
            "// clang-format off\nnamespace kor::special::tables {\n\n" + "\n".join(parts) + "\n} // namespace kor::special::tables\n")
    with open(path, "w") as f:
        f.write(text)
    print(path)
