// Singular values of a real upper bidiagonal matrix to high relative accuracy, and the rows that turn with them.
//
// Implicit QR steps, without shift where a shift would spoil the small values: J. Demmel and W. Kahan, Accurate singular
// values of bidiagonal matrices, SIAM J. Sci. Stat. Comput. 11 (1990) 873-912.
#pragma once

#include <algorithm>
#include <cmath>
#include <utility>

#include "frame/constants.hpp"
#include "linalg/tridiagonal_ql.hpp"

namespace kor::linalg {

// Two sets of rows that turn alike.
template <class First, class Second>
struct BothRows {
    First first;
    Second second;
    void turn(Integer i, Integer j, double c, double s) const
    {
        first.turn(i, j, c, s);
        second.turn(i, j, c, s);
    }
    void exchange(Integer i, Integer j) const
    {
        first.exchange(i, j);
        second.exchange(i, j);
    }
    void negate(Integer i) const
    {
        first.negate(i);
        second.negate(i);
    }
};
template <class First, class Second>
BothRows(First, Second) -> BothRows<First, Second>;

// The rotations that make [f g; 0 h], |f| >= |h|, f and g not 0, the diagonal of `greater` and `smaller`, both as exact as
// f, g and h. With m = g / f: ((sigma1 + sigma2) / f)^2 = (1 + |h/f|)^2 + m^2, and with minus signs likewise.
struct TriangleOfTwo {
    double greater, smaller;
    double left_c, left_s, right_c, right_s;
};
inline TriangleOfTwo singular_values_of_two(double f, double g, double h)
{
    const double m = g / f;
    if (std::fabs(m) > 1.0 / kPrecision) return {g, f / g * h, 1.0, h / g, f / g, 1.0};
    const double gap = (std::fabs(f) - std::fabs(h)) / std::fabs(f), total = 2.0 - gap;
    const double sum = std::sqrt(total * total + m * m);
    const double difference = gap == 0.0 ? std::fabs(m) : std::sqrt(gap * gap + m * m);
    const double a = 0.5 * (sum + difference); // the greater singular value over |f|
    const double twice_tangent = (m / (sum + total) + m / (difference + gap)) * (1.0 + a);
    const double length = std::sqrt(twice_tangent * twice_tangent + 4.0);
    const double c = 2.0 / length, s = twice_tangent / length;
    return {f * a, h / a, (c + s * m) / a, h / f * s / a, c, s};
}

// The smaller singular value of [f g; 0 h], roughly.
inline double smaller_singular_value(double f, double g, double h)
{
    const double greater = 0.5 * (std::hypot(f + h, g) + std::hypot(f - h, g));
    return greater > 0.0 ? std::fabs(f) * (std::fabs(h) / greater) : 0.0;
}

// d[0..n-1] is the diagonal, e[0..n-2] the superdiagonal: d becomes the singular values in descending order, and e zero.
// The rows of `left` turn as those of conj(Q)', the rows of `right` as those of conj(P)', B = Q S P'; negative values are
// made positive on the right. Returns the number of values that have not converged after `limit` steps, which is that of
// the elements of e that are left. The matrix must be finite, its elements well below the square root of the range.
template <class Left, class Right>
Integer diagonalise_bidiagonal(Integer n, double *d, double *e, Integer limit, Integer &steps, const Left &left,
                               const Right &right)
{
    constexpr double kTolerance = 8.0 * kPrecision;
    // A shift perturbs the small values by about the precision times the greatest: it is taken if they can bear this.
    constexpr double kTolerableSpread = 16.0;

    steps = 0;
    // A lower bound of the least singular value, but for a factor sqrt(n): by this all off-diagonal elements can be judged.
    double bound = n > 0 ? std::fabs(d[0]) : 0.0;
    double mu = bound;
    for (Integer i = 1; i < n && mu > 0.0; ++i) {
        mu = std::fabs(d[i]) * (mu / (mu + std::fabs(e[i - 1])));
        bound = std::min(bound, mu);
    }
    const double negligible = std::max(kTolerance * bound / std::sqrt(static_cast<double>(std::max(n, 1))), kSmallest);

    Integer last = n - 1, old_first = -1, old_last = -1;
    bool down = true;
    while (last > 0) {
        if (std::fabs(e[last - 1]) <= negligible) {
            e[--last] = 0.0;
            continue;
        }
        Integer first = last - 1;
        while (first > 0 && std::fabs(e[first - 1]) > negligible) --first;
        if (first > 0) e[first - 1] = 0.0;

        // A new block is chased from the end with the greater elements: upwards the matrix is read as its transpose in
        // reverse order, which is upper bidiagonal as well, with left and right exchanged. Read so, element k = start,
        // start + step, ... is coupled with the next.
        if (first > old_last || last < old_first || first == last - 1) down = std::fabs(d[first]) >= std::fabs(d[last]);
        old_first = first;
        old_last = last;
        const Integer step = down ? 1 : -1, start = down ? first : last, end = down ? last : first;
        const auto coupling = [&](Integer k) -> double & { return e[down ? k : k - 1]; };
        const auto turn_columns = [&](Integer k, double c, double s) {
            down ? right.turn(k, k + step, c, s) : left.turn(k, k + step, c, s);
        };
        const auto turn_rows_of_it = [&](Integer k, double c, double s) {
            down ? left.turn(k, k + step, c, s) : right.turn(k, k + step, c, s);
        };

        if (first == last - 1 && d[start] != 0.0) {
            const TriangleOfTwo two = singular_values_of_two(d[start], coupling(start), d[end]);
            d[start] = two.greater;
            d[end] = two.smaller;
            coupling(start) = 0.0;
            turn_columns(start, two.right_c, two.right_s);
            turn_rows_of_it(start, two.left_c, two.left_s);
            continue;
        }

        // What is negligible beside the values that the block may have from its start to there.
        if (std::fabs(coupling(end - step)) <= kTolerance * std::fabs(d[end])) {
            coupling(end - step) = 0.0;
            continue;
        }
        double least = std::fabs(d[start]), greatest = least;
        mu = least;
        bool split = false;
        for (Integer k = start; k != end && !split; k += step) {
            double &beside = coupling(k);
            split = std::fabs(beside) <= kTolerance * mu;
            if (split) {
                beside = 0.0;
                break;
            }
            greatest = std::max({greatest, std::fabs(beside), std::fabs(d[k + step])});
            mu = std::fabs(d[k + step]) * (mu / (mu + std::fabs(beside)));
            least = std::min(least, mu);
        }
        if (split) continue;
        if (steps == limit) break;
        ++steps;

        double shift = 0.0;
        if (kTolerableSpread * n * least > greatest) {
            shift = smaller_singular_value(d[end - step], coupling(end - step), d[end]);
            const double relative = shift / d[start];
            if (relative * relative < kPrecision) shift = 0.0;
        }

        if (shift == 0.0) {
            // Two sweeps in one; no subtraction, hence no loss of relative accuracy.
            Givens column{1.0, 0.0, 0.0}, row{1.0, 0.0, 0.0};
            for (Integer k = start; k != end; k += step) {
                column = givens(d[k] * column.c, coupling(k));
                if (k != start) coupling(k - step) = row.s * column.r;
                row = givens(row.c * column.r, d[k + step] * column.s);
                d[k] = row.r;
                turn_columns(k, column.c, column.s);
                turn_rows_of_it(k, row.c, row.s);
            }
            const double rest = d[end] * column.c;
            d[end] = rest * row.c;
            coupling(end - step) = rest * row.s;
        } else {
            double f = (std::fabs(d[start]) - shift) * (std::copysign(1.0, d[start]) + shift / d[start]);
            double g = coupling(start);
            for (Integer k = start; k != end; k += step) {
                const Integer next = k + step;
                const Givens column = givens(f, g);
                if (k != start) coupling(k - step) = column.r;
                f = column.c * d[k] + column.s * coupling(k);
                coupling(k) = column.c * coupling(k) - column.s * d[k];
                g = column.s * d[next];
                d[next] *= column.c;
                const Givens row = givens(f, g);
                d[k] = row.r;
                f = row.c * coupling(k) + row.s * d[next];
                d[next] = row.c * d[next] - row.s * coupling(k);
                if (next != end) {
                    g = row.s * coupling(next);
                    coupling(next) *= row.c;
                }
                turn_columns(k, column.c, column.s);
                turn_rows_of_it(k, row.c, row.s);
            }
            coupling(end - step) = f;
        }
    }
    const Integer failures =
        n > 1 ? static_cast<Integer>(std::count_if(e, e + n - 1, [](double x) { return x != 0.0; })) : 0;

    for (Integer i = 0; i < n; ++i)
        if (std::signbit(d[i])) {
            d[i] = -d[i];
            right.negate(i);
        }
    if (failures != 0) return failures;
    for (Integer i = 0; i + 1 < n; ++i) {
        const Integer greatest = static_cast<Integer>(std::max_element(d + i, d + n) - d);
        if (greatest == i) continue;
        std::swap(d[i], d[greatest]);
        left.exchange(i, greatest);
        right.exchange(i, greatest);
    }
    return 0;
}

} // namespace kor::linalg
