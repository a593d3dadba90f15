// The table of roots of unity that the stages of a transform share.
#pragma once

#include "transforms/stages.hpp"

namespace kor::transforms {

// Fills the 2n elements of `trig`, for n >= 1; the pair of elements n-1 and 2n-1 holds n, the table's stamp.
void fill_root_table(Index n, double *trig);

// The table carries the stamp of length n.
bool stamped(Index n, const double *trig);

} // namespace kor::transforms
