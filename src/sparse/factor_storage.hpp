// Where a factor goes: behind the matrix in the caller's arrays, which are enlarged if need be.
#pragma once

#include <cstddef>

#include <kor.h>

namespace kor::sparse {

enum class Factorised { done, no_memory, too_large };

struct Storage {
    double **value;
    Integer *length; // of each of the three arrays
    Integer **row, **column;

    // Room for `factor` elements behind the `nnz` of the matrix. The arrays grow in steps of 1 percent of nnz, at least 1, as
    // many as it takes. Unless all goes well nothing has changed.
    Factorised make_room(Integer nnz, std::size_t factor) const;
};

} // namespace kor::sparse
