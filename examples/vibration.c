/*
 * Vibration modes of a framed building.
 *
 * The floors are masses m_i, the columns between them springs k_i: M x'' + K x = 0 with K tridiagonal. A mode
 * x = phi cos(omega t) solves K phi = omega^2 M phi, a symmetric-definite eigenproblem (f02aec). Its vectors come with
 * phi' M phi = 1, so the share of the ground's motion that a mode takes up, its effective mass, is (phi' M 1)^2, and the
 * effective masses add up to the whole mass of the building.
 *
 * With dampers between the floors the modes are no longer undamped, nor symmetric: the general problem in the state
 * (x, x') of twice the order (f02afc) tells how fast each dies away.
 *
 * The building is the shear frame of six storeys by which structural dynamics is taught: floors of 100 t, columns of
 * 150 MN/m that taper by a tenth from storey to storey.
 */
#include <kor/f02.h>

#include <math.h>
#include <stdio.h>
#include <stdlib.h>

enum { FLOORS = 6, STATES = 2 * FLOORS };

static const double kTwoPi = 6.283185307179586;

static int by_frequency(const void *a, const void *b)
{
    const double x = ((const Complex *)a)->im, y = ((const Complex *)b)->im;
    return (x > y) - (x < y);
}

int main(void)
{
    KorError fail = {0};
    double mass[FLOORS], stiffness[FLOORS + 1] = {0}; /* of the floor, and of the columns below it, kg and N/m */
    double K[FLOORS * FLOORS] = {0}, M[FLOORS * FLOORS] = {0}, omega2[FLOORS], phi[FLOORS * FLOORS];
    double A[STATES * STATES] = {0}, total = 0.0, found = 0.0;
    Complex lambda[STATES];
    Integer iter[STATES];
    int i, j;

    for (i = 0; i < FLOORS; i++) {
        mass[i] = 100e3;
        stiffness[i] = 150e6 * pow(0.9, i);
        total += mass[i];
    }
    for (i = 0; i < FLOORS; i++) {
        M[i * FLOORS + i] = mass[i];
        K[i * FLOORS + i] = stiffness[i] + stiffness[i + 1];
        if (i > 0) K[i * FLOORS + i - 1] = -stiffness[i]; /* the lower triangle is enough */
    }
    f02aec(FLOORS, K, FLOORS, M, FLOORS, omega2, phi, FLOORS, &fail);
    if (fail.code != NE_NOERROR) return EXIT_FAILURE;

    puts("mode  period   frequency  effective mass   shape, from the ground up");
    for (j = 0; j < FLOORS; j++) {
        const double omega = sqrt(omega2[j]);
        const double top = phi[(FLOORS - 1) * FLOORS + j];
        double participation = 0.0;
        for (i = 0; i < FLOORS; i++) participation += mass[i] * phi[i * FLOORS + j];
        found += participation * participation;
        printf("%4d  %.4f s  %6.3f Hz      %5.2f %%     ", j + 1, kTwoPi / omega, omega / kTwoPi,
               100.0 * participation * participation / total);
        for (i = 0; i < FLOORS; i++) printf(" %6.3f", phi[i * FLOORS + j] / top);
        puts("");
    }
    printf("All modes together take up %.6f of the mass.\n\n", found / total);

    /* Dampers in each storey, in proportion to its columns: about 2 % of critical in the first mode, more in the others.
     * State matrix [0 I; -M^-1 K, -M^-1 C]. */
    for (i = 0; i < FLOORS; i++) {
        A[i * STATES + FLOORS + i] = 1.0;
        for (j = 0; j < FLOORS; j++) {
            const double k = i == j       ? stiffness[i] + stiffness[i + 1]
                             : i == j + 1 ? -stiffness[i]
                             : j == i + 1 ? -stiffness[j]
                                          : 0.0;
            A[(FLOORS + i) * STATES + j] = -k / mass[i];
            A[(FLOORS + i) * STATES + FLOORS + j] = -0.005 * k / mass[i];
        }
    }
    f02afc(STATES, A, STATES, lambda, iter, &fail);
    if (fail.code != NE_NOERROR) return EXIT_FAILURE;
    qsort(lambda, STATES, sizeof *lambda, by_frequency);
    puts("With dampers: frequency, damping ratio, time to fall to a tenth");
    for (j = FLOORS; j < STATES; j++)
        printf("%6.3f Hz  %5.2f %%  %6.2f s\n", lambda[j].im / kTwoPi,
               -100.0 * lambda[j].re / hypot(lambda[j].re, lambda[j].im), log(10.0) / -lambda[j].re);
    return EXIT_SUCCESS;
}
