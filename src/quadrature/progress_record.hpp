// The record of sub-intervals that the adaptive routines hand to their caller.
#pragma once

#include <kor/d01.h>

#include "frame/report.hpp"
#include "frame/workspace.hpp"
#include "quadrature/adaptive.hpp"

namespace kor::quadrature {

// Arrays for `limit` sub-intervals. They become the caller's by publish(), and vanish otherwise.
class ProgressRecord {
  public:
    explicit ProgressRecord(Integer limit, bool with_levels = false);
    explicit operator bool() const;

    Subdivision &subdivision() { return subdivision_; }
    Integer evaluations = 0;

    // In the order of the axis, zeros behind.
    void publish(KorQuadRecord *record);

  private:
    Workspace<double> left_, right_, result_, error_;
    Workspace<Integer> order_, level_;
    Subdivision subdivision_;
    bool complete_;
};

// The reports that most of the routines share; 0 is success.
struct CallerArguments {
    Integer max_num_subint;
    double epsabs, epsrel;
};
void report_outcome(const Report &report, const AdaptiveResult &outcome, const CallerArguments &arguments);

} // namespace kor::quadrature
