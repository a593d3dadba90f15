// Vectors of eight doubles, for processors with AVX-512. To be included where the target is set, see vector_sort.hpp.
#pragma once

namespace kor::sort {
namespace { // each including file compiles it for a target of its own

struct LanesAvx512 {
    using V = __m512d;
    static constexpr int width = 8;
    static constexpr unsigned all = 0xFF;

    // The mask of the first `count` lanes, from none to all.
    static KOR_INLINE unsigned first(std::ptrdiff_t count) { return _bzhi_u32(all, static_cast<unsigned>(count)); }

    static KOR_INLINE V load(const double *p) { return _mm512_loadu_pd(p); }
    static KOR_INLINE void store(double *p, V v) { _mm512_storeu_pd(p, v); }
    static KOR_INLINE V broadcast(double x) { return _mm512_set1_pd(x); }

    static KOR_INLINE V load_some(const double *p, std::ptrdiff_t count, V fill)
    {
        return _mm512_mask_loadu_pd(fill, static_cast<__mmask8>(first(count)), p);
    }
    static KOR_INLINE void store_some(double *p, std::ptrdiff_t count, V v)
    {
        _mm512_mask_storeu_pd(p, static_cast<__mmask8>(first(count)), v);
    }

    // Of equal values, and of a NaN and another, one comes out as the minimum and the other as the maximum: the
    // instructions return their second operand then.
    static KOR_INLINE V min(V a, V b) { return _mm512_min_pd(a, b); }
    static KOR_INLINE V max(V a, V b) { return _mm512_max_pd(b, a); }

    static KOR_INLINE unsigned less(V a, V b) { return _mm512_cmp_pd_mask(a, b, _CMP_LT_OQ); }
    static KOR_INLINE unsigned not_at_most(V a, V b) { return _mm512_cmp_pd_mask(a, b, _CMP_NLE_UQ); }
    static KOR_INLINE unsigned unordered(V a, V b) { return _mm512_cmp_pd_mask(a, b, _CMP_UNORD_Q); }

    static KOR_INLINE unsigned negative_zeros(V v)
    {
        return _mm512_cmpeq_epi64_mask(_mm512_castpd_si512(v), _mm512_castpd_si512(broadcast(-0.0)));
    }

    // The lanes of the mask at the front, the others at the end. A table, since the instruction that compresses is slow on
    // some processors, and would serve one side only.
    static KOR_INLINE V split(V v, unsigned mask)
    {
        const __m128i bytes = _mm_loadl_epi64(reinterpret_cast<const __m128i *>(kSplitOfEight.order[mask]));
        return _mm512_permutexvar_pd(_mm512_cvtepu8_epi64(bytes), v);
    }

    static KOR_INLINE V reverse(V v) { return _mm512_permutexvar_pd(_mm512_setr_epi64(7, 6, 5, 4, 3, 2, 1, 0), v); }

    static KOR_INLINE void transpose(V *row)
    {
        V pair[8], quad[8];
        for (int i = 0; i < 8; i += 2) {
            pair[i] = _mm512_unpacklo_pd(row[i], row[i + 1]);
            pair[i + 1] = _mm512_unpackhi_pd(row[i], row[i + 1]);
        }
        for (int i = 0; i < 2; ++i) {
            // Rows 0 to 3, and 4 to 7, of columns (i, i+4) and (i+2, i+6).
            quad[i] = _mm512_shuffle_f64x2(pair[i], pair[i + 2], 0x88);
            quad[i + 2] = _mm512_shuffle_f64x2(pair[i], pair[i + 2], 0xDD);
            quad[i + 4] = _mm512_shuffle_f64x2(pair[i + 4], pair[i + 6], 0x88);
            quad[i + 6] = _mm512_shuffle_f64x2(pair[i + 4], pair[i + 6], 0xDD);
        }
        for (int i = 0; i < 4; ++i) {
            row[i] = _mm512_shuffle_f64x2(quad[i], quad[i + 4], 0x88);
            row[i + 4] = _mm512_shuffle_f64x2(quad[i], quad[i + 4], 0xDD);
        }
    }

    // Sorts two vectors, each of them bitonic: exchanges at distances 4, 2 and 1, for both vectors at once.
    static KOR_INLINE void sort_bitonic(V &r, V &s)
    {
        V u = _mm512_shuffle_f64x2(r, s, 0x44), w = _mm512_shuffle_f64x2(r, s, 0xEE);
        V low = min(u, w), high = max(u, w);
        u = _mm512_shuffle_f64x2(low, high, 0x88);
        w = _mm512_shuffle_f64x2(low, high, 0xDD);
        low = min(u, w);
        high = max(u, w);
        u = _mm512_unpacklo_pd(low, high);
        w = _mm512_unpackhi_pd(low, high);
        low = min(u, w);
        high = max(u, w);
        r = _mm512_permutex2var_pd(low, _mm512_setr_epi64(0, 8, 1, 9, 4, 12, 5, 13), high);
        s = _mm512_permutex2var_pd(low, _mm512_setr_epi64(2, 10, 3, 11, 6, 14, 7, 15), high);
    }

  private:
    // For each mask, the lanes in their new order.
    struct Splits {
        alignas(8) unsigned char order[256][8];
    };
    static constexpr Splits all_splits()
    {
        Splits splits{};
        for (unsigned mask = 0; mask < 256; ++mask) {
            int place = 0;
            for (const unsigned wanted : {1u, 0u})
                for (unsigned lane = 0; lane < 8; ++lane)
                    if ((mask >> lane & 1) == wanted) splits.order[mask][place++] = static_cast<unsigned char>(lane);
        }
        return splits;
    }
    static const Splits kSplitOfEight;
};

constexpr LanesAvx512::Splits LanesAvx512::kSplitOfEight = LanesAvx512::all_splits();

} // namespace
} // namespace kor::sort
