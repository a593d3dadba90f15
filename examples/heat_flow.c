/*
 * Sparse systems: the flow of heat through a plate with a hole, by finite elements.
 *
 * A square plate, its right half of a metal that conducts a hundred times better than the left, is kept at 1 around a circular
 * hole and at 0 along its edge. The triangles of the mesh add their small matrices to a long list; f11zbc brings the list into
 * order and sums what falls on the same place; f11jac finds incomplete factors, and f11gbc runs conjugate gradients, once for
 * each preconditioner, with a look at the residual after every iteration.
 *
 *     heat_flow [plot.svg]        also draws how the residuals fall
 */
#include <kor/f11.h>
#include <kor/x04.h>

#include <math.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>

/* The mesh runs in RINGS rings from the hole to the edge, each of SPOKES nodes; each cell is cut into two triangles. */
enum { RINGS = 33, SPOKES = 128, INNER = (RINGS - 2) * SPOKES, MOST = 18 * (RINGS - 1) * SPOKES };

static const double PI = 3.14159265358979323846, HOLE = 0.3, TOLERANCE = 1e-10;

typedef struct {
    double x, y;
} Point;

static Point node(int ring, int spoke)
{
    const double angle = 2.0 * PI * spoke / SPOKES, c = cos(angle), s = sin(angle);
    const double edge = 1.0 / fmax(fabs(c), fabs(s));         /* distance of the edge of the square in this direction */
    const double part = pow((double)ring / (RINGS - 1), 1.5); /* small triangles next to the hole */
    const double radius = HOLE + (edge - HOLE) * part;
    const Point p = {radius * c, radius * s};
    return p;
}

/* Number of an inner node, from 1; 0 for the hole and the edge, where the temperature is known. */
static Integer unknown(int ring, int spoke)
{
    return ring == 0 || ring == RINGS - 1 ? 0 : (ring - 1) * SPOKES + spoke % SPOKES + 1;
}

/* The lower triangle of the matrix as a list, with repetitions, and the right-hand side. */
typedef struct {
    Integer nnz;
    double *a;
    Integer *irow, *icol;
    double b[INNER];
} System;

static void add_triangle(System *system, const int ring[3], const int spoke[3])
{
    Point p[3];
    double bx[3], by[3], area, conductivity;
    int i, j;
    for (i = 0; i < 3; ++i) p[i] = node(ring[i], spoke[i]);
    for (i = 0; i < 3; ++i) {
        bx[i] = p[(i + 1) % 3].y - p[(i + 2) % 3].y;
        by[i] = p[(i + 2) % 3].x - p[(i + 1) % 3].x;
    }
    area = 0.5 * fabs(bx[0] * by[1] - bx[1] * by[0]);
    conductivity = p[0].x + p[1].x + p[2].x > 0.0 ? 100.0 : 1.0;
    for (i = 0; i < 3; ++i)
        for (j = 0; j < 3; ++j) {
            const Integer row = unknown(ring[i], spoke[i]), column = unknown(ring[j], spoke[j]);
            const double value = conductivity * (bx[i] * bx[j] + by[i] * by[j]) / (4.0 * area);
            if (row == 0) continue;
            if (column == 0) {
                if (ring[j] == 0) system->b[row - 1] -= value; /* the hole's temperature is 1 */
            } else if (column <= row) {
                system->a[system->nnz] = value;
                system->irow[system->nnz] = row;
                system->icol[system->nnz++] = column;
            }
        }
}

static void assemble(System *system)
{
    int ring, spoke;
    memset(system, 0, sizeof *system);
    system->a = x04bbc(MOST * sizeof *system->a);
    system->irow = x04bbc(MOST * sizeof *system->irow);
    system->icol = x04bbc(MOST * sizeof *system->icol);
    if (system->a == NULL || system->irow == NULL || system->icol == NULL) exit(EXIT_FAILURE);
    for (ring = 0; ring + 1 < RINGS; ++ring)
        for (spoke = 0; spoke < SPOKES; ++spoke) {
            const int rings[2][3] = {{ring, ring + 1, ring + 1}, {ring, ring + 1, ring}};
            const int spokes[2][3] = {{spoke, spoke, spoke + 1}, {spoke, spoke + 1, spoke + 1}};
            add_triangle(system, rings[0], spokes[0]);
            add_triangle(system, rings[1], spokes[1]);
        }
}

