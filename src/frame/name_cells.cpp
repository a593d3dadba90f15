// The cells of a name table: which are empty, which bucket is whose, where new ones come from.
#include "frame/name_cells.hpp"

#include <limits>

#include <kor/x04.h>

#include "frame/workspace.hpp"

namespace kor {

namespace {

const char nullstr[] = ""; // all empty cells share it, and it tells them from a cell whose name is empty

// The classic hash of symbol tables: four bits a character, the overflow folded back in.
std::uint32_t name_hash(const char *s)
{
    constexpr std::uint32_t top = 0xf0000000;
    std::uint32_t h = 0;
    for (; *s != '\0'; ++s) {
        h = (h << 4) + static_cast<unsigned char>(*s);
        const std::uint32_t overflow = h & top;
        h ^= overflow >> 24;
        h &= ~top;
    }
    return h;
}

bool grow_list_of_blocks(KorNameTable &table)
{
    const Count bytes = (Count{table.blocks_capacity} + Count{kBlocksStep}) * Count{sizeof(KorNameCell *)};
    void *longer = bytes.overflow() ? nullptr : x04bcc(table.blocks, bytes.value());
    if (longer == nullptr) return false;
    table.blocks = static_cast<KorNameCell **>(longer);
    table.blocks_capacity += kBlocksStep;
    return true;
}

bool grow_pool(KorNameTable &table)
{
    if (table.capacity > std::numeric_limits<Integer>::max() - table.block_size) return false;
    if (table.nblocks == table.blocks_capacity && !grow_list_of_blocks(table)) return false;
    Workspace<KorNameCell> block{Count{table.block_size}};
    if (!block) return false;
    make_empty(block.data(), table.block_size);
    table.free_cell = block.release();
    table.blocks[table.nblocks++] = table.free_cell;
    table.capacity += table.block_size;
    return true;
}

} // namespace

bool is_empty(const KorNameCell &cell) { return cell.name == nullstr; }

void make_empty(KorNameCell *cells, Integer count)
{
    for (Integer i = 0; i < count; ++i) cells[i] = {0, nullstr, nullptr};
}

KorNameCell *bucket_of(const KorNameTable &table, const char *name)
{
    return table.buckets + name_hash(name) % static_cast<std::uint32_t>(table.nbuckets);
}

Integer append_cell(KorNameTable &table, KorNameCell &last, std::intptr_t value, const char *name)
{
    if (table.used == table.capacity && !grow_pool(table)) return kTableNoMemory;
    KorNameCell *cell = table.free_cell++;
    *cell = {value, name, nullptr};
    last.next = cell;
    ++table.used;
    return kTableGood;
}

} // namespace kor
