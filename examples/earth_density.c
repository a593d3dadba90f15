/* How dense is the earth?
 *
 * Henry Cavendish weighed the earth in 1797 and 1798 with a torsion balance: 29 determinations of its mean density, in units of that of
 * water (Phil. Trans. 88 (1798) 469-526, as listed by S. M. Stigler, Ann. Statist. 5 (1977) 1055-1098). Are his errors normal, and does
 * the density known today, 5.513, lie within his limits? With a file name as argument the histogram is also written there as SVG. */
#include <kor/g01.h>
#include <kor/m01.h>

#include <math.h>
#include <stdio.h>

#define COUNT 29
#define CLASSES 7

static const double density[COUNT] = {5.50, 5.61, 4.88, 5.07, 5.26, 5.55, 5.36, 5.29, 5.58, 5.65,
                                      5.57, 5.53, 5.62, 5.29, 5.44, 5.34, 5.79, 5.10, 5.27, 5.39,
                                      5.42, 5.47, 5.63, 5.34, 5.46, 5.30, 5.75, 5.68, 5.85};

static int draw(const char *file, const Integer counts[], const double bounds[])
{
    const int width = 60, unit = 20, height = 240;
    FILE *svg = fopen(file, "w");
    int i;
    if (svg == NULL) return 0;
    fprintf(svg,
            "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"%d\" height=\"%d\" font-family=\"sans-serif\" "
            "font-size=\"11\">\n",
            width * CLASSES, height);
    for (i = 0; i < CLASSES; ++i) {
        fprintf(svg, "<rect x=\"%d\" y=\"%d\" width=\"%d\" height=\"%d\" fill=\"steelblue\"/>\n", width * i + 2,
                height - 20 - unit * (int)counts[i], width - 4, unit * (int)counts[i]);
        if (i > 0)
            fprintf(svg, "<text x=\"%d\" y=\"%d\" text-anchor=\"middle\">%.2f</text>\n", width * i, height - 5,
                    bounds[i - 1]);
    }
    fputs("</svg>\n", svg);
    return fclose(svg) == 0;
}

int main(int argc, char **argv)
{
    const double today = 5.513, level = 0.95;
    double bounds[CLASSES - 1];
    double five[5], sorted[COUNT], weights[COUNT], scores[COUNT];
    double mean, sd, skewness, kurtosis, least, greatest, total, w, significance, t, point, error, along = 0.0,
                                                                                                   across = 0.0;
    Integer counts[CLASSES], valid;
    KorError fail = {0};
    int i, k;

    /* The divisor of g01aac is n; the estimate of the deviation that the limits below want has n - 1. */
    g01aac(COUNT, density, NULL, &valid, &mean, &sd, &skewness, &kurtosis, &least, &greatest, &total, &fail);
    sd *= sqrt(COUNT / (COUNT - 1.0));
    g01alc(COUNT, density, five, &fail);
    printf("%d determinations: mean %.4f, standard deviation %.4f, skewness %.3f\n", (int)valid, mean, sd, skewness);
    printf("minimum %.2f, hinges %.2f and %.2f, median %.2f, maximum %.2f\n\n", five[0], five[1], five[3], five[2],
           five[4]);

    for (i = 0; i < CLASSES - 1; ++i) bounds[i] = 5.0 + 0.15 * i;
    g01aec(COUNT, density, CLASSES, Kor_ClassBoundaryUser, bounds, counts, &least, &greatest, &fail);
    for (i = 0; i < CLASSES; ++i) {
        if (i == 0)
            printf("      below %.2f  ", bounds[0]);
        else if (i == CLASSES - 1)
            printf("  %.2f and above  ", bounds[i - 1]);
        else
            printf("   %.2f to %.2f   ", bounds[i - 1], bounds[i]);
        for (k = 0; k < counts[i]; ++k) putchar('*');
        putchar('\n');
    }
    if (argc > 1 && !draw(argv[1], counts, bounds)) fprintf(stderr, "%s cannot be written\n", argv[1]);

    for (i = 0; i < COUNT; ++i) sorted[i] = density[i];
    m01cac(sorted, COUNT, Kor_Ascending, &fail);
    g01ddc(COUNT, sorted, 1, weights, &w, &significance, &fail);
    /* Against the normal scores a normal sample lies on a line, whose slope is the deviation. */
    g01dbc(COUNT, scores, &fail);
    for (i = 0; i < COUNT; ++i) {
        along += scores[i] * scores[i];
        across += scores[i] * sorted[i];
    }
    printf("\nShapiro and Wilk: W = %.4f, significance %.2f; deviation from the normal scores %.4f\n\n", w,
           significance, across / along);

    error = sd / sqrt((double)COUNT);
    point = g01fbc(Kor_TwoTailConfid, level, COUNT - 1.0, &fail);
    printf("limits of %.0f %%: density %.3f to %.3f", 100.0 * level, mean - point * error, mean + point * error);
    printf(", standard deviation %.3f to %.3f\n",
           sd * sqrt((COUNT - 1.0) / g01fcc(0.5 + 0.5 * level, COUNT - 1.0, &fail)),
           sd * sqrt((COUNT - 1.0) / g01fcc(0.5 - 0.5 * level, COUNT - 1.0, &fail)));
    t = (mean - today) / error;
    printf("the density known today, %.3f: t = %.2f, significance %.2f\n", today, t,
           g01ebc(Kor_TwoTailSignif, t, COUNT - 1.0, &fail));
    return 0;
}
