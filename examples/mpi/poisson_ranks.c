/*
 * Conjugate gradients over the ranks of MPI: the first rank runs f11gbc, all ranks multiply.
 *
 * Poisson's equation on a square grid. Each rank keeps a strip of the grid: its rows of the matrix, and its part of the
 * vectors. f11gbc, on the first rank, says what it wants next; the vector is scattered, every rank exchanges the borders of its
 * strip with its neighbours, multiplies (or divides by the diagonal, which is the preconditioner), and the product is gathered.
 * At the end the first rank solves the same system alone, with f11jec: the counts of iterations are the same.
 *
 *     mpirun -n 4 poisson_ranks
 */
#include <kor/f11.h>

#include <mpi.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>

enum { SIDE = 120, ORDER = SIDE * SIDE };
enum { NORTH = 1, SOUTH = 2 };

static const double TOLERANCE = 1e-9;

/* A strip of grid lines, from `first` to before `end`; with room for a line on either side. */
typedef struct {
    int rank, ranks;
    int first, lines;
    double *u;
    double *v;
    int *counts, *starts; /* of the strips of all ranks, in elements */
} Strip;

static Strip make_strip(void)
{
    Strip s;
    int r;
    MPI_Comm_rank(MPI_COMM_WORLD, &s.rank);
    MPI_Comm_size(MPI_COMM_WORLD, &s.ranks);
    s.counts = malloc(s.ranks * sizeof *s.counts);
    s.starts = malloc(s.ranks * sizeof *s.starts);
    for (r = 0; r < s.ranks; ++r) {
        const int first = (int)((long)SIDE * r / s.ranks), end = (int)((long)SIDE * (r + 1) / s.ranks);
        s.starts[r] = first * SIDE;
        s.counts[r] = (end - first) * SIDE;
    }
    s.first = s.starts[s.rank] / SIDE;
    s.lines = s.counts[s.rank] / SIDE;
    s.u = calloc((size_t)(s.lines + 2) * SIDE, sizeof *s.u); /* the lines beyond the grid stay zero */
    s.v = calloc((size_t)s.lines * SIDE, sizeof *s.v);
    return s;
}

static void free_strip(Strip *s)
{
    free(s->u);
    free(s->v);
    free(s->counts);
    free(s->starts);
}

/* The five-point operator on this strip. */
static void multiply(Strip *s)
{
    const int above = s->rank > 0 ? s->rank - 1 : MPI_PROC_NULL;
    const int below = s->rank + 1 < s->ranks ? s->rank + 1 : MPI_PROC_NULL;
    double *const own = s->u + SIDE;
    int i, j;
    MPI_Sendrecv(own, SIDE, MPI_DOUBLE, above, NORTH, own + s->lines * SIDE, SIDE, MPI_DOUBLE, below, NORTH,
                 MPI_COMM_WORLD, MPI_STATUS_IGNORE);
    MPI_Sendrecv(own + (s->lines - 1) * SIDE, SIDE, MPI_DOUBLE, below, SOUTH, s->u, SIDE, MPI_DOUBLE, above, SOUTH,
                 MPI_COMM_WORLD, MPI_STATUS_IGNORE);
    for (i = 0; i < s->lines; ++i)
        for (j = 0; j < SIDE; ++j) {
            const double *const at = own + i * SIDE + j;
            double sum = 4.0 * at[0] - at[-SIDE] - at[SIDE];
            if (j > 0) sum -= at[-1];
            if (j + 1 < SIDE) sum -= at[1];
            s->v[i * SIDE + j] = sum;
        }
}

static void divide_by_diagonal(Strip *s)
{
    int p;
    for (p = 0; p < s->lines * SIDE; ++p) s->v[p] = s->u[SIDE + p] / 4.0;
}

/* What every rank does with a request; u and v are whole vectors, on the first rank only. */
static void serve(Strip *s, Integer request, double u[], double v[])
{
    const int own = s->counts[s->rank];
    MPI_Scatterv(u, s->counts, s->starts, MPI_DOUBLE, s->u + SIDE, own, MPI_DOUBLE, 0, MPI_COMM_WORLD);
    if (request == 1)
        multiply(s);
    else
        divide_by_diagonal(s);
    MPI_Gatherv(s->v, own, MPI_DOUBLE, v, s->counts, s->starts, MPI_DOUBLE, 0, MPI_COMM_WORLD);
}

