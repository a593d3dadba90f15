"""Taylor series of Bessel, Airy and Kelvin functions at any point, from two values and the differential equation."""
from mpmath import mp, mpf, mpc

from piecewise import SERIES


def bessel_series(sigma, order, c, value, slope):
    """y about c, for x^2 y'' + x y' + (sigma x^2 - order^2) y = 0, c > 0."""
    a = [value, slope]
    for k in range(SERIES - 2):
        total = c * (k + 1) * (2 * k + 1) * a[k + 1] + (k * k + sigma * c * c - order * order) * a[k]
        if k >= 1:
            total += 2 * sigma * c * a[k - 1]
        if k >= 2:
            total += sigma * a[k - 2]
        a.append(-total / (c * c * (k + 2) * (k + 1)))
    return a


def bessel_series_at_zero(sigma, order):
    """The regular solution about 0: (x/2)^order sum (-sigma x^2/4)^m / (m! (m + order)!)."""
    a = [mpf(0)] * SERIES
    for m in range((SERIES - order + 1) // 2):
        a[2 * m + order] = (-sigma) ** m / (mp.factorial(m) * mp.factorial(m + order) * mpf(2) ** (2 * m + order))
    return a


def airy_series(c, value, slope):
    """y about c, for y'' = x y."""
    a = [value, slope]
    for k in range(SERIES - 2):
        a.append((c * a[k] + (a[k - 1] if k >= 1 else 0)) / ((k + 2) * (k + 1)))
    return a


def derivative(a):
    return [k * a[k] for k in range(1, len(a))] + [mpf(0)]


def times_exponential(a, c, sign):
    """The series of exp(sign x) y about c."""
    e = [mp.exp(sign * c)]
    for k in range(1, SERIES):
        e.append(e[-1] * sign / k)
    return [mp.fsum(a[j] * e[k - j] for j in range(k + 1)) for k in range(SERIES)]


def real(a):
    return [mp.re(x) for x in a]


def imaginary(a):
    return [mp.im(x) for x in a]


def j(order):
    def at(c):
        if c == 0:
            return bessel_series_at_zero(1, order)
        return bessel_series(1, order, c, mp.besselj(order, c), mp.besselj(order, c, derivative=1))
    return at


def y(order):
    def at(c):
        derivative_value = -mp.bessely(1, c) if order == 0 else mp.bessely(0, c) - mp.bessely(1, c) / c
        return bessel_series(1, order, c, mp.bessely(order, c), derivative_value)
    return at


def i(order, scaled=False):
    def at(c):
        if c == 0:
            a = bessel_series_at_zero(-1, order)
        else:
            derivative_value = mp.besseli(1, c) if order == 0 else mp.besseli(0, c) - mp.besseli(1, c) / c
            a = bessel_series(-1, order, c, mp.besseli(order, c), derivative_value)
        return times_exponential(a, c, -1) if scaled else a
    return at


def k(order, scaled=False):
    def at(c):
        derivative_value = -mp.besselk(1, c) if order == 0 else -mp.besselk(0, c) - mp.besselk(1, c) / c
        a = bessel_series(-1, order, c, mp.besselk(order, c), derivative_value)
        return times_exponential(a, c, 1) if scaled else a
    return at


def airy(second, slope):
    """Ai, Bi (second) or their derivatives (slope)."""
    f = mp.airybi if second else mp.airyai

    def at(c):
        a = airy_series(c, f(c), f(c, derivative=1))
        return derivative(a) if slope else a
    return at


ROTATION_J = mp.expjpi(mpf(3) / 4)  # ber + i bei = J0(x exp(3 pi i / 4))
ROTATION_K = mp.expjpi(mpf(1) / 4)  # ker + i kei = K0(x exp(pi i / 4))


def kelvin_j(part):
    def at(c):
        if c == 0:
            a = [x * ROTATION_J ** n for n, x in enumerate(bessel_series_at_zero(1, 0))]
        else:
            s = ROTATION_J
            a = bessel_series(mpc(0, -1), 0, c, mp.besselj(0, s * c), -s * mp.besselj(1, s * c))
        return part(a)
    return at


def kelvin_k(part):
    def at(c):
        s = ROTATION_K
        return part(bessel_series(mpc(0, -1), 0, c, mp.besselk(0, s * c), -s * mp.besselk(1, s * c)))
    return at


def zeros(series_at, begin, end, step=mpf(1) / 4):
    """Simple zeros in (begin, end): sign changes on a grid, then Newton steps with the Taylor series itself."""
    found = []
    x, f = begin, series_at(begin)[0]
    while x < end:
        following = x + step
        g = series_at(following)[0]
        if f * g < 0:
            z = x - f * step / (g - f)
            for _ in range(8):
                a = series_at(z)
                z -= a[0] / a[1] / (1 - a[0] * a[2] / a[1] ** 2)
            found.append((z, True))
        x, f = following, g
    return found
