// Several doubles at a time, in the registers of the generation that the includer compiles for. Part of kernels.inl.

#define KOR_INLINE [[gnu::always_inline]] inline

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

// How a butterfly reaches memory: a full register, a few elements (fewer than a register holds), or one. The mirrored
// forms go down in memory from the element of the first lane.
struct Full {
    using Value = Lanes;
    KOR_INLINE Lanes load(const double *p) const { return load_lanes(p); }
    KOR_INLINE void store(double *p, Lanes v) const { store_lanes(p, v); }
    KOR_INLINE Lanes load_mirrored(const double *p) const { return reversed(load_lanes(p - (kLanes - 1))); }
    KOR_INLINE void store_mirrored(double *p, Lanes v) const { store_lanes(p - (kLanes - 1), reversed(v)); }
};

// Rare and slow: kept out of line, and the butterflies small.
[[gnu::noinline]] inline Lanes load_few(const double *p, Index count, Index step)
{
    double value[kLanes] = {};
    for (Index i = 0; i < count; ++i) value[i] = p[i * step];
    return load_lanes(value);
}
[[gnu::noinline]] inline void store_few(double *p, Lanes v, Index count, Index step)
{
    for (Index i = 0; i < count; ++i) p[i * step] = v[i];
}

struct Few {
    using Value = Lanes;
    Index count;
    KOR_INLINE Lanes load(const double *p) const { return load_few(p, count, 1); }
    KOR_INLINE void store(double *p, Lanes v) const { store_few(p, v, count, 1); }
    KOR_INLINE Lanes load_mirrored(const double *p) const { return load_few(p, count, -1); }
    KOR_INLINE void store_mirrored(double *p, Lanes v) const { store_few(p, v, count, -1); }
};

struct One {
    using Value = double;
    KOR_INLINE double load(const double *p) const { return *p; }
    KOR_INLINE void store(double *p, double v) const { *p = v; }
    KOR_INLINE double load_mirrored(const double *p) const { return *p; }
    KOR_INLINE void store_mirrored(double *p, double v) const { *p = v; }
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
KOR_INLINE void cover_by_registers(Index count, Body body)
{
    if (count < kLanes) {
        if (count > 0) body(Few{count}, 0);
        return;
    }
    for (Index i = 0; i < count; i += kLanes) body(Full{}, i + kLanes <= count ? i : count - kLanes);
}
