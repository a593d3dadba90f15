// The sub-intervals of an adaptive integration, in order of their errors.
#pragma once

#include <cmath>

#include <kor.h>

#include "quadrature/rules.hpp"

namespace kor::quadrature {

// Arrays of `limit` elements in the caller's memory; `order` names the sub-intervals by decreasing error. Late in the run
// only as many places of it are kept as bisections are left: the others cannot come up again.
class Subdivision {
  public:
    Subdivision(double *left_ends, double *right_ends, double *results, double *errors, Integer *by_error,
                Integer *levels, Integer size)
        : left{left_ends}, right{right_ends}, result{results}, error{errors}, order{by_error}, level{levels}, limit{
                                                                                                                  size}
    {
    }

    double *left, *right, *result, *error;
    Integer *order;
    Integer *level; // number of bisections that led to a sub-interval; null where nobody asks
    Integer limit;
    Integer count = 0;

    // The first sub-intervals, one after the other.
    void start(double a, double b, const RuleValue &value)
    {
        left[count] = a;
        right[count] = b;
        result[count] = value.result;
        error[count] = value.error;
        order[count] = count;
        if (level != nullptr) level[count] = 0;
        ++count;
    }
    void order_by_error(); // after several starts

    Integer worst() const { return order[place_]; } // the one to be bisected next
    double width(Integer i) const { return std::fabs(right[i] - left[i]); }

    // Replaces the worst by its halves, the one with the larger error in the old slot, and keeps the order.
    void replace_worst(double a, double middle, double b, const RuleValue &first, const RuleValue &second);

    // Looking beyond the worst: `place` in the order, from 0.
    void look_at(Integer place) { place_ = place; }
    Integer place() const { return place_; }
    Integer kept() const { return count > limit / 2 + 2 ? limit + 3 - count : count; }

    double sum_of_results() const;

    void order_along_axis(); // at the end: the order of errors is lost

  private:
    void reorder(Integer old_slot);

    Integer place_ = 0;
};

} // namespace kor::quadrature
