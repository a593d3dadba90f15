// Several doubles at a time, in the registers of the generation that the includer compiles for. Part of kernels.inl.

#define KOR_INLINE [[gnu::always_inline]] inline
#define KOR_UNROLL _Pragma("GCC unroll 32")

inline constexpr Index kLanes = KOR_LANES;
typedef double Lanes __attribute__((vector_size(8 * KOR_LANES)));
typedef double StoredLanes __attribute__((vector_size(8 * KOR_LANES), aligned(8), may_alias));

KOR_INLINE Lanes load_lanes(const double *p) { return *reinterpret_cast<const StoredLanes *>(p); }
KOR_INLINE void store_lanes(double *p, Lanes v) { *reinterpret_cast<StoredLanes *>(p) = v; }

KOR_INLINE Lanes reversed(Lanes v)
{
#if KOR_LANES == 8
    return __builtin_shufflevector(v, v, 7, 6, 5, 4, 3, 2, 1, 0);
#elif KOR_LANES == 4
    return __builtin_shufflevector(v, v, 3, 2, 1, 0);
#else
    return __builtin_shufflevector(v, v, 1, 0);
#endif
}

// How a butterfly reaches memory: a full register or one element. The mirrored forms go down in memory from the element of
// the first lane.
struct Full {
    using Value = Lanes;
    KOR_INLINE Lanes load(const double *p) const { return load_lanes(p); }
    KOR_INLINE void store(double *p, Lanes v) const { store_lanes(p, v); }
    KOR_INLINE Lanes load_mirrored(const double *p) const { return reversed(load_lanes(p - (kLanes - 1))); }
    KOR_INLINE void store_mirrored(double *p, Lanes v) const { store_lanes(p - (kLanes - 1), reversed(v)); }
};

struct One {
    using Value = double;
    KOR_INLINE double load(const double *p) const { return *p; }
    KOR_INLINE void store(double *p, double v) const { *p = v; }
    KOR_INLINE double load_mirrored(const double *p) const { return *p; }
    KOR_INLINE void store_mirrored(double *p, double v) const { *p = v; }
};

// The first elements of a register, fewer than it holds, of rows that follow each other in ascending order. A register may be read
// whole unless that would lead past the end of the rows; and written whole, if no gap is between the rows: what is too
// much is overwritten by the rows that follow.
struct Few {
    using Value = Lanes;
    Index count;
    // Where the last register begins that does not lead past the end, of real and of imaginary parts.
    const double *last_in[2];
    const double *last_out[2];
    bool gapless;

    KOR_INLINE Lanes load(const double *p) const
    {
        if (!beyond(p, last_in)) return load_lanes(p);
        double elements[kLanes] = {};
        for (Index i = 0; i < count; ++i) elements[i] = p[i];
        return load_lanes(elements);
    }
    KOR_INLINE void store(double *p, Lanes v) const
    {
        if (gapless && !beyond(p, last_out)) return store_lanes(p, v);
        for (Index i = 0; i < count; ++i) p[i] = v[i];
    }

  private:
    KOR_INLINE static bool beyond(const double *p, const double *const (&last)[2])
    {
        const auto within = [p](const double *from) __attribute__((always_inline)) {
            return reinterpret_cast<std::uintptr_t>(p) - reinterpret_cast<std::uintptr_t>(from + 1) <
                   sizeof(double) * kLanes;
        };
        return within(last[0]) || within(last[1]);
    }
};

// Elements that stand `stride` apart.
KOR_INLINE Lanes load_strided(const double *p, Index stride)
{
#if KOR_LANES == 8
    return Lanes{p[0],          p[stride],     p[2 * stride], p[3 * stride],
                 p[4 * stride], p[5 * stride], p[6 * stride], p[7 * stride]};
#elif KOR_LANES == 4
    return Lanes{p[0], p[stride], p[2 * stride], p[3 * stride]};
#else
    return Lanes{p[0], p[stride]};
#endif
}
KOR_INLINE void store_strided(double *p, Index stride, Lanes v)
{
    KOR_UNROLL for (int i = 0; i < kLanes; ++i) p[i * stride] = v[i];
}

