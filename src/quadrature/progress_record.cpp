// The record of sub-intervals that the adaptive routines hand to their caller.
#include "quadrature/progress_record.hpp"

#include <algorithm>

namespace kor::quadrature {

ProgressRecord::ProgressRecord(Integer limit, bool with_levels)
    : left_{Count{limit}}, right_{Count{limit}}, result_{Count{limit}}, error_{Count{limit}}, order_{Count{limit}},
      level_{with_levels ? Workspace<Integer>{Count{limit}} : Workspace<Integer>{}},
      subdivision_{left_.data(), right_.data(), result_.data(), error_.data(), order_.data(), level_.data(), limit},
      complete_{left_ && right_ && result_ && error_ && order_ && (!with_levels || level_)}
{
}

ProgressRecord::operator bool() const { return complete_; }

void ProgressRecord::publish(KorQuadRecord *record)
{
    const Integer count = subdivision_.count;
    for (Workspace<double> *array : {&left_, &right_, &result_, &error_})
        std::fill(array->begin() + count, array->end(), 0.0);
    subdivision_.order_along_axis();
    record->subint_count = count;
    record->eval_count = evaluations;
    record->left_ends = left_.release();
    record->right_ends = right_.release();
    record->subint_results = result_.release();
    record->subint_errors = error_.release();
}

void report_outcome(const Report &report, const AdaptiveResult &outcome, const CallerArguments &arguments)
{
    switch (outcome.status) {
    case AdaptiveStatus::converged:
        return report.success();
    case AdaptiveStatus::limit:
        return report.error<NE_QUAD_MAX_SUBDIV>("max_num_subint", arguments.max_num_subint);
    case AdaptiveStatus::roundoff:
        return report.error<NE_QUAD_ROUNDOFF_TOL>(arguments.epsabs, arguments.epsrel);
    case AdaptiveStatus::bad_interval:
        return report.error<NE_QUAD_BAD_SUBDIV>(outcome.bad_left, outcome.bad_right);
    case AdaptiveStatus::extrapolation:
        return report.error<NE_QUAD_ROUNDOFF_EXTRAPL>();
    case AdaptiveStatus::divergent:
        return report.error<NE_QUAD_NO_CONV>();
    case AdaptiveStatus::invalid:
        break;
    }
    report.error<NE_INTERNAL_ERROR>();
}

} // namespace kor::quadrature
