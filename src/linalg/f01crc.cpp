// f01crc: transposition of a rectangular matrix in its place.
//
// B. Catanzaro, A. Keller and M. Garland, A decomposition for in-place matrix transposition, Proc. PPoPP (2014) 193-206:
// columns are rotated, rows permuted, columns permuted, each of them by itself, so that one row or a few columns are all
// the memory that is needed beside the matrix.
#include <kor/f01.h>

#include <algorithm>
#include <numeric>

#include "frame/report.hpp"
#include "frame/workspace.hpp"
#include "linalg/dense_arguments.hpp"
#include "linalg/transpose.hpp"

namespace {

constexpr Integer kColumns = 8; // columns that are moved together: a line of the cache

// The three stages, for m rows of n elements.
struct Stages {
    std::int64_t m, n, common = std::gcd(m, n), period = n / common;
    double *a, *row;

    // Row i of the columns [first, last) is taken from the row that source(i, column) tells.
    template <class Source>
    void permute_columns(Source source) const
    {
        for (std::int64_t first = 0; first < n; first += kColumns) {
            const std::int64_t last = std::min(first + kColumns, n);
            double *to = row;
            for (std::int64_t i = 0; i < m; ++i)
                for (std::int64_t j = first; j < last; ++j) *to++ = a[source(i, j) * n + j];
            const double *from = row;
            for (std::int64_t i = 0; i < m; ++i, from += last - first)
                std::copy(from, from + (last - first), a + i * n + first);
        }
    }

    void run() const
    {
        if (common > 1) permute_columns([this](std::int64_t i, std::int64_t j) { return (i + j / period) % m; });
        for (std::int64_t i = 0; i < m; ++i) {
            for (std::int64_t j = 0; j < n; ++j) row[((i + j / period) % m + j * m) % n] = a[i * n + j];
            std::copy(row, row + n, a + i * n);
        }
        permute_columns([this](std::int64_t i, std::int64_t j) { return (j + i * n - i / (m / common)) % m; });
    }
};

} // namespace

void f01crc(Integer m, Integer n, double a[], KorError *fail)
{
    using namespace kor::linalg;
    const kor::Report report{"f01crc", fail};
    if (negative(report, "m", m) || negative(report, "n", n)) return;
    if (m == n) {
        transpose_in_place<false>(n, a, n);
        return report.success();
    }
    if (m <= 1 || n <= 1) return report.success(); // a single row is a single column already
    const kor::Workspace<double> row{kor::Count{std::max(m, n)} * Integer{kColumns}};
    if (no_memory(report, bool{row})) return;

    Stages{.m = m, .n = n, .a = a, .row = row.data()}.run();
    report.success();
}
