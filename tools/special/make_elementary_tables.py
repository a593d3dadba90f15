#!/usr/bin/env python3
"""Writes src/special/elementary_tables.hpp: exponential, logarithm, sine and cosine with a low part."""
import os
from fit import *

OUT = os.path.join(os.path.dirname(__file__), "../../src/special/elementary_tables.hpp")


def split_bits(x, bits):
    """x rounded towards zero to a multiple of 2^-bits, and the rest as a double."""
    hi = mp.floor(abs(x) * mpf(2) ** bits) / mpf(2) ** bits * mp.sign(x)
    return float(hi), float(x - hi)


def exponential():
    n = 64
    step = mp.log(2) / n
    step_hi, step_lo = split_bits(step, 40)  # n step_hi is exact for 34 + 19 bits
    half = step / 2 * mpf("1.001")
    series = fit(lambda r: (mp.expm1(r) - r) / r ** 2 if r else mpf(1) / 2, -half, half, mpf(2) ** -53)
    yield pair_array("kPowersOfTwo", [short_pair(mpf(2) ** (mpf(j) / n)) for j in range(n)], "2^(j/64), the first part of 26 bits")
    yield f"inline constexpr double kExpStepsPerUnit = {number(1 / step)}; // 64 / ln 2"
    yield f"inline constexpr double kExpStepHigh = {number(step_hi)}; // ln 2 / 64, a multiple of 2^-40, and the rest"
    yield f"inline constexpr double kExpStepLow = {number(step_lo)};\n"
    yield array("kExpSeries", series, "(exp(r) - 1 - r) / r^2, |r| <= ln 2 / 128; error " + mp.nstr(
        table_error(lambda r: (mp.expm1(r) - r) / r ** 2 if r else mpf(1) / 2, -half, half, [], series), 2))


def logarithm():
    # m in [45/64, 90/64) in cells of 2^-8 below 1 and 2^-7 from 1 on; next to 1 the factor is exactly 1.
    cells = []
    m = mpf(45) / 64
    while m < mpf(90) / 64:
        width = mpf(2) ** (-8 if m < 1 else -7)
        centre = m + width / 2
        if m == 1 or m + width == 1:
            c = mpf(1)
        else:
            c = mp.nint(2 ** 10 / centre) / 2 ** 10
        cells.append((m, m + width, c))
        m += width
    assert len(cells) == 128
    largest = max(max(abs(a * c - 1), abs(b * c - 1)) for a, b, c in cells)
    rows = []
    for a, b, c in cells:
        hi, lo = split_bits(-mp.log(c), 42)
        rows.append("{" + f"{number(c)}, {number(hi)}, {number(lo)}" + "}")
    g = lambda r: (mp.log1p(r) - r + r ** 2 / 2) / r ** 3 if r else mpf(1) / 3
    series = fit(g, -largest, largest, mpf(2) ** -54)
    ln2_hi, ln2_lo = split_bits(mp.log(2), 42)
    yield ("// m of [45/64, 90/64) in cells: a factor c of at most 11 bits that brings m near 1, and -ln c, its high part a\n"
           "// multiple of 2^-42; in the cells on both sides of 1 the factor is 1\n"
           "struct LogCell {\n    double factor, log_hi, log_lo;\n};\n"
           f"inline constexpr std::array<LogCell, 128> kLogCells = {{{{\n{lines(rows)}}}}};\n")
    yield f"inline constexpr double kLn2High = {number(ln2_hi)}; // ln 2, a multiple of 2^-42, and the rest"
    yield f"inline constexpr double kLn2Low = {number(ln2_lo)};\n"
    yield array("kLogSeries", series, f"(ln(1+r) - r + r^2/2) / r^3, |r| <= {mp.nstr(largest, 5)}; error " + mp.nstr(
        table_error(g, -largest, largest, [], series), 2))
    yield array("kLogBend", [-mpf(1) / 2, *series], "(ln(1+r) - r) / r^2: the same behind one more term")


