#include <cmath>

#include <kor/d01.h>
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
