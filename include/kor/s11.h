#ifndef KOR_S11_H
#define KOR_S11_H
#include <kor.h>
KOR_BEGIN_DECLS
double s11aac(double x, KorError *fail);
double s11abc(double x);
double s11acc(double x, KorError *fail);
KOR_END_DECLS
#endif
