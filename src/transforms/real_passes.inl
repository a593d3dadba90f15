// Passes of real-to-Hermitian and Hermitian-to-real transforms. Part of kernels.inl.
//
// A Hermitian sequence of length n is packed in n doubles: Re z_f at f, Im z_f at n - f, for 0 <= f <= n/2. A real pass
// joins `radix` sequences of length r into one of length radix * r; frequency f of the short sequences contributes to f
// + r k of the long one, k = 0..radix-1, of which the upper half is stored as conjugates of the lower. A Hermitian pass
// is its transpose.

// An element (f, l) of the short sequences stands at short_step * f + row_step * l, an element g of the long one at
// long_step * g. Butterflies get pointers to the elements with f = 0 and g = 0.
struct PackedLayout {
    Index short_step, row_step, long_step;
};

template <class Radix, class Access>
KOR_INLINE void real_butterfly_at_zero(const Radix &radix, Access access, const PackedLayout &layout, Index r,
                                       const double *in, double *out, double scale)
{
    using V = typename Access::Value;
    typename Radix::template Points<V, Pair<V>> points{radix};
    radix.loop(
        radix.radix, [&](Index l) KOR_INLINED {
            const double *const row = in + l * layout.row_step;
            points.x[l] = l + 1 < radix.radix ? access.load(row) : access.load_last(row);
        });
    radix.run(points);
    radix.loop(
        radix.radix, [&](Index g) KOR_INLINED {
            const V part = 2 * g <= radix.radix ? points.y[g].re : points.y[radix.radix - g].im;
            double *const row = out + g * r * layout.long_step;
            g + 1 < radix.radix ? access.store(row, scale * part) : access.store_last(row, scale * part);
        });
}

// The last lane may stand for f = r/2, which is its own mirror: there the short sequences are real. Stores are in such
// an order that what is right at the mirror stays.
KOR_INLINE void clear_last(Lanes &v) { v[kLanes - 1] = 0.0; }
KOR_INLINE void clear_last(double &v) { v = 0.0; }

// The mirror of f is r - f.
template <class Radix, class Access, class Twiddle>
KOR_INLINE void real_butterfly(const Radix &radix, Access access, const PackedLayout &layout, Index r, Index f,
                               bool to_half, const double *in, double *out, Twiddle twiddle)
{
    using V = typename Access::Value;
    typename Radix::template Points<Pair<V>, Pair<V>> points{radix};
    radix.loop(
        radix.radix, [&](Index l) KOR_INLINED {
            const double *row = in + l * layout.row_step;
            Pair<V> x{access.load(row + f * layout.short_step),
                      access.load_mirrored(row + (r - f) * layout.short_step)};
            if (to_half) clear_last(x.im);
            points.x[l] = twiddle(l, x);
        });
    radix.run(points);
    radix.loop(
        radix.radix, [&](Index i) KOR_INLINED {
            const Index k = radix.radix - 1 - i;
            double *const here = out + (f + r * k) * layout.long_step;
            double *const mirror = out + (r * (radix.radix - k) - f) * layout.long_step;
            const Pair<V> y = points.y[k];
            if (2 * k < radix.radix) {
                access.store_mirrored(mirror, y.im);
                access.store(here, y.re);
            } else {
                access.store_mirrored(mirror, y.re);
                access.store(here, -y.im);
            }
        });
}

// f = r/2, where the short sequences are real.
template <class Radix, class Access, class Twiddle>
KOR_INLINE void real_butterfly_at_half(const Radix &radix, Access access, const PackedLayout &layout, Index r,
                                       const double *in, double *out, Twiddle twiddle)
{
    using V = typename Access::Value;
    typename Radix::template Points<Pair<V>, Pair<V>> points{radix};
    radix.loop(
        radix.radix, [&](Index l) KOR_INLINED {
            points.x[l] = twiddle(l, Pair<V>{access.load(in + l * layout.row_step + r / 2 * layout.short_step), V{}});
        });
    radix.run(points);
    radix.loop((radix.radix + 1) / 2, [&](Index k) KOR_INLINED {
        access.store(out + (r / 2 + r * k) * layout.long_step, points.y[k].re);
        if (2 * k + 1 < radix.radix)
            access.store(out + (r * (radix.radix - k) - r / 2) * layout.long_step, points.y[k].im);
    });
}

