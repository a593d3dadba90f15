/// \file kor.h
/// The types that every user of the library needs: integers, truth values, complex numbers, the error record, the error
/// codes and the enumerators. The routines themselves are declared chapter by chapter: kor/c05.h and its like.
#ifndef KOR_H
#define KOR_H

#include <stddef.h>
#include <stdint.h>

#ifdef __cplusplus
#define KOR_BEGIN_DECLS extern "C" { _Pragma("GCC visibility push(default)")
#define KOR_END_DECLS _Pragma("GCC visibility pop") }
#else
#define KOR_BEGIN_DECLS _Pragma("GCC visibility push(default)")
#define KOR_END_DECLS _Pragma("GCC visibility pop")
#endif

KOR_BEGIN_DECLS

/// All counts, indices, statuses and enumerators at the interface.
typedef int32_t Integer;

/// A truth value in one byte: zero is false. A routine whose *result* is a truth value returns an `Integer` 0 or 1.
typedef unsigned char Boolean;

/// A complex number.
typedef struct {
    double re; ///< real part
    double im; ///< imaginary part
} Complex;

/// Called with each report that reaches an error record: the full text, its code (0 for success) and the name of the
/// routine that reports.
typedef void (*KorErrorHandler)(const char *text, Integer code, const char *routine);

/// The error record, last argument of nearly every routine.
///
/// The caller owns it, clears it once (`KorError fail = {0};`), and sets `print` and `handler` as wanted; the library
/// sets the other members. With a null pointer in place of the record any report other than success is printed and ends
/// the process with status 1.
typedef struct {
    Integer code;            ///< code of the last report, 0 for success
    Boolean print;           ///< non-zero: reports other than success also go to the standard error stream
    char message[512];       ///< full text of the last report, its key line included
    KorErrorHandler handler; ///< may be null; sees every report, success included
    Integer errnum;          ///< status of an inner routine or of a user function where a routine's page says so, else 0
} KorError;

/// The record that optimisers and sparse solvers hand to the functions of their caller.
typedef struct {
    Integer flag;       ///< 2: function and derivative wanted, 0 or 1: function alone; set it negative to stop the routine
    Boolean first;      ///< true in the first call only
    Integer nf;         ///< calls so far
    Boolean it_prt;     ///< printing that is due now: an iteration
    Boolean it_maj_prt; ///< printing that is due now: a major iteration
    Boolean sol_sqp_prt; ///< printing that is due now: the solution of a sequential quadratic programme
    Boolean sol_prt;    ///< printing that is due now: the solution
    void *reserved1;    ///< kept for the library
    void *p;            ///< the caller's own; the library never touches it
    void *reserved2;    ///< kept for the library
    /// May be null; sees every text that is printed: the whole text, its index in the chapter's catalogue, and `p`.
    void (*print_hook)(const char *text, Integer index, void *p);
} KorComm;

/// The error codes: indices into `kor_errlist`.
enum {
#define KOR_ERROR(key, text) key,
#include <kor/errors.def>
#undef KOR_ERROR
    KOR_ERROR_COUNT ///< number of codes
};

/// The enumerators: one numbering for the whole library, from 1.
enum {
    KOR_ENUMERATOR_NONE = 0, ///< no enumerator
#define KOR_ENUMERATOR(name) name,
#include <kor/enumerators.def>
#undef KOR_ENUMERATOR
    KOR_ENUMERATOR_END ///< one more than the last enumerator
};

KOR_END_DECLS

#endif
