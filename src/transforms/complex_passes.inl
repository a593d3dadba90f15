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

// Where the points of a butterfly come from and go to: rows of complex numbers, `step` apart.
struct Rows {
    Sequence at;
    Index step;

    template <class Access>
    KOR_INLINE auto load(Access access, Index l) const
    {
        return Pair<typename Access::Value>{access.load(at.re + l * step), access.load(at.im + l * step)};
    }
    template <class Access, class V>
    KOR_INLINE void store(Access access, Index k, Pair<V> y) const
    {
        access.store(at.re + k * step, y.re);
        access.store(at.im + k * step, y.im);
    }
    KOR_INLINE Rows shifted(Index by) const { return {{at.re + by, at.im + by}, step}; }
};

// All rows of a whole transform.
struct WholeRows {
    Sequence at;
    Index step, count;

    template <class Access>
    KOR_INLINE auto load(Access access, Index l) const
    {
        const double *const re = at.re + l * step, *const im = at.im + l * step;
        return l + 1 < count ? Pair<typename Access::Value>{access.load(re), access.load(im)}
                             : Pair<typename Access::Value>{access.load_last(re), access.load_last(im)};
    }
    template <class Access, class V>
    KOR_INLINE void store(Access access, Index k, Pair<V> y) const
    {
        double *const re = at.re + k * step, *const im = at.im + k * step;
        k + 1 < count ? access.store(re, y.re) : access.store_last(re, y.re);
        k + 1 < count ? access.store(im, y.im) : access.store_last(im, y.im);
    }
};

