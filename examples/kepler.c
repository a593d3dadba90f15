/*
 * Where planets and comets are, day by day over a year: Kepler's equation
 *
 *     E - e sin E = M                       M mean anomaly, E eccentric anomaly, e eccentricity of the orbit
 *
 * is solved for E by c05sdc, which calls a function of ours, and again by c05azc, which comes back to us for every value
 * (for programs in which the function cannot be called from below). The data are in data/planets.txt and data/comets.txt.
 */
#include <kor/c05.h>

#include <math.h>
#include <stdio.h>
#include <stdlib.h>

enum { MOST_BODIES = 16, DAYS = 366 };

static const double PI = 3.14159265358979323846;
static const double XTOL = 1e-14;          /* of E, in radians */
static const double GAUSS = 0.01720209895; /* Gauss's constant: the mean motion at 1 au, in radians a day */
static const double CENTURY = 36525.0;     /* days */

typedef struct {
    char name[16];
    double a, e;             /* semi-major axis (au), eccentricity */
    double incl, node, peri; /* inclination, ascending node, argument of perihelion (radians) */
    double motion;           /* radians a day */
    double anomaly;          /* mean anomaly on the first day of the year (radians) */
} Orbit;

/* What the user function needs travels through the last argument but one of c05sdc. */
typedef struct {
    double e, M;
    int calls;
} Kepler;

static double kepler(double E, void *data)
{
    Kepler *k = data;
    k->calls++;
    return E - k->e * sin(E) - k->M;
}

/* E lies within e of M: there the function changes its sign. */
static double solve(Kepler *k)
{
    KorError fail = {0};
    double E = 0.0;
    c05sdc(k->M - k->e, k->M + k->e, &E, kepler, XTOL, 0.0, k, &fail);
    if (fail.code != NE_NOERROR) {
        puts(fail.message);
        exit(EXIT_FAILURE);
    }
    return E;
}

static double solve_in_reverse(Kepler *k)
{
    KorError fail = {0};
    double E = k->M - k->e, other = k->M + k->e, value = kepler(E, k), state[17];
    Integer ind = -1;

    /* With ind = -1 the values at both ends are given: one in its argument, one in the state. */
    state[0] = kepler(other, k);
    while (ind != 0) {
        c05azc(&E, &other, &value, XTOL, 1, state, &ind, &fail);
        if (ind != 0) value = kepler(E, k);
    }
    if (fail.code != NE_NOERROR) {
        puts(fail.message);
        exit(EXIT_FAILURE);
    }
    return E;
}

static FILE *open_data(const char *path)
{
    FILE *file = fopen(path, "r");
    if (file == NULL) {
        printf("%s is not here: please run this program in the folder examples\n", path);
        exit(EXIT_FAILURE);
    }
    return file;
}

static double radians(double degrees) { return degrees * PI / 180.0; }

static int read_planets(Orbit orbits[])
{
    FILE *file = open_data("data/planets.txt");
    char line[256];
    int n = 0;
    while (n < MOST_BODIES && fgets(line, sizeof line, file) != NULL) {
        Orbit *o = &orbits[n];
        double incl, longitude, peri, node, rate;
        if (line[0] == '#') continue;
        if (sscanf(line, "%15s %lf %lf %lf %lf %lf %lf", o->name, &o->a, &o->e, &incl, &longitude, &peri, &node) != 7)
            break;
        if (fgets(line, sizeof line, file) == NULL || sscanf(line, "%*f %*f %*f %lf", &rate) != 1) break;
        o->incl = radians(incl);
        o->node = radians(node);
        o->peri = radians(peri - node);
        o->motion = radians(rate) / CENTURY;
        o->anomaly = radians(longitude - peri);
        n++;
    }
    fclose(file);
    return n;
}

/* A comet's year has its perihelion in the middle. */
static int read_comets(Orbit orbits[])
{
    FILE *file = open_data("data/comets.txt");
    char line[256];
    int n = 0;
    while (n < MOST_BODIES && fgets(line, sizeof line, file) != NULL) {
        Orbit *o = &orbits[n];
        double q, incl, node, peri;
        if (line[0] == '#') continue;
        if (sscanf(line, "%15s %lf %lf %lf %lf %lf", o->name, &q, &o->e, &incl, &node, &peri) != 6) break;
        o->a = q / (1.0 - o->e);
        o->incl = radians(incl);
        o->node = radians(node);
        o->peri = radians(peri);
        o->motion = GAUSS / (o->a * sqrt(o->a));
        o->anomaly = -o->motion * (DAYS - 1) / 2.0;
        n++;
    }
    fclose(file);
    return n;
}

/* Heliocentric, in the ecliptic of J2000. */
static void position(const Orbit *o, double E, double xyz[3])
{
    const double along = o->a * (cos(E) - o->e), across = o->a * sqrt(1.0 - o->e * o->e) * sin(E);
    const double cp = cos(o->peri), sp = sin(o->peri), cn = cos(o->node), sn = sin(o->node), ci = cos(o->incl),
                 si = sin(o->incl);
    xyz[0] = (cp * cn - sp * sn * ci) * along - (sp * cn + cp * sn * ci) * across;
    xyz[1] = (cp * sn + sp * cn * ci) * along - (sp * sn - cp * cn * ci) * across;
    xyz[2] = sp * si * along + cp * si * across;
}

int main(void)
{
    Orbit orbits[2 * MOST_BODIES];
    int planets = read_planets(orbits);
    int n = planets + read_comets(orbits + planets);
    int i, day;

    puts("Kepler's equation, solved for every day of a year");
    puts("            eccentricity  distance from Sun (au)   calls of f     largest      c05azc");
    puts("                              least    greatest    a solution     residual     differs by");
    for (i = 0; i < n; i++) {
        const Orbit *o = &orbits[i];
        double least = HUGE_VAL, greatest = 0.0, residual = 0.0, difference = 0.0;
        int calls = 0;
        for (day = 0; day < DAYS; day++) {
            Kepler k = {0.0, 0.0, 0}, again;
            double E, r;
            k.e = o->e;
            k.M = remainder(o->anomaly + o->motion * day, 2.0 * PI);
            again = k;
            E = solve(&k);
            calls += k.calls;
            r = o->a * (1.0 - o->e * cos(E));
            least = fmin(least, r);
            greatest = fmax(greatest, r);
            residual = fmax(residual, fabs(kepler(E, &k)));
            difference = fmax(difference, fabs(E - solve_in_reverse(&again)));
        }
        printf("%-12s%10.6f%15.4f%12.4f%12.1f%15.1e%13.1e\n", o->name, o->e, least, greatest, (double)calls / DAYS,
               residual, difference);
    }

    for (i = planets; i < n; i++) {
        puts("");
        printf("%s on its way round the Sun\n", orbits[i].name);
        puts("      days from          x           y           z    distance");
        puts("     perihelion       (au)        (au)        (au)        (au)");
        for (day = -180; day <= 180; day += 30) {
            double E, xyz[3];
            Kepler k = {0.0, 0.0, 0};
            k.e = orbits[i].e;
            k.M = orbits[i].motion * day;
            E = solve(&k);
            position(&orbits[i], E, xyz);
            printf("%15d%11.4f%12.4f%12.4f%12.4f\n", day, xyz[0], xyz[1], xyz[2],
                   sqrt(xyz[0] * xyz[0] + xyz[1] * xyz[1] + xyz[2] * xyz[2]));
        }
    }
    return 0;
}
