#include <cmath>

#include <kor/d01.h>
#include <kor/g05.h>
#include <kor/x04.h>

#include "support/specimen.hpp"

namespace {

double bell(double x) { return 1.0 / (1.0 + 25.0 * x * x); }
double bell_with(double x, void *) { return bell(x); }

// A record with its arrays to be freed, and what of it counts as output.
struct Record : KorQuadRecord {
    Record() : KorQuadRecord{} {}
    ~Record()
    {
        for (double **array : {&left_ends, &right_ends, &subint_results, &subint_errors})
            x04bdc(reinterpret_cast<void **>(array));
    }
};
struct IntervalRecord : KorQuadIntervalRecord {
    IntervalRecord() : KorQuadIntervalRecord{} {}
    ~IntervalRecord()
    {
        x04bdc(reinterpret_cast<void **>(&interval_results));
        x04bdc(reinterpret_cast<void **>(&interval_errors));
        x04bdc(reinterpret_cast<void **>(&interval_flags));
    }
};

const double kBreaks[] = {0.25};

} // namespace

#define INTEGRAL(name, ...)                                                                                            \
    KOR_SPECIMEN(name)                                                                                                 \
    {                                                                                                                  \
        double result = 99.0, abserr = 99.0;                                                                           \
        Record qp;                                                                                                     \
        call([&](KorError *fail) { name(__VA_ARGS__); });                                                              \
        outputs(result, abserr, qp.subint_count, qp.eval_count);                                                       \
        outputs(qp.subint_errors, qp.subint_count);                                                                    \
    }
INTEGRAL(d01ajc, bell, 0.0, 1.0, 0.0, 1e-9, 50, &result, &abserr, &qp, fail)
INTEGRAL(d01akc, bell, 0.0, 1.0, 0.0, 1e-9, 50, &result, &abserr, &qp, fail)
INTEGRAL(d01alc, bell, 0.0, 1.0, 1, kBreaks, 0.0, 1e-9, 50, &result, &abserr, &qp, fail)
INTEGRAL(d01amc, bell, Kor_Infinite, 0.0, 0.0, 1e-9, 50, &result, &abserr, &qp, fail)
INTEGRAL(d01anc, bell, 0.0, 1.0, 9.0, Kor_Sine, 0.0, 1e-9, 50, &result, &abserr, &qp, fail)
INTEGRAL(d01apc, bell, 0.0, 1.0, -0.5, 0.5, Kor_Alg_loga, 0.0, 1e-9, 50, &result, &abserr, &qp, fail)
INTEGRAL(d01aqc, bell, -1.0, 1.0, 0.25, 0.0, 1e-9, 50, &result, &abserr, &qp, fail)
INTEGRAL(d01sjc, bell_with, 0.0, 1.0, 0.0, 1e-9, 50, &result, &abserr, &qp, nullptr, fail)
INTEGRAL(d01skc, bell_with, 0.0, 1.0, 0.0, 1e-9, 50, &result, &abserr, &qp, nullptr, fail)
INTEGRAL(d01slc, bell_with, 0.0, 1.0, 1, kBreaks, 0.0, 1e-9, 50, &result, &abserr, &qp, nullptr, fail)
INTEGRAL(d01smc, bell_with, Kor_Infinite, 0.0, 0.0, 1e-9, 50, &result, &abserr, &qp, nullptr, fail)
INTEGRAL(d01snc, bell_with, 0.0, 1.0, 9.0, Kor_Cosine, 0.0, 1e-9, 50, &result, &abserr, &qp, nullptr, fail)
INTEGRAL(d01spc, bell_with, 0.0, 1.0, -0.5, 0.5, Kor_Alg_logb, 0.0, 1e-9, 50, &result, &abserr, &qp, nullptr, fail)
INTEGRAL(d01sqc, bell_with, -1.0, 1.0, 0.25, 0.0, 1e-9, 50, &result, &abserr, &qp, nullptr, fail)

#define FOURIER_INTEGRAL(name, ...)                                                                                    \
    KOR_SPECIMEN(name)                                                                                                 \
    {                                                                                                                  \
        double result = 99.0, abserr = 99.0;                                                                           \
        IntervalRecord qp;                                                                                             \
        call([&](KorError *fail) { name(__VA_ARGS__); });                                                              \
        outputs(result, abserr, qp.interval_count, qp.eval_count);                                                     \
        outputs(qp.interval_results, qp.interval_count);                                                               \
    }
FOURIER_INTEGRAL(d01asc, bell, 0.0, 2.0, Kor_Cosine, 50, 50, 1e-8, &result, &abserr, &qp, fail)
FOURIER_INTEGRAL(d01ssc, bell_with, 0.0, 2.0, Kor_Sine, 50, 50, 1e-8, &result, &abserr, &qp, nullptr, fail)

KOR_SPECIMEN(d01bac)
{
    double value = 99.0;
    call([&](KorError *fail) { value = d01bac(Kor_Hermite, bell, 0.0, 1.0, 8, fail); });
    outputs(value);
}

KOR_SPECIMEN(d01tac)
{
    double value = 99.0;
    call([&](KorError *fail) { value = d01tac(Kor_Rational, bell_with, 1.0, 1.0, 8, nullptr, fail); });
    outputs(value);
}

KOR_SPECIMEN(d01bbc)
{
    double w[6] = {}, x[6] = {};
    call([&](KorError *fail) { d01bbc(Kor_Laguerre, 0.0, 1.0, 6, w, x, fail); });
    outputs(w, x);
}

KOR_SPECIMEN(d01gac)
{
    const double x[5] = {0.0, 0.5, 1.5, 2.0, 3.0}, y[5] = {0.0, 0.2, 3.0, 8.0, 26.0};
    double ans = 99.0, er = 99.0;
    call([&](KorError *fail) { d01gac(5, x, y, &ans, &er, fail); });
    outputs(ans, er);
}

namespace {

double plane_bell(Integer, const double x[]) { return bell(x[0]) * bell(x[1]); }
double plane_bell_with(Integer n, const double x[], void *) { return plane_bell(n, x); }
const double kLow[] = {0.0, 0.0}, kHigh[] = {1.0, 1.0};

} // namespace

#define BOX_INTEGRAL(name, ...)                                                                                        \
    KOR_SPECIMEN(name)                                                                                                 \
    {                                                                                                                  \
        double value = 99.0, acc = 99.0;                                                                               \
        g05cbc(7); /* the thread's generator is part of the input */                                                   \
        call([&](KorError *fail) { name(__VA_ARGS__); });                                                              \
        outputs(value, acc);                                                                                           \
    }
BOX_INTEGRAL(d01fcc, 2, plane_bell, kLow, kHigh, 0, 20000, 1e-5, &acc, &value, fail)
BOX_INTEGRAL(d01wcc, 2, plane_bell_with, kLow, kHigh, 0, 20000, 1e-5, &acc, &value, nullptr, fail)
BOX_INTEGRAL(d01gbc, 2, plane_bell, Kor_OneIteration, Kor_Cold, kLow, kHigh, 10, 4000, 0.5, 20, &value, &acc, fail)
BOX_INTEGRAL(d01xbc, 2, plane_bell_with, Kor_ManyIterations, Kor_Cold, kLow, kHigh, 10, 4000, 0.5, 20, &value, &acc,
             nullptr, fail)