template <class Radix, class Access, class Source, class Target, class Before, class After>
KOR_INLINE void complex_butterfly(const Radix &radix, Access access, Source source, Target target, Before before,
                                  After after)
{
    using V = typename Access::Value;
    typename Radix::template Points<Pair<V>, Pair<V>> points{radix};
    radix.loop(
        radix.radix, [&](Index l) KOR_INLINED { points.x[l] = before(l, source.load(access, l)); });
    radix.run(points);
    radix.loop(
        radix.radix, [&](Index k) KOR_INLINED { target.store(access, k, after(k, points.y[k])); });
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

// The butterflies of row a of the blocks.
template <class Radix, class Twiddle>
KOR_INLINE void complex_row(const Radix &radix, const Block &block, Index a, Sequence in, Sequence out, Twiddle twiddle)
{
    for (Index b = 0; b < block.before; ++b) {
        const Index from = (a * block.before + b) * block.in_row;
        const Index to = (a * radix.radix * block.before + b) * block.out_row;
        deal<Radix>(
            block.width, [&](auto access, Index c) KOR_INLINED {
                const Rows source{{in.re + from + c, in.im + from + c}, block.after * block.before * block.in_row};
                const Rows target{{out.re + to + c, out.im + to + c}, block.before * block.out_row};
                complex_butterfly(radix, access, source, target, NoTwiddle{}, twiddle);
            });
    }
}

// Rows of a single element have nothing to fill registers with: the lanes go across them.
template <class Radix>
KOR_INLINE bool across_rows(const Block &block, Index count)
{
    const bool gapless = block.in_row == 1 && block.out_row == 1;
    return Radix::kInRegisters && gapless && block.width == 1 && block.before == 1 && block.spread == 1 &&
           count >= kLanes;
}

template <class Radix>
void complex_pass(const Stage &stage, const Block &given, Sequence in, Sequence out)
{
    const Radix radix{stage};
    const Block block = merged(given);
    if constexpr (Radix::kInRegisters) {
        if (across_rows<Radix>(block, block.after)) {
            return cover_full(
                block.after, [&](auto full, Index a) KOR_INLINED {
                    const Index to = a * radix.radix;
                    const OneForEach<Full, Radix::kRootsInTable> twiddle{full, stage, a};
                    complex_butterfly(radix, ToAfar{full, radix.radix}, Rows{{in.re + a, in.im + a}, block.after},
                                      Rows{{out.re + to, out.im + to}, 1}, NoTwiddle{}, twiddle);
                });
        }
    }
    complex_row(radix, block, 0, in, out, NoTwiddle{});
    for (Index a = 1; a < block.after; ++a) complex_row(radix, block, a, in, out, SameForAll{stage, a * block.spread});
}

template <class Radix>
bool complex_whole(const Stage &stage, const Block &given, Sequence in, Sequence out, double scale)
{
    const Radix radix{stage};
    const Block block = merged(given);
    bool done = true;
    for (Index b = 0; b < block.before && done; ++b)
        done = deal_whole<Radix>(
            block, [&](auto access, Index c) KOR_INLINED {
                const Index from = b * block.in_row + c, to = b * block.out_row + c;
                const WholeRows source{{in.re + from, in.im + from}, block.before * block.in_row, radix.radix};
                const WholeRows target{{out.re + to, out.im + to}, block.before * block.out_row, radix.radix};
                complex_butterfly(radix, access, source, target, NoTwiddle{}, ScaledOnly{scale});
            });
    return done;
}

// What a pass over columns reads or writes, besides rows of complex numbers: columns first + c, first >= 1, of packed
// sequences of length v.
struct ShortRows {  // of one sequence in each row
    double *packed; // column 0 of the first row
    Index v, step;  // from row to row
    Index first;

    template <class Access>
    KOR_INLINE auto load(Access access, Index l) const
    {
        return Pair<typename Access::Value>{access.load(packed + l * step + first),
                                            access.load_mirrored(packed + l * step + v - first)};
    }
    template <class Access, class V>
    KOR_INLINE void store(Access access, Index k, Pair<V> y) const
    {
        access.store(packed + k * step + first, y.re);
        access.store_mirrored(packed + k * step + v - first, y.im);
    }
};
struct LongRows { // of one sequence of length rows * v, whose place first + c + v k is column first + c of row k
    double *packed;
    Index v, rows;
    Index row, row_step; // row + l row_step is number l of the rows at hand
    Index first;

    template <class Access>
    KOR_INLINE auto load(Access access, Index l) const
    {
        const Index k = row + l * row_step;
        const auto here = access.load(packed + k * v + first),
                   mirror = access.load_mirrored(packed + (rows - k) * v - first);
        return 2 * k < rows ? Pair<typename Access::Value>{here, mirror} : Pair<typename Access::Value>{mirror, -here};
    }
    template <class Access, class V>
    KOR_INLINE void store(Access access, Index l, Pair<V> y) const
    {
        const Index k = row + l * row_step;
        double *const here = packed + k * v + first, *const mirror = packed + (rows - k) * v - first;
        if (2 * k < rows) {
            access.store(here, y.re);
            access.store_mirrored(mirror, y.im);
        } else {
            access.store(here, -y.im);
            access.store_mirrored(mirror, y.re);
        }
    }
};

// The rows l = 0, 1, .. of one side of a pass that begin with row `start` and are `step` rows apart, from column c on.
template <ColumnsOf kind>
KOR_INLINE auto rows_of(const Columns &columns, Index row, Sequence data, Index start, Index step, Index c)
{
    if constexpr (kind == ColumnsOf::complex_block)
        return Rows{{data.re + start * row + c, data.im + start * row + c}, step * row};
    else if constexpr (kind == ColumnsOf::short_sequences)
        return ShortRows{data.re + start * row, columns.count, step * row, columns.first + c};
    else
        return LongRows{data.re, columns.count, columns.rows, start, step, columns.first + c};
}

// kBack: twiddle factors before the butterfly.
template <class Radix, bool kBack, ColumnsOf from, ColumnsOf to>
void columns_pass(const Stage &stage, const Block &block, const Columns &columns, Sequence in, Sequence out)
{
    const Radix radix{stage};
    for (Index a = 0; a < block.after; ++a)
        for (Index b = 0; b < block.before; ++b) {
            const Index start = a * block.before + b, spread = block.after * block.before;
            const Index far_start = a * radix.radix * block.before + b;
            deal<Radix>(
                block.width, [&](auto access, Index c) KOR_INLINED {
                    const auto source = kBack ? rows_of<from>(columns, block.in_row, in, far_start, block.before, c)
                                              : rows_of<from>(columns, block.in_row, in, start, spread, c);
                    const auto target = kBack ? rows_of<to>(columns, block.out_row, out, start, spread, c)
                                              : rows_of<to>(columns, block.out_row, out, far_start, block.before, c);
                    const OneForEach<decltype(access), Radix::kRootsInTable> twiddle{
                        access, stage, a * columns.count + columns.first + c};
                    if constexpr (kBack)
                        complex_butterfly(radix, access, source, target, twiddle, NoTwiddle{});
                    else
                        complex_butterfly(radix, access, source, target, NoTwiddle{}, twiddle);
                });
        }
}

// Forward passes go from long sequences to short ones, passes back from short to long.
template <class Radix>
void columns_pass_forward(const Stage &stage, const Block &block, const Columns &columns, Sequence in, Sequence out)
{
    using enum ColumnsOf;
    const bool plain_in = columns.in == complex_block, plain_out = columns.out == complex_block;
    if (plain_in && plain_out)
        columns_pass<Radix, false, complex_block, complex_block>(stage, block, columns, in, out);
    else if (plain_in)
        columns_pass<Radix, false, complex_block, short_sequences>(stage, block, columns, in, out);
    else if (plain_out)
        columns_pass<Radix, false, long_sequence, complex_block>(stage, block, columns, in, out);
    else
        columns_pass<Radix, false, long_sequence, short_sequences>(stage, block, columns, in, out);
}

template <class Radix>
void columns_pass_back(const Stage &stage, const Block &block, const Columns &columns, Sequence in, Sequence out)
{
    using enum ColumnsOf;
    const bool plain_in = columns.in == complex_block, plain_out = columns.out == complex_block;
    if (plain_in && plain_out)
        columns_pass<Radix, true, complex_block, complex_block>(stage, block, columns, in, out);
    else if (plain_in)
        columns_pass<Radix, true, complex_block, long_sequence>(stage, block, columns, in, out);
    else if (plain_out)
        columns_pass<Radix, true, short_sequences, complex_block>(stage, block, columns, in, out);
    else
        columns_pass<Radix, true, short_sequences, long_sequence>(stage, block, columns, in, out);
}

// Factors for consecutive lanes of each row: base + base * (root - 1) loses next to nothing when the root is near 1.
template <class Access>
struct FactorsAt {
    Access access;
    const Factored &factors;
    Index start, step, c; // rows start, start + step, ..

    template <class V>
    KOR_INLINE Pair<V> operator()(Index l, Pair<V> x) const
    {
        const Index row = start + l * step;
        const double re = factors.bases.re[row], im = factors.bases.im[row];
        const Pair<V> less_one{access.load(factors.roots.re + row * factors.roots_row + c),
                               access.load(factors.roots.im + row * factors.roots_row + c)};
        return x * Pair<V>{re + (re * less_one.re - im * less_one.im), im + (re * less_one.im + im * less_one.re)};
    }
};

template <class Radix, bool kFactorsBefore, bool kFactorsAfter, ColumnsOf from, ColumnsOf to>
void factors_pass(const Stage &stage, const Block &block, const Columns &columns, const Factored &factors, Sequence in,
                  Sequence out)
{
    const Radix radix{stage};
    const Index spread = block.after * block.before;
    for (Index a = 0; a < block.after; ++a)
        for (Index b = 0; b < block.before; ++b) {
            const Index start = a * block.before + b, far_start = a * radix.radix * block.before + b;
            deal<Radix>(
                block.width, [&](auto access, Index c) KOR_INLINED {
                    const auto source = rows_of<from>(columns, block.in_row, in, start, spread, c);
                    const auto target = rows_of<to>(columns, block.out_row, out, far_start, block.before, c);
                    const FactorsAt<decltype(access)> before{access, factors, start, spread, c};
                    const FactorsAt<decltype(access)> after{access, factors, far_start, block.before, c};
                    const SameForAll twiddle{stage, a};
                    complex_butterfly(
                        radix, access, source, target,
                        [&](Index l, auto x) KOR_INLINED {
                            if constexpr (kFactorsBefore)
                                return before(l, x);
                            else
                                return x;
                        },
                        [&](Index k, auto y) KOR_INLINED {
                            if (a > 0) y = twiddle(k, y);
                            if constexpr (kFactorsAfter)
                                return after(k, y);
                            else
                                return y;
                        });
                });
        }
}

template <class Radix>
void factors_pass_forward(const Stage &stage, const Block &block, const Columns &columns, const Factored &factors,
                          Sequence in, Sequence out)
{
    using enum ColumnsOf;
    const bool plain_in = columns.in == complex_block, plain_out = columns.out == complex_block;
    if (plain_in && plain_out)
        factors_pass<Radix, true, false, complex_block, complex_block>(stage, block, columns, factors, in, out);
    else if (plain_in)
        factors_pass<Radix, false, false, complex_block, long_sequence>(stage, block, columns, factors, in, out);
    else if (plain_out)
        factors_pass<Radix, true, false, short_sequences, complex_block>(stage, block, columns, factors, in, out);
    else
        factors_pass<Radix, true, false, short_sequences, long_sequence>(stage, block, columns, factors, in, out);
}

template <class Radix>
void factors_pass_back(const Stage &stage, const Block &block, const Columns &columns, const Factored &factors,
                       Sequence in, Sequence out)
{
    using enum ColumnsOf;
    if (columns.in == complex_block)
        factors_pass<Radix, false, true, complex_block, short_sequences>(stage, block, columns, factors, in, out);
    else if (columns.out == complex_block)
        factors_pass<Radix, false, false, long_sequence, complex_block>(stage, block, columns, factors, in, out);
    else
        factors_pass<Radix, false, true, long_sequence, short_sequences>(stage, block, columns, factors, in, out);
}
