/* A program of a user, in C99: a result, an error, exported data, a kernel chosen by the processor, and BLAS behind it all. */
#include <kor/c05.h>
#include <kor/f06.h>
#include <kor/m01.h>
#include <kor/p01.h>
#include <kor/x02.h>

#include <math.h>
#include <stdio.h>
#include <string.h>

static double square_less_two(double x) { return x * x - 2.0; }

int main(void)
{
    KorError fail = {0};
    double x = 0.0;

    c05adc(0.0, 2.0, &x, square_less_two, 1e-14, 0.0, &fail);
    if (fail.code != NE_NOERROR || fabs(x - sqrt(2.0)) > 1e-14) return 1;

    c05adc(0.0, 2.0, &x, square_less_two, -1.0, 0.0, &fail);
    if (fail.code != NE_REAL_ARG_LE || strncmp(fail.message, kor_errlist[fail.code], strlen("NE_REAL_ARG_LE:")) != 0)
        return 2;

    enum { N = 1000 };
    double v[N];
    int i;
    for (i = 0; i < N; i++) v[i] = (i * 617) % N;
    m01cac(v, N, Kor_Ascending, &fail);
    for (i = 0; i < N; i++)
        if (fail.code != NE_NOERROR || v[i] != i) return 4;
    if (f06eac(N, v, 1, v, 1) != (N - 1.0) * N * (2.0 * N - 1.0) / 6.0) return 5;

    if (!(1.0 + 2.0 * x02ajc() > 1.0)) return 3;
    puts("C99: ok");
    return 0;
}
