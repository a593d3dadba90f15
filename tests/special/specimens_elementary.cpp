#include <kor/s01.h>
#include <kor/s07.h>
#include <kor/s10.h>
#include <kor/s11.h>
#include <kor/s13.h>
#include <kor/s14.h>
#include <kor/s15.h>
#include <kor/s20.h>
#include <kor/s21.h>
#include <kor/s22.h>

#include "support/specimen.hpp"

#define VALUE_SPECIMEN(name, ...)                                                                                      \
    KOR_SPECIMEN(name)                                                                                                 \
    {                                                                                                                  \
        double value = 99.0;                                                                                           \
        call([&](KorError *fail) { value = name(__VA_ARGS__, fail); });                                                \
        outputs(value);                                                                                                \
    }
#define PLAIN_SPECIMEN(name)                                                                                           \
    KOR_SPECIMEN_WITHOUT_RECORD(name)                                                                                  \
    {                                                                                                                  \
        double value = 99.0;                                                                                           \
        call([&](KorError *) { value = name(1.3); });                                                                  \
        outputs(value);                                                                                                \
    }
#define COMPLEX_SPECIMEN(name, ...)                                                                                    \
    KOR_SPECIMEN(name)                                                                                                 \
    {                                                                                                                  \
        Complex value = {99.0, 99.0};                                                                                  \
        call([&](KorError *fail) { value = name(Complex{1.3, 0.4}, __VA_ARGS__, fail); });                             \
        outputs(value);                                                                                                \
    }

VALUE_SPECIMEN(s01bac, 1.3)
VALUE_SPECIMEN(s07aac, 1.3)
PLAIN_SPECIMEN(s10aac)
VALUE_SPECIMEN(s10abc, 1.3)
VALUE_SPECIMEN(s10acc, 1.3)
VALUE_SPECIMEN(s11aac, 0.3)
PLAIN_SPECIMEN(s11abc)
VALUE_SPECIMEN(s11acc, 1.3)
VALUE_SPECIMEN(s13aac, 1.3)
VALUE_SPECIMEN(s13acc, 1.3)
PLAIN_SPECIMEN(s13adc)
VALUE_SPECIMEN(s14aac, 1.3)
VALUE_SPECIMEN(s14abc, 1.3)
VALUE_SPECIMEN(s14aec, 1.3, 1)
COMPLEX_SPECIMEN(s14afc, 1)
PLAIN_SPECIMEN(s15abc)
PLAIN_SPECIMEN(s15acc)
PLAIN_SPECIMEN(s15adc)
PLAIN_SPECIMEN(s15aec)
PLAIN_SPECIMEN(s20acc)
PLAIN_SPECIMEN(s20adc)
VALUE_SPECIMEN(s21bac, 1.3, 0.4)
VALUE_SPECIMEN(s21bbc, 1.3, 0.4, 2.0)
VALUE_SPECIMEN(s21bcc, 1.3, 0.4, 2.0)
VALUE_SPECIMEN(s21bdc, 1.3, 0.4, 2.0, 0.7)
VALUE_SPECIMEN(s21ccc, 2, 1.3, 0.4)
COMPLEX_SPECIMEN(s21dac, 0.7)

KOR_SPECIMEN(s14bac)
{
    double p = 99.0, q = 99.0;
    call([&](KorError *fail) { s14bac(2.5, 1.3, 0.0, &p, &q, fail); });
    outputs(p, q);
}

KOR_SPECIMEN(s21cbc)
{
    Complex sn = {}, cn = {}, dn = {};
    call([&](KorError *fail) { s21cbc({1.3, 0.4}, 0.3, &sn, &cn, &dn, fail); });
    outputs(sn, cn, dn);
}

KOR_SPECIMEN(s22aac)
{
    double p[5] = {};
    call([&](KorError *fail) { s22aac(2, 0.3, 1, 4, p, fail); });
    outputs(p);
}
