/*
 * Two chemical reactions, followed by d02ejc.
 *
 * Alpha-pinene turns into dipentene and allo-ocimene, and this into pyronene and, back and forth, a dimer:
 *
 *     dipentene <- alpha-pinene -> allo-ocimene -> pyronene
 *                                  allo-ocimene <-> dimer
 *
 * The output function asks for the times at which the amounts were measured (data/alpha_pinene.txt), and a function g stops the
 * integration when dipentene and alpha-pinene are even. The second reaction, Robertson's, is the classical stiff one: its fast
 * component settles within a millisecond, its slow one in ten thousand years.
 *
 *     kinetics [plot.svg]         with the name of a file: draws the first reaction there, measurements as circles
 */
#include <kor/d02.h>

#include <math.h>
#include <stdio.h>
#include <stdlib.h>

enum { SPECIES = 5, MOST_TIMES = 16 };

/* Rates per minute, as fitted by Box and others (1973). */
static const double RATE[5] = {5.93e-5, 2.96e-5, 2.05e-5, 27.5e-5, 4.00e-5};

typedef struct {
    int count, next;
    double time[MOST_TIMES], measured[MOST_TIMES][SPECIES];
    double squares;
} Measurements;

static void pinene(Integer neq, double t, const double y[], double f[], void *data)
{
    (void)neq, (void)t, (void)data;
    f[0] = -(RATE[0] + RATE[1]) * y[0];
    f[1] = RATE[0] * y[0];
    f[2] = RATE[1] * y[0] - (RATE[2] + RATE[3]) * y[2] + RATE[4] * y[4];
    f[3] = RATE[2] * y[2];
    f[4] = RATE[3] * y[2] - RATE[4] * y[4];
}

/* Called at the start, then at each time that it has asked for. */
static void compare(Integer neq, double *t, const double y[], void *data)
{
    Measurements *m = data;
    Integer i;
    if (m->next > 0) {
        const double *measured = m->measured[m->next - 1];
        printf("%8.0f", *t);
        for (i = 0; i < neq; i++) {
            printf("%8.2f%7.2f", y[i], measured[i]);
            m->squares += (y[i] - measured[i]) * (y[i] - measured[i]);
        }
        putchar('\n');
    }
    *t = m->next < m->count ? m->time[m->next] : 1e9;
    m->next++;
}

static double even(Integer neq, double t, const double y[], void *data)
{
    (void)neq, (void)t, (void)data;
    return y[0] - y[1];
}

static void robertson(Integer neq, double t, const double y[], double f[], void *data)
{
    (void)neq, (void)t, (void)data;
    f[0] = -0.04 * y[0] + 1e4 * y[1] * y[2];
    f[2] = 3e7 * y[1] * y[1];
    f[1] = -f[0] - f[2];
}

static void read_measurements(Measurements *m)
{
    FILE *file = fopen("data/alpha_pinene.txt", "r");
    char line[256];
    if (file == NULL) {
        puts("data/alpha_pinene.txt is not here: please run this program in the folder examples");
        exit(EXIT_FAILURE);
    }
    while (m->count < MOST_TIMES && fgets(line, sizeof line, file) != NULL) {
        double *y = m->measured[m->count];
        if (line[0] == '#') continue;
        if (sscanf(line, "%lf %lf %lf %lf %lf %lf", &m->time[m->count], y, y + 1, y + 2, y + 3, y + 4) != 6) break;
        m->count++;
    }
    fclose(file);
}

/* A curve of each species, as the integration goes along: called every few hundred minutes. */
enum { CURVE_POINTS = 122, EVERY = 300 };

typedef struct {
    int count;
    double time[CURVE_POINTS], y[CURVE_POINTS][SPECIES];
} Curves;

static void collect(Integer neq, double *t, const double y[], void *data)
{
    Curves *c = data;
    Integer i;
    if (c->count < CURVE_POINTS) {
        c->time[c->count] = *t;
        for (i = 0; i < neq; i++) c->y[c->count][i] = y[i];
        c->count++;
    }
    *t += EVERY;
}

