// Numbers in bulk: the term `word` times 64 powers of the multiplier, and the conversion to double.
//
// A 64-bit word becomes a double with a single rounding: either by one instruction, or as high + low from its two halves,
// each placed in the fraction of a double of known exponent; their offsets are taken away exactly.
#include "random/fill_uniform.hpp"

#include <algorithm>
#include <cstring>

#if defined(__SSE2__)
#include <immintrin.h>
#endif

#include "random/recurrence.hpp"

namespace kor::random {

namespace {

void fill_plain(std::uint64_t word, double *u)
{
    for (int i = 0; i < kBlock; ++i) u[i] = uniform_of(word * kForward[i]);
}

#if defined(__SSE2__)

// Each power with its halves exchanged: one vector product then gives both cross terms of a 64-bit product.
constexpr std::array<std::uint64_t, kBlock> exchanged(std::array<std::uint64_t, kBlock> table)
{
    for (std::uint64_t &entry : table) entry = entry << 32 | entry >> 32;
    return table;
}
alignas(64) constexpr auto kExchanged = exchanged(kForward);

// Upper halves of doubles whose fractions take 32 bits: 2^20 + high / 2^32 and 2^-12 + low / 2^64.
constexpr int kHighBits = 0x41300000;
constexpr int kLowBits = 0x3f300000;
constexpr double kOffset = 0x1p20 + 0x1p-12;

constexpr int kUpperHalves = _MM_SHUFFLE(3, 1, 3, 1);
constexpr int kLowerHalves = _MM_SHUFFLE(2, 0, 2, 0);

template <int which>
inline __m128i halves(__m128i a, __m128i b)
{
    return _mm_castps_si128(_mm_shuffle_ps(_mm_castsi128_ps(a), _mm_castsi128_ps(b), which));
}

inline __m128d joined(__m128i high, __m128i low)
{
    const __m128d u = _mm_add_pd(_mm_sub_pd(_mm_castsi128_pd(high), _mm_set1_pd(kOffset)), _mm_castsi128_pd(low));
    return _mm_min_pd(u, _mm_set1_pd(kLargestUniform));
}

void fill_sse2(std::uint64_t word, double *u)
{
    const __m128i high_bits = _mm_set1_epi32(kHighBits), low_bits = _mm_set1_epi32(kLowBits);
    const __m128i w = _mm_set1_epi64x(static_cast<long long>(word));
    const __m128i w_upper = _mm_set1_epi64x(static_cast<long long>(word >> 32));
    for (int i = 0; i < kBlock; i += 4) {
        __m128i product[2], cross[2];
        for (int k = 0; k < 2; ++k) {
            const __m128i power = _mm_load_si128(reinterpret_cast<const __m128i *>(&kForward[i + 2 * k]));
            const __m128i upper = _mm_load_si128(reinterpret_cast<const __m128i *>(&kExchanged[i + 2 * k]));
            product[k] = _mm_mul_epu32(w, power);
            cross[k] = _mm_add_epi32(_mm_mul_epu32(w, upper), _mm_mul_epu32(w_upper, power));
        }
        const __m128i high =
            _mm_add_epi32(halves<kUpperHalves>(product[0], product[1]), halves<kLowerHalves>(cross[0], cross[1]));
        const __m128i low = halves<kLowerHalves>(product[0], product[1]);
        _mm_storeu_pd(u + i, joined(_mm_unpacklo_epi32(high, high_bits), _mm_unpacklo_epi32(low, low_bits)));
        _mm_storeu_pd(u + i + 2, joined(_mm_unpackhi_epi32(high, high_bits), _mm_unpackhi_epi32(low, low_bits)));
    }
}

#endif

#if defined(__x86_64__)

template <int which>
[[gnu::target("avx2")]] inline __m256i halves(__m256i a, __m256i b)
{
    return _mm256_castps_si256(_mm256_shuffle_ps(_mm256_castsi256_ps(a), _mm256_castsi256_ps(b), which));
}

[[gnu::target("avx2")]] inline __m256d joined(__m256i high, __m256i low)
{
    const __m256d u =
        _mm256_add_pd(_mm256_sub_pd(_mm256_castsi256_pd(high), _mm256_set1_pd(kOffset)), _mm256_castsi256_pd(low));
    return _mm256_min_pd(u, _mm256_set1_pd(kLargestUniform));
}

[[gnu::target("avx2")]] void fill_avx2(std::uint64_t word, double *u)
{
    constexpr int kOddElements = 0xaa;
    const __m256i high_bits = _mm256_set1_epi32(kHighBits), low_bits = _mm256_set1_epi32(kLowBits);
    const __m256i w = _mm256_set1_epi64x(static_cast<long long>(word));
    for (int i = 0; i < kBlock; i += 8) {
        __m256i product[2], cross[2];
        for (int k = 0; k < 2; ++k) {
            const auto *power = reinterpret_cast<const __m256i *>(&kForward[i + 4 * k]);
            const auto *exchanged = reinterpret_cast<const __m256i *>(&kExchanged[i + 4 * k]);
            product[k] = _mm256_mul_epu32(w, _mm256_load_si256(power));
            cross[k] = _mm256_mullo_epi32(w, _mm256_load_si256(exchanged));
        }
        const __m256i high = _mm256_add_epi32(
            halves<kUpperHalves>(product[0], product[1]),
            _mm256_add_epi32(halves<kUpperHalves>(cross[0], cross[1]), halves<kLowerHalves>(cross[0], cross[1])));
        _mm256_storeu_pd(u + i, joined(_mm256_unpacklo_epi32(high, high_bits),
                                       _mm256_blend_epi32(product[0], low_bits, kOddElements)));
        _mm256_storeu_pd(u + i + 4, joined(_mm256_unpackhi_epi32(high, high_bits),
                                           _mm256_blend_epi32(product[1], low_bits, kOddElements)));
    }
}

// Product and conversion are one instruction each here, and the compiler finds them.
[[gnu::target("avx512f,avx512bw,avx512dq,avx512vl")]] void fill_avx512(std::uint64_t word, double *u)
{
    for (int i = 0; i < kBlock; ++i) u[i] = uniform_of(word * kForward[i]);
}

#endif

} // namespace

std::span<const Path> fill_paths()
{
    static constexpr Path paths[] = {
        {"plain", fill_plain},
#if defined(__SSE2__)
        {"SSE2", fill_sse2},
#endif
#if defined(__x86_64__)
        {"AVX2", fill_avx2},
        {"AVX-512", fill_avx512},
#endif
    };
    std::size_t usable = std::size(paths);
#if defined(__x86_64__)
    const bool all_of_avx512 = __builtin_cpu_supports("avx512f") && __builtin_cpu_supports("avx512bw") &&
                               __builtin_cpu_supports("avx512dq") && __builtin_cpu_supports("avx512vl");
    if (!all_of_avx512) --usable;
    if (!__builtin_cpu_supports("avx2")) usable = std::size(paths) - 2;
#endif
    return {paths, usable};
}

std::uint64_t fill_uniform(std::uint64_t word, std::ptrdiff_t n, double *u)
{
    static const FillBlock fill = fill_paths().back().fill;
    for (; n >= kBlock; n -= kBlock, u += kBlock) {
        fill(word, u);
        word *= kForward[kBlock - 1];
    }
    if (n > 0) {
        double rest[kBlock];
        fill(word, rest);
        std::memcpy(u, rest, static_cast<std::size_t>(n) * sizeof *u);
    }
    return later(word, n);
}

} // namespace kor::random
