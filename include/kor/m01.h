/// \file m01.h
/// Chapter m01: sorting, ranking, rearranging, searching.
///
/// Arrays of any type are described by the address of element 0, a count `n`, the size of an element and the stride, the
/// distance from an element to the next; both in bytes. A negative stride walks backwards through memory: the address is
/// then that of the last element in memory. A comparator `compare(a, b)` receives pointers to two elements and returns
/// less than, equal to or greater than 0 as a sorts before, equal with, or after b in ascending order; the `int`
/// comparators of the C library's `qsort` will do. No comparator, however inconsistent, makes a routine run for ever
/// or leave the array: the order is then merely some order of the same elements.
///
/// At most 268435455 elements can be handled, and n times the stride must not exceed 2147483647 bytes.
#ifndef KOR_M01_H
#define KOR_M01_H

#include <kor.h>

KOR_BEGIN_DECLS

/// \brief Sorts an array of doubles in place.
///
/// \param[in,out] vec   the array, of `n` elements
/// \param[in]     n     number of elements, from 1 to 268435455
/// \param[in]     order Kor_Ascending or Kor_Descending; not looked at when `n` is 1
/// \param[in,out] fail  the error record; may be null, and then a failure ends the process
///
/// \par Errors
/// - NE_BAD_PARAM: `order` is neither of the two.
/// - NE_INT_ARG_LT: `n` is 0.
/// - NE_INT_ARG_GT: `n` is greater than 268435455, or negative.
///
/// `vec` is untouched after an error.
/// \par Accuracy
/// The result depends on the values alone, on every processor: -0.0 comes before 0.0 in ascending and after it in
/// descending order, and all NaNs come last in either order (among themselves in no particular order). An infinity is a
/// value like any other.
/// \par Method
/// Data that come in a few runs, ascending or descending, are merged in near-linear time; all else is sorted by quicksort,
/// with short parts sorted in registers by networks, on vectors where the processor has AVX2 or AVX-512. Heapsort takes
/// over when partitions are bad, so that the time is O(n log n) whatever the data. Uses no memory beyond the array.
/// M. Blacher, J. Giesen, P. Sanders and J. Wassenberg, Softw. Pract. Exper. 52 (2022) 2684-2699; D. R. Musser, Softw.
/// Pract. Exper. 27 (1997) 983-993; K. E. Batcher, AFIPS Conf. Proc. 32 (1968) 307-314.
/// \par Thread safety
/// Safe.
/// \par Example
/// \code{.c}
/// double x[] = {2.5, -1.0, 7.25};
/// KorError fail = {0};
/// m01cac(x, 3, Kor_Descending, &fail);   // 7.25, 2.5, -1.0
/// \endcode
void m01cac(double vec[], Integer n, Integer order, KorError *fail);

/// \brief Sorts elements of any type in place, by a comparator. Equal elements may change their order.
///
/// m01ctc() keeps the order of equal elements.
///
/// \param[in,out] vec     element 0; element i is `stride` times i bytes behind it. Bytes between the elements stay as they
///                        are
/// \param[in]     n       number of elements, at most 268435455; 0 is allowed
/// \param[in]     size    size of an element in bytes, from 1 to 2147483647/n
/// \param[in]     stride  distance of the elements in bytes; |stride| from `size` to 2147483647/n; negative: the array is
///                        walked backwards
/// \param[in]     compare the comparator; called on this thread, with pointers to elements of the array only
/// \param[in]     order   Kor_Ascending or Kor_Descending
/// \param[in,out] fail    the error record; may be null, and then a failure ends the process
///
/// \par Errors
/// - NE_BAD_PARAM: `order` is neither of the two.
/// - NE_INT_ARG_GT: `n` is greater than 268435455 or negative (the tests of `size` and `stride` are then still made, with
///   the limit 2147483647/n, and a second report may follow); `size` or |stride| is greater than 2147483647/n.
/// - NE_INT_ARG_LT: `size` is less than 1.
/// - NE_2_INT_ARG_LT: |stride| is less than `size`.
/// - NE_ALLOC_FAIL: no memory for two work elements; only elements of more than 256 bytes need it.
///
/// `vec` is untouched after an error.
/// \par Accuracy
/// About n log2 n comparisons on average, n - 1 when the elements are in order already or in reverse, few more when they
/// come in a few runs, and never more than a small multiple of n log2 n. Uses no memory for elements of up to 256 bytes.
/// \par Method
/// Runs are found, and merged in place; all else is sorted by quicksort that notes misplaced elements block by block, with
/// short parts sorted by merging pointers, so that no branch depends on what the comparator says; heapsort takes over when
/// partitions are bad. S. Edelkamp and A. Weiss, ACM J. Exp. Algorithmics 24 (2019) 1.4; P.-S. Kim and A. Kutzner, ESA 2004,
/// LNCS 3221, 714-723.
/// \par Thread safety
/// Safe, and reentrant: the comparator may itself call the routine.
/// \par Example
/// \code{.c}
/// static Integer by_mass(const void *a, const void *b)
/// {
///     const double x = ((const struct planet *)a)->mass, y = ((const struct planet *)b)->mass;
///     return (x > y) - (x < y);
/// }
/// ...
/// m01csc(planets, 8, sizeof planets[0], sizeof planets[0], by_mass, Kor_Ascending, &fail);
/// \endcode
void m01csc(void *vec, Integer n, Integer size, Integer stride, Integer (*compare)(const void *a, const void *b),
            Integer order, KorError *fail);

