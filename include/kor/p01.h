/// \file p01.h
/// Chapter p01: error reporting.
#ifndef KOR_P01_H
#define KOR_P01_H

#include <kor.h>

KOR_BEGIN_DECLS

/// The message formats, indexed by code: each a key, a colon, a newline and the text. An empty string ends the table.
extern const char *const kor_errlist[KOR_ERROR_COUNT + 1];

/// Texts of the results and of the monitoring that the chapters print: one table a chapter, each ended by an empty string.
extern const char *const kor_e04mesg[];
extern const char *const kor_g02mesg[]; ///< regression
extern const char *const kor_g03mesg[]; ///< multivariate analysis
extern const char *const kor_g12mesg[]; ///< survival
extern const char *const kor_g13mesg[]; ///< time series
extern const char *const kor_h02mesg[]; ///< integer programming

/// \brief Reports an outcome through an error record: the one reporter of the library.
///
/// 1. A null `message` stands for `kor_errlist[code]`.
/// 2. With a non-zero `code`, and with `fail` null or `fail->print` set, the text goes to the standard error stream
///    behind "Error detected by KOR routine" or "Warning from KOR routine": an error if the first 'N' among the text's
///    characters 0 to 4 is followed by 'E' (or, where there is no such 'N', if character 5 is 'E'), else a warning.
/// 3. With `fail` null and a non-zero `code`, warnings included, the process ends with status 1.
/// 4. Otherwise the code is stored, the handler is called, and then the text is copied into the record.
///
/// \param[in] message  the text, key line included; may be null. More than 511 characters are cut in the record.
/// \param[in] code     the code of the report, 0 for success
/// \param[in] routine  the name of the routine that reports
/// \param[in,out] fail the record; may be null
///
/// \par Errors
/// None of its own.
/// \par Thread safety
/// Safe, as long as each thread has its own record.
/// \par Example
/// \code{.c}
/// KorError fail = {0};
/// p01acc(NULL, NE_ALLOC_FAIL, "mysolv", &fail);   // fail.code == NE_ALLOC_FAIL
/// \endcode
void p01acc(const char *message, Integer code, const char *routine, KorError *fail);

KOR_END_DECLS

#endif
