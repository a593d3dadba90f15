/*
 * Orthogonalisation of nearly dependent data, for a least-squares fit: Gram-Schmidt in its two forms beside Householder.
 *
 * The population of the United States over sixteen years, as a polynomial of degree 4 in the year. The years 1947 to
 * 1962 differ by a few thousandths of their size, and the columns 1, t, t^2, t^3, t^4 are dependent to some ten digits.
 * (Count the years from the middle, and the trouble is gone; here it is wanted.) Three ways to the factors X = QR, all
 * of them right on paper:
 *   classical Gram-Schmidt   each column loses its projections on all earlier ones at once          (f06pac twice)
 *   modified Gram-Schmidt    each new q is taken off all later columns, one by one                  (f06eac, f06ecc)
 *   Householder              reflections that never subtract nearly equal vectors                   (f06frc, f06ftc)
 * The columns stay where they are in the row-major array: a column is a vector with the row length as its increment.
 */
#include <kor/f06.h>

#include <math.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>

enum { ROWS = 16, TERMS = 5, WIDTH = TERMS + 1 }; /* the powers of the year; behind them the population */

static void read_data(double a[])
{
    FILE *file = fopen("data/longley.txt", "r");
    char line[256];
    Integer i = 0;
    if (file == NULL) {
        puts("data/longley.txt is not here: please run this program in the folder examples");
        exit(EXIT_FAILURE);
    }
    while (i < ROWS && fgets(line, sizeof line, file) != NULL) {
        double *row = a + i * WIDTH, year, population;
        if (sscanf(line, "%*f %*f %*f %*f %lf %lf", &population, &year) != 2) continue;
        row[0] = 1.0;
        for (Integer j = 1; j < TERMS; j++) row[j] = row[j - 1] * year;
        row[TERMS] = population;
        i++;
    }
    fclose(file);
}

/* Each method turns the first columns of a into those of Q, fills R, and forms b = Q'y from the last column. */

static void classical(double a[], double r[], double b[])
{
    for (Integer j = 0; j < TERMS; j++) {
        double *column = a + j;
        f06pac(Transpose, ROWS, j, 1.0, a, WIDTH, column, WIDTH, 0.0, r + j, TERMS);
        f06pac(NoTranspose, ROWS, j, -1.0, a, WIDTH, r + j, TERMS, 1.0, column, WIDTH);
        r[j * TERMS + j] = f06ejc(ROWS, column, WIDTH);
        f06edc(ROWS, 1.0 / r[j * TERMS + j], column, WIDTH);
    }
    f06pac(Transpose, ROWS, TERMS, 1.0, a, WIDTH, a + TERMS, WIDTH, 0.0, b, 1);
}

static void modified(double a[], double r[], double b[])
{
    for (Integer j = 0; j < TERMS; j++) {
        r[j * TERMS + j] = f06ejc(ROWS, a + j, WIDTH);
        f06edc(ROWS, 1.0 / r[j * TERMS + j], a + j, WIDTH);
        for (Integer k = j + 1; k < WIDTH; k++) {
            const double projection = f06eac(ROWS, a + j, WIDTH, a + k, WIDTH);
            f06ecc(ROWS, -projection, a + j, WIDTH, a + k, WIDTH);
            if (k < TERMS)
                r[j * TERMS + k] = projection;
            else
                b[j] = projection;
        }
    }
}

static void householder(double a[], double r[], double b[])
{
    double zeta[TERMS], q[ROWS * WIDTH];
    for (Integer j = 0; j < TERMS; j++) {
        double *pivot = a + j * WIDTH + j;
        f06frc(ROWS - 1 - j, pivot, pivot + WIDTH, WIDTH, 0.0, &zeta[j]);
        for (Integer k = 1; j + k < WIDTH; k++)
            f06ftc(ROWS - 1 - j, pivot + k, pivot + k + WIDTH, WIDTH, zeta[j], pivot + WIDTH, WIDTH);
    }
    f06qfc(UpperTriangular, TERMS, TERMS, a, WIDTH, r, TERMS);
    f06efc(TERMS, a + TERMS, WIDTH, b, 1);

    /* Q is what the reflections, the last first, make of the first columns of the unit matrix. */
    f06qhc(General, ROWS, WIDTH, 0.0, 1.0, q, WIDTH);
    for (Integer j = TERMS - 1; j >= 0; j--)
        for (Integer k = j; k < TERMS; k++) {
            double *pivot = a + j * WIDTH + j, *target = q + j * WIDTH + k;
            f06ftc(ROWS - 1 - j, target, target + WIDTH, WIDTH, zeta[j], pivot + WIDTH, WIDTH);
        }
    f06qfc(General, ROWS, TERMS, q, WIDTH, a, WIDTH);
}

/* |Q'Q - I|, in the Frobenius norm. */
static double departure(const double q[])
{
    double gram[TERMS * TERMS];
    f06qhc(General, TERMS, TERMS, 0.0, 1.0, gram, TERMS);
    f06ypc(UpperTriangle, Transpose, TERMS, ROWS, 1.0, q, WIDTH, -1.0, gram, TERMS);
    return f06qgc(FrobeniusNorm, SymmetricUpper, TERMS, TERMS, gram, TERMS);
}

/* |y - Q b|: what the fit leaves. */
static double residual(const double data[], const double q[], const double b[])
{
    double rest[ROWS];
    f06efc(ROWS, data + TERMS, WIDTH, rest, 1);
    f06pac(NoTranspose, ROWS, TERMS, -1.0, q, WIDTH, b, 1, 1.0, rest, 1);
    return f06ejc(ROWS, rest, 1);
}

int main(void)
{
    const struct {
        const char *name;
        void (*factorise)(double a[], double r[], double b[]);
    } methods[] = {
        {"classical Gram-Schmidt", classical}, {"modified Gram-Schmidt", modified}, {"Householder", householder}};
    double data[ROWS * WIDTH], a[ROWS * WIDTH], r[TERMS * TERMS], b[TERMS] = {0.0};

    read_data(data);
    printf("%d years, %d powers of the year: how orthogonal is Q?\n\n", ROWS, TERMS);
    printf("%-24s%12s%24s\n", "", "digits kept", "residual of the fit");
    for (size_t i = 0; i < sizeof methods / sizeof methods[0]; i++) {
        memcpy(a, data, sizeof a);
        methods[i].factorise(a, r, b);
        const double lost = departure(a);
        if (lost < 0.1)
            printf("%-24s%12s%24.1f\n", methods[i].name, lost < 1e-14 ? "all" : "some", residual(data, a, b));
        else
            printf("%-24s%12s%24s\n", methods[i].name, "none", "-");
    }
    puts("\nModified Gram-Schmidt loses as many digits as the columns are dependent to, the classical form twice as "
         "many.");
    return 0;
}
