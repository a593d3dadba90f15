// Roots of unity: exp(-2 pi i t / n) for t running through the integers modulo n. Part of kernels.inl.
//
// Every angle is reduced to the first octant in exact integer arithmetic, so that nothing drifts however many roots
// there are. The reduced angle is formed with an error far below the last bit, and sine and cosine are evaluated so
// that only the final addition rounds noticeably.

// Minimax polynomials on [0, pi/4]: sin x = x + x^3 S(x^2), cos x = 1 - x^2/2 + x^4 C(x^2), errors below 2^-58 of the
// result. By tools/octant_polynomials.sollya.
inline constexpr double kSinePolynomial[] = {-0x1.5555555555555p-3, 0x1.111111111101ep-7,   -0x1.a01a019fe884fp-13,
                                             0x1.71de3a1033625p-19, -0x1.ae63f7f70fd6cp-26, 0x1.60e5c482721c1p-33,
                                             -0x1.8d4cdee907b3bp-41};
inline constexpr double kCosinePolynomial[] = {0x1.5555555555555p-5,   -0x1.6c16c16c16a32p-10, 0x1.a01a019fb7a9cp-16,
                                               -0x1.27e4faeeae32ep-22, 0x1.1eecd5a93e364p-29,  -0x1.92a5c45922489p-37,
                                               0x1.3447b94e2d852p-45};

// pi / (4n) in three parts, so that an integer of 33 bits times either of the first two is exact.
struct OctantUnit {
    double high, middle, low;
    explicit OctantUnit(Index n)
    {
        constexpr long double kQuarterPi = 0.785398163397448309615660845819875721L;
        const long double unit = kQuarterPi / static_cast<long double>(n);
        high = leading_bits(unit);
        middle = leading_bits(unit - high);
        low = static_cast<double>(unit - high - middle);
    }

  private:
    static double leading_bits(long double x)
    {
        const double d = static_cast<double>(x);
        std::uint64_t bits = __builtin_bit_cast(std::uint64_t, d);
        bits &= ~((std::uint64_t{1} << 33) - 1); // 53 - 33 = 20 bits stay
        return __builtin_bit_cast(double, bits);
    }
};

template <class Condition>
KOR_INLINE Lanes choose(Condition condition, Lanes yes, Lanes no)
{
    return condition ? yes : no;
}

// The angle of `a` octants of n-th parts: its nearest double x, and what x lacks.
struct Angle {
    Lanes x, rest;
};
KOR_INLINE Angle octant_angle(Lanes a, const OctantUnit &unit)
{
    const Lanes leading = a * unit.high, trailing = a * unit.middle + a * unit.low; // the first two products are exact
    const Lanes x = leading + trailing;
    return {x, (leading - x) + trailing};
}

// cos x = 1 - half_square + tail, with all of `rest` in tail and sine.
struct OctantRoot {
    Lanes half_square, tail, sine;
};
KOR_INLINE OctantRoot octant_root(Lanes x, Lanes rest)
{
    const Lanes x2 = x * x;
    Lanes s = kSinePolynomial[6] * x2 + kSinePolynomial[5];
    for (int i = 4; i >= 0; --i) s = s * x2 + kSinePolynomial[i];
    Lanes c = kCosinePolynomial[6] * x2 + kCosinePolynomial[5];
    for (int i = 4; i >= 0; --i) c = c * x2 + kCosinePolynomial[i];
    // `rest` needs a few digits of the derivatives only: the cosine is 1 - x^2/2 for that purpose.
    const Lanes half_square = 0.5 * x2;
    return {half_square, x2 * x2 * c - x * rest, x + (x * x2 * s + rest * (1.0 - half_square))};
}

// `eighths` is 8t for 0 <= t < n, all of it exact.
KOR_INLINE Pair<Lanes> unit_root(Lanes eighths, double n, const OctantUnit &unit)
{
    const auto lower_half = eighths > 4.0 * n;
    Lanes a = choose(lower_half, 8.0 * n - eighths, eighths);
    const auto left_half = a > 2.0 * n;
    a = choose(left_half, 4.0 * n - a, a);
    const auto steep = a > n;
    a = choose(steep, 2.0 * n - a, a);

    const auto [x, rest] = octant_angle(a, unit);
    const auto [half_square, tail, sine] = octant_root(x, rest);
    const Lanes near_cosine = 1.0 - half_square;
    const Lanes cosine = near_cosine + (((1.0 - near_cosine) - half_square) + tail);
    const Lanes re = choose(steep, sine, cosine), im = choose(steep, cosine, sine);
    return {choose(left_half, -re, re), choose(lower_half, im, 0.0 - im)};
}

