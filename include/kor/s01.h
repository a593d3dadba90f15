#ifndef KOR_S01_H
#define KOR_S01_H
#include <kor.h>
KOR_BEGIN_DECLS
double s01bac(double x, KorError *fail);
KOR_END_DECLS
#endif
