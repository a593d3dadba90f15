// Triangular factor of a positive semi-definite matrix, singular or not.
#pragma once

#include <kor.h>

#include "frame/views.hpp"

namespace kor::random {

enum class Factored { yes, not_semidefinite, no_memory };

// Finds lower triangular L with c = L L' and no negative diagonal element, and packs it by columns: the first of n
// elements, then n - 1, ... The lower triangle of c is read. What a semi-definite matrix must not have, negative
// conditional variances and covariances without variance, may come up to `tolerance` times the variances, and up to rounding.
Factored factor_semidefinite(Integer n, RowMajor<const double> c, double tolerance, double packed[]);

} // namespace kor::random
