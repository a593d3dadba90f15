"""Piecewise polynomials for src/special/piecewise.hpp: tiling of an interval, fitting, and printing as C++ tables.

A function comes as a routine that gives its Taylor series at any point, in high precision. The interval is cut at
multiples of 1/16 into pieces as wide as the accuracy allows; a piece that holds an anchor (a zero of the function, or a
point of symmetry) has its centre exactly there, so that the value near a zero is accurate relative to itself.
"""
from mpmath import mp, mpf

mp.dps = 60
CELLS_PER_UNIT = 16
REST = 13                 # coefficients behind the linear term
SERIES = 90               # terms of a Taylor series: more than enough for the widest piece
TOLERANCE = mpf(2) ** -57  # of a piece, relative to the function
HEAVIEST_REST = mpf(0.2)   # what is summed in plain arithmetic, relative to the function: it brings the rounding errors


def double(x):
    return float(x)


def high_low(x):
    high = float(x)
    return high, float(x - mpf(high))


def short(x):
    """x rounded to 26 bits, and the rest rounded to double: a product with another short number is exact."""
    if x == 0:
        return 0.0, 0.0
    mantissa, exponent = mp.frexp(x)
    high = mp.ldexp(mp.nint(mp.ldexp(mantissa, 26)), exponent - 26)
    return float(high), float(x - high)


def evaluate(coefficients, t):
    total = mpf(0)
    for c in reversed(coefficients):
        total = total * t + c
    return total


def interpolate(f, low, high, count):
    """Monomial coefficients of the polynomial that takes the values of f at the Chebyshev points of [low, high]."""
    middle, half = (low + high) / 2, (high - low) / 2
    nodes = [middle + half * mp.cos(mp.pi * (2 * k + 1) / (2 * count)) for k in range(count)]
    table = [f(t) for t in nodes]
    for order in range(1, count):
        for k in range(count - 1, order - 1, -1):
            table[k] = (table[k] - table[k - 1]) / (nodes[k] - nodes[k - order])
    coefficients = [table[-1]]
    for k in range(count - 2, -1, -1):
        shifted = [mpf(0)] + coefficients
        for j, c in enumerate(coefficients):
            shifted[j] -= nodes[k] * c
        shifted[0] += table[k]
        coefficients = shifted
    return coefficients


class Piece:
    """f on [first, last] (in cells): value, slope and rest about the centre, and how good they are."""

    def __init__(self, series_at, first, last, centre, relative_to_slope):
        self.first, self.last = first, last
        self.centre = centre
        low = mpf(first) / CELLS_PER_UNIT - centre
        high = mpf(last) / CELLS_PER_UNIT - centre
        series = series_at(centre)
        self.value = mpf(0) if relative_to_slope else series[0]
        self.slope = series[1]
        tail = series[2:]
        self.rest = interpolate(lambda t: evaluate(tail, t), low, high, REST)
        self.error = self.weight = mpf(0)
        samples = 61
        for k in range(samples + 1):
            t = low + (high - low) * k / samples
            wrong = t * t * (evaluate(tail, t) - evaluate(self.rest, t))
            if t != 0:
                value = abs(evaluate(series, t))
                self.error = max(self.error, abs(wrong) / value)
                self.weight = max(self.weight, abs(t * t * evaluate(tail, t)) / value)
        # The sum value + slope t is formed in one order only, without a look at which of them is larger.
        self.ordered = self.value == 0 or abs(self.value) >= abs(self.slope) * max(abs(low), abs(high))

    def good(self):
        # A function like x^2 at its centre consists of the rest alone.
        light = self.weight <= HEAVIEST_REST or (self.value == 0 and self.slope == 0)
        return self.error <= TOLERANCE and light and self.ordered


