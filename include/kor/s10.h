#ifndef KOR_S10_H
#define KOR_S10_H
#include <kor.h>
KOR_BEGIN_DECLS
double s10aac(double x);
double s10abc(double x, KorError *fail);
double s10acc(double x, KorError *fail);
KOR_END_DECLS
#endif
