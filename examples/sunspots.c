/* The spectrum of the sunspots: which periods are there in 289 years of counts?
 *
 * The record is freed of its mean, tapered to zero at its ends so that they do not pretend to be a jump, and continued by zeros to a
 * length that the transform likes: the spectrum then comes at closer frequencies. Run with a file name, the program draws it:
 *
 *     sunspots spectrum.svg
 */
#include <kor/c06.h>

#include <math.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>

enum { MOST_YEARS = 400, LENGTH = 5040 };

static int read_record(const char *path, double *counts)
{
    char line[200];
    int years = 0;
    FILE *file = fopen(path, "r");
    if (file == NULL) {
        fprintf(stderr, "%s is not here: please run this program in the folder examples\n", path);
        exit(1);
    }
    while (years < MOST_YEARS && fgets(line, sizeof line, file) != NULL)
        if (line[0] != '#' && sscanf(line, "%*d %lf", &counts[years]) == 1) ++years;
    fclose(file);
    return years;
}

static void stop_on_failure(const KorError *fail)
{
    if (fail->code == NE_NOERROR) return;
    fprintf(stderr, "%s\n", fail->message);
    exit(1);
}

/* Power at frequency k / LENGTH a year. */
static void draw(const char *path, const double *power, double most)
{
    const double width = 720.0, height = 320.0, left = 40.0, top = 20.0, highest = 0.25; /* cycles a year */
    const int periods[] = {100, 50, 20, 11, 8, 5};
    int k, i;
    FILE *file = fopen(path, "w");
    if (file == NULL) return;
    fprintf(file,
            "<svg xmlns=\"http://www.w3.org/2000/svg\" viewBox=\"0 0 %g %g\" font-family=\"sans-serif\" "
            "font-size=\"12\">\n",
            width + 2.0 * left, height + 70.0);
    fprintf(file, "<rect width=\"100%%\" height=\"100%%\" fill=\"white\"/>\n");
    fprintf(file, "<path d=\"M%g %gh%g\" stroke=\"black\" fill=\"none\"/>\n", left, top + height, width);
    for (i = 0; i < 6; ++i) {
        const double x = left + width / (periods[i] * highest);
        fprintf(file,
                "<path d=\"M%.1f %gv6\" stroke=\"black\"/><text x=\"%.1f\" y=\"%g\" text-anchor=\"middle\">%d</text>\n",
                x, top + height, x, top + height + 20.0, periods[i]);
    }
    fprintf(file, "<text x=\"%g\" y=\"%g\" text-anchor=\"middle\">period in years</text>\n", left + 0.5 * width,
            top + height + 42.0);
    fprintf(file, "<text x=\"%g\" y=\"%g\">power</text>\n", left, top);
    fprintf(file, "<path fill=\"none\" stroke=\"#c04000\" stroke-width=\"1.5\" d=\"");
    for (k = 0; k <= LENGTH * highest; k += 2)
        fprintf(file, "%c%.1f %.1f", k == 0 ? 'M' : 'L', left + width * k / (LENGTH * highest),
                top + height * (1.0 - 0.9 * power[k] / most));
    fprintf(file, "\"/>\n</svg>\n");
    fclose(file);
}

int main(int argc, char *argv[])
{
    const double pi = 3.14159265358979323846;
    static double counts[MOST_YEARS], x[LENGTH], start[LENGTH], power[LENGTH / 2 + 1];
    double mean = 0.0, most = 0.0, difference = 0.0;
    KorError fail = {0};
    static int peaks[LENGTH / 4];
    int k, found, count = 0;
    const int years = read_record("data/sunspots.txt", counts);

    for (k = 0; k < years; ++k) mean += counts[k] / years;
    for (k = 0; k < years; ++k) x[k] = (counts[k] - mean) * (1.0 - cos(2.0 * pi * (k + 0.5) / years));
    memcpy(start, x, sizeof x);

    /* Re z_k stands at k, Im z_k at LENGTH - k. */
    c06eac(LENGTH, x, &fail);
    stop_on_failure(&fail);
    power[0] = x[0] * x[0];
    for (k = 1; k < LENGTH / 2; ++k) power[k] = x[k] * x[k] + x[LENGTH - k] * x[LENGTH - k];
    power[LENGTH / 2] = x[LENGTH / 2] * x[LENGTH / 2];

    printf("%d years, mean %.1f\n\nstrongest periods\n", years, mean);
    for (k = 0; k <= LENGTH / 2; ++k) most = fmax(most, power[k]);
    for (k = 1; k < LENGTH / 2; ++k)
        if (power[k] > power[k - 1] && power[k] >= power[k + 1]) peaks[count++] = k;
    for (found = 0; found < 5 && found < count; ++found) {
        int best = found;
        for (k = found + 1; k < count; ++k)
            if (power[peaks[k]] > power[peaks[best]]) best = k;
        k = peaks[best];
        peaks[best] = peaks[found];
        printf("%6.1f years  %5.1f %%  ", (double)LENGTH / k, 100.0 * power[k] / most);
        for (best = 0; best < 50.0 * power[k] / most; ++best) putchar('*');
        putchar('\n');
    }
    if (argc > 1) draw(argv[1], power, most);

    /* The transform has the same exponent in either direction: the way back leads by the conjugate. */
    c06gbc(LENGTH, x, &fail);
    c06ebc(LENGTH, x, &fail);
    stop_on_failure(&fail);
    for (k = 0; k < LENGTH; ++k) difference = fmax(difference, fabs(x[k] - start[k]));
    printf("\nback again: %s\n", difference < 1e-12 ? "the same within 1e-12" : "something is wrong");
    return 0;
}
