#ifndef KOR_S07_H
#define KOR_S07_H
#include <kor.h>
KOR_BEGIN_DECLS
double s07aac(double x, KorError *fail);
KOR_END_DECLS
#endif
