/*
 * When is a satellite in the shadow of the Earth? Vanguard 1, launched in 1958 and still in orbit, over twelve hours of
 * 27 June 2000. Its motion in the field of the oblate Earth is integrated by d02qfc, which stops at events: functions of time and state
 * that change their sign where the satellite enters or leaves the half shadow and the full shadow, and where it is nearest
 * or farthest. The result is compared with the published state after six hours. The data are in data/vanguard.txt.
 *
 *     satellite [plot.svg]        with the name of a file: plots the height, shaded where the satellite is in full shadow
 */
#include <kor/d02.h>

#include <math.h>
#include <stdio.h>
#include <stdlib.h>

enum { HALF_SHADOW = 1, FULL_SHADOW, APSIS, EVENTS = APSIS };

static const double PI = 3.14159265358979323846;
static const double EPOCH = 2451723.28495062; /* Julian date */
static const double MINUTES = 720.0;

/* The field that the elements belong to, WGS 72. */
static const double MU = 398600.8;     /* km^3/s^2 */
static const double RADIUS = 6378.135; /* km */
static const double J2 = 1.082616e-3, J3 = -2.53881e-6, J4 = -1.65597e-6;

static double dot(const double a[], const double b[]) { return a[0] * b[0] + a[1] * b[1] + a[2] * b[2]; }

/* Position and velocity in km and km/s, t in seconds. */
static void motion(Integer neq, double t, const double y[], double yp[], void *comm)
{
    const double r2 = dot(y, y), r = sqrt(r2), q = RADIUS / r, s = y[2] / r, s2 = s * s;
    const double a2 = 1.5 * J2 * q * q, a3 = 2.5 * J3 * q * q * q, a4 = 1.875 * J4 * q * q * q * q;
    /* The pull towards the centre, and the rest along the axis. */
    const double radial =
        1.0 + a2 * (1.0 - 5.0 * s2) + a3 * s * (3.0 - 7.0 * s2) - a4 * (1.0 - 14.0 * s2 + 21.0 * s2 * s2);
    const double axial = 2.0 * a2 * s + a3 * (3.0 * s2 - 0.6) - a4 * s * (4.0 - 28.0 / 3.0 * s2);
    (void)neq, (void)t, (void)comm;
    for (int i = 0; i < 3; ++i) {
        yp[i] = y[3 + i];
        yp[3 + i] = -MU * y[i] / (r2 * r) * radial;
    }
    yp[5] -= MU / r2 * axial;
}

/* The direction of the Sun, to 0.01 degrees (Astronomical Almanac), and its apparent radius. */
static double sun(double t, double direction[3])
{
    const double degree = PI / 180.0, days = EPOCH - 2451545.0 + t / 86400.0;
    const double mean = (280.460 + 0.9856474 * days) * degree, anomaly = (357.528 + 0.9856003 * days) * degree;
    const double longitude = mean + (1.915 * sin(anomaly) + 0.020 * sin(2.0 * anomaly)) * degree;
    const double obliquity = (23.439 - 0.0000004 * days) * degree;
    direction[0] = cos(longitude);
    direction[1] = cos(obliquity) * sin(longitude);
    direction[2] = sin(obliquity) * sin(longitude);
    return 0.26656 * degree / (1.00014 - 0.01671 * cos(anomaly) - 0.00014 * cos(2.0 * anomaly));
}

/* The angle between the satellite and the middle of the shadow, less that at which the shadow begins: negative in the shadow. */
static double events(Integer neq, double t, const double y[], const double yp[], Integer k, void *comm)
{
    double direction[3];
    const double r = sqrt(dot(y, y)), half_sun = sun(t, direction), from_middle = acos(-dot(y, direction) / r);
    (void)neq, (void)yp, (void)comm;
    if (k == APSIS) return dot(y, y + 3);
    return from_middle - asin(RADIUS / r) - (k == HALF_SHADOW ? half_sun : -half_sun);
}

static void stop_if(int wrong, const char *message)
{
    if (!wrong) return;
    puts(message);
    exit(EXIT_FAILURE);
}

