// Transforms of one short sequence in place, whose length has a butterfly of its own. Part of kernels.inl.
//
// The roundings are those of the butterflies: a sequence gives the same numbers here as among others.

#if KOR_LANES >= 4
// Four at a time, whatever the generation.
typedef double Four __attribute__((vector_size(32)));
typedef double StoredFour __attribute__((vector_size(32), aligned(8), may_alias));

template <int count>
KOR_INLINE Four load_some(const double *p)
{
    if constexpr (count >= 4)
        return *reinterpret_cast<const StoredFour *>(p);
    else if constexpr (count == 3)
        return Four{p[0], p[1], p[2], 0.0};
    else if constexpr (count == 2)
        return Four{p[0], p[1], 0.0, 0.0};
    else
        return Four{p[0], 0.0, 0.0, 0.0};
}
template <int count>
KOR_INLINE void store_some(double *p, Four v)
{
    if constexpr (count >= 4)
        *reinterpret_cast<StoredFour *>(p) = v;
    else
        KOR_UNROLL for (int i = 0; i < count; ++i) p[i] = v[i];
}
KOR_INLINE void transpose_four(const Four (&a)[4], Four (&b)[4])
{
    const Four low01 = __builtin_shufflevector(a[0], a[1], 0, 4, 2, 6),
               high01 = __builtin_shufflevector(a[0], a[1], 1, 5, 3, 7),
               low23 = __builtin_shufflevector(a[2], a[3], 0, 4, 2, 6),
               high23 = __builtin_shufflevector(a[2], a[3], 1, 5, 3, 7);
    b[0] = __builtin_shufflevector(low01, low23, 0, 1, 4, 5);
    b[1] = __builtin_shufflevector(high01, high23, 0, 1, 4, 5);
    b[2] = __builtin_shufflevector(low01, low23, 2, 3, 6, 7);
    b[3] = __builtin_shufflevector(high01, high23, 2, 3, 6, 7);
}

// Roots of the places `first`, first + step, .. modulo n, quarter turns exact.
struct alignas(32) FourRoots {
    double re[4], im[4];
};
constexpr FourRoots four_roots(int first, int step, int n)
{
    FourRoots roots{};
    for (int i = 0; i < 4; ++i) {
        const int t = (first + i * step) % n;
        const Root root = constant_root(t, n);
        const bool quarter = 4 * t % n == 0;
        constexpr double kQuarters[] = {1.0, 0.0, -1.0, 0.0};
        roots.re[i] = quarter ? kQuarters[4 * t / n] : root.re;
        roots.im[i] = quarter ? kQuarters[(4 * t / n + 1) % 4] : root.im;
    }
    return roots;
}
template <int first, int step, int n>
inline constexpr FourRoots kFourRoots = four_roots(first, step, n);

template <int first, int step, int n>
KOR_INLINE Pair<Four> load_roots()
{
    const FourRoots &roots = kFourRoots<first, step, n>;
    return {load_some<4>(roots.re), load_some<4>(roots.im)};
}

// By two factors: the columns side by side, then, turned round, the rows side by side. Registers whose last elements
// stand for nothing may be stored whole as long as what comes after is stored later.
template <int a, int b>
KOR_INLINE void complex_by_rows_and_columns(Sequence x, double scale)
{
    constexpr int n = a * b, kColumnGroups = (b + 3) / 4, kRowGroups = (a + 3) / 4;
    Pair<Four> middle[kRowGroups][4 * kColumnGroups];
    each<kColumnGroups>([&]<int group>(Constant<group>) KOR_INLINED {
        constexpr int first = 4 * group;
        Pair<Four> column[a], half[4 * kRowGroups];
        each<a>([&]<int l1>(Constant<l1>) KOR_INLINED {
            constexpr int at = b * l1 + first, count = at + 4 <= n ? 4 : n - at;
            column[l1] = {load_some<count>(x.re + at), load_some<count>(x.im + at)};
        });
        Butterfly<a>::run(column, half);
        each<a - 1>([&]<int i>(Constant<i>) KOR_INLINED {
            half[i + 1] = half[i + 1] * load_roots<(i + 1) * first, i + 1, n>();
        });
        KOR_UNROLL for (int k1 = a; k1 < 4 * kRowGroups; ++k1) half[k1] = half[0];
        KOR_UNROLL for (int h = 0; h < kRowGroups; ++h)
        {
            const Four re[] = {half[4 * h].re, half[4 * h + 1].re, half[4 * h + 2].re, half[4 * h + 3].re};
            const Four im[] = {half[4 * h].im, half[4 * h + 1].im, half[4 * h + 2].im, half[4 * h + 3].im};
            Four turned_re[4], turned_im[4];
            transpose_four(re, turned_re);
            transpose_four(im, turned_im);
            KOR_UNROLL for (int l = 0; l < 4; ++l) middle[h][first + l] = {turned_re[l], turned_im[l]};
        }
    });
    each<kRowGroups>([&]<int i>(Constant<i>) KOR_INLINED {
        constexpr int group = kRowGroups - 1 - i;
        Pair<Four> out[b];
        Butterfly<b>::run(static_cast<const Pair<Four> *>(middle[group]), out);
        each<b>([&]<int k2>(Constant<k2>) KOR_INLINED {
            constexpr int at = a * k2 + 4 * group, count = at + 4 <= n ? 4 : n - at;
            store_some<count>(x.re + at, scale * out[k2].re);
            store_some<count>(x.im + at, scale * out[k2].im);
        });
    });
}

