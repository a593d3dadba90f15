#ifndef KOR_S13_H
#define KOR_S13_H
#include <kor.h>
KOR_BEGIN_DECLS
double s13aac(double x, KorError *fail);
double s13acc(double x, KorError *fail);
double s13adc(double x);
KOR_END_DECLS
#endif
