// The reference vector of a discrete law: a cumulative table with an index into it.
//
// Positions count from 1. r[0]: the number of index cells. r[1]: the value of a table entry less its position, half a unit
// further from 0, so that truncation gives the integer. Then the cells: cell i holds the position of the first entry that
// exceeds i / cells, and a half. Then the cumulative probabilities, the last of them 1, and two elements more that are 1,
// so that a reader may look at three entries at a time.
#pragma once

#include <kor.h>

#include "frame/report.hpp"

namespace kor::random {

inline constexpr std::ptrdiff_t kReferenceHead = 2;
inline constexpr std::ptrdiff_t kReferenceTail = 2;

// What a reader finds at the head of a vector that g05ecc, g05edc or g05exc has set up; that of g05eac holds n + 1/2 there.
inline bool is_discrete_reference(const double r[])
{
    return r[0] >= 1.0 && r[0] <= 2147483647.0 && r[0] == static_cast<double>(static_cast<Integer>(r[0]));
}

// Room that a law of `points` values, and one of standard deviation `sigma`, asks of a caller: doubles, since it may
// pass what an Integer can hold.
double reference_length(double points);
double reference_length_of_spread(double sigma);
void report_too_short(const Report &report, double needed, Integer nr);

// Sets up r, of nr elements, at least `points` + 5, from the weights or the cumulative weights (not decreasing) of the
// values first, first + 1, ...; their total is positive and finite.
void set_reference(const double weights[], std::ptrdiff_t points, bool cumulative, double first, double r[],
                   Integer nr);

} // namespace kor::random
