#!/usr/bin/env python3
"""Reference values of accumulated inner products, in exact rationals.

    tools/inner_products.py > tests/frame/inner_product_data.inc
"""
import random
from fractions import Fraction


def exact_parts(a, b, c1, c2):
    """The exact sum as the nearest double and the nearest double of the rest; and the sum of the moduli."""
    terms = [Fraction(x) * Fraction(y) for x, y in zip(a, b)] + [Fraction(c1), Fraction(c2)]
    total = sum(terms)
    high = float(total)
    return high, float(total - Fraction(high)), float(sum(abs(term) for term in terms))


def ill_conditioned(rng, half, bits):
    """Terms of 2^0 to 2^bits that cancel in pairs up to their last digits."""
    a = [rng.uniform(-1, 1) * 2.0**rng.randint(0, bits) for _ in range(half)]
    b = [rng.uniform(-1, 1) * 2.0**rng.randint(0, bits) for _ in range(half)]
    cancelling = [(-x, y * (1 + rng.choice((-2, 0, 2)) * 2.0**-52)) for x, y in zip(a, b)]
    pairs = list(zip(a, b)) + cancelling
    rng.shuffle(pairs)
    return [x for x, _ in pairs], [y for _, y in pairs]


def literals(values):
    return "{" + ", ".join(float(value).hex() for value in values) + "}"


def case(kind, a, b, c1=0.0, c2=0.0):
    parts = exact_parts(a, b, c1, c2)
    print(f"{{{kind}, {literals(a)}, {literals(b)}, {float(c1).hex()}, {float(c2).hex()}, "
          f"{', '.join(part.hex() for part in parts)}}},")


def main():
    rng = random.Random("inner products")
    print("// Inner products in exact rationals: made by tools/inner_products.py, do not edit.")
    print("// {kind, a, b, c1, c2, nearest double of the sum, nearest double of the rest, sum of the moduli}")
    # Every operation of the method is exact in these: integers whose products have at most 100 bits.
    case("kExact", [1e16, -1e16, 1.0], [1.0, 1.0, 1.0])
    case("kExact", [1.0], [1.0], 2.0**60, 2.0**-1)
    case("kExact", [3.0, 5.0], [7.0, 11.0], -101.0, 0.25)
    case("kExact", [2.0**52 + 1, 2.0**52 - 1], [2.0**40 + 1, -(2.0**40 - 1)])
    for n in (1, 2, 5, 12):
        integers = [[float(rng.randrange(-2**49, 2**49)) for _ in range(n)] for _ in range(2)]
        case("kExact", *integers, float(rng.randrange(2**50)))
    # The rest is rounded in the second double.
    for n in (1, 3, 10):
        case("kRounded", [rng.gauss(0, 1) for _ in range(n)], [rng.gauss(0, 1) for _ in range(n)], rng.gauss(0, 1), 1e-17)
    for bits in (5, 20, 45):
        case("kRounded", *ill_conditioned(rng, 6, bits))
    case("kRounded", [1e305, -3e301, 7.0], [1e-305, 1e-299, 1.5])
    case("kRounded", [2.0**996 * 1.1, 2.0**997 * 1.3], [1e-290, -1e-295])
    case("kRounded", [1e-140, 3e-150], [1e-130, 7e-140])


if __name__ == "__main__":
    main()
