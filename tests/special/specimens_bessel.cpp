#include <kor/s17.h>
#include <kor/s18.h>
#include <kor/s19.h>

#include "support/specimen.hpp"

// Functions of one variable.
#define BESSEL_SPECIMEN(name, x)                                                                                       \
    KOR_SPECIMEN(name)                                                                                                 \
    {                                                                                                                  \
        double value = 99.0;                                                                                           \
        call([&](KorError *fail) { value = name(x, fail); });                                                          \
        outputs(value);                                                                                                \
    }

BESSEL_SPECIMEN(s17acc, 12.3)
BESSEL_SPECIMEN(s17adc, 12.3)
BESSEL_SPECIMEN(s17aec, 1234.5)
BESSEL_SPECIMEN(s17afc, -12.3)
BESSEL_SPECIMEN(s17agc, -34.5)
BESSEL_SPECIMEN(s17ahc, 12.3)
BESSEL_SPECIMEN(s17ajc, -2.3)
BESSEL_SPECIMEN(s17akc, 2.3)
BESSEL_SPECIMEN(s18acc, 0.123)
BESSEL_SPECIMEN(s18adc, 1.23)
BESSEL_SPECIMEN(s18aec, 12.3)
BESSEL_SPECIMEN(s18afc, 123.4)
BESSEL_SPECIMEN(s18ccc, 0.123)
BESSEL_SPECIMEN(s18cdc, 1.23)
BESSEL_SPECIMEN(s18cec, -12.3)
BESSEL_SPECIMEN(s18cfc, -123.4)
BESSEL_SPECIMEN(s19aac, 12.3)
BESSEL_SPECIMEN(s19abc, -12.3)
BESSEL_SPECIMEN(s19acc, 12.3)
BESSEL_SPECIMEN(s19adc, 123.4)

// Order nu/4.
#define QUARTER_SPECIMEN(name, x, nu)                                                                                  \
    KOR_SPECIMEN(name)                                                                                                 \
    {                                                                                                                  \
        double value = 99.0;                                                                                           \
        call([&](KorError *fail) { value = name(x, nu, fail); });                                                      \
        outputs(value);                                                                                                \
    }

QUARTER_SPECIMEN(s18ecc, 1.3, -1)
QUARTER_SPECIMEN(s18eec, 12.3, 3)
QUARTER_SPECIMEN(s18edc, 1.3, 2)
QUARTER_SPECIMEN(s18efc, 12.3, 1)

// Sequences of orders.
#define SEQUENCE_SPECIMEN(name, Element, ...)                                                                          \
    KOR_SPECIMEN(name)                                                                                                 \
    {                                                                                                                  \
        Element b[6] = {};                                                                                             \
        call([&](KorError *fail) { name(__VA_ARGS__, b, fail); });                                                     \
        outputs(b, 6);                                                                                                 \
    }

SEQUENCE_SPECIMEN(s17alc, double, 2.5, 6, 4, 1e-12)
SEQUENCE_SPECIMEN(s18egc, double, 2.3, 1, 3, 5)
SEQUENCE_SPECIMEN(s18ehc, double, 23.4, 3, 4, 5)
SEQUENCE_SPECIMEN(s18ejc, Complex, -2.3, 0.25, 5)
SEQUENCE_SPECIMEN(s18ekc, Complex, 23.4, 0.25, -5)
