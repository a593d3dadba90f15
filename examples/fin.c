/*
 * The temperature along a cooling fin, by d02gac.
 *
 * A rod of 5 mm diameter, 30 cm long, stands in air of 25 C and is held at 100 C at its foot; its tip gives off no heat. With
 * T the temperature and Q the heat that flows along the rod,
 *
 *     T' = -Q / (k A),     Q' = -h P (T - Ta) - e s P ((T + 273.15)^4 - (Ta + 273.15)^4):
 *
 * T is known at the foot, Q at the tip. The rods are of copper, aluminium 2024 and steel AISI 316, with the conductivities and the
 * heat transfer coefficient of F. P. Incropera and D. P. DeWitt, Fundamentals of Heat and Mass Transfer, example 3.9. Without
 * radiation there is a formula to compare with. With the name of a file as its argument the program draws the profiles there.
 */
#include <kor/d02.h>

#include <math.h>
#include <stdio.h>
#include <stdlib.h>

enum { MOST = 100, RODS = 4 };

static const double PI = 3.14159265358979323846;
static const double STEFAN = 5.670374419e-8;                                 /* W / (m^2 K^4) */
static const double LENGTH = 0.3, DIAMETER = 5e-3, AIR = 25.0, FOOT = 100.0; /* m, m, C, C */

typedef struct {
    const char *name, *colour;
    double conductivity, transfer, emissivity;
    Integer points;
    double x[MOST], y[2 * MOST]; /* temperatures, then heat flows */
} Rod;

static void slopes(Integer neq, double x, const double y[], double f[], void *data)
{
    const Rod *rod = data;
    const double area = PI * DIAMETER * DIAMETER / 4.0, perimeter = PI * DIAMETER, zero = 273.15;
    (void)neq, (void)x;
    f[0] = -y[1] / (rod->conductivity * area);
    f[1] = -perimeter *
           (rod->transfer * (y[0] - AIR) + rod->emissivity * STEFAN * (pow(y[0] + zero, 4.0) - pow(AIR + zero, 4.0)));
}

static void draw(const char *path, const Rod rods[])
{
    FILE *file = fopen(path, "w");
    int i;
    Integer j;
    if (file == NULL) {
        printf("%s cannot be written\n", path);
        exit(EXIT_FAILURE);
    }
    fputs("<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"640\" height=\"400\" font-family=\"sans-serif\" "
          "font-size=\"13\">\n",
          file);
    fputs("<path d=\"M60 20 V350 H620\" fill=\"none\" stroke=\"black\"/>\n", file);
    for (i = 0; i <= 3; i++) {
        fprintf(file, "<text x=\"%d\" y=\"370\" text-anchor=\"middle\">%.1f m</text>\n", 60 + 180 * i, 0.1 * i);
        fprintf(file, "<text x=\"52\" y=\"%d\" text-anchor=\"end\">%d C</text>\n", 354 - 110 * i, 25 + 25 * i);
    }
    for (i = 0; i < RODS; i++) {
        fprintf(file, "<polyline fill=\"none\" stroke=\"%s\" points=\"", rods[i].colour);
        for (j = 0; j < rods[i].points; j++)
            fprintf(file, "%.1f,%.1f ", 60.0 + 1800.0 * rods[i].x[j], 350.0 - 4.4 * (rods[i].y[j] - 25.0));
        fprintf(file, "\"/>\n<text x=\"470\" y=\"%d\" fill=\"%s\">%s</text>\n", 40 + 20 * i, rods[i].colour,
                rods[i].name);
    }
    fputs("</svg>\n", file);
    fclose(file);
}

int main(int argc, char **argv)
{
    static Rod rods[RODS] = {{"copper", "#b5651d", 398.0, 100.0, 0.0, 0, {0.0}, {0.0}},
                             {"aluminium 2024", "#4682b4", 180.0, 100.0, 0.0, 0, {0.0}, {0.0}},
                             {"steel AISI 316", "#2f4f4f", 14.0, 100.0, 0.0, 0, {0.0}, {0.0}},
                             {"steel, still air", "#b22222", 14.0, 5.0, 0.8, 0, {0.0}, {0.0}}};
    const double known[4] = {100.0, 30.0, 5.0, 0.0}; /* T at foot and tip, Q at foot and tip: known or estimated */
    const Integer which[4] = {0, 1, 1, 0};
    int i;

    puts("A rod as a cooling fin");
    puts("                    transfer  emissivity   tip (C)   heat (W)   by formula");
    for (i = 0; i < RODS; i++) {
        Rod *rod = &rods[i];
        KorError fail = {0};
        const double area = PI * DIAMETER * DIAMETER / 4.0, perimeter = PI * DIAMETER;
        const double m = sqrt(rod->transfer * perimeter / (rod->conductivity * area));
        d02gac(2, slopes, 0.0, LENGTH, known, which, 1e-6, MOST, &rod->points, rod->x, rod->y, MOST, rod, &fail);
        if (fail.code != NE_NOERROR) {
            puts(fail.message);
            return EXIT_FAILURE;
        }
        printf("%-18s%10.0f%12.1f%10.4f%11.6f", rod->name, rod->transfer, rod->emissivity, rod->y[rod->points - 1],
               rod->y[MOST]);
        if (rod->emissivity == 0.0)
            printf("%13.6f\n", m * rod->conductivity * area * (FOOT - AIR) * tanh(m * LENGTH));
        else
            printf("%13s\n", "-");
    }
    if (argc > 1) draw(argv[1], rods);
    return EXIT_SUCCESS;
}
