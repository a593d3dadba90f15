// x04faj: looks up a name.
#include <cstring>

#include "frame/name_cells.hpp"

namespace kor {

std::intptr_t x04faj(const KorNameTable *table, const char *name)
{
    for (const KorNameCell *cell = bucket_of(*table, name); cell != nullptr; cell = cell->next)
        if (!is_empty(*cell) && std::strcmp(cell->name, name) == 0) return cell->value;
    return 0;
}

} // namespace kor
