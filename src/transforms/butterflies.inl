// Discrete transforms of a few points, all in registers: X_k = sum_l x_l exp(-2 pi i k l / p). Part of kernels.inl.
//
// Each has two forms. run() takes real or complex points: sums and differences of real values stay real until a
// butterfly joins two of them into a complex number; of real points it may leave out y[k], k > p/2, which are the
// conjugates of the others. run_to_real() takes the elements 0..p/2 of a Hermitian sequence and gives real ones; the
// imaginary parts of the elements 0 and p/2 are zero, and not read.

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
template <class V>
KOR_INLINE Pair<V> minus_i(V a, V b)
{
    return {a, -b};
}
template <class V>
KOR_INLINE Pair<V> plus_i(V a, V b)
{
    return {a, b};
}

template <class V>
KOR_INLINE Pair<V> conjugate(Pair<V> a)
{
    return {a.re, -a.im};
}

template <class V>
KOR_INLINE Pair<V> complex(Pair<V> a)
{
    return a;
}
template <class V>
KOR_INLINE Pair<V> complex(V a)
{
    return {a, V{}};
}

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
    [&]<int... i>(std::integer_sequence<int, i...>) KOR_INLINED { (body(Constant<i>{}), ...); }
    (std::make_integer_sequence<int, count>{});
}

template <int p>
struct Butterfly;

template <>
struct Butterfly<2> {
    template <class X, class V>
    KOR_INLINE static void run(const X *x, Pair<V> *y)
    {
        y[0] = complex(x[0] + x[1]);
        y[1] = complex(x[0] - x[1]);
    }
    template <class V>
    KOR_INLINE static void run_to_real(const Pair<V> *x, V *y)
    {
        y[0] = x[0].re + x[1].re;
        y[1] = x[0].re - x[1].re;
    }
};

template <>
struct Butterfly<3> {
    template <class X, class V>
    KOR_INLINE static void run(const X *x, Pair<V> *y)
    {
        const X sum = x[1] + x[2];
        const X difference = kHalfSqrt3 * (x[1] - x[2]);
        const X centre = x[0] - 0.5 * sum;
        y[0] = complex(x[0] + sum);
        y[1] = minus_i(centre, difference);
        y[2] = plus_i(centre, difference);
    }
    template <class V>
    KOR_INLINE static void run_to_real(const Pair<V> *x, V *y)
    {
        const V turn = kHalfSqrt3 * (x[1].im + x[1].im);
        const V centre = x[0].re - x[1].re;
        y[0] = x[0].re + (x[1].re + x[1].re);
        y[1] = centre + turn;
        y[2] = centre - turn;
    }
};

template <>
struct Butterfly<4> {
    template <class X, class V>
    KOR_INLINE static void run(const X *x, Pair<V> *y)
    {
        const X even_sum = x[0] + x[2], even_difference = x[0] - x[2];
        const X odd_sum = x[1] + x[3], odd_difference = x[1] - x[3];
        y[0] = complex(even_sum + odd_sum);
        y[1] = minus_i(even_difference, odd_difference);
        y[2] = complex(even_sum - odd_sum);
        y[3] = plus_i(even_difference, odd_difference);
    }
    template <class V>
    KOR_INLINE static void run_to_real(const Pair<V> *x, V *y)
    {
        const V even_sum = x[0].re + x[2].re, even_difference = x[0].re - x[2].re;
        const V odd_sum = x[1].re + x[1].re, odd_difference = x[1].im + x[1].im;
        y[0] = even_sum + odd_sum;
        y[1] = even_difference + odd_difference;
        y[2] = even_sum - odd_sum;
        y[3] = even_difference - odd_difference;
    }
};

