#!/usr/bin/env python3
"""Reference values of descriptive statistics: writes tests/stats/descriptive_data.inc. The samples are the univariate ones of
the Statistical Reference Datasets of NIST, with their certified means and standard deviations; the exact moments of the same
samples, rounded to doubles, are computed here, and normal scores by mpmath. W and its significance come from R."""
import os
import subprocess
import textwrap
from fractions import Fraction

import mpmath as mp

mp.mp.dps = 40
ROOT = os.path.join(os.path.dirname(os.path.abspath(__file__)), "..")

LEW = """
-213 -564 -35 -15 141 115 -420 -360 203 -338 -431 194 -220 -513 154 -125 -559 92 -21 -579 -52 99 -543 -175 162 -457
-346 204 -300 -474 164 -107 -572 -8 83 -541 -224 180 -420 -374 201 -236 -531 83 27 -564 -112 131 -507 -254 199 -311
-495 143 -46 -579 -90 136 -472 -338 202 -287 -477 169 -124 -568 17 48 -568 -135 162 -430 -422 172 -74 -577 -13 92 -534
-243 194 -355 -465 156 -81 -578 -64 139 -449 -384 193 -198 -538 110 -44 -577 -6 66 -552 -164 161 -460 -344 205 -281
-504 134 -28 -576 -118 156 -437 -381 200 -220 -540 83 11 -568 -160 172 -414 -408 188 -125 -572 -32 139 -492 -321 205
-262 -504 142 -83 -574 0 48 -571 -106 137 -501 -266 190 -391 -406 194 -186 -553 83 -13 -577 -49 103 -515 -280 201 300
-506 131 -45 -578 -80 138 -462 -361 201 -211 -554 32 74 -533 -235 187 -372 -442 182 -147 -566 25 68 -535 -244 194 -351
-463 174 -125 -570 15 72 -550 -190 172 -424 -385 198 -218 -536 96
""".split()
LOTTERY = """
162 671 933 414 788 730 817 33 536 875 670 236 473 167 877 980 316 950 456 92 517 557 956 954 104 178 794 278 147 773
437 435 502 610 582 780 689 562 964 791 28 97 848 281 858 538 660 972 671 613 867 448 738 966 139 636 847 659 754 243
122 455 195 968 793 59 730 361 574 522 97 762 431 158 429 414 22 629 788 999 187 215 810 782 47 34 108 986 25 644 829
630 315 567 919 331 207 412 242 607 668 944 749 168 864 442 533 805 372 63 458 777 416 340 436 140 919 350 510 572 905
900 85 389 473 758 444 169 625 692 140 897 672 288 312 860 724 226 884 508 976 741 476 417 831 15 318 432 241 114 799
955 833 358 935 146 630 830 440 642 356 373 271 715 367 393 190 669 8 861 108 795 269 590 326 866 64 523 862 840 219
382 998 4 628 305 747 247 34 747 729 645 856 974 24 568 24 694 608 480 410 729 947 293 53 930 223 203 677 227 62 455
387 318 562 242 428 968
""".split()
MAVRO = """
2.00180 2.00170 2.00180 2.00190 2.00180 2.00170 2.00150 2.00140 2.00150 2.00150 2.00170 2.00180 2.00180 2.00190
2.00190 2.00210 2.00200 2.00160 2.00140 2.00130 2.00130 2.00150 2.00150 2.00160 2.00150 2.00140 2.00130 2.00140
2.00150 2.00140 2.00150 2.00160 2.00150 2.00160 2.00190 2.00200 2.00200 2.00210 2.00220 2.00230 2.00240 2.00250
2.00270 2.00260 2.00260 2.00260 2.00270 2.00260 2.00250 2.00240
""".split()
MICHELSO = """
299.85 299.74 299.90 300.07 299.93 299.85 299.95 299.98 299.98 299.88 300.00 299.98 299.93 299.65 299.76 299.81 300.00
300.00 299.96 299.96 299.96 299.94 299.96 299.94 299.88 299.80 299.85 299.88 299.90 299.84 299.83 299.79 299.81 299.88
299.88 299.83 299.80 299.79 299.76 299.80 299.88 299.88 299.88 299.86 299.72 299.72 299.62 299.86 299.97 299.95 299.88
299.91 299.85 299.87 299.84 299.84 299.85 299.84 299.84 299.84 299.89 299.81 299.81 299.82 299.80 299.77 299.76 299.74
299.75 299.76 299.91 299.92 299.89 299.86 299.88 299.72 299.84 299.85 299.85 299.78 299.89 299.84 299.78 299.81 299.76
299.81 299.79 299.81 299.82 299.85 299.87 299.87 299.81 299.74 299.81 299.94 299.95 299.80 299.81 299.87
""".split()

def alternating(first, low, high):
    return [first] + [low, high] * 500


def pi_digits():
    with mp.workdps(5010):
        return list(mp.nstr(+mp.pi, 5005).replace(".", "")[:5000])


