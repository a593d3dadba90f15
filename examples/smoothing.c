/*
 * Smoothing a noisy series: the yearly numbers of sunspots, at three values of the smoothing factor.
 *
 * e02bec finds the knots and the spline; warm starts go from the smoothest curve to ever more detailed ones. e02bcc tells
 * where the curve has its maxima, e02bdc its mean. The square roots of the numbers are smoothed, for their errors are of
 * one size. With the name of a file as its argument the program draws the curves there, as SVG.
 */
#include <kor/e02.h>
#include <kor/x04.h>

#include <math.h>
#include <stdio.h>
#include <stdlib.h>

enum { MOST_YEARS = 400, CURVES = 3 };

static const double smoothing[CURVES] = {2500.0, 900.0, 120.0};
static const char *const colours[CURVES] = {"#888888", "#1f77b4", "#d62728"};

static void check(const KorError *fail)
{
    if (fail->code == NE_NOERROR) return;
    puts(fail->message);
    exit(EXIT_FAILURE);
}

static Integer read_series(double year[], double root[])
{
    FILE *file = fopen("data/sunspots.txt", "r");
    char line[256];
    double number;
    Integer m = 0;
    if (file == NULL) {
        puts("data/sunspots.txt is not here: please run this program in the folder examples");
        exit(EXIT_FAILURE);
    }
    while (m < MOST_YEARS && fgets(line, sizeof line, file) != NULL) {
        if (sscanf(line, "%lf %lf", &year[m], &number) == 2) root[m++] = sqrt(number);
    }
    fclose(file);
    return m;
}

static Integer count_maxima(const KorSpline *spline, double from, double to)
{
    KorError fail = {0};
    double x, s[4], before = 0.0;
    Integer maxima = 0;
    for (x = from; x <= to; x += 0.125) {
        e02bcc(Kor_RightDerivs, x, s, spline, &fail);
        check(&fail);
        if (x > from && before > 0.0 && s[1] <= 0.0) maxima++;
        before = s[1];
    }
    return maxima;
}

static void draw_curve(FILE *svg, const KorSpline *spline, double from, double to, const char *colour)
{
    KorError fail = {0};
    double x, s;
    fprintf(svg, "<polyline fill=\"none\" stroke=\"%s\" stroke-width=\"1.5\" points=\"", colour);
    for (x = from; x <= to; x += 0.25) {
        e02bbc(x, &s, spline, &fail);
        check(&fail);
        fprintf(svg, "%.1f,%.1f ", 4.0 * (x - from), 320.0 - 20.0 * s);
    }
    fprintf(svg, "\"/>\n");
}

int main(int argc, char **argv)
{
    double year[MOST_YEARS], root[MOST_YEARS], weights[MOST_YEARS], fp, integral;
    Integer m = read_series(year, root), i;
    KorError fail = {0};
    KorSpline spline;
    KorSplineWarm state;
    FILE *svg = argc > 1 ? fopen(argv[1], "w") : NULL;

    for (i = 0; i < m; i++) weights[i] = 1.0;
    if (svg != NULL) {
        fprintf(svg, "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"%.0f\" height=\"330\">\n",
                4.0 * (year[m - 1] - year[0]));
        for (i = 0; i < m; i++)
            fprintf(svg, "<circle cx=\"%.1f\" cy=\"%.1f\" r=\"1.5\"/>\n", 4.0 * (year[i] - year[0]),
                    320.0 - 20.0 * root[i]);
    }

    printf("Sunspots, %.0f to %.0f: %ld years\n", year[0], year[m - 1], (long)m);
    puts("       s    sum of squares    knots   maxima   mean of the root");
    for (i = 0; i < CURVES; i++) {
        e02bec(i == 0 ? Kor_Cold : Kor_Warm, m, year, root, weights, smoothing[i], m + 4, &fp, &state, &spline, &fail);
        check(&fail);
        e02bdc(&integral, &spline, &fail);
        check(&fail);
        printf("%8.0f%18.1f%9ld%9ld%19.4f\n", smoothing[i], fp, (long)spline.n,
               (long)count_maxima(&spline, year[0], year[m - 1]), integral / (year[m - 1] - year[0]));
        if (svg != NULL) draw_curve(svg, &spline, year[0], year[m - 1], colours[i]);
    }
    puts("The last curve has a maximum for each cycle, of some eleven years.");
    if (svg != NULL) {
        fprintf(svg, "</svg>\n");
        fclose(svg);
    }
    x04bdc((void **)&spline.lamda);
    x04bdc((void **)&spline.c);
    x04bdc((void **)&state.wrk);
    x04bdc((void **)&state.iwrk);
    return 0;
}
