// Incomplete Cholesky factorisation PAP' of about LDL', L with a unit diagonal.
//
// The matrix is taken as a graph: each live node knows its live neighbours, and an element off the diagonal is kept at both
// its ends. A stage takes a node out, divides its list by the pivot, which makes the list a column of L, and joins its
// neighbours to each other. Fill is judged when it first appears.
//
// J. A. Meijerink and H. A. van der Vorst, J. Comput. Phys. 44 (1981) 134-155; I. Gustafsson, BIT 18 (1978) 142-156;
// H. M. Markowitz, Management Sci. 3 (1957) 255-269; pivots are raised after D. S. Kershaw, J. Comput. Phys. 26 (1978) 43-65.
#include "sparse/incomplete_cholesky.hpp"

#include <algorithm>
#include <cmath>
#include <cstdint>

#include "frame/workspace.hpp"
#include "sparse/growing_array.hpp"

namespace kor::sparse {

namespace {

constexpr Integer kNone = -1;

struct Neighbour {
    double value;
    Integer node;
    Integer level;
};

bool is_safe_pivot(double pivot, double sum_beside)
{
    constexpr double kLeastShare = 0.01;
    return pivot > kLeastShare * sum_beside;
}

// The nodes of each number of neighbours, in linked lists.
class NodesByCount {
  public:
    bool allocate(Count n) { return first_.allocate(n) && next_.allocate(n) && previous_.allocate(n); }
    void clear()
    {
        std::fill(first_.begin(), first_.end(), kNone);
        fewest_ = 0;
    }
    void insert(Integer node, Integer count)
    {
        next_[node] = first_[count];
        previous_[node] = kNone;
        if (first_[count] != kNone) previous_[first_[count]] = node;
        first_[count] = node;
        fewest_ = std::min(fewest_, count);
    }
    void remove(Integer node, Integer count)
    {
        if (previous_[node] != kNone)
            next_[previous_[node]] = next_[node];
        else
            first_[count] = next_[node];
        if (next_[node] != kNone) previous_[next_[node]] = previous_[node];
    }
    Integer take_from_fewest()
    {
        while (first_[fewest_] == kNone) ++fewest_;
        const Integer node = first_[fewest_];
        remove(node, fewest_);
        return node;
    }

  private:
    Workspace<Integer> first_, next_, previous_;
    Integer fewest_ = 0;
};

class NodeElimination {
  public:
    NodeElimination(const Matrix &a, const CholeskyRules &rules) : a_{a}, rules_{rules} {}

    Factorised run(const Integer given_order[]);
    Factorised hand_over(const Storage &, CholeskyResult &);

  private:
    // A stretch of the store. Long lists have a table by which a node is found in them: without it the neighbours of a node
    // with very many would each search all of its list.
    struct List {
        std::size_t start;
        Integer count, room;
        std::size_t table;  // its start
        Integer table_size; // a power of 2; 0: there is none
        Integer table_used; // slots that are not kNeverUsed
    };

    bool allocate();
    bool build_graph();
    bool take_out(Integer node, Integer stage);
    double repaired_pivot(Integer node);
    bool append(Integer i, const Neighbour &);
    Neighbour &element(const List &list, Integer place) const
    {
        return store_[list.start + static_cast<std::size_t>(place)];
    }
    Integer &slot_of(const List &list, Integer node) const;
    bool make_table(List &);
    bool enter(List &, Integer place);
    void remove(List &, Integer node);
    bool is_to_be_dropped(Integer level, double value) const
    {
        return rules_.fill_level >= 0 ? level > rules_.fill_level : std::abs(value) < drop_threshold_;
    }
    bool picks_order() const { return rules_.pivoting == CholeskyPivoting::fewest_neighbours; }