template <class Radix, class Access>
KOR_INLINE void hermitian_butterfly_at_zero(const Radix &radix, Access access, const PackedLayout &layout, Index r,
                                            const double *in, double *out, double scale)
{
    using V = typename Access::Value;
    typename Radix::template Points<Pair<V>, V> points{radix};
    radix.loop(
        radix.radix / 2 + 1, [&](Index k) KOR_INLINED {
            const auto load = [&](Index g) KOR_INLINED
            {
                const double *const row = in + g * r * layout.long_step;
                return g + 1 < radix.radix ? access.load(row) : access.load_last(row);
            };
            points.x[k] = {load(k), k > 0 && 2 * k < radix.radix ? load(radix.radix - k) : V{}};
        });
    radix.run_to_real(points);
    radix.loop(
        radix.radix, [&](Index l) KOR_INLINED {
            double *const row = out + l * layout.row_step;
            l + 1 < radix.radix ? access.store(row, scale * points.y[l]) : access.store_last(row, scale * points.y[l]);
        });
}

template <class Radix, class Access, class Twiddle>
KOR_INLINE void hermitian_butterfly(const Radix &radix, Access access, const PackedLayout &layout, Index r, Index f,
                                    bool to_half, const double *in, double *out, Twiddle twiddle)
{
    using V = typename Access::Value;
    typename Radix::template Points<Pair<V>, Pair<V>> points{radix};
    radix.loop(
        radix.radix, [&](Index k) KOR_INLINED {
            const double *const here = in + (f + r * k) * layout.long_step;
            const double *const mirror = in + (r * (radix.radix - k) - f) * layout.long_step;
            if (2 * k < radix.radix)
                points.x[k] = {access.load(here), access.load_mirrored(mirror)};
            else
                points.x[k] = {access.load_mirrored(mirror), -access.load(here)};
            if (to_half && 2 * k + 1 == radix.radix) clear_last(points.x[k].im);
        });
    radix.run(points);
    radix.loop(
        radix.radix, [&](Index l) KOR_INLINED {
            const Pair<V> y = twiddle(l, points.y[l]);
            double *const row = out + l * layout.row_step;
            access.store_mirrored(row + (r - f) * layout.short_step, y.im);
            access.store(row + f * layout.short_step, y.re);
        });
}

template <class Radix, class Access, class Twiddle>
KOR_INLINE void hermitian_butterfly_at_half(const Radix &radix, Access access, const PackedLayout &layout, Index r,
                                            const double *in, double *out, Twiddle twiddle)
{
    using V = typename Access::Value;
    typename Radix::template Points<Pair<V>, Pair<V>> points{radix};
    radix.loop((radix.radix + 1) / 2, [&](Index k) KOR_INLINED {
        const V re = access.load(in + (r / 2 + r * k) * layout.long_step);
        if (2 * k + 1 == radix.radix) {
            points.x[k] = {re, V{}};
        } else {
            const V im = access.load(in + (r * (radix.radix - k) - r / 2) * layout.long_step);
            points.x[k] = {re, im};
            points.x[radix.radix - 1 - k] = {re, -im};
        }
    });
    radix.run(points);
    radix.loop(
        radix.radix, [&](Index l) KOR_INLINED {
            access.store(out + l * layout.row_step + r / 2 * layout.short_step, twiddle(l, points.y[l]).re);
        });
}

