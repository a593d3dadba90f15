// A list of elements in any order brought into coordinate storage.
#pragma once

#include "frame/report.hpp"
#include "sparse/coordinate.hpp"

namespace kor::sparse {

enum class Zeros { remove, keep, refuse };
enum class Repeats { keep_first, add, refuse };
enum class Sorted { done, no_memory, out_of_range, zero, repeated };

// Sorts the elements by rows and columns and treats zeros and repetitions as asked; `row_start`, n + 1 elements, receives
// places from 1. Unless the outcome is `done` nothing has changed.
Sorted sort_elements(Integer n, Integer &nnz, double value[], Integer row[], Integer column[], Triangle, Zeros, Repeats,
                     Integer row_start[]);

// The enumerators by which a routine's caller chooses.
struct SortChoices {
    Integer keep_first, add;
    Integer remove_zeros, keep_zeros;
};

// A routine from its arguments to its report.
void sort_and_report(const Report &, const SortChoices &, Triangle, Integer n, Integer *nnz, double a[], Integer irow[],
                     Integer icol[], Integer dup, Integer zero, Integer istr[]);

} // namespace kor::sparse
