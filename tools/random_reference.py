#!/usr/bin/env python3
"""Reference values of chapter g05, from exact integer arithmetic and from plain one-number-at-a-time programs.

Usage: random_reference.py stream > tests/random/stream_data.inc
       random_reference.py samplers > tests/random/samplers_data.inc
       random_reference.py laws > tests/random/laws_data.inc        (needs scipy)
"""
import math
import sys
from fractions import Fraction

from mpmath import erfinv, mp, mpf, sqrt

MODULUS = 2 ** 59
MULTIPLIER = 13 ** 13
DEFAULT_START = sum(digit << 15 * k for k, digit in enumerate((0x1a2a, 0x1d6f, 0x68a8, 0x75bc))) // 2


def rounded(x):
    """x / 2^59 as a double, rounded once; what rounds to 1 is clipped."""
    return min(float(Fraction(x, MODULUS)), 1 - 2.0 ** -53)


class Stream:
    def __init__(self, seed=None):
        self.x = DEFAULT_START if seed is None else MULTIPLIER * (2 * abs(seed) + 1) % MODULUS
        self.fraction, self.spare_square = 1.0, -1.0

    def __call__(self):
        self.x = MULTIPLIER * self.x % MODULUS
        return rounded(self.x)


def pieces(x):
    """The first six elements of a saved state: the check sum, and 2x cut from the top at bits 49, 37, 25 and 13."""
    cut = [2 * x >> 49, 2 * x >> 37 & 4095, 2 * x >> 25 & 4095, 2 * x >> 13 & 4095, 2 * x >> 1 & 4095]
    return [sum(cut)] + cut


# One sampler each, as published.

mp.dps = 40
QUANTILE = [None] + [float(sqrt(2) * erfinv(1 - 2 * mpf(2) ** -k)) for k in range(1, 42)]


def exponential(u, a):
    return -abs(a) * math.log(u())


def normal(u, a, b):
    v, i = u.fraction, 1
    while not v > 0.5 and i < 40:
        v, i = 2 * v, i + 1
    left, width = QUANTILE[i], QUANTILE[i + 1] - QUANTILE[i]
    point = u()
    while True:
        w = width * point
        run = [w * (0.5 * w + left)]
        while True:
            run.append(u())
            if run[-1] >= run[-2]:
                break
        # The run falls as far as it can; an odd number of falling terms accepts.
        t, last = run[-2], run[-1]
        if len(run) % 2 == 0:
            f = (last - t) / (1 - t)
            u.fraction = 2 * f - 1 if f > 0.5 else 2 * f
            return a - (w + left) * b if f > 0.5 else a + (w + left) * b
        point = (last - t) / (1 - t)


def cauchy(u, a, b):
    while True:
        x, y = 2 * u() - 1, u()
        if x * x + y * y <= 1:
            return a + b * x / y