static void read_states(double minutes[2], double states[2][6])
{
    char line[256];
    int n = 0;
    FILE *file = fopen("data/vanguard.txt", "r");
    stop_if(file == NULL, "data/vanguard.txt is not here");
    while (n < 2 && fgets(line, sizeof line, file)) {
        double *s = states[n];
        n += sscanf(line, "%lf %lf %lf %lf %lf %lf %lf", minutes + n, s, s + 1, s + 2, s + 3, s + 4, s + 5) == 7;
    }
    fclose(file);
    stop_if(n < 2, "data/vanguard.txt cannot be read");
}

/* The plot: one minute is one unit across, 10 km one unit up. */
static void plot_start(FILE *svg)
{
    if (svg == NULL) return;
    fprintf(
        svg,
        "<svg xmlns='http://www.w3.org/2000/svg' viewBox='-60 -20 800 460' font-family='sans-serif' font-size='12'>\n"
        "<rect x='0' y='0' width='720' height='400' fill='none' stroke='black'/>\n");
    for (int hour = 0; hour <= 12; hour += 2)
        fprintf(svg, "<text x='%d' y='415' text-anchor='middle'>%d h</text>\n", 60 * hour, hour);
    for (int km = 1000; km <= 4000; km += 1000)
        fprintf(svg, "<text x='-4' y='%d' text-anchor='end'>%d km</text>\n", 404 - km / 10, km);
}
static void plot_shadow(FILE *svg, double from, double to)
{
    if (svg == NULL) return;
    fprintf(svg, "<rect x='%.2f' y='0' width='%.2f' height='400' fill='lightgrey'/>\n", from / 60.0,
            (to - from) / 60.0);
}
static void plot_end(FILE *svg, const double height[])
{
    if (svg == NULL) return;
    fprintf(svg, "<polyline fill='none' stroke='blue' points='");
    for (int minute = 0; minute <= (int)MINUTES; ++minute)
        fprintf(svg, "%d,%.1f ", minute, 400.0 - height[minute] / 10.0);
    fprintf(svg, "'/>\n</svg>\n");
    fclose(svg);
}

int main(int argc, char *argv[])
{
    double minutes[2], states[2][6], height[721], entry = -1.0, tolerance = 1e-12, t = 0.0, worst = 0.0;
    FILE *svg = argc > 1 ? fopen(argv[1], "w") : NULL;
    KorAdamsOptions opt = {0};
    KorError fail = {0};
    int nearest = 0, farthest = 0;

    read_states(minutes, states);
    double *y = states[0];
    height[0] = sqrt(dot(y, y)) - RADIUS;
    plot_start(svg);
    puts("Vanguard 1 in the shadow of the Earth, minutes after 18:50:19.7 UTC on 27 June 2000");
    puts("    half shadow    full shadow    sunlight again    height at entry and exit");

    d02qwc(Kor_NewStart, 6, 0, &tolerance, &tolerance, 0, 0, 0.0, 0.0, 0, EVENTS, 0, 0, &opt, &fail);
    stop_if(fail.code != NE_NOERROR, fail.message);
    double half = -1.0, entry_height = 0.0;
    for (int minute = 1; minute <= (int)MINUTES;) {
        double yp[6];
        d02qfc(6, motion, &t, y, 60.0 * minute, events, NULL, &opt, &fail);
        stop_if(fail.code != NE_NOERROR, fail.message);
        motion(6, t, y, yp, NULL);
        const double now = sqrt(dot(y, y)) - RADIUS;
        if (!opt.root_found) {
            height[minute++] = now;
            if (minute - 1 == (int)minutes[1])
                for (int i = 0; i < 3; ++i) worst = fmax(worst, fabs(y[i] - states[1][i]));
        } else if (opt.root_index == HALF_SHADOW) {
            half = t;
        } else if (opt.root_index == APSIS) {
            /* r r' rises through zero where the satellite is nearest. */
            *(dot(y, yp + 3) + dot(y + 3, y + 3) > 0.0 ? &nearest : &farthest) += 1;
        } else if (entry < 0.0) {
            entry = t;
            entry_height = now;
            printf("%15.4f%15.4f", half / 60.0, entry / 60.0);
        } else {
            printf("%18.4f%20.1f%10.1f km\n", t / 60.0, entry_height, now);
            plot_shadow(svg, entry, t);
            entry = -1.0;
        }
    }
    printf("nearest to the Earth %d times, farthest %d times, in %d steps\n", nearest, farthest, (int)opt.steps_taken);
    printf("after six hours within %.0f km of the published position\n", ceil(worst));
    plot_end(svg, height);
    d02qyc(&opt);
    return 0;
}
