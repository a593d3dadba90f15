#!/usr/bin/env python3
"""Reference values of the laws of chapter g01, by mpmath at 30 digits and more: writes laws_data.inc, discrete_laws_data.inc,
noncentral_laws_data.inc, bivariate_normal_data.inc and studentized_range_data.inc in tests/stats, and distributions_data.inc
in bench/stats. With a library as argument it prints the largest errors of that library over other points instead."""
import ctypes
import itertools
import os
import random
import sys

import mpmath as mp

# So many that one minus a tail of 1e-300 keeps its digits.
mp.mp.dps = 400
ROOT = os.path.join(os.path.dirname(os.path.abspath(__file__)), "..")
SMALLEST = mp.mpf("1e-300")


def below_mean(a, b, x, y):
    """I_x(a, b) for x below the mean: a series of positive terms."""
    term = total = mp.mpf(1)
    cut, k = mp.mpf(10) ** -mp.mp.dps, 0
    while term > total * cut:
        term *= x * (a + b + k) / (a + 1 + k)
        total += term
        k += 1
    return total * mp.exp(a * mp.log(x) + b * mp.log(y) + mp.loggamma(a + b) - mp.loggamma(a + 1) - mp.loggamma(b))


def beta(a, b, x, y):
    a, b = mp.mpf(a), mp.mpf(b)
    # A power of x with a small shape has no short series on the other side: all digits, then.
    if a < 1 and x < 0.5:
        p = below_mean(a, b, x, y)
        return p, 1 - p
    below = x * (a + b) <= a
    with mp.workdps(60):
        tail = below_mean(a, b, +x, +y) if below else below_mean(b, a, +y, +x)
        return (tail, 1 - tail) if below else (1 - tail, tail)


def gamma(a, x):
    a, x = mp.mpf(a), mp.mpf(x)
    term = total = mp.mpf(1)
    cut, k = mp.mpf(10) ** -mp.mp.dps, 1
    while term > total * cut:
        term *= x / (a + k)
        total += term
        k += 1
    p = total * mp.exp(a * mp.log(x) - x - mp.loggamma(a + 1))
    return p, 1 - p


def normal(x):
    x = mp.mpf(x)
    return mp.erfc(-x / mp.sqrt(2)) / 2, mp.erfc(x / mp.sqrt(2)) / 2


def beta_by_quadrature(a, b, w):
    """Both tails at odds w, for shapes of all sizes: the integral of x^a y^b / B(a, b) over the logarithm of the odds, from w
    away from the mean."""
    with mp.workdps(50):
        a, b, s = mp.mpf(a), mp.mpf(b), mp.log(w)
        log_beta = mp.loggamma(a) + mp.loggamma(b) - mp.loggamma(a + b)
        # Both powers without cancellation.
        log_f = lambda s: (-a * mp.log1p(mp.exp(-s)) if s > 0 else a * (s - mp.log1p(mp.exp(s)))) + (
            -b * mp.log1p(mp.exp(s)) if s < 0 else b * (-s - mp.log1p(mp.exp(-s)))) - log_beta
        x = 1 / (1 + mp.exp(-s))
        surplus = b * x - a * (1 - x)
        outward = 1 if surplus > 0 else -1
        unit = 1 / max(abs(surplus), 1 / mp.sqrt(1 / a + 1 / b))
        top = log_f(s)
        points, step = [s], unit * outward
        while log_f(points[-1]) > top - 75:
            points.append(points[-1] + step)
            step *= 1.5
        tail = mp.quad(lambda t: mp.exp(log_f(t) - top) / unit, points) * outward * unit * mp.exp(top)
        return (1 - tail, tail) if outward > 0 else (tail, 1 - tail)


def f_of_all_sizes(f, df1, df2):
    return beta_by_quadrature(mp.mpf(df1) / 2, mp.mpf(df2) / 2, mp.mpf(df1) * mp.mpf(f) / mp.mpf(df2))


def t_of_all_sizes(t, df):
    return beta_by_quadrature(mp.mpf(1) / 2, mp.mpf(df) / 2, mp.mpf(t) ** 2 / mp.mpf(df))


def beta_of_double(x, a, b):
    return beta(a, b, mp.mpf(x), 1 - mp.mpf(x))


def f_law(f, df1, df2):
    w = mp.mpf(df1) * mp.mpf(f) / mp.mpf(df2)
    return beta(mp.mpf(df1) / 2, mp.mpf(df2) / 2, w / (1 + w), 1 / (1 + w))


