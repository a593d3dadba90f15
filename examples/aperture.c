/* How sharp can a telescope see?
 *
 * A circular opening of diameter D turns the point of a star into a disc with rings (G. B. Airy, 1835). With x = pi D sin(theta) / lambda
 * the intensity is (2 J1(x)/x)^2, the share of the light within x is 1 - J0(x)^2 - J1(x)^2, dark rings lie at the zeros of J1, and bright
 * ones at those of J2. Two stars are told apart when one's centre lies on the other's first dark ring (Lord Rayleigh, 1879).
 * Diameters: as published by the observatories. Separations: Washington Double Star Catalog, about 2020, rounded.
 *
 * With the name of a file as its argument the program draws the pattern there, as SVG. */
#include <kor/s17.h>
#include <kor/s18.h>

#include <math.h>
#include <stdio.h>

#define RINGS 5

static const double pi = 3.141592653589793, lambda = 550e-9;

static double intensity(double x)
{
    const double amplitude = x == 0.0 ? 1.0 : 2.0 * s17afc(x, NULL) / x;
    return amplitude * amplitude;
}

static double share_within(double x)
{
    const double j0 = s17aec(x, NULL), j1 = s17afc(x, NULL);
    return 1.0 - j0 * j0 - j1 * j1;
}

/* The smallest angle between two stars that are told apart, in seconds of arc. */
static double resolution(double diameter, double first_dark_ring)
{
    return asin(first_dark_ring * lambda / (pi * diameter)) * 180.0 * 3600.0 / pi;
}

static void draw(const char *file_name, const double dark[RINGS])
{
    const double last = dark[RINGS - 1], width = 480.0, height = 240.0;
    FILE *file = fopen(file_name, "w");
    int i;

    if (!file) {
        printf("%s cannot be written\n", file_name);
        return;
    }
    fprintf(
        file,
        "<svg xmlns='http://www.w3.org/2000/svg' viewBox='0 0 %.0f %.0f' font-family='sans-serif' font-size='11'>\n",
        width + 280.0, height + 50.0);
    fprintf(file, "<rect width='100%%' height='100%%' fill='white'/>\n");
    /* the pattern: discs from the largest to the smallest, brightened so that the rings are seen */
    for (i = 120; i >= 0; --i) {
        const double x = last * i / 120.0;
        const int grey = (int)(255.0 * pow(intensity(x), 0.25));
        fprintf(file, "<circle cx='%.0f' cy='%.0f' r='%.2f' fill='rgb(%d,%d,%d)'/>\n", width + 160.0,
                height / 2.0 + 20.0, 110.0 * x / last + 1.0, grey, grey, grey);
    }
    /* intensity in powers of ten, and the light within x */
    for (i = 0; i < RINGS; ++i)
        fprintf(file, "<line x1='%.2f' y1='20' x2='%.2f' y2='%.0f' stroke='#ccc'/>\n",
                40.0 + (width - 40.0) * dark[i] / last, 40.0 + (width - 40.0) * dark[i] / last, height + 20.0);
    fprintf(file, "<polyline fill='none' stroke='#1f4e9c' points='");
    for (i = 0; i <= 600; ++i) {
        const double x = last * i / 600.0;
        fprintf(file, "%.2f,%.2f ", 40.0 + (width - 40.0) * i / 600.0,
                20.0 - height / 5.0 * fmax(log10(intensity(x)), -5.0));
    }
    fprintf(file, "'/>\n<polyline fill='none' stroke='#b03a2e' points='");
    for (i = 0; i <= 600; ++i)
        fprintf(file, "%.2f,%.2f ", 40.0 + (width - 40.0) * i / 600.0,
                20.0 + height * (1.0 - share_within(last * i / 600.0)));
    fprintf(file, "'/>\n");
    for (i = 0; i <= 5; ++i) fprintf(file, "<text x='2' y='%.0f'>1e-%d</text>\n", 24.0 + height / 5.0 * i, i);
    fprintf(file,
            "<text x='40' y='%.0f'>x from 0 to %.3f, dark rings marked: intensity (blue, powers of ten), "
            "share of the light within x (red, 0 to 1)</text>\n</svg>\n",
            height + 40.0, last);
    fclose(file);
}

int main(int argc, char **argv)
{
    static const struct {
        const char *name;
        double diameter; /* metres */
    } instruments[] = {{"eye by night", 0.006},
                       {"binoculars", 0.05},
                       {"amateur's telescope", 0.2},
                       {"Hubble Space Telescope", 2.4},
                       {"Keck", 10.0}};
    static const struct {
        const char *name;
        double separation; /* seconds of arc */
    } doubles[] = {{"Albireo", 34.5}, {"Mizar", 14.4}, {"Castor", 5.4}, {"epsilon Lyrae B", 2.4}, {"zeta Cancri", 1.1}};
    double dark[RINGS], bright[RINGS];
    KorError fail = {0};
    int i, j;

    s17alc(1.0, RINGS, 1, 1e-15, dark, &fail);
    s17alc(2.0, RINGS, 1, 1e-15, bright, &fail);
    if (fail.code != NE_NOERROR) {
        puts(fail.message);
        return 1;
    }
    printf("          dark ring               bright ring\n");
    printf("  x                light within   x          intensity\n");
    for (i = 0; i < RINGS; ++i)
        printf("%17.14f  %8.5f %%   %17.14f  %.7f\n", dark[i], 100.0 * share_within(dark[i]), bright[i],
               intensity(bright[i]));

    printf("\nAt %.0f nm, seconds of arc that are told apart:\n", lambda * 1e9);
    for (i = 0; i < (int)(sizeof instruments / sizeof *instruments); ++i) {
        const double angle = resolution(instruments[i].diameter, dark[0]);
        printf("%-23s %6.3f m %9.4f\"  parts", instruments[i].name, instruments[i].diameter, angle);
        for (j = 0; j < (int)(sizeof doubles / sizeof *doubles); ++j)
            if (angle < doubles[j].separation) printf("%s %s", j ? "," : "", doubles[j].name);
        printf("%s\n", angle < doubles[0].separation ? "" : " none of our double stars");
    }
    if (argc > 1) draw(argv[1], dark);
    return 0;
}
