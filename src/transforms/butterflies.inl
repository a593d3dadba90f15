// Discrete transforms of a few points, all in registers: X_k = sum_l x_l exp(-2 pi i k l / p). Part of kernels.inl.
//
// One template a radix serves real and complex input: sums and differences of real values stay real until a butterfly
// joins two of them into a complex number.

template <class V>
struct Pair { // a complex number, or a register of them
    V re, im;
};

template <class V>
KOR_INLINE Pair<V> operator+(Pair<V> a, Pair<V> b)
{
    return {a.re + b.re, a.im + b.im};
}
template <class V>
KOR_INLINE Pair<V> operator-(Pair<V> a, Pair<V> b)
{
    return {a.re - b.re, a.im - b.im};
}
template <class V>
KOR_INLINE Pair<V> operator*(double s, Pair<V> a)
{
    return {s * a.re, s * a.im};
}
template <class V, class W>
KOR_INLINE Pair<V> operator*(Pair<V> a, Pair<W> w)
{
    return {a.re * w.re - a.im * w.im, a.re * w.im + a.im * w.re};
}

// a - i b and a + i b.
template <class V>
KOR_INLINE Pair<V> minus_i(Pair<V> a, Pair<V> b)
{
    return {a.re + b.im, a.im - b.re};
}
template <class V>
KOR_INLINE Pair<V> plus_i(Pair<V> a, Pair<V> b)
{
    return {a.re - b.im, a.im + b.re};
}
KOR_INLINE Pair<Lanes> minus_i(Lanes a, Lanes b) { return {a, -b}; }
KOR_INLINE Pair<Lanes> plus_i(Lanes a, Lanes b) { return {a, b}; }
KOR_INLINE Pair<double> minus_i(double a, double b) { return {a, -b}; }
KOR_INLINE Pair<double> plus_i(double a, double b) { return {a, b}; }

template <class V>
KOR_INLINE Pair<V> complex(Pair<V> a)
{
    return a;
}
KOR_INLINE Pair<Lanes> complex(Lanes a) { return {a, Lanes{}}; }
KOR_INLINE Pair<double> complex(double a) { return {a, 0.0}; }

inline constexpr double kHalfSqrt3 = 0.8660254037844386;    // sin(pi / 3)
inline constexpr double kSin72 = 0.9510565162951535;        // sin(2 pi / 5)
inline constexpr double kSin36BySin72 = 0.6180339887498949; // sin(4 pi / 5) / sin(2 pi / 5)
inline constexpr double kQuarterSqrt5 = 0.5590169943749475; // (cos(2 pi / 5) - cos(4 pi / 5)) / 2

// Calls body with each of 0..count-1 as a constant.
template <int i>
using Constant = std::integral_constant<int, i>;
template <int count, class Body>
KOR_INLINE void each(Body body)
{
    [&]<int... i>(std::integer_sequence<int, i...>) __attribute__((always_inline)) { (body(Constant<i>{}), ...); }
    (std::make_integer_sequence<int, count>{});
}

template <int p>
struct Butterfly;

template <>
struct Butterfly<2> {
    template <class X, class V>
    KOR_INLINE static void run(const X *x, Pair<V> *out)
    {
        out[0] = complex(x[0] + x[1]);
        out[1] = complex(x[0] - x[1]);
    }
};

template <>
struct Butterfly<3> {
    template <class X, class V>
    KOR_INLINE static void run(const X *x, Pair<V> *out)
    {
        const X sum = x[1] + x[2];
        const X difference = kHalfSqrt3 * (x[1] - x[2]);
        const X centre = x[0] - 0.5 * sum;
        out[0] = complex(x[0] + sum);
        out[1] = minus_i(centre, difference);
        out[2] = plus_i(centre, difference);
    }
};

template <>
struct Butterfly<4> {
    template <class X, class V>
    KOR_INLINE static void run(const X *x, Pair<V> *out)
    {
        const X even_sum = x[0] + x[2], even_difference = x[0] - x[2];
        const X odd_sum = x[1] + x[3], odd_difference = x[1] - x[3];
        out[0] = complex(even_sum + odd_sum);
        out[1] = minus_i(even_difference, odd_difference);
        out[2] = complex(even_sum - odd_sum);
        out[3] = plus_i(even_difference, odd_difference);
    }
};

template <>
struct Butterfly<5> {
    template <class X, class V>
    KOR_INLINE static void run(const X *x, Pair<V> *out)
    {
        const X sum1 = x[1] + x[4], difference1 = x[1] - x[4];
        const X sum2 = x[2] + x[3], difference2 = x[2] - x[3];
        const X sum = sum1 + sum2;
        const X centre = x[0] - 0.25 * sum;
        const X spread = kQuarterSqrt5 * (sum1 - sum2);
        const X inner = centre + spread, outer = centre - spread;
        const X turn1 = kSin72 * (difference1 + kSin36BySin72 * difference2);
        const X turn2 = kSin72 * (kSin36BySin72 * difference1 - difference2);
        out[0] = complex(x[0] + sum);
        out[1] = minus_i(inner, turn1);
        out[2] = minus_i(outer, turn2);
        out[3] = plus_i(outer, turn2);
        out[4] = plus_i(inner, turn1);
    }
};

