#ifndef KOR_S14_H
#define KOR_S14_H
#include <kor.h>
KOR_BEGIN_DECLS
double s14aac(double x, KorError *fail);
double s14abc(double x, KorError *fail);
double s14aec(double x, Integer k, KorError *fail);
Complex s14afc(Complex z, Integer k, KorError *fail);
void s14bac(double a, double x, double tol, double *p, double *q, KorError *fail);
KOR_END_DECLS
#endif
