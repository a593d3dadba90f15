// Chebyshev coefficients by a cosine transform of 25 values, folded once: even and odd degrees apart.
#include "quadrature/chebyshev_expansion.hpp"

namespace kor::quadrature {

namespace {

constexpr int kN = kChebyshevDegree;
constexpr int kHalf = kN / 2;

// Row k/2 of an even degree k: the weights of the sums f_j + f_(24-j); of an odd one: of the differences.
struct Weights {
    double even[kHalf + 1][kHalf + 1];
    double odd[kHalf][kHalf];
};

constexpr Weights make_weights()
{
    Weights w{};
    for (int k = 0; k <= kN; k += 2)
        for (int j = 0; j <= kHalf; ++j) {
            const double end = j == 0 ? 0.5 : 1.0, edge = k == 0 || k == kN ? 0.5 : 1.0;
            w.even[j][k / 2] = 2.0 / kN * end * edge * cosine24(k * j);
        }
    for (int k = 1; k < kN; k += 2)
        for (int j = 0; j < kHalf; ++j) w.odd[j][k / 2] = 2.0 / kN * (j == 0 ? 0.5 : 1.0) * cosine24(k * j);
    return w;
}

constexpr Weights kWeights = make_weights();

} // namespace

ChebyshevExpansion expand(const double *values)
{
    double even[kHalf + 1] = {}, odd[kHalf] = {};
    for (int j = 0; j <= kHalf; ++j) {
        const double sum = j < kHalf ? values[j] + values[kN - j] : values[j];
        for (int k = 0; k <= kHalf; ++k) even[k] += kWeights.even[j][k] * sum;
        if (j == kHalf) break;
        const double difference = values[j] - values[kN - j];
        for (int k = 0; k < kHalf; ++k) odd[k] += kWeights.odd[j][k] * difference;
    }
    ChebyshevExpansion series;
    for (int k = 0; k <= kHalf; ++k) series.c[2 * k] = even[k];
    for (int k = 0; k < kHalf; ++k) series.c[2 * k + 1] = odd[k];
    return series;
}

} // namespace kor::quadrature
