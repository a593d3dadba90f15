// The classical road to the eigenvalues of a general matrix: elimination or reflections to Hessenberg form, the QR
// iteration with double shifts, back substitution. After R. S. Martin, G. Peters and J. H. Wilkinson, Numer. Math. 12
// (1968) 349-368, 14 (1970) 219-231; G. Peters and J. H. Wilkinson, Numer. Math. 16 (1970) 181-204.
#include "linalg/hessenberg.hpp"

#include <algorithm>
#include <cmath>
#include <complex>

#include "frame/constants.hpp"
#include "frame/dispatch.hpp"
#include "frame/views.hpp"
#include "linalg/inner_product.hpp"
#include "linalg/reflection.hpp"
#include "linalg/rotation.hpp"

namespace kor::linalg {

namespace {

using Wide = std::complex<double>;

// I - v w' on three rows, or two, with v = (1, q, r) and w = (x, y, z).
struct SmallReflection {
    double q, r, x, y, z;

    // The reflection that takes (p, q, r) to (-s, 0, 0); false if there is nothing to do.
    static bool choose(double p, double q, double r, SmallReflection &reflection, double &s)
    {
        const double scale = std::fabs(p) + std::fabs(q) + std::fabs(r);
        if (scale == 0.0) return false;
        p /= scale;
        q /= scale;
        r /= scale;
        s = std::copysign(std::sqrt(p * p + q * q + r * r), p);
        const double sum = p + s;
        reflection = {q / sum, r / sum, sum / s, q / s, r / s};
        s *= scale;
        return true;
    }
    [[gnu::always_inline]] void rows(Integer n, bool three, double *__restrict a, double *__restrict b,
                                     double *__restrict c) const
    {
        if (three)
            for (Integer j = 0; j < n; ++j) {
                const double sum = a[j] + q * b[j] + r * c[j];
                a[j] -= sum * x;
                b[j] -= sum * y;
                c[j] -= sum * z;
            }
        else
            for (Integer j = 0; j < n; ++j) {
                const double sum = a[j] + q * b[j];
                a[j] -= sum * x;
                b[j] -= sum * y;
            }
    }
    void columns(bool three, double *row) const
    {
        double sum = x * row[0] + y * row[1];
        if (three) sum += z * row[2];
        row[0] -= sum;
        row[1] -= sum * q;
        if (three) row[2] -= sum * r;
    }
    // Rows of the transposed basis turn as columns of the matrix.
    [[gnu::always_inline]] void basis(Integer n, bool three, double *__restrict a, double *__restrict b,
                                      double *__restrict c) const
    {
        if (three)
            for (Integer j = 0; j < n; ++j) {
                const double sum = x * a[j] + y * b[j] + z * c[j];
                a[j] -= sum;
                b[j] -= sum * q;
                c[j] -= sum * r;
            }
        else
            for (Integer j = 0; j < n; ++j) {
                const double sum = x * a[j] + y * b[j];
                a[j] -= sum;
                b[j] -= sum * q;
            }
    }
};

// A subdiagonal element (k, k-1) that may be taken for zero: small beside its neighbours on the diagonal, and small in the
// sense of M. Ahues and F. Tisseur (LAPACK Working Note 122, 1997), which keeps the small eigenvalues of graded matrices.
bool negligible(const RowMajor<double> &H, Integer k, double eps, double norm)
{
    // So far below the norm products underflow, and then nothing would converge.
    constexpr double kRange = 0x1p-500;
    const double below = std::fabs(H(k, k - 1));
    if (below <= std::max(kRange * norm, kSmallest)) return true;
    double around = std::fabs(H(k - 1, k - 1)) + std::fabs(H(k, k));
    if (around == 0.0) around = norm;
    if (below > eps * around) return false;
    const double above = std::fabs(H(k - 1, k)), here = std::fabs(H(k, k));
    const double difference = std::fabs(H(k - 1, k - 1) - H(k, k));
    const double ab = std::max(below, above), ba = std::min(below, above);
    const double aa = std::max(here, difference), bb = std::min(here, difference), s = aa + ab;
    return ba * (ab / s) <= std::max(kSmallest, eps * (bb * (aa / s)));
}

} // namespace

void eliminate_to_hessenberg(Integer n, BalancedRange range, double *a, Integer tda, Integer *rows)
{
    const RowMajor<double> A{a, tda};
    for (Integer i = 0; i < n; ++i) rows[i] = i + 1;
    for (Integer m = range.low + 1; m < range.high; ++m) {
        Integer pivot = m;
        for (Integer i = m + 1; i <= range.high; ++i)
            if (std::fabs(A(i, m - 1)) > std::fabs(A(pivot, m - 1))) pivot = i;
        rows[m] = pivot + 1;
        if (pivot != m) {
            std::swap_ranges(A.row(m) + m - 1, A.row(m) + n, A.row(pivot) + m - 1);
            for (Integer i = 0; i <= range.high; ++i) std::swap(A(i, m), A(i, pivot));
        }
        const double top = A(m, m - 1);
        if (top == 0.0) continue;
        for (Integer i = m + 1; i <= range.high; ++i) {
            const double factor = A(i, m - 1) /= top;
            if (factor == 0.0) continue;
            for (Integer j = m; j < n; ++j) A(i, j) -= factor * A(m, j);
        }
        for (Integer i = 0; i <= range.high; ++i) {
            double sum = 0.0;
            for (Integer j = m + 1; j <= range.high; ++j) sum += A(i, j) * A(j, m - 1);
            A(i, m) += sum;
        }
    }
}

void accumulate_elimination(Integer n, BalancedRange range, const Integer *rows, const double *h, Integer tdh,
                            double *v, Integer tdv)
{
    const RowMajor<const double> H{h, tdh};
    const RowMajor<double> V{v, tdv};
    for (Integer i = 0; i < n; ++i) {
        std::fill(V.row(i), V.row(i) + n, 0.0);
        V(i, i) = 1.0;
    }
    // From the last step backwards: row m is still that of the identity when its multipliers come in.
    for (Integer m = range.high - 1; m > range.low; --m) {
        for (Integer i = m + 1; i <= range.high; ++i) V(i, m) = H(i, m - 1);
        if (const Integer pivot = rows[m] - 1; pivot != m)
            std::swap_ranges(V.row(m) + m, V.row(m) + range.high + 1, V.row(pivot) + m);
    }
}

KOR_CLONES void reflect_to_hessenberg(Integer n, BalancedRange range, double *a, Integer tda, double *zt, Integer tdz,
                                      double *work)
{
    const RowMajor<double> A{a, tda}, Z{zt, tdz};
    double *const u = work, *const w = work + n;
    for (Integer m = range.low + 1; m < range.high; ++m) {
        const Integer count = range.high - m + 1;
        for (Integer i = 0; i < count; ++i) u[i] = A(m + i, m - 1);
        double beta = u[0];
        const double zeta = make_reflection(count - 1, beta, u + 1, 1, 0.0);
        A(m, m - 1) = beta;
        // Below, the vector waits for the basis to be formed.
        for (Integer i = 1; i < count; ++i) A(m + i, m - 1) = u[i];
        w[m] = zeta;
        if (zeta == 0.0) continue;
        u[0] = zeta;
        for (Integer i = 0; i <= range.high; ++i) {
            double *const row = A.row(i) + m;
            const double sum = inner_product(count, row, u);
            for (Integer j = 0; j < count; ++j) row[j] -= sum * u[j];
        }
        // Sums over the rows, for so many columns at a time.
        constexpr Integer kPiece = 64;
        double sums[kPiece];
        for (Integer start = m; start < n; start += kPiece) {
            const Integer width = std::min(kPiece, n - start);
            std::fill(sums, sums + width, 0.0);
            for (Integer i = 0; i < count; ++i)
                for (Integer j = 0; j < width; ++j) sums[j] += u[i] * A(m + i, start + j);
            for (Integer i = 0; i < count; ++i)
                for (Integer j = 0; j < width; ++j) A(m + i, start + j) -= u[i] * sums[j];
        }
    }
    if (zt != nullptr) {
        for (Integer i = 0; i < n; ++i) {
            std::fill(Z.row(i), Z.row(i) + n, 0.0);
            Z(i, i) = 1.0;
        }
        for (Integer m = range.high - 1; m > range.low; --m) {
            const Integer count = range.high - m + 1;
            if (w[m] == 0.0) continue;
            u[0] = w[m];
            for (Integer i = 1; i < count; ++i) u[i] = A(m + i, m - 1);
            for (Integer i = m; i <= range.high; ++i) {
                double *const row = Z.row(i) + m;
                const double sum = inner_product(count, row, u);
                for (Integer j = 0; j < count; ++j) row[j] -= sum * u[j];
            }
        }
    }
    for (Integer i = range.low + 2; i <= range.high; ++i) std::fill(A.row(i) + range.low, A.row(i) + i - 1, 0.0);
}

KOR_CLONES Integer hessenberg_eigenvalues(Integer n, BalancedRange range, double eps, double *h, Integer tdh,
                                          double *zt, Integer tdz, double *wr, double *wi, Integer *count,
                                          Integer limit)
{
    // Steps on one eigenvalue after which the shifts are chosen differently, in case they run in a circle.
    constexpr Integer kExceptional = 10;

    const RowMajor<double> H{h, tdh}, Z{zt, tdz};
    const bool whole = zt != nullptr;
    double norm = 0.0;
    for (Integer i = 0; i < n; ++i) {
        if (i > 1) std::fill(H.row(i), H.row(i) + i - 1, 0.0);
        for (Integer j = std::max(i - 1, 0); j < n; ++j) norm += std::fabs(H(i, j));
        if (i < range.low || i > range.high) {
            wr[i] = H(i, i);
            wi[i] = 0.0;
            count[i] = 0;
        }
    }

    Integer last = range.high, steps = 0, total = 0;
    while (last >= range.low) {
        Integer first = last;
        while (first > range.low && !negligible(H, first, eps, norm)) --first;
        if (first > range.low) H(first, first - 1) = 0.0;

        if (first == last) {
            wr[last] = H(last, last);
            wi[last] = 0.0;
            count[last--] = steps;
            steps = 0;
            continue;
        }
        if (first == last - 1) {
            const double a = H(first, first), b = H(first, last), c = H(last, first), d = H(last, last);
            const double p = 0.5 * (a - d), scale = std::max({std::fabs(p), std::fabs(b), std::fabs(c)});
            const double discriminant = p / scale * p + b / scale * c; // over scale
            const double root = std::sqrt(scale) * std::sqrt(std::fabs(discriminant));
            if (discriminant >= 0.0) {
                const double z = p + std::copysign(root, p);
                wr[first] = wr[last] = d + z;
                if (z != 0.0) wr[last] = d - b / z * c;
                wi[first] = wi[last] = 0.0;
                // (z, c) is an eigenvector: the rotation that takes it to the first axis makes the block triangular.
                const double length = std::hypot(z, c), cosine = z / length, sine = c / length;
                if (whole) {
                    turn_rows(n - first, H.row(first) + first, H.row(last) + first, cosine, sine);
                    for (Integer i = 0; i <= last; ++i) turn(H(i, first), H(i, last), cosine, sine);
                    turn_rows(n, Z.row(first), Z.row(last), cosine, sine);
                    H(last, first) = 0.0;
                    wr[first] = H(first, first);
                    wr[last] = H(last, last);
                }
            } else {
                wr[first] = wr[last] = d + p;
                wi[first] = root;
                wi[last] = -root;
            }
            count[first] = steps;
            count[last] = -steps;
            last -= 2;
            steps = 0;
            continue;
        }
        if (total == limit) return last + 1;
        ++steps;
        ++total;

        // The shifts are the eigenvalues of [x v; w y], the trailing block.
        double x = H(last, last), y = H(last - 1, last - 1), w = H(last, last - 1), v = H(last - 1, last);
        if (steps % kExceptional == 0) {
            const double s = std::fabs(H(last, last - 1)) + std::fabs(H(last - 1, last - 2));
            x = y = H(last, last) + 0.75 * s;
            w = -0.4375 * s;
            v = s;
        }
        // A step may start below `first`, where two subdiagonal elements in a row are small.
        Integer start = last - 2;
        double p, q, r;
        for (;; --start) {
            // The first column of (H - shift)(H - other shift), over a scale by which no product gets lost.
            const double z = H(start, start), dx = x - z, dy = y - z, below = H(start + 1, start);
            const double scale = std::fabs(dx) + std::fabs(dy) + std::fabs(w) + std::fabs(v) + std::fabs(below);
            p = dx / scale * dy - w / scale * v + below / scale * H(start, start + 1);
            q = below / scale * (H(start + 1, start + 1) - z - dx - dy);
            r = below / scale * H(start + 2, start + 1);
            if (start == first) break;
            if (std::fabs(H(start, start - 1)) * (std::fabs(q) + std::fabs(r)) <=
                eps * std::fabs(p) *
                    (std::fabs(H(start - 1, start - 1)) + std::fabs(z) + std::fabs(H(start + 1, start + 1))))
                break;
        }

        for (Integer k = start; k < last; ++k) {
            const bool three = k + 1 < last;
            if (k != start) {
                p = H(k, k - 1);
                q = H(k + 1, k - 1);
                r = three ? H(k + 2, k - 1) : 0.0;
            }
            SmallReflection reflection;
            double s;
            if (!SmallReflection::choose(p, q, r, reflection, s)) continue;
            if (k != start) {
                H(k, k - 1) = -s;
                H(k + 1, k - 1) = 0.0;
                if (three) H(k + 2, k - 1) = 0.0;
            } else if (start != first) {
                H(k, k - 1) *= 1.0 - reflection.x;
            }
            const Integer third = three ? k + 2 : k;
            reflection.rows((whole ? n - 1 : last) - k + 1, three, H.row(k) + k, H.row(k + 1) + k, H.row(third) + k);
            for (Integer i = whole ? 0 : first; i <= std::min(last, k + 3); ++i)
                reflection.columns(three, H.row(i) + k);
            if (whole) reflection.basis(n, three, Z.row(k), Z.row(k + 1), Z.row(third));
        }
    }
    return 0;
}

namespace {

// y[first..] is what is already known of the vector of eigenvalue lambda, with y[last] its end; the rows above are solved
// for. Where the matrix is as good as singular a pivot is raised to `tiny`.
template <class Number>
void solve_upwards(const RowMajor<const double> &T, const double *wi, Integer first, Integer last, Number lambda,
                   double tiny, Number *y)
{
    constexpr double kGreat = 0x1p300;
    const auto raised = [=](Number pivot) { return std::abs(pivot) < tiny ? Number{tiny} : pivot; };
    const auto product = [&](Integer i, Integer from) {
        Number sum{};
        for (Integer k = from; k <= last; ++k) sum += T(i, k) * y[k];
        return sum;
    };
    for (Integer i = first - 1; i >= 0; --i) {
        if (wi[i] == 0.0) {
            y[i] = -product(i, i + 1) / raised(T(i, i) - lambda);
        } else {
            // Rows i-1 and i belong to a pair: a system of two by elimination, the greater pivot first.
            Number a = T(i - 1, i - 1) - lambda, b = T(i - 1, i), c = T(i, i - 1), d = T(i, i) - lambda;
            Number f = -product(i - 1, i + 1), g = -product(i, i + 1);
            if (std::abs(a) < std::abs(c)) {
                std::swap(a, c);
                std::swap(b, d);
                std::swap(f, g);
            }
            a = raised(a);
            const Number factor = c / a;
            y[i] = (g - factor * f) / raised(d - factor * b);
            y[i - 1] = (f - b * y[i]) / a;
            --i;
        }
        const double size = std::max(std::abs(y[i]), std::abs(y[i + 1]));
        if (size > kGreat)
            for (Integer k = i; k <= last; ++k) y[k] /= size;
    }
}

} // namespace

void schur_eigenvectors(Integer n, const double *t, Integer tdt, const double *wr, const double *wi, const double *zt,
                        Integer tdz, double *xt, Integer tdx, double *work)
{
    const RowMajor<const double> T{t, tdt}, Z{zt, tdz};
    const RowMajor<double> X{xt, tdx};
    double norm = 0.0;
    for (Integer i = 0; i < n; ++i)
        for (Integer j = std::max(i - 1, 0); j < n; ++j) norm = std::max(norm, std::fabs(T(i, j)));
    const double tiny = std::max(kPrecision * norm, kSmallest);

    for (Integer j = n - 1; j >= 0; --j) {
        if (wi[j] == 0.0) {
            double *const y = work;
            y[j] = 1.0;
            solve_upwards(T, wi, j, j, wr[j], tiny, y);
            std::fill(X.row(j), X.row(j) + n, 0.0);
            for (Integer k = 0; k <= j; ++k)
                for (Integer i = 0; i < n; ++i) X(j, i) += y[k] * Z(k, i);
            continue;
        }
        Wide *const y = reinterpret_cast<Wide *>(work);
        const Wide lambda{wr[j - 1], wi[j - 1]};
        if (std::fabs(T(j - 1, j)) >= std::fabs(T(j, j - 1))) {
            y[j - 1] = 1.0;
            y[j] = (lambda - T(j - 1, j - 1)) / T(j - 1, j);
        } else {
            y[j] = 1.0;
            y[j - 1] = (lambda - T(j, j)) / T(j, j - 1);
        }
        solve_upwards(T, wi, j - 1, j, lambda, tiny, y);
        for (const Integer row : {j - 1, j}) std::fill(X.row(row), X.row(row) + n, 0.0);
        for (Integer k = 0; k <= j; ++k)
            for (Integer i = 0; i < n; ++i) {
                X(j - 1, i) += y[k].real() * Z(k, i);
                X(j, i) += y[k].imag() * Z(k, i);
            }
        --j;
    }
}

} // namespace kor::linalg
