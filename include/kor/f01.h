/// \file f01.h
/// Chapter f01: factorisations, inverses and reductions of matrices.
#ifndef KOR_F01_H
#define KOR_F01_H

#include <kor.h>

KOR_BEGIN_DECLS

// Inverses, transposition, triangular and orthogonal factors

// Reductions towards eigenvalues and singular values

KOR_END_DECLS

#endif
