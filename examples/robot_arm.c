/* Inverse kinematics of an industrial arm: which joint angles put the hand where it is wanted?
 *
 * The arm has the link lengths of a Puma 560 (metres; P. I. Corke and B. Armstrong-Helouvry, A search for consensus among
 * model parameters reported for the PUMA 560 robot, Proc. IEEE ICRA 1994): waist, shoulder, elbow. The hand follows a circle of
 * 20 cm radius on a wall; the last solution starts the next search, and the Jacobian is checked first. */
#include <kor/c05.h>

#include <math.h>
#include <stdio.h>

static const double upper_arm = 0.4318, forearm = 0.4331, shoulder_offset = 0.1501;

typedef struct {
    double x, y, z;
} Point;

/* Position of the wrist for waist angle q0, shoulder q1 and elbow q2, less the target; and its derivatives. */
static void reach(Integer n, const double q[], double f[], double j[], Integer td, Integer *userflag, void *comm)
{
    const Point *target = comm;
    const double out = upper_arm * cos(q[1]) + forearm * cos(q[1] + q[2]); /* distance from the waist axis */
    const double out1 = -upper_arm * sin(q[1]) - forearm * sin(q[1] + q[2]), out2 = -forearm * sin(q[1] + q[2]);
    const double c = cos(q[0]), s = sin(q[0]);
    (void)n;
    if (*userflag == 1) {
        f[0] = c * out - s * shoulder_offset - target->x;
        f[1] = s * out + c * shoulder_offset - target->y;
        f[2] = upper_arm * sin(q[1]) + forearm * sin(q[1] + q[2]) - target->z;
    } else {
        j[0] = -s * out - c * shoulder_offset;
        j[1] = c * out1;
        j[2] = c * out2;
        j[td] = c * out - s * shoulder_offset;
        j[td + 1] = s * out1;
        j[td + 2] = s * out2;
        j[2 * td] = 0.0;
        j[2 * td + 1] = out;
        j[2 * td + 2] = forearm * cos(q[1] + q[2]);
    }
}

int main(void)
{
    const double degree = 57.29577951308232;
    double q[3] = {0.3, 0.9, -1.4}, f[3], jacobian[9];
    Point target = {0.45, 0.0, 0.25};
    KorError fail = {0};
    int step;

    c05zcc(3, q, f, jacobian, 3, reach, &target, &fail);
    printf("The Jacobian %s.\n\n", fail.code == NE_NOERROR ? "fits the function" : "is wrong");
    printf("        hand at (m)             joints (degrees)\n");
    for (step = 0; step <= 12; ++step) {
        const double turn = step * 6.283185307179586 / 12.0;
        target.y = 0.2 * cos(turn);
        target.z = 0.25 + 0.2 * sin(turn);
        c05ubc(3, reach, q, f, jacobian, 3, 1e-12, &target, &fail);
        printf("%6.3f %6.3f %6.3f   %9.4f %9.4f %9.4f\n", target.x, target.y, target.z, q[0] * degree, q[1] * degree,
               q[2] * degree);
        if (fail.code != NE_NOERROR) puts(fail.message);
    }

    /* Out of reach: the search ends at the nearest position, and says so. */
    target.x = 2.0;
    c05ubc(3, reach, q, f, jacobian, 3, 1e-12, &target, &fail);
    printf("\n2 m away:\n%s\n", fail.message);
    return 0;
}
