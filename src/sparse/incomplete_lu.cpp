// Incomplete LU factorisation, row by row.
//
// Stage k takes a row of A, eliminates from it the columns of the earlier pivots, and picks its own pivot from what is left:
// with P and Q the orders of rows and columns, PAQ is about LU, L with a unit diagonal. The row lives in an array of cells, one
// for each column of A. Fill is judged when nothing more can be added to it: left of the pivot when its turn to be eliminated
// comes, right of it at the end of the row.
//
// J. A. Meijerink and H. A. van der Vorst, J. Comput. Phys. 44 (1981) 134-155 (levels of fill); I. Gustafsson, BIT 18 (1978)
// 142-156 (modified factors); Y. Saad, Numer. Linear Algebra Appl. 1 (1994) 387-402 (working row, drop tolerance).
#include "sparse/incomplete_lu.hpp"

#include <algorithm>
#include <cmath>
#include <functional>
#include <limits>
#include <numeric>

#include "frame/constants.hpp"
#include "frame/workspace.hpp"
#include "sparse/growing_array.hpp"

namespace kor::sparse {

namespace {

constexpr Integer kAbsent = -1;
constexpr Integer kNotYet = std::numeric_limits<Integer>::max(); // a stage after all others

// An element of the factor while it is built: in L the column is the stage of its pivot, in U a column of A.
struct Element {
    double value;
    Integer column;
    Integer level;
};

double greatest_modulus(const Matrix &a)
{
    double greatest = 0.0;
    for (Integer p = 0; p < a.nnz; ++p) greatest = std::max(greatest, std::abs(a.value[p]));
    return greatest;
}

// An absolute bound, for matrices of usual size: one whose elements are all tiny loses every pivot. Callers rely on where it
// lies.
double pivot_threshold(double greatest)
{
    constexpr double kUsualSize = 10.0;
    return std::max(kUsualSize, greatest) * kPrecision;
}

class RowElimination {
  public:
    RowElimination(const Matrix &a, const LuRules &rules) : a_{a}, rules_{rules} {}

    Factorised run(const LuResult &orders);
    Factorised hand_over(const Storage &, LuResult &);

  private:
    struct Cell {
        double value;
        Integer level; // kAbsent: the row has nothing in this column
    };

    bool allocate();
    void set_thresholds();
    void set_orders(const LuResult &);
    void order_rows_by_count();

    bool factor_row();
    bool build_row(bool dropping);
    bool eliminate(Integer earlier, bool dropping);
    void settle_fill();
    Integer choose_pivot() const;
    Integer column_for_empty_row();
    bool store_row(Integer pivot_column, double pivot);
    void clear_row();

    bool belongs_to_l(Integer column) const { return stage_of_column_[column] < stage_; }
    bool chooses_columns() const
    {
        return rules_.pivoting == LuPivoting::partial || rules_.pivoting == LuPivoting::complete;
    }
    bool is_to_be_dropped(const Cell &cell) const
    {
        if (cell.level == 0) return false;
        return rules_.fill_level >= 0 ? cell.level > rules_.fill_level : std::abs(cell.value) < drop_threshold_;
    }
    void drop(Cell &cell)
    {
        dropped_sum_ += cell.value;
        has_dropped_ = true;
        cell.level = kAbsent;
    }

    const Matrix a_;
    const LuRules rules_;
    double drop_threshold_ = 0.0, pivot_threshold_ = 0.0;

    Workspace<Integer> a_start_; // rows of A
    Workspace<Integer> row_of_stage_, column_of_stage_, stage_of_column_;
    Integer first_unused_ = 0;     // columns before it have been pivots
    Workspace<double> reciprocal_; // of the pivot of each stage
    Integer stage_ = 0;            // at work

    Workspace<Cell> cells_;      // the row at work
    Workspace<Integer> columns_; // its columns, in no order
    Integer column_count_ = 0;
    Workspace<Integer> pending_; // stages yet to be eliminated from it: a heap, the earliest first
    Integer pending_count_ = 0;
    double dropped_sum_ = 0.0;
    bool has_dropped_ = false;

