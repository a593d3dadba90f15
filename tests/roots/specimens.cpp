#include <kor/c05.h>

#include "support/specimen.hpp"

namespace {

double square_less_two(double x) { return x * x - 2.0; }
double square_less(double x, void *number) { return x * x - *static_cast<double *>(number); }

} // namespace

KOR_SPECIMEN(c05adc)
{
    double x = 99.0;
    call([&](KorError *fail) { c05adc(0.0, 2.0, &x, square_less_two, 1e-10, 0.0, fail); });
    outputs(x);
}

KOR_SPECIMEN(c05sdc)
{
    double number = 3.0;
    double x = 99.0;
    call([&](KorError *fail) { c05sdc(0.0, 2.0, &x, square_less, 1e-10, 0.0, &number, fail); });
    outputs(x);
}

KOR_SPECIMEN(c05azc)
{
    double x = 0.0, y = 2.0, fx = 0.0, c[17];
    Integer ind = 1;
    // The last call of the protocol, the one that closes with a report.
    KorError quiet{};
    c05azc(&x, &y, &fx, 1e-10, 1, c, &ind, &quiet);
    fx = square_less_two(x);
    c05azc(&x, &y, &fx, 1e-10, 1, c, &ind, &quiet);
    fx = 0.0;
    call([&](KorError *fail) { c05azc(&x, &y, &fx, 1e-10, 1, c, &ind, fail); });
    outputs(x, y, ind);
}
