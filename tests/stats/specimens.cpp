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
KOR_VALUE_SPECIMEN(g01gbc, 1.528, 20.0, 2.0, 5e-6, 50)
KOR_VALUE_SPECIMEN(g01hac, 1.5, -0.5, 0.75)
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

namespace {

const double kSample[] = {3.1, 2.7, 3.4, 2.9, 3.1, 3.0, 5.2, 2.2};
constexpr Integer kCount = 8;

} // namespace

KOR_SPECIMEN(g01aac)
{
    Integer nvalid = 99;
    double mean = 99.0, sd = 99.0, skew = 99.0, kurt = 99.0, least = 99.0, greatest = 99.0, weights = 99.0;
    call([&](KorError *fail) {
        g01aac(kCount, kSample, nullptr, &nvalid, &mean, &sd, &skew, &kurt, &least, &greatest, &weights, fail);
    });
    outputs(nvalid, mean, sd, skew, kurt, least, greatest, weights);
}

KOR_SPECIMEN(g01aec)
{
    double bounds[3] = {99.0, 99.0, 99.0}, least = 99.0, greatest = 99.0;
    Integer counts[4] = {99, 99, 99, 99};
    call([&](KorError *fail) {
        g01aec(kCount, kSample, 4, Kor_ClassBoundaryComp, bounds, counts, &least, &greatest, fail);
    });
    outputs(bounds, 3);
    outputs(counts, 4);
    outputs(least, greatest);
}

KOR_SPECIMEN(g01alc)
{
    double five[5] = {99.0, 99.0, 99.0, 99.0, 99.0};
    call([&](KorError *fail) { g01alc(kCount, kSample, five, fail); });
    outputs(five, 5);
}

KOR_SPECIMEN(g01dac)
{
    double scores[5] = {99.0, 99.0, 99.0, 99.0, 99.0}, error = 99.0;
    call([&](KorError *fail) { g01dac(5, scores, 1e-9, &error, fail); });
    outputs(scores, 5);
    outputs(error);
}

KOR_SPECIMEN(g01dbc)
{
    double scores[5] = {99.0, 99.0, 99.0, 99.0, 99.0};
    call([&](KorError *fail) { g01dbc(5, scores, fail); });
    outputs(scores, 5);
}

KOR_SPECIMEN(g01ddc)
{
    const double sorted[] = {2.2, 2.7, 2.9, 3.0, 3.1, 3.1, 3.4, 5.2};
    double a[kCount] = {99.0, 99.0, 99.0, 99.0, 99.0, 99.0, 99.0, 99.0}, w = 99.0, pw = 99.0;
    call([&](KorError *fail) { g01ddc(kCount, sorted, 1, a, &w, &pw, fail); });
    outputs(a, kCount);
    outputs(w, pw);
}

KOR_SPECIMEN(g01dhc)
{
    double r[kCount] = {99.0, 99.0, 99.0, 99.0, 99.0, 99.0, 99.0, 99.0};
    call([&](KorError *fail) { g01dhc(Kor_BlomScores, Kor_AverageTies, kCount, kSample, r, fail); });
    outputs(r, kCount);
}

KOR_SPECIMEN(g01hbc)
{
    const double b[] = {0.5, 0.0, -0.25, 1.0}, mean[] = {0.0, 0.0, 0.0, 0.0};
    const double sig[] = {1.0, 0.5, 0.5, 0.5, 0.5, 1.0, 0.5, 0.5, 0.5, 0.5, 1.0, 0.5, 0.5, 0.5, 0.5, 1.0};
    double p = 99.0;
    call([&](KorError *fail) {
        const double value = g01hbc(Kor_LowerTail, 4, b, b, mean, sig, 4, 1e-4, 6000, fail);
        if (value != 0.0) p = value; // 0 after an error
    });
    outputs(p);
}
