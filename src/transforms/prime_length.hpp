// Transforms of a large prime length, by convolution.
#pragma once

#include <memory>

#include "frame/workspace.hpp"
#include "transforms/sequence.hpp"

namespace kor::transforms {

// Of primes above kLargestDirectPrime no 32-bit length has more.
inline constexpr int kMaxLargePrimes = 5;

// The discrete transform of p points, in place at points(), where complex numbers stand as pairs re, im.
//
// Rader (1968): with a generator g of the residues modulo p, x_{g^q} and X_{g^-q} are related by a cyclic convolution
// of length p - 1 with w^{g^-q}, w = exp(-2 pi i / p). The halves of that kernel are conjugates, so that its cosines
// repeat and its sines change sign after (p - 1)/2 places: convolving with their *sum*, which is real, keeps the two
// apart, and a real sequence needs real arithmetic only. The convolution is done by transforms of a smooth length.
class PrimeTransform {
  public:
    PrimeTransform() = default;

    // Sets up for the prime p; root k = 1..p-1 of unity stands at cosines[(k-1) * step], -sine at sines[(k-1) * step].
    // False when there is no memory.
    bool prepare(Index p, const double *cosines, const double *sines, Index step);

    double *points() const { return work_; } // which has no other use before and after the convolution

    // p complex numbers to p complex numbers.
    void run_complex() const;
    // p real numbers to the first p/2 + 1 complex numbers.
    void run_real() const;

  private:
    Plan plan(Kind kind) const;

    Index p_ = 0;
    Index length_ = 0;        // of the convolution: p - 1, or at least 2(p - 1) - 1
    Workspace<double> table_; // of roots for length_
    Workspace<double> memory_;
    Workspace<Integer> powers_; // g^q modulo p, q = 0..p-2
    double *kernel_ = nullptr;  // packed transform of the kernel, divided by length_
    double *signal_ = nullptr;  // the sequences that are convolved: real parts, then imaginary parts
    double *work_ = nullptr;
};

// Those of one length, set up as they come: most lengths have none, and should not pay for them.
class LargePrimes {
  public:
    LargePrimes() {}
    LargePrimes(const LargePrimes &) = delete;
    ~LargePrimes() { std::destroy_n(prime_, count_); }
    PrimeTransform &add() { return *std::construct_at(prime_ + count_++); }
    int count() const { return count_; }

  private:
    int count_ = 0;
    union {
        PrimeTransform prime_[kMaxLargePrimes];
    };
};

} // namespace kor::transforms