def t_law(t, df):
    return f_law(mp.mpf(t) ** 2, 1, df)


def odds(draw, a, b):
    """Odds at which a beta law has tails of all sizes."""
    spread = (1 / a + 1 / b) ** 0.5
    return a / b * float(mp.exp(draw(-1, 1) * spread * draw(0, 38)))


def points(draw, count, large):
    shape = lambda: 10 ** draw(-3, large)
    for _ in range(count):
        yield "kNormal", (0.0, 0.0), draw(-38, 38)
        df = 1 + 10 ** draw(-3, large)
        w = odds(draw, 0.5, df / 2)
        yield "kStudent", (df, 0.0), (w * df) ** 0.5
        df1, df2 = shape(), shape()
        yield "kF", (df1, df2), odds(draw, df1 / 2, df2 / 2) * df2 / df1
        a, b = shape(), shape()
        w = odds(draw, a, b)
        yield "kBeta", (a, b), w / (1 + w)
        a = min(shape(), 300.0)
        yield "kGamma", (a, 0.0), a * float(mp.exp(draw(-1, 1) * draw(0, 38) * a ** -0.5)) if a > 1 else 10 ** draw(-9, 2.5)


LAWS = {
    "kNormal": lambda x, p1, p2: normal(x),
    "kStudent": lambda x, df, p2: t_law(x, df),
    "kF": f_law,
    "kBeta": beta_of_double,
    "kGamma": lambda x, a, p2: gamma(a, x),
}


def references(seed, count, large):
    draw = random.Random(seed).uniform
    for law, (p1, p2), x in points(draw, count, large):
        if not (1e-290 < abs(x) < 1e290) or (law == "kBeta" and not 0 < x < 1):
            continue
        lower, upper = LAWS[law](x, p1, p2)
        if min(lower, upper) > SMALLEST:
            yield law, p1, p2, x, lower, upper


def large_references(seed, count):
    """F and t with degrees of freedom from 1e-3 to 1e10, in pairs of all proportions."""
    draw = random.Random(seed).uniform
    for k in range(count):
        df1, df2 = 10 ** draw(-3, 10), 10 ** draw(-3, 10)
        if k % 3 == 0:
            df1 = 10 ** draw(2, 10)
            df2 = df1 * 10 ** draw(-1, 1)
        for law, parameters, f in (
                ("kF", (df1, df2), odds(draw, df1 / 2, df2 / 2) * df2 / df1),
                ("kStudent", (1 + df2, 0.0), (odds(draw, 0.5, (1 + df2) / 2) * (1 + df2)) ** 0.5)):
            if not 1e-290 < f < 1e290:
                continue
            lower, upper = f_of_all_sizes(f, df1, df2) if law == "kF" else t_of_all_sizes(f, parameters[0])
            if min(lower, upper) > SMALLEST:
                yield law, parameters[0], parameters[1], f, lower, upper


def write_laws(path, rows):
    with open(os.path.join(ROOT, path), "w", encoding="utf-8") as out:
        out.write("// Written by tools/stats_reference.py: law, parameters, x, lower and upper tail (two-sided for Student).\n")
        for law, p1, p2, x, lower, upper in rows:
            out.write("{%s, %r, %r, %r, %s, %s},\n" % (law, p1, p2, x, mp.nstr(lower, 20), mp.nstr(upper, 20)))


def sides(first, ratio, last):
    """first (1 + ratio(0) + ratio(0) ratio(1) + ...), without its first term."""
    term, total, j = first, mp.mpf(0), 0
    while j < last and term > (total + first) * mp.mpf(10) ** -60:
        term *= ratio(j)
        total += term
        j += 1
    return total


def binomial(n, p, k):
    p = mp.mpf(p)
    equal = mp.exp(mp.loggamma(n + 1) - mp.loggamma(k + 1) - mp.loggamma(n - k + 1) + k * mp.log(p) + (n - k) * mp.log(1 - p))
    if k < n * p:
        low = equal + sides(equal, lambda j: (k - j) * (1 - p) / ((n - k + j + 1) * p), k)
        return low, 1 - low, equal
    above = sides(equal, lambda j: (n - k - j) * p / ((k + j + 1) * (1 - p)), n - k)
    return 1 - above, above, equal