template <>
struct Butterfly<5> {
    template <class X, class V>
    KOR_INLINE static void run(const X *x, Pair<V> *y)
    {
        const X sum1 = x[1] + x[4], difference1 = x[1] - x[4];
        const X sum2 = x[2] + x[3], difference2 = x[2] - x[3];
        const auto [sum, inner, outer, turn1, turn2] = parts(x[0], sum1, sum2, difference1, difference2);
        y[0] = complex(sum);
        y[1] = minus_i(inner, turn1);
        y[2] = minus_i(outer, turn2);
        y[3] = plus_i(outer, turn2);
        y[4] = plus_i(inner, turn1);
    }
    template <class V>
    KOR_INLINE static void run_to_real(const Pair<V> *x, V *y)
    {
        const auto [sum, inner, outer, turn1, turn2] =
            parts(x[0].re, x[1].re + x[1].re, x[2].re + x[2].re, x[1].im + x[1].im, x[2].im + x[2].im);
        y[0] = sum;
        y[1] = inner + turn1;
        y[2] = outer + turn2;
        y[3] = outer - turn2;
        y[4] = inner - turn1;
    }

  private:
    template <class X>
    struct Parts {
        X sum, inner, outer, turn1, turn2;
    };
    template <class X>
    KOR_INLINE static Parts<X> parts(X x0, X sum1, X sum2, X difference1, X difference2)
    {
        const X sum = sum1 + sum2;
        const X centre = x0 - 0.25 * sum;
        const X spread = kQuarterSqrt5 * (sum1 - sum2);
        return {x0 + sum, centre + spread, centre - spread, kSin72 * (difference1 + kSin36BySin72 * difference2),
                kSin72 * (kSin36BySin72 * difference1 - difference2)};
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
template <int t, int n, class V>
KOR_INLINE Pair<V> turned(V y)
{
    if constexpr (4 * t % n == 0)
        return turned<t, n>(complex(y));
    else {
        constexpr Root w = constant_root(t, n);
        return {w.re * y, w.im * y};
    }
}

// An odd prime number of points, from sums and differences of mirrored ones.
template <int p>
struct OddPrime {
    static constexpr int kHalf = p / 2;

    template <class X, class V>
    KOR_INLINE static void run(const X *x, Pair<V> *y)
    {
        X sum[kHalf], difference[kHalf], total = x[0];
        KOR_UNROLL for (int l = 0; l < kHalf; ++l)
        {
            sum[l] = x[l + 1] + x[p - 1 - l];
            difference[l] = x[l + 1] - x[p - 1 - l];
            total = total + sum[l];
        }
        y[0] = complex(total);
        each<kHalf>([&]<int i>(Constant<i>) KOR_INLINED {
            const auto [even, odd] = parts<i + 1>(x[0], sum, difference);
            y[i + 1] = plus_i(even, odd);
            y[p - 1 - i] = minus_i(even, odd);
        });
    }
    template <class V>
    KOR_INLINE static void run_to_real(const Pair<V> *x, V *y)
    {
        V sum[kHalf], difference[kHalf], total = x[0].re;
        KOR_UNROLL for (int l = 0; l < kHalf; ++l)
        {
            sum[l] = x[l + 1].re + x[l + 1].re;
            difference[l] = x[l + 1].im + x[l + 1].im;
            total = total + sum[l];
        }
        y[0] = total;
        each<kHalf>([&]<int i>(Constant<i>) KOR_INLINED {
            const auto [even, odd] = parts<i + 1>(x[0].re, sum, difference);
            y[i + 1] = even - odd;
            y[p - 1 - i] = even + odd;
        });
    }

  private:
    // What is even in k and what is odd, the latter still to be multiplied by i.
    template <class X>
    struct Parts {
        X even, odd;
    };
    template <int k, class X>
    KOR_INLINE static Parts<X> parts(X x0, const X *sum, const X *difference)
    {
        constexpr Root w = constant_root(k, p);
        X even = x0 + w.re * sum[0], odd = w.im * difference[0];
        each<kHalf - 1>([&]<int i>(Constant<i>) KOR_INLINED {
            constexpr Root v = constant_root(k * (i + 2), p);
            even = even + v.re * sum[i + 1];
            odd = odd + v.im * difference[i + 1];
        });
        return {even, odd};
    }
};

constexpr bool are_coprime(int a, int b)
{
    while (b != 0) {
        const int rest = a % b;
        a = b;
        b = rest;
    }
    return a == 1;
}

// Two factors of the number of points, a transform of the one length for each point of the other. Point b l1 + l2 goes
// to k1 + a k2, with a factor exp(-2 pi i k1 l2 / n) between the two transforms.
template <int a, int b>
struct Twiddled {
    static constexpr int from(int l1, int l2) { return b * l1 + l2; }
    static constexpr int to(int k1, int k2) { return k1 + a * k2; }
    static constexpr bool kTurns = true;
};
// Coprime factors need no factors between: point b l1 + a l2 modulo n goes to the place that is k1 modulo a, k2 modulo
// b.
template <int a, int b>
struct Coprime {
    static constexpr int from(int l1, int l2) { return (b * l1 + a * l2) % (a * b); }
    static constexpr int to(int k1, int k2)
    {
        int k = k1;
        while (k % b != k2) k += a;
        return k;
    }
    static constexpr bool kTurns = false;
};

template <int a, int b>
struct Composite {
    static constexpr int n = a * b;
    using Packed = std::conditional_t<are_coprime(a, b), Coprime<a, b>, Twiddled<a, b>>;
    // Single complex sequences fill registers with neighbours, which the coprime order would tear apart.
    using Complex = std::conditional_t<are_coprime(a, b) && n <= kLargestPlainRadix, Coprime<a, b>, Twiddled<a, b>>;

    template <class Order, int k1, int l2, class Y>
    KOR_INLINE static auto between(Y y)
    {
        if constexpr (Order::kTurns)
            return turned<k1 * l2, n>(y);
        else
            return y;
    }

    template <class V>
    KOR_INLINE static void run(const Pair<V> *x, Pair<V> *y)
    {
        Pair<V> half[b][a];
        each<b>([&]<int l2>(Constant<l2>) KOR_INLINED {
            Pair<V> column[a];
            KOR_UNROLL for (int l1 = 0; l1 < a; ++l1) column[l1] = x[Complex::from(l1, l2)];
            Butterfly<a>::run(column, half[l2]);
        });
        each<a>([&]<int k1>(Constant<k1>) KOR_INLINED {
            Pair<V> row[b], out[b];
            each<b>([&]<int l2>(Constant<l2>)
                        KOR_INLINED { row[l2] = between<Complex, k1, l2>(half[l2][k1]); });
            Butterfly<b>::run(row, out);
            KOR_UNROLL for (int k2 = 0; k2 < b; ++k2) y[Complex::to(k1, k2)] = out[k2];
        });
    }

    // Columns give Hermitian rows, of which half are enough.
    template <class V>
    KOR_INLINE static void run(const V *x, Pair<V> *y)
    {
        Pair<V> half[b][a];
        each<b>([&]<int l2>(Constant<l2>) KOR_INLINED {
            V column[a];
            KOR_UNROLL for (int l1 = 0; l1 < a; ++l1) column[l1] = x[Packed::from(l1, l2)];
            Butterfly<a>::run(column, half[l2]);
        });
        const auto store = [&](int k, Pair<V> value) KOR_INLINED
        {
            if (2 * k <= n)
                y[k] = value;
            else
                y[n - k] = conjugate(value);
        };
        each<a / 2 + 1>([&]<int k1>(Constant<k1>) KOR_INLINED {
            constexpr bool kRealColumns = k1 == 0 || 2 * k1 == a;
            Pair<V> out[b];
            if constexpr (k1 == 0 || (kRealColumns && !Packed::kTurns)) {
                V row[b];
                KOR_UNROLL for (int l2 = 0; l2 < b; ++l2) row[l2] = half[l2][k1].re;
                Butterfly<b>::run(row, out);
                KOR_UNROLL for (int k2 = 0; k2 <= b / 2; ++k2) store(Packed::to(k1, k2), out[k2]);
            } else {
                Pair<V> row[b];
                each<b>([&]<int l2>(Constant<l2>) KOR_INLINED {
                    if constexpr (kRealColumns)
                        row[l2] = between<Packed, k1, l2>(half[l2][k1].re);
                    else
                        row[l2] = between<Packed, k1, l2>(half[l2][k1]);
                });
                Butterfly<b>::run(row, out);
                // Of real columns, the second half of the row is the conjugate of the first.
                KOR_UNROLL for (int k2 = 0; k2 < (kRealColumns ? (b + 1) / 2 : b); ++k2)
                    store(Packed::to(k1, k2), out[k2]);
            }
        });
    }

    // The other way round: the columns l2 and b - l2 come out as conjugates, so that the rows are Hermitian.
    template <class V>
    KOR_INLINE static void run_to_real(const Pair<V> *x, V *y)
    {
        const auto load = [&](int l) KOR_INLINED { return 2 * l <= n ? x[l] : conjugate(x[n - l]); };
        Pair<V> row[a][b / 2 + 1];
        each<b / 2 + 1>([&]<int l2>(Constant<l2>) KOR_INLINED {
            Pair<V> column[a];
            if constexpr (l2 == 0 || (2 * l2 == b && !Packed::kTurns)) {
                V half[a];
                KOR_UNROLL for (int l1 = 0; l1 <= a / 2; ++l1) column[l1] = load(Packed::from(l1, l2));
                Butterfly<a>::run_to_real(column, half);
                KOR_UNROLL for (int k1 = 0; k1 < a; ++k1) row[k1][l2].re = half[k1];
            } else {
                Pair<V> half[a];
                KOR_UNROLL for (int l1 = 0; l1 < a; ++l1) column[l1] = load(Packed::from(l1, l2));
                Butterfly<a>::run(column, half);
                each<a>([&]<int k1>(Constant<k1>)
                            KOR_INLINED { row[k1][l2] = between<Packed, k1, l2>(half[k1]); });
            }
        });
        KOR_UNROLL for (int k1 = 0; k1 < a; ++k1)
        {
            V out[b];
            Butterfly<b>::run_to_real(row[k1], out);
            KOR_UNROLL for (int k2 = 0; k2 < b; ++k2) y[Packed::to(k1, k2)] = out[k2];
        }
    }
};

template <>
struct Butterfly<7> : OddPrime<7> {
};
template <>
struct Butterfly<11> : OddPrime<11> {
};
template <>
struct Butterfly<13> : OddPrime<13> {
};
template <>
struct Butterfly<17> : OddPrime<17> {
};
template <>
struct Butterfly<19> : OddPrime<19> {
};
template <>
struct Butterfly<6> : Composite<2, 3> {
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
template <>
struct Butterfly<18> : Composite<6, 3> {
};
template <>
struct Butterfly<20> : Composite<5, 4> {
};
template <>
struct Butterfly<21> : Composite<7, 3> {
};
template <>
struct Butterfly<24> : Composite<6, 4> {
};
template <>
struct Butterfly<25> : Composite<5, 5> {
};
template <>
struct Butterfly<27> : Composite<9, 3> {
};
template <>
struct Butterfly<28> : Composite<7, 4> {
};
template <>
struct Butterfly<30> : Composite<6, 5> {
};
template <>
struct Butterfly<32> : Composite<8, 4> {
};
template <>
struct Butterfly<22> : Composite<11, 2> {
};
template <>
struct Butterfly<26> : Composite<13, 2> {
};
template <>
struct Butterfly<33> : Composite<11, 3> {
};
template <>
struct Butterfly<36> : Composite<6, 6> {
};
template <>
struct Butterfly<45> : Composite<9, 5> {
};
template <>
struct Butterfly<35> : Composite<7, 5> {
};
