#include <kor/c02.h>
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

namespace {

void circle_and_line(Integer, const double x[], double fvec[], Integer *)
{
    fvec[0] = x[0] * x[0] + x[1] * x[1] - 1.0;
    fvec[1] = x[0] - x[1];
}
void circle_and_line_comm(Integer n, const double x[], double fvec[], Integer *flag, void *)
{
    circle_and_line(n, x, fvec, flag);
}
void with_jacobian(Integer n, const double x[], double fvec[], double fjac[], Integer tdfjac, Integer *flag)
{
    if (*flag == 1) return circle_and_line(n, x, fvec, flag);
    fjac[0] = 2.0 * x[0];
    fjac[1] = 2.0 * x[1];
    fjac[tdfjac] = 1.0;
    fjac[tdfjac + 1] = -1.0;
}
void with_jacobian_comm(Integer n, const double x[], double fvec[], double fjac[], Integer tdfjac, Integer *flag,
                        void *)
{
    with_jacobian(n, x, fvec, fjac, tdfjac, flag);
}

} // namespace

#define SYSTEM_SPECIMEN(name, ...)                                                                                     \
    KOR_SPECIMEN(name)                                                                                                 \
    {                                                                                                                  \
        double x[2] = {1.0, 0.5}, fvec[2] = {99.0, 99.0}, fjac[4] = {99.0, 99.0, 99.0, 99.0};                          \
        call([&](KorError *fail) { name(__VA_ARGS__, fail); });                                                        \
        outputs(x, fvec, fjac);                                                                                        \
    }
SYSTEM_SPECIMEN(c05nbc, 2, circle_and_line, x, fvec, 1e-10)
SYSTEM_SPECIMEN(c05tbc, 2, circle_and_line_comm, x, fvec, 1e-10, nullptr)
SYSTEM_SPECIMEN(c05pbc, 2, with_jacobian, x, fvec, fjac, 2, 1e-10)
SYSTEM_SPECIMEN(c05ubc, 2, with_jacobian_comm, x, fvec, fjac, 2, 1e-10, nullptr)
SYSTEM_SPECIMEN(c05zbc, 2, x, fvec, fjac, 2, with_jacobian)
SYSTEM_SPECIMEN(c05zcc, 2, x, fvec, fjac, 2, with_jacobian_comm, nullptr)

KOR_SPECIMEN(c02afc)
{
    const Complex a[4] = {{1.0, 0.5}, {2.0, 0.0}, {-1.0, 3.0}, {4.0, 1.0}};
    Complex z[3] = {};
    call([&](KorError *fail) { c02afc(3, a, 1, z, fail); });
    outputs(z);
}

KOR_SPECIMEN(c02agc)
{
    const double a[5] = {1.0, 2.0, -1.0, 4.0, 0.5};
    Complex z[4] = {};
    call([&](KorError *fail) { c02agc(4, a, 1, z, fail); });
    outputs(z);
}

KOR_SPECIMEN(c02akc)
{
    double re[3] = {}, im[3] = {}, estimate[3] = {};
    call([&](KorError *fail) { c02akc(1.0, 2.0, -3.0, 0.5, re, im, estimate, fail); });
    outputs(re, im, estimate);
}

KOR_SPECIMEN(c02alc)
{
    double re[4] = {}, im[4] = {}, estimate[4] = {};
    call([&](KorError *fail) { c02alc(1.0, 2.0, -3.0, 0.5, 0.25, re, im, estimate, fail); });
    outputs(re, im, estimate);
}
