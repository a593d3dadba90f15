// The largest singular value of a growing symmetric tridiagonal matrix, such as a Lanczos process produces, by bisection.
#pragma once

#include <kor.h>

namespace kor::sparse {

class LargestSingularValue {
  public:
    // `storage`: 2 `most_steps` elements. `tolerance`: relative; the estimate is final when two successive ones differ by
    // no more than that.
    void begin(double storage[], Integer most_steps, double tolerance);
    void reset();
    // Adds a row: its diagonal element, and the square of the element beside it.
    void add(double diagonal, double squared_off_diagonal);

    bool is_final() const { return final_; }
    double value() const { return value_; }
    Integer steps() const { return steps_; }
    double change() const { return change_; } // relative, between the last two estimates

  private:
    Integer count_below(double t) const;
    bool exceeds_all(double t) const;
    double gershgorin_bound() const;

    double *diagonal_, *squares_;
    Integer most_steps_, steps_;
    double tolerance_, value_, change_;
    bool final_;
};

} // namespace kor::sparse
