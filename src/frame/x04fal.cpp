// x04fal: adds a name, unless it is there.
#include <cstring>

#include "frame/name_cells.hpp"

namespace kor {

std::intptr_t x04fal(KorNameTable *table, std::intptr_t value, const char *name, Integer *status)
{
    *status = kTableGood;
    KorNameCell *last = nullptr;
    for (KorNameCell *cell = bucket_of(*table, name); cell != nullptr; cell = cell->next) {
        if (!is_empty(*cell) && std::strcmp(cell->name, name) == 0) return cell->value;
        last = cell;
    }
    *status = append_cell(*table, *last, value, name);
    return 0;
}

} // namespace kor