def tile(series_at, begin, end, anchors=(), splits=()):
    """Pieces that cover [begin, end]; `anchors`: (point, whether it is a zero); `splits`: boundaries that are wanted."""
    cache = {}

    def series(centre):
        if centre not in cache:
            cache[centre] = series_at(centre)
        return cache[centre]

    def plain(first, last):
        return Piece(series, first, last, mpf(first + last) / (2 * CELLS_PER_UNIT), False)

    def anchored(first, last, anchor):
        return Piece(series, first, last, anchor[0], anchor[1])

    def widest(make, first, least, most):
        """The widest good piece from `first`; its end lies in [least, most]."""
        best, step = make(first, least), 1
        if not best.good():
            raise ValueError(f"no good piece from cell {first}: error {mp.nstr(best.error, 3)}")
        low, high = least, None
        while high is None and low < most:
            trial = min(low + step, most)
            piece = make(first, trial)
            if piece.good():
                best, low, step = piece, trial, step * 2
            else:
                high = trial
        while high is not None and high - low > 1:
            trial = (low + high) // 2
            piece = make(first, trial)
            if piece.good():
                best, low = piece, trial
            else:
                high = trial
        return best

    def radius(anchor):
        """Cells that an anchored piece can reach to the left."""
        cells = 1
        while True:
            first = int(mp.floor(anchor[0] * CELLS_PER_UNIT)) - cells
            last = int(mp.ceil(anchor[0] * CELLS_PER_UNIT)) + cells
            if not anchored(first, last, anchor).good():
                return cells - 1
            cells += 1

    position, stop = int(begin * CELLS_PER_UNIT), int(end * CELLS_PER_UNIT)
    left = sorted(anchors)
    borders = sorted([int(s * CELLS_PER_UNIT) for s in splits] + [stop])
    pieces = []
    while position < stop:
        border = next(b for b in borders if b > position)
        while left and left[0][0] * CELLS_PER_UNIT < position:
            left.pop(0)
        anchor = left[0] if left and left[0][0] * CELLS_PER_UNIT < border else None
        if anchor is not None:
            place = int(mp.floor(anchor[0] * CELLS_PER_UNIT))
            start = position if place == position else max(position, place - radius(anchor))
            if start == position:
                piece = widest(lambda a, b: anchored(a, b, anchor), position, place + 1, border)
                pieces.append(piece)
                position = piece.last
                left.pop(0)
                continue
            border = start
        piece = widest(plain, position, position + 1, border)
        if piece.last < border:  # share the stretch evenly, where two pieces are enough for it
            half = (position + border + 1) // 2
            if half < piece.last and plain(half, border).good():
                piece = plain(position, half)
        pieces.append(piece)
        position = piece.last
    return pieces


def number(x):
    return repr(float(x))


def join(numbers, indent, width=118):
    lines, line = [], indent
    for k, text in enumerate(numbers):
        word = text + ("," if k + 1 < len(numbers) else "")
        if len(line) + len(word) + 1 > width:
            lines.append(line.rstrip())
            line = indent
        line += word + " "
    lines.append(line.rstrip())
    return "\n".join(lines)


def print_pieces(name, what, pieces):
    error = max(p.error for p in pieces)
    text = f"// {what}: {len(pieces)} pieces, error of the fits at most {mp.nstr(error, 2)}.\n"
    text += f"inline constexpr PiecewisePolynomial<{len(pieces)}, {pieces[-1].last - pieces[0].first}> {name}{{\n"
    text += f"    {number(mpf(pieces[0].first) / CELLS_PER_UNIT)},\n"
    text += "    {" + join([str(p.first - pieces[0].first) for p in pieces], "     ").lstrip() + "},\n    {{\n"
    for p in pieces:
        numbers = [*high_low(p.centre), *high_low(p.value), *short(p.slope)]
        body = [number(x) for x in numbers + [p.rest[0]]] + ["{" + number(p.rest[1])] + [number(x) for x in p.rest[2:]]
        text += "        {" + join(body, "         ").lstrip() + "}},\n"
    return text + "    }}};\n"
