// x04fah: destroys a table of names.
#include <kor/x04.h>

#include "frame/name_table.hpp"

namespace kor {

namespace {

template <class T>
void release(T *block)
{
    void *memory = block;
    x04bdc(&memory);
}

} // namespace

void x04fah(KorNameTable *table)
{
    for (Integer i = 0; i < table->nblocks; ++i) release(table->blocks[i]);
    release(table->blocks);
    release(table->pool);
    release(table->buckets);
    *table = {};
}

} // namespace kor
