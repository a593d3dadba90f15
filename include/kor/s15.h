#ifndef KOR_S15_H
#define KOR_S15_H
#include <kor.h>
KOR_BEGIN_DECLS
double s15abc(double x);
double s15acc(double x);
double s15adc(double x);
double s15aec(double x);
KOR_END_DECLS
#endif
