// The sub-intervals of an adaptive integration, in order of their errors.
#include "quadrature/subdivision.hpp"

#include <algorithm>
#include <numeric>
#include <utility>

namespace kor::quadrature {

void Subdivision::order_by_error()
{
    // Selection: equal errors keep their order along the axis.
    for (Integer i = 0; i + 1 < count; ++i) {
        Integer largest = i;
        for (Integer j = i + 1; j < count; ++j)
            if (error[order[j]] > error[order[largest]]) largest = j;
        std::swap(order[i], order[largest]);
    }
    place_ = 0;
}

void Subdivision::replace_worst(double a, double middle, double b, const RuleValue &first, const RuleValue &second)
{
    const Integer old_slot = worst();
    const Integer new_slot = count++;
    const auto put = [this](Integer slot, double l, double r, const RuleValue &value) {
        left[slot] = l;
        right[slot] = r;
        result[slot] = value.result;
        error[slot] = value.error;
    };
    const bool second_is_worse = second.error > first.error;
    put(second_is_worse ? new_slot : old_slot, a, middle, first);
    put(second_is_worse ? old_slot : new_slot, middle, b, second);
    if (level != nullptr) level[new_slot] = ++level[old_slot];
    reorder(old_slot);
}

void Subdivision::reorder(Integer old_slot)
{
    const Integer newest = count - 1;
    if (count < 3) {
        order[0] = 0;
        order[1] = 1;
        return;
    }
    // An interval that was bisected although larger ones exist may have become more difficult: it moves up.
    const double larger = error[old_slot];
    while (place_ > 0 && larger > error[order[place_ - 1]]) {
        order[place_] = order[place_ - 1];
        --place_;
    }
    // The half with the larger error sinks from the top, the other one rises from the bottom.
    const Integer last = kept() - 1;
    Integer i = std::min(place_ + 1, last);
    while (i < last && larger < error[order[i]]) {
        order[i - 1] = order[i];
        ++i;
    }
    order[i - 1] = old_slot;
    if (i >= last) {
        order[last] = newest;
        return;
    }
    const double smaller = error[newest];
    Integer k = last - 1;
    while (k >= i && !(smaller < error[order[k]])) {
        order[k + 1] = order[k];
        --k;
    }
    order[k + 1] = newest;
}

double Subdivision::sum_of_results() const
{
    double sum = 0.0;
    for (Integer i = 0; i < count; ++i) sum += result[i];
    return sum;
}

void Subdivision::order_along_axis()
{
    std::iota(order, order + count, 0);
    // With NaN for an end of the range there are ends that compare with nothing: they come last.
    std::sort(order, order + count, [this](Integer i, Integer j) {
        return left[i] < left[j] || (std::isnan(left[j]) && !std::isnan(left[i]));
    });
    // Slot i takes what stands in slot order[i], cycle by cycle.
    for (Integer start = 0; start < count; ++start) {
        const double saved[] = {left[start], right[start], result[start], error[start]};
        Integer i = start;
        for (Integer from; (from = std::exchange(order[i], i)) != start; i = from) {
            left[i] = left[from];
            right[i] = right[from];
            result[i] = result[from];
            error[i] = error[from];
        }
        left[i] = saved[0];
        right[i] = saved[1];
        result[i] = saved[2];
        error[i] = saved[3];
    }
}

} // namespace kor::quadrature