def poisson(lam, k):
    lam = mp.mpf(lam)
    equal = mp.exp(k * mp.log(lam) - lam - mp.loggamma(k + 1))
    if k < lam:
        low = equal + sides(equal, lambda j: (k - j) / lam, k)
        return low, 1 - low, equal
    above = sides(equal, lambda j: lam / (k + j + 1), 10 ** 9)
    return 1 - above, above, equal


def hypergeometric(n, l, m, k):
    choose = lambda a, b: mp.loggamma(a + 1) - mp.loggamma(b + 1) - mp.loggamma(a - b + 1)
    equal = mp.exp(choose(m, k) + choose(n - m, l - k) - choose(n, l))
    if k * n < l * m:
        low = equal + sides(equal, lambda j: mp.mpf((k - j) * (n - m - l + k - j)) / ((m - k + j + 1) * (l - k + j + 1)),
                            k - max(0, l + m - n))
        return low, 1 - low, equal
    above = sides(equal, lambda j: mp.mpf((m - k - j) * (l - k - j)) / ((k + j + 1) * (n - m - l + k + j + 1)), min(l, m) - k)
    return 1 - above, above, equal


def write_discrete():
    draw = random.Random(3).uniform
    rows = []
    def add(law, parameters, k, values):
        rows.append("{%s, %s, %d, %s},\n" % (law, ", ".join(repr(float(v)) for v in parameters), k,
                                             ", ".join(mp.nstr(v, 20) for v in values)))
    for _ in range(40):
        n = int(10 ** draw(0, 9))
        p = 10 ** draw(-9, -0.1) * min(1.0, 2e6 / n)
        k = min(n, max(0, round(n * p + draw(-30, 30) * (n * p * (1 - p)) ** 0.5)))
        add("kBinomial", (n, p, 0), k, binomial(n, p, k))
        lam = 10 ** draw(-3, 6)
        k = max(0, round(lam + draw(-30, 30) * lam ** 0.5))
        add("kPoisson", (lam, 0, 0), k, poisson(lam, k))
        n = int(10 ** draw(1, 9))
        l = int(n * 10 ** draw(-3, 0) * min(1.0, 1e6 / n))
        m = int(n * draw(0, 1))
        sd = (l * m / n * (1 - m / n)) ** 0.5
        k = max(0, l + m - n, min(l, m, round(l * m / n + draw(-20, 20) * sd)))
        add("kHypergeometric", (n, l, m), k, hypergeometric(n, l, m, k))
    with open(os.path.join(ROOT, "tests", "stats", "discrete_laws_data.inc"), "w", encoding="utf-8") as out:
        out.write("// Written by tools/stats_reference.py: law, parameters, k, P(X <= k), P(X > k), P(X = k).\n")
        out.writelines(rows)


def mixture(lam, central):
    """Poisson weights of mean lam / 2 times central(j), to the last digit."""
    mean, total, j, term = mp.mpf(lam) / 2, mp.mpf(0), 0, mp.mpf(1)
    while j < mean or term > total * mp.mpf(10) ** -25:
        term = mp.exp(j * mp.log(mean) - mean - mp.loggamma(j + 1)) * central(j)
        total += term
        j += 1
    return total


def write_noncentral():
    draw = random.Random(4).uniform
    with open(os.path.join(ROOT, "tests", "stats", "noncentral_laws_data.inc"), "w", encoding="utf-8") as out:
        out.write("// Written by tools/stats_reference.py: law, x, parameters, lambda, lower tail.\n")
        for _ in range(25):
            lam, df = 10 ** draw(-3, 2.5), 10 ** draw(-2, 2)
            x = (df + lam) * 10 ** draw(-4, 0.5)
            with mp.workdps(60):
                p = mixture(lam, lambda j: gamma(mp.mpf(df) / 2 + j, mp.mpf(x) / 2)[0])
            if p > SMALLEST:
                out.write("{kChiSquared, %r, %r, 0.0, %r, %s},\n" % (x, df, lam, mp.nstr(p, 20)))
            a, b, x = 10 ** draw(-2, 2), 10 ** draw(-2, 2), draw(0.01, 0.9)
            with mp.workdps(60):
                p = mixture(lam, lambda j: beta(mp.mpf(a) + j, b, mp.mpf(x), 1 - mp.mpf(x))[0])
            if p > SMALLEST:
                out.write("{kBeta, %r, %r, %r, %r, %s},\n" % (x, a, b, lam, mp.nstr(p, 20)))
        write_noncentral_t(out)


