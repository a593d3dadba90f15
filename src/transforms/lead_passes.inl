// The first pass of a transform of one complex sequence: one stage, or two that are taken together without a way through memory.
// Part of kernels.inl.
//
// The columns fill the registers, and leave as rows: what the stage before, row by row, would leave behind.

template <int first, int second>
void complex_lead(const Stage *stages, Sequence in, Sequence out)
{
    constexpr Index kRows = first * second, kPadded = kRows < kLanes ? kLanes : kRows;
    constexpr auto kRootsInTable = [](int radix) { return radix > kLargestPlainRadix; };
    const Index columns = second > 1 ? stages[1].after : stages[0].after;
    for (Index group = 0; group < columns; group += kLanes) {
        const Index c = group + kLanes <= columns ? group : columns - kLanes;
        Pair<Lanes> middle[first][second], done[kPadded];
        each<second>([&]<int t>(Constant<t>) __attribute__((always_inline)) {
            const Index place = t * columns + c;
            Pair<Lanes> x[first], y[first];
            KOR_UNROLL for (int l = 0; l < first; ++l)
            {
                const Index at = l * stages[0].after + place;
                x[l] = {load_lanes(in.re + at), load_lanes(in.im + at)};
            }
            Butterfly<first>::run(static_cast<const Pair<Lanes> *>(x), y);
            const OneForEach<Full, kRootsInTable(first)> twiddle{Full{}, stages[0], place};
            KOR_UNROLL for (int k = 0; k < first; ++k) middle[k][t] = twiddle(k, y[k]);
        });
        KOR_UNROLL for (int k1 = 0; k1 < first; ++k1)
        {
            if constexpr (second == 1) {
                done[k1] = middle[k1][0];
            } else {
                Pair<Lanes> y[second];
                Butterfly<second>::run(static_cast<const Pair<Lanes> *>(middle[k1]), y);
                const OneForEach<Full, kRootsInTable(second)> twiddle{Full{}, stages[1], c};
                KOR_UNROLL for (int k2 = 0; k2 < second; ++k2) done[k1 + first * k2] = twiddle(k2, y[k2]);
            }
        }
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
    const Index first = stages[0].radix, second = count == 2 ? stages[1].radix : 1;
    const auto is_this = [&]<int i>(Constant<i>) __attribute__((always_inline)) {
        constexpr Lead lead = kLeads[i];
        if (first != lead.first || second != lead.second) return false;
        complex_lead<lead.first, lead.second>(stages, in, out);
        return true;
    };
    [&]<int... i>(std::integer_sequence<int, i...>) __attribute__((always_inline)) {
        (void)(is_this(Constant<i>{}) || ...);
    }(std::make_integer_sequence<int, kLeadCount>{});
}
