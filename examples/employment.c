/*
 * Least squares by every route: what became of employment in the United States, 1947 to 1962.
 *
 * J. W. Longley's data of 1967 are the standard trial of regression programs: six explanations that nearly depend on one
 * another, and the coefficients known to fifteen digits (the certified values of the statistical reference datasets of
 * NIST). With columns of equal length the condition number of the matrix X is 4e4, that of the normal equations X'X the
 * square of it: the routes through X lose four or five digits, those through X'X eight.
 *   normal equations     X'X b = X'y by Cholesky (f03aec, f04agc), by LU (f04arc), and by Cholesky refined (f04asc)
 *   orthogonal factors   X = QR by reflections (f01qcc, f01qdc), with interchanges of columns (f01qfc)
 *   least squares        the routine for it (f04jgc), and by singular values (f04jac)
 * Refinement solves the normal equations fully, but not the problem: X'X was rounded when it was formed.
 */
#include <kor/f01.h>
#include <kor/f03.h>
#include <kor/f04.h>
#include <kor/f06.h>

#include <math.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>

enum { YEARS = 16, TERMS = 7 };

static const char *const terms[TERMS] = {"constant",   "prices", "national product", "unemployed", "armed forces",
                                         "population", "year"};
static const double certified[TERMS] = {-3482258.63459582, 15.0618722713733,    -0.0358191792925910, -2.02022980381683,
                                        -1.03322686717359, -0.0511041056535807, 1829.15146461355};

typedef struct {
    double x[YEARS * TERMS], y[YEARS];     /* the data, a year a row */
    double gram[TERMS * TERMS], xy[TERMS]; /* the normal equations */
} Problem;

static void read_data(Problem *p)
{
    FILE *file = fopen("data/longley.txt", "r");
    char line[256];
    int i = 0;
    if (file == NULL) {
        puts("data/longley.txt is not here: please run this program in the folder examples");
        exit(EXIT_FAILURE);
    }
    while (i < YEARS && fgets(line, sizeof line, file) != NULL) {
        double *row = p->x + i * TERMS;
        row[0] = 1.0;
        if (sscanf(line, "%lf %lf %lf %lf %lf %lf %lf", row + 1, row + 2, row + 3, row + 4, row + 5, row + 6,
                   p->y + i) == 7)
            i++;
    }
    fclose(file);
    f06ypc(UpperTriangle, Transpose, TERMS, YEARS, 1.0, p->x, TERMS, 0.0, p->gram, TERMS);
    for (i = 0; i < TERMS; i++)
        for (int j = 0; j < i; j++) p->gram[i * TERMS + j] = p->gram[j * TERMS + i];
    f06pac(Transpose, YEARS, TERMS, 1.0, p->x, TERMS, p->y, 1, 0.0, p->xy, 1);
}

/* Each route fills the coefficients b; a record of null makes any failure end the program. */

static void by_cholesky(const Problem *p, double b[])
{
    double a[TERMS * TERMS], reciprocals[TERMS], det;
    Integer dete;
    memcpy(a, p->gram, sizeof a);
    f03aec(TERMS, a, TERMS, reciprocals, &det, &dete, NULL);
    f04agc(TERMS, 1, a, TERMS, reciprocals, p->xy, 1, b, 1, NULL);
}

static void by_lu(const Problem *p, double b[])
{
    KorError fail = {0};
    f04arc(TERMS, p->gram, TERMS, p->xy, b, &fail);
    if (fail.code == NE_SINGULAR) b[0] = NAN; /* X'X is singular to working accuracy */
}

static void by_refined_cholesky(const Problem *p, double b[])
{
    double a[TERMS * TERMS], reciprocals[TERMS], residual[TERMS];
    KorError fail = {0};
    memcpy(a, p->gram, sizeof a);
    f04asc(TERMS, a, TERMS, p->xy, b, reciprocals, residual, &fail);
    if (fail.code == NE_ITER_FAIL_CONV) b[0] = NAN;
}

static void by_reflections(const Problem *p, double b[])
{
    double a[YEARS * TERMS], c[YEARS], zeta[TERMS];
    memcpy(a, p->x, sizeof a);
    memcpy(c, p->y, sizeof c);
    f01qcc(YEARS, TERMS, a, TERMS, zeta, NULL);
    f01qdc(Transpose, Kor_ElementsSeparate, YEARS, TERMS, a, TERMS, zeta, 1, c, 1, NULL);
    f06pjc(UpperTriangle, NoTranspose, NotUnitTriangular, TERMS, a, TERMS, c, 1);
    memcpy(b, c, TERMS * sizeof *b);
}

