/// \file x05.h
/// Chapter x05: the clock.
#ifndef KOR_X05_H
#define KOR_X05_H

#include <kor.h>

KOR_BEGIN_DECLS

/// \brief The clock, in seconds: a number that differs from run to run, such as a seed needs.
///
/// \return the lower 31 bits of the seconds since the system's origin of time: never negative
/// \par Errors
/// - NE_SYSTEM_TIME: the system does not tell the time. There is no record: the process ends with status 1.
/// \par Thread safety
/// Safe.
/// \par Example
/// \code{.c}
/// Integer seed = x05aac();
/// \endcode
Integer x05aac(void);

KOR_END_DECLS

#endif