/// \brief Sorts elements of any type in place, by a comparator. Equal elements keep their order, in both directions.
///
/// \param[in,out] vec     element 0, as in m01csc()
/// \param[in]     n       number of elements, at most 268435455; 0 is allowed
/// \param[in]     size    size of an element in bytes, from 1 to 2147483647/n
/// \param[in]     stride  distance of the elements in bytes; |stride| from `size` to 2147483647/n
/// \param[in]     compare the comparator; may also be shown copies of elements, at multiples of `size` in memory as `malloc`
///                        gives it
/// \param[in]     order   Kor_Ascending or Kor_Descending
/// \param[in,out] fail    the error record; may be null, and then a failure ends the process
///
/// \par Errors
/// As m01csc(); NE_ALLOC_FAIL: no memory for `n` elements if they have up to 128 bytes, for `n` integers if they have more, or
/// for one element of more than 256 bytes. `vec` is untouched after an error.
/// \par Accuracy
/// About n log2 n comparisons at most, n - 1 when the elements are in order already.
/// \par Method
/// Elements of up to 128 bytes are merged from the bottom up, from both ends of a pair of runs at once; wider ones are ranked
/// as by m01dsc(), and each is moved once to its place. D. E. Knuth, The Art of Computer Programming 3 (1998) section 5.2.4.
/// \par Thread safety
/// Safe and reentrant.
/// \par Example
/// \code{.c}
/// m01ctc(people, n, sizeof people[0], sizeof people[0], by_first_name, Kor_Ascending, &fail);
/// m01ctc(people, n, sizeof people[0], sizeof people[0], by_last_name, Kor_Ascending, &fail);   // both keys in order
/// \endcode
void m01ctc(void *vec, Integer n, Integer size, Integer stride, Integer (*compare)(const void *a, const void *b),
            Integer order, KorError *fail);

/// \brief Sorts a linked list, by a comparator. Equal elements keep their order, in both directions.
///
/// Only the links change; no element moves.
///
/// \param[in,out] head    the pointer to the first element, null for an empty list; on exit to the new first element
/// \param[in]     link    where in an element the pointer to the next one lies, in bytes from its start; the last element
///                        holds a null pointer there
/// \param[in]     compare the comparator; receives pointers to elements
/// \param[in]     order   Kor_Ascending or Kor_Descending; not looked at when the list is empty
/// \param[in,out] fail    the error record; may be null, and then a failure ends the process
///
/// \par Errors
/// - NE_BAD_PARAM: `order` is neither of the two.
/// - NE_CH_LOOP: the list runs into itself, or has more than 268435455 elements.
///
/// The list is untouched after an error.
/// \par Method
/// Bottom-up merging of chains, with no memory beyond the links; n log2 n comparisons. D. E. Knuth, The Art of Computer
/// Programming 3 (1998) section 5.2.4. Loops are found beforehand: R. P. Brent, BIT 20 (1980) 176-184.
/// \par Thread safety
/// Safe, and reentrant.
/// \par Example
/// \code{.c}
/// struct item { double value; struct item *next; };
/// ...
/// void *head = first;
/// m01cuc(&head, offsetof(struct item, next), by_value, Kor_Ascending, &fail);
/// first = head;
/// \endcode
void m01cuc(void **head, Integer link, Integer (*compare)(const void *a, const void *b), Integer order, KorError *fail);