static void check(const KorError *fail)
{
    if (fail->code == NE_NOERROR) return;
    puts(fail->message);
    MPI_Abort(MPI_COMM_WORLD, EXIT_FAILURE);
}

static double right_hand_side(int p) { return (p / SIDE) * (p % SIDE) % 17 / 17.0 - 0.3; }

/* The first rank: f11gbc asks, all ranks answer. Returns the count of iterations. */
static Integer lead(Strip *s, double u[], double v[], double *residual)
{
    KorSparseSymState state;
    KorError fail = {0};
    Integer irevcm = 0, itn, sigma_itn;
    double bound, anorm, sigmax, sigma_err;
    int p;
    f11gac(Kor_SparseSym_CG, Kor_SparseSym_Prec, Kor_SparseSym_NoBisect, Kor_SparseSym_InfNorm,
           Kor_SparseSym_UnWeighted, Kor_SparseSym_TermLanczosCG, ORDER, TOLERANCE, 2000, 8.0, 0.0, 0.0, 0, &state,
           &fail);
    check(&fail);
    for (p = 0; p < ORDER; ++p) {
        u[p] = 0.0;
        v[p] = right_hand_side(p);
    }
    do {
        f11gbc(&irevcm, u, v, NULL, &state, &fail);
        check(&fail);
        if (irevcm == 3) continue; /* nothing to look at */
        MPI_Bcast(&irevcm, 1, MPI_INT, 0, MPI_COMM_WORLD);
        if (irevcm != 4) serve(s, irevcm, u, v);
    } while (irevcm != 4);
    f11gcc(&itn, residual, &bound, &anorm, &sigmax, &sigma_itn, &sigma_err, &state, &fail);
    check(&fail);
    return itn;
}

static void follow(Strip *s)
{
    for (;;) {
        Integer request;
        MPI_Bcast(&request, 1, MPI_INT, 0, MPI_COMM_WORLD);
        if (request == 4) return;
        serve(s, request, NULL, NULL);
    }
}

/* The same system in one place. */
static Integer solve_alone(double x[])
{
    double *a = malloc(3 * ORDER * sizeof *a), *b = malloc(ORDER * sizeof *b), rnorm, anorm = 0.0;
    Integer *irow = malloc(3 * ORDER * sizeof *irow), *icol = malloc(3 * ORDER * sizeof *icol), nnz = 0, itn, p;
    KorError fail = {0};
    for (p = 1; p <= ORDER; ++p) {
        const Integer beside[3] = {p > SIDE ? p - SIDE : 0, (p - 1) % SIDE > 0 ? p - 1 : 0, p};
        int k;
        for (k = 0; k < 3; ++k) {
            if (beside[k] == 0) continue;
            a[nnz] = beside[k] == p ? 4.0 : -1.0;
            irow[nnz] = p;
            icol[nnz++] = beside[k];
        }
        b[p - 1] = right_hand_side((int)(p - 1));
        x[p - 1] = 0.0;
    }
    f11jec(Kor_SparseSym_CG, Kor_SparseSym_JacPrec, ORDER, nnz, a, nnz, irow, icol, 0.0, b, TOLERANCE, 2000, x, &rnorm,
           &itn, &anorm, NULL, &fail);
    check(&fail);
    free(a);
    free(b);
    free(irow);
    free(icol);
    return itn;
}

int main(int argc, char **argv)
{
    Strip strip;
    MPI_Init(&argc, &argv);
    strip = make_strip();
    if (strip.rank == 0) {
        double *u = malloc(ORDER * sizeof *u), *v = malloc(ORDER * sizeof *v), *x = malloc(ORDER * sizeof *x);
        double residual, difference = 0.0;
        const Integer shared = lead(&strip, u, v, &residual), alone = solve_alone(x);
        int p;
        for (p = 0; p < ORDER; ++p)
            if (u[p] - x[p] > difference || x[p] - u[p] > difference)
                difference = u[p] > x[p] ? u[p] - x[p] : x[p] - u[p];
        printf("%d unknowns\niterations over all ranks: %d\niterations alone:          %d\n", ORDER, (int)shared,
               (int)alone);
        printf("the same count, and the same solution to 1e-6: %s\n",
               shared == alone && difference < 1e-6 ? "yes" : "no");
        free(u);
        free(v);
        free(x);
    } else {
        follow(&strip);
    }
    free_strip(&strip);
    MPI_Finalize();
    return EXIT_SUCCESS;
}
