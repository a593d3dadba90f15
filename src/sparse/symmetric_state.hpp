// The record of the reverse communication: who may use it, and what it owns.
#pragma once

#include <kor/f11.h>

#include "sparse/krylov_symmetric.hpp"

namespace kor::sparse {

// A record that f11gac has set up holds the stamps and its own address: a copy, whose block the original may free, is none.
bool is_set_up(const KorSparseSymState &);
void set_up(KorSparseSymState &, SymmetricSolver *solver_at_the_front_of_its_block);

// Null before the set-up and after the end.
SymmetricSolver *solver_of(const KorSparseSymState &);

// Takes the figures of the iteration over, so that they outlive it.
void note_figures(KorSparseSymState &);
void release(KorSparseSymState &);

} // namespace kor::sparse