/// \brief The ranks of elements of any type, by a comparator. The elements keep their place; equal ones rank in their order.
///
/// m01zac() turns the ranks into the list of the indices in sorted order, by which m01esc() rearranges arrays.
///
/// \param[in]  vec     element 0; element i is `stride` times i bytes behind it
/// \param[in]  n       number of elements, at most 268435455; 0 is allowed
/// \param[in]  stride  distance of the elements in bytes, not 0; |stride| at most 2147483647/n
/// \param[in]  compare the comparator; receives pointers to elements
/// \param[in]  order   Kor_Ascending or Kor_Descending
/// \param[out] ranks   `n` elements: `ranks[i]` is the rank, from 0, of element i
/// \param[in,out] fail the error record; may be null, and then a failure ends the process
///
/// \par Errors
/// - NE_BAD_PARAM: `order` is neither of the two.
/// - NE_INT_ARG_GT: `n` is greater than 268435455 or negative, or |stride| is greater than 2147483647/n.
/// - NE_INT_ARG_EQ: `stride` is 0.
///
/// `ranks` is untouched after an error.
/// \par Accuracy
/// About n log2 n comparisons on average, n - 1 when the elements are in order already. Uses no memory beyond `ranks`.
/// \par Method
/// The indices are sorted in `ranks` as in m01csc(), by the elements and, of equal elements, by the indices themselves; the
/// permutation is then inverted.
/// \par Thread safety
/// Safe, and reentrant.
/// \par Example
/// \code{.c}
/// const double x[] = {2.5, -1.0, 7.25};
/// Integer rank[3];
/// m01dsc(x, 3, sizeof x[0], compare_doubles, Kor_Ascending, rank, &fail);   // 1, 0, 2
/// \endcode
void m01dsc(const void *vec, Integer n, Integer stride, Integer (*compare)(const void *a, const void *b), Integer order,
            Integer ranks[], KorError *fail);

/// \brief Rearranges elements of any type in place by a list of indices: position i receives element `indices[i]`.
///
/// With the ranks of m01dsc(), turned into indices by m01zac(), this sorts the elements, or any others in parallel with
/// them.
///
/// \param[in,out] vec     element 0; element i is `stride` times i bytes behind it. Bytes between the elements stay as they
///                        are
/// \param[in]     n       number of elements, at most 268435455; 0 is allowed
/// \param[in]     size    size of an element in bytes, from 1 to 2147483647/n
/// \param[in]     stride  distance of the elements in bytes; |stride| from `size` to 2147483647/n; may be negative
/// \param[in,out] indices a permutation of the integers from 0 to n-1; marked while the routine works, and on exit, whatever
///                        the outcome, as on entry
/// \param[in,out] fail    the error record; may be null, and then a failure ends the process
///
/// \par Errors
/// - NE_INT_ARG_GT: `n` is greater than 268435455 or negative; `size` or |stride| is greater than 2147483647/n.
/// - NE_INT_ARG_LT: `size` is less than 1.
/// - NE_2_INT_ARG_LT: |stride| is less than `size`.
/// - NE_BAD_RANK: `indices` is not a permutation. When a value is out of range `vec` is untouched; when one occurs twice
///   the elements may have been moved, and none is lost.
/// - NE_ALLOC_FAIL: no memory for one work element; only elements of more than 256 bytes need it.
/// \par Method
/// Each cycle of the permutation is followed once, and each element is moved once. D. E. Knuth, The Art of Computer
/// Programming 1 (1997) section 1.3.3.
/// \par Thread safety
/// Safe if no other thread uses `indices` meanwhile: it is marked in place.
/// \par Example
/// \code{.c}
/// m01dsc(mass, n, sizeof mass[0], compare_doubles, Kor_Ascending, index, &fail);   // ranks
/// m01zac(index, n, &fail);                                                         // indices in order of mass
/// m01esc(mass, n, sizeof mass[0], sizeof mass[0], index, &fail);                   // in ascending order now
/// m01esc(name, n, sizeof name[0], sizeof name[0], index, &fail);                   // and the names with them
/// \endcode
void m01esc(void *vec, Integer n, Integer size, Integer stride, Integer indices[], KorError *fail);