def over_log_scale(log_f, centre, width):
    """The integral of exp(log_f), one analytic peak, by the trapezoidal rule."""
    def rule(step):
        total = mp.mpf(0)
        for side in (1, -1):
            k = 0 if side > 0 else 1
            while log_f(centre + side * k * step) > log_f(centre) - 75:
                total += mp.exp(log_f(centre + side * k * step) - log_f(centre))
                k += 1
        return total * step
    step, last = width, None
    while True:
        value = rule(step)
        if last is not None and abs(value / last - 1) < mp.mpf(10) ** -24:
            return value * mp.exp(log_f(centre))
        step, last = step / 2, value


def noncentral_t(t, df, delta):
    """The lower tail: normal tails averaged over the law of ln(s), the side that is small."""
    with mp.workdps(45):
        t, df, delta = mp.mpf(t), mp.mpf(df), mp.mpf(delta)
        side = 1 if t > delta else -1
        constant = mp.log(2) + df / 2 * mp.log(df / 2) - mp.loggamma(df / 2)
        log_f = lambda v: constant + df * (v - mp.exp(2 * v) / 2) + mp.log(
            mp.erfc(side * (t * mp.exp(v) - delta) / mp.sqrt(2)) / 2)
        low, high = -60 / mp.sqrt(df) - 3 / df, 20 / mp.sqrt(df)
        for _ in range(60):
            left, right = low + (high - low) * 0.38, low + (high - low) * 0.62
            low, high = (left, high) if log_f(left) < log_f(right) else (low, right)
        tail = over_log_scale(log_f, low, 1 / mp.sqrt(2 * df + t * t))
        return 1 - tail if side > 0 else tail


def write_noncentral_t(out):
    draw = random.Random(7).uniform
    for _ in range(30):
        df, delta = 1 + 10 ** draw(-2, 5), draw(-1, 1) * 10 ** draw(-2, 1.5)
        t = delta + draw(-12, 12) * (1 + delta * delta / (2 * df)) ** 0.5
        p = noncentral_t(t, df, delta)
        if p > SMALLEST:
            out.write("{kT, %r, %r, 0.0, %r, %s},\n" % (t, df, delta, mp.nstr(p, 20)))


def bivariate_normal(x, y, rho):
    with mp.workdps(40):
        x, y, rho = mp.mpf(x), mp.mpf(y), mp.mpf(rho)
        q = mp.sqrt(1 - rho * rho)
        centre = y / rho
        points = {mp.mpf(-14), x} | {centre + k * q for k in (-40, -20, -10, -5, -2, 0, 2, 5, 10, 20, 40)}
        points |= {mp.mpf(k) for k in range(-13, 14, 2)}
        points = sorted(v for v in points if -14 <= v <= x)
        return mp.quad(lambda s: mp.npdf(s) * mp.ncdf((y - rho * s) / q), points)


def write_bivariate():
    draw, choice = random.Random(8).uniform, random.Random(9).choice
    with open(os.path.join(ROOT, "tests", "stats", "bivariate_normal_data.inc"), "w", encoding="utf-8") as out:
        out.write("// Written by tools/stats_reference.py: x, y, rho, P(X <= x, Y <= y).\n")
        for k in range(60):
            x, y = draw(-4, 4), draw(-4, 4)
            rho = draw(-1, 1) if k % 2 else choice((-1, 1)) * (1 - 10 ** draw(-13, -1))
            if k % 4 == 0:
                y = x * (1 if rho > 0 else -1) + draw(-3, 3) * (1 - rho * rho) ** 0.5
            p = bivariate_normal(x, y, rho)
            out.write("{%r, %r, %r, %s},\n" % (x, y, rho, mp.nstr(p, 20) if p > SMALLEST else "0.0"))