// Of an odd prime length: the sums that are even and odd in k, for the places k = 1..p/2 side by side.
template <int p>
struct PrimeSums {
    static constexpr int kHalf = p / 2, kGroups = (kHalf + 3) / 4;
    Four even[kGroups], odd[kGroups];

    KOR_INLINE PrimeSums(double x0, const double *sum, const double *difference)
    {
        each<kHalf>([&]<int l>(Constant<l>) KOR_INLINED {
            each<kGroups>([&]<int g>(Constant<g>) KOR_INLINED {
                const Pair<Four> w = load_roots<(4 * g + 1) * (l + 1), l + 1, p>();
                even[g] = (l == 0 ? x0 + Four{} : even[g]) + w.re * sum[l];
                odd[g] = l == 0 ? w.im * difference[l] : odd[g] + w.im * difference[l];
            });
        });
    }
};

// Stores at(g) to the places 1 + 4g .. and mirror(g) to the places p - 1 - 4g, .. downwards.
template <int p, class At, class Mirror>
KOR_INLINE void store_mirrored_halves(double *y, At at, Mirror mirror)
{
    constexpr int kHalf = p / 2, kGroups = (kHalf + 3) / 4;
    KOR_UNROLL for (int g = 0; g < kGroups; ++g)
    {
        const Four v = mirror(g);
        store_some<4>(y + p - 4 - 4 * g, __builtin_shufflevector(v, v, 3, 2, 1, 0));
    }
    each<kGroups>([&]<int g>(Constant<g>)
                      KOR_INLINED { store_some<kHalf - 4 * g>(y + 1 + 4 * g, at(g)); });
}

// Sums and differences of mirrored elements, and the sum of all.
template <int p>
struct Folded {
    double sum[p / 2], difference[p / 2], total;

    KOR_INLINE explicit Folded(const double *x) : total{x[0]}
    {
        KOR_UNROLL for (int l = 0; l < p / 2; ++l)
        {
            sum[l] = x[l + 1] + x[p - 1 - l];
            difference[l] = x[l + 1] - x[p - 1 - l];
            total = total + sum[l];
        }
    }
};

template <int p>
KOR_INLINE void complex_of_prime_length(Sequence x, double scale)
{
    const Folded<p> re{x.re}, im{x.im};
    const PrimeSums<p> sums_re{x.re[0], re.sum, re.difference}, sums_im{x.im[0], im.sum, im.difference};
    store_mirrored_halves<p>(
        x.re, [&](int g) KOR_INLINED { return scale * (sums_re.even[g] - sums_im.odd[g]); },
        [&](int g) KOR_INLINED { return scale * (sums_re.even[g] + sums_im.odd[g]); });
    store_mirrored_halves<p>(
        x.im, [&](int g) KOR_INLINED { return scale * (sums_im.even[g] + sums_re.odd[g]); },
        [&](int g) KOR_INLINED { return scale * (sums_im.even[g] - sums_re.odd[g]); });
    x.re[0] = scale * re.total;
    x.im[0] = scale * im.total;
}