/// \brief Searches a sorted array by bisection for the first or the last element that is equal to a key.
///
/// \param[in]  key     what to look for; passed to `compare` as its first argument
/// \param[in]  vec     element 0 of the sorted array; element i is `stride` times i bytes behind it
/// \param[in]  n       number of elements, at most 268435455; 0 is allowed
/// \param[in]  stride  distance of the elements in bytes, not 0; |stride| at most 1073741823/n
/// \param[in]  compare the comparator; receives the key and a pointer to an element
/// \param[in]  order   Kor_Ascending or Kor_Descending: how the array is sorted
/// \param[in]  final   which of several equal elements: Kor_First or Kor_Last
/// \param[out] match   Kor_First: the first element that does not sort before the key; Kor_Last: the last that does not
///                     sort after it; null if there is none. Without an equal element these are the key's neighbours
/// \param[in,out] fail the error record; may be null, and then a failure ends the process. A key that is not found makes
///                     no report at all: `fail->code` is 0
///
/// \return 1 if an element is equal to the key, else 0; 0 after an error
///
/// \par Errors
/// - NE_BAD_PARAM: `order` is not Kor_Ascending or Kor_Descending, or `final` not Kor_First or Kor_Last.
/// - NE_INT_ARG_GT: `n` is greater than 268435455 or negative, or |stride| is greater than 1073741823/n.
/// - NE_INT_ARG_EQ: `stride` is 0.
///
/// `match` is untouched after an error.
/// \par Method
/// Bisection: at most 1 + log2 n comparisons. D. E. Knuth, The Art of Computer Programming 3 (1998) section 6.2.1.
/// \par Thread safety
/// Safe, and reentrant.
/// \par Example
/// \code{.c}
/// void *match;
/// if (m01fsc("Vega", stars, n, sizeof stars[0], by_name, Kor_Ascending, Kor_First, &match, &fail))
///     printf("%s\n", ((struct star *)match)->name);
/// \endcode
Integer m01fsc(const void *key, const void *vec, Integer n, Integer stride,
               Integer (*compare)(const void *a, const void *b), Integer order, Integer final, void **match,
               KorError *fail);

/// \brief Inverts a permutation of the integers from 0 to n-1 in place.
///
/// Turns the ranks of m01dsc() into indices: element `rank[0]` is then the first in order, `rank[1]` the second.
///
/// \param[in,out] rank the permutation; on exit its inverse: `rank[p[i]]` = i for the permutation p on entry
/// \param[in]     n    number of elements, at most 268435455; 0 is allowed
/// \param[in,out] fail the error record; may be null, and then a failure ends the process
///
/// \par Errors
/// - NE_INT_ARG_GT: `n` is greater than 268435455 or negative.
/// - NE_BAD_RANK: `rank` is not a permutation of the integers from 0 to n-1.
///
/// `rank` is untouched after an error.
/// \par Method
/// Each cycle is turned over. D. E. Knuth, The Art of Computer Programming 1 (1997) section 1.3.3, algorithm I.
/// \par Thread safety
/// Safe.
/// \par Example
/// \code{.c}
/// Integer rank[] = {1, 2, 0};
/// m01zac(rank, 3, &fail);   // 2, 0, 1
/// \endcode
void m01zac(Integer rank[], Integer n, KorError *fail);

/// \brief Inverts a permutation of the integers from `m1` to `m2` in place, with an integer status.
///
/// \param[in,out] rank  `m2` elements, the integer m in `rank[m-1]`: those before `rank[m1-1]` are not looked at, the others
///                      hold the permutation, and on exit its inverse
/// \param[in]     m1    smallest of the integers, at least 1
/// \param[in]     m2    greatest of the integers, at least `m1`
/// \param[in,out] ifail on entry what becomes of a failure: 1 nothing, 0 or -1 a text on the standard output stream; on exit
///                      the status: 0 success, 1 `m1` or `m2` out of bounds, 2 a value is not between `m1` and `m2`, 3 a
///                      value occurs twice
///
/// \par Errors
/// By `ifail` alone. `rank` is untouched unless `ifail` is 0 on exit.
/// \par Method
/// As m01zac().
/// \par Thread safety
/// Safe.
/// \par Example
/// \code{.c}
/// Integer rank[] = {2, 3, 1}, ifail = 1;
/// m01zbc(rank, 1, 3, &ifail);   // 3, 1, 2
/// \endcode
void m01zbc(Integer rank[], Integer m1, Integer m2, Integer *ifail);

KOR_END_DECLS

#endif
