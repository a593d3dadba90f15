/* What is in the gas when propane burns in air, at eight to twelve times as much air as propane?
 *
 * The composition at 40 atmospheres: ten reactions in equilibrium and four conservation laws. The problem, its constants and the
 * reduction to five unknowns are those of K. Meintjes and A. P. Morgan, Chemical equilibrium systems as numerical test problems,
 * ACM Trans. Math. Softw. 16 (1990) 143-151. The unknowns are surrogates of amounts, relative to one mole of propane. */
#include <kor/c05.h>

#include <math.h>
#include <stdio.h>

/* Equilibrium constants as they enter the equations, for p = 40 atmospheres and air to propane ratio r. */
typedef struct {
    double r, r5, r6, r7, r8, r9, r10;
} Mixture;

static Mixture mixture(double pressure, double ratio)
{
    const double root = sqrt(pressure);
    Mixture m;
    m.r = ratio;
    m.r5 = 0.193;
    m.r6 = 0.002597 / root;
    m.r7 = 0.003448 / root;
    m.r8 = 0.00001799 / pressure;
    m.r9 = 0.0002155 / root;
    m.r10 = 0.00003846 / pressure;
    return m;
}

/* In the logarithms of the unknowns: amounts are positive, and of very different size. */
static void balance(Integer n, const double log_y[], double f[], Integer *userflag, void *comm)
{
    const Mixture *m = comm;
    double y[5];
    int i;
    (void)userflag;
    for (i = 0; i < n; ++i) y[i] = exp(log_y[i]);
    f[0] = y[0] * y[1] + y[0] - 3.0 * y[4];
    f[1] = 2.0 * y[0] * y[1] + y[0] + 2.0 * m->r10 * y[1] * y[1] + y[1] * y[2] * y[2] + m->r7 * y[1] * y[2] +
           m->r9 * y[1] * y[3] + m->r8 * y[1] - m->r * y[4];
    f[2] = 2.0 * y[1] * y[2] * y[2] + m->r7 * y[1] * y[2] + 2.0 * m->r5 * y[2] * y[2] + m->r6 * y[2] - 8.0 * y[4];
    f[3] = m->r9 * y[1] * y[3] + 2.0 * y[3] * y[3] - 4.0 * m->r * y[4];
    f[4] = y[0] * y[1] + y[0] + m->r10 * y[1] * y[1] + y[1] * y[2] * y[2] + m->r7 * y[1] * y[2] + m->r9 * y[1] * y[3] +
           m->r8 * y[1] + m->r5 * y[2] * y[2] + m->r6 * y[2] + y[3] * y[3] - 1.0;
}

int main(void)
{
    const double guess[5] = {0.003, 30.0, 0.06, 0.9, 0.04};
    double ratio;
    printf("air/propane             y1            y2               y3              y4            y5       |f|\n");
    for (ratio = 8.0; ratio <= 12.0; ratio += 1.0) {
        Mixture m = mixture(40.0, ratio);
        double y[5], f[5], norm = 0.0;
        KorError fail = {0};
        int i;
        for (i = 0; i < 5; ++i) y[i] = log(guess[i]);
        c05tbc(5, balance, y, f, 1e-12, &m, &fail);
        for (i = 0; i < 5; ++i) norm = fmax(norm, fabs(f[i]));
        printf("%11.1f  %17.10f %13.8f %16.10f %15.10f %12.8f   %s\n", ratio, exp(y[0]), exp(y[1]), exp(y[2]),
               exp(y[3]), exp(y[4]), norm < 1e-11 ? "< 1e-11" : "large");
        if (fail.code != NE_NOERROR) {
            printf("%s\n", fail.message);
            return 1;
        }
    }
    return 0;
}
