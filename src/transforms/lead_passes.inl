// The first pass of a transform of one complex sequence: a stage, or several that are taken together without a way
// through memory. Part of kernels.inl.
//
// The columns fill the registers, and leave as rows: what the stages, one by one, would leave behind.

// Stages number `at`, at + 1, .. of the lead, on columns c, c + 1, ..: from x, point l of the first of them and t of
// the rest at l * rest + t.
template <int lead, int at>
KOR_INLINE void run_lead(const Stage *stages, Index columns, Index c, const Pair<Lanes> *x, Pair<Lanes> *y)
{
    constexpr int radix = kLeads[lead].radix[at], rest = kLeads[lead].points(at + 1);
    Pair<Lanes> middle[radix][rest];
    KOR_UNROLL for (int t = 0; t < rest; ++t)
    {
        Pair<Lanes> points[radix], transform[radix];
        KOR_UNROLL for (int l = 0; l < radix; ++l) points[l] = x[l * rest + t];
        Butterfly<radix>::run(static_cast<const Pair<Lanes> *>(points), transform);
        const OneForEach<Full, (radix > kLargestPlainRadix)> twiddle{Full{}, stages[at], t * columns + c};
        KOR_UNROLL for (int k = 0; k < radix; ++k) middle[k][t] = twiddle(k, transform[k]);
    }
    KOR_UNROLL for (int k = 0; k < radix; ++k)
    {
        if constexpr (rest == 1) {
            y[k] = middle[k][0];
        } else {
            Pair<Lanes> transform[rest];
            run_lead<lead, at + 1>(stages, columns, c, middle[k], transform);
            KOR_UNROLL for (int i = 0; i < rest; ++i) y[k + radix * i] = transform[i];
        }
    }
}

template <int lead>
void complex_lead(const Stage *stages, Sequence in, Sequence out)
{
    constexpr Index kRows = kLeads[lead].points(), kPadded = kRows < kLanes ? kLanes : kRows;
    const Index columns = stages[kLeads[lead].count - 1].after;
    for (Index group = 0; group < columns; group += kLanes) {
        const Index c = group + kLanes <= columns ? group : columns - kLanes;
        Pair<Lanes> points[kRows], done[kPadded];
        KOR_UNROLL for (Index l = 0; l < kRows; ++l)
        {
            const Index at = l * columns + c;
            points[l] = {load_lanes(in.re + at), load_lanes(in.im + at)};
        }
        run_lead<lead, 0>(stages, columns, c, points, done);
        // Rows too short for a register are stored whole: what is too much is overwritten by the next.
        KOR_UNROLL for (Index k = kRows; k < kPadded; ++k) done[k] = done[0];
        KOR_UNROLL for (Index block = 0; block < kPadded; block += kLanes)
        {
            const Index k = block + kLanes <= kPadded ? block : kPadded - kLanes;
            Lanes re[kLanes], im[kLanes];
            KOR_UNROLL for (Index i = 0; i < kLanes; ++i)
            {
                re[i] = done[k + i].re;
                im[i] = done[k + i].im;
            }
            transpose_square(re);
            transpose_square(im);
            KOR_UNROLL for (Index i = 0; i < kLanes; ++i)
            {
                store_lanes(out.re + (c + i) * kRows + k, re[i]);
                store_lanes(out.im + (c + i) * kRows + k, im[i]);
            }
        }
    }
}

inline void any_complex_lead(const Stage *stages, int count, Sequence in, Sequence out)
{
    const auto is_this = [&]<int i>(Constant<i>) KOR_INLINED
    {
        if (!kLeads[i].is(stages, count)) return false;
        complex_lead<i>(stages, in, out);
        return true;
    };
    [&]<int... i>(std::integer_sequence<int, i...>) KOR_INLINED
    {
        (void)(is_this(Constant<i>{}) || ...);
    }
    (std::make_integer_sequence<int, kLeadCount>{});
}
