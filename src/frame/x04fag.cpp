// x04fag: makes a table of names.
#include <limits>

#include "frame/name_cells.hpp"
#include "frame/workspace.hpp"

namespace kor {

namespace {

bool is_prime(std::int64_t odd)
{
    for (std::int64_t d = 3; d * d <= odd; d += 2)
        if (odd % d == 0) return false;
    return true;
}

// A prime that keeps the chains short for n names: the smallest from 4n/3 up, and never less than 29.
std::int64_t find_prime(Integer n)
{
    constexpr std::int64_t least = 29;
    std::int64_t candidate = 4 * static_cast<std::int64_t>(n) / 3;
    if (candidate <= least) return least;
    candidate |= 1;
    while (!is_prime(candidate)) candidate += 2;
    return candidate;
}

} // namespace

Integer x04fag(KorNameTable *table, Integer expected)
{
    *table = {};
    const std::int64_t size = find_prime(expected);
    if (size > std::numeric_limits<Integer>::max()) return kTableNoMemory;

    Workspace<KorNameCell> buckets{Count{size}};
    Workspace<KorNameCell> pool{Count{size}};
    Workspace<KorNameCell *> blocks{Count{kBlocksStep}};
    const bool complete = buckets && pool && blocks;

    table->nbuckets = table->block_size = static_cast<Integer>(size);
    if (buckets) make_empty(buckets.data(), table->nbuckets);
    if (pool) {
        make_empty(pool.data(), table->block_size);
        table->capacity = table->block_size;
    }
    if (blocks) table->blocks_capacity = kBlocksStep;
    table->buckets = buckets.release();
    table->pool = table->free_cell = pool.release();
    table->blocks = blocks.release();
    return complete ? kTableGood : kTableNoMemory;
}

} // namespace kor
