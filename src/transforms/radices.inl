// The kinds of radix that a pass can be built on: a fixed butterfly, an odd prime, a large prime. Part of kernels.inl.
//
// Each offers: `radix`; kRootsInTable, whether the table holds roots in place of the first twiddle factors;
// kInRegisters, whether it takes registers of elements; loop(), a loop over points; Points, the arrays of a butterfly's
// inputs x and outputs y; run() and run_to_real() as butterflies have them.

template <int p>
struct Fixed {
    static constexpr Index radix = p;
    static constexpr bool kRootsInTable = p > kLargestPlainRadix;
    static constexpr bool kInRegisters = true;

    explicit Fixed(const Stage &) {}

    // Calls body(i) for i = 0..count-1.
    template <class Body>
    KOR_INLINE static void loop(Index count, Body body)
    {
        KOR_UNROLL for (Index i = 0; i < count; ++i) body(i);
    }

    template <class X, class Y>
    struct Points {
        X x[p];
        Y y[p];
        KOR_INLINE explicit Points(const Fixed &) {}
    };

    template <class Points>
    KOR_INLINE void run(Points &points) const
    {
        Butterfly<p>::run(points.x, points.y);
    }
    template <class Points>
    KOR_INLINE void run_to_real(Points &points) const
    {
        Butterfly<p>::run_to_real(points.x, points.y);
    }
};

// By the definition, from sums and differences of mirrored elements: quadratic in p.
struct Prime {
    static constexpr bool kRootsInTable = true;
    static constexpr bool kInRegisters = true;

    explicit Prime(const Stage &stage) : radix{stage.radix}
    {
        if (radix <= kLargestPlainRadix) __builtin_unreachable();
        cosine[0] = 1.0;
        sine[0] = 0.0;
        for (Index t = 1; t < radix; ++t) {
            cosine[t] = stage.cosines[(t - 1) * stage.after];
            sine[t] = stage.sines[(t - 1) * stage.after];
        }
    }

    template <class Body>
    KOR_INLINE static void loop(Index count, Body body)
    {
        for (Index i = 0; i < count; ++i) body(i);
    }

    template <class X, class Y>
    struct Points {
        X x[kLargestDirectPrime];
        Y y[kLargestDirectPrime];
        explicit Points(const Prime &) {}
    };

    template <class Points>
    void run(Points &points) const
    {
        fold(points.x);
        points.y[0] = complex(total(points.x));
        for (Index k = 1; k <= radix / 2; ++k) {
            const auto [even, odd] = sums(points.x, k);
            points.y[k] = plus_i(even, odd);
            points.y[radix - k] = minus_i(even, odd);
        }
    }

    template <class V>
    void run_to_real(Points<Pair<V>, V> &points) const
    {
        // Sums of conjugates are real, differences imaginary.
        V folded[kLargestDirectPrime];
        folded[0] = points.x[0].re;
        for (Index l = 1; l <= radix / 2; ++l) {
            folded[l] = points.x[l].re + points.x[l].re;
            folded[radix - l] = points.x[l].im + points.x[l].im;
        }
        points.y[0] = total(folded);
        for (Index k = 1; k <= radix / 2; ++k) {
            const auto [even, odd] = sums(folded, k);
            points.y[k] = even - odd;
            points.y[radix - k] = even + odd;
        }
    }

    const Index radix;

  private:
    // Leaves x[l] + x[radix-l] at l and x[l] - x[radix-l] at radix-l, for l = 1..(radix-1)/2.
    template <class X>
    void fold(X *x) const
    {
        for (Index l = 1; l <= radix / 2; ++l) {
            const X sum = x[l] + x[radix - l];
            x[radix - l] = x[l] - x[radix - l];
            x[l] = sum;
        }
    }
    template <class X>
    X total(const X *folded) const
    {
        X sum = folded[0];
        for (Index l = 1; l <= radix / 2; ++l) sum = sum + folded[l];
        return sum;
    }
    // The parts of y[k] that are even and odd in k, the odd one still to be multiplied by i.
    template <class X>
    KOR_INLINE Pair<X> sums(const X *folded, Index k) const
    {
        X even = folded[0] + cosine[k] * folded[1], odd = sine[k] * folded[radix - 1];
        for (Index l = 2, t = 2 * k; l <= radix / 2; ++l, t += k) {
            if (t >= radix) t -= radix;
            even = even + cosine[t] * folded[l];
            odd = odd + sine[t] * folded[radix - l];
        }
        return {even, odd};
    }

    double cosine[kLargestDirectPrime], sine[kLargestDirectPrime];
};

// By convolution, one sequence at a time.
struct LargePrime {
    static constexpr bool kRootsInTable = true;
    static constexpr bool kInRegisters = false;

    explicit LargePrime(const Stage &stage) : radix{stage.radix}, prime{*stage.prime} {}

    template <class Body>
    KOR_INLINE static void loop(Index count, Body body)
    {
        for (Index i = 0; i < count; ++i) body(i);
    }

    template <class X, class Y>
    struct Points {
        X *x;
        Y *y;
        explicit Points(const LargePrime &large)
            : x{reinterpret_cast<X *>(large.prime.points())}, y{reinterpret_cast<Y *>(large.prime.points())}
        {
        }
    };

    void run(Points<Pair<double>, Pair<double>> &) const { prime.run_complex(); }
    void run(Points<double, Pair<double>> &) const { prime.run_real(); }
    void run_to_real(Points<Pair<double>, double> &points) const
    {
        for (Index k = 1; k <= radix / 2; ++k) points.x[radix - k] = conjugate(points.x[k]);
        prime.run_complex();
        for (Index l = 0; l < radix; ++l) points.y[l] = points.y[2 * l];
    }

    const Index radix;
    PrimeTransform &prime;
};

// Calls body(access, i) so that the elements [0, count) are covered as the radix can take them.
template <class Radix, class Body>
KOR_INLINE void deal(Index count, Body body)
{
    if constexpr (Radix::kInRegisters)
        cover(count, body);
    else
        for (Index i = 0; i < count; ++i) body(One{}, i);
}

// The same for a whole transform: body(access, i) covers the elements in registers, even where they do not fill them if
// the rows follow each other without a gap. False, without any call, if that is for the generation below: butterflies
// of many points are large, and for single elements one generation is enough.
template <class Radix, class Body>
KOR_INLINE bool deal_whole(const Block &block, Body body)
{
    if constexpr (Radix::kInRegisters) {
        if (block.width >= kLanes) {
            cover_full(block.width, body);
            return true;
        }
#ifdef KOR_FEW
        if (block.width >= 2 && block.before == 1 && block.in_row == block.width && block.out_row == block.width) {
            body(Few{block.width == 3}, 0);
            return true;
        }
#endif
#ifdef KOR_KERNELS_BELOW
        return false;
#endif
    }
    for (Index i = 0; i < block.width; ++i) body(One{}, i);
    return true;
}