// Lanes that stand for neighbours on one side of a pass and for elements far apart on the other.
struct FromAfar : Full {
    Index stride;
    KOR_INLINE Lanes load(const double *p) const { return load_strided(p, stride); }
    KOR_INLINE Lanes load_mirrored(const double *p) const { return load_strided(p, -stride); }
};
struct ToAfar : Full {
    Index stride;
    KOR_INLINE void store(double *p, Lanes v) const { store_strided(p, stride, v); }
    KOR_INLINE void store_mirrored(double *p, Lanes v) const { store_strided(p, -stride, v); }
};

// Lanes that stand for sequences side by side: mirrored places of all of them are consecutive as well.
template <class Access>
struct SideBySide : Access {
    using Value = typename Access::Value;
    KOR_INLINE Value load_mirrored(const double *p) const { return Access::load(p); }
    KOR_INLINE void store_mirrored(double *p, Value v) const { Access::store(p, v); }
};

// Calls body(access, i) so that the elements [0, count) are covered. The last register may overlap the one before: the
// body must be safe to repeat, as it is when it reads one array and writes another.
template <class Body>
KOR_INLINE void cover(Index count, Body body)
{
    if (count >= kLanes)
        for (Index i = 0; i < count; i += kLanes) body(Full{}, i + kLanes <= count ? i : count - kLanes);
    else
        for (Index i = 0; i < count; ++i) body(One{}, i);
}

// Transposes kLanes registers of kLanes elements.
KOR_INLINE void transpose_square(Lanes (&a)[kLanes])
{
    Lanes b[kLanes];
#if KOR_LANES == 8
    KOR_UNROLL for (int i = 0; i < 8; i += 2)
    {
        b[i] = __builtin_shufflevector(a[i], a[i + 1], 0, 8, 2, 10, 4, 12, 6, 14);
        b[i + 1] = __builtin_shufflevector(a[i], a[i + 1], 1, 9, 3, 11, 5, 13, 7, 15);
    }
    KOR_UNROLL for (int i = 0; i < 8; ++i)
    {
        const int low = i & ~2;
        a[i] = i & 2 ? __builtin_shufflevector(b[low], b[low + 2], 2, 3, 10, 11, 6, 7, 14, 15)
                     : __builtin_shufflevector(b[low], b[low + 2], 0, 1, 8, 9, 4, 5, 12, 13);
    }
    KOR_UNROLL for (int i = 0; i < 8; ++i)
    {
        const int low = i & ~4;
        b[i] = i & 4 ? __builtin_shufflevector(a[low], a[low + 4], 4, 5, 6, 7, 12, 13, 14, 15)
                     : __builtin_shufflevector(a[low], a[low + 4], 0, 1, 2, 3, 8, 9, 10, 11);
    }
#elif KOR_LANES == 4
    KOR_UNROLL for (int i = 0; i < 4; i += 2)
    {
        b[i] = __builtin_shufflevector(a[i], a[i + 1], 0, 4, 2, 6);
        b[i + 1] = __builtin_shufflevector(a[i], a[i + 1], 1, 5, 3, 7);
    }
    KOR_UNROLL for (int i = 0; i < 4; ++i)
    {
        const int low = i & ~2;
        a[i] = i & 2 ? __builtin_shufflevector(b[low], b[low + 2], 2, 3, 6, 7)
                     : __builtin_shufflevector(b[low], b[low + 2], 0, 1, 4, 5);
    }
    KOR_UNROLL for (int i = 0; i < 4; ++i) b[i] = a[i];
#else
    b[0] = __builtin_shufflevector(a[0], a[1], 0, 2);
    b[1] = __builtin_shufflevector(a[0], a[1], 1, 3);
#endif
    KOR_UNROLL for (int i = 0; i < kLanes; ++i) a[i] = b[i];
}