def studentized_range(q, v, r):
    """Two nested trapezoidal rules with fixed steps."""
    with mp.workdps(30):
        q, v, half = mp.mpf(q), mp.mpf(v), mp.mpf(v) / 2
        constant = mp.log(2) + half * mp.log(half) - mp.loggamma(half)
        step = mp.mpf(1) / 6
        nodes = [k * step for k in range(-66, 67)]
        weights = [(z, mp.ncdf(z), r * mp.npdf(z) * step) for z in nodes]
        inner = lambda w: mp.fsum(f * (p - mp.ncdf(z - w)) ** (r - 1) for z, p, f in weights)
        outer = 1 / mp.sqrt(2 * v) / 4
        total, k = mp.mpf(0), 0
        for side in (1, -1):
            k = 0 if side > 0 else 1
            while True:
                t = side * k * outer
                term = mp.exp(constant + v * t - half * mp.exp(2 * t)) * inner(q * mp.exp(t)) * outer
                total += term
                k += 1
                if k > 3 and term < total * mp.mpf(10) ** -18:
                    break
        return total


def write_studentized_range():
    with open(os.path.join(ROOT, "tests", "stats", "studentized_range_data.inc"), "w", encoding="utf-8") as out:
        out.write("// Written by tools/stats_reference.py: q, degrees of freedom, number of variables, lower tail.\n")
        for q, v, r in ((0.7, 3, 4), (3.5, 10, 5), (4.2, 1.5, 3), (8.0, 20, 50), (2.4, 60.5, 12), (5.0, 2, 20), (1.1, 400, 3)):
            out.write("{%r, %r, %d, %s},\n" % (q, float(v), r, mp.nstr(studentized_range(q, v, r), 18)))


def survey(path):
    lib = ctypes.CDLL(path)
    record = (ctypes.c_char * 1024)()
    d, i = ctypes.c_double, ctypes.c_int32
    def call(name, *args):
        routine = getattr(lib, name)
        routine.restype = d
        return routine(*[i(v) if isinstance(v, int) else d(v) for v in args], record)
    def beta_routine(x, a, b):
        p, q, pdf = d(), d(), d()
        lib.g01eec(d(x), d(a), d(b), d(0), ctypes.byref(p), ctypes.byref(q), ctypes.byref(pdf), record)
        return p.value, q.value
    lower, upper, signif, confid = 264, 265, 266, 267
    computed = {
        "kNormal": lambda x, p1, p2: [call("g01eac", t, x) for t in (lower, upper)],
        "kStudent": lambda x, df, p2: [call("g01ebc", t, x, df) for t in (confid, signif)],
        "kF": lambda x, df1, df2: [call("g01edc", t, x, df1, df2) for t in (lower, upper)],
        "kBeta": beta_routine,
        "kGamma": lambda x, a, p2: [call("g01efc", t, x, a, 1.0) for t in (lower, upper)],
    }
    inverse = {
        "kNormal": lambda p, p1, p2: call("g01fac", lower, p),
        "kStudent": lambda p, df, p2: call("g01fbc", confid, p, df),
        "kF": lambda p, df1, df2: call("g01fdc", p, df1, df2),
        "kBeta": lambda p, a, b: call("g01fec", p, a, b, 0.0),
        "kGamma": lambda p, a, p2: call("g01ffc", p, a, 1.0, 0.0),
    }
    worst = {}
    def note(key, error, row):
        if key not in worst or error > worst[key][0]:
            worst[key] = (error, row)
    for law, p1, p2, x, low, up in itertools.chain(references(2, 60, 4), large_references(6, 300)):
        row = (p1, p2, x, float(low), float(up))
        got = computed[law](x, p1, p2)
        for side, value, exact in (("lower", got[0], low), ("upper", got[1], up)):
            note((law, side), float(abs(mp.mpf(value) / exact - 1)) / 2 ** -52, row)
        p = got[0]
        if 0 < p < 1:
            back = inverse[law](p, p1, p2)
            again = computed[law](back, p1, p2) if 0 < abs(back) < 1e300 else (0, 0)
            smaller = 0 if got[0] <= 0.5 else 1
            if smaller == 0 and not (law == "kBeta" and x > 0.5):
                note((law, "round trip"), abs(again[0] / p - 1) / 2 ** -52, row + (back,))
    for key, (error, row) in sorted(worst.items()):
        print(*key, "%.2f eps" % error, row)


if __name__ == "__main__":
    if sys.argv[1:]:
        survey(sys.argv[1])
    else:
        write_laws("tests/stats/laws_data.inc", itertools.chain(references(1, 40, 3.5), large_references(5, 60)))
        write_laws("bench/stats/distributions_data.inc", itertools.chain(references(11, 150, 4), large_references(12, 150)))
        write_discrete()
        write_noncentral()
        write_bivariate()
        write_studentized_range()
