// x04fak: adds a name that the caller knows to be new.
#include "frame/name_cells.hpp"

namespace kor {

void x04fak(KorNameTable *table, std::intptr_t value, const char *name, Integer *status)
{
    *status = kTableGood;
    KorNameCell *cell = bucket_of(*table, name);
    if (cell->value == 0) {
        cell->value = value;
        cell->name = name;
        return;
    }
    while (cell->next != nullptr) cell = cell->next;
    *status = append_cell(*table, *cell, value, name);
}

} // namespace kor
