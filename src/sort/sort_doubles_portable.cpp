// The sort of doubles for any processor: partitions without a branch that depends on the data.
#include "sort/quicksort_doubles.hpp"
#include "sort/sort_doubles.hpp"

#include <algorithm>
#include <cmath>

namespace kor::sort {

namespace {

// A vector of one lane.
struct OneLane {
    using V = double;
    static constexpr int width = 1;

    static V load(const double *p) { return *p; }
    static void store(double *p, V v) { *p = v; }
    static V min(V a, V b) { return a < b ? a : b; }
    static V max(V a, V b) { return a < b ? b : a; }
    static V reverse(V v) { return v; }
    static unsigned not_at_most(V a, V b) { return !(a <= b); }
    static unsigned negative_zeros(V v) { return v == 0.0 && std::signbit(v); }
};

double median(double x, double y, double z) { return std::max(std::min(x, y), std::min(std::max(x, y), z)); }

struct PortableKernel {
    using Lanes = OneLane;
    static constexpr std::ptrdiff_t kShort = 24;
    static constexpr std::ptrdiff_t kBitonicBlock = 1;

    static void sort_short(double *a, std::ptrdiff_t n) { insertion_sort(a, n); }
    static void sort_bitonic_block(double *) {}

    // Median of three medians of three, one element of each of nine stretches.
    static Pivot choose_pivot(const double *a, std::ptrdiff_t n, Positions &positions)
    {
        const std::ptrdiff_t stretch = n / 9;
        positions.advance();
        const auto element = [&](int i) { return a[i * stretch + positions.choose(i, stretch)]; };
        const double x = median(element(0), element(3), element(6)), y = median(element(1), element(4), element(7)),
                     z = median(element(2), element(5), element(8)), value = median(x, y, z);
        return {value, (value == x) + (value == y) + (value == z) > 1};
    }

    // Moves what belongs to the front there, and returns how many that are. Every element changes places with the first of
    // those that stay, which is itself as long as none does: no branch.
    template <class BelongsToFront>
    static std::ptrdiff_t move_to_front(double *a, std::ptrdiff_t n, BelongsToFront belongs_to_front)
    {
        std::ptrdiff_t front = 0;
        for (std::ptrdiff_t i = 0; i < n; ++i) {
            const double value = a[i];
            a[i] = a[front];
            a[front] = value;
            front += belongs_to_front(value);
        }
        return front;
    }

    static Counts partition(double *a, std::ptrdiff_t n, double pivot)
    {
        const std::ptrdiff_t less = move_to_front(a, n, [=](double value) { return value < pivot; });
        return {less, n - less};
    }

    static Counts partition_three_ways(double *a, std::ptrdiff_t n, double pivot)
    {
        const std::ptrdiff_t less = partition(a, n, pivot).less;
        const std::ptrdiff_t equal = move_to_front(a + less, n - less, [=](double value) { return value == pivot; });
        return {less, n - less - equal};
    }
};

} // namespace

std::ptrdiff_t sort_doubles_portable(double *a, std::ptrdiff_t n) { return sort_numbers<PortableKernel>(a, n); }

} // namespace kor::sort