static void draw(const char *path, const Curves *c, const Measurements *m)
{
    static const char *const name[SPECIES] = {"alpha-pinene", "dipentene", "allo-ocimene", "pyronene", "dimer"};
    static const char *const colour[SPECIES] = {"#2f4f4f", "#b5651d", "#4682b4", "#b22222", "#6a8e23"};
    FILE *file = fopen(path, "w");
    int i, k;
    if (file == NULL) {
        printf("%s cannot be written\n", path);
        exit(EXIT_FAILURE);
    }
    fputs("<svg xmlns='http://www.w3.org/2000/svg' width='640' height='400' font-family='sans-serif' font-size='13'>\n",
          file);
    fputs("<path d='M60 20 V350 H620' fill='none' stroke='black'/>\n", file);
    for (k = 0; k <= 4; k++) {
        fprintf(file, "<text x='52' y='%d' text-anchor='end'>%d %%</text>\n", 354 - 80 * k, 25 * k);
        fprintf(file, "<text x='%d' y='370' text-anchor='middle'>%d h</text>\n", 60 + 135 * k, 150 * k);
    }
    for (i = 0; i < SPECIES; i++) {
        fprintf(file, "<g fill='none' stroke='%s'>\n<polyline points='", colour[i]);
        for (k = 0; k < c->count; k++) fprintf(file, "%.1f,%.1f ", 60.0 + 0.015 * c->time[k], 350.0 - 3.2 * c->y[k][i]);
        fputs("'/>\n", file);
        for (k = 0; k < m->count; k++)
            fprintf(file, "<circle cx='%.1f' cy='%.1f' r='3'/>\n", 60.0 + 0.015 * m->time[k],
                    350.0 - 3.2 * m->measured[k][i]);
        fprintf(file, "</g>\n<text x='500' y='%d' fill='%s'>%s</text>\n", 36 + 18 * i, colour[i], name[i]);
    }
    fputs("</svg>\n", file);
    fclose(file);
}

static void check(const KorError *fail)
{
    if (fail->code == NE_NOERROR) return;
    puts(fail->message);
    exit(EXIT_FAILURE);
}

int main(int argc, char **argv)
{
    Measurements m = {0};
    KorError fail = {0};
    double t = 0.0, y[SPECIES] = {100.0};
    double r[3] = {1.0, 0.0, 0.0}, end;

    read_measurements(&m);
    puts("Alpha-pinene at 189.5 C, per cent: computed and measured");
    puts(" minutes   alpha-pinene      dipentene   allo-ocimene       pyronene          dimer");
    d02ejc(SPECIES, pinene, NULL, &t, y, m.time[m.count - 1], 1e-8, Kor_Mixed, compare, NULL, &m, &fail);
    check(&fail);
    if (argc > 1) {
        static Curves curves;
        double again = 0.0, start[SPECIES] = {100.0};
        d02ejc(SPECIES, pinene, NULL, &again, start, 36300.0, 1e-8, Kor_Mixed, collect, NULL, &curves, &fail);
        check(&fail);
        draw(argv[1], &curves, &m);
    }
    printf("root mean square of the differences: %.2f\n", sqrt(m.squares / (m.count * SPECIES)));

    t = 0.0;
    y[0] = 100.0;
    y[1] = y[2] = y[3] = y[4] = 0.0;
    d02ejc(SPECIES, pinene, NULL, &t, y, 36420.0, 1e-10, Kor_Mixed, NULL, even, NULL, &fail);
    check(&fail);
    printf("as much dipentene as alpha-pinene (%.4f) after %.3f minutes; by the formula %.3f\n", y[1], t,
           log((2.0 * RATE[0] + RATE[1]) / RATE[0]) / (RATE[0] + RATE[1]));

    puts("\nRobertson's reaction");
    puts("       t              A               B               C");
    t = 0.0;
    for (end = 0.4; end < 5e11; end *= 10.0) {
        d02ejc(3, robertson, NULL, &t, r, end, 1e-9, Kor_Relative, NULL, NULL, NULL, &fail);
        check(&fail);
        printf("%8.1e%15.6e%16.6e%16.6e\n", t, r[0], r[1], r[2]);
    }
    printf("A + B + C is 1 within 1e-13: %s\n", fabs(1.0 - r[0] - r[1] - r[2]) <= 1e-13 ? "yes" : "no");
    return 0;
}
