// Transforms of a large prime length, by convolution.
#include "transforms/prime_length.hpp"

#include <algorithm>
#include <cstdint>
#include <iterator>

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
    fill_root_table(length_, table_.data());
    const Index work =
        std::max({plan(Kind::complex).work_size(), plan(Kind::real).work_size(), plan(Kind::hermitian).work_size()});

    const Index parts[] = {2 * p, 2 * p, length_, 2 * length_, work};
    Count total = 0;
    for (const Index part : parts) total = total + Count{part};
    if (!memory_.allocate(total) || !powers_.allocate(p - 1)) return false;
    double *next = memory_.data();
    double **const slots[] = {&input_, &output_, &kernel_, &signal_, &work_};
    for (std::size_t i = 0; i < std::size(parts); next += parts[i++]) *slots[i] = next;

    const std::uint64_t g = static_cast<std::uint64_t>(generator(p, factors));
    std::uint64_t residue = 1;
    for (Index q = 0; q < p - 1; ++q) {
        powers_[q] = static_cast<Integer>(residue);
        residue = residue * g % static_cast<std::uint64_t>(p);
    }

    // The kernel at q belongs to g^-q = g^(p-1-q); for a padded convolution it is continued to negative q.
    std::fill_n(kernel_, length_, 0.0);
    const double scale = 1.0 / static_cast<double>(length_);
    for (Index q = 0; q < p - 1; ++q) {
        const Index root = powers_[q == 0 ? 0 : p - 1 - q];
        const double value = scale * (cosines[(root - 1) * step] + sines[(root - 1) * step]);
        kernel_[q] = value;
        if (length_ > p - 1 && q > 0) kernel_[length_ - (p - 1) + q] = value;
    }
    const Sequence kernel{kernel_, nullptr};
    plan(Kind::real).transform(kernel, kernel, 1.0, work_);
    return true;
}

Plan PrimeTransform::plan(Kind kind) const { return {kind, length_, table_.data()}; }

void PrimeTransform::run_real() const
{
    const double *x = input_;
    double *a = signal_;
    for (Index q = 0; q < p_ - 1; ++q) a[q] = x[powers_[q]];
    std::fill(a + p_ - 1, a + length_, 0.0);

    plan(Kind::real).transform({a, nullptr}, {a, nullptr}, 1.0, work_);
    output_[0] = x[0] + a[0];
    output_[1] = 0.0;
    multiply_packed_conjugate(length_, a, kernel_);
    plan(Kind::hermitian).transform({a, nullptr}, {a, nullptr}, 1.0, work_);

    // a_q holds the sums with cosines plus those with negated sines, at the frequency g^-q.
    const Index half = (p_ - 1) / 2;
    for (Index q = 0; q < half; ++q) {
        const Index k = powers_[q == 0 ? 0 : p_ - 1 - q];
        const double even = x[0] + 0.5 * (a[q] + a[q + half]), odd = 0.5 * (a[q] - a[q + half]);
        const Index lower = std::min(k, p_ - k);
        output_[2 * lower] = even;
        output_[2 * lower + 1] = k == lower ? odd : -odd;
    }
}

void PrimeTransform::run_complex() const
{
    const double *x = input_;
    double *re = signal_, *im = signal_ + length_;
    for (Index q = 0; q < p_ - 1; ++q) {
        re[q] = x[2 * powers_[q]];
        im[q] = x[2 * powers_[q] + 1];
    }
    std::fill(re + p_ - 1, re + length_, 0.0);
    std::fill(im + p_ - 1, im + length_, 0.0);

    const Plan transform = plan(Kind::complex);
    transform.transform({re, im}, {re, im}, 1.0, work_);
    output_[0] = x[0] + re[0];
    output_[1] = x[1] + im[0];
    multiply_conjugate(length_, re, im, kernel_);
    transform.transform({re, im}, {re, im}, 1.0, work_); // the conjugate of the convolution

    const Index half = (p_ - 1) / 2;
    for (Index q = 0; q < half; ++q) {
        const Index k = powers_[q == 0 ? 0 : p_ - 1 - q];
        const double even_re = x[0] + 0.5 * (re[q] + re[q + half]), odd_re = 0.5 * (re[q] - re[q + half]);
        const double even_im = x[1] - 0.5 * (im[q] + im[q + half]), odd_im = -0.5 * (im[q] - im[q + half]);
        output_[2 * k] = even_re - odd_im;
        output_[2 * k + 1] = even_im + odd_re;
        output_[2 * (p_ - k)] = even_re + odd_im;
        output_[2 * (p_ - k) + 1] = even_im - odd_re;
    }
}

} // namespace kor::transforms
