// Eigenvalues of a real symmetric tridiagonal matrix by implicit QL and QR steps, and the rows that turn with them.
#pragma once

#include <algorithm>
#include <cmath>
#include <utility>

#include "frame/constants.hpp"
#include "linalg/rotation.hpp"

namespace kor::linalg {

// The rotation that takes (f, g) to (r, 0): c f + s g = r, c g - s f = 0. f and g are finite.
struct Givens {
    double c, s, r;
};
[[gnu::always_inline]] inline Givens givens(double f, double g)
{
    constexpr double kLeastSquare = 0x1p-960, kGreatestSquare = 0x1p1020;
    if (g == 0.0) return {1.0, 0.0, f};
    const double square = f * f + g * g;
    if (square > kLeastSquare && square < kGreatestSquare) {
        const double r = std::sqrt(square);
        return {f / r, g / r, r};
    }
    const double scale = std::ldexp(1.0, -std::max(std::ilogb(std::max(std::fabs(f), std::fabs(g))), -1021));
    const double near_f = f * scale, near_g = g * scale, r = std::sqrt(near_f * near_f + near_g * near_g);
    return {near_f / r, near_g / r, r / scale};
}

// Eigenvalues alone: nothing turns.
struct NoRows {
    void turn(Integer, Integer, double, double) const {}
    void exchange(Integer, Integer) const {}
    void negate(Integer) const {}
};

// n columns of the rows of a matrix, which turn in pairs.
template <Scalar T>
struct TurningRows {
    T *a;
    std::ptrdiff_t tda;
    Integer n;
    [[gnu::always_inline]] void turn(Integer i, Integer j, double c, double s) const
    {
        turn_rows(n, a + i * tda, a + j * tda, c, s);
    }
    void exchange(Integer i, Integer j) const { std::swap_ranges(a + i * tda, a + i * tda + n, a + j * tda); }
    void negate(Integer i) const
    {
        for (Integer k = 0; k < n; ++k) a[i * tda + k] = -a[i * tda + k];
    }
};

// Elements beyond this range below the greatest are dropped: products of them underflow, and then nothing would converge.
inline constexpr double kRange = 0x1p-300;

inline double greatest_modulus(Integer n, const double *d, const double *e)
{
    double greatest = 0.0;
    for (Integer i = 0; i < n; ++i) greatest = std::max(greatest, std::fabs(d[i]));
    for (Integer i = 0; i + 1 < n; ++i) greatest = std::max(greatest, std::fabs(e[i]));
    return greatest;
}

// e[i] couples d[i] and d[i + 1]; e has n - 1 elements and becomes zero. On return d holds the eigenvalues in ascending
// order, and what were the rows of I are the eigenvectors. An e is negligible at eps times the sum of its neighbours'
// moduli. Returns false after `limit` steps, d and e as they then are. The matrix must be finite.
template <class Rows>
bool diagonalise(Integer n, double eps, double *d, double *e, Integer limit, const Rows &rows)
{
    const double least = std::max(kRange * greatest_modulus(n, d, e), kSmallest);
    const auto negligible = [&](Integer i) {
        return std::fabs(e[i]) <= eps * (std::fabs(d[i]) + std::fabs(d[i + 1])) || std::fabs(e[i]) <= least;
    };
    Integer steps = 0;
    Integer last = n - 1; // everything behind is done
    Integer old_first = n, old_last = -1;
    bool down = false;
    while (last > 0) {
        if (negligible(last - 1)) {
            e[--last] = 0.0;
            continue;
        }
        Integer first = last - 1;
        while (first > 0 && !negligible(first - 1)) --first;
        if (first > 0) e[first - 1] = 0.0;

        if (first == last - 1) {
            // Two by two: one rotation, its tangent the smaller root of t^2 + 2 g t - 1 = 0.
            const double g = 0.5 * (d[first] - d[last]) / e[first];
            const double t =
                std::isfinite(g * g) ? std::copysign(1.0, g) / (std::fabs(g) + std::sqrt(g * g + 1.0)) : 0.5 / g;
            const double c = 1.0 / std::sqrt(t * t + 1.0), s = t * c;
            d[first] += t * e[first];
            d[last] -= t * e[first];
            e[first] = 0.0;
            rows.turn(first, last, c, s);
            continue;
        }
        if (steps++ == limit) return false;

        // The chase starts at the end with the greater elements, and the shift comes from the other end: so it stays until
        // the block is done, or the shift would chase eigenvalues at both ends in turn.
        if (first > old_last || last < old_first) down = std::fabs(d[first]) > std::fabs(d[last]);
        old_first = first;
        old_last = last;
        const Integer step = down ? 1 : -1, start = down ? first : last, end = down ? last : first;
        const auto coupling = [&](Integer k) -> double & { return e[down ? k : k - 1]; }; // of k and k + step
        const double small = coupling(end - step);
        const double g = (d[end - step] - d[end]) / (2.0 * small);
        const double shift = d[end] - small / (g + std::copysign(std::hypot(g, 1.0), g));
        // Each plane takes in the bulge that the one before has left in the coupling's row.
        double c = 1.0, s = 1.0, drift = 0.0, leading = d[start] - shift;
        for (Integer k = start; k != end; k += step) {
            const Integer next = k + step;
            const double bulge = s * coupling(k), beside = c * coupling(k);
            const Givens rotation = givens(leading, bulge);
            if (k != start) coupling(k - step) = rotation.r;
            c = rotation.c;
            s = rotation.s;
            const double diagonal = d[k] - drift;
            const double change = (d[next] - diagonal) * s + 2.0 * c * beside;
            drift = s * change;
            d[k] = diagonal + drift;
            leading = c * change - beside;
            rows.turn(k, next, c, s);
        }
        d[end] -= drift;
        coupling(end - step) = leading;
    }

    for (Integer i = 0; i + 1 < n; ++i) {
        const Integer least = static_cast<Integer>(std::min_element(d + i, d + n) - d);
        if (least == i) continue;
        std::swap(d[i], d[least]);
        rows.exchange(i, least);
    }
    return true;
}

// The same for the eigenvalues alone, without square roots: the squares of e are what is iterated. K. Reinsch, A stable,
// rational QL algorithm for the computation of the eigenvalues of an Hermitian, tridiagonal matrix, Math. Comp. 25 (1971)
// 591-597, in the form of W. Kahan, G. Peters, J. H. Wilkinson and B. N. Parlett (The Symmetric Eigenvalue Problem, 8.15).
inline bool find_eigenvalues(Integer n, double eps, double *d, double *e, Integer limit)
{
    const double eps_squared = eps * eps, least = kRange * greatest_modulus(n, d, e);
    const double least_square = std::max(least * least, kSmallest);
    for (Integer i = 0; i + 1 < n; ++i) e[i] *= e[i];
    const auto negligible = [&](Integer i) {
        const double around = std::fabs(d[i]) + std::fabs(d[i + 1]);
        return e[i] <= eps_squared * (around * around) || e[i] <= least_square;
    };
    Integer steps = 0, last = n - 1, old_first = n, old_last = -1;
    bool down = false;
    while (last > 0) {
        if (negligible(last - 1)) {
            e[--last] = 0.0;
            continue;
        }
        Integer first = last - 1;
        while (first > 0 && !negligible(first - 1)) --first;
        if (first > 0) e[first - 1] = 0.0;

        if (first == last - 1) {
            const double g = 0.5 * (d[first] - d[last]);
            const double change = e[first] / (g + std::copysign(std::sqrt(g * g + e[first]), g));
            d[first] += change;
            d[last] -= change;
            e[first] = 0.0;
            continue;
        }
        if (steps++ == limit) return false;

        if (first > old_last || last < old_first) down = std::fabs(d[first]) > std::fabs(d[last]);
        old_first = first;
        old_last = last;
        const Integer step = down ? 1 : -1, start = down ? first : last, end = down ? last : first;
        double *const beside = down ? e : e - 1; // beside[k] is the square of the coupling of k and k + step
        const double small = beside[end - step], g = 0.5 * (d[end - step] - d[end]);
        const double shift = d[end] - small / (g + std::copysign(std::sqrt(g * g + small), g));
        double c = 1.0, s = 0.0, gamma = d[start] - shift, p = gamma * gamma;
        for (Integer k = start; k != end; k += step) {
            const double square = beside[k], r = p + square, old_c = c, old_gamma = gamma;
            if (k != start) beside[k - step] = s * r;
            c = p / r;
            s = square / r;
            const double next = d[k + step];
            gamma = c * (next - shift) - s * old_gamma;
            d[k] = old_gamma + (next - gamma);
            p = c != 0.0 ? gamma * gamma / c : old_c * square;
        }
        beside[end - step] = s * p;
        d[end] = shift + gamma;
    }
    std::sort(d, d + n);
    return true;
}

} // namespace kor::linalg
