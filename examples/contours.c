/*
 * Contour lines from scattered heights: a volcano of which 600 of 5307 heights are known.
 *
 * e01sac sets up an interpolant by either method, e01sbc evaluates it on the whole map, and the heights that were left out
 * tell how good it is. With the name of a file as its argument the program draws the contour lines there, as SVG.
 */
#include <kor/e01.h>

#include <math.h>
#include <stdio.h>
#include <stdlib.h>

enum { ROWS = 87, COLUMNS = 61, HEIGHTS = ROWS * COLUMNS, KNOWN = 600 };

static void check(const KorError *fail)
{
    /* Extrapolation beyond the hull of the known points is a warning. */
    if (fail->code == NE_NOERROR || fail->code == NW_VALUE_EXTRAPOLATED || fail->code == NW_SPARSE_DATA_FIT) return;
    puts(fail->message);
    exit(EXIT_FAILURE);
}

static void read_heights(double height[])
{
    FILE *file = fopen("data/volcano.txt", "r");
    char line[512];
    int k = 0;
    if (file == NULL) {
        puts("data/volcano.txt is not here: please run this program in the folder examples");
        exit(EXIT_FAILURE);
    }
    while (k < HEIGHTS && fgets(line, sizeof line, file) != NULL) {
        char *rest = line, *end;
        if (line[0] == '#') continue;
        for (;;) {
            const double value = strtod(rest, &end);
            if (end == rest || k == HEIGHTS) break;
            height[k++] = value;
            rest = end;
        }
    }
    fclose(file);
}

/* Which heights are known: the corners, and others as a simple sequence of numbers has it. */
static void choose(int known[])
{
    const int corners[4] = {0, COLUMNS - 1, HEIGHTS - COLUMNS, HEIGHTS - 1};
    char taken[HEIGHTS] = {0};
    unsigned long state = 1;
    int n = 0;
    while (n < KNOWN) {
        int k;
        state = (state * 69069UL + 1UL) & 0xFFFFFFFFUL;
        k = n < 4 ? corners[n] : (int)((state >> 8) % HEIGHTS);
        if (taken[k]) continue;
        taken[k] = 1;
        known[n++] = k;
    }
}

/* Straight lines through the triangles of the mesh that the contour crosses. */
static void contour(FILE *svg, const double map[], double level)
{
    int i, j, t, e;
    fprintf(svg, "<path fill=\"none\" stroke=\"#7a4a1e\" stroke-width=\"%s\" d=\"",
            fmod(level, 50.0) == 0.0 ? "1.5" : "0.6");
    for (i = 0; i + 1 < ROWS; i++) {
        for (j = 0; j + 1 < COLUMNS; j++) {
            for (t = 0; t < 2; t++) {
                const int row[3] = {i, i + 1, t == 0 ? i + 1 : i}, column[3] = {j, j + 1, t == 0 ? j : j + 1};
                int ends = 0;
                for (e = 0; e < 3; e++) {
                    const int a = e, b = (e + 1) % 3;
                    const double fa = map[row[a] * COLUMNS + column[a]] - level,
                                 fb = map[row[b] * COLUMNS + column[b]] - level;
                    if ((fa < 0.0) == (fb < 0.0)) continue;
                    fprintf(svg, "%c%.2f,%.2f", ends++ == 0 ? 'M' : 'L',
                            8.0 * (row[a] + fa / (fa - fb) * (row[b] - row[a])),
                            8.0 * (column[a] + fa / (fa - fb) * (column[b] - column[a])));
                }
            }
        }
    }
    fprintf(svg, "\"/>\n");
}

int main(int argc, char **argv)
{
    static double height[HEIGHTS], map[HEIGHTS], px[HEIGHTS], py[HEIGHTS];
    double x[KNOWN], y[KNOWN], f[KNOWN];
    int known[KNOWN], k, method;
    KorError fail = {0};
    const Integer methods[2] = {Kor_RC, Kor_Shep};
    const char *const names[2] = {"triangles", "Shepard"};

    read_heights(height);
    choose(known);
    for (k = 0; k < KNOWN; k++) {
        x[k] = known[k] / COLUMNS * 10.0;
        y[k] = known[k] % COLUMNS * 10.0;
        f[k] = height[known[k]];
    }
    for (k = 0; k < HEIGHTS; k++) {
        px[k] = k / COLUMNS * 10.0;
        py[k] = k % COLUMNS * 10.0;
    }
    printf("%d heights known, %d to be found\n", KNOWN, HEIGHTS - KNOWN);
    puts("method        error (root mean square)   largest   highest point");
    for (method = 0; method < 2; method++) {
        KorScatterRecord surface;
        double sum = 0.0, largest = 0.0, highest = 0.0;
        e01sac(methods[method], KNOWN, x, y, f, &surface, NULL, &fail);
        check(&fail);
        e01sbc(&surface, HEIGHTS, px, py, map, &fail);
        check(&fail);
        e01szc(&surface);
        for (k = 0; k < HEIGHTS; k++) {
            const double error = fabs(map[k] - height[k]);
            sum += error * error;
            largest = fmax(largest, error);
            highest = fmax(highest, map[k]);
        }
        printf("%-12s%26.3f%10.2f%16.1f\n", names[method], sqrt(sum / (HEIGHTS - KNOWN)), largest, highest);
        if (method == 0 && argc > 1) {
            FILE *svg = fopen(argv[1], "w");
            double level;
            if (svg == NULL) continue;
            fprintf(svg, "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"%d\" height=\"%d\">\n", 8 * ROWS,
                    8 * COLUMNS);
            for (level = 95.0; level < 195.0; level += 5.0) contour(svg, map, level);
            for (k = 0; k < KNOWN; k++)
                fprintf(svg, "<circle cx=\"%.1f\" cy=\"%.1f\" r=\"1\" fill=\"#4477aa\"/>\n", 0.8 * x[k], 0.8 * y[k]);
            fprintf(svg, "</svg>\n");
            fclose(svg);
        }
    }
    return 0;
}
