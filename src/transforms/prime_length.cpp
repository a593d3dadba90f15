// Transforms of a large prime length, by convolution.
#include "transforms/prime_length.hpp"

#include <algorithm>
#include <cstdint>

#include "frame/large_pages.hpp"
#include "transforms/root_table.hpp"

namespace kor::transforms {

namespace {

// Cyclic convolutions of length p - 1 itself are worth while if no factor of it is larger than this; otherwise the
// convolution is padded to a length of 2, 3 and 5 only.
constexpr Index kLargestGoodFactor = 13;

std::uint64_t power(std::uint64_t base, std::uint64_t exponent, std::uint64_t modulus)
{
    std::uint64_t result = 1;
    for (; exponent > 0; exponent >>= 1, base = base * base % modulus)
        if (exponent & 1) result = result * base % modulus;
    return result;
}

// The least generator of the residues modulo the prime p.
Index generator(Index p, const Factors &factors)
{
    for (Index g = 2;; ++g) {
        const bool generates = std::all_of(factors.factor, factors.factor + factors.count, [&](Index factor) {
            // A composite factor, 4 or 6, stands for its primes.
            const auto no_root = [&](Index prime) {
                return factor % prime != 0 ||
                       power(static_cast<std::uint64_t>(g), static_cast<std::uint64_t>((p - 1) / prime),
                             static_cast<std::uint64_t>(p)) != 1;
            };
            return factor > kLargestPlainRadix || factor == 5 ? no_root(factor) : no_root(2) && no_root(3);
        });
        if (generates) return g;
    }
}

Index smooth_length_from(Index least)
{
    Index best = 2 * least;
    for (Index fives = 1; fives < best; fives *= 5)
        for (Index threes = fives; threes < best; threes *= 3) {
            Index length = threes;
            while (length < least) length *= 2;
            best = std::min(best, length);
        }
    return best;
}

Index convolution_length(Index p, const Factors &factors)
{
    return factors.factor[factors.count - 1] <= kLargestGoodFactor ? p - 1 : smooth_length_from(2 * (p - 1) - 1);
}

// packed a times packed b, as Hermitian sequences, into a; conjugated, so that a forward transform takes it back.
void multiply_packed_conjugate(Index n, double *a, const double *b)
{
    a[0] *= b[0];
    for (Index k = 1; 2 * k < n; ++k) {
        const double re = a[k] * b[k] - a[n - k] * b[n - k];
        const double im = a[k] * b[n - k] + a[n - k] * b[k];
        a[k] = re;
        a[n - k] = -im;
    }
    if (n % 2 == 0) a[n / 2] *= b[n / 2];
}

// The same for full complex a.
void multiply_conjugate(Index n, double *re, double *im, const double *b)
{
    const auto multiply = [&](Index k, double c, double s) {
        const double product = re[k] * c - im[k] * s;
        im[k] = -(re[k] * s + im[k] * c);
        re[k] = product;
    };
    multiply(0, b[0], 0.0);
    for (Index k = 1; 2 * k < n; ++k) {
        multiply(k, b[k], b[n - k]);
        multiply(n - k, b[k], -b[n - k]);
    }
    if (n % 2 == 0) multiply(n / 2, b[n / 2], 0.0);
}

} // namespace

bool PrimeTransform::prepare(Index p, const double *cosines, const double *sines, Index step)
{
    const Factors factors = c06fpz(p - 1);
    p_ = p;
    length_ = convolution_length(p, factors);

    if (!table_.allocate(2 * length_)) return false;
    suggest_large_pages(table_.data(), table_.size() * sizeof(double));
    fill_root_table(length_, table_.data());
    const Index work =
        std::max({plan(Kind::complex).work_size(), plan(Kind::real).work_size(), plan(Kind::hermitian).work_size()});

    if (!memory_.allocate(Count{3} * length_ + work) || !powers_.allocate(p - 1)) return false;
    suggest_large_pages(memory_.data(), memory_.size() * sizeof(double));
    kernel_ = memory_.data();
    signal_ = kernel_ + length_;
    work_ = signal_ + 2 * length_;

    // g^((p-1)/2) = -1: the second half of the powers is the first, negated.
    const std::uint64_t g = static_cast<std::uint64_t>(generator(p, factors));
    const Index half = (p - 1) / 2;
    std::uint64_t residue = 1;
    for (Index q = 0; q < half; ++q) {
        powers_[q] = static_cast<Integer>(residue);
        powers_[q + half] = static_cast<Integer>(p) - static_cast<Integer>(residue);
        residue = residue * g % static_cast<std::uint64_t>(p);
    }

    // The kernel at q belongs to g^-q = g^(p-1-q), whose root is the conjugate of that half of the powers away; for a
    // padded convolution it is continued to negative q.
    std::fill_n(kernel_, length_, 0.0);
    const double scale = 1.0 / static_cast<double>(length_);
    for (Index q = 0; q < half; ++q) {
        const Index root = powers_[q == 0 ? 0 : p - 1 - q];
        const double cosine = scale * cosines[(root - 1) * step], sine = scale * sines[(root - 1) * step];
        kernel_[q] = cosine + sine;
        kernel_[q + half] = cosine - sine;
    }
    if (length_ > p - 1) std::copy(kernel_ + 1, kernel_ + p - 1, kernel_ + length_ - (p - 2));
    const Sequence kernel{kernel_, nullptr};
    plan(Kind::real).transform(kernel, kernel, 1.0, work_);
    return true;
}

Plan PrimeTransform::plan(Kind kind) const { return {kind, length_, table_.data()}; }

void PrimeTransform::run_real() const
{
    const double *x = points();
    const double first = x[0];
    double *a = signal_, *y = points();
    for (Index q = 0; q < p_ - 1; ++q) a[q] = x[powers_[q]];
    std::fill(a + p_ - 1, a + length_, 0.0);

    plan(Kind::real).transform({a, nullptr}, {a, nullptr}, 1.0, work_);
    const double sum = a[0];
    multiply_packed_conjugate(length_, a, kernel_);
    plan(Kind::hermitian).transform({a, nullptr}, {a, nullptr}, 1.0, work_);

    // a_q holds the sums with cosines plus those with negated sines, at the frequency g^-q.
    y[0] = first + sum;
    y[1] = 0.0;
    const Index half = (p_ - 1) / 2;
    for (Index q = 0; q < half; ++q) {
        const Index k = powers_[q == 0 ? 0 : p_ - 1 - q];
        const double even = first + 0.5 * (a[q] + a[q + half]), odd = 0.5 * (a[q] - a[q + half]);
        const Index lower = std::min(k, p_ - k);
        y[2 * lower] = even;
        y[2 * lower + 1] = k == lower ? odd : -odd;
    }
}

void PrimeTransform::run_complex() const
{
    const double *x = points();
    const double first_re = x[0], first_im = x[1];
    double *re = signal_, *im = signal_ + length_, *y = points();
    for (Index q = 0; q < p_ - 1; ++q) {
        re[q] = x[2 * powers_[q]];
        im[q] = x[2 * powers_[q] + 1];
    }
    std::fill(re + p_ - 1, re + length_, 0.0);
    std::fill(im + p_ - 1, im + length_, 0.0);

    const Plan transform = plan(Kind::complex);
    transform.transform({re, im}, {re, im}, 1.0, work_);
    const double sum_re = re[0], sum_im = im[0];
    multiply_conjugate(length_, re, im, kernel_);
    transform.transform({re, im}, {re, im}, 1.0, work_); // the conjugate of the convolution

    y[0] = first_re + sum_re;
    y[1] = first_im + sum_im;
    const Index half = (p_ - 1) / 2;
    for (Index q = 0; q < half; ++q) {
        const Index k = powers_[q == 0 ? 0 : p_ - 1 - q];
        const double even_re = first_re + 0.5 * (re[q] + re[q + half]), odd_re = 0.5 * (re[q] - re[q + half]);
        const double even_im = first_im - 0.5 * (im[q] + im[q + half]), odd_im = -0.5 * (im[q] - im[q + half]);
        y[2 * k] = even_re - odd_im;
        y[2 * k + 1] = even_im + odd_re;
        y[2 * (p_ - k)] = even_re + odd_im;
        y[2 * (p_ - k) + 1] = even_im - odd_re;
    }
}

} // namespace kor::transforms