    const Matrix a_;
    const CholeskyRules rules_;
    double drop_threshold_ = 0.0;
    Workspace<double> diagonal_; // of live nodes; the reciprocal of the pivot of others
    Workspace<List> lists_;      // neighbours of live nodes; a column of L for others
    GrowingArray<Neighbour> store_;
    GrowingArray<Integer> tables_; // of places in the lists
    Workspace<Integer> place_of_;  // of a neighbour in the list at work, or kNone
    Workspace<double> multiplier_; // of the neighbours of the node that is taken out
    NodesByCount by_count_;
    Workspace<Integer> order_, stage_of_;
    Integer modified_pivots_ = 0;
};

bool NodeElimination::allocate()
{
    const Count n{a_.n};
    return diagonal_.allocate(n) && lists_.allocate(n) && place_of_.allocate(n) && multiplier_.allocate(n) &&
           order_.allocate(n) && stage_of_.allocate(n) && (!picks_order() || by_count_.allocate(n));
}

bool NodeElimination::build_graph()
{
    std::fill(diagonal_.begin(), diagonal_.end(), 0.0);
    std::fill(lists_.begin(), lists_.end(), List{});
    std::fill(place_of_.begin(), place_of_.end(), kNone);
    double greatest = 0.0;
    for (Integer p = 0; p < a_.nnz; ++p) {
        greatest = std::max(greatest, std::abs(a_.value[p]));
        if (a_.row[p] == a_.column[p]) continue;
        ++lists_[a_.row[p] - 1].room;
        ++lists_[a_.column[p] - 1].room;
    }
    drop_threshold_ = rules_.drop_tolerance * greatest;
    std::size_t total = 0;
    for (List &list : lists_) {
        list.start = total;
        total += static_cast<std::size_t>(list.room);
    }
    if (!store_.reserve(total)) return false;
    store_.resize(total);
    for (Integer p = 0; p < a_.nnz; ++p) {
        const Integer i = a_.row[p] - 1, j = a_.column[p] - 1;
        if (i == j) {
            diagonal_[i] = a_.value[p] * (1.0 + rules_.diagonal_scale);
            continue;
        }
        element(lists_[i], lists_[i].count++) = {a_.value[p], j, 0};
        element(lists_[j], lists_[j].count++) = {a_.value[p], i, 0};
    }
    return true;
}

constexpr Integer kNeverUsed = -1, kNoLonger = -2; // slots of a table without a place
constexpr Integer kLong = 64;                      // elements of a list that is worth a table

// Where a node is entered in the table of its list, or the slot where it would be.
Integer &NodeElimination::slot_of(const List &list, Integer node) const
{
    const auto mask = static_cast<std::uint32_t>(list.table_size - 1);
    Integer *const table = tables_.data() + list.table;
    for (std::uint32_t at = (static_cast<std::uint32_t>(node) * 0x9e3779b9u >> 7) & mask;; at = (at + 1) & mask) {
        Integer &slot = table[at];
        if (slot == kNeverUsed || (slot >= 0 && element(list, slot).node == node)) return slot;
    }
}

// A new table for all of a list, a quarter full.
bool NodeElimination::make_table(List &list)
{
    constexpr Integer kMostEntered = 1 << 28; // so that the size of a table is an Integer
    if (list.count > kMostEntered) return false;
    Integer size = 4 * kLong;
    while (size / 4 < list.count) size *= 2;
    if (size != list.table_size) {
        list.table = tables_.size();
        list.table_size = size;
        if (!tables_.reserve(list.table + static_cast<std::size_t>(size))) return false;
        tables_.resize(list.table + static_cast<std::size_t>(size));
    }
    std::fill_n(tables_.data() + list.table, size, kNeverUsed);
    list.table_used = list.count;
    for (Integer place = 0; place < list.count; ++place) slot_of(list, element(list, place).node) = place;
    return true;
}

// Enters the last element of a list with a table.
bool NodeElimination::enter(List &list, Integer place)
{
    if (2 * list.table_used >= list.table_size) return make_table(list);
    slot_of(list, element(list, place).node) = place;
    ++list.table_used;
    return true;
}

// Takes a node out of a list with a table; the last element takes its place.
void NodeElimination::remove(List &list, Integer node)
{
    Integer &slot = slot_of(list, node);
    const Integer place = slot, last = list.count - 1;
    if (place != last) slot_of(list, element(list, last).node) = place;
    slot = kNoLonger;
    element(list, place) = element(list, last);
    --list.count;
}

// A list that is full moves to the end of the store, into twice the room, at most that for all nodes.
bool NodeElimination::append(Integer i, const Neighbour &neighbour)
{
    List &list = lists_[i];
    if (list.count == list.room) {
        const auto room = static_cast<Integer>(std::min<std::int64_t>(a_.n, 2 * std::int64_t{list.room} + 2));
        const std::size_t start = store_.size();
        if (!store_.reserve(start + static_cast<std::size_t>(room))) return false;
        store_.resize(start + static_cast<std::size_t>(room));
        std::copy_n(store_.data() + list.start, list.count, store_.data() + start);
        list.start = start;
        list.room = room;
    }
    element(list, list.count++) = neighbour;
    return list.table_size == 0 || enter(list, list.count - 1);
}

// A pivot that is not safely positive makes way for the sum of moduli beside it.
double NodeElimination::repaired_pivot(Integer node)
{
    const List &list = lists_[node];
    double sum = 0.0;
    for (Integer s = 0; s < list.count; ++s) sum += std::abs(element(list, s).value);
    const double pivot = diagonal_[node];
    if (is_safe_pivot(pivot, sum)) return pivot;
    ++modified_pivots_;
    return sum > 0.0 ? sum : 1.0;
}

// Takes out a node and corrects what its neighbours have with themselves and with each other.
bool NodeElimination::take_out(Integer node, Integer stage)
{
    order_[stage] = node;
    stage_of_[node] = stage;
    const double pivot = repaired_pivot(node);
    diagonal_[node] = 1.0 / pivot;
    const std::size_t start = lists_[node].start;
    const Integer count = lists_[node].count;
    for (Integer s = 0; s < count; ++s) multiplier_[s] = store_[start + static_cast<std::size_t>(s)].value / pivot;

    for (Integer s = 0; s < count; ++s) {
        // By value: the store may move.
        const Neighbour parent = store_[start + static_cast<std::size_t>(s)];
        const Integer i = parent.node;
        diagonal_[i] -= multiplier_[s] * parent.value;

        // Take the node out of the list of i, and note where its other neighbours are.
        List &list = lists_[i];
        const Integer old_count = list.count;
        const bool has_table = list.table_size > 0;
        if (has_table) {
            remove(list, node);
        } else {
            for (Integer t = 0; t < list.count; ++t) {
                if (element(list, t).node == node) element(list, t) = element(list, --list.count);
                if (t < list.count) place_of_[element(list, t).node] = t;
            }
        }
        for (Integer t = 0; t < count; ++t) {
            if (t == s) continue;
            const Neighbour other = store_[start + static_cast<std::size_t>(t)];
            // The same product at both ends of the element, to the last bit.
            const double change = i < other.node ? multiplier_[s] * other.value : multiplier_[t] * parent.value;
            const Integer level = std::max(parent.level, other.level) + 1;
            const Integer place = has_table ? slot_of(list, other.node) : place_of_[other.node];
            if (place >= 0) {
                Neighbour &target = element(list, place);
                target.value -= change;
                target.level = std::min(target.level, level);
            } else if (is_to_be_dropped(level, change)) {
                if (rules_.modified) diagonal_[i] -= change;
            } else if (!append(i, {-change, other.node, level})) {
                return false;
            }
        }
        if (!has_table) {
            for (Integer t = 0; t < list.count; ++t) place_of_[element(list, t).node] = kNone;
            if (list.count > kLong && !make_table(list)) return false;
        }
        if (picks_order()) {
            by_count_.remove(i, old_count);
            by_count_.insert(i, list.count);
        }
    }
    for (Integer s = 0; s < count; ++s) store_[start + static_cast<std::size_t>(s)].value = multiplier_[s];
    return true;
}

Factorised NodeElimination::run(const Integer given_order[])
{
    if (!allocate() || !build_graph()) return Factorised::no_memory;
    if (picks_order()) {
        by_count_.clear();
        // Backwards, so that among equals the first comes first.
        for (Integer i = a_.n - 1; i >= 0; --i) by_count_.insert(i, lists_[i].count);
    }
    for (Integer stage = 0; stage < a_.n; ++stage) {
        const Integer node = picks_order()                                ? by_count_.take_from_fewest()
                             : rules_.pivoting == CholeskyPivoting::given ? given_order[stage] - 1
                                                                          : stage;
        if (!take_out(node, stage)) return Factorised::no_memory;
    }
    return Factorised::done;
}

// Turns the columns of L into rows, with the reciprocal pivot at the end of each.
Factorised NodeElimination::hand_over(const Storage &storage, CholeskyResult &result)
{
    std::size_t elements = static_cast<std::size_t>(a_.n);
    for (const List &list : lists_) elements += static_cast<std::size_t>(list.count);
    const Factorised room = storage.make_room(a_.nnz, elements);
    if (room != Factorised::done) return room;

    // Where the next element of each row goes: first the lengths, then the starts.
    Workspace<Integer> &place = place_of_;
    std::fill(place.begin(), place.end(), 1);
    for (const List &list : lists_)
        for (Integer s = 0; s < list.count; ++s) ++place[stage_of_[element(list, s).node]];
    Integer next = a_.nnz;
    for (Integer k = 0; k < a_.n; ++k) {
        result.row_start[k] = next + 1;
        next += place[k];
        place[k] = result.row_start[k] - 1;
    }
    result.row_start[a_.n] = next + 1;

    const auto put = [&](Integer row, Integer column, double value) {
        const Integer p = place[row]++;
        (*storage.value)[p] = value;
        (*storage.row)[p] = row + 1;
        (*storage.column)[p] = column + 1;
    };
    for (Integer k = 0; k < a_.n; ++k) {
        const List &list = lists_[order_[k]];
        put(k, k, diagonal_[order_[k]]); // all that is left of it has been put
        for (Integer s = 0; s < list.count; ++s) {
            const Neighbour &neighbour = element(list, s);
            put(stage_of_[neighbour.node], k, neighbour.value);
        }
        result.order[k] = order_[k] + 1;
    }
    result.elements = static_cast<Integer>(elements);
    result.modified_pivots = modified_pivots_;
    return Factorised::done;
}

// Without fill, in the order of A, the factor has the pattern of A, and is computed row by row where it is to lie: the arrays
// have room for it from the start. Gives what the elimination above would give, or false, for that to take over, if a pivot
// is missing or would have to be raised: what stands beside a pivot is known only later, so all are judged at the end.
class InPlaceElimination {
  public:
    InPlaceElimination(const Matrix &a, const Storage &storage)
        : n_{a.n}, nnz_{a.nnz}, value_{*storage.value + a.nnz}, row_{*storage.row + a.nnz}, column_{*storage.column +
                                                                                                    a.nnz}
    {
    }

