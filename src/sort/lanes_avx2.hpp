// Vectors of four doubles, for processors with AVX2. To be included where the target is set, see vector_sort.hpp.
#pragma once

namespace kor::sort {
namespace { // each including file compiles it for a target of its own

struct LanesAvx2 {
    using V = __m256d;
    static constexpr int width = 4;
    static constexpr unsigned all = 0xF;

    // The mask of the first `count` lanes, from none to all.
    static KOR_INLINE unsigned first(std::ptrdiff_t count) { return _bzhi_u32(all, static_cast<unsigned>(count)); }

    static KOR_INLINE V load(const double *p) { return _mm256_loadu_pd(p); }
    static KOR_INLINE void store(double *p, V v) { _mm256_storeu_pd(p, v); }
    static KOR_INLINE V broadcast(double x) { return _mm256_set1_pd(x); }

    // The first `count` lanes.
#ifdef __AVX512VL__
    static KOR_INLINE V load_some(const double *p, std::ptrdiff_t count, V fill)
    {
        return _mm256_mask_loadu_pd(fill, static_cast<__mmask8>(first(count)), p);
    }
    static KOR_INLINE void store_some(double *p, std::ptrdiff_t count, V v)
    {
        _mm256_mask_storeu_pd(p, static_cast<__mmask8>(first(count)), v);
    }
#else
    static KOR_INLINE V load_some(const double *p, std::ptrdiff_t count, V fill)
    {
        alignas(32) static constexpr int64_t window[] = {-1, -1, -1, -1, 0, 0, 0, 0};
        const __m256i mask = _mm256_loadu_si256(reinterpret_cast<const __m256i *>(window + width - count));
        return _mm256_blendv_pd(fill, _mm256_maskload_pd(p, mask), _mm256_castsi256_pd(mask));
    }
    // Not by a masked store: some processors need dozens of cycles for it.
    static KOR_INLINE void store_some(double *p, std::ptrdiff_t count, V v)
    {
        if (count == width) return store(p, v);
        const __m128d front = _mm256_castpd256_pd128(v);
        if (count >= 2) _mm_storeu_pd(p, front);
        if (count == 1) _mm_store_sd(p, front);
        if (count == 3) _mm_store_sd(p + 2, _mm256_extractf128_pd(v, 1));
    }
#endif

    // Of equal values, and of a NaN and another, one comes out as the minimum and the other as the maximum: the
    // instructions return their second operand then.
    static KOR_INLINE V min(V a, V b) { return _mm256_min_pd(a, b); }
    static KOR_INLINE V max(V a, V b) { return _mm256_max_pd(b, a); }

    static KOR_INLINE unsigned less(V a, V b)
    {
        return static_cast<unsigned>(_mm256_movemask_pd(_mm256_cmp_pd(a, b, _CMP_LT_OQ)));
    }
    static KOR_INLINE unsigned not_at_most(V a, V b)
    {
        return static_cast<unsigned>(_mm256_movemask_pd(_mm256_cmp_pd(a, b, _CMP_NLE_UQ)));
    }
    static KOR_INLINE unsigned unordered(V a, V b)
    {
        return static_cast<unsigned>(_mm256_movemask_pd(_mm256_cmp_pd(a, b, _CMP_UNORD_Q)));
    }

    static KOR_INLINE unsigned negative_zeros(V v)
    {
        const __m256i same = _mm256_cmpeq_epi64(_mm256_castpd_si256(v), _mm256_castpd_si256(broadcast(-0.0)));
        return static_cast<unsigned>(_mm256_movemask_pd(_mm256_castsi256_pd(same)));
    }

    // The lanes of the mask at the front, the others at the end.
    static KOR_INLINE V split(V v, unsigned mask)
    {
        const __m128i bytes = _mm_loadl_epi64(reinterpret_cast<const __m128i *>(kSplitOfFour.order[mask]));
        return _mm256_castps_pd(_mm256_permutevar8x32_ps(_mm256_castpd_ps(v), _mm256_cvtepu8_epi32(bytes)));
    }

    static KOR_INLINE V reverse(V v) { return _mm256_permute4x64_pd(v, 0x1B); }

    static KOR_INLINE void transpose(V *row)
    {
        const V a = _mm256_unpacklo_pd(row[0], row[1]), b = _mm256_unpackhi_pd(row[0], row[1]);
        const V c = _mm256_unpacklo_pd(row[2], row[3]), d = _mm256_unpackhi_pd(row[2], row[3]);
        row[0] = _mm256_permute2f128_pd(a, c, 0x20);
        row[1] = _mm256_permute2f128_pd(b, d, 0x20);
        row[2] = _mm256_permute2f128_pd(a, c, 0x31);
        row[3] = _mm256_permute2f128_pd(b, d, 0x31);
    }

    // Sorts two vectors, each of them bitonic: exchanges at distances 2 and 1, for both vectors at once.
    static KOR_INLINE void sort_bitonic(V &r, V &s)
    {
        V u = _mm256_permute2f128_pd(r, s, 0x20), w = _mm256_permute2f128_pd(r, s, 0x31);
        V low = min(u, w), high = max(u, w);
        u = _mm256_unpacklo_pd(low, high);
        w = _mm256_unpackhi_pd(low, high);
        low = min(u, w);
        high = max(u, w);
        u = _mm256_unpacklo_pd(low, high);
        w = _mm256_unpackhi_pd(low, high);
        r = _mm256_permute2f128_pd(u, w, 0x20);
        s = _mm256_permute2f128_pd(u, w, 0x31);
    }

  private:
    // For each mask, the 32-bit halves of lanes in their new order.
    struct Splits {
        alignas(8) unsigned char order[16][8];
    };
    static constexpr Splits all_splits()
    {
        Splits splits{};
        for (unsigned mask = 0; mask < 16; ++mask) {
            int place = 0;
            for (const unsigned wanted : {1u, 0u})
                for (unsigned lane = 0; lane < 4; ++lane)
                    if ((mask >> lane & 1) == wanted) {
                        splits.order[mask][2 * place] = static_cast<unsigned char>(2 * lane);
                        splits.order[mask][2 * place + 1] = static_cast<unsigned char>(2 * lane + 1);
                        ++place;
                    }
        }
        return splits;
    }
    static const Splits kSplitOfFour;
};

constexpr LanesAvx2::Splits LanesAvx2::kSplitOfFour = LanesAvx2::all_splits();

} // namespace
} // namespace kor::sort