// By the coprime factors 2 and 3, without twiddles: x_{3a+2b} -> X with k = a' (mod 2), k = b' (mod 3).
template <>
struct Butterfly<6> {
    template <class X, class V>
    KOR_INLINE static void run(const X *x, Pair<V> *out)
    {
        const X even[3] = {x[0], x[2], x[4]}, odd[3] = {x[3], x[5], x[1]};
        Pair<V> a[3], b[3];
        Butterfly<3>::run(even, a);
        Butterfly<3>::run(odd, b);
        for (int k = 0; k < 6; ++k) out[k] = k % 2 == 0 ? a[k % 3] + b[k % 3] : a[k % 3] - b[k % 3];
    }
};

// exp(-2 pi i t / n) for a small constant n, correctly rounded.
struct Root {
    double re, im;
};
constexpr Root constant_root(int t, int n)
{
    // The Taylor series of the angle in long double, after reduction to (-pi, pi].
    t %= n;
    if (2 * t > n) t -= n;
    const long double x = 6.283185307179586476925286766559005768L * t / n;
    long double cosine = 1.0L, sine = x, term_c = 1.0L, term_s = x;
    for (int i = 1; i < 20; ++i) {
        term_c *= -x * x / ((2 * i - 1) * (2 * i));
        term_s *= -x * x / ((2 * i) * (2 * i + 1));
        cosine += term_c;
        sine += term_s;
    }
    return {static_cast<double>(cosine), static_cast<double>(-sine)};
}

// y * exp(-2 pi i t / n), with the multiples of a quarter turn exact.
template <int t, int n, class V>
KOR_INLINE Pair<V> turned(Pair<V> y)
{
    if constexpr (t % n == 0)
        return y;
    else if constexpr (4 * t % n == 0 && 4 * t / n % 4 == 1)
        return {y.im, -y.re};
    else if constexpr (4 * t % n == 0 && 4 * t / n % 4 == 2)
        return {-y.re, -y.im};
    else if constexpr (4 * t % n == 0 && 4 * t / n % 4 == 3)
        return {-y.im, y.re};
    else {
        constexpr Root w = constant_root(t, n);
        return y * Pair<double>{w.re, w.im};
    }
}

// A composite number of points, by two factors: x_{b l1 + l2} -> X_{k1 + a k2}.
template <int a, int b>
struct Composite {
    template <class X, class V>
    KOR_INLINE static void run(const X *x, Pair<V> *out)
    {
        Pair<V> half[b][a];
        each<b>([&]<int l2>(Constant<l2>) __attribute__((always_inline)) {
            X column[a];
            KOR_UNROLL for (int l1 = 0; l1 < a; ++l1) column[l1] = x[b * l1 + l2];
            Butterfly<a>::run(column, half[l2]);
        });
        each<a>([&]<int k1>(Constant<k1>) __attribute__((always_inline)) {
            Pair<V> row[b], y[b];
            each<b>([&]<int l2>(Constant<l2>)
                        __attribute__((always_inline)) { row[l2] = turned<k1 * l2, a * b>(half[l2][k1]); });
            Butterfly<b>::run(row, y);
            KOR_UNROLL for (int k2 = 0; k2 < b; ++k2) out[k1 + a * k2] = y[k2];
        });
    }
};

// Seven points, from sums and differences of mirrored ones.
template <>
struct Butterfly<7> {
    template <class X, class V>
    KOR_INLINE static void run(const X *x, Pair<V> *out)
    {
        const X sum[] = {x[1] + x[6], x[2] + x[5], x[3] + x[4]};
        const X difference[] = {x[1] - x[6], x[2] - x[5], x[3] - x[4]};
        out[0] = complex(x[0] + (sum[0] + (sum[1] + sum[2])));
        each<3>([&]<int i>(Constant<i>) __attribute__((always_inline)) {
            constexpr Root w1 = constant_root(i + 1, 7), w2 = constant_root(2 * (i + 1), 7),
                           w3 = constant_root(3 * (i + 1), 7);
            const X even = x[0] + (w1.re * sum[0] + (w2.re * sum[1] + w3.re * sum[2]));
            const X odd = w1.im * difference[0] + (w2.im * difference[1] + w3.im * difference[2]);
            out[i + 1] = plus_i(even, odd);
            out[6 - i] = minus_i(even, odd);
        });
    }
};

template <>
struct Butterfly<8> : Composite<4, 2> {
};
template <>
struct Butterfly<9> : Composite<3, 3> {
};
template <>
struct Butterfly<10> : Composite<5, 2> {
};
template <>
struct Butterfly<12> : Composite<4, 3> {
};
template <>
struct Butterfly<14> : Composite<7, 2> {
};
template <>
struct Butterfly<15> : Composite<5, 3> {
};
template <>
struct Butterfly<16> : Composite<4, 4> {
};