    GrowingArray<Element> factor_; // row by row, L then U, without the diagonal
    Workspace<std::size_t> l_start_, u_start_;
    Integer modified_pivots_ = 0;
    bool has_redone_row_ = false;
};

bool RowElimination::allocate()
{
    const Count n{a_.n};
    return a_start_.allocate(n + 1) && row_of_stage_.allocate(n) && column_of_stage_.allocate(n) &&
           stage_of_column_.allocate(n) && reciprocal_.allocate(n) && cells_.allocate(n) && columns_.allocate(n + 1) &&
           pending_.allocate(n) && l_start_.allocate(n + 1) && u_start_.allocate(n) &&
           factor_.reserve(static_cast<std::size_t>(a_.nnz));
}

void RowElimination::set_thresholds()
{
    const double greatest = greatest_modulus(a_);
    drop_threshold_ = rules_.drop_tolerance * greatest;
    pivot_threshold_ = pivot_threshold(greatest);
}

// Rows with few elements first; rows with equally many keep their order.
void RowElimination::order_rows_by_count()
{
    const auto count_of = [&](Integer row) { return a_start_[row + 1] - a_start_[row]; };
    Workspace<Integer> &place = columns_; // n + 1 elements, not in use yet: where the next row with a given count goes
    std::fill(place.begin(), place.end(), 0);
    for (Integer row = 0; row < a_.n; ++row) ++place[count_of(row)];
    std::exclusive_scan(place.begin(), place.end(), place.begin(), 0);
    for (Integer row = 0; row < a_.n; ++row) row_of_stage_[place[count_of(row)]++] = row;
}

void RowElimination::set_orders(const LuResult &orders)
{
    std::iota(row_of_stage_.begin(), row_of_stage_.end(), 0);
    std::iota(column_of_stage_.begin(), column_of_stage_.end(), 0);
    if (rules_.pivoting == LuPivoting::complete) order_rows_by_count();
    if (rules_.pivoting == LuPivoting::given)
        for (Integer k = 0; k < a_.n; ++k) {
            row_of_stage_[k] = orders.row_order[k] - 1;
            column_of_stage_[k] = orders.column_order[k] - 1;
        }
    std::fill(stage_of_column_.begin(), stage_of_column_.end(), kNotYet);
    if (!chooses_columns())
        for (Integer k = 0; k < a_.n; ++k) stage_of_column_[column_of_stage_[k]] = k;
}

// Subtracts from the row that multiple of an earlier row of U which clears the column of its pivot.
bool RowElimination::eliminate(Integer earlier, bool dropping)
{
    Cell &target = cells_[column_of_stage_[earlier]];
    if (dropping && is_to_be_dropped(target)) {
        drop(target);
        return true;
    }
    const double multiplier = target.value * reciprocal_[earlier];
    const Integer multiplier_level = target.level;
    if (!factor_.append({multiplier, earlier, multiplier_level})) return false;

    const bool admits_fill = !dropping || rules_.fill_level != 0;
    for (std::size_t p = u_start_[earlier]; p < l_start_[earlier + 1]; ++p) {
        const Element &u = factor_[p];
        Cell &cell = cells_[u.column];
        const double change = multiplier * u.value;
        if (cell.level == kAbsent && !admits_fill) {
            dropped_sum_ -= change;
            has_dropped_ = true;
            continue;
        }
        // Fill is one level above the higher of its two parents; with several pairs of parents, the lowest counts.
        const Integer level = std::max(multiplier_level, u.level) + 1;
        if (cell.level != kAbsent) {
            cell.value -= change;
            cell.level = std::min(cell.level, level);
            continue;
        }
        cell = {-change, level};
        columns_[column_count_++] = u.column;
        if (!belongs_to_l(u.column)) continue;
        pending_[pending_count_++] = stage_of_column_[u.column];
        std::push_heap(pending_.data(), pending_.data() + pending_count_, std::greater<>{});
    }
    return true;
}

// Judges the fill right of the pivot.
void RowElimination::settle_fill()
{
    for (Integer c = 0; c < column_count_; ++c) {
        Cell &cell = cells_[columns_[c]];
        if (cell.level != kAbsent && !belongs_to_l(columns_[c]) && is_to_be_dropped(cell)) drop(cell);
    }
}

bool RowElimination::build_row(bool dropping)
{
    factor_.resize(l_start_[stage_]);
    dropped_sum_ = 0.0;
    has_dropped_ = false;
    const Integer row = row_of_stage_[stage_];
    for (Integer p = a_start_[row]; p < a_start_[row + 1]; ++p) {
        const Integer column = a_.column[p] - 1;
        cells_[column] = {a_.value[p], 0};
        columns_[column_count_++] = column;
        if (belongs_to_l(column)) pending_[pending_count_++] = stage_of_column_[column];
    }
    std::make_heap(pending_.data(), pending_.data() + pending_count_, std::greater<>{});
    while (pending_count_ > 0) {
        std::pop_heap(pending_.data(), pending_.data() + pending_count_, std::greater<>{});
        if (!eliminate(pending_[--pending_count_], dropping)) return false;
    }
    if (dropping && rules_.fill_level != 0) settle_fill();
    return true;
}

// The column of the pivot, or n if the row has no element where one may be.
Integer RowElimination::choose_pivot() const
{
    if (!chooses_columns()) {
        const Integer column = column_of_stage_[stage_];
        return cells_[column].level != kAbsent ? column : a_.n;
    }
    Integer best = a_.n;
    for (Integer c = 0; c < column_count_; ++c) {
        const Integer column = columns_[c];
        if (cells_[column].level == kAbsent || belongs_to_l(column)) continue;
        const double size = std::abs(cells_[column].value),
                     best_size = best < a_.n ? std::abs(cells_[best].value) : -1.0;
        if (size > best_size || (size == best_size && column < best)) best = column;
    }
    return best;
}

// Its own, if that is not taken: then other rows lose the least.
Integer RowElimination::column_for_empty_row()
{
    if (!chooses_columns()) return column_of_stage_[stage_];
    const Integer own = row_of_stage_[stage_];
    if (stage_of_column_[own] == kNotYet) return own;
    while (stage_of_column_[first_unused_] != kNotYet) ++first_unused_;
    return first_unused_;
}

bool RowElimination::store_row(Integer pivot_column, double pivot)
{
    if (!factor_.reserve(factor_.size() + static_cast<std::size_t>(column_count_))) return false;
    u_start_[stage_] = factor_.size();
    for (Integer c = 0; c < column_count_; ++c) {
        const Integer column = columns_[c];
        const Cell &cell = cells_[column];
        if (cell.level != kAbsent && column != pivot_column && !belongs_to_l(column))
            factor_.append({cell.value, column, cell.level});
    }
    l_start_[stage_ + 1] = factor_.size();
    reciprocal_[stage_] = 1.0 / pivot;
    column_of_stage_[stage_] = pivot_column;
    stage_of_column_[pivot_column] = stage_;
    return true;
}

void RowElimination::clear_row()
{
    for (Integer c = 0; c < column_count_; ++c) cells_[columns_[c]].level = kAbsent;
    column_count_ = 0;
}

bool RowElimination::factor_row()
{
    const bool dropping = rules_.fill_level >= 0 || drop_threshold_ > 0.0;
    if (!build_row(dropping)) return false;
    Integer column = choose_pivot();
    const auto pivot_value = [&] {
        const double value = column < a_.n ? cells_[column].value : 0.0;
        return rules_.modified ? value + dropped_sum_ : value;
    };
    double pivot = pivot_value();
    const auto is_too_small = [&] { return column == a_.n || std::abs(pivot) < pivot_threshold_; };
    if (is_too_small() && has_dropped_) {
        clear_row();
        if (!build_row(false)) return false;
        has_redone_row_ = true;
        column = choose_pivot();
        pivot = pivot_value();
    }
    if (is_too_small()) {
        pivot = rules_.modified ? 1.0 + dropped_sum_ : 1.0;
        ++modified_pivots_;
        if (column == a_.n) column = column_for_empty_row();
    }
    const bool stored = store_row(column, pivot);
    clear_row();
    return stored;
}

Factorised RowElimination::run(const LuResult &orders)
{
    if (!allocate()) return Factorised::no_memory;
    find_row_starts(a_, a_start_.data());
    set_thresholds();
    set_orders(orders);
    std::fill(cells_.begin(), cells_.end(), Cell{0.0, kAbsent});
    l_start_[0] = 0;
    for (stage_ = 0; stage_ < a_.n; ++stage_)
        if (!factor_row()) return Factorised::no_memory;
    return Factorised::done;
}

// Writes the factor behind the matrix, in the order of the elimination, each row by increasing column.
Factorised RowElimination::hand_over(const Storage &storage, LuResult &result)
{
    const auto n = static_cast<std::size_t>(a_.n);
    const Factorised room = storage.make_room(a_.nnz, factor_.size() + n);
    if (room != Factorised::done) return room;

    Integer place = a_.nnz;
    const auto put = [&](Integer stage, Integer column, double value) {
        (*storage.value)[place] = value;
        (*storage.row)[place] = stage + 1;
        (*storage.column)[place] = column + 1;
        ++place;
    };
    for (Integer k = 0; k < a_.n; ++k) {
        result.row_start[k] = place + 1;
        for (std::size_t p = l_start_[k]; p < u_start_[k]; ++p) put(k, factor_[p].column, factor_[p].value);
        result.diagonal[k] = place + 1;
        put(k, k, reciprocal_[k]);
        Element *const u = factor_.data() + u_start_[k], *const end = factor_.data() + l_start_[k + 1];
        for (Element *e = u; e < end; ++e) e->column = stage_of_column_[e->column];
        std::sort(u, end, [](const Element &x, const Element &y) { return x.column < y.column; });
        for (const Element *e = u; e < end; ++e) put(k, e->column, e->value);
        result.row_order[k] = row_of_stage_[k] + 1;
        result.column_order[k] = column_of_stage_[k] + 1;
    }
    result.row_start[a_.n] = place + 1;
    result.elements = place - a_.nnz;
    result.modified_pivots = modified_pivots_;
    constexpr Integer kRowRedone = -1;
    if (rules_.pivoting == LuPivoting::complete && has_redone_row_ && modified_pivots_ == 0)
        result.modified_pivots = kRowRedone;
    return Factorised::done;
}

// Without fill and with the pivots on the diagonal the factor has the pattern of A, and is computed where it is to lie: the
// arrays have room for it from the start. False, for the elimination above to take over, if a pivot is missing or too small.
class InPlaceElimination {
  public:
    InPlaceElimination(const Matrix &a, const Storage &storage)
        : n_{a.n}, nnz_{a.nnz}, value_{*storage.value + a.nnz}, row_{*storage.row + a.nnz}, column_{*storage.column +
                                                                                                    a.nnz}
    {
    }

