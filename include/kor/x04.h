/// \file x04.h
/// Chapter x04: memory, and look-up of enumerators and error codes by name. Memory that a routine hands to its caller comes
/// from x04bbc() and is released with x04bdc().
#ifndef KOR_X04_H
#define KOR_X04_H

#include <kor.h>

KOR_BEGIN_DECLS

/// Names of the files that programs of the verification support read and write; null, as at the start, stands for the
/// standard streams. No numerical routine looks at them. Set them before threads start.
extern char *global_datafile;
extern char *global_resfile; ///< the file of results

/// \brief Allocates memory: what malloc gives.
/// \param[in] size bytes wanted
/// \return the block, not cleared; null if there is no such memory
/// \par Thread safety
/// Safe.
/// \par Example
/// \code{.c}
/// double *work = x04bbc(n * sizeof *work);
/// \endcode
void *x04bbc(size_t size);

/// \brief Changes the size of a block: what realloc gives.
/// \param[in] p    a block of x04bbc() or x04bcc(), or null
/// \param[in] size bytes wanted
/// \return the block, moved if need be; null on failure, and then the old block stands
/// \par Thread safety
/// Safe.
/// \par Example
/// \code{.c}
/// double *longer = x04bcc(work, 2 * n * sizeof *work);
/// if (longer != NULL) work = longer;
/// \endcode
void *x04bcc(void *p, size_t size);

/// \brief Frees a block and clears the pointer to it.
///
/// In C a caller writes `x04bdc((void **)&p)`.
/// \param[in,out] pp address of the pointer to a block, or to null, which is harmless; null on return
/// \par Thread safety
/// Safe.
/// \par Example
/// \code{.c}
/// x04bdc((void **)&work);   // work is null now
/// \endcode
void x04bdc(void **pp);

/// \brief Value of an enumerator by its name.
/// \param[in] name such as "Kor_Ascending", in the case of the header
/// \return the value, 1 to 519; -5438 if there is no such name
/// \par Thread safety
/// Safe.
/// \par Example
/// \code{.c}
/// Integer order = x04mac("Kor_Ascending");   // 507
/// \endcode
Integer x04mac(const char *name);

/// \brief Error code by its key.
///
/// Two keys differ from the catalogue's: code 635 is found as "NE_ARIMA_INPUT_NPAR", and "NE_S21_CONV" is not found.
/// \param[in] name such as "NE_ALLOC_FAIL"
/// \return the code, 0 to 699; -5438 if there is no such key
/// \par Thread safety
/// Safe.
/// \par Example
/// \code{.c}
/// Integer code = x04mbc("NE_ALLOC_FAIL");    // 73
/// \endcode
Integer x04mbc(const char *name);

KOR_END_DECLS

#endif
