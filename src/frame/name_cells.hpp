// The cells of a name table: which are empty, which bucket is whose, where new ones come from.
#pragma once

#include "frame/name_table.hpp"

namespace kor {

inline constexpr Integer kBlocksStep = 10; // room for blocks: at the start, and what is added at a time

bool is_empty(const KorNameCell &cell);
void make_empty(KorNameCell *cells, Integer count);
KorNameCell *bucket_of(const KorNameTable &table, const char *name);

// Hangs a new cell behind the last one of a chain. 511, or 512 when the table had to grow and could not.
Integer append_cell(KorNameTable &table, KorNameCell &last, std::intptr_t value, const char *name);

} // namespace kor
