#include <kor/g01.h>

#include "support/specimen.hpp"

#define KOR_VALUE_SPECIMEN(name, ...)                                                                                  \
    KOR_SPECIMEN(name)                                                                                                 \
    {                                                                                                                  \
        double value = 99.0;                                                                                           \
        call([&](KorError *fail) { value = name(__VA_ARGS__, fail); });                                                \
        outputs(value);                                                                                                \
    }

KOR_VALUE_SPECIMEN(g01cec, 0.975)
KOR_VALUE_SPECIMEN(g01eac, Kor_UpperTail, 1.96)
KOR_VALUE_SPECIMEN(g01fac, Kor_TwoTailConfid, 0.95)
KOR_VALUE_SPECIMEN(g01ebc, Kor_TwoTailSignif, 2.5, 10.0)
KOR_VALUE_SPECIMEN(g01fbc, Kor_UpperTail, 0.025, 10.0)
KOR_VALUE_SPECIMEN(g01ecc, Kor_UpperTail, 18.3, 10.0)
KOR_VALUE_SPECIMEN(g01fcc, 0.95, 10.0)
KOR_VALUE_SPECIMEN(g01edc, Kor_UpperTail, 4.0, 3.0, 12.0)
KOR_VALUE_SPECIMEN(g01fdc, 0.95, 3.0, 12.0)
KOR_VALUE_SPECIMEN(g01fec, 0.4375, 1.0, 2.0, 0.0)
KOR_VALUE_SPECIMEN(g01efc, Kor_UpperTail, 3.0, 1.0, 1.5)
KOR_VALUE_SPECIMEN(g01ffc, 0.5, 1.0, 1.0, 0.0)

KOR_SPECIMEN(g01eec)
{
    double p = 99.0, q = 99.0, pdf = 99.0;
    call([&](KorError *fail) { g01eec(0.25, 1.0, 2.0, 0.0, &p, &q, &pdf, fail); });
    outputs(p, q, pdf);
}

KOR_VALUE_SPECIMEN(g01bcc, 18.3, 10)
KOR_VALUE_SPECIMEN(g01gcc, 8.26, 20.0, 3.5, 5e-6, 50)
KOR_VALUE_SPECIMEN(g01gdc, 5.5, 1.5, 25.5, 3.0, 5e-6, 50)
KOR_VALUE_SPECIMEN(g01gec, 0.25, 1.0, 2.0, 1.0, 0.0, 100)

#define KOR_DISCRETE_SPECIMEN(name, ...)                                                                               \
    KOR_SPECIMEN(name)                                                                                                 \
    {                                                                                                                  \
        double at_most = 99.0, above = 99.0, equal = 99.0;                                                             \
        call([&](KorError *fail) { name(__VA_ARGS__, &at_most, &above, &equal, fail); });                              \
        outputs(at_most, above, equal);                                                                                \
    }

KOR_DISCRETE_SPECIMEN(g01bjc, 10, 0.5, 5)
KOR_DISCRETE_SPECIMEN(g01bkc, 2.0, 2)
KOR_DISCRETE_SPECIMEN(g01blc, 10, 2, 5, 1)
