// Wynn's epsilon algorithm: the limit of a sequence that converges slowly.
#pragma once

namespace kor::quadrature {

// P. Wynn, Math. Comp. 10 (1956) 91-96, in the form of QUADPACK (R. Piessens et al., 1983): only the last diagonals of the
// table are kept, and elements between which differences are lost are cut off.
class EpsilonTable {
  public:
    void append(double term) { entries_[length_++] = term; }
    int length() const { return length_; }
    bool ever_extrapolated() const { return calls_ > 0; }

    struct Estimate {
        double result;
        double error;
    };
    // The limit as far as it can be told; the error is huge until the fourth call.
    Estimate extrapolate();

  private:
    static constexpr int kLimit = 50; // terms that are used
    double entries_[kLimit + 2];
    double last_results_[3];
    int length_ = 0;
    int calls_ = 0;
};

} // namespace kor::quadrature
