#ifndef KOR_S20_H
#define KOR_S20_H
#include <kor.h>
KOR_BEGIN_DECLS
double s20acc(double x);
double s20adc(double x);
KOR_END_DECLS
#endif