template <int p>
KOR_INLINE void real_of_prime_length(double *x, double scale)
{
    const Folded<p> folded{x};
    const PrimeSums<p> sums{x[0], folded.sum, folded.difference};
    store_mirrored_halves<p>(
        x, [&](int g) KOR_INLINED { return scale * sums.even[g]; },
        [&](int g) KOR_INLINED { return scale * sums.odd[g]; });
    x[0] = scale * folded.total;
}

template <int p>
KOR_INLINE void hermitian_of_prime_length(double *x, double scale)
{
    double sum[p / 2], difference[p / 2], total = x[0];
    KOR_UNROLL for (int l = 0; l < p / 2; ++l)
    {
        sum[l] = x[l + 1] + x[l + 1];
        difference[l] = x[p - 1 - l] + x[p - 1 - l];
        total = total + sum[l];
    }
    const PrimeSums<p> sums{x[0], sum, difference};
    store_mirrored_halves<p>(
        x, [&](int g) KOR_INLINED { return scale * (sums.even[g] - sums.odd[g]); },
        [&](int g) KOR_INLINED { return scale * (sums.even[g] + sums.odd[g]); });
    x[0] = scale * total;
}

// Which lengths are better off with four at a time.
template <int n>
concept OddPrimeLength = requires(const Butterfly<n> *butterfly)
{
    []<int p>(const OddPrime<p> *) {}(butterfly);
};
template <int n>
concept CompositeLength = requires(const Butterfly<n> *butterfly)
{
    []<int a, int b>(const Composite<a, b> *) {}(butterfly);
};
#endif

template <int n>
void complex_alone(Sequence x, double scale)
{
#if KOR_LANES >= 4
    if constexpr (OddPrimeLength<n>)
        return complex_of_prime_length<n>(x, scale);
    else if constexpr (CompositeLength<n> && n > kLargestPlainRadix)
        return [&]<int a, int b>(const Composite<a, b> *) KOR_INLINED
        {
            complex_by_rows_and_columns<a, b>(x, scale);
        }
    (static_cast<const Butterfly<n> *>(nullptr));
#endif
    Pair<double> points[n], transform[n];
    KOR_UNROLL for (int l = 0; l < n; ++l) points[l] = {x.re[l], x.im[l]};
    Butterfly<n>::run(static_cast<const Pair<double> *>(points), transform);
    KOR_UNROLL for (int k = 0; k < n; ++k)
    {
        x.re[k] = scale * transform[k].re;
        x.im[k] = scale * transform[k].im;
    }
}

template <int n>
void real_alone(Sequence x, double scale)
{
#if KOR_LANES >= 4
    if constexpr (OddPrimeLength<n>) return real_of_prime_length<n>(x.re, scale);
#endif
    double points[n];
    Pair<double> transform[n];
    KOR_UNROLL for (int l = 0; l < n; ++l) points[l] = x.re[l];
    Butterfly<n>::run(static_cast<const double *>(points), transform);
    KOR_UNROLL for (int k = 0; k <= n / 2; ++k)
    {
        x.re[k] = scale * transform[k].re;
        if (k > 0 && 2 * k < n) x.re[n - k] = scale * transform[k].im;
    }
}

template <int n>
void hermitian_alone(Sequence x, double scale)
{
#if KOR_LANES >= 4
    if constexpr (OddPrimeLength<n>) return hermitian_of_prime_length<n>(x.re, scale);
#endif
    Pair<double> points[n / 2 + 1];
    double transform[n];
    KOR_UNROLL for (int k = 0; k <= n / 2; ++k) points[k] = {x.re[k], k > 0 && 2 * k < n ? x.re[n - k] : 0.0};
    Butterfly<n>::run_to_real(static_cast<const Pair<double> *>(points), transform);
    KOR_UNROLL for (int l = 0; l < n; ++l) x.re[l] = scale * transform[l];
}

template <int n>
constexpr void set_alone([[maybe_unused]] AloneTable &table)
{
    if constexpr (has_butterfly(Kind::complex, n)) table.complex[n] = complex_alone<n>;
    if constexpr (has_butterfly(Kind::real, n)) table.real[n] = real_alone<n>;
    if constexpr (has_butterfly(Kind::hermitian, n)) table.hermitian[n] = hermitian_alone<n>;
}
constexpr AloneTable alone_table()
{
    AloneTable table{};
    [&]<int... n>(std::integer_sequence<int, n...>) { (set_alone<n>(table), ...); }
    (std::make_integer_sequence<int, kLongestButterfly + 1>{});
    return table;
}
