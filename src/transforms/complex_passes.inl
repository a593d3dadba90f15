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
struct OneForEach { // consecutive factors for consecutive lanes
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

struct ComplexIn {
    const double *re, *im;
    Index step;
};
struct ComplexOut {
    double *re, *im;
    Index step;
};

template <class Radix, class Access, class Twiddle>
KOR_INLINE void complex_butterfly(const Radix &radix, Access access, ComplexIn in, ComplexOut out, Twiddle twiddle)
{
    using V = typename Access::Value;
    typename Radix::template Points<Pair<V>, V> points{radix};
    KOR_UNROLL for (Index l = 0; l < radix.radix; ++l)
        points.x[l] = {access.load(in.re + l * in.step), access.load(in.im + l * in.step)};
    radix.run(points);
    KOR_UNROLL for (Index k = 0; k < radix.radix; ++k)
    {
        const Pair<V> y = twiddle(k, points.y[k]);
        access.store(out.re + k * out.step, y.re);
        access.store(out.im + k * out.step, y.im);
    }
}

template <class Radix>
void complex_across_pass(const Stage &stage, Index batch, const double *in_re, const double *in_im, double *out_re,
                         double *out_im, double scale)
{
    const Radix radix{stage};
    const Index width = stage.before * batch;
    const auto row = [&](Index j, auto twiddle) {
        Radix::cover(
            width, [&](auto access, Index b) __attribute__((always_inline)) {
                const Index from = j * width + b, to = j * radix.radix * width + b;
                complex_butterfly(radix, access, {in_re + from, in_im + from, stage.after * width},
                                  {out_re + to, out_im + to, width}, twiddle);
            });
    };
    row(0, ScaledOnly{scale});
    for (Index j = 1; j < stage.after; ++j) row(j, SameForAll{stage, j});
}

template <class Radix>
void complex_along_pass(const Stage &stage, const double *in_re, const double *in_im, double *out_re, double *out_im)
{
    const Radix radix{stage};
    for (Index block = 0; block < stage.before; ++block) {
        const Index base = block * radix.radix * stage.after;
        Radix::cover(
            stage.after, [&](auto access, Index j) __attribute__((always_inline)) {
                const Index at = base + j;
                complex_butterfly(radix, access, {in_re + at, in_im + at, stage.after},
                                  {out_re + at, out_im + at, stage.after},
                                  OneForEach<decltype(access), Radix::kRootsInTable>{access, stage, j});
            });
    }
}