def half_gamma(u, g, b):
    n, s = round(2 * g), 0.0
    if n % 2:
        if u.spare_square >= 0:
            s, u.spare_square = u.spare_square, -1.0
        else:
            while True:
                x, y = u(), u()
                w = x * x + y * y
                if w < 1:
                    break
            q = -math.log(w) / w
            s, u.spare_square = q * x * x, q * y * y
    return b * (s + sum(-math.log(u()) for _ in range(n // 2)))


def poisson(u, mean):
    if mean < 7.5:
        k, product = -1, 1.0
        while True:
            product *= u()
            k += 1
            if product <= math.exp(-mean):
                return k
    root = math.sqrt(1 / mean)
    d = 1 + 0.0435 / mean
    scale = 0.2 * root + 1.051 / root + 0.305
    while True:
        x, y = 2 * u() - 1, 2 * u() - 1
        if x == 0 == y:
            continue
        t = y / x ** 2 if abs(y) < abs(x) else x / y ** 2
        at = mean + 0.5 + scale * t
        if at < 0:
            continue
        k = math.floor(at)
        w = u() * (d if abs(t) <= 1 else d / abs(t ** 3))
        # The exact test alone: the quick ones spare it, they do not change the outcome.
        mass = (mpf(k) * mp.log(mean) - mean - mp.loggamma(k + 1) + mp.log(2 * mp.pi * mean) / 2)
        if mp.log(w) <= mass:
            return k


def integer(u, a, b):
    low, high = min(a, b), max(a, b)
    return min(low + int((high - low + 1) * Fraction(u())), high)


def box_muller(u, a, b, n):
    made = []
    while len(made) < n:
        r, t = mp.sqrt(-2 * mp.log(u())), 2 * mp.pi * mpf(u())
        made += [float(a + b * r * mp.cos(t)), float(a + b * r * mp.sin(t))]
    return made[:n]


def gamma(u, a, b):
    if a == 1:
        return -b * math.log(u())
    while True:
        u1, u2 = mpf(u()), mpf(u())
        if a > 1:
            w = u1 * (1 - u1)
            y = (u1 - mpf("0.5")) * mp.sqrt((3 * mpf(a) - mpf("0.75")) / w)
            x = a - 1 + y
            if x > 0 and mp.log(64 * w ** 3 * u2 ** 2) <= 2 * ((a - 1) * mp.log(x / (a - 1)) - y):
                return float(b * x)
        else:
            t = 1 - mpf(a)
            inner, tail = t ** a / a, t ** (a - 1) * mp.exp(-t)
            p = u1 * (inner + tail)
            if p <= inner:
                x = t * (p / inner) ** (1 / mpf(a))
                accept = u2 <= mp.exp(-x)
            else:
                x = t - mp.log((inner + tail - p) / tail)
                accept = u2 <= (x / t) ** (mpf(a) - 1)
            if accept:
                return float(b * x)


def beta(u, first, second):
    if min(first, second) > 1:
        a, b = mpf(min(first, second)), mpf(max(first, second))
        al = a + b
        be = mp.sqrt((al - 2) / (2 * a * b - al))
        ga = a + 1 / be
    else:
        a, b = mpf(max(first, second)), mpf(min(first, second))
        al, be = a + b, 1 / b
    while True:
        u1, u2 = mpf(u()), mpf(u())
        v = be * mp.log(u1 / (1 - u1))
        w = a * mp.exp(v)
        z = u1 * u1 * u2
        if min(first, second) > 1:
            accept = ga * v - mp.log(4) + al * mp.log(al / (b + w)) >= mp.log(z)
        else:
            accept = al * (mp.log(al / (b + w)) + v) - mp.log(4) >= mp.log(z)
        if accept:
            return float((w if a == first else b) / (b + w))


def permutation(u, n):
    index = list(range(n))
    for i in range(2, n + 1):
        j = int(i * u()) + 1
        index[i - 1], index[j - 1] = index[j - 1], index[i - 1]
    return index


def subset(u, n, m):
    chosen = []
    for i in range(n):
        if len(chosen) < m and (n - i) * u() <= m - len(chosen):
            chosen.append(i)
    return chosen


def arma(u, phi, theta, variance, n):
    """By the covariance matrix of an autoregression, whose moving average is the series."""
    p, q = len(phi), len(theta)
    prediction = {p: list(phi)}
    error = {p: mpf(variance)}
    for k in range(p, 0, -1):
        full, last = prediction[k], prediction[k][k - 1]
        prediction[k - 1] = [(full[i] + last * full[k - 2 - i]) / (1 - last * last) for i in range(k - 1)]
        error[k - 1] = error[k] / (1 - last * last)
    y = []
    for t in range(n + q):
        order = min(t, p)
        y.append(normal(u, 0, 1) * float(mp.sqrt(error[order])) + sum(prediction[order][i] * y[t - 1 - i] for i in range(order)))
    return [float(y[t + q] - sum(theta[i] * y[t + q - 1 - i] for i in range(q))) for t in range(n)]


def show_stream():
    positions = [1, 2, 62, 63, 64, 125, 126, 127, 189, 190, 1000, 12345]
    print("// {seed, {{position, number}, ...}, pieces of the saved state at the last position}; made by tools/random_reference.py")
    for seed in (None, 0, 1, 5, 12345, 2 ** 31 - 1, 2 ** 31):
        u, numbers = Stream(seed), []
        for position in range(1, positions[-1] + 1):
            number = u()
            if position in positions:
                numbers.append(f"{{{position}, {number.hex()}}}")
        name = "kDefault" if seed is None else seed if seed < 2 ** 31 else "kLeastInteger"
        print(f"{{{name},\n {{" + ", ".join(numbers) + f"}},\n {{" + ", ".join(map(str, pieces(u.x))) + "}},")


def show_samplers():
    seed = 31
    print("// {name, parameters, deviates, the uniform number behind them}, seed 31; made by tools/random_reference.py")

    def row(name, parameters, values, u):
        text = ", ".join(repr(float(v)) for v in values)
        print(f'{{"{name}", {{{", ".join(repr(float(p)) for p in parameters)}}}, {{{text}}}, {float(u()).hex()}}},')

    def repeated(name, sampler, *parameters, count=6):
        u = Stream(seed)
        row(name, parameters, [sampler(u, *parameters) for _ in range(count)], u)

    repeated("exponential", exponential, -2.385)
    repeated("normal", normal, 0.0, 1.0, count=40)
    repeated("normal", normal, 3.7, 0.21)
    repeated("cauchy", cauchy, -1.3, 2.2)
    for g in (0.5, 1.0, 2.5, 7.5, 40.0):
        repeated("half_gamma", half_gamma, g, 1.7)
    for mean in (0.3, 7.4999, 7.5, 25.0, 86.99, 87.0, 1234.5, 1e6, 1073741823.5):
        repeated("poisson", poisson, mean, count=10)
    for a, b in ((1, 6), (7, -7), (-2147483648, 2147483647), (4, 4)):
        repeated("integer", integer, a, b)
    for n in (1, 2, 7, 200):
        u = Stream(seed)
        made = box_muller(u, 1.5, 0.7, n)
        row("box_muller", [1.5, 0.7, n], made[-6:], u)
    for a in (1e-3, 0.3, 0.999, 1.0, 1.001, 2.385, 1e3, 1e6, 1e15, 1e30):
        repeated("gamma", gamma, a, 1.7)
    for a, b in ((1e-3, 1e-3), (0.3, 0.7), (0.999, 4.2), (1.0, 1.0), (1.3, 1.2), (5.5, 2.25), (1e6, 3e5), (1e15, 1e13),
                 (0.4, 1e9), (2.1, 1e20)):
        repeated("beta", beta, a, b)
    u = Stream(seed)
    row("permutation", [12], permutation(u, 12), u)
    u = Stream(seed)
    row("subset", [12, 5], subset(u, 12, 5), u)
    u = Stream(seed)
    row("arma", [2.0, 1.0, 0.4, 0.3, 0.6, 1.44], arma(u, [0.4, 0.3], [0.6], 1.44, 8), u)


def show_laws():
    from scipy import stats
    cells = 16
    print("// {name, parameters, the quantiles that cut the law into 16 parts of equal probability}; made by tools/random_reference.py")

    def row(name, parameters, law):
        cuts = ", ".join(repr(float(law.ppf(k / cells))) for k in range(1, cells))
        print(f'{{"{name}", {{{", ".join(repr(float(p)) for p in parameters)}}}, {{{cuts}}}}},')

    row("uniform", [-1.5, 2.0], stats.uniform(-1.5, 3.5))
    row("normal", [1.5, 0.7], stats.norm(1.5, 0.7))
    row("box_muller", [1.5, 0.7], stats.norm(1.5, 0.7))
    row("exponential", [2.385], stats.expon(scale=2.385))
    row("cauchy", [-1.3, 2.2], stats.cauchy(-1.3, 2.2))
    for g in (0.5, 2.5):
        row("half_gamma", [g, 1.7], stats.gamma(g, scale=1.7))
    for a in (0.02, 0.5, 0.999, 1.001, 3.0, 1e6):
        row("gamma", [a, 1.7], stats.gamma(a, scale=1.7))
    for a, b in ((0.05, 0.07), (0.7, 3.0), (1.0, 1.0), (1.01, 1.02), (30.0, 2.5), (1e6, 1e3)):
        row("beta", [a, b], stats.beta(a, b))


if __name__ == "__main__":
    {"stream": show_stream, "samplers": show_samplers, "laws": show_laws}[sys.argv[1]]()
