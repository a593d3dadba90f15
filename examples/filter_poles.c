/* Poles and frequency response of a digital filter: the recursive part of the A-weighting of sound level meters.
 *
 * The analogue filter has its poles at the frequencies fixed by IEC 61672-1; here each factor is carried to 48 kHz by the
 * bilinear transform and multiplied out, as filter design programs store it. The zeros of the denominator are the poles: all must lie
 * within the unit circle, and the ones near z = 1 tell how well the coefficients determine them. */
#include <kor/c02.h>

#include <math.h>
#include <stdio.h>

enum { order = 6 };

static void multiply(double poly[], int degree, double zero)
{
    int k;
    poly[degree + 1] = 0.0;
    for (k = degree + 1; k > 0; --k) poly[k] -= zero * poly[k - 1];
}

int main(void)
{
    /* Pole frequencies in Hz: two double poles and two simple ones. */
    const double frequency[order] = {20.598997, 20.598997, 107.65265, 737.86223, 12194.217, 12194.217};
    const double rate = 48000.0, pi = 3.141592653589793;
    double a[order + 1] = {1.0}, worst = 0.0;
    Complex z[order];
    KorError fail = {0};
    int i, j;

    for (i = 0; i < order; ++i) {
        const double w = 2.0 * pi * frequency[i] / (2.0 * rate);
        multiply(a, i, (1.0 - w) / (1.0 + w));
    }
    c02agc(order, a, 1, z, &fail);
    if (fail.code != NE_NOERROR) {
        puts(fail.message);
        return 1;
    }
    printf("poles:        real   imaginary     modulus\n");
    for (i = 0; i < order; ++i) {
        const double modulus = hypot(z[i].re, z[i].im);
        printf("        %10.6f  %10.6f  %10.6f\n", z[i].re, fabs(z[i].im) < 5e-7 ? 0.0 : z[i].im, modulus);
        worst = fmax(worst, modulus);
    }
    printf("The filter is %s.\n\n", worst < 1.0 ? "stable" : "not stable");

    /* Four zeros at z = 1 and two at z = -1 complete it: the response in dB, relative to 1 kHz, and a plot. */
    {
        double reference = 0.0, hz;
        int pass;
        for (pass = 0; pass < 2; ++pass) {
            for (hz = pass == 0 ? 1000.0 : 31.25; hz <= (pass == 0 ? 1000.0 : 16000.0); hz *= 2.0) {
                const double t = 2.0 * pi * hz / rate, c = cos(t), s = sin(t);
                double level = 4.0 * log10(hypot(c - 1.0, s)) + 2.0 * log10(hypot(c + 1.0, s));
                for (j = 0; j < order; ++j) level -= log10(hypot(c - z[j].re, s - z[j].im));
                level *= 20.0;
                if (pass == 0) {
                    reference = level;
                } else {
                    int stars = (int)floor(0.5 * (level - reference) + 30.5);
                    printf("%8.0f Hz %7.1f dB  ", hz, level - reference);
                    while (stars-- > 0) putchar('*');
                    putchar('\n');
                }
            }
        }
    }
    return 0;
}
