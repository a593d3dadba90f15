// Passes of a complex transform: radix points, then the twiddle factors. Part of kernels.inl.

// Where the twiddle factors of a butterfly come from.
struct ScaledOnly { // all 1, but the outputs take a common factor
    double scale;
    template <class V>
    KOR_INLINE Pair<V> operator()(Index, Pair<V> y) const
    {
        return scale * y;
    }
};
struct NoTwiddle {
    template <class V>
    KOR_INLINE Pair<V> operator()(Index, Pair<V> y) const
    {
        return y;
    }
};
struct SameForAll { // one factor for all lanes
    const double *cosines, *sines;
    Index step;
    KOR_INLINE SameForAll(const Stage &s, Index j) : cosines{s.cosines + j}, sines{s.sines + j}, step{s.after} {}
    template <class V>
    KOR_INLINE Pair<V> operator()(Index k, Pair<V> y) const
    {
        return k == 0 ? y : y * Pair<double>{cosines[(k - 1) * step], sines[(k - 1) * step]};
    }
};
KOR_INLINE void set_first_to_one(Pair<double> &w) { w = {1.0, 0.0}; }
KOR_INLINE void set_first_to_one(Pair<Lanes> &w)
{
    w.re[0] = 1.0;
    w.im[0] = 0.0;
}

template <class Access, bool kFirstIsRoot>
struct OneForEach { // consecutive factors for consecutive lanes, from place j of the stage on
    Access access;
    const double *cosines, *sines;
    Index step;
    bool at_zero;
    KOR_INLINE OneForEach(Access a, const Stage &s, Index j)
        : access{a}, cosines{s.cosines + j}, sines{s.sines + j}, step{s.after}, at_zero{j == 0}
    {
    }
    template <class V>
    KOR_INLINE Pair<V> operator()(Index k, Pair<V> y) const
    {
        if (k == 0) return y;
        Pair<V> w{access.load(cosines + (k - 1) * step), access.load(sines + (k - 1) * step)};
        if constexpr (kFirstIsRoot)
            if (at_zero) set_first_to_one(w);
        return y * w;
    }
};

// Rows of complex numbers, `step` apart.
struct ComplexIn {
    const double *re, *im;
    Index step;
};
struct ComplexOut {
    double *re, *im;
    Index step;
};

template <class Radix, class Access, class Before, class After>
KOR_INLINE void complex_butterfly(const Radix &radix, Access access, ComplexIn in, ComplexOut out, Before before,
                                  After after)
{
    using V = typename Access::Value;
    typename Radix::template Points<Pair<V>, V> points{radix};
    KOR_UNROLL for (Index l = 0; l < radix.radix; ++l)
        points.x[l] = before(l, Pair<V>{access.load(in.re + l * in.step), access.load(in.im + l * in.step)});
    radix.run(points);
    KOR_UNROLL for (Index k = 0; k < radix.radix; ++k)
    {
        const Pair<V> y = after(k, points.y[k]);
        access.store(out.re + k * out.step, y.re);
        access.store(out.im + k * out.step, y.im);
    }
}

// Rows that follow each other without a gap are one long row.
KOR_INLINE Block merged(Block block)
{
    if (block.in_row == block.width && block.out_row == block.width) {
        block.width *= block.before;
        block.in_row = block.out_row = block.width;
        block.before = 1;
    }
    return block;
}

template <class Radix>
void complex_pass(const Stage &stage, const Block &given, Sequence in, Sequence out, double scale)
{
    const Radix radix{stage};
    const Block block = merged(given);
    const auto row = [&](Index a, auto twiddle) __attribute__((always_inline)) {
        for (Index b = 0; b < block.before; ++b) {
            const Index from = (a * block.before + b) * block.in_row;
            const Index to = (a * radix.radix * block.before + b) * block.out_row;
            deal<Radix>(block.width, [&](auto access, Index c) __attribute__((always_inline)) {
                complex_butterfly(
                    radix, access,
                    {in.re + from + c, in.im + from + c, block.after * block.before * block.in_row},
                    {out.re + to + c, out.im + to + c, block.before * block.out_row}, NoTwiddle{}, twiddle);
            });
        }
    };
    row(0, ScaledOnly{scale});
    for (Index a = 1; a < block.after; ++a) row(a, SameForAll{stage, a * block.spread});
}

template <class Radix, bool kBack>
void columns_pass(const Stage &stage, const Block &block, Index columns, Index first, Sequence in, Sequence out)
{
    const Radix radix{stage};
    const Index in_step = block.before * block.in_row, out_step = block.before * block.out_row;
    for (Index a = 0; a < block.after; ++a)
        for (Index b = 0; b < block.before; ++b) {
            const Index from = kBack ? a * radix.radix * in_step + b * block.in_row : a * in_step + b * block.in_row;
            const Index to = kBack ? a * out_step + b * block.out_row : a * radix.radix * out_step + b * block.out_row;
            deal<Radix>(block.width, [&](auto access, Index c) __attribute__((always_inline)) {
                const OneForEach<decltype(access), Radix::kRootsInTable> twiddle{access, stage, a * columns + first + c};
                const ComplexIn source{in.re + from + c, in.im + from + c, kBack ? in_step : block.after * in_step};
                const ComplexOut target{out.re + to + c, out.im + to + c, kBack ? block.after * out_step : out_step};
                if constexpr (kBack)
                    complex_butterfly(radix, access, source, target, twiddle, NoTwiddle{});
                else
                    complex_butterfly(radix, access, source, target, NoTwiddle{}, twiddle);
            });
        }
}