def sine_cosine():
    n = 32  # steps to pi/4
    step = mp.pi / 128
    rows = []
    for j in range(n + 2):
        rows.append("{" + pair(double_double(mp.sin(j * step))) + ", " + pair(double_double(mp.cos(j * step))) + "}")
    half = step / 2 * mpf("1.01")
    s = lambda r2: (mp.sin(mp.sqrt(r2)) / mp.sqrt(r2) - 1) / r2 if r2 else -mpf(1) / 6
    c = lambda r2: (mp.cos(mp.sqrt(r2)) - 1 + r2 / 2) / r2 ** 2 if r2 else mpf(1) / 24
    ss, cs = fit(s, 0, half ** 2, mpf(2) ** -58), fit(c, 0, half ** 2, mpf(2) ** -56)
    tangents = [mp.tan(j * step) for j in range(n + 2)]
    t = lambda r2: (mp.tan(mp.sqrt(r2)) / mp.sqrt(r2) - 1) / r2 if r2 else mpf(1) / 3
    ts = fit(t, 0, half ** 2, mpf(2) ** -54)
    near = mpf("0.1")
    tn = fit(t, 0, near ** 2, mpf(2) ** -50)
    q = lambda r2: (1 / mp.sqrt(r2) - mp.cot(mp.sqrt(r2))) / mp.sqrt(r2) if r2 else mpf(1) / 3
    cn = fit(q, 0, near ** 2, mpf(2) ** -50)
    step_hi, step_lo = split_bits(step, 48)
    yield ("// sine and cosine of j pi/128\nstruct SineCosine {\n    DoubleDouble sine, cosine;\n};\n"
           f"inline constexpr std::array<SineCosine, {n + 2}> kSineCosine = {{{{\n{lines(rows)}}}}};\n")
    yield f"inline constexpr double kArcStepHigh = {number(step_hi)}; // pi / 128, a multiple of 2^-48, and the rest"
    yield f"inline constexpr double kArcStepLow = {number(step_lo)};"
    yield f"inline constexpr double kArcStepsPerRadian = {number(1 / step)}; // 128 / pi\n"
    yield array("kSineSeries", ss, "(sin(r)/r - 1) / r^2 in r^2, |r| <= pi/256; error " + mp.nstr(
        table_error(s, 0, half ** 2, [], ss), 2))
    yield array("kCosineSeries", cs, "(cos(r) - 1 + r^2/2) / r^4 in r^2, |r| <= pi/256; error " + mp.nstr(
        table_error(c, 0, half ** 2, [], cs), 2))
    cotangents = [mpf(0)] + [1 / x for x in tangents[1:]]
    yield ("// tangents and cotangents of j pi/128; what stands for the cotangent of 0 is not used\n"
           f"inline constexpr std::array<DoubleDouble, {n + 2}> kTangents[2] = {{\n" +
           ",\n".join("    {{" + lines([pair(double_double(x)) for x in row], 6).lstrip() + "}}" for row in (tangents, cotangents)) + "};\n")
    yield array("kTangentSeries", ts, "(tan(r)/r - 1) / r^2 in r^2, |r| <= pi/256; error " + mp.nstr(table_error(t, 0, half ** 2, [], ts), 2))
    yield array("kTangentNearZero", tn, "(tan(r)/r - 1) / r^2 in r^2, |r| <= 0.1; error " + mp.nstr(table_error(t, 0, near ** 2, [], tn), 2))
    yield array("kCotangentNearZero", cn, "(1/r - cot(r)) / r in r^2, |r| <= 0.1; error " + mp.nstr(table_error(q, 0, near ** 2, [], cn), 2))
    rows = []
    for j in range(2 * n + 1):
        cosine = mp.cos(j * step) if j < 2 * n else mpf(0)
        rows.append("{" + ", ".join([pair(double_double(mp.sin(j * step))), number(cosine), pair(short_pair(mp.pi * cosine))]) + "}")
    yield ("// sine and cosine of pi j/128, and pi times the cosine, its high part of 26 bits\n"
           "struct SinePi {\n    DoubleDouble sine;\n    double cosine;\n    DoubleDouble cosine_pi;\n};\n"
           f"inline constexpr std::array<SinePi, {2 * n + 1}> kSinePi = {{{{\n{lines(rows)}}}}};\n")
    bound = (mpf(1) / 256) ** 2 * mpf("1.001")
    sp = lambda u: (mp.sin(mp.pi * mp.sqrt(u)) / mp.sqrt(u) - mp.pi) / u if u else -mp.pi ** 3 / 6
    cp = lambda u: (mp.cos(mp.pi * mp.sqrt(u)) - 1) / u if u else -mp.pi ** 2 / 2
    sps, cps = fit(sp, 0, bound, mpf(2) ** -50), fit(cp, 0, bound, mpf(2) ** -54)
    yield array("kSinePiSeries", sps, "(sin(pi d)/d - pi) / d^2 in d^2, |d| <= 1/256; error " + mp.nstr(table_error(sp, 0, bound, [], sps), 2))
    yield array("kVersinePiSeries", cps, "(cos(pi d) - 1) / d^2 in d^2, |d| <= 1/256; error " + mp.nstr(table_error(cp, 0, bound, [], cps), 2))
    # pi/2 in pieces of 26 bits, whose products with a count below 2^27 are exact.
    rest, parts = mp.pi / 2, []
    for k in range(7):
        bits = 25 + 26 * k
        part = mp.floor(rest * mpf(2) ** bits) / mpf(2) ** bits
        parts.append(part)
        rest -= part
    yield array("kHalfPi", parts, "pi/2 in pieces of 26 bits")
    yield f"inline constexpr double kTwoOverPi = {number(2 / mp.pi)};"
    yield pair_constant("kPi", mp.pi, "pi")


header(OUT, "Tables of the elementary functions with a low part.", "make_elementary_tables.py",
       [*exponential(), *logarithm(), *sine_cosine()])