    bool allocate()
    {
        return start_.allocate(Count{n_} + 1) && place_.allocate(n_) && pivot_.allocate(n_) && beside_.allocate(n_);
    }
    bool run(const Matrix &a, double diagonal_scale);
    void hand_over(CholeskyResult &result) const;

  private:
    const Integer n_, nnz_;
    double *const value_;
    Integer *const row_, *const column_;
    Workspace<Integer> start_;
    Workspace<Integer>
        place_; // in the row at work, of each column; before its start for a column that it does not have
    Workspace<double> pivot_, beside_;
};

bool InPlaceElimination::run(const Matrix &a, double diagonal_scale)
{
    find_row_starts(a, start_.data());
    std::fill(place_.begin(), place_.end(), -1);
    std::fill(beside_.begin(), beside_.end(), 0.0);
    for (Integer i = 0; i < n_; ++i) {
        const Integer begin = start_[i], last = start_[i + 1] - 1;
        if (last < begin || a.column[last] != i + 1) return false;
        double pivot = a.value[last] * (1.0 + diagonal_scale);
        for (Integer p = begin; p < last; ++p) {
            const Integer j = a.column[p] - 1;
            double sum = a.value[p];
            for (Integer q = start_[j]; q < start_[j + 1] - 1; ++q) {
                const Integer k = place_[a.column[q] - 1];
                if (k >= begin) sum -= value_[q] * value_[k];
            }
            value_[p] = sum; // times the pivot of its column, until the row is done
            place_[j] = p;
        }
        for (Integer p = begin; p < last; ++p) {
            const Integer j = a.column[p] - 1;
            const double multiplier = value_[p] / pivot_[j];
            pivot -= multiplier * value_[p];
            beside_[j] += std::abs(value_[p]);
            value_[p] = multiplier;
        }
        pivot_[i] = pivot;
        value_[last] = 1.0 / pivot;
    }
    for (Integer i = 0; i < n_; ++i)
        if (!is_safe_pivot(pivot_[i], beside_[i])) return false;
    std::copy_n(a.row, nnz_, row_);
    std::copy_n(a.column, nnz_, column_);
    return true;
}

void InPlaceElimination::hand_over(CholeskyResult &result) const
{
    for (Integer i = 0; i < n_; ++i) {
        result.row_start[i] = nnz_ + start_[i] + 1;
        result.order[i] = i + 1;
    }
    result.row_start[n_] = 2 * nnz_ + 1;
    result.elements = nnz_;
    result.modified_pivots = 0;
}

} // namespace

Factorised factorise_cholesky(const Matrix &a, const CholeskyRules &rules, const Storage &storage,
                              CholeskyResult &result)
{
    if (rules.pivoting == CholeskyPivoting::none && rules.fill_level == 0 && !rules.modified) {
        InPlaceElimination in_place{a, storage};
        if (!in_place.allocate()) return Factorised::no_memory;
        if (in_place.run(a, rules.diagonal_scale)) {
            in_place.hand_over(result);
            return Factorised::done;
        }
    }
    NodeElimination elimination{a, rules};
    const Factorised outcome = elimination.run(result.order);
    return outcome == Factorised::done ? elimination.hand_over(storage, result) : outcome;
}

} // namespace kor::sparse
