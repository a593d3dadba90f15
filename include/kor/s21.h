#ifndef KOR_S21_H
#define KOR_S21_H
#include <kor.h>
KOR_BEGIN_DECLS
double s21bac(double x, double y, KorError *fail);
double s21bbc(double x, double y, double z, KorError *fail);
double s21bcc(double x, double y, double z, KorError *fail);
double s21bdc(double x, double y, double z, double r, KorError *fail);
void s21cbc(Complex z, double ak2, Complex *sn, Complex *cn, Complex *dn, KorError *fail);
double s21ccc(Integer k, double x, double q, KorError *fail);
Complex s21dac(Complex z, double akp, KorError *fail);
KOR_END_DECLS
#endif
