// Room for a factor behind its matrix.
#include "sparse/factor_storage.hpp"

#include <algorithm>
#include <cstdint>
#include <limits>

#include "frame/workspace.hpp"

namespace kor::sparse {

namespace {

template <class T>
void replace(T *&array, Workspace<T> &longer, Integer count)
{
    std::copy_n(array, count, longer.data());
    void *block = array;
    x04bdc(&block);
    array = longer.release();
}

} // namespace

Factorised Storage::make_room(Integer nnz, std::size_t factor) const
{
    // Places in the arrays are counted by Integers.
    constexpr std::int64_t kLongest = std::numeric_limits<Integer>::max();
    if (factor > static_cast<std::size_t>(kLongest - nnz)) return Factorised::too_large;
    const std::int64_t wanted = nnz + static_cast<std::int64_t>(factor);
    if (wanted <= *length) return Factorised::done;

    const std::int64_t step = std::max<std::int64_t>(1, (static_cast<std::int64_t>(nnz) + 50) / 100);
    const std::int64_t steps = (wanted - *length + step - 1) / step;
    const std::int64_t longer = std::min(kLongest, *length + steps * step);
    Workspace<double> values{Count{longer}};
    Workspace<Integer> rows{Count{longer}}, columns{Count{longer}};
    if (!values || !rows || !columns) return Factorised::no_memory;
    replace(*value, values, nnz);
    replace(*row, rows, nnz);
    replace(*column, columns, nnz);
    *length = static_cast<Integer>(longer);
    return Factorised::done;
}

} // namespace kor::sparse
