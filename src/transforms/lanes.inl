// Several doubles at a time, in the registers of the generation that the includer compiles for. Part of kernels.inl.

// Sanitizers make functions that large slow to compile, beyond all measure.
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
#define KOR_INLINE inline
#define KOR_INLINED
#define KOR_UNROLL
#else
#define KOR_INLINE [[gnu::always_inline]] inline
#define KOR_INLINED __attribute__((always_inline)) // of lambdas
#define KOR_UNROLL _Pragma("GCC unroll 48")
#endif

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

// How a butterfly reaches memory: a full register or one element. Whole transforms tell which row is their last. The
// mirrored forms go down in memory from the element of the first lane.
struct Full {
    using Value = Lanes;
    KOR_INLINE Lanes load(const double *p) const { return load_lanes(p); }
    KOR_INLINE void store(double *p, Lanes v) const { store_lanes(p, v); }
    KOR_INLINE Lanes load_last(const double *p) const { return load(p); }
    KOR_INLINE void store_last(double *p, Lanes v) const { store(p, v); }
    KOR_INLINE Lanes load_mirrored(const double *p) const { return reversed(load_lanes(p - (kLanes - 1))); }
    KOR_INLINE void store_mirrored(double *p, Lanes v) const { store_lanes(p - (kLanes - 1), reversed(v)); }
};

struct One {
    using Value = double;
    KOR_INLINE double load(const double *p) const { return *p; }
    KOR_INLINE void store(double *p, double v) const { *p = v; }
    KOR_INLINE double load_last(const double *p) const { return load(p); }
    KOR_INLINE void store_last(double *p, double v) const { store(p, v); }
    KOR_INLINE double load_mirrored(const double *p) const { return *p; }
    KOR_INLINE void store_mirrored(double *p, double v) const { *p = v; }
};

#if KOR_LANES == 4
#define KOR_FEW 1
// Two or three elements of each of many rows, one row after the other without a gap. Registers may be read whole, but
// for the last row, and in ascending order be written whole: what is too much is overwritten by the next row.
struct Few {
    using Value = Lanes;
    bool three;
    KOR_INLINE Lanes load(const double *p) const { return load_lanes(p); }
    KOR_INLINE void store(double *p, Lanes v) const { store_lanes(p, v); }
    KOR_INLINE Lanes load_last(const double *p) const { return Lanes{p[0], p[1], three ? p[2] : 0.0, 0.0}; }
    KOR_INLINE void store_last(double *p, Lanes v) const
    {
        p[0] = v[0];
        p[1] = v[1];
        if (three) p[2] = v[2];
    }
};
#endif

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
KOR_INLINE void cover_full(Index count, Body body) // count >= kLanes
{
    for (Index i = 0; i < count; i += kLanes) body(Full{}, i + kLanes <= count ? i : count - kLanes);
}
template <class Body>
KOR_INLINE void cover(Index count, Body body)
{
    if (count >= kLanes)
        cover_full(count, body);
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
