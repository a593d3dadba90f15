/// \file x02.h
/// Chapter x02: machine constants. They are exact, the same on every processor, and never fail.
#ifndef KOR_X02_H
#define KOR_X02_H

#include <kor.h>

KOR_BEGIN_DECLS

/// \brief Largest argument whose trigonometric functions are formed: 2^64.
/// \return 2^64
double x02ahc(void);

/// \brief Machine precision: 2^-53 (1 + 2^-10).
///
/// A little greater than 2^-53 on purpose: 1 + x02ajc() is greater than 1.
/// \return 1.111307226797642e-16
double x02ajc(void);

/// \brief Smallest positive normal number.
/// \return 2^-1022
double x02akc(void);

/// \brief Largest finite number.
/// \return (2 - 2^-52) 2^1023
double x02alc(void);

/// \brief Lower end of the safe range: x, 1/x and -x, -1/x can all be formed without overflow.
/// \return 2^-1022
double x02amc(void);

/// \brief Lower end of the safe range of complex arithmetic: the same number as x02amc().
/// \return 2^-1022
double x02anc(void);

/// \brief Whether small numbers underflow to zero without warning: they do not, they lose digits gradually.
/// \return 0, always
Integer x02dac(void);

KOR_END_DECLS

#endif
