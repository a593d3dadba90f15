/// \file d02.h
/// Chapter d02: ordinary differential equations.
#ifndef KOR_D02_H
#define KOR_D02_H

#include <kor.h>

KOR_BEGIN_DECLS

// Initial values: Runge-Kutta pairs

// Initial values: Adams method with events

// Initial values: stiff systems, and drivers for either kind

// Boundary values

KOR_END_DECLS

#endif