static void check(const KorError *fail)
{
    if (fail->code == NE_NOERROR) return;
    puts(fail->message);
    exit(EXIT_FAILURE);
}

/* The preconditioners that are compared. */
typedef struct {
    const char *name, *colour;
    Integer factors; /* 0: none, or the diagonal */
    Integer diagonal;
    Integer lfill;
    double dtol;
    Integer mic, pstrat;
} Choice;

static const Choice choices[] = {
    {"none", "#888888", 0, 0, 0, 0.0, 0, 0},
    {"diagonal", "#cc6600", 0, 1, 0, 0.0, 0, 0},
    {"IC(0)", "#0066cc", 1, 0, 0, 0.0, Kor_SparseSym_UnModFact, Kor_SparseSym_NoPiv},
    {"modified IC(0)", "#9933aa", 1, 0, 0, 0.0, Kor_SparseSym_ModFact, Kor_SparseSym_NoPiv},
    {"IC, drop 1e-4", "#118833", 1, 0, -1, 1e-4, Kor_SparseSym_UnModFact, Kor_SparseSym_MarkPiv},
};
enum { CHOICES = sizeof choices / sizeof choices[0], LONGEST = 1000 };

static double history[CHOICES][LONGEST + 1];
static Integer length[CHOICES];

/* Runs the iteration, and keeps the residuals; x receives the solution. */
static void solve(int which, System *system, double x[], Integer *elements)
{
    const Choice *choice = &choices[which];
    static Integer ipiv[INNER], istr[INNER + 1];
    static double u[INNER], v[INNER], diagonal[INNER];
    Integer la = MOST, npivm = 0, irevcm = 0, itn, sigma_itn, i;
    double lhs, rhs, anorm, sigmax, sigma_err, start = 0.0;
    KorSparseSymState state;
    KorError fail = {0};

    *elements = 0;
    if (choice->factors) {
        f11jac(INNER, system->nnz, &system->a, &la, &system->irow, &system->icol, choice->lfill, choice->dtol,
               choice->mic, 0.0, choice->pstrat, ipiv, istr, elements, &npivm, &fail);
        check(&fail);
    }
    for (i = 0; i < system->nnz; ++i)
        if (system->irow[i] == system->icol[i]) diagonal[system->irow[i] - 1] = system->a[i];

    f11gac(Kor_SparseSym_CG, choice->factors || choice->diagonal ? Kor_SparseSym_Prec : Kor_SparseSym_NoPrec,
           Kor_SparseSym_NoBisect, Kor_SparseSym_TwoNorm, Kor_SparseSym_UnWeighted, Kor_SparseSym_TermLanczosCG, INNER,
           TOLERANCE, LONGEST, 0.0, 0.0, 0.0, 0, &state, &fail);
    check(&fail);
    for (i = 0; i < INNER; ++i) {
        u[i] = 0.0;
        v[i] = system->b[i];
        start += v[i] * v[i];
    }
    start = sqrt(start);
    history[which][0] = 1.0;
    do {
        f11gbc(&irevcm, u, v, NULL, &state, &fail);
        if (fail.code != NE_NOT_REQ_ACC) check(&fail); /* too many iterations: the table shows it */
        fail.code = NE_NOERROR;
        if (irevcm == 1) {
            f11xec(INNER, system->nnz, system->a, system->irow, system->icol, Kor_SparseSym_NoCheck, u, v, &fail);
        } else if (irevcm == 2 && choice->factors) {
            f11jbc(INNER, system->a, la, system->irow, system->icol, ipiv, istr, u, v, &fail);
        } else if (irevcm == 2) {
            for (i = 0; i < INNER; ++i) v[i] = u[i] / diagonal[i];
        } else {
            f11gcc(&itn, &lhs, &rhs, &anorm, &sigmax, &sigma_itn, &sigma_err, &state, &fail);
            history[which][itn] = lhs / start;
            length[which] = itn;
        }
        check(&fail);
    } while (irevcm != 4);
    memcpy(x, u, sizeof u);
}

