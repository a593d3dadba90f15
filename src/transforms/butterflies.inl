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
