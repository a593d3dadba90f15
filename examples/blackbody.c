/* How much of the sun's radiation is visible light?
 *
 * The sun radiates nearly as a black body of 5772 K (nominal value of the International Astronomical Union, resolution B3 of 2015).
 * In x = h c / (lambda k T) the share of a band of wavelengths is 15/pi^4 times the integral of x^3/(exp(x) - 1). Constants: CODATA 2018,
 * exact by definition. The second part compares the errors achieved with those asked for. */
#include <kor/d01.h>
#include <kor/x04.h>

#include <math.h>
#include <stdio.h>

static double planck(double x) { return x > 0.0 ? x * x * x / expm1(x) : 0.0; }

static void release(KorQuadRecord *record)
{
    x04bdc((void **)&record->left_ends);
    x04bdc((void **)&record->right_ends);
    x04bdc((void **)&record->subint_results);
    x04bdc((void **)&record->subint_errors);
}

int main(void)
{
    const double h = 6.62607015e-34, c = 299792458.0, k = 1.380649e-23, temperature = 5772.0, pi = 3.141592653589793;
    const double scale = h * c / (k * temperature), total = pi * pi * pi * pi / 15.0;
    const struct {
        const char *name;
        double from, to; /* nanometres */
    } bands[] = {{"ultraviolet B, C", 100.0, 315.0},
                 {"ultraviolet A", 315.0, 400.0},
                 {"visible", 400.0, 750.0},
                 {"near infrared", 750.0, 2500.0}};
    double sum = 0.0, result, abserr;
    KorQuadRecord record;
    KorError fail = {0};
    int i, digits;

    for (i = 0; i < 4; ++i) {
        d01ajc(planck, scale / (bands[i].to * 1e-9), scale / (bands[i].from * 1e-9), 0.0, 1e-12, 200, &result, &abserr,
               &record, &fail);
        if (fail.code != NE_NOERROR) puts(fail.message);
        printf("%-18s %5.0f to %5.0f nm  %9.6f %%  (%d evaluations)\n", bands[i].name, bands[i].from, bands[i].to,
               100.0 * result / total, record.eval_count);
        sum += result;
        release(&record);
    }
    printf("%-35s %9.6f %%\n\n", "everything else", 100.0 * (1.0 - sum / total));

    printf("relative error, as the power of ten: asked for, estimated (e) and achieved (*)\n");
    for (digits = 2; digits <= 14; digits += 2) {
        double achieved, estimated;
        int column;
        d01amc(planck, Kor_UpperSemiInfinite, 0.0, 0.0, pow(10.0, -digits), 200, &result, &abserr, &record, &fail);
        achieved = -log10(fmax(fabs(result / total - 1.0), 1e-16));
        estimated = -log10(abserr / total);
        printf("%5d %4d ", -digits, record.eval_count);
        for (column = 0; column <= 16; ++column)
            putchar(column == (int)achieved ? '*' : column == (int)estimated ? 'e' : column == digits ? '|' : '.');
        putchar('\n');
        release(&record);
    }
    return 0;
}