/* Residuals on a logarithmic scale, one line for each preconditioner. */
static void draw(FILE *plot)
{
    const double width = 640.0, height = 400.0, margin = 50.0, decades = 12.0;
    double longest = 0.0;
    int k, i;
    for (k = 0; k < CHOICES; ++k) longest = fmax(longest, length[k]);
    fprintf(plot,
            "<svg xmlns=\"http://www.w3.org/2000/svg\" viewBox=\"0 0 %g %g\" font-family=\"sans-serif\" "
            "font-size=\"13\">\n",
            width + 2 * margin, height + 2 * margin);
    fprintf(plot, "<rect width=\"100%%\" height=\"100%%\" fill=\"white\"/>\n");
    for (i = 0; i <= 12; i += 2) {
        const double y = margin + height * i / decades;
        fprintf(plot, "<line x1=\"%g\" y1=\"%g\" x2=\"%g\" y2=\"%g\" stroke=\"#dddddd\"/>", margin, y, margin + width,
                y);
        fprintf(plot, "<text x=\"%g\" y=\"%g\" text-anchor=\"end\">1e-%d</text>\n", margin - 6.0, y + 4.0, i);
    }
    for (i = 0; i <= longest; i += 50)
        fprintf(plot, "<text x=\"%g\" y=\"%g\" text-anchor=\"middle\">%d</text>\n", margin + width * i / longest,
                margin + height + 20.0, i);
    fprintf(plot,
            "<text x=\"%g\" y=\"%g\" text-anchor=\"middle\">iterations of conjugate gradients; vertical: |b - Ax| / "
            "|b|</text>\n",
            margin + 0.5 * width, margin + height + 40.0);
    for (k = 0; k < CHOICES; ++k) {
        fprintf(plot, "<polyline fill=\"none\" stroke=\"%s\" stroke-width=\"2\" points=\"", choices[k].colour);
        for (i = 0; i <= length[k]; ++i)
            fprintf(plot, "%.1f,%.1f ", margin + width * i / longest, margin - height * log10(history[k][i]) / decades);
        fprintf(plot, "\"/>\n<text x=\"%g\" y=\"%g\" fill=\"%s\">%s</text>\n", margin + width - 110.0,
                margin + 20.0 + 18.0 * k, choices[k].colour, choices[k].name);
    }
    fprintf(plot, "</svg>\n");
}

int main(int argc, char **argv)
{
    static System system;
    static Integer istr[INNER + 1];
    static double x[INNER];
    Integer given, elements;
    KorError fail = {0};
    int k;
    assemble(&system);
    given = system.nnz;
    f11zbc(INNER, &system.nnz, system.a, system.irow, system.icol, Kor_SparseSym_SumDups, Kor_SparseSym_RemoveZeros,
           istr, &fail);
    check(&fail);
    printf("%d unknowns; %d contributions make %d elements of the lower triangle\n\n", INNER, (int)given,
           (int)system.nnz);

    printf("preconditioner    elements  iterations  middle ring, hottest\n");
    for (k = 0; k < CHOICES; ++k) {
        double hottest = 0.0;
        int spoke;
        solve(k, &system, x, &elements);
        for (spoke = 0; spoke < SPOKES; ++spoke) hottest = fmax(hottest, x[unknown(RINGS / 2, spoke) - 1]);
        printf("%-16s  %8d  %10d%s  %.6f\n", choices[k].name, (int)elements, (int)length[k],
               length[k] == LONGEST ? "+" : " ", hottest);
    }
    if (argc > 1) {
        FILE *plot = fopen(argv[1], "w");
        if (plot == NULL) return EXIT_FAILURE;
        draw(plot);
        fclose(plot);
    }
    x04bdc((void **)&system.a);
    x04bdc((void **)&system.irow);
    x04bdc((void **)&system.icol);
    return EXIT_SUCCESS;
}
