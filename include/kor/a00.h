/// \file a00.h
/// Chapter a00: the name of the implementation.
#ifndef KOR_A00_H
#define KOR_A00_H

#include <kor.h>

KOR_BEGIN_DECLS

/// \brief Writes the name of the implementation, four lines, to the standard output stream.
///
/// The lines name the library, its platform, the code of the implementation and its level.
///
/// \par Errors
/// None.
/// \par Thread safety
/// Safe; lines of several threads may interleave.
/// \par See also
/// a00abc() writes to a file.
/// \par Example
/// \code{.c}
/// a00aac();
/// \endcode
void a00aac(void);

/// \brief Writes the name of the implementation, the four lines of a00aac(), to a file.
///
/// The file is opened for appending. There is no error record: if the file cannot be opened, written or closed, the
/// process ends with status 1 and a line on the standard error stream.
///
/// \param[in] outfile the name of the file; null for the standard output stream
///
/// \par Errors
/// None that is reported to the caller.
/// \par Thread safety
/// Safe; lines of several threads may interleave.
/// \par Example
/// \code{.c}
/// a00abc("results.txt");
/// \endcode
void a00abc(const char *outfile);

KOR_END_DECLS

#endif