# Name, sample, certified mean and standard deviation (with divisor n - 1). The certified values of the digits of pi, 4.5348 and
# 2.86733906028871, are not those of the first 5000 digits: they are left out.
SAMPLES = (
    ("Lew", LEW, "-177.435", "277.332168044316"),
    ("Lottery", LOTTERY, "518.958715596330", "291.699727470969"),
    ("Mavro", MAVRO, "2.001856", "0.000429123454003053"),
    ("Michelso", MICHELSO, "299.8524", "0.0790105478190518"),
    ("NumAcc1", ["10000001", "10000003", "10000002"], "10000002", "1"),
    ("NumAcc2", alternating("1.2", "1.1", "1.3"), "1.2", "0.1"),
    ("NumAcc3", alternating("1000000.2", "1000000.1", "1000000.3"), "1000000.2", "0.1"),
    ("NumAcc4", alternating("10000000.2", "10000000.1", "10000000.3"), "10000000.2", "0.1"),
    ("PiDigits", pi_digits(), None, None),
)


def number(f):
    return mp.mpf(f.numerator) / f.denominator


def moments(sample):
    """Mean, and standard deviation, skewness, kurtosis with divisor n, of fractions."""
    n = len(sample)
    mean = sum(sample) / n
    m2, m3, m4 = (number(sum((v - mean) ** k for v in sample) / n) for k in (2, 3, 4))
    return number(mean), mp.sqrt(m2), m3 / m2 ** mp.mpf("1.5"), m4 / m2 ** 2 - 3


def text(v):
    return mp.nstr(v, 20)


def write_samples(out):
    rows = []
    for name, sample, mean, sd in SAMPLES:
        exact, n = moments([Fraction(s) for s in sample]), len(sample)
        if mean is None:
            mean, sd = text(exact[0]), text(exact[1] * mp.sqrt(mp.mpf(n) / (n - 1)))
        # Guards against slips in the tables above.
        assert abs(exact[0] / mp.mpf(mean) - 1) < 1e-14 and abs(exact[1] * mp.sqrt(mp.mpf(n) / (n - 1)) / mp.mpf(sd) - 1) < 1e-14
        rows.append('    {"%s", std::span{k%s}, %s, %s, %s},\n' % (
            name, name, mean, sd, ", ".join(text(v) for v in moments([Fraction(float(s)) for s in sample]))))
        out.write("constexpr double k%s[] = {\n" % name)
        out.writelines(line + "\n" for line in textwrap.wrap(", ".join(sample), 120))
        out.write("};\n")
    out.write("\n// Certified mean and standard deviation; mean, standard deviation, skewness and kurtosis of the doubles.\n")
    out.write("constexpr Sample kSamples[] = {\n")
    out.writelines(rows)
    out.write("};\n\n")


def normal_score(i, n):
    """By the trapezoidal rule, exact for densities like this one; the mass must come out as 1."""
    p = mp.mpf(i) / (n + 1)
    centre = mp.sqrt(2) * mp.erfinv(2 * p - 1)
    step = min(mp.sqrt(p * (1 - p) / n) / mp.npdf(centre), mp.mpf(1)) / 8
    mass = first = mp.mpf(0)
    for k in range(-240, 241):
        x = centre + k * step
        density = mp.ncdf(x) ** (i - 1) * mp.ncdf(-x) ** (n - i) * mp.npdf(x)
        mass += density
        first += x * density
    scale = step / mp.beta(i, n - i + 1)
    assert abs(mass * scale - 1) < 1e-22
    return first * scale


def write_scores(out):
    out.write("constexpr Score kScores[] = {\n")
    for n in (2, 3, 5, 8, 21, 100, 777):
        for i in sorted({1, 2, max(1, n // 3), n // 2}):
            out.write("    {%d, %d, %s},\n" % (n, i, text(normal_score(i, n))))
    out.write("};\n\n")


def write_shapiro(out):
    """Samples t + c t^3, t = (2i - n - 1) / n."""
    out.write("constexpr Shapiro kShapiro[] = {\n")
    for n in (3, 4, 5, 6, 11, 12, 50, 777, 2000):
        for c in (0.0, 3.0, -0.2):
            code = "i=1:%d;t=(2*i-%d-1)/%d;r=shapiro.test(t+%r*t^3+0.3*(i==%d));cat(sprintf('%%.17g %%.17g',r$statistic,r$p.value))" % (
                n, n, n, c, n)
            w, p = subprocess.run(["Rscript", "-e", code], capture_output=True, text=True, check=True).stdout.split()
            out.write("    {%d, %r, %s, %s},\n" % (n, c, w, p))
    out.write("};\n")


if __name__ == "__main__":
    with open(os.path.join(ROOT, "tests", "stats", "descriptive_data.inc"), "w", encoding="utf-8") as file:
        file.write("// Written by tools/descriptive_reference.py. clang-format off\n")
        write_samples(file)
        write_scores(file)
        write_shapiro(file)
