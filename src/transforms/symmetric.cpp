// Sine and cosine transforms: transforms of odd and even sequences of length 2n.
//
// The elements of even and of odd index make two real sequences of length n, with transforms E and D; the transform of
// the whole is E_k + exp(-i pi k / n) D_k, which is imaginary for an odd sequence and real for an even one. A single
// real transform of length n would do, but then every second result comes out of a running sum or a division by small
// sines, and loses digits in proportion to the square root of n; this way loses none. (The same choice, for the same
// reason, as in Frigo and Johnson, Proc. IEEE 93 (2005) 216-231.)
#include "transforms/symmetric.hpp"

#include <algorithm>

#include "transforms/kernels.hpp"
#include "transforms/rows.hpp"

namespace kor::transforms {

namespace {

constexpr Index kRowsAtATime = 8;
constexpr double kHalfSqrt2 = 0.7071067811865476;

} // namespace

bool symmetric_transform(Symmetry symmetry, Integer m, Integer n, double *x, const double *trig)
{
    const bool odd = symmetry == Symmetry::odd;
    const Index length = n, row_length = odd ? length - 1 : length + 1;
    const Index together = std::min(Index{m}, kRowsAtATime);

    Rows rows{Kind::real, length, trig};
    const Workspace<double> work{Count{2} * Count{together} * Count{length}}, roots{Count{length} + Count{2}};
    if (!work || !roots || !rows.prepare(2 * together)) return false;

    // exp(-i pi k / n), k = 1..(n-1)/2.
    double *const cosines = roots.data(), *const sines = cosines + length / 2 + 1;
    kernels().unit_roots(2 * length, 1, 1, (length - 1) / 2, cosines, sines);

    for (Index first = 0; first < m; first += together) {
        const Index count = std::min(together, m - first);
        for (Index i = 0; i < count; ++i) {
            // The sequence is `at(t)` for 0 <= t <= n, and mirrored beyond.
            const double *const row = x + (first + i) * row_length;
            const auto at = [&](Index t) { return odd ? (t == 0 || t == length ? 0.0 : row[t - 1]) : row[t]; };
            double *const evens = work.data() + 2 * i * length, *const odds = evens + length;
            for (Index j = 0; j < length; ++j) {
                evens[j] = 2 * j <= length ? at(2 * j) : odd ? -at(2 * (length - j)) : at(2 * (length - j));
                odds[j] = 2 * j + 1 <= length ? at(2 * j + 1)
                          : odd               ? -at(2 * (length - j) - 1)
                                              : at(2 * (length - j) - 1);
            }
        }
        rows.transform(2 * count, {work.data(), nullptr});
        for (Index i = 0; i < count; ++i) {
            double *const row = x + (first + i) * row_length;
            const double *const e = work.data() + 2 * i * length, *const d = e + length;
            const auto put = [&](Index k, double value) { row[odd ? k - 1 : k] = kHalfSqrt2 * value; };
            if (!odd) {
                put(0, e[0] + d[0]);
                put(length, e[0] - d[0]);
            }
            for (Index k = 1; 2 * k < length; ++k) {
                const double c = cosines[k - 1], s = sines[k - 1];
                if (odd) {
                    const double alpha = -e[length - k], beta = -(d[k] * s + d[length - k] * c);
                    put(k, beta + alpha);
                    put(length - k, beta - alpha);
                } else {
                    const double alpha = e[k], beta = d[k] * c - d[length - k] * s;
                    put(k, alpha + beta);
                    put(length - k, alpha - beta);
                }
            }
            if (length % 2 == 0) put(length / 2, odd ? d[length / 2] : e[length / 2]);
        }
    }
    return true;
}

} // namespace kor::transforms