// The two directions, for the loops that they share.
struct RealDirection {
    template <class... Args>
    KOR_INLINE static void at_zero(const Args &...args)
    {
        real_butterfly_at_zero(args...);
    }
    template <class... Args>
    KOR_INLINE static void between(const Args &...args)
    {
        real_butterfly(args...);
    }
    template <class... Args>
    KOR_INLINE static void at_half(const Args &...args)
    {
        real_butterfly_at_half(args...);
    }
    using Afar = FromAfar;
    static constexpr bool kToLong = true;
};
struct HermitianDirection {
    template <class... Args>
    KOR_INLINE static void at_zero(const Args &...args)
    {
        hermitian_butterfly_at_zero(args...);
    }
    template <class... Args>
    KOR_INLINE static void between(const Args &...args)
    {
        hermitian_butterfly(args...);
    }
    template <class... Args>
    KOR_INLINE static void at_half(const Args &...args)
    {
        hermitian_butterfly_at_half(args...);
    }
    using Afar = ToAfar;
    static constexpr bool kToLong = false;
};

// Places of the rows of a block.
template <class Direction>
KOR_INLINE PackedLayout layout_of(const Block &block, Index radix)
{
    const Index in_step = block.before * block.in_row, out_step = block.before * block.out_row;
    return Direction::kToLong ? PackedLayout{radix * in_step, in_step, out_step}
                              : PackedLayout{radix * out_step, out_step, in_step};
}

// Calls butterfly(access, in, out) for all rows b and all their elements.
template <class Radix, class Body>
KOR_INLINE void over_rows(const Block &block, const double *in, double *out, Body butterfly)
{
    for (Index b = 0; b < block.before; ++b)
        deal<Radix>(
            block.width, [&](auto access, Index c) KOR_INLINED {
                butterfly(SideBySide<decltype(access)>{access}, in + b * block.in_row + c, out + b * block.out_row + c);
            });
}

template <class Radix, class Direction>
void packed_pass(const Stage &stage, const Block &given, const double *in, double *out)
{
    constexpr double kUnscaled = 1.0;
    const Radix radix{stage};
    const Block block = merged(given);
    const Index r = block.after;
    const PackedLayout layout = layout_of<Direction>(block, radix.radix);
    over_rows<Radix>(
        block, in, out, [&](auto access, const double *from, double *to) KOR_INLINED {
            Direction::at_zero(radix, access, layout, r, from, to, kUnscaled);
        });
    if constexpr (Radix::kInRegisters) {
        const Index count = r / 2;
        if (across_rows<Radix>(block, count)) {
            return cover_full(
                count, [&](auto full, Index i) KOR_INLINED {
                    const bool to_half = r % 2 == 0 && i + kLanes == count;
                    const OneForEach<Full, Radix::kRootsInTable> twiddle{full, stage, 1 + i};
                    Direction::between(radix, typename Direction::Afar{full, layout.short_step}, layout, r, 1 + i,
                                       to_half, in, out, twiddle);
                });
        }
    }
    for (Index f = 1; f <= (r - 1) / 2; ++f) // each with its mirror
        over_rows<Radix>(
            block, in, out, [&](auto access, const double *from, double *to) KOR_INLINED {
                Direction::between(radix, access, layout, r, f, false, from, to, SameForAll{stage, f * block.spread});
            });
    if (r % 2 == 0)
        over_rows<Radix>(
            block, in, out, [&](auto access, const double *from, double *to) KOR_INLINED {
                Direction::at_half(radix, access, layout, r, from, to, SameForAll{stage, r / 2 * block.spread});
            });
}

template <class Radix, class Direction>
bool packed_whole(const Stage &stage, const Block &given, const double *in, double *out, double scale)
{
    const Radix radix{stage};
    const Block block = merged(given);
    const PackedLayout layout = layout_of<Direction>(block, radix.radix);
    bool done = true;
    for (Index b = 0; b < block.before && done; ++b)
        done = deal_whole<Radix>(
            block, [&](auto access, Index c) KOR_INLINED {
                Direction::at_zero(radix, access, layout, 1, in + b * block.in_row + c, out + b * block.out_row + c,
                                   scale);
            });
    return done;
}
