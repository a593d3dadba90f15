// e01bec: derivatives for a piecewise cubic that is monotone wherever the data are.
//
// Method: F. N. Fritsch and J. Butland, SIAM J. Sci. Stat. Comput. 5 (1984) 300-304, with the weights of K. W. Brodlie for
// unequal intervals.
#include <kor/e01.h>

#include <algorithm>
#include <cmath>

#include "approx/hermite.hpp"

namespace {

// -1, 0 or 1 as the two differ in sign, one of them is zero, or they agree.
int sign_test(double a, double b)
{
    if (a == 0.0 || b == 0.0) return 0;
    return (a > 0.0) == (b > 0.0) ? 1 : -1;
}

struct Interval {
    double h, slope;
};

// A three-point formula at an end, held back where it would break the shape of the data.
double end_derivative(const Interval &first, const Interval &second)
{
    const double both = first.h + second.h;
    const double d = ((first.h + both) / both) * first.slope - (first.h / both) * second.slope;
    if (sign_test(d, first.slope) <= 0) return 0.0;
    if (sign_test(first.slope, second.slope) < 0 && std::fabs(d) > 3.0 * std::fabs(first.slope))
        return 3.0 * first.slope;
    return d;
}

// A harmonic mean of the slopes on either side; 0 at an extremum.
double interior_derivative(const Interval &left, const Interval &right)
{
    if (sign_test(left.slope, right.slope) <= 0) return 0.0;
    const double both = left.h + right.h;
    const double left_weight = (both + left.h) / (3.0 * both), right_weight = (both + right.h) / (3.0 * both);
    const double largest = std::fmax(std::fabs(left.slope), std::fabs(right.slope));
    const double smallest = std::fmin(std::fabs(left.slope), std::fabs(right.slope));
    return smallest / ((left.slope / largest) * left_weight + (right.slope / largest) * right_weight);
}

} // namespace

void e01bec(Integer n, const double x[], const double f[], double d[], KorError *fail)
{
    const kor::Report report{"e01bec", fail};
    if (!kor::approx::nodes_right(report, n, x)) return;

    const auto interval = [x, f](Integer i) {
        const double h = x[i + 1] - x[i];
        return Interval{h, (f[i + 1] - f[i]) / h};
    };
    if (n == 2) {
        d[0] = d[1] = interval(0).slope;
        return report.success();
    }
    d[0] = end_derivative(interval(0), interval(1));
    Interval left = interval(0);
    for (Integer i = 1; i < n - 1; ++i) {
        const Interval right = interval(i);
        d[i] = interior_derivative(left, right);
        left = right;
    }
    d[n - 1] = end_derivative(interval(n - 2), interval(n - 3));
    report.success();
}
