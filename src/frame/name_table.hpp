// A table of names, hashed, with chains; the names and what the values point to belong to the caller.
//
// One call uses one table: there is no lock. The values are pointers or numbers as the caller likes, but never 0, which
// is the mark of an empty cell.
#pragma once

#include <cstddef>
#include <cstdint>

#include <kor.h>

namespace kor {

// What the table's routines say about memory: numbers of their own, which their callers turn into error codes.
inline constexpr Integer kTableGood = 511;
inline constexpr Integer kTableNoMemory = 512;

struct KorNameCell {
    std::intptr_t value;
    const char *name;
    KorNameCell *next;
};

struct KorNameTable {
    KorNameCell *buckets;   // the heads of the chains
    KorNameCell *pool;      // the first block of further cells
    KorNameCell *free_cell; // the next of them that is free
    Integer block_size;     // cells in a block
    Integer used;           // further cells in use
    KorNameCell **blocks;   // blocks after the first
    Integer capacity;       // further cells in all blocks
    Integer nblocks;
    Integer blocks_capacity; // room in `blocks`
    Integer nbuckets;
};

// Makes a table for about `expected` names; it grows when there are more. Status as above; after 512 the table can be
// destroyed, and nothing else.
Integer x04fag(KorNameTable *table, Integer expected);
void x04fah(KorNameTable *table); // destroys

std::intptr_t x04faj(const KorNameTable *table, const char *name); // the value, 0 if the name is not there

// Adds a name that is not there and returns 0; for one that is there returns its value, which stays. Fills chains only,
// never the head cells: those are for x04fak.
std::intptr_t x04fal(KorNameTable *table, std::intptr_t value, const char *name, Integer *status);
void x04fak(KorNameTable *table, std::intptr_t value, const char *name, Integer *status); // adds without a search

// The records that the values point to have moved from `old_base` to `new_base`; each holds its name at `offset`.
void x04fam(KorNameTable *table, std::intptr_t old_base, std::intptr_t new_base, std::intptr_t offset);

} // namespace kor