    bool allocate() { return start_.allocate(Count{n_} + 1) && diagonal_.allocate(n_) && place_.allocate(n_); }
    bool run(const Matrix &a, bool modified);
    void hand_over(LuResult &result) const;

  private:
    const Integer n_, nnz_;
    double *const value_;
    Integer *const row_, *const column_;
    Workspace<Integer> start_, diagonal_;
    Workspace<Integer>
        place_; // in the row at work, of each column; before its start for a column that it does not have
};

bool InPlaceElimination::run(const Matrix &a, bool modified)
{
    constexpr Integer kMuchLonger = 16; // pays for the search
    find_row_starts(a, start_.data());
    std::fill(place_.begin(), place_.end(), -1);
    const double least_pivot = pivot_threshold(greatest_modulus(a));
    for (Integer i = 0; i < n_; ++i) {
        const Integer begin = start_[i], end = start_[i + 1];
        for (Integer p = begin; p < end; ++p) {
            value_[p] = a.value[p];
            place_[a.column[p] - 1] = p;
        }
        double dropped = 0.0;
        Integer p = begin;
        for (; p < end && a.column[p] <= i; ++p) {
            const Integer j = a.column[p] - 1, j_end = start_[j + 1];
            const double multiplier = value_[p] * value_[diagonal_[j]];
            value_[p] = multiplier;
            // A short row looks itself up in a long one, unless it must know what it drops.
            if (!modified && kMuchLonger * (end - p) < j_end - diagonal_[j]) {
                for (Integer target = p + 1; target < end; ++target) {
                    const Integer *const found =
                        std::lower_bound(a.column + diagonal_[j] + 1, a.column + j_end, a.column[target]);
                    if (found < a.column + j_end && *found == a.column[target])
                        value_[target] -= multiplier * value_[found - a.column];
                }
                continue;
            }
            for (Integer q = diagonal_[j] + 1; q < j_end; ++q) {
                const double change = multiplier * value_[q];
                const Integer target = place_[a.column[q] - 1];
                if (target >= begin)
                    value_[target] -= change;
                else
                    dropped -= change;
            }
        }
        if (p == end || a.column[p] != i + 1) return false;
        const double pivot = modified ? value_[p] + dropped : value_[p];
        if (!(std::abs(pivot) >= least_pivot)) return false;
        diagonal_[i] = p;
        value_[p] = 1.0 / pivot;
    }
    std::copy_n(a.row, nnz_, row_);
    std::copy_n(a.column, nnz_, column_);
    return true;
}

void InPlaceElimination::hand_over(LuResult &result) const
{
    for (Integer i = 0; i < n_; ++i) {
        result.row_start[i] = nnz_ + start_[i] + 1;
        result.diagonal[i] = nnz_ + diagonal_[i] + 1;
        result.row_order[i] = result.column_order[i] = i + 1;
    }
    result.row_start[n_] = 2 * nnz_ + 1;
    result.elements = nnz_;
    result.modified_pivots = 0;
}

} // namespace

Factorised factorise_lu(const Matrix &a, const LuRules &rules, const Storage &storage, LuResult &result)
{
    if (rules.pivoting == LuPivoting::none && rules.fill_level == 0) {
        InPlaceElimination in_place{a, storage};
        if (!in_place.allocate()) return Factorised::no_memory;
        if (in_place.run(a, rules.modified)) {
            in_place.hand_over(result);
            return Factorised::done;
        }
    }
    RowElimination elimination{a, rules};
    const Factorised outcome = elimination.run(result);
    return outcome == Factorised::done ? elimination.hand_over(storage, result) : outcome;
}

} // namespace kor::sparse