static void by_reflections_with_interchanges(const Problem *p, double b[])
{
    double a[YEARS * TERMS], c[YEARS], zeta[TERMS], work[2 * TERMS];
    Integer perm[TERMS];
    memcpy(a, p->x, sizeof a);
    memcpy(c, p->y, sizeof c);
    f01qfc(VariablePivot, YEARS, TERMS, a, TERMS, zeta, perm, work, NULL);
    f01qdc(Transpose, Kor_ElementsSeparate, YEARS, TERMS, a, TERMS, zeta, 1, c, 1, NULL);
    f06pjc(UpperTriangle, NoTranspose, NotUnitTriangular, TERMS, a, TERMS, c, 1);
    memcpy(b, c, TERMS * sizeof *b);
    for (int k = TERMS - 1; k >= 0; k--) { /* the interchanges, the last first */
        const double kept = b[k];
        b[k] = b[perm[k] - 1];
        b[perm[k] - 1] = kept;
    }
}

typedef void LeastSquares(Integer m, Integer n, double a[], Integer tda, double b[], double tol, Boolean *svd,
                          double *sigma, Integer *irank, double work[], KorError *fail);

/* Solves, and gives the standard errors of the coefficients if wanted. Returns sigma. */
static double solve(LeastSquares *routine, const Problem *p, double tol, double b[], double errors[], Integer *rank)
{
    double a[YEARS * TERMS], c[YEARS], sigma, work[4 * TERMS];
    Boolean svd;
    memcpy(a, p->x, sizeof a);
    memcpy(c, p->y, sizeof c);
    routine(YEARS, TERMS, a, TERMS, c, tol, &svd, &sigma, rank, work, NULL);
    memcpy(b, c, TERMS * sizeof *b);
    if (errors != NULL) {
        f04yac(-1, TERMS, sigma, *rank, a, TERMS, svd, work, errors, NULL);
        for (int j = 0; j < TERMS; j++) errors[j] = sqrt(errors[j]);
    }
    return sigma;
}

static void by_least_squares(const Problem *p, double b[])
{
    Integer rank;
    solve(f04jgc, p, 1e-14, b, NULL, &rank);
}

static void by_singular_values(const Problem *p, double b[])
{
    Integer rank;
    solve(f04jac, p, 1e-14, b, NULL, &rank);
}

/* Digits that all coefficients have right. */
static double correct_digits(const double b[])
{
    double worst = 0.0;
    for (int j = 0; j < TERMS; j++) {
        const double error = fabs(b[j] / certified[j] - 1.0);
        if (!(error <= worst)) worst = error;
    }
    return -log10(worst);
}

int main(void)
{
    const struct {
        const char *name;
        void (*fit)(const Problem *p, double b[]);
    } routes[] = {{"normal equations, Cholesky", by_cholesky},
                  {"normal equations, LU", by_lu},
                  {"normal equations, refined", by_refined_cholesky},
                  {"reflections", by_reflections},
                  {"reflections, interchanges", by_reflections_with_interchanges},
                  {"least squares", by_least_squares},
                  {"singular values", by_singular_values}};
    Problem problem;
    double b[TERMS], errors[TERMS];
    Integer rank;

    read_data(&problem);
    for (size_t i = 0; i < sizeof routes / sizeof routes[0]; i++) {
        routes[i].fit(&problem, b);
        const double digits = correct_digits(b);
        printf("%-28s%s\n", routes[i].name,
               isnan(digits)   ? "refused: too ill-conditioned"
               : digits >= 9.3 ? "nine digits right, or more"
               : digits >= 5.0 ? "seven or eight digits right"
                               : "loses most digits");
    }

    const double sigma = solve(f04jgc, &problem, 1e-14, b, errors, &rank);
    printf("\n%-18s%16s%16s\n", "", "coefficient", "standard error");
    for (int j = 0; j < TERMS; j++) printf("%-18s%16.5f%16.5f\n", terms[j], b[j], errors[j]);
    printf("standard deviation of a year's employment, thousands: %.2f\n", sigma);

    /* Data with five digits do not support coefficients of seven terms: what is left if that is admitted. */
    solve(f04jac, &problem, 1e-6, b, NULL, &rank);
    printf("\nWith data uncertain by a millionth, the rank is %d of %d.\n", (int)rank, TERMS);
    return 0;
}
