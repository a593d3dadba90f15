// A list of elements in any order brought into coordinate storage: sorted by two distributions, first over the columns, then
// over the rows, each of which keeps the order of what it puts together.
#include "sparse/sort_elements.hpp"

#include <algorithm>
#include <numeric>

#include "frame/workspace.hpp"

namespace kor::sparse {

namespace {

struct Element {
    double value;
    Integer row, column;
};

// The places 0..count-1 in the order of their keys from 1 to n; those with equal keys in the order of `source`. Leaves in
// `end` where the elements of each key end.
template <class Key>
void distribute(Integer n, Integer count, const Integer source[], Key key, Integer target[], Integer end[])
{
    std::fill_n(end, n + 1, 0);
    for (Integer p = 0; p < count; ++p) ++end[key(p)];
    std::partial_sum(end, end + n + 1, end);
    for (Integer p = count - 1; p >= 0; --p) {
        const Integer q = source != nullptr ? source[p] : p;
        target[--end[key(q)]] = q;
    }
}

bool all_in_range(const Matrix &a, Triangle triangle)
{
    for (Integer p = 0; p < a.nnz; ++p) {
        if (a.row[p] < 1 || a.row[p] > a.n || a.column[p] < 1 || a.column[p] > a.n) return false;
        if (triangle == Triangle::lower && a.column[p] > a.row[p]) return false;
    }
    return true;
}

// Puts sorted elements together; their number, or the fault. Zeros go first, so that they do not count as repetitions; sums
// that come to zero go after.
Sorted tidy(Element sorted[], Integer &count, Zeros zeros, Repeats repeats)
{
    const auto without_zeros = [&] {
        if (zeros == Zeros::keep) return Sorted::done;
        const auto is_zero = [](const Element &e) { return e.value == 0.0; };
        Element *const end = std::remove_if(sorted, sorted + count, is_zero);
        if (zeros == Zeros::refuse && end != sorted + count) return Sorted::zero;
        count = static_cast<Integer>(end - sorted);
        return Sorted::done;
    };
    if (without_zeros() == Sorted::zero) return Sorted::zero;
    Integer kept = 0;
    for (Integer p = 0; p < count; ++p) {
        Element *const last = kept > 0 ? &sorted[kept - 1] : nullptr;
        if (last == nullptr || last->row != sorted[p].row || last->column != sorted[p].column)
            sorted[kept++] = sorted[p];
        else if (repeats == Repeats::refuse)
            return Sorted::repeated;
        else if (repeats == Repeats::add)
            last->value += sorted[p].value;
    }
    count = kept;
    return repeats == Repeats::add ? without_zeros() : Sorted::done;
}

void write_row_starts(const Matrix &a, Integer row_start[])
{
    find_row_starts(a, row_start);
    for (Integer i = 0; i <= a.n; ++i) ++row_start[i];
}

} // namespace

Sorted sort_elements(Integer n, Integer &nnz, double value[], Integer row[], Integer column[], Triangle triangle,
                     Zeros zeros, Repeats repeats, Integer row_start[])
{
    const Matrix given{n, nnz, value, row, column};
    if (!all_in_range(given, triangle)) return Sorted::out_of_range;
    const bool has_zeros = zeros != Zeros::keep && std::find(value, value + nnz, 0.0) != value + nnz;
    if (!has_zeros && is_sound(given, triangle)) {
        write_row_starts(given, row_start);
        return Sorted::done;
    }

    Workspace<Integer> by_column{Count{nnz}}, by_row{Count{nnz}}, ends{Count{n} + 1};
    Workspace<Element> sorted{Count{nnz}};
    if (!by_column || !by_row || !ends || !sorted) return Sorted::no_memory;
    distribute(
        n, nnz, nullptr, [&](Integer p) { return column[p]; }, by_column.data(), ends.data());
    distribute(
        n, nnz, by_column.data(), [&](Integer p) { return row[p]; }, by_row.data(), ends.data());
    for (Integer p = 0; p < nnz; ++p) sorted[p] = {value[by_row[p]], row[by_row[p]], column[by_row[p]]};

    Integer count = nnz;
    const Sorted outcome = tidy(sorted.data(), count, zeros, repeats);
    if (outcome != Sorted::done) return outcome;
    nnz = count;
    for (Integer p = 0; p < nnz; ++p) {
        value[p] = sorted[p].value;
        row[p] = sorted[p].row;
        column[p] = sorted[p].column;
    }
    write_row_starts({n, nnz, value, row, column}, row_start);
    return Sorted::done;
}

void sort_and_report(const Report &report, const SortChoices &choices, Triangle triangle, Integer n, Integer *nnz,
                     double a[], Integer irow[], Integer icol[], Integer dup, Integer zero, Integer istr[])
{
    if (n < 1) return report.error<NE_INT_ARG_LT>("n", "1", "n", n);
    if (*nnz < 1) return report.error<NE_INT_ARG_LT>("nnz", "1", "nnz", *nnz);
    if (dup != choices.keep_first && dup != choices.add && dup != Kor_SparseNsym_FailDups)
        return report.error<NE_BAD_PARAM>("dup");
    if (zero != choices.remove_zeros && zero != choices.keep_zeros && zero != Kor_SparseNsym_FailZeros)
        return report.error<NE_BAD_PARAM>("zero");

    const Repeats repeats = dup == choices.keep_first ? Repeats::keep_first
                            : dup == choices.add      ? Repeats::add
                                                      : Repeats::refuse;
    const Zeros zeros = zero == choices.remove_zeros ? Zeros::remove
                        : zero == choices.keep_zeros ? Zeros::keep
                                                     : Zeros::refuse;
    switch (sort_elements(n, *nnz, a, irow, icol, triangle, zeros, repeats, istr)) {
    case Sorted::done:
        return report.success();
    case Sorted::no_memory:
        return report.error<NE_ALLOC_FAIL>();
    case Sorted::out_of_range:
        return triangle == Triangle::both ? report.error<NE_NONSYMM_MATRIX>() : report.error<NE_SYMM_MATRIX>();
    case Sorted::zero:
        return report.error<NE_ZERO_COEFF>();
    case Sorted::repeated:
        return report.error<NE_NON_ZERO_DUP>();
    }
}

} // namespace kor::sparse
