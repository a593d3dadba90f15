// x04fam: the records that a table of names points to have moved.
#include "frame/name_cells.hpp"

namespace kor {

void x04fam(KorNameTable *table, std::intptr_t old_base, std::intptr_t new_base, std::intptr_t offset)
{
    for (Integer i = 0; i < table->nbuckets; ++i)
        // A chain may hold names behind an empty head.
        for (KorNameCell *cell = &table->buckets[i]; cell != nullptr; cell = cell->next) {
            if (is_empty(*cell)) continue;
            cell->value = cell->value - old_base + new_base;
            cell->name = reinterpret_cast<const char *>(cell->value + offset);
        }
}

} // namespace kor