// Writes the roots of the places t, of which `count` are wanted.
KOR_INLINE void store_roots(Lanes t, double n, const OctantUnit &unit, Index count, double *cosines, double *sines)
{
    const Pair<Lanes> w = unit_root(8.0 * t, n, unit);
    if (count >= kLanes) {
        store_lanes(cosines, w.re);
        store_lanes(sines, w.im);
        return;
    }
    for (Index lane = 0; lane < count; ++lane) {
        cosines[lane] = w.re[lane];
        sines[lane] = w.im[lane];
    }
}

inline void roots_of_row(Index n, const OctantUnit &unit, Index first, Index step, Index count, double *cosines,
                         double *sines)
{
    const double length = static_cast<double>(n);
    // t for the lanes, then on by kLanes * step; sums stay below 2n, so that doubles hold them exactly.
    Lanes t{};
    std::int64_t place = first;
    for (Index lane = 0; lane < kLanes; ++lane) {
        t[lane] = static_cast<double>(place);
        if ((place += step) >= n) place -= n;
    }
    const double stride = static_cast<double>(static_cast<std::int64_t>(step) * kLanes % n);
    for (Index j = 0; j < count; j += kLanes) {
        store_roots(t, length, unit, count - j, cosines + j, sines + j);
        t = t + stride;
        t = choose(t >= length, t - length, t);
    }
}

inline void unit_roots(Index n, Index first, Index step, Index count, double *cosines, double *sines)
{
    roots_of_row(n, OctantUnit{n}, first, step, count, cosines, sines);
}

inline void root_table(const Stages &stages, Index n, double *trig)
{
    const OctantUnit unit{n};
    const double length = static_cast<double>(n);
    double place[kLanes] = {};   // of the roots that are still to be written
    Index pending = 0, next = 0; // how many they are, and where the first of them goes
    const auto flush = [&]() KOR_INLINED
    {
        store_roots(load_lanes(place), length, unit, pending, trig + next, trig + n + next);
        next += pending;
        pending = 0;
    };
    for (int i = 0; i < stages.count; ++i) {
        const Stage &stage = stages.stage[i];
        for (Index k = 1; k < stage.radix; ++k) {
            const Index step = stage.before * k;
            // The twiddle factor of the first element is 1; its place serves for the root that a prime radix needs.
            place[pending++] = stage.radix > kLargestPlainRadix ? static_cast<double>(n / stage.radix * k) : 0.0;
            Index j = 1;
            // Long rows need no memory for their places, once those before them are written.
            const Index gathered = stage.after < 4 * kLanes ? stage.after : kLanes - pending + 1;
            for (; j < gathered; ++j) {
                if (pending == kLanes) flush();
                place[pending++] = static_cast<double>(step * j);
            }
            if (pending == kLanes) flush();
            if (j == stage.after) continue;
            roots_of_row(n, unit, step * j, step, stage.after - j, trig + next, trig + n + next);
            next += stage.after - j;
        }
    }
    flush();
}

// exp(-2 pi i l c / n) - 1: the angles are below pi / 4, and nothing cancels.
inline void roots_less_one(Index n, Index rows, Index width, Sequence roots)
{
    const OctantUnit unit{n};
    Lanes lane;
    for (Index i = 0; i < kLanes; ++i) lane[i] = static_cast<double>(i);
    for (Index l = 0; l < rows; ++l)
        for (Index c = 0; c < width; c += kLanes) {
            const auto [x, rest] = octant_angle(8.0 * static_cast<double>(l) * (lane + static_cast<double>(c)), unit);
            const auto [half_square, tail, sine] = octant_root(x, rest);
            const Lanes cosine_less_one = tail - half_square;
            for (Index i = 0; i < kLanes && c + i < width; ++i) {
                roots.re[l * width + c + i] = cosine_less_one[i];
                roots.im[l * width + c + i] = -sine[i];
            }
        }
}
